// Whole files, read and written by the calls of this system and by those of any system.
#include "base/FileBytes.h"

#include "support/FileSizeLimit.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class FileBytes : public testing::TestWithParam<std::unique_ptr<FileCalls> (*)()>
{
protected:
    const std::unique_ptr<FileCalls> calls = GetParam()();
    const TemporaryShopFolder shop;
};

INSTANTIATE_TEST_SUITE_P(OfSystem, FileBytes, testing::Values(systemFileCalls));
INSTANTIATE_TEST_SUITE_P(General, FileBytes, testing::Values(generalFileCalls));

} // namespace

TEST_P(FileBytes, AFileIsReadWhole)
{
    for (const qsizetype size : {0, 1, 4096, 1000000}) {
        const QByteArray bytes(size, 'x');
        writeFile(shop.path(u"file"_s), bytes);
        EXPECT_EQ(readFileBytes(shop.path(u"file"_s), *calls), bytes);
    }
}

TEST_P(FileBytes, AFileThatCannotBeReadIsAnErrorThatNamesIt)
{
    writeFile(shop.path(u"file"_s), "x");
    EXPECT_EQ(errorOf([&] { readFileBytes(shop.path(u"gone"_s), *calls); }), 53);
    EXPECT_EQ(errorOf([&] { readFileBytes(shop.path(u"gone/file"_s), *calls); }), 53);
    EXPECT_EQ(errorOf([&] { readFileBytes(shop.path(u"file/file"_s), *calls); }), 53);
    EXPECT_EQ(errorOf([&] { readFileBytes(QString(), *calls); }), 53);
    EXPECT_EQ(errorOf([&] { readFileBytes(QString(shop.path(u"file"_s) + QChar(0) + u"x"_s), *calls); }), 53);
    EXPECT_EQ(errorOf([&] { readFileBytes(shop.path(QString(5000, u'x')), *calls); }), 53);
    EXPECT_EQ(errorOf([&] { readFileBytes(shop.path(u"templates"_s), *calls); }), 75);
    EXPECT_EQ(errorOf([&] { readFileBytes(u"/dev/zero"_s, *calls); }), 75);
    try {
        readFileBytes(shop.path(u"gone"_s), *calls);
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.description().contains(shop.path(u"gone"_s))) << error.what();
    }
}

