// The sizes and weights of the program's letters, all made of the application's font, which the user may have set in
// points or in pixels.
#pragma once

#include <QFont>

// The title of a panel.
QFont largeFont();
// Headings of sections and of grids, the open tab.
QFont boldFont();
// The bottom line, counts, names below pictures.
QFont smallFont();
