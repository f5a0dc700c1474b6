#include "look/MenuPainting.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"

#include <QStyle>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr int tickColumn = 28;  // pixels ahead of the words
constexpr int behindWords = 28; // of an entry, where the angle of a menu below it stands
constexpr int separatorRow = 9;

// For words in one line, whose key is underlined where the desktop wants it.
int flagsFor(Qt::Alignment alignment, const QStyleOption& option, const QStyle& style)
{
    const bool showsKey = style.styleHint(QStyle::SH_UnderlineShortcut, &option) != 0;
    return static_cast<int>(alignment) | Qt::TextSingleLine | (showsKey ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
}

void paintWords(const QStyleOptionMenuItem& option, QPainter& painter, const QStyle& style)
{
    const bool isOn = option.state.testFlag(QStyle::State_Enabled);
    const QRect words = option.rect.adjusted(tickColumn, 0, -behindWords, 0);
    const QString caption = option.text.section(QLatin1Char('\t'), 0, 0);
    const QString keys = option.text.section(QLatin1Char('\t'), 1);
    painter.save();
    painter.setFont(option.font);
    painter.setPen(tone(isOn ? Tone::Text : Tone::Off));
    painter.drawText(words, flagsFor(Qt::AlignLeft | Qt::AlignVCenter, option, style), caption);
    if (!keys.isEmpty()) {
        painter.setPen(tone(isOn ? Tone::Muted : Tone::Off));
        painter.drawText(words, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, keys);
    }
    painter.restore();
}

} // namespace

void paintPopUp(const QStyleOption& option, QPainter& painter)
{
    fillSharp(painter, option.rect, tone(Tone::Field));
    drawRing(painter, option.rect, 0, Measure::Hairline, tone(Tone::Edge));
}

void paintMenuItem(const QStyleOptionMenuItem& option, QPainter& painter, const QStyle& style)
{
    const QRectF place(option.rect);
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        fillSharp(painter, QRectF(place.left(), place.center().y(), place.width(), Measure::Hairline),
                  tone(Tone::Line));
        return;
    }
    if (option.state.testFlag(QStyle::State_Selected) && option.state.testFlag(QStyle::State_Enabled)) {
        const bool isPressed = option.state.testFlag(QStyle::State_Sunken);
        fillRounded(painter, place.adjusted(Measure::Tight, 0, -Measure::Tight, 0), Measure::Radius,
                    tone(isPressed ? Tone::Pressed : Tone::Soft));
    }
    const QRectF ahead(place.left() + Measure::Gap, place.center().y() - Measure::Box / 2.0, Measure::Box,
                       Measure::Box);
    if (option.checkType != QStyleOptionMenuItem::NotCheckable && option.checked) {
        drawTick(painter, ahead, tone(option.state.testFlag(QStyle::State_Enabled) ? Tone::Accent : Tone::Off));
    } else if (!option.icon.isNull()) {
        option.icon.paint(&painter, ahead.toRect(), Qt::AlignCenter,
                          option.state.testFlag(QStyle::State_Enabled) ? QIcon::Normal : QIcon::Disabled);
    }
    paintWords(option, painter, style);
    if (option.menuItemType == QStyleOptionMenuItem::SubMenu) {
        drawChevron(painter, QRectF(place.right() - behindWords, place.top(), behindWords, place.height()),
                    Qt::RightArrow, tone(Tone::Muted));
    }
}

QSize menuItemSize(const QStyleOptionMenuItem& option, const QSize& text)
{
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        return {text.width(), separatorRow};
    }
    const bool hasKeys = option.text.contains(QLatin1Char('\t')) || option.reservedShortcutWidth > 0;
    return {tickColumn + text.width() + behindWords + (hasKeys ? Measure::Far : 0),
            std::max(rowHeight(QFontMetrics(option.font)), text.height())};
}

void paintMenuBarGround(const QStyleOption& option, QPainter& painter)
{
    fillSharp(painter, option.rect, tone(Tone::Chrome));
}

void paintMenuBarItem(const QStyleOptionMenuItem& option, QPainter& painter, const QStyle& style)
{
    paintMenuBarGround(option, painter);
    if (option.state.testFlag(QStyle::State_Enabled) && option.state.testFlag(QStyle::State_Selected)) {
        fillRounded(painter, QRectF(option.rect).adjusted(0, 2, 0, -2), Measure::Radius,
                    tone(option.state.testFlag(QStyle::State_Sunken) ? Tone::Soft : Tone::Hover));
    }
    painter.setPen(tone(option.state.testFlag(QStyle::State_Enabled) ? Tone::Text : Tone::Off));
    painter.drawText(option.rect, flagsFor(Qt::AlignCenter, option, style), option.text);
}

QSize menuBarItemSize(const QStyleOptionMenuItem& option, const QSize& text)
{
    return {text.width() + 2 * Measure::Gap, std::max(Measure::Target, option.fontMetrics.height() + Measure::Gap)};
}
