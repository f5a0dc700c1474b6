// What goes into a backup, under which name it is written, and what is said.
#include "backup/BackUpFixture.h"

#include <QDir>
#include <QFile>

#include <dirent.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

// The names of a folder in the order in which the system gives them.
QStringList namesInTheSystemsOrder(const QString& folder)
{
    QStringList names;
    DIR* directory = opendir(QFile::encodeName(folder).constData());
    EXPECT_NE(directory, nullptr);
    while (const dirent* entry = readdir(directory)) {
        const QString name = QFile::decodeName(entry->d_name);
        if (name != u"."_s && name != u".."_s) {
            names << name;
        }
    }
    closedir(directory);
    return names;
}

QStringList entriesOf(clsPacker& packer)
{
    QStringList names;
    for (int i = 1; i <= packer.Count(); ++i) {
        names << packer.Item(i).FileSpec();
    }
    return names;
}

} // namespace

TEST_F(BackUpTest, TheShopItsPicturesAndItsTemplatesArePacked)
{
    useReferenceShop();
    writeFile(files.path(u"countries.txt"_s), "Norway");
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    QString name = u"may"_s;
    EXPECT_TRUE(packer.BackUp(name));
    EXPECT_EQ(name, u"may.kvb"_s);
    EXPECT_TRUE(packer.Compressed());
    EXPECT_FALSE(packer.Changed());

    clsPacker reader(files.folder(), prompts, clock, u"1.2.0"_s);
    EXPECT_EQ(reader.ReadFile(files.path(u"backups/may.kvb"_s)), PackedStatus::SameVersion);
    EXPECT_EQ(entriesOf(reader), (QStringList{u"shop.xml"_s, u"pictures\\cup.png"_s, u"templates\\main.html"_s}));
    EXPECT_TRUE(reader.Compressed());
    EXPECT_EQ(reader.Item(3).ToString(), QString::fromLatin1(referencePage()));
}

TEST_F(BackUpTest, EventsComeInTheOrderOfTheWork)
{
    useReferenceShop();
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    QString name = u"may"_s;
    EXPECT_TRUE(packer.BackUp(name));
    QStringList expected;
    for (int i = 0; i < 5; ++i) { // Compressed, three files, the writing
        expected << u"Working(False)"_s << u"Working(True)"_s;
    }
    EXPECT_EQ(takeEvents(), expected);
}

TEST_F(BackUpTest, TheNameIsCompleted)
{
    const struct
    {
        QString typed;
        QString completed;
    } cases[] = {
        {u"x"_s, u"x.kvb"_s},
        {u"x.txt"_s, u"x.txt.kvb"_s},
        {u"x.KVB"_s, u"x.KVB"_s},
        {u"x.kvb"_s, u"x.kvb"_s},
        {u"x.Kvb"_s, u"x.Kvb.kvb"_s},
        {u"x.kVB"_s, u"x.kVB.kvb"_s},
        {u"kvb"_s, u"kvb.kvb"_s},
        {u"xkvb"_s, u"xkvb.kvb"_s},
        {u"x.okvb"_s, u"x.okvb"_s}, // the last three letters decide
        {u"x.y.kvb"_s, u"x.y.kvb"_s},
        {u"x.kvb "_s, u"x.kvb .kvb"_s},
        {u".kvb"_s, u".kvb"_s},
        {u"x."_s, u"x..kvb"_s},
        {u"May \u00FC \u6771"_s, u"May \u00FC \u6771.kvb"_s},
    };
    useReferenceShop();
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.typed.toStdString());
        prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
        clsPacker one(files.folder(), prompts, clock, u"1.2.0"_s);
        QString name = expected.typed;
        EXPECT_TRUE(one.BackUp(name));
        EXPECT_EQ(name, expected.completed);
        EXPECT_TRUE(QFile::remove(files.path(u"backups/"_s + expected.completed)));
        EXPECT_EQ(namesInTheSystemsOrder(files.path(u"backups"_s)), QStringList());
    }
}

TEST_F(BackUpTest, AnExistingBackupIsReplacedWithoutAQuestion)
{
    useReferenceShop();
    QDir().mkpath(files.path(u"backups"_s));
    writeFile(files.path(u"backups/may.kvb"_s), "old");
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    QString name = u"may.kvb"_s;
    EXPECT_TRUE(packer.BackUp(name));
    EXPECT_EQ(fileBytes(files.path(u"backups/may.kvb"_s)), referenceBytes(u"current"_s));
}

TEST_F(BackUpTest, FilesFollowInTheOrderOfTheFileSystem)
{
    useReferenceShop();
    QFile::remove(files.path(u"pictures/cup.png"_s));
    for (int i = 0; i < 40; ++i) {
        writeFile(files.path(u"pictures/%1.png"_s.arg(i * 7919 % 1000)), "x");
    }
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    QString name = u"may"_s;
    ASSERT_TRUE(packer.BackUp(name));
    QStringList expected = {u"shop.xml"_s};
    for (const QString& picture : namesInTheSystemsOrder(files.path(u"pictures"_s))) {
        expected << u"pictures\\"_s + picture;
    }
    expected << u"templates\\main.html"_s;
    EXPECT_EQ(entriesOf(packer), expected);
}

