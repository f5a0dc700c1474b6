// The shop that a restore replaces is kept, so that the restore can be undone.
#include "backup/BackUpFixture.h"
#include "support/RecordingFileCalls.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class RestoreUndo : public BackUpTest
{
protected:
    RestoreUndo()
    {
        writeFile(files.path(u"shop.xml"_s), "<present/>");
        writeFile(files.path(u"pictures/own.png"_s), "own picture");
        writeFile(files.path(u"pictures/empty.png"_s), "");
        writeFile(files.path(u"templates/own.html"_s), "own page");
    }

    QStringList keptFiles() const { return QDir(files.path(u"backups"_s)).entryList(QDir::Files, QDir::Name); }
    QMap<QString, QByteArray> shopFiles() const { return withoutBackUps(filesBelow(files.folder().path())); }
    // Everything below the application folder, backups too.
    QMap<QString, QByteArray> allFiles() const { return filesBelow(files.folder().path()); }

    void askedToGoOn(bool answer)
    {
        prompts.answerDefaultNo(u"Restoring"_s, u"The present shop could not be kept. Restore all the same?"_s, answer);
    }

    void askedForLackOfRoom(bool answer)
    {
        prompts.answerDefaultNo(u"Restoring"_s,
                                u"The disk may lack the room for the restored files. Restore all the same?"_s, answer);
    }

    const QString keptName = u"before restore 2026-07-15 14.03.05.kvb"_s;
    const std::shared_ptr<RecordingFileCalls> calls = std::make_shared<RecordingFileCalls>();
    clsPacker restorer{files.folder(), prompts, clock, u"1.2.0"_s, calls};
};

// An entry of a packed file.
QByteArray entry(const QByteArray& fileSpec, const QByteArray& bytes, qint32 deflatedFrom = 0)
{
    PackedRecord record;
    record.addFlag(deflatedFrom > 0);
    record.addText(QString::fromLatin1(fileSpec));
    record.addInt32(static_cast<qint32>(deflatedFrom > 0 ? deflatedFrom : bytes.size()));
    record.addInt32(static_cast<qint32>(deflatedFrom > 0 ? bytes.size() : 0));
    return record.bytes() + bytes;
}

QByteArray packed(const QList<QByteArray>& entries)
{
    PackedRecord header;
    header.addInt32(0);
    header.addInt32(static_cast<qint32>(entries.size()));
    header.addText(u"1.2.0"_s);
    header.addFlag(false);
    return header.bytes() + entries.join();
}

} // namespace

TEST_F(RestoreUndo, ARestoreOfTheKeptFileBringsThePresentShopBack)
{
    QMap<QString, QByteArray> before = shopFiles();
    before.remove(u"pictures/empty.png"_s); // a packed file holds no empty file
    ASSERT_TRUE(restorer.Restore(referencePath(u"no_entries"_s)));
    EXPECT_TRUE(shopFiles().isEmpty());
    ASSERT_EQ(keptFiles(), QStringList{keptName});
    ASSERT_TRUE(restorer.Restore(files.path(u"backups/"_s + keptName)));
    EXPECT_EQ(shopFiles(), before);
}

TEST_F(RestoreUndo, TheKeptFileIsStoredNotDeflatedAndRaisesNoEvents)
{
    listenTo(restorer);
    ASSERT_TRUE(restorer.Restore(referencePath(u"current"_s)));
    EXPECT_EQ(takeEvents(), (QStringList{u"Working(False)"_s, u"Working(True)"_s}));
    ASSERT_EQ(packer.ReadFile(files.path(u"backups/"_s + keptName)), PackedStatus::SameVersion);
    EXPECT_FALSE(packer.Compressed());
    ASSERT_EQ(packer.Count(), 3);
    EXPECT_FALSE(packer.Item(1).Compressed());
    EXPECT_EQ(packer.Item(1).FileSpec(), u"shop.xml"_s);
    EXPECT_EQ(packer.Item(u"pictures\\own.png"_s).ToString(), u"own picture"_s);
    EXPECT_EQ(packer.Item(u"templates\\own.html"_s).ToString(), u"own page"_s);
}

