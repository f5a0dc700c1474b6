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
};

class SystemClock : public Clock
{
public:
    QDateTime now() const override;
};
