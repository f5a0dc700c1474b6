// The program as the desktop starts it: what two of them do on one folder, and what is there after a kill.
#include "support/TestSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QThread>

#include <functional>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60'000; // milliseconds

bool waitUntil(const std::function<bool()>& condition)
{
    QElapsedTimer time;
    time.start();
    while (!condition() && time.elapsed() < patience) {
        QThread::msleep(20);
    }
    return condition();
}

class TheProgram : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString sample = QStringLiteral(TARNWICK_SOURCE_DIR "/app/");
        QDirIterator entries(sample, QDir::Files, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString file = entries.next();
            ASSERT_TRUE(QFile::copy(file, files.path(file.mid(sample.size()))));
        }
        // It goes by the folder that it lies in.
        ASSERT_TRUE(QFile::copy(QStringLiteral(TARNWICK_PROGRAM), files.path(u"Tarnwick"_s)));
    }

    void start(QProcess& program) const
    {
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(files.path(u"Tarnwick"_s), QStringList());
        ASSERT_TRUE(program.waitForStarted());
    }
    bool isShown() const
    {
        const QString log = files.folder().loadLogFile();
        return waitUntil([&] { return QFile::exists(log) && fileBytes(log).contains("MainForm shown"); });
    }
    static void end(QProcess& program)
    {
        program.kill();
        program.waitForFinished();
    }

    TemporaryShopFolder files;
};

TEST_F(TheProgram, AsksBeforeItOpensAFolderThatIsOpenAndLeavesTheLogAloneUntilThen)
{
    QProcess first;
    start(first);
    ASSERT_TRUE(isShown());
    EXPECT_TRUE(QFileInfo::exists(files.folder().runningFile()));
    writeFile(files.folder().loadLogFile(), "the first one's");
    QProcess second;
    start(second);
    EXPECT_FALSE(second.waitForFinished(2000)); // it waits for an answer
    EXPECT_EQ(fileBytes(files.folder().loadLogFile()), "the first one's");
    end(second);
    end(first);
}

TEST_F(TheProgram, AsksNothingAfterAKillThoughTheFileIsStillThere)
{
    QProcess first;
    start(first);
    ASSERT_TRUE(isShown());
    end(first);
    ASSERT_TRUE(QFileInfo::exists(files.folder().runningFile()));
    QFile::remove(files.folder().loadLogFile());
    QProcess next;
    start(next);
    EXPECT_TRUE(isShown());
    end(next);
}

TEST_F(TheProgram, OpensWhereTheFolderCannotBeTaken)
{
    ASSERT_TRUE(QDir(files.folder().path()).mkdir(u"Tarnwick.running"_s));
    QProcess program;
    start(program);
    EXPECT_TRUE(isShown());
    end(program);
}

// The question stands behind the first line of the shop's making, and nothing more happens before its answer.
TEST_F(TheProgram, OffersWhatWasNotSaved)
{
    QFile::copy(files.folder().shopFile(), files.folder().unsavedShopFile());
    QProcess program;
    start(program);
    const QString log = files.folder().loadLogFile();
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(log) && fileBytes(log).contains("Start shop creating"); }));
    EXPECT_FALSE(program.waitForFinished(2000));
    EXPECT_TRUE(fileBytes(log).endsWith("\"Start shop creating\"\r\n"));
    end(program);
    EXPECT_TRUE(QFileInfo::exists(files.folder().unsavedShopFile()));
}

} // namespace
