#include "backup/BackUpCommands.h"

#include "backup/BackUpFixture.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class BackUpCommandsTest : public BackUpTest
{
protected:
    BackUpCommandsTest() { useReferenceShop(); }

    void askedFor(const std::optional<QString>& name)
    {
        prompts.answerText(u"Backing up"_s, u"Enter file name"_s, name);
    }

    // A backup of the running program, made through the menu, then a changed shop.
    QString backedUpAndChanged()
    {
        askedFor(u"may"_s);
        prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
        backUpFromMenu(services);
        writeFile(files.path(u"shop.xml"_s), "changed");
        return files.path(u"backups/may.kvb"_s);
    }

    const ApplicationFolder folder = files.folder();
    LoadLog log{folder};
    const BackUpServices services{folder, prompts, clock, log, u"The program"_s};
};

} // namespace

TEST_F(BackUpCommandsTest, ABackupIsNamedAndMade)
{
    askedFor(u"may"_s);
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    backUpFromMenu(services);
    EXPECT_TRUE(QFile::exists(files.path(u"backups/may.kvb"_s)));
}

TEST_F(BackUpCommandsTest, WithoutANameNothingHappens)
{
    askedFor(std::nullopt);
    backUpFromMenu(services);
    askedFor(QString());
    backUpFromMenu(services);
    EXPECT_FALSE(QFile::exists(files.path(u"backups"_s)));
}

TEST_F(BackUpCommandsTest, AFullDiskIsToldTwiceAndThenOnceMore)
{
    writeFile(files.path(u"pictures/noise.png"_s), noise(100000, 7));
    askedFor(u"may"_s);
    prompts.expectMessage(u"The program"_s, u"Backuping: file saving error ocured"_s);
    prompts.expectMessage(u"The program"_s, u"Backuping: file saving error ocured"_s);
    prompts.expectMessage(u"Error"_s, u"Creating backup is failed"_s, PromptIcon::Critical);
    const FileSizeLimit limit(50000);
    backUpFromMenu(services);
}

TEST_F(BackUpCommandsTest, AFileInTheFoldersPlaceIsARunTimeError)
{
    writeFile(files.path(u"backups"_s), "in the way");
    askedFor(u"may"_s);
    EXPECT_EQ(errorOf([&] { backUpFromMenu(services); }), 75);
}

TEST_F(BackUpCommandsTest, AShopIsRestoredAndTheRestartIsTold)
{
    const QString path = backedUpAndChanged();
    prompts.answerFile(path);
    prompts.expectMessage(u"Restoring"_s, u"Restore is completed.\r\nThe program will be restarted now."_s,
                          PromptIcon::Information);
    EXPECT_TRUE(restoreFromMenu(services, [] {}));
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), referenceShop());
    EXPECT_EQ(prompts.fileQuestions,
              (QStringList{folder.backupsFolder(), u"Packed shops (*.kvb *.KVB);;All files (*)"_s}));
}

TEST_F(BackUpCommandsTest, WithoutAChoiceNothingIsRestored)
{
    backedUpAndChanged();
    prompts.answerFile(QString());
    EXPECT_FALSE(restoreFromMenu(services, [] {}));
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), "changed");
}

TEST_F(BackUpCommandsTest, FilesThatAreLeftOutAreNamedInTheLogAndCounted)
{
    writeFile(files.path(u"pictures/empty.png"_s), "");
    writeFile(files.path(u"pictures/a\\b.png"_s), "x");
    // Larger than an entry may be; it takes no room on the disk.
    QFile large(files.path(u"pictures/large.png"_s));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(Q_INT64_C(2147483648)));
    askedFor(u"may"_s);
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    const std::optional<BackUpReport> report = backUpFromMenu(services);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->fileName, u"may.kvb"_s);
    EXPECT_EQ(report->size, fileBytes(files.path(u"backups/may.kvb"_s)).size());
    EXPECT_EQ(report->leftOut, 2);
    const QByteArray logged = fileBytes(files.path(u"load.log"_s));
    EXPECT_TRUE(logged.contains("pictures\\a\\b.png\"\r\n")) << logged.toStdString();
    EXPECT_TRUE(logged.contains("pictures\\large.png\"\r\n")) << logged.toStdString();
    EXPECT_EQ(logged.count('\n'), 2);
}

TEST_F(BackUpCommandsTest, ALogThatCannotBeWrittenChangesNothingOfWhatIsTold)
{
    writeFile(files.path(u"pictures/a\\b.png"_s), "x");
    QDir().mkpath(files.path(u"load.log"_s)); // a folder in its place
    askedFor(u"may"_s);
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    const std::optional<BackUpReport> report = backUpFromMenu(services);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->leftOut, 1);

    ASSERT_TRUE(QDir(files.path(u"templates"_s)).removeRecursively());
    askedFor(u"may"_s);
    prompts.expectMessage(u"Error"_s, u"Templates folder not found"_s, PromptIcon::Critical);
    prompts.expectMessage(u"Error"_s, u"Creating backup is failed"_s, PromptIcon::Critical);
    EXPECT_FALSE(backUpFromMenu(services));
}

TEST_F(BackUpCommandsTest, ARestoreThatIsStoppedIsAFailure)
{
    const QString path = backedUpAndChanged();
    QDir().mkpath(files.path(u"elsewhere"_s));
    ASSERT_TRUE(QFile::rename(path, files.path(u"elsewhere/may.kvb"_s)));
    ASSERT_TRUE(QDir().rmdir(files.path(u"backups"_s)));
    writeFile(files.path(u"backups"_s), "in the way");
    prompts.answerFile(files.path(u"elsewhere/may.kvb"_s));
    prompts.answerDefaultNo(u"Restoring"_s, u"The present shop could not be kept. Restore all the same?"_s, false);
    prompts.expectMessage(u"Error"_s, u"Restore backup is failed"_s, PromptIcon::Critical);
    EXPECT_FALSE(restoreFromMenu(services, [] {}));
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), "changed");
}
