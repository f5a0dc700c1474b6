// The measures of the window and of its grids are given in twips. Only this file says how large they are on the screen:
// ten to a pixel, so that today's fonts fit.
#pragma once

constexpr int pixels(int twips)
{
    return twips / 10;
}
