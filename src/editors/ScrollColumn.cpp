#include "editors/ScrollColumn.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"

#include <QEvent>
#include <QLayout>
#include <QPainter>
#include <QScrollBar>

ScrollColumn::ScrollColumn(QWidget* content, QWidget* parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setViewportMargins(0, 0, 0, Measure::Hairline);
    setWidget(content);
    // What it stands on shows through: a tab has a ground of its own.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    content->installEventFilter(this);
}

bool ScrollColumn::event(QEvent* event)
{
    const bool isTaken = QScrollArea::event(event);
    if (event->type() == QEvent::Paint && verticalScrollBar()->value() < verticalScrollBar()->maximum()) {
        QPainter painter(this);
        fillSharp(painter, QRectF(0, height() - Measure::Hairline, width(), Measure::Hairline), tone(Tone::Line));
    }
    return isTaken;
}

void ScrollColumn::scrollContentsBy(int dx, int dy)
{
    QScrollArea::scrollContentsBy(dx, dy);
    update();
}

void ScrollColumn::resizeEvent(QResizeEvent* event)
{
    giveContentItsHeight();
    QScrollArea::resizeEvent(event);
}

bool ScrollColumn::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        giveContentItsHeight();
    }
    if (watched == widget() && event->type() == QEvent::Resize) {
        update();
    }
    return QScrollArea::eventFilter(watched, event);
}

void ScrollColumn::giveContentItsHeight()
{
    // A scroll area by itself asks the content for one least height, whatever the width.
    const QLayout* layout = widget()->layout();
    const int width = viewport()->width();
    const int height = layout->hasHeightForWidth() ? layout->totalHeightForWidth(width) : 0;
    if (widget()->minimumHeight() != height) {
        widget()->setMinimumHeight(height);
    }
}
