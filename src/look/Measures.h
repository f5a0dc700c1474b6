// The measures of the look, in logical pixels. What holds a text is at least as high as its letters need, however large
// the user's font is: controlHeight() and its like say how high.
#pragma once

#include <QFontMetrics>

#include <algorithm>

namespace Measure {
// Steps of the grid.
constexpr int Tight = 4;
constexpr int Gap = 8;
constexpr int Wide = 12;
constexpr int Section = 16;
constexpr int Far = 24;

constexpr int Hairline = 1;
constexpr int Ring = 2;       // focus, error
constexpr int FieldFrame = 2; // room for the ring around a list or a text area, and for the edge of a menu
constexpr int Radius = 4;
constexpr int LargeRadius = 6;
constexpr int SmallRadius = 3;

constexpr int Target = 24; // what can be pressed is nowhere smaller
constexpr int Box = 16;    // check box, option
constexpr int Scroll = 10;
constexpr int Thumb = 6;
constexpr int LeastThumb = 32;
constexpr int Splitter = 8;
constexpr int DialogMargin = 20;
} // namespace Measure

// Fields, buttons, check boxes and options.
inline int controlHeight(const QFontMetrics& metrics)
{
    return std::max(28, metrics.height() + 12);
}

// Rows of trees, lists, menus; links.
inline int rowHeight(const QFontMetrics& metrics)
{
    return std::max(Measure::Target, metrics.height() + 8);
}

inline int gridRowHeight(const QFontMetrics& metrics)
{
    return std::max(32, metrics.height() + 16);
}

inline int gridHeaderHeight(const QFontMetrics& metrics)
{
    return std::max(28, metrics.height() + 12);
}
