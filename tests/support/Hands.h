// What a person does to a widget: presses of the mouse and of keys.
#pragma once

#include <QString>

class QCheckBox;
class QWidget;

namespace Hands {

// Clicks into the middle of the widget.
void press(QWidget* widget);
// Clicks the box itself: a box may be wider than its caption.
void tick(QCheckBox* box);
// Key presses for every letter of the text; the test library's own way knows no letters outside ASCII.
void pressKeys(QWidget* field, const QString& text);
// Replaces what stands in a field of text, of one line or more.
void type(QWidget* field, const QString& text);

} // namespace Hands
