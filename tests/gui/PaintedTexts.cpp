#include "PaintedTexts.h"

#include <QHash>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// A colour below a text counts when it fills that part of the text's place.
constexpr double leastShare = 0.2;

double luminance(const QColor& colour)
{
    const auto linear = [](int value) {
        const double part = value / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.red()) + 0.7152 * linear(colour.green()) + 0.0722 * linear(colour.blue());
}

// What is half transparent, on that ground.
QColor mixed(const QColor& ink, double opacity, const QColor& ground)
{
    const double part = ink.alpha() / 255.0 * opacity;
    const auto mix = [part](int over, int under) { return qRound(over * part + under * (1 - part)); };
    return {mix(ink.red(), ground.red()), mix(ink.green(), ground.green()), mix(ink.blue(), ground.blue())};
}

// Hands everything on to a picture, and notes the texts.
class Notes : public QPaintEngine
{
public:
    explicit Notes(QImage& canvas) : QPaintEngine(AllFeatures), m_canvas(canvas) {}

    const QWidget* widget = nullptr; // that is painting
    QPoint origin;                   // of it in the window
    QList<PaintedText> texts;

    bool begin(QPaintDevice* /*device*/) override
    {
        m_painter.begin(&m_canvas);
        m_painter.paintEngine()->setSystemClip(systemClip());
        return true;
    }
    bool end() override { return m_painter.end(); }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& painting) override
    {
        const DirtyFlags changed = painting.state();
        if (changed & DirtyTransform) {
            m_painter.setTransform(painting.transform());
        }
        if (changed & DirtyPen) {
            m_painter.setPen(painting.pen());
        }
        if (changed & DirtyBrush) {
            m_painter.setBrush(painting.brush());
        }
        if (changed & DirtyBrushOrigin) {
            m_painter.setBrushOrigin(painting.brushOrigin());
        }
        if (changed & DirtyFont) {
            m_painter.setFont(painting.font());
        }
        if (changed & DirtyHints) {
            m_painter.setRenderHints(m_painter.renderHints(), false);
            m_painter.setRenderHints(painting.renderHints());
        }
        if (changed & DirtyCompositionMode) {
            m_painter.setCompositionMode(painting.compositionMode());
        }
        if (changed & DirtyOpacity) {
            m_painter.setOpacity(painting.opacity());
        }
        if (changed & DirtyClipRegion) {
            m_painter.setClipRegion(painting.clipRegion(), painting.clipOperation());
        }
        if (changed & DirtyClipPath) {
            m_painter.setClipPath(painting.clipPath(), painting.clipOperation());
        }
        if (changed & DirtyClipEnabled) {
            m_painter.setClipping(painting.isClipEnabled());
        }
    }

    void drawPath(const QPainterPath& path) override { m_painter.drawPath(path); }
    void drawPixmap(const QRectF& place, const QPixmap& pixmap, const QRectF& part) override
    {
        m_painter.drawPixmap(place, pixmap, part);
    }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        if (mode == PolylineMode) {
            m_painter.drawPolyline(points, count);
        } else {
            m_painter.drawPolygon(points, count, mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
        }
    }
    void drawTextItem(const QPointF& place, const QTextItem& item) override
    {
        note(place, item);
        m_painter.drawTextItem(place, item);
    }

private:
    void note(const QPointF& place, const QTextItem& item)
    {
        const QRectF room(place.x(), place.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        QRect seen = m_painter.deviceTransform().mapRect(room).toAlignedRect() & m_canvas.rect();
        if (!systemClip().isEmpty()) {
            seen &= systemClip().boundingRect();
        }
        if (item.text().trimmed().isEmpty() || seen.isEmpty()) {
            return;
        }
        QHash<QRgb, int> grounds;
        for (int y = seen.top(); y <= seen.bottom(); ++y) {
            for (int x = seen.left(); x <= seen.right(); ++x) {
                ++grounds[m_canvas.pixel(x, y)];
            }
        }
        PaintedText text{item.text(), {}, isOff(seen.center()), {}, {}, 100};
        text.place = QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName();
        for (auto ground = grounds.begin(); ground != grounds.end(); ++ground) {
            if (ground.value() < leastShare * seen.width() * seen.height()) {
                continue;
            }
            const QColor below = QColor::fromRgb(ground.key());
            const QColor ink = mixed(m_painter.pen().color(), m_painter.opacity(), below);
            if (const double contrast = contrastBetween(ink, below); contrast < text.contrast) {
                text.ink = ink;
                text.ground = below;
                text.contrast = contrast;
            }
        }
        texts.append(text);
    }
    bool isOff(const QPoint& place) const
    {
        if (!widget->isEnabled()) {
            return true;
        }
        if (const auto* menu = qobject_cast<const QMenu*>(widget)) {
            const QAction* action = menu->actionAt(place - origin);
            return action && !action->isEnabled();
        }
        return false;
    }

    QImage& m_canvas;
    QPainter m_painter;
};

class Device : public QPaintDevice
{
public:
    explicit Device(const QSize& size) : canvas(size, QImage::Format_RGB32), notes(canvas) { canvas.fill(Qt::magenta); }
    QPaintEngine* paintEngine() const override { return &notes; }

    QImage canvas;
    mutable Notes notes;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return canvas.width();
        case PdmHeight:
            return canvas.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        default:
            return QPaintDevice::metric(metric);
        }
    }
};

// The widget by itself, then what stands on it, as far as it can be seen.
void paint(QWidget& widget, const QRect& seenOfParent, Device& device)
{
    const QPoint origin = widget.mapTo(widget.window(), QPoint());
    const QRect seen = QRect(origin, widget.size()) & seenOfParent;
    if (!widget.isVisible() || seen.isEmpty()) {
        return;
    }
    device.notes.widget = &widget;
    device.notes.origin = origin;
    widget.render(&device, seen.topLeft(), QRegion(seen.translated(-origin)),
                  widget.isWindow() ? QWidget::DrawWindowBackground : QWidget::RenderFlags());
    for (QObject* child : widget.children()) {
        if (auto* part = qobject_cast<QWidget*>(child); part && !part->isWindow()) {
            paint(*part, seen, device);
        }
    }
}

} // namespace

double contrastBetween(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QList<PaintedText> paintedTexts(QWidget& window)
{
    Device device(window.size());
    paint(window, window.rect(), device);
    return device.notes.texts;
}
