// What the benchmarks measure with and end by.
#pragma once

#include "base/Guarded.h"

#include <QString>

#include <vector>

// Says that nothing is measured because of this, and ends the process with 2.
[[noreturn]] void giveUp(const QString& why);

// For programs that must not fail while they are measured.
class GiveUpOnErrors : public FatalErrorHandler
{
public:
    void fatalError(const RuntimeError& error) noexcept override;
};

// Lets the application's events run for so long.
void settle(int milliseconds);

// Of an uneven number of values; there is at least one.
double median(std::vector<double> values);

// Seconds of processor time that this process has taken, in all its threads.
double processorSeconds();

// Bytes of memory that this process has now ("VmRSS:"), or has had at most ("VmHWM:").
qint64 memoryOf(const char* line);

// Prints "title  value  at most limit  PASS" or FAIL, and tells whether the limit holds.
bool judgeAtMost(const char* title, double value, double limit);
