#include "Measuring.h"

#include "base/RuntimeError.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

using namespace Qt::StringLiterals;

void giveUp(const QString& why)
{
    std::fprintf(stderr, "%s: nothing is measured.\n", qPrintable(why));
    std::exit(2);
}

void GiveUpOnErrors::fatalError(const RuntimeError& error) noexcept
{
    giveUp(error.description());
}

void settle(int milliseconds)
{
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < milliseconds) {
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double processorSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

qint64 memoryOf(const char* line)
{
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        giveUp(u"The process cannot look at itself"_s);
    }
    const QByteArray status = file.readAll();
    const qsizetype at = status.indexOf(line) + static_cast<qsizetype>(std::strlen(line));
    return status.mid(at, status.indexOf("kB", at) - at).trimmed().toLongLong() * 1024;
}

bool judgeAtMost(const char* title, double value, double limit)
{
    const bool isReached = value <= limit;
    std::printf("%-60s %6.2f  at most %4.2f  %s\n", title, value, limit, isReached ? "PASS" : "FAIL");
    return isReached;
}
