// How the editors read the colour texts of styles: "#RRGGBB", or the decimal colour number that a style which no editor
// has saved yet still carries.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>

// An invalid colour when the text stands for none.
QColor colourOf(const QString& text);

// The colour number (red in the low byte) of a text; 0, which is black, when it stands for none.
int colourNumberOf(const QString& text);

// What a swatch takes as an icon: the square, and the room that keeps it from the text beside it.
inline constexpr QSize SwatchIconSize(22, 16);

// A small square of one colour, as the icon of a button. An invalid colour leaves it empty, but for its edge.
QPixmap colourSwatch(const QColor& colour, const QColor& edge, qreal pixelRatio);

// A letter in the text colour on the background of a style.
QPixmap styleSwatch(const QColor& text, const QColor& background, qreal pixelRatio);
