// The window's measures are given in twips. This is the one place that says what they are on the screen: ten to a
// pixel, so that today's fonts fit.
#pragma once

#include <QSize>

constexpr int pixels(int twips)
{
    return twips / 10;
}

// In a smaller window nothing is arranged: what is in it keeps its place.
inline bool isArranged(const QSize& window)
{
    return window.width() >= pixels(6250) && window.height() >= pixels(3000);
}
