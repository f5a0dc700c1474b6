// One run of the monkey, in a process of its own: a fresh shop, and windows on it one after another, as long as there
// are steps. Everything that happens follows from the seed, as far as the clock does not come into it.
#pragma once

#include <QString>

#include <cstdint>

// How a process with one run ends. Every other exit code, and every signal, is a defect.
enum RunEnd : int {
    Done = 0,
    // By a run-time error, told as the program tells it.
    FatalError = 40,
    // The same before there was a window: the shop that was left behind does not open any more.
    FailedStart = 41,
    // A shop that is opened and saved becomes another one each time.
    Unsettled = 42,
};

// The folder is where the run's files are made.
int runMonkey(const QString& folder, std::uint32_t seed, int steps);
// Opens and saves, again and again, what a run has left behind in that folder.
int checkShop(const QString& folder);
