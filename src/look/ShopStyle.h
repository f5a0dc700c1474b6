// The one style of the program: Qt's Fusion with everything that the eye meets drawn anew, flat, from the table of
// tones (see Tones.h). What it paints stands in the files named ...Painting, by kind of control. A QGroupBox that is
// flat is a section: a hairline and a heading over rows that stand on the ground itself; one that is not keeps a frame.
// The application owns the style.
#pragma once

#include <QProxyStyle>

class ShopStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ShopStyle();

    void polish(QWidget* widget) override;
    using QProxyStyle::polish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const override;
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const override;

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
};

// For the application, which takes it over.
QStyle* newShopStyle();