TEST_P(FileBytes, AFileOfTwoGigabytesLessOneByteIsTooLarge)
{
    const QString large = shop.path(u"large"_s);
    writeFile(large, "x");
    ASSERT_TRUE(QFile::resize(large, 2'147'483'647)); // takes no room on the disk
    EXPECT_EQ(errorOf([&] { readFileBytes(large, *calls); }), 7);
}

TEST_P(FileBytes, APipeInTheWayDoesNotKeepTheProgramWaiting)
{
    const QString pipe = shop.path(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(errorOf([&] { readFileBytes(pipe, *calls); }), 75);
    EXPECT_EQ(errorOf([&] { writeFileBytes(pipe, "x", *calls); }), 75);
    EXPECT_EQ(errorOf([&] { appendFileBytes(pipe, "x", *calls); }), 75);
}

TEST_P(FileBytes, AReadThatFailsIsADeviceError)
{
    // Reading the first page of one's own memory fails after the file was opened.
    EXPECT_EQ(errorOf([&] { readFileBytes(u"/proc/self/mem"_s, *calls); }), 57);
}

TEST_P(FileBytes, WritingReplacesTheContent)
{
    const QString path = shop.path(u"file"_s);
    for (const QByteArray& bytes :
         {QByteArray("first"), QByteArray(100000, 'x'), QByteArray("shorter"), QByteArray()}) {
        writeFileBytes(path, bytes, *calls);
        EXPECT_EQ(fileBytes(path), bytes);
    }
}

TEST_P(FileBytes, WritingKeepsTheFileItselfAndMakesNoOther)
{
    const QString path = shop.path(u"templates/file"_s);
    writeFile(path, "old");
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    ASSERT_TRUE(QFile::link(u"file"_s, shop.path(u"templates/link"_s)));
    writeFileBytes(shop.path(u"templates/link"_s), "the new content", *calls);
    EXPECT_EQ(fileBytes(path), "the new content");
    EXPECT_TRUE(QFileInfo(path).permissions().testFlag(QFile::ExeOwner));
    EXPECT_EQ(QDir(shop.path(u"templates"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              (QStringList{u"file"_s, u"link"_s}));
}

TEST_P(FileBytes, AFileThatCannotBeWrittenIsAnError)
{
    EXPECT_EQ(errorOf([&] { writeFileBytes(shop.path(u"templates"_s), "x", *calls); }), 75);
    EXPECT_EQ(errorOf([&] { writeFileBytes(shop.path(u"gone/file"_s), "x", *calls); }), 75);
    EXPECT_EQ(errorOf([&] { writeFileBytes(QString(), "x", *calls); }), 75);
    EXPECT_EQ(errorOf([&] { writeFileBytes(QString(shop.path(u"file"_s) + QChar(0)), "x", *calls); }), 75);
    EXPECT_EQ(errorOf([&] { writeFileBytes(u"/dev/null"_s, "x", *calls); }), 75);
}

TEST_P(FileBytes, AppendingMakesTheFileAndAddsToIt)
{
    appendFileBytes(shop.path(u"log"_s), "one ", *calls);
    appendFileBytes(shop.path(u"log"_s), "two", *calls);
    EXPECT_EQ(fileBytes(shop.path(u"log"_s)), "one two");
}

TEST_P(FileBytes, WithoutRoomAppendingIsAnError)
{
    writeFile(shop.path(u"log"_s), "12345");
    const FileSizeLimit limit(5);
    EXPECT_NE(errorOf([&] { appendFileBytes(shop.path(u"log"_s), "6", *calls); }), 0);
    EXPECT_EQ(fileBytes(shop.path(u"log"_s)), "12345");
}

TEST_P(FileBytes, ReplacingAFileLeavesTheNewOneAndNoOther)
{
    const QString path = shop.path(u"templates/file"_s);
    writeFile(path + u".new"_s, "left by a cut of power, and longer");
    for (const QByteArray& bytes : {QByteArray("first"), QByteArray(100000, 'x'), QByteArray()}) {
        replaceFileDurably(path, bytes, *calls);
        EXPECT_EQ(fileBytes(path), bytes);
        EXPECT_EQ(QDir(shop.path(u"templates"_s)).entryList(QDir::Files), QStringList{u"file"_s});
    }
}

TEST_P(FileBytes, AFileThatCannotBeReplacedStaysAndIsAnError)
{
    QDir().mkpath(shop.path(u"templates/folder"_s));
    EXPECT_EQ(errorOf([&] { replaceFileDurably(shop.path(u"templates/folder"_s), "x", *calls); }), 75);
    EXPECT_EQ(errorOf([&] { replaceFileDurably(shop.path(u"gone/file"_s), "x", *calls); }), 75);
    EXPECT_TRUE(QDir(shop.path(u"templates"_s)).entryList(QDir::Files).isEmpty());
    const QString path = shop.path(u"shop.xml"_s);
    writeFile(path, "old");
    const FileSizeLimit limit(1000);
    EXPECT_NE(errorOf([&] { replaceFileDurably(path, QByteArray(1001, 'n'), *calls); }), 0);
    EXPECT_EQ(fileBytes(path), "old");
    EXPECT_FALSE(QFile::exists(path + u".new"_s));
}

// What only the calls of this system do.

TEST(SystemFileBytes, WithoutRoomTheOldFileStaysWhole)
{
    const TemporaryShopFolder shop;
    const QString path = shop.path(u"shop.xml"_s);
    const QByteArray old(10000, 'o');
    writeFile(path, old);
    const FileSizeLimit limit(20000);
    EXPECT_EQ(errorOf([&] { writeFileBytes(path, QByteArray(20001, 'n')); }), 61);
    EXPECT_EQ(fileBytes(path), old);
    EXPECT_EQ(errorOf([&] { writeFileBytes(path, QByteArray(20000, 'n')); }), 0);
    EXPECT_EQ(fileBytes(path), QByteArray(20000, 'n'));
}

TEST(SystemFileBytes, WithoutRoomANewFileIsNotLeftBehind)
{
    const TemporaryShopFolder shop;
    const FileSizeLimit limit(1000);
    EXPECT_EQ(errorOf([&] { writeFileBytes(shop.path(u"new"_s), QByteArray(1001, 'n')); }), 61);
    EXPECT_FALSE(QFile::exists(shop.path(u"new"_s)));
}

TEST(SystemFileBytes, WithoutRoomAppendingIsAFullDisk)
{
    const TemporaryShopFolder shop;
    writeFile(shop.path(u"log"_s), "12345");
    const FileSizeLimit limit(5);
    EXPECT_EQ(errorOf([&] { appendFileBytes(shop.path(u"log"_s), "6"); }), 61);
}

TEST(SystemFileBytes, ARunningProgramIsLockedAgainstWritingEvenForRoot)
{
    EXPECT_EQ(errorOf([] { writeFileBytes(u"/proc/self/exe"_s, "x"); }), 70);
    EXPECT_EQ(errorOf([] { appendFileBytes(u"/proc/self/exe"_s, "x"); }), 70);
}
