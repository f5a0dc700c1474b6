// Fills, rings and marks whose edges lie on whole pixels of the screen at any scale, so that no frame is blurred and
// none loses a side to the clip. Places and widths are logical pixels.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

void fillSharp(QPainter& painter, const QRectF& rect, const QColor& colour);
void fillRounded(QPainter& painter, const QRectF& rect, double radius, const QColor& colour);
// A ring inside of the rectangle.
void drawRing(QPainter& painter, const QRectF& rect, double radius, double width, const QColor& colour);

// The tick of a box, and an angle that points to where something opens.
void drawTick(QPainter& painter, const QRectF& box, const QColor& colour);
void drawChevron(QPainter& painter, const QRectF& room, Qt::ArrowType direction, const QColor& colour);
