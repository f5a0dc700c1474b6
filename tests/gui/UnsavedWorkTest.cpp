// What was not saved, seen from the window: when it reaches the disk, when it goes, and the next start.
#include "backup/clsPacker.h"
#include "editors/Panel.h"
#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"
#include "support/RecordingFileCalls.h"
#include "support/WindowTest.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

const QString title = u"Ambrel eCommerce Software"_s;
const QString question = u"The program ended before the last changes were saved. Open the shop with them?"_s;
const QString exitQuestion = u"Do you want save changes?"_s;

class UnsavedWork : public WindowTest
{
protected:
    void SetUp() override
    {
        useSampleShop();
        start();
    }

    void type(const char* field, const QString& text) { find<QLineEdit>(field)->setText(text); }
    // As a crash would leave the folder.
    void crash()
    {
        const QByteArray left = unsaved();
        window.reset();
        ASSERT_EQ(unsaved(), left);
    }
    bool isThere() const { return QFileInfo::exists(files.folder().unsavedShopFile()); }
    QByteArray unsaved() const { return isThere() ? fileBytes(files.folder().unsavedShopFile()) : QByteArray(); }
    QByteArray saved() const { return fileBytes(files.folder().shopFile()); }
};

TEST_F(UnsavedWork, IsNotThereAfterAStart)
{
    EXPECT_FALSE(isThere());
    clickNode(u"ID_SHOP"_s);
    trigger("mnuShopPreview");
    trigger("mnuShopDesign");
    trigger("mnuProductsCatalog");
    EXPECT_FALSE(isThere()) << "nothing was changed";
}

TEST_F(UnsavedWork, IsKeptWhenAPanelIsLeft)
{
    const QByteArray before = saved();
    type("ShopNameTxt", u"Moss"_s);
    EXPECT_FALSE(isThere());
    click("ShopTaxesSBtn");
    EXPECT_TRUE(unsaved().contains("<Name>Moss</Name>"));
    EXPECT_EQ(saved(), before);
}

TEST_F(UnsavedWork, IsKeptWhenAPanelIsSubmitted)
{
    type("ShopNameTxt", u"Moss"_s);
    window->ApplyActivePanel();
    EXPECT_TRUE(unsaved().contains("<Name>Moss</Name>"));
}

TEST_F(UnsavedWork, IsKeptWhenAPanelIsGatheredForThePreview)
{
    type("ShopNameTxt", u"Moss"_s);
    trigger("mnuShopPreview");
    EXPECT_TRUE(unsaved().contains("<Name>Moss</Name>"));
}

TEST_F(UnsavedWork, IsKeptAfterTheCommandsOfTheCatalogue)
{
    click("ShopNewCategorySBtn");
    EXPECT_TRUE(unsaved().contains("<Name>New Category</Name>"));
    click("NewProductSBtn");
    EXPECT_TRUE(unsaved().contains("<Name>New Product</Name>"));
    trigger("mnuDuplicateProduct");
    EXPECT_TRUE(unsaved().contains("<Name>New Product copy</Name>"));
    prompts.answerYesNo(u"Warning"_s, u"Are you sure you want to remove this product"_s, true);
    trigger("mnuRemoveProduct");
    EXPECT_FALSE(unsaved().contains("<Name>New Product copy</Name>"));
    prompts.answerYesNo(u"Warning"_s, u"Are you sure you want to remove this category"_s, true);
    trigger("mnuRemoveCategory");
    EXPECT_FALSE(unsaved().contains("<Name>New Category</Name>"));
}

TEST_F(UnsavedWork, IsKeptAfterAnImportEvenOneThatFails)
{
    const QString list = files.path(u"list.txt"_s);
    writeFile(list, "Sencha,green,Moss\nbroken\n");
    prompts.answerFile(list);
    prompts.expectMessage(title, u"Line 2: Subscript out of range\n1 product imported"_s, PromptIcon::Warning);
    trigger("mnuImport");
    EXPECT_TRUE(unsaved().contains("<Name>Sencha</Name>"));
}

// A program that is killed in the middle of writing the shop file has the unsaved one.
TEST_F(UnsavedWork, IsThereWhileTheShopFileIsBeingOverwritten)
{
    type("ShopNameTxt", u"Moss"_s);
    ASSERT_TRUE(QFile::remove(files.folder().shopFile()));
    ASSERT_TRUE(QDir().mkpath(files.folder().shopFile()));
    clock.steady = 0;
    trigger("mnuSaveShop");
    EXPECT_EQ(errors.numbers, std::vector<int>{75});
    EXPECT_TRUE(unsaved().contains("<Name>Moss</Name>"));
}

