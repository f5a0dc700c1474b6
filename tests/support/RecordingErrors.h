// Keeps the errors that would have ended the program.
#pragma once

#include "base/Guarded.h"

#include <vector>

class RecordingErrors : public FatalErrorHandler
{
public:
    void fatalError(const RuntimeError& error) noexcept override
    {
        numbers.push_back(static_cast<int>(error.number()));
        circumstances = error.circumstances();
    }

    std::vector<int> numbers;
    QStringList circumstances; // of the last one
};