TEST_F(RestoreUndo, TheKeptFileIsOnTheDiskBeforeAnythingIsDeleted)
{
    ASSERT_TRUE(restorer.Restore(referencePath(u"current"_s)));
    const QStringList made = calls->takeCalls();
    const qsizetype written = made.indexOf(u"create "_s + keptName);
    ASSERT_GE(written, 0);
    const qsizetype flushed = made.indexOf(u"flush"_s, written);
    EXPECT_EQ(made.mid(flushed, 3), (QStringList{u"flush"_s, u"close"_s, u"flush folder backups"_s}));
    EXPECT_LT(flushed, made.indexOf(u"create shop.xml"_s));
}

TEST_F(RestoreUndo, WhereThereIsNothingNothingIsKept)
{
    QFile::remove(files.path(u"shop.xml"_s));
    QDir(files.path(u"pictures"_s)).removeRecursively();
    QFile::remove(files.path(u"templates/own.html"_s));
    ASSERT_TRUE(restorer.Restore(referencePath(u"current"_s)));
    EXPECT_FALSE(QDir(files.path(u"backups"_s)).exists());
}

TEST_F(RestoreUndo, ARefusedFileKeepsNothing)
{
    for (const QString& name : {u"nothing"_s, u"newer"_s}) {
        const bool newer = name == u"newer"_s;
        prompts.expectMessage(
            newer ? u"Restoring canceled"_s : u"Restoring"_s,
            (newer ? u"File version is newer than the version of application.\r\n"_s : u"File restore failure.\r\n"_s) +
                referencePath(name),
            newer ? PromptIcon::Warning : PromptIcon::Critical);
        EXPECT_FALSE(restorer.Restore(referencePath(name)));
        EXPECT_TRUE(keptFiles().isEmpty());
    }
}

TEST_F(RestoreUndo, WhatCannotBeWrittenAsksAndNoTouchesNothing)
{
    const QMap<QString, QByteArray> before = allFiles();
    for (const QString& call : {u"create before"_s, u"write"_s, u"flush"_s, u"close"_s, u"flush folder"_s}) {
        SCOPED_TRACE(call.toStdString());
        calls->failAtCall(call, ErrorNumber::DiskFull);
        askedToGoOn(false);
        EXPECT_FALSE(restorer.Restore(referencePath(u"current"_s)));
        EXPECT_EQ(allFiles(), before);
    }
    // A file in the folder's place.
    QDir(files.path(u"backups"_s)).removeRecursively();
    writeFile(files.path(u"backups"_s), "in the way");
    askedToGoOn(false);
    EXPECT_FALSE(restorer.Restore(referencePath(u"current"_s)));
    EXPECT_EQ(shopFiles().value(u"shop.xml"_s), "<present/>");
}

TEST_F(RestoreUndo, AFileThatCannotBeReadAsksAndNoTouchesNothing)
{
    const QMap<QString, QByteArray> before = allFiles();
    for (const QString& name : {u"shop.xml"_s, u"own.png"_s, u"own.html"_s}) {
        SCOPED_TRACE(name.toStdString());
        calls->failAtCall(u"read "_s + name, ErrorNumber::DeviceError);
        askedToGoOn(false);
        EXPECT_FALSE(restorer.Restore(referencePath(u"current"_s)));
        EXPECT_EQ(allFiles(), before);
    }
    calls->failAtCall(u"no call"_s, ErrorNumber::DeviceError);
    // Larger than an entry may be; it takes no room on the disk.
    QFile large(files.path(u"pictures/large.png"_s));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(Q_INT64_C(2147483648)));
    askedToGoOn(false);
    EXPECT_FALSE(restorer.Restore(referencePath(u"current"_s)));
    EXPECT_TRUE(large.exists());
    EXPECT_TRUE(keptFiles().isEmpty());
}

