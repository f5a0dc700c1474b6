#include "Runs.h"

#include "Run.h"

#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int lastNotes = 60;    // that are shown of a run with a defect
constexpr int notesOfTheWay = 8; // of any other
constexpr QByteArrayView endMark = "# ends by ";

// The error that a run ended by, without the path of a file.
QByteArray endOf(const QByteArray& output)
{
    const qsizetype at = output.lastIndexOf(endMark) + endMark.size();
    const QByteArray line = output.mid(at, output.indexOf('\n', at) - at);
    const qsizetype path = line.indexOf(": /");
    return path < 0 ? line : line.first(path);
}

// The same, and what was done ahead of it.
QByteArray wayTo(const QByteArray& output)
{
    const qsizetype at = output.lastIndexOf(endMark);
    qsizetype from = at;
    for (int line = 0; line < notesOfTheWay && from > 1; ++line) {
        from = output.lastIndexOf('\n', from - 2) + 1;
    }
    return '\n' + output.mid(from, output.indexOf('\n', at) - from);
}

// The last notes, and all that is no note: what a sanitizer or the library has to say.
void showEnd(const QByteArray& output)
{
    const QList<QByteArray> lines = output.split('\n');
    auto notes =
        std::count_if(lines.begin(), lines.end(), [](const QByteArray& line) { return line.startsWith("# "); });
    for (const QByteArray& line : lines) {
        if (!line.startsWith("# ") || notes-- <= lastNotes) {
            std::printf("%s\n", line.constData());
        }
    }
}

// The exit code, -1 for a process that a signal has ended. What it says is added to the output.
int runProcess(const QString& program, const QStringList& arguments, QByteArray& output)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.waitForFinished(-1);
    output += process.readAll();
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

// An owner who takes care ends no run by an error.
bool isLegal(int code, bool isCareful)
{
    return code == Done || (code == FatalError && !isCareful);
}

} // namespace

bool Runs::runAll()
{
    std::vector<std::thread> workers;
    workers.reserve(static_cast<std::size_t>(m_plan.atATime));
    for (int worker = 0; worker < m_plan.atATime; ++worker) {
        workers.emplace_back([this] { work(); });
    }
    for (std::thread& worker : workers) {
        worker.join();
    }
    showEnds();
    return m_isClean;
}

void Runs::work()
{
    while ((m_isClean || m_plan.goesOnBehindDefects) && !m_deadline.hasExpired()) {
        run(m_nextSeed++);
    }
}

void Runs::run(std::uint32_t seed)
{
    const QTemporaryDir folder;
    const QStringList there{u"--folder"_s, folder.path()};
    QStringList way{u"--alone"_s, u"--seed"_s, QString::number(seed), u"--steps"_s, QString::number(m_plan.steps)};
    if (m_plan.isCareful) {
        way << u"--careful"_s;
    }
    QByteArray output;
    int code = runProcess(m_program, way + there, output);
    const QByteArray end = code == FatalError ? endOf(output) : "all steps";
    const QByteArray wayToEnd = code == FatalError ? wayTo(output) : QByteArray();
    if (isLegal(code, m_plan.isCareful)) {
        // However a run ends, the shop that lies in its folder is a whole one.
        code = runProcess(m_program, QStringList{u"--check"_s} + there, output);
    }

    const std::lock_guard lock(m_telling);
    if (m_plan.isTalkative) {
        std::printf("seed %u:%s\n", seed, wayToEnd.constData());
    }
    if (isLegal(code, m_plan.isCareful)) {
        ++m_ends[end];
    } else {
        m_isClean = false;
        const QByteArray program = m_program.toLocal8Bit();
        showEnd(output);
        std::printf("\nDefect in the run of seed %u (%d). To see it again:\n  %s %s --folder FOLDER\n"
                    "and, for what it leaves behind,\n  %s --check --folder FOLDER\n",
                    seed, code, program.constData(), qPrintable(way.join(u' ')), program.constData());
    }
    std::fflush(stdout);
}

void Runs::showEnds() const
{
    const unsigned int runs = m_nextSeed - m_plan.firstSeed;
    std::printf("%u runs from seed %u, and how they ended:\n", runs, m_plan.firstSeed);
    for (auto end = m_ends.begin(); end != m_ends.end(); ++end) {
        std::printf("%5d  %5.1f%%  %s\n", end.value(), 100.0 * end.value() / runs, end.key().constData());
    }
}
