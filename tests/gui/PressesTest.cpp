// What each of the thirty buttons and each entry of the menus does when it is pressed: the panel, the toolbar, the mode
// with its panes, and what it logs.
#include "editors/Panel.h"
#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"
#include "support/WindowTest.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* shopNode = "ID_SHOP";
constexpr const char* categoryNode = "ID2";
constexpr const char* productNode = "ID20";
constexpr const char* modeLog = "End Sub SetMode";

struct Press
{
    const char* control;
    const char* from;  // the node that is clicked first, or the button of a mode
    const char* panel; // on screen afterwards, "" for none
    const char* toolbar;
    int mode;
    const char* log = ""; // what is logged, between bars
};

const Press presses[] = {
    {"SaveShopSBtn", shopNode, "ShopGeneralPnl", "ShopToolbar", 1},
    {"ProductCatalogSBtn", "ShopDesignSBtn", "ShopGeneralPnl", "ShopToolbar", 1, modeLog},
    {"ShopDesignSBtn", shopNode, "MainPagePnl", "ShopToolbar", 3, modeLog},
    {"PreviewBrowserSBtn", shopNode, "ShopGeneralPnl", "ShopToolbar", 2, modeLog},
    {"UploadShopSBtn", shopNode, "", "ShopToolbar", 1},
    {"ShopGeneralSBtn", shopNode, "ShopGeneralPnl", "ShopToolbar", 1},
    {"ShopDiscountSBtn", shopNode, "ShopDiscountPnl", "ShopToolbar", 1},
    {"ShopTaxesSBtn", shopNode, "ShopTaxesPnl", "ShopToolbar", 1},
    {"ShippingChargesSBtn", shopNode, "ShippingChargesPnl", "ShopToolbar", 1},
    {"ShopNewCategorySBtn", shopNode, "CategoryGeneralPnl", "CategoryToolbar", 1},
    {"CategoryGeneralSBtn", categoryNode, "CategoryGeneralPnl", "CategoryToolbar", 1},
    {"CategoryDiscountSBtn", categoryNode, "CategoryDiscountPnl", "CategoryToolbar", 1},
    {"NewCategorySBtn", categoryNode, "CategoryGeneralPnl", "CategoryToolbar", 1},
    {"NewProductSBtn", categoryNode, "ProductGeneralPnl", "ProductToolbar", 1},
    {"RemoveCategorySBtn", categoryNode, "ShopGeneralPnl", "ShopToolbar", 1},
    {"ProductGeneralSBtn", productNode, "ProductGeneralPnl", "ProductToolbar", 1},
    {"ProductDiscountSBtn", productNode, "ProductDiscountPnl", "ProductToolbar", 1},
    {"ProductPriceSbtn", productNode, "ProductsMultipricePnl", "ProductToolbar", 1},
    {"ProductRelatedSBtn", productNode, "ProductsRelatedPnl", "ProductToolbar", 1},
    {"RemoveProductSBtn", productNode, "CategoryGeneralPnl", "CategoryToolbar", 1},
    {"MainPageDesignSBtn", "ShopDesignSBtn", "MainPagePnl", "ShopToolbar", 3},
    {"HeaderDesignSBtn", "ShopDesignSBtn", "HeaderManagerPnl", "ShopToolbar", 3},
    {"FooterDesignSBtn", "ShopDesignSBtn", "FooterManagerPnl", "ShopToolbar", 3},
    {"MenuDesignSBtn", "ShopDesignSBtn", "MenuManagerPnl", "ShopToolbar", 3},
    {"CategoryPageDesignSBtn", "ShopDesignSBtn", "CategoryPageManagerPnl", "ShopToolbar", 3},
    {"ProductPageDesignSBtn", "ShopDesignSBtn", "ProductPageManagerPnl", "ShopToolbar", 3},
    {"SearchPageDesignSBtn", "ShopDesignSBtn", "SearchPageManagerPnl", "ShopToolbar", 3},
    {"CustomPagesDesignSBtn", "ShopDesignSBtn", "CustomPagesManagerPnl", "ShopToolbar", 3},
    {"ShoppingCartPageDesignSBtn", "ShopDesignSBtn", "ShoppingCartPageManagerPnl", "ShopToolbar", 3},
    {"BuyingFormDesignSBtn", "ShopDesignSBtn", "BuyingFormPnl", "ShopToolbar", 3},
    {"mnuSaveShop", categoryNode, "CategoryGeneralPnl", "CategoryToolbar", 1},
    {"mnuUpload", categoryNode, "CategoryGeneralPnl", "CategoryToolbar", 1},
    {"mnuImport", categoryNode, "CategoryGeneralPnl", "CategoryToolbar", 1},
    {"mnuBackUp", categoryNode, "CategoryGeneralPnl", "CategoryToolbar", 1},
    {"mnuRestore", categoryNode, "CategoryGeneralPnl", "CategoryToolbar", 1},
    {"mnuProductsCatalog", "PreviewBrowserSBtn", "ShopGeneralPnl", "ShopToolbar", 1, modeLog},
    {"mnuShopDesign", productNode, "MainPagePnl", "ProductToolbar", 3, modeLog},
    {"mnuShopPreview", productNode, "ProductGeneralPnl", "ProductToolbar", 2, modeLog},
    {"mnuAddCategory", shopNode, "CategoryGeneralPnl", "CategoryToolbar", 1},
    {"mnuAddProduct", categoryNode, "ProductGeneralPnl", "ProductToolbar", 1},
    {"mnuRemoveProduct", productNode, "CategoryGeneralPnl", "CategoryToolbar", 1},
    {"mnuRemoveCategory", categoryNode, "ShopGeneralPnl", "ShopToolbar", 1},
    {"mnuDuplicateProduct", productNode, "ProductGeneralPnl", "ProductToolbar", 1},
};

