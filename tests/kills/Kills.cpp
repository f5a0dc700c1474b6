#include "Kills.h"

#include "base/FileBytes.h"
#include "base/XmlFile.h"
#include "model/ShopSession.h"
#include "model/shop_file/ShopFile.h"
#include "support/TestSupport.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60'000; // milliseconds

// The number behind the last line that begins with that word; none when there is none.
std::optional<int> lastNumber(const QByteArray& output, const QByteArray& word)
{
    const qsizetype at = ('\n' + output).lastIndexOf('\n' + word + ' ');
    if (at < 0) {
        return std::nullopt;
    }
    const qsizetype from = at + word.size() + 1;
    return output.mid(from, output.indexOf('\n', from) - from).toInt();
}

// Reads on until the word was told so many times. False when the process has ended.
bool waitForLines(QProcess& process, QByteArray& output, const QByteArray& word, int count)
{
    const QDeadlineTimer deadline(patience);
    while (('\n' + output).count('\n' + word + ' ') < count) {
        if (deadline.hasExpired() || (!process.waitForReadyRead(patience) && process.state() == QProcess::NotRunning)) {
            return false;
        }
        output += process.readAllStandardOutput();
    }
    return true;
}

} // namespace

Kills::Kills(const QString& program, const QString& folder, std::uint32_t seed)
    : m_program(program), m_folder(folder), m_dice(seed)
{
    fillFolder();
}

void Kills::fillFolder() const
{
    const QString sample = QStringLiteral(TARNWICK_SOURCE_DIR "/app/");
    QDirIterator entries(sample, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString target = m_folder + u'/' + entries.next().mid(sample.size());
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(entries.filePath(), target);
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    }
    QByteArray list;
    for (int line = 1; line <= 40; ++line) {
        list += "Tea " + QByteArray::number(line) + ",\"A good one, too\",Teas\\Green\n";
    }
    writeFile(m_folder + u"/list.txt"_s, list);
}

bool Kills::killOnce()
{
    ++m_kills;
    QProcess day;
    day.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    day.start(m_program, {u"--day"_s, m_folder, QString::number(m_number), QString::number(m_dice.below(1'000'000))});
    QByteArray output;
    const int kind = m_dice.below(10);
    if (kind == 0) { // in the middle of the start
        day.waitForStarted();
        day.waitForFinished(m_dice.below(500));
    } else if (!waitForLines(day, output, "ready", 1)) {
        return complain("The day did not begin.", output + day.readAllStandardOutput());
    } else if (kind <= 4) { // around a save
        waitForLines(day, output, "saving", 1 + m_dice.below(2));
        day.waitForFinished(m_dice.below(30));
    } else {
        day.waitForFinished(m_dice.below(1500));
    }
    const bool isAlive = day.state() != QProcess::NotRunning;
    day.kill();
    day.waitForFinished(-1);
    output += day.readAllStandardOutput();
    if (!isAlive) {
        return complain("The day ended by itself.", output);
    }
    const Told told = toldBy(output);
    if (!told.complaint.isEmpty()) {
        return complain(told.complaint, output);
    }

    const QStringList whole = wholeFiles();
    if (whole.isEmpty()) {
        return complain("Neither file is whole.", output);
    }
    QProcess next;
    next.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    next.start(m_program, {u"--open"_s, m_folder});
    next.waitForFinished(-1);
    const QByteArray after = next.readAllStandardOutput();
    const std::optional<int> found = lastNumber(after, "opened");
    if (next.exitCode() != 0 || !found) {
        return complain("The shop does not open.", output + after);
    }
    if (*found < std::max(told.kept, m_number)) {
        return complain("Lost: " + QByteArray::number(*found) + " was found.", output + after);
    }
    m_duringStart += output.isEmpty() ? 1 : 0;
    m_duringSave += told.isSaving ? 1 : 0;
    m_offered += after.startsWith("offered") ? 1 : 0;
    m_brokenShopFiles += whole.contains(u"shop.xml"_s) ? 0 : 1;
    m_lostNothing += *found >= told.done ? 1 : 0;
    m_mostLost = std::max(m_mostLost, told.done - *found);
    m_number = *found;
    return true;
}

Kills::Told Kills::toldBy(const QByteArray& output) const
{
    Told told;
    told.kept = std::max(lastNumber(output, "kept").value_or(m_number), lastNumber(output, "saved").value_or(m_number));
    told.done = lastNumber(output, "done").value_or(m_number);
    told.isSaving = ('\n' + output).count("\nsaving ") > ('\n' + output).count("\nsaved ");
    if (lastNumber(output, "late")) {
        told.complaint = "A change was not kept though nothing was written for long enough.";
    } else if (lastNumber(output, "failed")) {
        told.complaint = "The day ended by a run-time error.";
    }
    return told;
}

QStringList Kills::wholeFiles() const
{
    QStringList whole;
    for (const QString& name : {u"shop.xml"_s, u"shop.unsaved.xml"_s}) {
        RecordingPrompts prompts;
        const SystemClock clock;
        ShopSession session(ApplicationFolder(m_folder), prompts, clock);
        session.log.mute();
        session.callbacks.SaveShop = [] {};
        XmlFile file;
        file.load(m_folder + u'/' + name);
        bool isWhole = false;
        try {
            isWhole = readShop(session, file);
        } catch (const RuntimeError&) {
            isWhole = false;
        }
        if (isWhole) {
            whole << name;
        }
    }
    return whole;
}

bool Kills::complain(const QByteArray& what, const QByteArray& output) const
{
    std::printf("Kill %d: %s What was told, from number %d on:\n%s", m_kills, what.constData(), m_number,
                output.last(std::min<qsizetype>(output.size(), 2000)).constData());
    return false;
}

void Kills::showFigures() const
{
    std::printf("%d kills: %d during a start, %d during a save. The shop opened after each; %d times with what was not "
                "saved.\nThe shop file was a mixture %d times. Nothing of the finished work was lost %d times, else at "
                "most %d pieces.\n%d pieces of work are in the shop.\n",
                m_kills, m_duringStart, m_duringSave, m_offered, m_brokenShopFiles, m_lostNothing, m_mostLost,
                m_number);
}
