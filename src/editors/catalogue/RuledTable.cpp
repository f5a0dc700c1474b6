#include "editors/catalogue/RuledTable.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"

#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

RuledTable::RuledTable(QWidget* parent) : QTableWidget(parent)
{
    setShowGrid(false);
}

void RuledTable::paintEvent(QPaintEvent* event)
{
    QTableWidget::paintEvent(event);
    const int end = horizontalHeader()->length() - horizontalHeader()->offset(); // of the last column
    if (end >= viewport()->width()) {
        return;
    }
    QPainter painter(viewport());
    for (int row = std::max(0, rowAt(0)); row < rowCount() && rowViewportPosition(row) < viewport()->height(); ++row) {
        const int bottom = rowViewportPosition(row) + rowHeight(row);
        fillSharp(painter, QRectF(end, bottom - Measure::Hairline, viewport()->width() - end, Measure::Hairline),
                  tone(Tone::Line));
    }
}
