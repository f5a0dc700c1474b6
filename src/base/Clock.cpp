#include "base/Clock.h"

QDate SystemClock::today() const
{
    return QDate::currentDate();
}