void PrintTo(const Press& press, std::ostream* out)
{
    *out << press.control;
}

class Presses : public WindowTest, public testing::WithParamInterface<Press>
{
protected:
    void SetUp() override
    {
        useSampleShop();
        start();
    }

    // Answers to what the control asks: those that leave the shop as it is, and Yes to a removal.
    void answerQuestions(const QString& control)
    {
        if (control == u"UploadShopSBtn"_s) {
            prompts.answerYesNo(u"Ambrel eCommerce Software"_s, u"Do you want save changes?"_s, false);
        } else if (control == u"RemoveCategorySBtn"_s || control == u"mnuRemoveCategory"_s) {
            prompts.answerYesNo(u"Warning"_s, u"Are you sure you want to remove this category"_s, true);
        } else if (control == u"RemoveProductSBtn"_s || control == u"mnuRemoveProduct"_s) {
            prompts.answerYesNo(u"Warning"_s, u"Are you sure you want to remove this product"_s, true);
        } else if (control == u"mnuImport"_s || control == u"mnuRestore"_s) {
            prompts.answerFile(QString());
        } else if (control == u"mnuBackUp"_s) {
            prompts.answerText(u"Backing up"_s, u"Enter file name"_s, std::nullopt);
        }
        if (control == u"UploadShopSBtn"_s || control == u"mnuUpload"_s) {
            QTimer::singleShot(0, window.get(), [] {
                auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                ASSERT_NE(dialog, nullptr);
                dialog->reject();
            });
        }
    }

    // Presses a button, or opens the entry's menu with the mouse and presses the entry.
    void press(const char* control)
    {
        if (!QLatin1String(control).startsWith("mnu"_L1)) {
            click(control);
            return;
        }
        auto* entry = find<QAction>(control);
        QMenu* menu = nullptr;
        for (const char* name : {"mnuShop", "mnuTools", "mnuPopUp"}) {
            menu = find<QMenu>(name)->actions().contains(entry) ? find<QMenu>(name) : menu;
        }
        ASSERT_NE(menu, nullptr);
        if (menu->objectName() == u"mnuPopUp"_s) {
            QTest::mouseClick(window->parts().CategoriesAndProductsTree->viewport(), Qt::RightButton, {}, QPoint(5, 5));
        } else {
            QTest::mouseClick(window->menuBar(), Qt::LeftButton, {},
                              window->menuBar()->actionGeometry(menu->menuAction()).center());
        }
        ASSERT_TRUE(menu->isVisible());
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    }
};

INSTANTIATE_TEST_SUITE_P(Controls, Presses, testing::ValuesIn(presses),
                         [](const auto& row) { return std::string(row.param.control); });