TEST_F(UnsavedWork, GoesWithASave)
{
    type("ShopNameTxt", u"Moss"_s);
    click("ShopTaxesSBtn");
    ASSERT_TRUE(isThere());
    trigger("mnuSaveShop");
    EXPECT_FALSE(isThere());
    EXPECT_TRUE(saved().contains("<Name>Moss</Name>"));
    click("ShopGeneralSBtn");
    EXPECT_FALSE(isThere());
}

TEST_F(UnsavedWork, IsNotWrittenByTheSavingAlone)
{
    window->session().shop->name = u"Moss"_s;
    ASSERT_TRUE(QDir().mkpath(files.folder().unsavedShopFile() + u".new"_s)); // any attempt would be a line in the log
    window->SaveShop();
    EXPECT_TRUE(saved().contains("<Name>Moss</Name>"));
    EXPECT_FALSE(logLines().join(u'\n').contains(u"unsaved"_s));
}

TEST_F(UnsavedWork, GoesWithAnExitThatSavesNothing)
{
    const QByteArray before = saved();
    type("ShopNameTxt", u"Moss"_s);
    click("ShopTaxesSBtn");
    ASSERT_TRUE(isThere());
    prompts.answerYesNoCancel(title, exitQuestion, PromptAnswer::No);
    EXPECT_TRUE(window->close());
    EXPECT_FALSE(isThere());
    EXPECT_EQ(saved(), before);
}

TEST_F(UnsavedWork, GoesWithAnExitThatSaves)
{
    type("ShopNameTxt", u"Moss"_s);
    click("ShopTaxesSBtn");
    prompts.answerYesNoCancel(title, exitQuestion, PromptAnswer::Yes);
    EXPECT_TRUE(window->close());
    EXPECT_FALSE(isThere());
}

TEST_F(UnsavedWork, StaysWhenTheExitIsCancelled)
{
    type("ShopNameTxt", u"Moss"_s);
    click("ShopTaxesSBtn");
    prompts.answerYesNoCancel(title, exitQuestion, PromptAnswer::Cancel);
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(isThere());
    type("ShopNameTxt", u"Fern"_s);
    click("ShopGeneralSBtn");
    click("ShopTaxesSBtn");
    EXPECT_TRUE(isThere());
}

TEST_F(UnsavedWork, StaysAfterARunTimeErrorWithWhatWasGatheredBefore)
{
    type("ShopNameTxt", u"Moss"_s);
    click("ShopTaxesSBtn");
    const QByteArray kept = unsaved();
    window->session().shop->name = u"not gathered"_s;
    window->errorHandler().fatalError(RuntimeError(ErrorNumber::TypeMismatch));
    EXPECT_EQ(unsaved(), kept);
}

class UnsavedWorkAndARestore : public UnsavedWork
{
protected:
    void SetUp() override
    {
        UnsavedWork::SetUp();
        prompts.answerText(u"Backing up"_s, u"Enter file name"_s, u"kept"_s);
        prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
        trigger("mnuBackUp");
        type("ShopNameTxt", u"Moss"_s);
        click("ShopTaxesSBtn");
        ASSERT_TRUE(isThere());
    }
};

TEST_F(UnsavedWorkAndARestore, GoesAheadOfTheBoxAndStaysAway)
{
    bool wasThereAtBox = true;
    class Watching : public RecordingPrompts
    {
    public:
        std::function<void()> atBox;
        QString file;
        void showMessage(const QString& /*title*/, const QString& /*text*/, PromptIcon /*icon*/) override { atBox(); }
        QString chooseFile(const QString& /*folder*/, const QString& /*filter*/) override { return file; }
        PromptAnswer askYesNoCancel(const QString& /*title*/, const QString& /*text*/) override
        {
            return PromptAnswer::No;
        }
        bool askYesNo(const QString& /*title*/, const QString& /*text*/) override { return true; }
    } watching;
    watching.atBox = [&] { wasThereAtBox = isThere(); };
    watching.file = files.folder().backupsFolder() + u"kept.kvb"_s;
    window.reset();
    window = startProgram({files.folder(), watching, clock, errors, [this] { ++restarts; }},
                          [this](QWidget* parent) { return makePreview(parent); });
    letBePainted(*window);
    ASSERT_TRUE(isThere());
    trigger("mnuRestore");
    EXPECT_EQ(restarts, 1);
    EXPECT_FALSE(wasThereAtBox);
    EXPECT_FALSE(window->isVisible());
    type("ShopNameTxt", u"Fern"_s);
    window->ShowFrame(nullptr, 0);
    EXPECT_FALSE(isThere());
}

