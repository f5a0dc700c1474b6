// What a restore takes away, what it writes back, and what is left behind when it stops.
#include "backup/BackUpFixture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

// A shop is there already, with files that no backup knows.
class RestoreTest : public BackUpTest
{
protected:
    RestoreTest()
    {
        writeFile(files.path(u"shop.xml"_s), "<old/>");
        writeFile(files.path(u"pictures/old.png"_s), "old picture");
        writeFile(files.path(u"templates/old.html"_s), "old page");
        writeFile(files.path(u"countries.txt"_s), "Norway");
    }

    // All files but those that the restores kept of the shop before.
    QMap<QString, QByteArray> onDisk() const { return withoutBackUps(filesBelow(files.folder().path())); }

    const QMap<QString, QByteArray> oldShop = {
        {u"shop.xml"_s, "<old/>"},
        {u"pictures/old.png"_s, "old picture"},
        {u"templates/old.html"_s, "old page"},
        {u"countries.txt"_s, "Norway"},
    };
    const QMap<QString, QByteArray> restoredShop = {
        {u"shop.xml"_s, referenceShop()},
        {u"pictures/cup.png"_s, referencePicture()},
        {u"templates/main.html"_s, referencePage()},
        {u"countries.txt"_s, "Norway"},
    };
    const QMap<QString, QByteArray> referenceShopWithOldTemplates = {
        {u"shop.xml"_s, referenceShop()},
        {u"pictures/cup.png"_s, referencePicture()},
        {u"templates/old.html"_s, "old page"},
        {u"countries.txt"_s, "Norway"},
    };
};

} // namespace

TEST_F(RestoreTest, TheSameVersionRestoresEverythingAndLeavesNoOldFileBehind)
{
    for (const QString& name : {u"current"_s, u"stored"_s, u"raw_entry_among_deflated"_s, u"stale_tail"_s}) {
        SCOPED_TRACE(name.toStdString());
        writeFile(files.path(u"pictures/old.png"_s), "old picture");
        EXPECT_TRUE(packer.Restore(referencePath(name)));
        EXPECT_EQ(onDisk(), restoredShop);
    }
}

TEST_F(RestoreTest, AnOlderVersionKeepsTheTemplatesOfTheInstallation)
{
    for (const QString& name : {u"older"_s, u"legacy"_s, u"version_1_10_0"_s}) {
        SCOPED_TRACE(name.toStdString());
        writeFile(files.path(u"pictures/old.png"_s), "old picture");
        EXPECT_TRUE(packer.Restore(referencePath(name)));
        EXPECT_EQ(onDisk(), referenceShopWithOldTemplates);
    }
}

TEST_F(RestoreTest, ANewerVersionRestoresNothing)
{
    const QString path = referencePath(u"newer"_s);
    prompts.expectMessage(u"Restoring canceled"_s,
                          u"File version is newer than the version of application.\r\n"_s + path, PromptIcon::Warning);
    EXPECT_FALSE(packer.Restore(path));
    EXPECT_EQ(onDisk(), oldShop);
    EXPECT_EQ(takeEvents(), (QStringList{u"Working(False)"_s, u"Working(True)"_s, u"ReadError(4)"_s}));
}

TEST_F(RestoreTest, OlderAndNewerAreThoseOfTheTexts)
{
    // 1.10.0 is newer than 1.9.0, but its text is not.
    clsPacker program190(files.folder(), prompts, clock, u"1.9.0"_s);
    EXPECT_TRUE(program190.Restore(referencePath(u"version_1_10_0"_s)));
    EXPECT_EQ(onDisk(), referenceShopWithOldTemplates);
    // 1.2.0 is older than 1.10.0, but its text is not.
    clsPacker program1100(files.folder(), prompts, clock, u"1.10.0"_s);
    const QString path = referencePath(u"current"_s);
    prompts.expectMessage(u"Restoring canceled"_s,
                          u"File version is newer than the version of application.\r\n"_s + path, PromptIcon::Warning);
    EXPECT_FALSE(program1100.Restore(path));
}

