// The small parts that panels and dialogs are made of, each in its one shape: titles, forms, fields with their labels,
// options. What they make belongs to the parent that they are given.
#pragma once

#include <QWidget>

class QFormLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QRadioButton;
class QVBoxLayout;

// Gives a widget its name and what a screen reader says.
template <class Widget>
Widget* named(Widget* widget, const char* name, const QString& accessibleName)
{
    widget->setObjectName(QLatin1String(name));
    widget->setAccessibleName(accessibleName);
    return widget;
}

// The column of a panel, which begins with the panel's title.
QVBoxLayout* newPanelColumn(QWidget* panel, const QString& title);

// A form whose fields grow with the panel. The caller adds it to a layout or to a widget.
QFormLayout* newForm(QWidget* owner = nullptr);

// A label that leads to its field: its mnemonic's key goes there.
QLabel* newCaption(const QString& text, QWidget* field);

// The label of a form's field, as wide as those of the other fields.
QLabel* captionOf(const QString& label, QWidget* field);

// Appends a field under its name, with its label.
void addField(QFormLayout* form, const QString& label, QWidget* field, const char* name);

// Puts something small to the right end of the heading of a panel's group, whose layout it is given.
void setAside(const QLayout* group, QWidget* aside);

// How wide a field is whose text has an end; names, links and descriptions get all the room. In pixels.
namespace FieldWidth {
constexpr int Number = 120;
constexpr int Date = 140;
constexpr int Short = 280; // codes, units
} // namespace FieldWidth

// A field for one line of text of any length.
QLineEdit* textField(QWidget* parent);

// One of several choices of which one is on.
QRadioButton* newOption(const char* name, const QString& caption, QWidget* parent);