TEST_F(UnsavedWorkAndARestore, StaysWhenTheRestoreIsCancelledOrFails)
{
    prompts.answerFile(QString());
    trigger("mnuRestore");
    EXPECT_TRUE(isThere());
    prompts.answerFile(files.path(u"gone.kvb"_s));
    prompts.expectMessage(u"Restoring"_s, u"File restore failure.\r\n"_s + files.path(u"gone.kvb"_s),
                          PromptIcon::Critical);
    prompts.expectMessage(u"Error"_s, u"Restore backup is failed"_s, PromptIcon::Critical);
    trigger("mnuRestore");
    EXPECT_TRUE(isThere());
}

TEST_F(UnsavedWorkAndARestore, IsInNoBackUpNorInWhatARestoreKeeps)
{
    writeFile(files.folder().oldUnsavedShopFile(), "older");
    writeFile(files.folder().runningFile(), "");
    prompts.answerText(u"Backing up"_s, u"Enter file name"_s, u"second"_s);
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    trigger("mnuBackUp");
    prompts.answerFile(files.folder().backupsFolder() + u"kept.kvb"_s);
    prompts.expectMessage(u"Restoring"_s, u"Restore is completed.\r\nThe program will be restarted now."_s,
                          PromptIcon::Information);
    trigger("mnuRestore");
    const QStringList packed = QDir(files.folder().backupsFolder()).entryList({u"*.kvb"_s}, QDir::Files);
    EXPECT_EQ(packed.size(), 3) << packed.join(u' ').toStdString();
    for (const QString& name : packed) {
        clsPacker packer(files.folder(), prompts, clock);
        packer.ReadFile(files.folder().backupsFolder() + name);
        const QByteArray bytes = fileBytes(files.folder().backupsFolder() + name);
        EXPECT_TRUE(bytes.contains("shop.xml")) << name.toStdString();
        EXPECT_FALSE(bytes.contains("unsaved")) << name.toStdString();
        EXPECT_FALSE(bytes.contains("Tarnwick.running")) << name.toStdString();
    }
}

TEST_F(UnsavedWork, IsOfferedAtTheNextStart)
{
    type("ShopNameTxt", u"Moss"_s);
    click("ShopTaxesSBtn");
    crash();
    prompts.answerYesNo(title, question, true);
    start();
    EXPECT_EQ(window->parts().CategoriesAndProductsTree->nodes().rootNode()->text, u"Moss"_s);
    EXPECT_EQ(find<QLineEdit>("ShopNameTxt")->text(), u"Moss"_s);
    EXPECT_TRUE(isThere());
    trigger("mnuSaveShop");
    EXPECT_FALSE(isThere());
    window.reset();
    start();
    EXPECT_EQ(window->session().shop->name, u"Moss"_s);
}

TEST_F(UnsavedWork, ThatTheOwnerDoesNotWantIsSetAside)
{
    const QString name = window->session().shop->name;
    type("ShopNameTxt", u"Moss"_s);
    click("ShopTaxesSBtn");
    const QByteArray kept = unsaved();
    crash();
    prompts.answerYesNo(title, question, false);
    start();
    EXPECT_EQ(window->session().shop->name, name);
    EXPECT_FALSE(isThere());
    EXPECT_EQ(fileBytes(files.folder().oldUnsavedShopFile()), kept);
    window.reset();
    start(); // asks no more
}

TEST_F(UnsavedWork, OfASecondWindowIsNone)
{
    type("ShopNameTxt", u"Moss"_s);
    click("ShopTaxesSBtn");
    crash();
    const QByteArray kept = unsaved();
    window = startProgram({files.folder(), prompts, clock, errors, [this] { ++restarts; }, UnsavedShop::Window::Second},
                          [this](QWidget* parent) { return makePreview(parent); });
    letBePainted(*window);
    type("ShopNameTxt", u"Fern"_s);
    click("ShopTaxesSBtn");
    EXPECT_EQ(unsaved(), kept);
    trigger("mnuSaveShop");
    EXPECT_TRUE(saved().contains("<Name>Fern</Name>"));
    prompts.answerYesNoCancel(title, exitQuestion, PromptAnswer::No);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(unsaved(), kept);
}

} // namespace
