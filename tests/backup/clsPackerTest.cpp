#include "backup/clsPacker.h"

#include "backup/BackUpFixture.h"

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

using PackerTest = BackUpTest;

const QStringList workingOnly = {u"Working(False)"_s, u"Working(True)"_s};

} // namespace

TEST_F(PackerTest, ANewPackerIsEmptyUnchangedAndDoesNotCompress)
{
    EXPECT_EQ(packer.Count(), 0);
    EXPECT_FALSE(packer.Changed());
    EXPECT_FALSE(packer.Compressed());
    EXPECT_EQ(packer.FileSpec, QString());
    EXPECT_EQ(packer.FileName(), QString());
}

TEST_F(PackerTest, EntriesAreFoundByPositionAndByKeyWithoutRegardToCase)
{
    clsFileData& first = packer.Add(u"pictures\\Cup.png"_s);
    clsFileData& second = packer.Add(u"shop.xml"_s);
    EXPECT_TRUE(packer.Changed());
    EXPECT_EQ(packer.Count(), 2);
    EXPECT_EQ(first.Key(), u"pictures\\Cup.png"_s);
    EXPECT_EQ(first.FileSpec(), u"pictures\\Cup.png"_s);
    EXPECT_EQ(first.Size(), 0);
    EXPECT_EQ(&packer.Item(1), &first);
    EXPECT_EQ(&packer.Item(u"PICTURES\\CUP.PNG"_s), &first);
    EXPECT_EQ(&packer.Item(2), &second);
    EXPECT_EQ(errorOf([&] { packer.Add(u"SHOP.XML"_s); }), 457);
    EXPECT_EQ(errorOf([&] { packer.Item(0); }), 9);
    EXPECT_EQ(errorOf([&] { packer.Item(3); }), 9);
    EXPECT_EQ(errorOf([&] { packer.Item(u"gone"_s); }), 5);
    EXPECT_EQ(packer.Count(), 2);
    EXPECT_EQ(takeEvents(), QStringList());
}

TEST_F(PackerTest, RemovingTakesOneEntryOut)
{
    for (const QString& key : {u"a"_s, u"b"_s, u"c"_s}) {
        packer.Add(key);
    }
    packer.Remove(u"B"_s);
    EXPECT_EQ(packer.Item(2).Key(), u"c"_s);
    packer.Remove(1);
    EXPECT_EQ(packer.Count(), 1);
    EXPECT_EQ(packer.Item(1).Key(), u"c"_s);
    EXPECT_EQ(errorOf([&] { packer.Remove(u"a"_s); }), 5);
    EXPECT_EQ(errorOf([&] { packer.Remove(2); }), 9);
}

TEST_F(PackerTest, WhatChangesTheContentsSetsChanged)
{
    useReferenceShop();
    const auto changedBy = [this](const auto& work) {
        EXPECT_EQ(packer.ReadFile(referencePath(u"current"_s)), PackedStatus::SameVersion);
        EXPECT_FALSE(packer.Changed());
        work();
        return packer.Changed();
    };
    EXPECT_TRUE(changedBy([&] { packer.Add(u"new"_s); }));
    EXPECT_TRUE(changedBy([&] { packer.Remove(1); }));
    EXPECT_TRUE(changedBy([&] { packer.Remove(u"shop.xml"_s); }));
    EXPECT_TRUE(changedBy([&] { packer.Clear(); }));
    EXPECT_TRUE(changedBy([&] { packer.setCompressed(false); }));
    EXPECT_TRUE(changedBy([&] {
        packer.Remove(1);
        EXPECT_TRUE(packer.WriteFile(files.path(u"out.kvb"_s)));
        EXPECT_FALSE(packer.Changed());
        packer.AddFile(u"shop.xml"_s);
    }));
    EXPECT_FALSE(changedBy([&] { packer.setCompressed(true); }));
    EXPECT_FALSE(changedBy([&] { packer.AddFile(u"shop.xml"_s); }));
    EXPECT_FALSE(changedBy([&] { packer.FileSpec = u"elsewhere"_s; }));
    EXPECT_FALSE(changedBy([&] { packer.Item(1).ToString(); }));
    EXPECT_TRUE(changedBy([&] {
        packer.Clear();
        EXPECT_FALSE(packer.WriteFile(files.path(u"out.kvb"_s)));
    }));
}

TEST_F(PackerTest, ClearEmptiesAndSetsChangedAlsoWhenThereIsNothing)
{
    packer.Clear();
    EXPECT_TRUE(packer.Changed());
    packer.Add(u"a"_s);
    packer.Add(u"b"_s);
    packer.Clear();
    EXPECT_EQ(packer.Count(), 0);
    packer.Add(u"a"_s);
    EXPECT_EQ(packer.Count(), 1);
}

