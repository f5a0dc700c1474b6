// The order of the calls that write a file to the disk, and what happens when one of them fails.
#include "base/FileBytes.h"
#include "support/RecordingFileCalls.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class DurableFiles : public testing::Test
{
protected:
    const TemporaryShopFolder shop;
    const QString path = shop.path(u"templates/main.html"_s);
    RecordingFileCalls calls;
};

// The room that a file takes on the disk, in bytes.
qint64 roomOf(const QString& path)
{
    struct stat status = {};
    EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0);
    return status.st_blocks * 512;
}

} // namespace

TEST_F(DurableFiles, AGrowingFileTakesItsRoomIsWrittenFlushedAndClosed)
{
    writeFile(path, "old");
    writeFileBytes(path, "longer", calls);
    EXPECT_EQ(calls.takeCalls(),
              (QStringList{u"overwrite main.html"_s, u"reserve 3 to 6"_s, u"write 6"_s, u"flush"_s, u"close"_s}));
}

TEST_F(DurableFiles, AShrinkingFileIsCutBeforeItIsFlushed)
{
    writeFile(path, "longer");
    writeFileBytes(path, "new", calls);
    EXPECT_EQ(calls.takeCalls(), (QStringList{u"overwrite main.html"_s, u"reserve 6 to 3"_s, u"write 3"_s, u"cut 3"_s,
                                              u"flush"_s, u"close"_s}));
}

TEST_F(DurableFiles, OfAFileThatIsMadeTheFolderIsFlushedToo)
{
    writeFileBytes(path, "new", calls);
    EXPECT_EQ(calls.takeCalls(), (QStringList{u"create main.html"_s, u"reserve 0 to 3"_s, u"write 3"_s, u"flush"_s,
                                              u"close"_s, u"flush folder templates"_s}));
}

TEST_F(DurableFiles, AReplacedFileIsOnTheDiskBeforeItIsRenamedAndItsNameAfterwards)
{
    writeFile(path, "old");
    replaceFileDurably(path, "new", calls);
    EXPECT_EQ(calls.takeCalls(),
              (QStringList{u"create main.html.new"_s, u"reserve 0 to 3"_s, u"write 3"_s, u"flush"_s, u"close"_s,
                           u"rename main.html.new to main.html"_s, u"flush folder templates"_s}));
    EXPECT_EQ(fileBytes(path), "new");
}

TEST_F(DurableFiles, EveryCallThatFailsIsTold)
{
    struct Row
    {
        QString call;
        ErrorNumber number;
    };
    for (const Row& row : {Row{u"create"_s, ErrorNumber::PermissionDenied}, Row{u"reserve"_s, ErrorNumber::DiskFull},
                           Row{u"write"_s, ErrorNumber::DeviceError}, Row{u"flush"_s, ErrorNumber::DeviceError},
                           Row{u"close"_s, ErrorNumber::DiskFull}, Row{u"flush folder"_s, ErrorNumber::DeviceError}}) {
        SCOPED_TRACE(row.call.toStdString());
        QFile::remove(path);
        calls.failAtCall(row.call, row.number);
        EXPECT_EQ(errorOf([&] { writeFileBytes(path, "new", calls); }), static_cast<int>(row.number));
        EXPECT_EQ(errorOf([&] { replaceFileDurably(path, "new", calls); }), static_cast<int>(row.number));
    }
}

TEST_F(DurableFiles, AFailureBeforeTheRenamingLeavesTheOldFileAndNoOther)
{
    writeFile(path, "old");
    for (const QString& call : {u"create"_s, u"reserve"_s, u"write"_s, u"flush"_s, u"close"_s, u"rename"_s}) {
        SCOPED_TRACE(call.toStdString());
        calls.failAtCall(call, ErrorNumber::DeviceError);
        EXPECT_EQ(errorOf([&] { replaceFileDurably(path, "new", calls); }), 57);
        EXPECT_EQ(fileBytes(path), "old");
        EXPECT_EQ(QDir(shop.path(u"templates"_s)).entryList(QDir::Files), QStringList{u"main.html"_s});
    }
}

TEST_F(DurableFiles, RoomIsTakenWithoutChangingTheSize)
{
    writeFile(path, "old");
    const std::unique_ptr<FileCalls> system = systemFileCalls();
    const std::unique_ptr<OpenFile> file = system->open(path, FileCalls::Access::Overwrite);
    const qint64 before = roomOf(path);
    file->reserve(3, 1000000);
    EXPECT_EQ(QFileInfo(path).size(), 3);
    EXPECT_EQ(fileBytes(path), "old");
    // A file system that cannot reserve takes none; the ones that tests run on can.
    EXPECT_GE(roomOf(path), before + 900000);
    // Truncating the file to its own size gives the reserved room back.
    file->cut(3);
    EXPECT_EQ(roomOf(path), before);
}

TEST_F(DurableFiles, AFileSystemThatCannotFlushIsLeftOut)
{
    // A file of the kernel's own answers that it cannot be flushed.
    const std::unique_ptr<FileCalls> system = systemFileCalls();
    const std::unique_ptr<OpenFile> file = system->open(u"/proc/self/comm"_s, FileCalls::Access::Overwrite);
    EXPECT_EQ(errorOf([&] { file->flush(); }), 0);
    EXPECT_EQ(errorOf([&] { system->flushFolder(u"/proc/self"_s); }), 0);
    EXPECT_EQ(errorOf([&] { system->flushFolder(shop.path(u"gone"_s)); }), 57);
}
