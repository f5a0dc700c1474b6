#include "look/SectionPainting.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"
#include "look/Type.h"

#include <QStyleOption>

#include <algorithm>

namespace {

bool isSection(const QStyleOptionGroupBox& option)
{
    return option.features.testFlag(QStyleOptionFrame::Flat);
}

int besideHeading(const QStyleOptionGroupBox& option)
{
    return isSection(option) ? 0 : Measure::Hairline + Measure::Section; // where the words below it begin
}

int aboveHeading(const QStyleOptionGroupBox& option)
{
    return isSection(option) && option.lineWidth == 0 ? Measure::Tight : Measure::Wide;
}

QRect headingOf(const QStyleOptionGroupBox& option)
{
    const QSize words = QFontMetrics(boldFont()).size(Qt::TextShowMnemonic, option.text);
    const int beside = besideHeading(option);
    return {option.rect.left() + beside, option.rect.top() + aboveHeading(option),
            std::min(words.width(), option.rect.width() - 2 * beside), option.text.isEmpty() ? 0 : words.height()};
}

} // namespace

void paintGroupBox(const QStyleOptionGroupBox& option, QPainter& painter)
{
    const QRect& place = option.rect;
    if (!isSection(option)) {
        drawRing(painter, place, Measure::Radius, Measure::Hairline, tone(Tone::Line));
    } else if (option.lineWidth > 0) {
        fillSharp(painter, QRectF(place.left(), place.top(), place.width(), Measure::Hairline), tone(Tone::Line));
    }
    painter.save();
    painter.setFont(boldFont()); // the box itself must not be bold, or all in it would be
    painter.setPen(tone(option.state.testFlag(QStyle::State_Enabled) ? Tone::Text : Tone::Off));
    const QRect heading = headingOf(option);
    painter.drawText(
        heading, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic,
        painter.fontMetrics().elidedText(option.text, Qt::ElideRight, heading.width(), Qt::TextShowMnemonic));
    painter.restore();
}

QRect groupBoxPart(const QStyleOptionGroupBox& option, QStyle::SubControl part)
{
    const QRect heading = headingOf(option);
    switch (part) {
    case QStyle::SC_GroupBoxLabel:
        return heading;
    case QStyle::SC_GroupBoxContents: {
        const int frame = isSection(option) ? 0 : Measure::Hairline;
        return QRect(QPoint(option.rect.left() + frame, heading.top() + heading.height() + Measure::Tight),
                     QPoint(option.rect.right() - frame, option.rect.bottom() - frame));
    }
    case QStyle::SC_GroupBoxFrame:
        return option.rect;
    default:
        return {};
    }
}

QSize groupBoxSize(const QStyleOptionGroupBox& option, const QSize& contents)
{
    const int words = QFontMetrics(boldFont()).size(Qt::TextShowMnemonic, option.text).width();
    return {std::max(contents.width(), words + 2 * besideHeading(option)),
            contents.height() + aboveHeading(option) + Measure::Tight};
}
