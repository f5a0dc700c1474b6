// Paints group boxes. A flat one is a section: hairline, heading, and rows over the whole width. Any other has a frame
// around it, with its caption inside. The style calls these.
#pragma once

#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOptionGroupBox;

void paintGroupBox(const QStyleOptionGroupBox& option, QPainter& painter);
QRect groupBoxPart(const QStyleOptionGroupBox& option, QStyle::SubControl part);
// The least size around contents of that size, wide enough for the caption.
QSize groupBoxSize(const QStyleOptionGroupBox& option, const QSize& contents);
