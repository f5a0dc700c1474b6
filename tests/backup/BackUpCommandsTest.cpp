#include "backup/BackUpCommands.h"

#include "backup/BackUpFixture.h"

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
        WriteFile(files.path(u"shop.xml"_s), "changed");
        return files.path(u"backups/may.kvb"_s);
    }

    const ApplicationFolder folder = files.folder();
    const BackUpServices services{folder, prompts, u"The program"_s};
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
    WriteFile(files.path(u"pictures/noise.png"_s), noise(100000, 7));
    askedFor(u"may"_s);
    prompts.expectMessage(u"The program"_s, u"Backuping: file saving error ocured"_s);
    prompts.expectMessage(u"The program"_s, u"Backuping: file saving error ocured"_s);
    prompts.expectMessage(u"Error"_s, u"Creating backup is failed"_s, PromptIcon::Critical);
    const FileSizeLimit limit(50000);
    backUpFromMenu(services);
}

TEST_F(BackUpCommandsTest, AFileInTheFoldersPlaceIsARunTimeError)
{
    WriteFile(files.path(u"backups"_s), "in the way");
    askedFor(u"may"_s);
    EXPECT_EQ(errorOf([&] { backUpFromMenu(services); }), 75);
}

TEST_F(BackUpCommandsTest, AShopIsRestoredAndTheRestartIsTold)
{
    const QString path = backedUpAndChanged();
    prompts.answerFile(path);
    prompts.expectMessage(u"Restoring"_s, u"Restore is completed.\r\nThe program will be restarted now."_s,
                          PromptIcon::Information);
    EXPECT_TRUE(restoreFromMenu(services));
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), referenceShop());
    EXPECT_EQ(prompts.fileQuestions,
              (QStringList{folder.backupsFolder(), u"Packed shops (*.kvb *.KVB);;All files (*)"_s}));
}

TEST_F(BackUpCommandsTest, WithoutAChoiceNothingIsRestored)
{
    backedUpAndChanged();
    prompts.answerFile(QString());
    EXPECT_FALSE(restoreFromMenu(services));
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), "changed");
}
