// Disks that are full, folders in the way, files that vanish, and a process that is killed while it writes: what is
// said then, and that nothing else comes to harm. A file-size limit stands for the full disk, since it holds for root
// too.
#include "backup/BackUpFixture.h"
#include "backup/PackedStream.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class BackUpFaultsTest : public BackUpTest
{
protected:
    BackUpFaultsTest()
    {
        useReferenceShop();
        writeFile(files.path(u"pictures/noise.png"_s), noise(100000, 7));
    }

    // All files but the backups.
    QMap<QString, QByteArray> shopFiles() const { return withoutBackUps(filesBelow(files.folder().path())); }

    QString makeBackUp()
    {
        prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
        clsPacker writer(files.folder(), prompts, clock, u"1.2.0"_s);
        QString name = u"whole"_s;
        EXPECT_TRUE(writer.BackUp(name));
        return files.path(u"backups/whole.kvb"_s);
    }
};

// Runs the work in a process of its own which dies as soon as it writes past that size, and tells the signal that ended
// it; 0 when none did.
template <class Work>
int signalThatEnded(rlim_t fileSize, Work work)
{
    const pid_t child = fork();
    if (child == 0) {
        const rlimit none{0, 0};
        setrlimit(RLIMIT_CORE, &none);
        const FileSizeLimit limit(fileSize, true);
        work();
        _exit(0);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

} // namespace

TEST_F(BackUpFaultsTest, AFullDiskIsToldTwiceAndLeavesAPart)
{
    const QMap<QString, QByteArray> before = shopFiles();
    QString name = u"may"_s;
    {
        const FileSizeLimit limit(50000);
        EXPECT_FALSE(packer.BackUp(name));
    }
    const QStringList told = takeEvents();
    EXPECT_EQ(told.last(3), (QStringList{u"Working(True)"_s, u"WriteError"_s, u"WriteError"_s}));
    EXPECT_EQ(told.count(u"WriteError"_s), 2);
    EXPECT_TRUE(packer.Changed());
    EXPECT_EQ(fileBytes(files.path(u"backups/may.kvb"_s)).size(), 50000);
    EXPECT_EQ(shopFiles(), before);
    EXPECT_EQ(packer.ReadFile(files.path(u"backups/may.kvb"_s)), PackedStatus::CannotRead);
}

TEST_F(BackUpFaultsTest, AFullDiskLeavesTheBackupThatWasToBeOverwrittenWhole)
{
    const QString whole = makeBackUp();
    const QByteArray wholeBytes = fileBytes(whole);
    writeFile(files.path(u"pictures/more.png"_s), noise(100000, 8));
    QString name = u"whole"_s;
    {
        const FileSizeLimit limit(150000);
        EXPECT_FALSE(packer.BackUp(name));
    }
    EXPECT_EQ(takeEvents().count(u"WriteError"_s), 2);
    EXPECT_TRUE(fileBytes(whole) == wholeBytes);
}

TEST_F(BackUpFaultsTest, WhereverTheDiskBecomesFullTheResultIsFalse)
{
    packer.setCompressed(true);
    packer.AddFile(u"shop.xml"_s);
    packer.AddFile(u"pictures\\cup.png"_s);
    const QString path = files.path(u"out"_s);
    ASSERT_TRUE(packer.WriteFile(path));
    const qint64 whole = fileBytes(path).size();
    for (qint64 size = 0; size <= whole; ++size) {
        QFile::remove(path);
        const FileSizeLimit limit(static_cast<rlim_t>(size));
        EXPECT_EQ(packer.WriteFile(path), size == whole) << size;
        EXPECT_EQ(QFile(path).size(), size);
    }
}

TEST_F(BackUpFaultsTest, AFolderInThePackedFilesPlaceIsAFailureToWrite)
{
    const QMap<QString, QByteArray> before = shopFiles();
    QDir().mkpath(files.path(u"backups/may.kvb"_s));
    QString name = u"may"_s;
    EXPECT_FALSE(packer.BackUp(name));
    EXPECT_EQ(takeEvents().count(u"WriteError"_s), 2);
    EXPECT_EQ(shopFiles(), before);
    EXPECT_TRUE(QDir(files.path(u"backups/may.kvb"_s)).isEmpty());
}

TEST_F(BackUpFaultsTest, AFileInTheFoldersPlaceIsARunTimeError)
{
    writeFile(files.path(u"backups"_s), "in the way");
    QString name = u"may"_s;
    EXPECT_EQ(errorOf([&] { packer.BackUp(name); }), 75);
    EXPECT_EQ(fileBytes(files.path(u"backups"_s)), "in the way");

    QFile::remove(files.path(u"backups"_s));
    const QString whole = makeBackUp();
    ASSERT_TRUE(QDir(files.path(u"pictures"_s)).removeRecursively());
    writeFile(files.path(u"pictures"_s), "in the way");
    EXPECT_EQ(errorOf([&] { packer.Restore(whole); }), 75);
    EXPECT_EQ(fileBytes(files.path(u"pictures"_s)), "in the way");
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), referenceShop());
}

TEST_F(BackUpFaultsTest, AFileThatVanishesBetweenListAndReadIsLeftOut)
{
    packer.Working = [this](bool done) {
        // The folder has been listed; both pictures go before the first is read.
        if (!done && packer.Count() == 1) {
            QFile::remove(files.path(u"pictures/noise.png"_s));
            QFile::remove(files.path(u"pictures/cup.png"_s));
        }
    };
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    QString name = u"may"_s;
    EXPECT_TRUE(packer.BackUp(name));
    ASSERT_EQ(packer.Count(), 2);
    EXPECT_EQ(packer.Item(1).FileSpec(), u"shop.xml"_s);
    EXPECT_EQ(packer.Item(2).FileSpec(), u"templates\\main.html"_s);
    EXPECT_EQ(packer.ReadFile(files.path(u"backups/may.kvb"_s)), PackedStatus::SameVersion);
    EXPECT_EQ(packer.Count(), 2);
}

