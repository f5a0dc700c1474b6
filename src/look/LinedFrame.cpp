#include "look/LinedFrame.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"

#include <QPainter>

LinedFrame::LinedFrame(Qt::Edge edge, QWidget* parent) : QFrame(parent), m_edge(edge) {}

void LinedFrame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const int top = m_edge == Qt::TopEdge ? 0 : height() - Measure::Hairline;
    fillSharp(painter, QRectF(0, top, width(), Measure::Hairline), tone(Tone::Line));
}
