// Qt's Fusion style with two changes of our own: a button leaves some room beside its text, and the edges of fields and
// of the small boxes to tick stand out from their ground, in the dark palette too. The application owns the one.
#pragma once

#include <QProxyStyle>

class ShopStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ShopStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
};

// For the application, which takes it over.
QStyle* newShopStyle();
