#include "shell/Theme.h"

#include "shell/ShopStyle.h"

#include <QApplication>

namespace {

struct Tones
{
    QRgb window, base, alternate, button, text, disabled, highlight, highlightedText, link, tip;
};

constexpr Tones light = {qRgb(243, 245, 249), qRgb(255, 255, 255), qRgb(236, 240, 246), qRgb(232, 236, 243),
                         qRgb(31, 37, 51),    qRgb(106, 114, 133), TreeColour,          qRgb(255, 255, 255),
                         qRgb(46, 84, 158),   qRgb(255, 252, 232)};

constexpr Tones dark = {qRgb(35, 39, 48),    qRgb(26, 29, 36),    qRgb(41, 46, 57),   qRgb(50, 56, 70),
                        qRgb(230, 233, 240), qRgb(140, 148, 165), qRgb(80, 104, 156), qRgb(255, 255, 255),
                        qRgb(140, 174, 242), qRgb(50, 56, 70)};

QPalette paletteOf(const Tones& tones)
{
    QPalette palette(QColor::fromRgb(tones.button), QColor::fromRgb(tones.window));
    palette.setColor(QPalette::Base, tones.base);
    palette.setColor(QPalette::AlternateBase, tones.alternate);
    palette.setColor(QPalette::ToolTipBase, tones.tip);
    palette.setColor(QPalette::ToolTipText, tones.text);
    palette.setColor(QPalette::Highlight, tones.highlight);
    palette.setColor(QPalette::HighlightedText, tones.highlightedText);
    // A list without the focus shows its selection in a quieter colour.
    palette.setColor(QPalette::Disabled, QPalette::Highlight, tones.alternate);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, tones.disabled);
    palette.setColor(QPalette::Link, tones.link);
    palette.setColor(QPalette::PlaceholderText, tones.disabled);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, tones.text);
        palette.setColor(QPalette::Disabled, role, tones.disabled);
    }
    return palette;
}

} // namespace

QPalette lightPalette()
{
    return paletteOf(light);
}

QPalette darkPalette()
{
    return paletteOf(dark);
}

void applyTheme(QApplication& application)
{
    const bool desktopIsDark = application.palette().color(QPalette::Window).lightness() < 128;
    QApplication::setStyle(newShopStyle());
    QApplication::setPalette(desktopIsDark ? darkPalette() : lightPalette());
}