TEST_F(PackerTest, AddingAFileLoadsIt)
{
    useReferenceShop();
    EXPECT_EQ(packer.AddFile(u"pictures\\cup.png"_s), AddFileResult::Added);
    EXPECT_EQ(takeEvents(), workingOnly);
    EXPECT_EQ(packer.Item(u"pictures\\cup.png"_s).Size(), 768);
    EXPECT_FALSE(packer.Item(1).Compressed());
    packer.setCompressed(true);
    packer.AddFile(u"shop.xml"_s);
    EXPECT_TRUE(packer.Item(2).Compressed());
}

TEST_F(PackerTest, AddingAPathThatIsPresentLeavesTheFirstEntryInPlace)
{
    useReferenceShop();
    packer.AddFile(u"shop.xml"_s);
    takeEvents();
    writeFile(files.path(u"shop.xml"_s), "another");
    EXPECT_EQ(packer.AddFile(u"shop.xml"_s), AddFileResult::AlreadyPresent);
    EXPECT_EQ(takeEvents(), QStringList{u"Working(True)"_s});
    EXPECT_EQ(packer.AddFile(u"Shop.XML"_s), AddFileResult::AlreadyPresent);
    EXPECT_EQ(packer.Count(), 1);
    EXPECT_EQ(packer.Item(1).ToString(), QString::fromLatin1(referenceShop()));
    EXPECT_EQ(packer.Item(1).FileSpec(), u"shop.xml"_s);
}

TEST_F(PackerTest, AFileThatCannotBeLoadedIsTakenOutAgain)
{
    writeFile(files.path(u"pictures/empty"_s), {});
    for (const QString& path : {u"pictures\\gone"_s, u"pictures\\empty"_s, u"pictures"_s}) {
        EXPECT_EQ(packer.AddFile(path), AddFileResult::CannotLoad);
        EXPECT_EQ(takeEvents(), workingOnly);
        EXPECT_EQ(packer.Count(), 0);
    }
    EXPECT_TRUE(packer.Changed());
    // The key is free again.
    writeFile(files.path(u"pictures/empty"_s), "x");
    EXPECT_EQ(packer.AddFile(u"pictures\\empty"_s), AddFileResult::Added);
}

TEST_F(PackerTest, FilesThatCannotBeLoadedTakeNoLongerAmongManyEntries)
{
    const auto time = [this] {
        qint64 shortest = std::numeric_limits<qint64>::max(); // whatever else the machine does
        for (int round = 0; round < 5; ++round) {
            QElapsedTimer timer;
            timer.start();
            for (int i = 0; i < 50; ++i) {
                packer.AddFile(u"pictures\\gone"_s);
            }
            shortest = std::min(shortest, timer.nsecsElapsed());
        }
        return shortest;
    };
    const qint64 amongNone = time();
    for (int i = 0; i < 20000; ++i) {
        packer.Add(u"pictures\\cup%1.png"_s.arg(i));
    }
    EXPECT_LT(time(), 5 * amongNone);
}

TEST_F(PackerTest, TheNumbersOfResultsAndStatusesAreFixed)
{
    EXPECT_EQ(static_cast<int>(AddFileResult::Added), 0);
    EXPECT_EQ(static_cast<int>(AddFileResult::AlreadyPresent), 1);
    EXPECT_EQ(static_cast<int>(AddFileResult::CannotLoad), 2);
    EXPECT_EQ(static_cast<int>(PackedStatus::SameVersion), 0);
    EXPECT_EQ(static_cast<int>(PackedStatus::CannotRead), 2);
    EXPECT_EQ(static_cast<int>(PackedStatus::NewerVersion), 4);
    EXPECT_EQ(static_cast<int>(PackedStatus::OlderVersion), 5);
}

TEST_F(PackerTest, ChangingCompressedChangesEveryEntry)
{
    useReferenceShop();
    packer.AddFile(u"shop.xml"_s);
    packer.AddFile(u"templates\\main.html"_s);
    takeEvents();
    packer.setCompressed(false);
    EXPECT_EQ(takeEvents(), QStringList());
    packer.setCompressed(true);
    EXPECT_EQ(takeEvents(), workingOnly);
    EXPECT_TRUE(packer.Item(1).Compressed() && packer.Item(2).Compressed());
    EXPECT_TRUE(packer.Compressed());
    packer.setCompressed(true);
    EXPECT_EQ(takeEvents(), QStringList());
    packer.setCompressed(false);
    EXPECT_EQ(takeEvents(), workingOnly);
    EXPECT_FALSE(packer.Item(1).Compressed() || packer.Item(2).Compressed());
    EXPECT_EQ(packer.Item(2).Size(), referencePage().size());
}

TEST_F(PackerTest, ThePackersValueChangesAlsoWhenAnEntryCannotFollow)
{
    packer.ReadFile(referencePath(u"not_inflatable"_s));
    packer.setCompressed(false);
    EXPECT_FALSE(packer.Compressed());
    EXPECT_TRUE(packer.Item(1).Compressed());
}

