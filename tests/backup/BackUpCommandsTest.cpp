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
    void expectFailure(const QString& text) { prompts.expectMessage(u"Error"_s, text, PromptIcon::Critical); }
    bool hasBackups() const { return QFile::exists(files.path(u"backups"_s)); }

    // A backup of the running program, made through the menu, then a changed shop.
    QString backedUpAndChanged()
    {
        askedFor(u"may"_s);
        prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
        BackUpFromMenu(services);
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
    BackUpFromMenu(services);
    EXPECT_TRUE(QFile::exists(files.path(u"backups/may.kvb"_s)));
}

TEST_F(BackUpCommandsTest, WithoutANameNothingHappens)
{
    askedFor(std::nullopt);
    BackUpFromMenu(services);
    askedFor(QString());
    BackUpFromMenu(services);
    EXPECT_FALSE(hasBackups());
}

TEST_F(BackUpCommandsTest, WithoutAShopFileTheFailureIsTold)
{
    QFile::remove(files.path(u"shop.xml"_s));
    askedFor(u"may"_s);
    expectFailure(u"Creating backup is failed"_s);
    BackUpFromMenu(services);
    // The folder was made before anything was looked at; nothing was written into it.
    EXPECT_TRUE(hasBackups());
    EXPECT_TRUE(QDir(files.path(u"backups"_s)).isEmpty());
}

TEST_F(BackUpCommandsTest, AMissingFolderIsToldByTwoBoxes)
{
    QDir(files.path(u"templates"_s)).removeRecursively();
    askedFor(u"may"_s);
    expectFailure(u"Templates folder not found"_s);
    expectFailure(u"Creating backup is failed"_s);
    BackUpFromMenu(services);

    QDir(files.path(u"pictures"_s)).removeRecursively();
    askedFor(u"may"_s);
    expectFailure(u"Picture folder not found"_s);
    expectFailure(u"Creating backup is failed"_s);
    BackUpFromMenu(services);
    EXPECT_TRUE(QDir(files.path(u"backups"_s)).isEmpty());
}

TEST_F(BackUpCommandsTest, AFailureToWriteIsToldTwiceAndThenOnceMore)
{
    QDir().mkpath(files.path(u"backups/may.kvb"_s));
    askedFor(u"may"_s);
    prompts.expectMessage(u"The program"_s, u"Backuping: file saving error ocured"_s);
    prompts.expectMessage(u"The program"_s, u"Backuping: file saving error ocured"_s);
    expectFailure(u"Creating backup is failed"_s);
    BackUpFromMenu(services);
}

TEST_F(BackUpCommandsTest, AFullDiskIsToldTheSameWay)
{
    WriteFile(files.path(u"pictures/noise.png"_s), Noise(100000, 7));
    askedFor(u"may"_s);
    prompts.expectMessage(u"The program"_s, u"Backuping: file saving error ocured"_s);
    prompts.expectMessage(u"The program"_s, u"Backuping: file saving error ocured"_s);
    expectFailure(u"Creating backup is failed"_s);
    const FileSizeLimit limit(50000);
    BackUpFromMenu(services);
}

TEST_F(BackUpCommandsTest, AFileInTheFoldersPlaceIsARunTimeError)
{
    WriteFile(files.path(u"backups"_s), "in the way");
    askedFor(u"may"_s);
    EXPECT_EQ(ErrorOf([&] { BackUpFromMenu(services); }), 75);
}

TEST_F(BackUpCommandsTest, AShopIsRestoredAndTheRestartIsTold)
{
    const QString path = backedUpAndChanged();
    prompts.answerFile(path);
    prompts.expectMessage(u"Restoring"_s, u"Restore is completed.\r\nThe program will be restarted now."_s,
                          PromptIcon::Information);
    EXPECT_TRUE(RestoreFromMenu(services));
    EXPECT_EQ(FileBytes(files.path(u"shop.xml"_s)), ReferenceShop());
    EXPECT_EQ(prompts.fileQuestions,
              (QStringList{folder.backupsFolder(), u"Packed shops (*.kvb *.KVB);;All files (*)"_s}));
}

TEST_F(BackUpCommandsTest, WithoutAChoiceNothingIsRestored)
{
    backedUpAndChanged();
    prompts.answerFile(QString());
    EXPECT_FALSE(RestoreFromMenu(services));
    EXPECT_EQ(FileBytes(files.path(u"shop.xml"_s)), "changed");
}

TEST_F(BackUpCommandsTest, AFileThatCannotBeReadIsToldByTwoBoxes)
{
    const QString path = packedFile("nonsense");
    prompts.answerFile(path);
    prompts.expectMessage(u"Restoring"_s, u"File restore failure.\r\n"_s + path, PromptIcon::Critical);
    expectFailure(u"Restore backup is failed"_s);
    EXPECT_FALSE(RestoreFromMenu(services));
    EXPECT_EQ(FileBytes(files.path(u"shop.xml"_s)), ReferenceShop());
}

TEST_F(BackUpCommandsTest, ANewerFileIsToldByTwoBoxes)
{
    QByteArray bytes = FileBytes(backedUpAndChanged());
    bytes[10] = '9'; // the first digit of the version
    const QString path = packedFile(bytes);
    prompts.answerFile(path);
    prompts.expectMessage(u"Restoring canceled"_s,
                          u"File version is newer than the version of application.\r\n"_s + path, PromptIcon::Warning);
    expectFailure(u"Restore backup is failed"_s);
    EXPECT_FALSE(RestoreFromMenu(services));
    EXPECT_EQ(FileBytes(files.path(u"shop.xml"_s)), "changed");
}

TEST_F(BackUpCommandsTest, AShopFileThatCannotBeRemovedIsToldByTwoBoxes)
{
    const QString path = backedUpAndChanged();
    QFile::remove(files.path(u"shop.xml"_s));
    QDir().mkpath(files.path(u"shop.xml/inside"_s));
    prompts.answerFile(path);
    prompts.expectMessage(u"Restoring canceled"_s, u"Can't remove shop.xml"_s, PromptIcon::Critical);
    expectFailure(u"Restore backup is failed"_s);
    EXPECT_FALSE(RestoreFromMenu(services));
}
