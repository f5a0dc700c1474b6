// What a person does to a widget with mouse and keyboard.
#pragma once

#include <QString>
#include <QStringList>

class QCheckBox;
class QWidget;

namespace Hands {

// Clicks into the middle of the widget.
void press(QWidget* widget);
// Clicks the small box itself: the widget may be wider than its caption.
void tick(QCheckBox* box);
// Presses a key for every character of the text. The test library's own way knows only ASCII.
void pressKeys(QWidget* field, const QString& text);
// Replaces the text of a field of one line or several.
void type(QWidget* field, const QString& text);
// Drags the files over the middle of the widget, which must be on the screen, lets them drop there, and lets events
// run. False when the window does not take them.
bool drop(QWidget* widget, const QStringList& files);

} // namespace Hands
