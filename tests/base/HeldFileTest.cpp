// Files that one process holds: who sees whom, and what a crash leaves.
#include "base/OperatingSystem.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <array>
#include <csignal>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class AHeldFile : public testing::Test
{
protected:
    QTemporaryDir directory;
    QString path = directory.filePath(u"held"_s);
};

// A process of its own that holds the file until it is killed.
class Holder
{
public:
    explicit Holder(const QString& path)
    {
        std::array<int, 2> told{};
        EXPECT_EQ(pipe(told.data()), 0);
        m_process = fork();
        if (m_process == 0) {
            const std::unique_ptr<HeldFile> file = holdFile(path);
            const char found = !file ? 'n' : (file->isShared() ? 's' : 'f');
            static_cast<void>(write(told[1], &found, 1));
            while (true) {
                pause();
            }
        }
        EXPECT_EQ(read(told[0], &answer, 1), 1);
        close(told[0]);
        close(told[1]);
    }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;
    ~Holder()
    {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }

    char answer = 0; // f for the first, s for one that shares, n for none

private:
    pid_t m_process;
};

TEST_F(AHeldFile, IsMadeEmptyAndGoesWithItsLastHolder)
{
    std::unique_ptr<HeldFile> first = holdFile(path);
    ASSERT_NE(first, nullptr);
    EXPECT_FALSE(first->isShared());
    EXPECT_EQ(fileBytes(path), "");
    std::unique_ptr<HeldFile> second = holdFile(path);
    ASSERT_NE(second, nullptr);
    EXPECT_TRUE(second->isShared());
    first.reset();
    EXPECT_TRUE(QFileInfo::exists(path));
    second.reset();
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_FALSE(holdFile(path)->isShared());
}

TEST_F(AHeldFile, IsSharedForAsLongAsAnyoneHoldsIt)
{
    std::unique_ptr<HeldFile> first = holdFile(path);
    const std::unique_ptr<HeldFile> second = holdFile(path);
    first.reset();
    const std::unique_ptr<HeldFile> third = holdFile(path);
    ASSERT_NE(third, nullptr);
    EXPECT_TRUE(third->isShared());
}

TEST_F(AHeldFile, IsSeenByOtherProcesses)
{
    const std::unique_ptr<HeldFile> first = holdFile(path);
    EXPECT_EQ(Holder(path).answer, 's');
}

TEST_F(AHeldFile, IsFreeOnceItsProcessWasKilled)
{
    {
        const Holder holder(path);
        EXPECT_EQ(holder.answer, 'f');
        EXPECT_TRUE(holdFile(path)->isShared());
    }
    EXPECT_TRUE(QFileInfo::exists(path)); // nobody was there to remove it
    const std::unique_ptr<HeldFile> next = holdFile(path);
    ASSERT_NE(next, nullptr);
    EXPECT_FALSE(next->isShared());
}

TEST_F(AHeldFile, IsNotHandedToProgramsThatAreStarted)
{
    std::unique_ptr<HeldFile> first = holdFile(path);
    QProcess other;
    other.start(u"sleep"_s, {u"60"_s});
    ASSERT_TRUE(other.waitForStarted());
    first.reset();
    EXPECT_FALSE(holdFile(path)->isShared());
    other.kill();
    other.waitForFinished();
}

TEST_F(AHeldFile, IsNoneWhereItCannotBeMade)
{
    EXPECT_EQ(holdFile(directory.filePath(u"gone/held"_s)), nullptr);
    QDir(directory.path()).mkdir(u"folder"_s);
    EXPECT_EQ(holdFile(directory.filePath(u"folder"_s)), nullptr);
    ASSERT_TRUE(QFile::link(directory.filePath(u"elsewhere"_s), directory.filePath(u"link"_s)));
    EXPECT_EQ(holdFile(directory.filePath(u"link"_s)), nullptr);
    EXPECT_FALSE(QFileInfo::exists(directory.filePath(u"elsewhere"_s)));
}

TEST_F(AHeldFile, KeepsWhatSomebodyWroteIntoIt)
{
    writeFile(path, "notes");
    const std::unique_ptr<HeldFile> first = holdFile(path);
    EXPECT_EQ(fileBytes(path), "notes");
}

} // namespace
