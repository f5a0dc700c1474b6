// Paints the rows and cells of lists, grids and trees, and the headers of grids. The style calls these. A view whose
// palette has a Highlight of its own, as the blue trees have, is painted with the colours of its palette; all others
// show a chosen row in soft blue with a bar at its left.
#pragma once

#include <QPalette>

class QPainter;
class QStyleOption;
class QStyleOptionViewItem;
class QWidget;

// Whether the palette is that of a view with selection colours of its own.
bool hasOwnSelection(const QPalette& palette);

void paintRow(const QStyleOptionViewItem& option, QPainter& painter);
void paintCell(const QStyleOptionViewItem& option, QPainter& painter, const QWidget* widget);
// The colours that the texts of a cell are painted with.
QPalette cellPalette(const QPalette& palette);
// The ring around what has the focus: a row or a cell of a view, a link, the words of a check box.
void paintFocus(const QStyleOption& option, QPainter& painter, const QWidget* widget);
// The angle ahead of a row that can be opened.
void paintBranch(const QStyleOption& option, QPainter& painter);
// A title of a grid, or what is left beside the last one.
void paintHeaderGround(const QRect& place, Qt::Orientation orientation, QPainter& painter);
