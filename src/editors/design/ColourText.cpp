#include "editors/design/ColourText.h"

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
    painter.setPen(edge);
    painter.setBrush(colour.isValid() ? QBrush(colour) : QBrush(Qt::NoBrush));
    painter.drawRect(QRectF(0.5, 0.5, swatchSize - 1, swatchSize - 1));
    return swatch;
}

QPixmap styleSwatch(const QColor& text, const QColor& background, qreal pixelRatio)
{
    QPixmap swatch = colourSwatch(background, Qt::gray, pixelRatio);
    QPainter painter(&swatch);
    QFont font = painter.font();
    font.setPixelSize(swatchSize - 4);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(text);
    painter.drawText(QRect(0, 0, swatchSize, swatchSize), Qt::AlignCenter, QStringLiteral("A"));
    return swatch;
}