TEST_F(RestoreUndo, YesKeepsTheFilesThatCanBeRead)
{
    calls->failAtCall(u"read own.png"_s, ErrorNumber::DeviceError);
    askedToGoOn(true);
    EXPECT_TRUE(restorer.Restore(referencePath(u"no_entries"_s)));
    EXPECT_TRUE(shopFiles().isEmpty());
    EXPECT_TRUE(restorer.Restore(files.path(u"backups/"_s + keptName)));
    const QMap<QString, QByteArray> expected = {{u"shop.xml"_s, "<present/>"}, {u"templates/own.html"_s, "own page"}};
    EXPECT_EQ(shopFiles(), expected);
}

TEST_F(RestoreUndo, YesRestoresWithoutAWayBack)
{
    calls->failAtCall(u"flush"_s, ErrorNumber::DeviceError);
    askedToGoOn(true);
    EXPECT_TRUE(restorer.Restore(referencePath(u"current"_s)));
    EXPECT_EQ(shopFiles().value(u"shop.xml"_s), referenceShop());
    EXPECT_TRUE(keptFiles().isEmpty());
}

TEST_F(RestoreUndo, TheLastThreeKeptFilesStayAndTheRestoredOneAndAllOfOtherNames)
{
    QDir().mkpath(files.path(u"backups"_s));
    const QStringList others = {u"before restore 2026-01-01 00.00.00.kvb.kvb"_s,
                                u"before restore 2026-01-01 00.00.00.KVB"_s,
                                u"before restore 2026-13-01 00.00.00.kvb"_s,
                                u"before restore 2026-01-01 24.00.00.kvb"_s,
                                u"before restore at home.kvb"_s,
                                u"x before restore 2026-01-01 00.00.00.kvb"_s};
    const QString restored = u"before restore 2025-01-01 00.00.00.kvb"_s;
    const QStringList old = {u"before restore 2025-02-01 00.00.00.kvb"_s, u"before restore 2025-03-01 00.00.00.kvb"_s,
                             u"before restore 2025-04-01 00.00.00.kvb"_s, u"before restore 2025-05-01 00.00.00.kvb"_s};
    for (const QString& name : others + old) {
        writeFile(files.path(u"backups/"_s + name), "x");
    }
    writeFile(files.path(u"backups/"_s + restored), referenceBytes(u"current"_s));
    // Through a path that is spelled differently.
    ASSERT_TRUE(restorer.Restore(files.path(u"pictures/../backups/"_s + restored)));
    QStringList expected = others + old.last(2) + QStringList{restored, keptName};
    expected.sort();
    QStringList found = keptFiles();
    found.sort();
    EXPECT_EQ(found, expected);
}

TEST_F(RestoreUndo, TheFileKeptJustNowStaysWhenOthersBearLaterNames)
{
    // The clock was set back, or summer time has ended.
    QDir().mkpath(files.path(u"backups"_s));
    QStringList expected = {keptName};
    for (const QString& name :
         {u"before restore 2026-07-15 14.03.06.kvb"_s, u"before restore 2026-07-15 15.00.00.kvb"_s,
          u"before restore 2027-01-01 00.00.00.kvb"_s}) {
        writeFile(files.path(u"backups/"_s + name), "x");
        expected << name;
    }
    ASSERT_TRUE(restorer.Restore(referencePath(u"no_entries"_s)));
    EXPECT_EQ(keptFiles(), expected);
    ASSERT_TRUE(restorer.Restore(files.path(u"backups/"_s + keptName)));
    EXPECT_EQ(shopFiles().value(u"shop.xml"_s), "<present/>");
}

TEST_F(RestoreUndo, AFailedRestoreDeletesNoKeptFile)
{
    QDir().mkpath(files.path(u"backups"_s));
    for (int month = 1; month <= 5; ++month) {
        writeFile(files.path(u"backups/before restore 2025-0%1-01 00.00.00.kvb"_s.arg(month)), "x");
    }
    QFile::remove(files.path(u"shop.xml"_s));
    QDir().mkpath(files.path(u"shop.xml/inside"_s));
    prompts.expectMessage(u"Restoring canceled"_s, u"Can't remove shop.xml"_s, PromptIcon::Critical);
    EXPECT_FALSE(restorer.Restore(referencePath(u"current"_s)));
    EXPECT_EQ(keptFiles().size(), 6);
}

