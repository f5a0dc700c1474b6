// Runs of the monkey one after another, several at a time, each in a process of its own: most of a run is waiting for
// the program's progress bars.
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QMap>
#include <QString>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>

class Runs
{
public:
    struct Plan
    {
        std::uint32_t firstSeed = 1;
        int seconds = 20; // no new run is begun after this time
        int steps = 150;  // of a run
        int atATime = 4;
        bool isCareful = false;
        bool isTalkative = false; // tells the end of each run
        bool goesOnBehindDefects = false;
    };

    // The program is this one, which the runs are started with.
    Runs(const QString& program, const Plan& plan)
        : m_program(program), m_plan(plan), m_nextSeed(plan.firstSeed), m_deadline(std::chrono::seconds(plan.seconds))
    {
    }

    // False when a run had a defect.
    bool runAll();

private:
    void work();
    void run(std::uint32_t seed);
    void showEnds() const;

    QString m_program;
    Plan m_plan;
    std::atomic<std::uint32_t> m_nextSeed;
    QDeadlineTimer m_deadline;
    std::atomic<bool> m_isClean = true;
    std::mutex m_telling;         // for what follows, and the standard output
    QMap<QByteArray, int> m_ends; // how the runs ended, and how many of them
};