TEST_F(RestoreTest, WhatCannotBeReadTouchesNothing)
{
    for (const QString& name :
         {u"nothing"_s, u"cut_in_header"_s, u"cut_in_entry"_s, u"cut_in_last_data"_s, u"cut_legacy_header"_s,
          u"count_too_large"_s, u"count_largest"_s, u"count_below_0"_s, u"size_below_0"_s, u"deflated_size_below_0"_s,
          u"size_past_the_end"_s, u"path_past_the_end"_s, u"version_past_the_end"_s, u"name_twice"_s, u"text"_s,
          u"no such file"_s}) {
        SCOPED_TRACE(name.toStdString());
        const QString path = referencePath(name);
        prompts.expectMessage(u"Restoring"_s, u"File restore failure.\r\n"_s + path, PromptIcon::Critical);
        EXPECT_FALSE(packer.Restore(path));
        EXPECT_EQ(onDisk(), oldShop);
    }
    prompts.expectMessage(u"Restoring"_s, u"File restore failure.\r\n"_s, PromptIcon::Critical);
    clsPacker withoutPath(files.folder(), prompts, clock, u"1.2.0"_s);
    EXPECT_FALSE(withoutPath.Restore(QString()));
    EXPECT_EQ(onDisk(), oldShop);
}

TEST_F(RestoreTest, EntriesOfOtherPathsAreIgnored)
{
    EXPECT_TRUE(packer.Restore(referencePath(u"foreign_paths"_s)));
    const QMap<QString, QByteArray> expected = {{u"shop.xml"_s, referenceShop()}, {u"countries.txt"_s, "Norway"}};
    EXPECT_EQ(onDisk(), expected);
}

TEST_F(RestoreTest, TheShopsNameIsComparedExactly)
{
    EXPECT_TRUE(packer.Restore(referencePath(u"shop_in_capitals"_s)));
    const QMap<QString, QByteArray> expected = {{u"countries.txt"_s, "Norway"}};
    EXPECT_EQ(onDisk(), expected);
}

TEST_F(RestoreTest, OfAPathBelowPicturesTheLastNameCounts)
{
    EXPECT_TRUE(packer.Restore(referencePath(u"folders_below_pictures"_s)));
    EXPECT_EQ(onDisk().value(u"pictures/cup.png"_s), referencePicture());
    EXPECT_EQ(onDisk().size(), 3);
}

TEST_F(RestoreTest, NamesOutsideAsciiComeBack)
{
    EXPECT_TRUE(packer.Restore(referencePath(u"names_in_utf8"_s)));
    EXPECT_EQ(onDisk().value(u"pictures/M\u00FCller \u20AC \u6771.png"_s), referencePicture());
    EXPECT_TRUE(packer.Restore(referencePath(u"names_in_windows_1252"_s)));
    EXPECT_EQ(onDisk().value(u"pictures/M\u00FCller \u20AC.png"_s), referencePicture());
    EXPECT_EQ(onDisk().size(), 3);
}

TEST_F(RestoreTest, AnEntryThatCannotBeInflatedIsWrittenDeflatedWithoutAWord)
{
    EXPECT_TRUE(packer.Restore(referencePath(u"not_inflatable"_s)));
    EXPECT_EQ(onDisk().value(u"shop.xml"_s), "not a stream");
    EXPECT_TRUE(QFile::exists(files.path(u"pictures/empty"_s)));
    EXPECT_TRUE(packer.Restore(referencePath(u"too_long_for_its_room"_s)));
    EXPECT_TRUE(onDisk().value(u"shop.xml"_s).startsWith("\x78\x9C"));
    EXPECT_TRUE(packer.Restore(referencePath(u"longer_than_told"_s)));
    EXPECT_EQ(onDisk().value(u"shop.xml"_s), QByteArray(62, 'x'));
    EXPECT_EQ(onDisk().value(u"pictures/a"_s), QByteArray(164, 'y'));
    EXPECT_TRUE(packer.Restore(referencePath(u"promises_gigabytes"_s)));
    EXPECT_EQ(onDisk().value(u"pictures/big"_s), QByteArray(100000, '\0'));
}