TEST_P(Presses, OpenTheirPanelToolbarAndMode)
{
    const Press& row = GetParam();
    if (QLatin1String(row.from).startsWith("ID"_L1)) {
        clickNode(QLatin1String(row.from));
    } else {
        click(row.from);
    }
    answerQuestions(QLatin1String(row.control));
    const qsizetype lines = logLines().size();
    press(row.control);

    EXPECT_EQ(window->VisibleFrame ? window->VisibleFrame->objectName() : QString(), QLatin1String(row.panel));
    EXPECT_EQ(window->CurrentToolbar->objectName(), QLatin1String(row.toolbar));
    EXPECT_EQ(window->WorkMode, row.mode);
    for (const char* part : {"CategoriesAndProductsTree", "ContextToolbarFrame", "MainFrame"}) {
        EXPECT_EQ(isShown(part), row.mode == MainForm::CatalogueMode) << part;
    }
    EXPECT_EQ(isShown("PreviewBrowser"), row.mode == MainForm::PreviewMode);
    for (const char* part : {"ShopDesignMenuFrame", "ShopDesignFrame"}) {
        EXPECT_EQ(isShown(part), row.mode == MainForm::DesignMode) << part;
    }
    EXPECT_EQ(logLines().mid(lines).join(u'|'), QLatin1String(row.log));
    EXPECT_TRUE(errors.numbers.empty());
    // From now on clicks of these two buttons only gather.
    if (qstrcmp(row.control, "SaveShopSBtn") == 0 || qstrcmp(row.control, "PreviewBrowserSBtn") == 0) {
        EXPECT_EQ(find<ShortcartButton>(row.control)->Code, 10);
    }
}

// The keyboard alone -------------------------------------------------------------------------------------------------

class Keyboard : public Presses
{
protected:
    // Presses Tab until the widget of that name has the focus.
    void tabTo(const char* name)
    {
        for (int step = 0; step < 200; ++step) {
            if (window->focusWidget() && window->focusWidget()->objectName() == QLatin1String(name)) {
                return;
            }
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        }
        FAIL() << "Tab does not lead to " << name;
    }
    void typeOver(const QString& text) const
    {
        QTest::keySequence(window->focusWidget(), QKeySequence::SelectAll);
        QTest::keyClicks(window->focusWidget(), text);
    }
    // Opens a menu and chooses an entry by their mnemonics.
    void takeEntry(Qt::Key menu, Qt::Key entry)
    {
        // No window manager does this here when the last menu has closed.
        QApplication::setActiveWindow(window.get());
        QTest::keyClick(window.get(), menu, Qt::AltModifier);
        QWidget* popUp = QApplication::activePopupWidget();
        ASSERT_NE(popUp, nullptr);
        QTest::keyClick(popUp, entry);
    }
};

TEST_F(Keyboard, AloneMakesACategoryWithAProductAndSavesThem)
{
    window->parts().CategoriesAndProductsTree->setFocus();
    QTest::keyClick(window->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(window->SelectedNode->key, QLatin1String(categoryNode));
    EXPECT_TRUE(isShown("CategoryGeneralPnl"));
    tabTo("NewCategorySBtn");
    QTest::keyClick(window->focusWidget(), Qt::Key_Space);
    tabTo("CategoryNameTxt");
    typeOver(u"Kettles"_s);
    tabTo("imgButtonSubmit");
    QTest::keyClick(window->focusWidget(), Qt::Key_Space);
    EXPECT_EQ(window->SelectedNode->text, u"Kettles"_s);

    tabTo("NewProductSBtn");
    QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    tabTo("ProductNameTxt");
    typeOver(u"Copper kettle"_s);
    tabTo("ProductPriceTxt");
    typeOver(u"80"_s);

    takeEntry(Qt::Key_S, Qt::Key_S);
    const QByteArray saved = fileBytes(files.path(u"shop.xml"_s));
    EXPECT_TRUE(saved.contains("<Name>Kettles</Name>"));
    EXPECT_TRUE(saved.contains("<Name>Copper kettle</Name>"));

    takeEntry(Qt::Key_T, Qt::Key_D);
    EXPECT_EQ(window->WorkMode, MainForm::DesignMode);
    takeEntry(Qt::Key_T, Qt::Key_P);
    EXPECT_EQ(window->WorkMode, MainForm::PreviewMode);
    EXPECT_EQ(preview->documents.size(), 1);
    takeEntry(Qt::Key_T, Qt::Key_T);
    EXPECT_EQ(window->WorkMode, MainForm::CatalogueMode);
}

} // namespace
