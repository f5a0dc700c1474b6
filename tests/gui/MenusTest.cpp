// The menu bar, the pop-up menu and the keys of the real window.
#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"
#include "support/WindowTest.h"

#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class Menus : public WindowTest
{
protected:
    void SetUp() override
    {
        useShop("<Version>1.2.0</Version><MaxProductId>9</MaxProductId><Name>Fern</Name><SelectedCountries/>"
                "<Category><Id>2</Id><Name>Tea</Name>"
                "<Product><Id>4</Id><Name>Sencha</Name><Related/></Product></Category>");
        start();
    }

    // The names of the entries that the pop-up offers after a right click into the tree.
    QStringList offered()
    {
        CatalogueTree* tree = window->parts().CategoriesAndProductsTree;
        QTest::mouseClick(tree->viewport(), Qt::RightButton, {}, QPoint(5, 5));
        auto* menu = find<QMenu>("mnuPopUp");
        EXPECT_TRUE(menu->isVisible());
        QStringList names;
        for (const QAction* action : menu->actions()) {
            if (action->isVisible()) {
                names << action->objectName();
            }
        }
        menu->hide();
        return names;
    }
};

TEST_F(Menus, HoldTheirEntriesInOrder)
{
    const auto entries = [this](const char* menu) {
        QStringList texts;
        for (const QAction* action : find<QMenu>(menu)->actions()) {
            texts << action->objectName() + u'|' + (action->isSeparator() ? QString() : action->text());
        }
        return texts;
    };
    EXPECT_EQ(entries("mnuShop"),
              (QStringList{u"mnuSaveShop|&Save"_s, u"mnuUpload|&Upload"_s, u"itmSep|"_s, u"mnuImport|Import"_s,
                           u"itmSep2|"_s, u"mnuBackUp|BackUp"_s, u"mnuRestore|Restore"_s}));
    EXPECT_EQ(entries("mnuTools"), (QStringList{u"mnuProductsCatalog|Products Ca&talog"_s,
                                                u"mnuShopDesign|Shop &Design"_s, u"mnuShopPreview|Shop &Preview"_s}));
    EXPECT_EQ(entries("mnuPopUp"),
              (QStringList{u"mnuAddCategory|Add Category"_s, u"mnuAddProduct|Add Product"_s,
                           u"mnuRemoveCategory|Remove Category"_s, u"mnuRemoveProduct|Remove Product"_s,
                           u"mnuDuplicateProduct|Duplicate Product"_s}));
    EXPECT_EQ(find<QMenu>("mnuShop")->title(), u"&Shop"_s);
    EXPECT_EQ(find<QMenu>("mnuTools")->title(), u"&Tools"_s);
    EXPECT_EQ(find<QMenu>("mnuPopUp")->title(), u"PopUp"_s);
}

TEST_F(Menus, OfferInThePopUpMenuWhatFitsTheActiveObject)
{
    EXPECT_EQ(offered(), QStringList{u"mnuAddCategory"_s});
    clickNode(u"ID2"_s);
    EXPECT_EQ(offered(), (QStringList{u"mnuAddCategory"_s, u"mnuAddProduct"_s, u"mnuRemoveCategory"_s}));
    clickNode(u"ID4"_s);
    EXPECT_EQ(offered(), (QStringList{u"mnuRemoveProduct"_s, u"mnuDuplicateProduct"_s}));
}

TEST_F(Menus, OpenThePopUpAtThePointerWhenTheRightButtonIsReleased)
{
    QWidget* surface = window->parts().CategoriesAndProductsTree->viewport();
    auto* menu = find<QMenu>("mnuPopUp");
    QTest::mousePress(surface, Qt::RightButton, {}, QPoint(30, 8));
    EXPECT_FALSE(menu->isVisible());
    QTest::mouseRelease(surface, Qt::RightButton, {}, QPoint(40, 12));
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(menu->pos(), surface->mapToGlobal(QPoint(40, 12)));
    menu->hide();
}