TEST_F(PackerTest, TheFileNameIsCutBehindTheLastSeparator)
{
    const struct
    {
        QString path;
        QString name;
    } cases[] = {
        {u"/shop/backups/may.kvb"_s, u"may.kvb"_s},
        {u"c:\\shop\\may.kvb"_s, u"may.kvb"_s},
        {u"may.kvb"_s, u"may.kvb"_s},
        {u"/shop/"_s, u""_s},
        {u""_s, u""_s},
    };
    for (const auto& expected : cases) {
        packer.FileSpec = expected.path;
        EXPECT_EQ(packer.FileName(), expected.name);
    }
}

TEST_F(PackerTest, AnEmptyContainerIsNeverWritten)
{
    EXPECT_FALSE(packer.WriteFile(files.path(u"out.kvb"_s)));
    EXPECT_FALSE(QFile::exists(files.path(u"out.kvb"_s)));
    EXPECT_EQ(takeEvents(), QStringList());
}

TEST_F(PackerTest, WithoutAPathNothingIsWritten)
{
    packer.Add(u"a"_s);
    EXPECT_FALSE(packer.WriteFile());
    EXPECT_EQ(takeEvents(), QStringList());
}

TEST_F(PackerTest, AnEmptyPathMeansTheStoredOneWhichAWriteDoesNotChange)
{
    useReferenceShop();
    packer.AddFile(u"shop.xml"_s);
    packer.FileSpec = files.path(u"stored.kvb"_s);
    EXPECT_TRUE(packer.WriteFile(files.path(u"other.kvb"_s)));
    EXPECT_EQ(packer.FileSpec, files.path(u"stored.kvb"_s));
    EXPECT_FALSE(QFile::exists(files.path(u"stored.kvb"_s)));
    EXPECT_TRUE(packer.WriteFile());
    EXPECT_EQ(fileBytes(files.path(u"stored.kvb"_s)), fileBytes(files.path(u"other.kvb"_s)));

    clsPacker reader(files.folder(), prompts, clock, u"1.2.0"_s);
    reader.FileSpec = files.path(u"other.kvb"_s);
    EXPECT_EQ(reader.ReadFile(), PackedStatus::SameVersion);
    EXPECT_EQ(reader.Count(), 1);
    EXPECT_EQ(reader.ReadFile(files.path(u"stored.kvb"_s)), PackedStatus::SameVersion);
    EXPECT_EQ(reader.FileSpec, files.path(u"stored.kvb"_s));
}

TEST_F(PackerTest, WritingClearsChangedBeforeTheLastEvent)
{
    useReferenceShop();
    packer.AddFile(u"shop.xml"_s);
    takeEvents();
    bool changedAtTheEnd = true;
    packer.Working = [&](bool done) {
        events << (done ? u"end"_s : u"begin"_s);
        changedAtTheEnd = packer.Changed();
    };
    EXPECT_TRUE(packer.WriteFile(files.path(u"out.kvb"_s)));
    EXPECT_EQ(takeEvents(), (QStringList{u"begin"_s, u"end"_s}));
    EXPECT_FALSE(changedAtTheEnd);
}

TEST_F(PackerTest, AWriteThatFailsRaisesTheErrorBehindTheEnd)
{
    useReferenceShop();
    packer.AddFile(u"shop.xml"_s);
    takeEvents();
    for (const QString& path : {files.path(u"pictures"_s), files.path(u"gone/out.kvb"_s), u"/dev/full"_s,
                                QString(files.path(u"a"_s) + QChar(0) + u"b"_s)}) {
        EXPECT_FALSE(packer.WriteFile(path)) << path.toStdString();
        EXPECT_EQ(takeEvents(), (QStringList{u"Working(False)"_s, u"Working(True)"_s, u"WriteError"_s}));
        EXPECT_TRUE(packer.Changed());
    }
    EXPECT_FALSE(QFile::exists(files.path(u"a"_s)));
}

TEST_F(PackerTest, WithoutListenersEverythingWorksTheSame)
{
    useReferenceShop();
    clsPacker quiet(files.folder(), prompts, clock, u"1.2.0"_s);
    EXPECT_EQ(quiet.AddFile(u"shop.xml"_s), AddFileResult::Added);
    EXPECT_TRUE(quiet.WriteFile(files.path(u"out.kvb"_s)));
    EXPECT_FALSE(quiet.WriteFile(files.path(u"pictures"_s)));
    EXPECT_EQ(quiet.ReadFile(files.path(u"gone"_s)), PackedStatus::CannotRead);
}

TEST_F(PackerTest, TheVersionIsTheProgramsUnlessToldOtherwise)
{
    useReferenceShop();
    clsPacker own(files.folder(), prompts, clock);
    own.AddFile(u"shop.xml"_s);
    ASSERT_TRUE(own.WriteFile(files.path(u"out.kvb"_s)));
    const QByteArray bytes = fileBytes(files.path(u"out.kvb"_s));
    const QByteArray version = programVersion().toLatin1();
    EXPECT_EQ(bytes.mid(8, 2 + version.size()), QByteArray(1, static_cast<char>(version.size())) + '\0' + version);
}
