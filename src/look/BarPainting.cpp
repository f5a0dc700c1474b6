#include "look/BarPainting.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"
#include "look/Type.h"
#include "look/ViewPainting.h"

#include <QStyleOption>

#include <algorithm>

namespace {

constexpr int grip = 3; // pixels of the splitter's mark, and of the line under the open tab
constexpr int progressHeight = 4;
constexpr int besideTab = Measure::Wide;
constexpr int tabHeight = 32;

bool isUpright(const QStyleOption& option)
{
    return !option.state.testFlag(QStyle::State_Horizontal);
}

} // namespace

// Scrolling -----------------------------------------------------------------------------------------------------------

QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part)
{
    const bool upright = option.orientation == Qt::Vertical;
    const int length = upright ? option.rect.height() : option.rect.width();
    const qint64 range = static_cast<qint64>(option.maximum) - option.minimum;
    int thumb = length;
    if (range > 0) {
        thumb = static_cast<int>(length * static_cast<qint64>(option.pageStep) / (range + option.pageStep));
        thumb = std::clamp(thumb, std::min(Measure::LeastThumb, length), length);
    }
    const int start = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      length - thumb, option.upsideDown);
    int from = 0;
    int size = 0; // of the arrows, which are not there
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        from = start;
        size = thumb;
        break;
    case QStyle::SC_ScrollBarSubPage:
        size = start;
        break;
    case QStyle::SC_ScrollBarAddPage:
        from = start + thumb;
        size = length - from;
        break;
    case QStyle::SC_ScrollBarGroove:
        size = length;
        break;
    default:
        break;
    }
    const QRect place =
        upright ? QRect(0, from, option.rect.width(), size) : QRect(from, 0, size, option.rect.height());
    return QStyle::visualRect(option.direction, option.rect, place.translated(option.rect.topLeft()));
}

void paintScrollBar(const QStyleOptionSlider& option, QPainter& painter, const QStyle& style, const QWidget* widget)
{
    if (option.maximum <= option.minimum) {
        return;
    }
    constexpr double beside = (Measure::Scroll - Measure::Thumb) / 2.0;
    const QRectF place = QRectF(style.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, widget))
                             .adjusted(beside, beside, -beside, -beside);
    const bool isHeld = option.state.testFlag(QStyle::State_MouseOver) || option.state.testFlag(QStyle::State_Sunken);
    QColor colour = tone(isHeld ? Tone::Muted : Tone::Edge);
    if (!option.state.testFlag(QStyle::State_Enabled)) {
        colour = tone(Tone::EdgeOff); // what is off cannot be scrolled
    } else if (hasOwnSelection(option.palette)) {
        colour = tone(isHeld ? Tone::TreeText : Tone::TreeThumb);
    }
    fillRounded(painter, place, Measure::Thumb / 2.0, colour);
}

// The splitter --------------------------------------------------------------------------------------------------------

void paintSplitter(const QStyleOption& option, QPainter& painter)
{
    QRect mark = isUpright(option) ? QRect(0, 0, Measure::Far, grip) : QRect(0, 0, grip, Measure::Far);
    mark.moveCenter(option.rect.center());
    const bool isHeld = option.state.testFlag(QStyle::State_MouseOver) || option.state.testFlag(QStyle::State_Sunken);
    fillRounded(painter, mark, grip / 2.0, tone(isHeld ? Tone::Accent : Tone::Edge));
}

// Progress ------------------------------------------------------------------------------------------------------------

void paintProgress(const QStyleOptionProgressBar& option, QPainter& painter)
{
    QRectF groove(option.rect);
    groove.setHeight(progressHeight);
    const int above = (option.rect.height() - progressHeight) / 2;
    groove.moveTop(option.rect.top() + above);
    fillRounded(painter, groove, progressHeight / 2.0, tone(Tone::Header));
    const double range = option.maximum - option.minimum;
    const double done = range > 0 ? (option.progress - option.minimum) / range : 0;
    if (done > 0) {
        groove.setWidth(std::max<double>(progressHeight, groove.width() * std::min(done, 1.0)));
        fillRounded(painter, groove, progressHeight / 2.0, tone(Tone::Accent));
    }
}

// Tabs ----------------------------------------------------------------------------------------------------------------

QSize tabSize(const QStyleOptionTab& option)
{
    const QFontMetrics& usual = option.fontMetrics;
    // The bold words are the wider ones: nothing moves when another tab is opened.
    const int words = QFontMetrics(boldFont()).size(Qt::TextShowMnemonic, option.text).width();
    const int usualWords = usual.size(Qt::TextShowMnemonic, option.text).width();
    return {std::max(words, usualWords) + 2 * besideTab, std::max(tabHeight, usual.height() + 2 * Measure::Gap)};
}

void paintTab(const QStyleOptionTab& option, QPainter& painter)
{
    const QRectF place(option.rect);
    if (option.state.testFlag(QStyle::State_Selected)) {
        fillRounded(painter,
                    QRectF(place.left() + Measure::Gap, place.bottom() - grip, place.width() - 2 * Measure::Gap, grip),
                    1, tone(option.state.testFlag(QStyle::State_Enabled) ? Tone::Accent : Tone::EdgeOff));
    } else if (option.state.testFlag(QStyle::State_MouseOver) && option.state.testFlag(QStyle::State_Enabled)) {
        fillRounded(painter, place.adjusted(Measure::Tight, 2, -Measure::Tight, -grip - 1), Measure::Radius,
                    tone(Tone::Hover));
    }
}

void paintTabLabel(const QStyleOptionTab& option, QPainter& painter, const QStyle& style)
{
    const bool isOpen = option.state.testFlag(QStyle::State_Selected);
    const bool isOn = option.state.testFlag(QStyle::State_Enabled);
    painter.save();
    if (isOpen) {
        painter.setFont(boldFont());
    }
    painter.setPen(tone(!isOn ? Tone::Off : isOpen ? Tone::Text : Tone::Muted));
    style.drawItemText(&painter, option.rect.adjusted(0, 0, 0, -grip), Qt::AlignCenter | Qt::TextShowMnemonic,
                       option.palette, isOn, option.text);
    painter.restore();
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        drawRing(painter, QRectF(option.rect).adjusted(Measure::Tight, 2, -Measure::Tight, -grip - 1), Measure::Radius,
                 Measure::Ring, tone(Tone::Accent));
    }
}

void paintTabLine(const QStyleOption& option, QPainter& painter)
{
    const QRect& place = option.rect;
    fillSharp(painter, QRectF(place.left(), place.bottom() + 1 - Measure::Hairline, place.width(), Measure::Hairline),
              tone(Tone::Line));
}