TEST_F(BackUpFaultsTest, APackedFileThatVanishesBeforeItIsOpenedTouchesNothing)
{
    const QString whole = makeBackUp();
    const QMap<QString, QByteArray> before = shopFiles();
    packer.Working = [&](bool done) {
        if (!done) {
            QFile::remove(whole);
        }
    };
    prompts.expectMessage(u"Restoring"_s, u"File restore failure.\r\n"_s + whole, PromptIcon::Critical);
    EXPECT_FALSE(packer.Restore(whole));
    EXPECT_EQ(shopFiles(), before);
}

TEST_F(BackUpFaultsTest, AProcessKilledWhileItWritesABackupHarmsNothingElse)
{
    const QMap<QString, QByteArray> before = shopFiles();
    const QString whole = makeBackUp();
    const QByteArray wholeBytes = fileBytes(whole);
    const int ended = signalThatEnded(60000, [&] {
        QString name = u"killed"_s;
        packer.BackUp(name);
    });
    EXPECT_EQ(ended, SIGXFSZ);
    EXPECT_EQ(fileBytes(files.path(u"backups/killed.kvb"_s)).size(), 60000);
    EXPECT_EQ(shopFiles(), before);
    EXPECT_EQ(fileBytes(whole), wholeBytes);

    // What is left of it is refused, and the shop stays as it is.
    const QString killed = files.path(u"backups/killed.kvb"_s);
    prompts.expectMessage(u"Restoring"_s, u"File restore failure.\r\n"_s + killed, PromptIcon::Critical);
    EXPECT_FALSE(packer.Restore(killed));
    EXPECT_EQ(shopFiles(), before);

    // A second try under the same name gives a whole one.
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    clsPacker again(files.folder(), prompts, clock, u"1.2.0"_s);
    QString name = u"killed.kvb"_s;
    EXPECT_TRUE(again.BackUp(name));
    EXPECT_EQ(fileBytes(killed), wholeBytes);
}

TEST_F(BackUpFaultsTest, ABackupThatIsKilledHalfWayIsNoMixtureOfTheOldOneAndTheNew)
{
    const QString whole = makeBackUp();
    const QByteArray oldBytes = fileBytes(whole);
    writeFile(files.path(u"pictures/noise.png"_s), noise(100000, 8));
    const int ended = signalThatEnded(60000, [&] {
        QString name = u"whole"_s;
        packer.BackUp(name);
    });
    EXPECT_EQ(ended, SIGXFSZ);
    const QByteArray halfBytes = fileBytes(whole);
    ASSERT_TRUE(halfBytes != oldBytes);
    EXPECT_EQ(packer.ReadFile(whole), PackedStatus::CannotRead);

    // The entries of the new one would fit where those of the old one stand.
    const QByteArray newBytes = fileBytes(makeBackUp());
    EXPECT_EQ(newBytes.size(), oldBytes.size());
    EXPECT_TRUE(halfBytes.last(40000) == oldBytes.last(40000));
}

TEST_F(BackUpFaultsTest, AProcessKilledWhileItRestoresLeavesTheBackupToRestoreAgain)
{
    const QMap<QString, QByteArray> before = shopFiles();
    const QString whole = makeBackUp();
    const QByteArray wholeBytes = fileBytes(whole);
    writeFile(files.path(u"pictures/stray.png"_s), "stray");
    QFile::remove(files.path(u"pictures/noise.png"_s)); // so that the present shop is small enough to be kept
    const int ended = signalThatEnded(40000, [&] { packer.Restore(whole); });
    EXPECT_EQ(ended, SIGXFSZ);
    EXPECT_EQ(fileBytes(files.path(u"pictures/noise.png"_s)).size(), 40000);
    EXPECT_EQ(fileBytes(whole), wholeBytes);
    EXPECT_TRUE(packer.Restore(whole));
    EXPECT_EQ(shopFiles(), before);
}

TEST_F(BackUpFaultsTest, AFullDiskWhileRestoringIsARunTimeErrorAndTheBackupStaysWhole)
{
    const QMap<QString, QByteArray> before = shopFiles();
    const QString whole = makeBackUp();
    const QByteArray wholeBytes = fileBytes(whole);
    QFile::remove(files.path(u"pictures/noise.png"_s)); // so that the present shop is small enough to be kept
    {
        const FileSizeLimit limit(40000);
        EXPECT_EQ(errorOf([&] { packer.Restore(whole); }), 61);
    }
    EXPECT_EQ(fileBytes(whole), wholeBytes);
    EXPECT_TRUE(packer.Restore(whole));
    EXPECT_EQ(shopFiles(), before);
}

TEST_F(BackUpFaultsTest, ADeviceIsNoFile)
{
    EXPECT_EQ(errorOf([] { const PackedStream stream(u"/dev/full"_s, PackedStream::Mode::Write); }), 75);
    EXPECT_EQ(errorOf([] { const PackedStream stream(u"/dev/zero"_s, PackedStream::Mode::Read); }), 75);
}

TEST_F(BackUpFaultsTest, ASubFolderInAPicturesPlaceIsARunTimeError)
{
    const QString whole = makeBackUp();
    ASSERT_TRUE(QFile::remove(files.path(u"pictures/cup.png"_s)));
    QDir().mkpath(files.path(u"pictures/cup.png"_s));
    EXPECT_EQ(errorOf([&] { packer.Restore(whole); }), 75);
    EXPECT_TRUE(QDir(files.path(u"pictures/cup.png"_s)).exists());
}
