// What a person does who has a keyboard and no mouse. Keys go where the focus is, and Tab brings it there.
#pragma once

#include <QString>

class QAction;
class QMainWindow;
class QTabWidget;
class QWidget;

namespace KeyHands {

// Presses Tab until the widget has the focus; the arrow keys among options of one group. A failed test when the focus
// never comes.
void tabTo(QWidget* widget);
// Presses a button, a link, a check box or an option.
void press(QWidget* widget);
// Replaces the text of a field of one line or several.
void type(QWidget* field, const QString& text);
// Opens the menu that has the entry, by its letter, and takes the entry.
void takeEntry(QMainWindow& window, QAction* entry);
void openTab(QTabWidget* tabs, int index);

} // namespace KeyHands