TEST_F(BackUpTest, HiddenFilesAreFilesSubFoldersAreNot)
{
    useReferenceShop();
    writeFile(files.path(u"pictures/.hidden"_s), "x");
    QDir().mkpath(files.path(u"pictures/deep"_s));
    writeFile(files.path(u"pictures/deep/cup.png"_s), "x");
    QDir().mkpath(files.path(u"templates/old"_s));
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    QString name = u"may"_s;
    ASSERT_TRUE(packer.BackUp(name));
    QStringList entries = entriesOf(packer);
    entries.sort();
    EXPECT_EQ(entries,
              (QStringList{u"pictures\\.hidden"_s, u"pictures\\cup.png"_s, u"shop.xml"_s, u"templates\\main.html"_s}));
}

TEST_F(BackUpTest, WhatIsEmptyOrNoFileOrHasNoNameInTheFormatIsLeftOut)
{
    useReferenceShop();
    writeFile(files.path(u"pictures/empty.png"_s), {});
    writeFile(files.path(u"templates/empty.html"_s), {});
    ASSERT_EQ(mkfifo(QFile::encodeName(files.path(u"pictures/pipe"_s)).constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(u"nowhere"_s, files.path(u"pictures/link"_s)));
    // A backslash separates folders in the format.
    QDir().mkpath(files.path(u"pictures/deep"_s));
    writeFile(files.path(u"pictures/deep/cup.png"_s), "another cup");
    writeFile(files.path(u"pictures/deep\\cup.png"_s), "a third");
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    QString name = u"may"_s;
    ASSERT_TRUE(packer.BackUp(name));
    EXPECT_EQ(fileBytes(files.path(u"backups/may.kvb"_s)), referenceBytes(u"current"_s));
}

TEST_F(BackUpTest, OfTwoNamesThatDifferByCaseOneIsPacked)
{
    useReferenceShop();
    writeFile(files.path(u"pictures/CUP.PNG"_s), "another");
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    QString name = u"may"_s;
    ASSERT_TRUE(packer.BackUp(name));
    EXPECT_EQ(packer.Count(), 3);
}

TEST_F(BackUpTest, WhatIsInMemoryPlaysNoPart)
{
    // A packer that holds entries already keeps them ahead of the shop's files.
    useReferenceShop();
    packer.AddFile(u"templates\\main.html"_s);
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    QString name = u"may"_s;
    ASSERT_TRUE(packer.BackUp(name));
    EXPECT_EQ(entriesOf(packer), (QStringList{u"templates\\main.html"_s, u"shop.xml"_s, u"pictures\\cup.png"_s}));
    EXPECT_TRUE(packer.Item(1).Compressed());
}

TEST_F(BackUpTest, WithoutAShopFileNothingIsWritten)
{
    const QStringList expected = {u"Working(False)"_s, u"Working(True)"_s, u"ReadError(3)"_s};
    QString name = u"may"_s;
    EXPECT_FALSE(packer.BackUp(name));
    EXPECT_EQ(takeEvents(), expected);
    EXPECT_EQ(name, u"may"_s);
    EXPECT_FALSE(QFile::exists(files.path(u"backups"_s)));
    // A folder of that name is no shop file.
    QDir().mkpath(files.path(u"shop.xml"_s));
    clsPacker another(files.folder(), prompts, clock, u"1.2.0"_s);
    listenTo(another);
    EXPECT_FALSE(another.BackUp(name));
    EXPECT_EQ(takeEvents(), expected);
}

TEST_F(BackUpTest, AShopWithNothingButEmptyFilesIsNotWritten)
{
    writeFile(files.path(u"shop.xml"_s), {});
    QString name = u"may"_s;
    EXPECT_FALSE(packer.BackUp(name));
    EXPECT_EQ(name, u"may.kvb"_s);
    EXPECT_EQ(takeEvents().last(), u"WriteError"_s);
    EXPECT_EQ(namesInTheSystemsOrder(files.path(u"backups"_s)), QStringList());
}

TEST_F(BackUpTest, AMissingFolderHasItsBoxAndNothingIsWritten)
{
    useReferenceShop();
    QString name = u"may"_s;
    ASSERT_TRUE(QDir().rename(files.path(u"templates"_s), files.path(u"elsewhere"_s)));
    prompts.expectMessage(u"Error"_s, u"Templates folder not found"_s, PromptIcon::Critical);
    EXPECT_FALSE(packer.BackUp(name));

    ASSERT_TRUE(QDir(files.path(u"pictures"_s)).removeRecursively());
    writeFile(files.path(u"pictures"_s), "a file in its place");
    prompts.expectMessage(u"Error"_s, u"Picture folder not found"_s, PromptIcon::Critical);
    EXPECT_FALSE(packer.BackUp(name));

    EXPECT_FALSE(takeEvents().contains(u"WriteError"_s));
    EXPECT_EQ(name, u"may"_s);
    EXPECT_FALSE(QFile::exists(files.path(u"backups"_s)));
}
