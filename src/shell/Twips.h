// The window's measures are given in twips. This is the one place that says what they are on the screen: ten to a
// pixel, so that today's fonts fit.
#pragma once

constexpr int pixels(int twips)
{
    return twips / 10;
}