TEST_F(Menus, AddFromThePopUp)
{
    clickNode(u"ID2"_s);
    trigger("mnuAddCategory");
    EXPECT_EQ(window->SelectedNode->text, u"New Category"_s);
    EXPECT_TRUE(isShown("CategoryGeneralPnl"));
    trigger("mnuAddProduct");
    EXPECT_EQ(window->SelectedNode->text, u"New Product"_s);
    EXPECT_TRUE(isShown("ProductGeneralPnl"));
    trigger("mnuDuplicateProduct");
    EXPECT_EQ(window->SelectedNode->text, u"New Product copy"_s);
}

TEST_F(Menus, RemoveFromThePopUp)
{
    clickNode(u"ID4"_s);
    prompts.answerYesNo(u"Warning"_s, u"Are you sure you want to remove this product"_s, true);
    trigger("mnuRemoveProduct");
    EXPECT_EQ(window->SelectedNode->key, u"ID2"_s);
    prompts.answerYesNo(u"Warning"_s, u"Are you sure you want to remove this category"_s, true);
    trigger("mnuRemoveCategory");
    EXPECT_EQ(window->SelectedNode->key, u"ID_SHOP"_s);
}

// Closes the upload dialog as soon as it opens, and records what was on the screen then.
class UploadWatch
{
public:
    explicit UploadWatch(MainForm& window)
    {
        QTimer::singleShot(0, &window, [this, &window] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            title = dialog->windowTitle();
            panelWasOpen = window.VisibleFrame != nullptr;
            dialog->reject();
        });
    }

    QString title;
    bool panelWasOpen = false;
};

TEST_F(Menus, ShowTheUploadWithoutAQuestion)
{
    const UploadWatch watch(*window);
    trigger("mnuUpload");
    EXPECT_EQ(watch.title, u"Uploading"_s);
    EXPECT_TRUE(watch.panelWasOpen);
}

TEST_F(Menus, CloseThePanelAndAskBeforeTheUploadOfTheButton)
{
    const QByteArray before = fileBytes(files.path(u"shop.xml"_s));
    prompts.answerYesNo(u"Ambrel eCommerce Software"_s, u"Do you want save changes?"_s, false);
    const UploadWatch watch(*window);
    click("UploadShopSBtn");
    EXPECT_EQ(watch.title, u"Uploading"_s);
    EXPECT_FALSE(watch.panelWasOpen);
    EXPECT_EQ(window->VisibleFrame, nullptr);
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), before);
}

// Records at each question whether a panel is open.
class WatchingPrompts : public RecordingPrompts
{
public:
    bool askYesNo(const QString& title, const QString& text) override
    {
        panelWasOpen.push_back(window->VisibleFrame != nullptr);
        return RecordingPrompts::askYesNo(title, text);
    }

    MainForm* window = nullptr;
    std::vector<bool> panelWasOpen; // at each question
};

TEST_F(Menus, CloseThePanelBeforeTheQuestionOfTheUploadButton)
{
    window.reset();
    WatchingPrompts watching;
    window = startProgram({files.folder(), watching, clock, errors, [] {}},
                          [this](QWidget* parent) { return makePreview(parent); });
    window->activateWindow();
    QCoreApplication::processEvents();
    watching.window = window.get();
    ASSERT_NE(window->VisibleFrame, nullptr);
    watching.answerYesNo(u"Ambrel eCommerce Software"_s, u"Do you want save changes?"_s, false);
    const UploadWatch watch(*window);
    click("UploadShopSBtn");
    EXPECT_EQ(watch.title, u"Uploading"_s);
    EXPECT_EQ(watching.panelWasOpen, std::vector<bool>{false});
    window.reset(); // it uses the prompts of this test
}

TEST_F(Menus, SaveBeforeTheUploadWhenTheAnswerIsYes)
{
    const QByteArray before = fileBytes(files.path(u"shop.xml"_s));
    prompts.answerYesNo(u"Ambrel eCommerce Software"_s, u"Do you want save changes?"_s, true);
    window->session().shop->name = u"Moss"_s;
    window->ShowFrame(nullptr, 0);
    window->session().shop->name = u"Moss"_s;
    bool saved = false;
    // How long the save takes depends on the machine, so wait for the dialog.
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, window.get(), [&] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            watch.stop();
            saved = fileBytes(files.path(u"shop.xml"_s)).contains("Moss");
            dialog->reject();
        }
    });
    watch.start(20);
    click("UploadShopSBtn");
    EXPECT_TRUE(saved);
    EXPECT_NE(fileBytes(files.path(u"shop.xml"_s)), before);
}

