// A part of a panel or a dialog: a hairline across, a heading, and below it whatever layout it is given, over its whole
// width. Something small that belongs to all of it, such as a count, can stand at the right end of the heading. A form
// owns its sections.
#pragma once

#include <QGroupBox>

class Section : public QGroupBox
{
    Q_OBJECT

public:
    // Where a line stands right above, as below tabs, it needs none of its own.
    enum class Line { Above, None };

    explicit Section(const QString& heading, QWidget* parent, Line line = Line::Above);

    // Takes the widget over.
    void setAside(QWidget* aside);

protected:
    void initStyleOption(QStyleOptionGroupBox* option) const override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void placeAside();

    Line m_line;
    QWidget* m_aside = nullptr;
};
