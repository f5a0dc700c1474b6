#include "base/Clock.h"

#include <chrono>

qint64 Clock::steadyTime() const
{
    using namespace std::chrono;
    return duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
}

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTime();
}