TEST_F(Menus, AskForANameOfABackupAndMakeIt)
{
    prompts.answerText(u"Backing up"_s, u"Enter file name"_s, u"first"_s);
    writeFile(files.path(u"templates/main.html"_s), "text");
    writeFile(files.path(u"pictures/a.png"_s), "bytes");
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    trigger("mnuBackUp");
    EXPECT_TRUE(QFile::exists(files.path(u"backups/first.kvb"_s)));
}

TEST_F(Menus, StartTheProgramAgainAfterARestore)
{
    writeFile(files.path(u"templates/main.html"_s), "text");
    prompts.answerText(u"Backing up"_s, u"Enter file name"_s, u"first"_s);
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    trigger("mnuBackUp");
    prompts.answerFile(files.path(u"backups/first.kvb"_s));
    prompts.expectMessage(u"Restoring"_s, u"Restore is completed.\r\nThe program will be restarted now."_s,
                          PromptIcon::Information);
    trigger("mnuRestore");
    EXPECT_EQ(restarts, 1);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(Menus, StayOpenWhenNoBackupIsChosen)
{
    prompts.answerFile(QString());
    trigger("mnuRestore");
    EXPECT_EQ(restarts, 0);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(Menus, AnswerAltAndLeftInThePreviewOnly)
{
    QTest::keyClick(window.get(), Qt::Key_Left, Qt::AltModifier);
    trigger("mnuShopPreview");
    errors.numbers.clear(); // there are no templates here
    prompts.expectMessage(u"Ambrel eCommerce Software"_s, u"SS"_s);
    QTest::keyClick(window.get(), Qt::Key_Left, Qt::AltModifier);
    QTest::keyClick(window.get(), Qt::Key_Left);
}

TEST_F(Menus, ClickAToolbarButtonWithSpaceAndEnter)
{
    auto* taxes = find<ShortcartButton>("ShopTaxesSBtn");
    taxes->setFocus();
    QTest::keyClick(taxes, Qt::Key_Space);
    EXPECT_TRUE(isShown("ShopTaxesPnl"));
    auto* discount = find<ShortcartButton>("ShopDiscountSBtn");
    discount->setFocus();
    QTest::keyClick(discount, Qt::Key_Return);
    EXPECT_TRUE(isShown("ShopDiscountPnl"));
}

TEST_F(Menus, NeverReachAMainButtonWithTab)
{
    find<ShortcartButton>("ShopTaxesSBtn")->setFocus();
    for (int step = 0; step < 100; ++step) {
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        ASSERT_NE(window->focusWidget(), nullptr);
        EXPECT_NE(window->focusWidget()->parentWidget()->objectName(), u"ToolbarFrame"_s);
    }
    EXPECT_EQ(window->WorkMode, MainForm::CatalogueMode);
}

TEST_F(Menus, DoNotTakeFocusThatReturnsWithTheWindowForAPress)
{
    click("ProductCatalogSBtn");
    const qsizetype lines = logLines().size();
    auto* catalogue = find<ShortcartButton>("ProductCatalogSBtn");
    for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::OtherFocusReason}) {
        catalogue->clearFocus();
        catalogue->setFocus(reason);
    }
    EXPECT_EQ(logLines().size(), lines);
}

TEST_F(Menus, ShowWhichToolbarButtonHasTheFocus)
{
    auto* taxes = find<ShortcartButton>("ShopTaxesSBtn");
    find<ShortcartButton>("ShopDiscountSBtn")->setFocus();
    const QImage without = taxes->grab().toImage();
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(window->focusWidget(), taxes);
    EXPECT_TRUE(taxes->grab().toImage() != without);
}

} // namespace
