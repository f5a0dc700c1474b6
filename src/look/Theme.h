// Gives the program its look: the style (see ShopStyle.h) and the palette made of the table of tones, light or dark as
// the user's desktop is.
#pragma once

#include "look/Tones.h"

#include <QPalette>

class QApplication;

QPalette paletteOf(Scheme scheme);

// Sets the style and the look that fits the desktop's palette. To be called once, ahead of the first window.
void applyTheme(QApplication& application);
// Changes the look of all windows, those on the screen too.
void showScheme(Scheme scheme);
// From now on the look follows the desktop (see DesktopScheme.h). The start does not wait for it: the desktop is asked
// when the event loop runs.
void followDesktop(QApplication& application);
