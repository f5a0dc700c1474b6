#include "look/Paint.h"

#include <QPainterPath>
#include <QPen>

#include <algorithm>

namespace {

// The rectangle moved to whole pixels of the device, as the clip of a widget is.
QRectF snapped(const QPainter& painter, const QRectF& rect)
{
    const QTransform toDevice = painter.deviceTransform();
    if (toDevice.type() > QTransform::TxScale) {
        return rect;
    }
    return toDevice.inverted().mapRect(QRectF(toDevice.mapRect(rect).toRect()));
}

// A width that is a whole number of the device's pixels, at least one.
double wholePixels(const QPainter& painter, double width)
{
    const double scale = painter.deviceTransform().m11();
    return scale > 0 ? std::max(1.0, static_cast<double>(qRound(width * scale))) / scale : width;
}

QPainterPath roundedPath(const QRectF& rect, double radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

void fillPath(QPainter& painter, const QPainterPath& path, const QColor& colour)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, colour);
    painter.restore();
}

void drawLines(QPainter& painter, const QPolygonF& points, const QColor& colour, double width)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(points);
    painter.restore();
}

} // namespace

void fillSharp(QPainter& painter, const QRectF& rect, const QColor& colour)
{
    QRectF place = snapped(painter, rect);
    // A hairline does not vanish between two pixels.
    place.setWidth(std::max(place.width(), wholePixels(painter, std::min(rect.width(), 1.0))));
    place.setHeight(std::max(place.height(), wholePixels(painter, std::min(rect.height(), 1.0))));
    painter.fillRect(place, colour);
}

void fillRounded(QPainter& painter, const QRectF& rect, double radius, const QColor& colour)
{
    fillPath(painter, roundedPath(snapped(painter, rect), radius), colour);
}

void drawRing(QPainter& painter, const QRectF& rect, double radius, double width, const QColor& colour)
{
    const QRectF outer = snapped(painter, rect);
    const double line = wholePixels(painter, width);
    QPainterPath path = roundedPath(outer, radius);
    path.addPath(roundedPath(outer.adjusted(line, line, -line, -line), std::max(0.0, radius - line)));
    fillPath(painter, path, colour); // odd-even: the ring between the two
}

void drawTick(QPainter& painter, const QRectF& box, const QColor& colour)
{
    const auto at = [&box](double x, double y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    drawLines(painter, {at(0.25, 0.53), at(0.43, 0.71), at(0.76, 0.32)}, colour, 2);
}

void drawChevron(QPainter& painter, const QRectF& room, Qt::ArrowType direction, const QColor& colour)
{
    constexpr double half = 3.5;   // of its long side
    constexpr double depth = 1.75; // half of its short side
    const QPointF middle = room.center();
    QPolygonF points;
    switch (direction) {
    case Qt::UpArrow:
        points = {{-half, depth}, {0, -depth}, {half, depth}};
        break;
    case Qt::DownArrow:
        points = {{-half, -depth}, {0, depth}, {half, -depth}};
        break;
    case Qt::LeftArrow:
        points = {{depth, -half}, {-depth, 0}, {depth, half}};
        break;
    default:
        points = {{-depth, -half}, {depth, 0}, {-depth, half}};
        break;
    }
    drawLines(painter, points.translated(middle), colour, 1.5);
}
