#include "look/ViewPainting.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QStyleOption>
#include <QTableView>

namespace {

constexpr int chosenBar = 3; // pixels at the left of a chosen row

bool isChosen(const QStyleOptionViewItem& option)
{
    return option.state.testFlag(QStyle::State_Selected);
}

bool isUnderMouse(const QStyleOptionViewItem& option)
{
    return option.state.testFlag(QStyle::State_MouseOver) && option.state.testFlag(QStyle::State_Enabled);
}

QColor chosenGround(const QPalette& palette)
{
    return cellPalette(palette).color(QPalette::Highlight);
}

QColor barColour(const QStyleOptionViewItem& option)
{
    if (!option.state.testFlag(QStyle::State_Enabled)) {
        return tone(Tone::EdgeOff);
    }
    return hasOwnSelection(option.palette) ? option.palette.color(QPalette::HighlightedText) : tone(Tone::Accent);
}

void paintBar(const QStyleOptionViewItem& option, QPainter& painter)
{
    fillSharp(painter, QRectF(option.rect.topLeft(), QSizeF(chosenBar, option.rect.height())), barColour(option));
}

} // namespace

bool hasOwnSelection(const QPalette& palette)
{
    const QColor chosen = palette.color(QPalette::Active, QPalette::Highlight);
    return chosen != tone(Tone::Accent) && chosen != tone(Tone::Soft); // the second is that of a cell
}

QPalette cellPalette(const QPalette& palette)
{
    QPalette colours = palette;
    if (!hasOwnSelection(palette)) {
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
            colours.setColor(group, QPalette::Highlight, tone(Tone::Soft));
            colours.setColor(group, QPalette::HighlightedText, tone(Tone::Text));
        }
    }
    return colours;
}

void paintRow(const QStyleOptionViewItem& option, QPainter& painter)
{
    if (isChosen(option)) {
        fillSharp(painter, option.rect, chosenGround(option.palette));
        if (option.rect.left() == 0) {
            paintBar(option, painter);
        }
    } else if (isUnderMouse(option)) {
        fillSharp(painter, option.rect, option.palette.color(QPalette::AlternateBase));
    }
}

void paintCell(const QStyleOptionViewItem& option, QPainter& painter, const QWidget* widget)
{
    const bool isInGrid =
        qobject_cast<const QTableView*>(widget) && !qobject_cast<const QCalendarWidget*>(widget->parentWidget());
    const bool isInTree = widget && widget->inherits("QTreeView");
    if (isChosen(option)) {
        fillSharp(painter, option.rect, chosenGround(option.palette));
        if (!isInGrid && !isInTree) {
            paintBar(option, painter);
        }
    } else if (isUnderMouse(option)) {
        fillSharp(painter, option.rect, option.palette.color(QPalette::AlternateBase));
    } else if (option.backgroundBrush.style() != Qt::NoBrush) {
        painter.fillRect(option.rect, option.backgroundBrush);
    }
    if (isInGrid) {
        const QRect& cell = option.rect;
        fillSharp(painter, QRectF(cell.left(), cell.bottom() + 1 - Measure::Hairline, cell.width(), Measure::Hairline),
                  tone(Tone::Line));
    }
}

void paintFocus(const QStyleOption& option, QPainter& painter, const QWidget* widget)
{
    const bool isInView = !widget || qobject_cast<const QAbstractItemView*>(widget);
    const bool isOwn = isInView && hasOwnSelection(option.palette);
    drawRing(painter, option.rect, isInView ? 0 : Measure::Radius, Measure::Ring,
             isOwn ? option.palette.color(QPalette::HighlightedText) : tone(Tone::Accent));
}

void paintBranch(const QStyleOption& option, QPainter& painter)
{
    if (option.state.testFlag(QStyle::State_Children)) {
        drawChevron(painter, option.rect, option.state.testFlag(QStyle::State_Open) ? Qt::DownArrow : Qt::RightArrow,
                    option.palette.color(QPalette::Text));
    }
}

void paintHeaderGround(const QRect& place, Qt::Orientation orientation, QPainter& painter)
{
    fillSharp(painter, place, tone(Tone::Header));
    if (orientation == Qt::Horizontal) {
        fillSharp(painter,
                  QRectF(place.left(), place.bottom() + 1 - Measure::Hairline, place.width(), Measure::Hairline),
                  tone(Tone::Line));
    }
}
