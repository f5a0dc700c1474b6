#include "shell/ShopStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr int besideButtonText = 12;   // pixels on either side
constexpr double edgeStrength = 0.45;  // of the text's colour, on the background
constexpr double fieldStrength = 0.25; // fields are many and large
constexpr double fieldRadius = 2;

QColor edgeOf(const QStyleOption& option, double strength)
{
    QColor colour = option.palette.color(QPalette::Text);
    colour.setAlphaF(static_cast<float>(option.state.testFlag(QStyle::State_Enabled) ? strength : strength / 2));
    return colour;
}

} // namespace

ShopStyle::ShopStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ShopStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const QRectF edge = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        painter->setPen(edgeOf(*option, edgeStrength));
        painter->drawRect(edge);
        break;
    case PE_IndicatorRadioButton:
        painter->setPen(edgeOf(*option, edgeStrength));
        painter->drawEllipse(edge);
        break;
    case PE_FrameLineEdit:
        if (!option->state.testFlag(State_HasFocus)) { // the focus has an edge of its own
            painter->setPen(edgeOf(*option, fieldStrength));
            painter->drawRoundedRect(edge, fieldRadius, fieldRadius);
        }
        break;
    default:
        break;
    }
    painter->restore();
}

QSize ShopStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_PushButton ? size.expandedTo(QSize(contents.width() + 2 * besideButtonText, 0)) : size;
}

QStyle* newShopStyle()
{
    return new ShopStyle;
}
