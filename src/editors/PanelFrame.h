// What a panel stands in: a heading, groups of fields that scroll when the window is small, and the two buttons at the
// bottom right. It fills the panel, which owns it, and grows and shrinks with it.
#pragma once

#include <QFrame>
#include <QString>

class PanelHost;
class QFormLayout;
class QLabel;
class QLineEdit;
class QVBoxLayout;

class PanelFrame : public QFrame
{
    Q_OBJECT

public:
    PanelFrame(const QString& heading, QWidget* panel);

    // A group with a caption, below the groups before it: fields with their labels at the left, or a free column. A
    // group that stretches takes all the height that is left.
    QFormLayout* addForm(const QString& caption, bool stretches = false);
    QVBoxLayout* addColumn(const QString& caption, bool stretches = false);
    // The row of Submit and Reset.
    void addButtons(PanelHost& host);

private:
    void addGroup(QWidget* group, bool stretches);

    QVBoxLayout* m_groups;
    QVBoxLayout* m_whole;
    bool m_isStretched = false;
};

// Gives a widget its name and what a screen reader says.
template <class Widget>
Widget* named(Widget* widget, const char* name, const QString& accessibleName)
{
    widget->setObjectName(QLatin1String(name));
    widget->setAccessibleName(accessibleName);
    return widget;
}

// Appends a field under its name, with a label that is its buddy.
void addField(QFormLayout* form, const QString& label, QWidget* field, const char* name);

// The label of a field, as wide as those of the other fields.
QLabel* captionOf(const QString& label, QWidget* field);

// Puts something small to the right end of the heading of a form's group.
void setAside(const QFormLayout* form, QWidget* aside);

// How wide a field is whose text has an end; names, links and descriptions get all the room. In pixels.
namespace FieldWidth {
constexpr int Number = 120;
constexpr int Date = 140;
constexpr int Short = 280; // codes, units
} // namespace FieldWidth

// A field for one line of text of any length.
QLineEdit* textField(QWidget* parent);
