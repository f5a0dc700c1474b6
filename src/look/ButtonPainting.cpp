#include "look/ButtonPainting.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"

#include <QStyleOption>

#include <algorithm>

namespace {

Tone groundOf(const QStyleOptionButton& option)
{
    if (option.state.testFlag(QStyle::State_Sunken) || option.state.testFlag(QStyle::State_On)) {
        return Tone::Pressed;
    }
    if (option.state.testFlag(QStyle::State_MouseOver)) {
        return Tone::Hover;
    }
    return option.features.testFlag(QStyleOptionButton::DefaultButton) ? Tone::Soft : Tone::Button;
}

// The square of a box in the middle of its room.
QRectF boxIn(const QRect& room)
{
    QRect box(0, 0, Measure::Box, Measure::Box);
    box.moveCenter(room.center());
    return box;
}

struct BoxColours
{
    QColor ground, edge, mark;
};

BoxColours coloursOf(const QStyleOption& option, bool isMarked)
{
    if (!option.state.testFlag(QStyle::State_Enabled)) {
        return {isMarked ? tone(Tone::EdgeOff) : tone(Tone::FieldOff), tone(Tone::EdgeOff), tone(Tone::Off)};
    }
    if (isMarked) {
        return {tone(Tone::Accent), tone(Tone::Accent), tone(Tone::OnAccent)};
    }
    const bool isUnderMouse = option.state.testFlag(QStyle::State_MouseOver);
    return {tone(Tone::Field), tone(isUnderMouse ? Tone::Muted : Tone::Edge), {}};
}

} // namespace

void paintButton(const QStyleOptionButton& option, QPainter& painter)
{
    constexpr double radius = Measure::Radius;
    if (!option.state.testFlag(QStyle::State_Enabled)) {
        drawRing(painter, option.rect, radius, Measure::Hairline, tone(Tone::EdgeOff));
        return;
    }
    fillRounded(painter, option.rect, radius, tone(groundOf(option)));
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        drawRing(painter, option.rect, radius, Measure::Ring, tone(Tone::Accent));
    } else {
        const bool isDefault = option.features.testFlag(QStyleOptionButton::DefaultButton);
        drawRing(painter, option.rect, radius, Measure::Hairline, tone(isDefault ? Tone::Accent : Tone::ButtonLine));
    }
}

void paintButtonLabel(const QStyleOptionButton& option, QPainter& painter, const QStyle& style)
{
    constexpr int besidePicture = 6;
    const bool isOn = option.state.testFlag(QStyle::State_Enabled);
    const int words = option.fontMetrics.size(Qt::TextShowMnemonic, option.text).width();
    const int picture = option.icon.isNull() ? 0 : option.iconSize.width() + (words > 0 ? besidePicture : 0);
    QRect room(0, 0, std::min(picture + words, option.rect.width()), option.rect.height());
    room.moveCenter(option.rect.center());
    if (!option.icon.isNull()) {
        const QRect place(room.left(), room.top() + (room.height() - option.iconSize.height()) / 2,
                          option.iconSize.width(), option.iconSize.height());
        option.icon.paint(&painter, QStyle::visualRect(option.direction, option.rect, place), Qt::AlignCenter,
                          isOn ? QIcon::Normal : QIcon::Disabled);
    }
    const int underline =
        style.styleHint(QStyle::SH_UnderlineShortcut, &option) ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    style.drawItemText(&painter, QStyle::visualRect(option.direction, option.rect, room.adjusted(picture, 0, 0, 0)),
                       Qt::AlignCenter | underline, option.palette, isOn, option.text, QPalette::ButtonText);
}

void paintToolButton(const QStyleOption& option, QPainter& painter)
{
    if (option.state.testFlag(QStyle::State_Enabled)) {
        if (option.state.testFlag(QStyle::State_Sunken) || option.state.testFlag(QStyle::State_On)) {
            fillRounded(painter, option.rect, Measure::Radius, tone(Tone::Pressed));
        } else if (option.state.testFlag(QStyle::State_MouseOver)) {
            fillRounded(painter, option.rect, Measure::Radius, tone(Tone::Hover));
        }
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        drawRing(painter, option.rect, Measure::Radius, Measure::Ring, tone(Tone::Accent));
    }
}

void paintCheckBox(const QStyleOption& option, QPainter& painter)
{
    const bool isPartly = option.state.testFlag(QStyle::State_NoChange);
    const bool isMarked = option.state.testFlag(QStyle::State_On) || isPartly;
    const BoxColours colours = coloursOf(option, isMarked);
    const QRectF box = boxIn(option.rect);
    fillRounded(painter, box, Measure::SmallRadius, colours.ground);
    drawRing(painter, box, Measure::SmallRadius, Measure::Hairline, colours.edge);
    if (isPartly) {
        fillSharp(painter, box.adjusted(4, 7, -4, -7), colours.mark);
    } else if (isMarked) {
        drawTick(painter, box, colours.mark);
    }
}

void paintOption(const QStyleOption& option, QPainter& painter)
{
    const bool isMarked = option.state.testFlag(QStyle::State_On);
    const BoxColours colours = coloursOf(option, isMarked);
    const QRectF box = boxIn(option.rect);
    fillRounded(painter, box, Measure::Box / 2.0, colours.ground);
    drawRing(painter, box, Measure::Box / 2.0, Measure::Hairline, colours.edge);
    if (isMarked) {
        fillRounded(painter, box.adjusted(5, 5, -5, -5), Measure::Box, colours.mark);
    }
}
