// Where "now" and "today" come from. The program uses SystemClock; tests set the moment.
#pragma once

#include <QDate>
#include <QDateTime>

class Clock
{
public:
    virtual ~Clock() = default;
    // In the user's time zone.
    virtual QDateTime now() const = 0;
    QDate today() const { return now().date(); }
    // Microseconds that only ever go on, whatever is done to the time of day. Where they start from means nothing.
    virtual qint64 steadyTime() const;
};

class SystemClock : public Clock
{
public:
    QDateTime now() const override;
};
