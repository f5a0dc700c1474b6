// The time as the program asks for it when it decides whether to look at the shop: so it can be told from outside which
// looks there were, and whether one was left out without a reason.
#pragma once

#include "base/Clock.h"

#include <optional>
#include <vector>

class WatchedClock : public SystemClock
{
public:
    qint64 steadyTime() const override;

    enum class Looks { None, Some, LeftOutOneThatWasDue };
    // What there was since the last call.
    Looks take();

private:
    mutable std::vector<qint64> m_asked; // microseconds
    qint64 m_due = 0;                    // when the next look may be
};
