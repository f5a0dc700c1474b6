// Qt's Fusion style with two changes: a button leaves some room beside its text, and the edges of fields and check
// boxes stand out from their background, in the dark palette too. The application owns the one instance.
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

// The caller, the application, takes ownership.
QStyle* newShopStyle();
