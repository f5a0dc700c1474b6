// One run of the monkey, in a process of its own: a fresh shop, and windows on it one after another, as long as there
// are steps. Everything that happens follows from the seed, as far as the clock does not come into it.
#pragma once

#include "Monkey.h"

#include <QString>

#include <cstdint>

// How a process with one run ends. Every other exit code, and every signal, is a defect.
enum RunEnd : int {
    Done = 0,
    // By a run-time error, told as the program tells it.
    FatalError = 40,
    // The same before there was a window: the shop that an earlier start left cannot be opened.
    FailedStart = 41,
    // A shop changes each time that it is opened and saved.
    Unsettled = 42,
    // Tree and catalogue have got out of step.
    OutOfStep = 43,
    // What was not saved is not what the shop was when it was written.
    WorkLost = 44,
};

// The folder is where the run's files are made.
int runMonkey(const QString& folder, std::uint32_t seed, int steps, PlayedBy player);
// Opens the shop that a run has left in that folder, with what was not saved, which is held against the shop as it was
// when that was written. Then saves and opens it several times.
int checkShop(const QString& folder);
