// Where "today" comes from. The program uses SystemClock; tests set the day.
#pragma once

#include <QDate>

class Clock
{
public:
    virtual ~Clock() = default;
    virtual QDate today() const = 0;
};

class SystemClock : public Clock
{
public:
    QDate today() const override;
};