TEST_F(RestoreTest, AFileWithoutEntriesLeavesAnEmptyShop)
{
    EXPECT_TRUE(packer.Restore(referencePath(u"no_entries"_s)));
    const QMap<QString, QByteArray> expected = {{u"countries.txt"_s, "Norway"}};
    EXPECT_EQ(onDisk(), expected);
}

TEST_F(RestoreTest, EmptyingAFolderTakesEveryFileAndNoSubFolder)
{
    const QTemporaryDir outside;
    writeFile(outside.filePath(u"kept"_s), "kept");
    QDir().mkpath(files.path(u"pictures/deep"_s));
    writeFile(files.path(u"pictures/deep/cup.png"_s), "deep");
    writeFile(files.path(u"pictures/.hidden"_s), "x");
    QFile readOnly(files.path(u"pictures/old.png"_s));
    ASSERT_TRUE(readOnly.setPermissions(QFile::ReadOwner));
    ASSERT_EQ(mkfifo(QFile::encodeName(files.path(u"pictures/pipe"_s)).constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(outside.filePath(u"kept"_s), files.path(u"pictures/link"_s)));
    // Links that lead nowhere yet, where the restored files come to stand.
    ASSERT_TRUE(QFile::link(outside.filePath(u"new"_s), files.path(u"pictures/cup.png"_s)));
    ASSERT_TRUE(QFile::link(outside.filePath(u"new"_s), files.path(u"templates/main.html"_s)));
    ASSERT_TRUE(QFile::remove(files.path(u"shop.xml"_s)));
    ASSERT_TRUE(QFile::link(outside.filePath(u"new"_s), files.path(u"shop.xml"_s)));

    EXPECT_TRUE(packer.Restore(referencePath(u"current"_s)));
    QMap<QString, QByteArray> expected = restoredShop;
    expected.insert(u"pictures/deep/cup.png"_s, "deep");
    EXPECT_EQ(onDisk(), expected);
    const QMap<QString, QByteArray> untouched = {{u"kept"_s, "kept"}};
    EXPECT_EQ(filesBelow(outside.path()), untouched);
}

TEST_F(RestoreTest, FoldersThatAreMissingAreMade)
{
    ASSERT_TRUE(QDir(files.path(u"pictures"_s)).removeRecursively());
    ASSERT_TRUE(QDir(files.path(u"templates"_s)).removeRecursively());
    ASSERT_TRUE(QFile::remove(files.path(u"shop.xml"_s)));
    EXPECT_TRUE(packer.Restore(referencePath(u"current"_s)));
    EXPECT_EQ(onDisk(), restoredShop);
}

TEST_F(RestoreTest, AShopFileThatCannotBeRemovedStopsItWhenTheFoldersAreEmpty)
{
    ASSERT_TRUE(QFile::remove(files.path(u"shop.xml"_s)));
    QDir().mkpath(files.path(u"shop.xml"_s));
    writeFile(files.path(u"shop.xml/inside"_s), "x");
    prompts.expectMessage(u"Restoring canceled"_s, u"Can't remove shop.xml"_s, PromptIcon::Critical);
    EXPECT_FALSE(packer.Restore(referencePath(u"older"_s)));
    QMap<QString, QByteArray> expected = {
        {u"shop.xml/inside"_s, "x"}, {u"templates/old.html"_s, "old page"}, {u"countries.txt"_s, "Norway"}};
    EXPECT_EQ(onDisk(), expected);

    prompts.expectMessage(u"Restoring canceled"_s, u"Can't remove shop.xml"_s, PromptIcon::Critical);
    EXPECT_FALSE(packer.Restore(referencePath(u"current"_s)));
    expected.remove(u"templates/old.html"_s);
    EXPECT_EQ(onDisk(), expected);
    EXPECT_TRUE(QDir(files.path(u"pictures"_s)).exists());
}

TEST_F(RestoreTest, TheContainerStaysDeflated)
{
    // So that the memory taken is that of the packed file, not that of the whole shop.
    EXPECT_TRUE(packer.Restore(referencePath(u"current"_s)));
    ASSERT_EQ(packer.Count(), 3);
    EXPECT_TRUE(packer.Item(1).Compressed());
    EXPECT_EQ(packer.Item(1).ToString(), QString::fromLatin1(referenceShop()));
}
