// The least size of a window whose parts are arranged.
#pragma once

#include "editors/Twips.h"

#include <QSize>

// In a smaller window nothing is arranged: its parts keep their places.
inline bool isArranged(const QSize& window)
{
    return window.width() >= pixels(6250) && window.height() >= pixels(3000);
}
