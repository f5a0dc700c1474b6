#include "editors/design/ColourText.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"

#include <QPainter>

namespace {

constexpr int swatchSize = SwatchIconSize.height();

QPixmap emptySwatch(qreal pixelRatio)
{
    QPixmap swatch((QSizeF(SwatchIconSize) * pixelRatio).toSize());
    swatch.setDevicePixelRatio(pixelRatio);
    swatch.fill(Qt::transparent);
    return swatch;
}

} // namespace

QColor colourOf(const QString& text)
{
    bool isNumber = false;
    const uint number = text.toUInt(&isNumber);
    if (isNumber) {
        return QColor::fromRgb(static_cast<int>(number & 0xff), static_cast<int>((number >> 8) & 0xff),
                               static_cast<int>((number >> 16) & 0xff));
    }
    return QColor(text);
}

int colourNumberOf(const QString& text)
{
    const QColor colour = colourOf(text);
    return colour.isValid() ? colour.red() | (colour.green() << 8) | (colour.blue() << 16) : 0;
}

QPixmap colourSwatch(const QColor& colour, const QColor& edge, qreal pixelRatio)
{
    QPixmap swatch = emptySwatch(pixelRatio);
    QPainter painter(&swatch);
    const QRectF square(0, 0, swatchSize, swatchSize);
    if (colour.isValid()) {
        fillSharp(painter, square, colour);
    }
    drawRing(painter, square, 0, Measure::Hairline, edge);
    return swatch;
}

QPixmap styleSwatch(const QColor& text, const QColor& background, qreal pixelRatio)
{
    // A piece of the page, which is light as a rule: its edge is seen on a light button and on a dark one.
    QPixmap swatch = colourSwatch(background, toneIn(Scheme::Light, Tone::Edge), pixelRatio);
    QPainter painter(&swatch);
    QFont font = painter.font();
    font.setPixelSize(swatchSize - 4);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(text);
    painter.drawText(QRect(0, 0, swatchSize, swatchSize), Qt::AlignCenter, QStringLiteral("A"));
    return swatch;
}
