#include "look/SwatchButton.h"

#include "look/Measures.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr int ahead = Measure::Gap; // pixels ahead of the swatch
constexpr int between = 2;          // it and the words: the swatch brings some room with it

} // namespace

QSize SwatchButton::sizeHint() const
{
    const int words = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    return {ahead + iconSize().width() + between + words + Measure::Section, QPushButton::sizeHint().height()};
}

void SwatchButton::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);

    QRect swatch(QPoint(ahead, (height() - iconSize().height()) / 2), iconSize());
    swatch = style()->visualRect(layoutDirection(), rect(), swatch);
    option.icon.paint(&painter, swatch, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);

    const QRect words(ahead + iconSize().width() + between, 0, width() - 2 * ahead - iconSize().width() - between,
                      height());
    painter.drawItemText(style()->visualRect(layoutDirection(), rect(), words),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, palette(), isEnabled(), option.text,
                         QPalette::ButtonText);
}
