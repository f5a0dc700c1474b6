// What the catalogue's grids paint: the boxes of the "Use" column, and their cells.
#pragma once

#include <QPixmap>

class QAbstractItemDelegate;
class QObject;
class QWidget;

// The checked or the unchecked box, for the resolution of the grid's screen. All grids share the two.
QPixmap usePicture(bool isChecked, const QWidget& grid);

// The role of a cell that is true when its text is not what its column should hold.
inline constexpr int MarkedRole = Qt::UserRole;

// Puts a picture into the middle of its cell, rings the marked cells, and greys the links too in a grid that is not in
// use, which takes their line away. The parent owns it.
QAbstractItemDelegate* newGridDelegate(QObject* parent);
