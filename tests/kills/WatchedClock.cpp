#include "WatchedClock.h"

#include <utility>

namespace {

constexpr qint64 mostTimesOfALook = 100;

} // namespace

qint64 WatchedClock::steadyTime() const
{
    m_asked.push_back(SystemClock::steadyTime());
    return m_asked.back();
}

// The program asks once to decide, and a second time behind a look.
WatchedClock::Looks WatchedClock::take()
{
    Looks looks = Looks::None;
    const std::vector<qint64> asked = std::exchange(m_asked, {});
    for (std::size_t at = 0; at < asked.size(); ++at) {
        if (asked[at] < m_due) {
            continue;
        }
        if (at + 1 == asked.size()) {
            return Looks::LeftOutOneThatWasDue;
        }
        const qint64 took = asked[at + 1] - asked[at];
        m_due = asked[at + 1] + mostTimesOfALook * took;
        looks = Looks::Some;
        ++at;
    }
    return looks;
}
