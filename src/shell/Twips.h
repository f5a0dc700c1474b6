// The window's measures are given in twips. Only this file says how large they are on the screen: ten to a pixel, so
// that today's fonts fit.
#pragma once

#include <QSize>

constexpr int pixels(int twips)
{
    return twips / 10;
}

// In a smaller window nothing is arranged: its parts keep their places.
inline bool isArranged(const QSize& window)
{
    return window.width() >= pixels(6250) && window.height() >= pixels(3000);
}