TEST_F(RestoreUndo, TwoRestoresInOneSecondKeepTwoFiles)
{
    ASSERT_TRUE(restorer.Restore(referencePath(u"current"_s)));
    ASSERT_TRUE(restorer.Restore(referencePath(u"current"_s)));
    EXPECT_EQ(keptFiles(), (QStringList{keptName, u"before restore 2026-07-15 14.03.06.kvb"_s}));
}

TEST_F(RestoreUndo, TheRoomIsThatOfTheBytesThatAreThereNotOfTheClaims)
{
    // Free room and what goes: 10 bytes of the shop, 11 of a picture, 8 of a template.
    const qint64 goes = 29;
    const QString path = packedFile(packed({entry("shop.xml", QByteArray(100, 's'))}));
    calls->free = 100 - goes;
    EXPECT_TRUE(restorer.Restore(path));
    calls->free = -1; // now 100 bytes go
    askedForLackOfRoom(false);
    const QMap<QString, QByteArray> before = allFiles();
    EXPECT_FALSE(restorer.Restore(path));
    EXPECT_EQ(allFiles(), before);
    calls->free = std::optional<qint64>();
    EXPECT_TRUE(restorer.Restore(path)) << "no question where the file system does not answer";

    // A claim of 2 GB that cannot be inflated is the few bytes that are there.
    calls->free = 0;
    const QString claims = packedFile(packed({entry("shop.xml", QByteArray(90, 's'), 2000000000)}));
    EXPECT_TRUE(restorer.Restore(claims));
    askedForLackOfRoom(true);
    calls->free = -1;
    EXPECT_TRUE(restorer.Restore(claims));
}

TEST_F(RestoreUndo, AShopThatIsNotKeptAndADiskWithoutRoomAreTwoQuestions)
{
    const QMap<QString, QByteArray> before = allFiles();
    calls->free = -1000000;
    calls->failAtCall(u"create before"_s, ErrorNumber::DiskFull);
    askedToGoOn(false);
    EXPECT_FALSE(restorer.Restore(referencePath(u"current"_s)));
    askedToGoOn(true);
    askedForLackOfRoom(false);
    EXPECT_FALSE(restorer.Restore(referencePath(u"current"_s)));
    EXPECT_EQ(allFiles(), before);
    askedToGoOn(true);
    askedForLackOfRoom(true);
    EXPECT_TRUE(restorer.Restore(referencePath(u"current"_s)));
    EXPECT_EQ(shopFiles().value(u"shop.xml"_s), referenceShop());
}

TEST_F(RestoreUndo, OfTwoEntriesOfOneTargetTheLaterIsTheFileWithoutATailOfTheFormer)
{
    const QString path = packedFile(packed({entry("pictures\\a\\cup.png", "the longer first one"),
                                            entry("shop.xml", "<shop/>"), entry("pictures\\cup.png", "short")}));
    ASSERT_TRUE(restorer.Restore(path));
    EXPECT_EQ(shopFiles().value(u"pictures/cup.png"_s), "short");
}

TEST_F(RestoreUndo, TheKeptFileCanBeReadWhateverTheNamesAre)
{
    writeFile(files.path(u"pictures/OWN.png"_s), "differs by case alone");
    writeFile(files.path(u"pictures/a\\b.png"_s), "a backslash");
    writeFile(files.path(u"pictures/.hidden \u00FC"_s), "hidden");
    ASSERT_TRUE(restorer.Restore(referencePath(u"no_entries"_s)));
    ASSERT_TRUE(restorer.Restore(files.path(u"backups/"_s + keptName)));
    EXPECT_EQ(shopFiles().size(), 4);
    EXPECT_EQ(shopFiles().value(u"pictures/.hidden \u00FC"_s), "hidden");
}
