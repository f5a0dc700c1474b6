#include "look/Section.h"

#include <QEvent>
#include <QStyleOptionGroupBox>

Section::Section(const QString& heading, QWidget* parent, Line line) : QGroupBox(parent), m_line(line)
{
    setFlat(true);
    setTitle(heading); // makes room for the heading of a section
}

void Section::setAside(QWidget* aside)
{
    m_aside = aside;
    aside->setParent(this);
    placeAside();
}

void Section::initStyleOption(QStyleOptionGroupBox* option) const
{
    QGroupBox::initStyleOption(option);
    option->lineWidth = m_line == Line::Above ? 1 : 0;
}

void Section::resizeEvent(QResizeEvent* event)
{
    QGroupBox::resizeEvent(event);
    placeAside();
}

bool Section::event(QEvent* event)
{
    // Its text may have grown.
    if (event->type() == QEvent::LayoutRequest) {
        placeAside();
    }
    return QGroupBox::event(event);
}

void Section::placeAside()
{
    if (!m_aside) {
        return;
    }
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    const QRect heading = style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
    const int room = std::max(0, width() - heading.right() - 12);
    const QSize size = m_aside->sizeHint().boundedTo(QSize(room, QWIDGETSIZE_MAX));
    m_aside->setGeometry(style()->visualRect(
        layoutDirection(), rect(),
        QRect(QPoint(width() - size.width(), heading.center().y() - (size.height() - 1) / 2), size)));
}
