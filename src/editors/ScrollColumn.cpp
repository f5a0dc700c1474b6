#include "editors/ScrollColumn.h"

#include <QEvent>
#include <QLayout>

ScrollColumn::ScrollColumn(QWidget* content, QWidget* parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
    // What it stands on shows through: a tab has a ground of its own.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    content->installEventFilter(this);
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
