// The look of the blue trees: the catalogue's and the one of a product's panel. They are the same in light and dark.
#pragma once

#include <QRgb>

class QTreeView;

// Background and text of the nodes.
inline constexpr QRgb TreeColour = qRgb(72, 93, 136);
inline constexpr QRgb TreeTextColour = qRgb(255, 255, 255);

// Gives a tree its colours, but for the ground, which is the caller's to set, and the focus on whole rows.
void dressTree(QTreeView& tree);
// Gives a tree the ground of its nodes.
void setTreeGround(QTreeView& tree);
