#include "look/Type.h"

#include <QApplication>

namespace {

QFont scaled(double factor)
{
    QFont font = QApplication::font();
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * factor);
    } else {
        font.setPixelSize(qRound(font.pixelSize() * factor));
    }
    return font;
}

} // namespace

QFont largeFont()
{
    QFont font = scaled(1.5);
    font.setBold(true);
    return font;
}

QFont boldFont()
{
    QFont font = QApplication::font();
    font.setBold(true);
    return font;
}

QFont smallFont()
{
    return scaled(0.9);
}
