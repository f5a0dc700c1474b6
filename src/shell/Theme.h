// How the program looks: Qt's Fusion style with a few changes (see ShopStyle.h) and a palette of our own around the
// tree's blue, light or dark like the user's desktop.
#pragma once

#include <QPalette>

class QApplication;

// Background and selection colour of the tree.
inline constexpr QRgb TreeColour = qRgb(72, 93, 136);
inline constexpr QRgb TreeTextColour = qRgb(255, 255, 255);

QPalette lightPalette();
QPalette darkPalette();

// Sets style and palette; dark when the desktop's own palette is.
void applyTheme(QApplication& application);
