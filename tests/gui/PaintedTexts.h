// Paints a window and notes every text on the way: its colour, and the colours that stood at its place when it was
// painted. So contrasts are those of what the eye sees, whoever chose the colours.
#pragma once

#include <QColor>
#include <QList>
#include <QString>

class QWidget;

struct PaintedText
{
    QString text;
    QString place;      // class and name of the widget
    bool isOff = false; // it belongs to something that is not in use
    QColor ink;
    QColor ground;       // of the colours below it, the one that it is hardest to read on
    double contrast = 0; // by WCAG 2.1
};

double contrastBetween(const QColor& one, const QColor& other);

// The window must be on the screen.
QList<PaintedText> paintedTexts(QWidget& window);
