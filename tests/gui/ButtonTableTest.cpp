// The thirty buttons and their panels, compared with a second list.
#include "editors/Panel.h"
#include "shell/ShortcartButton.h"
#include "support/WindowTest.h"

#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct ExpectedButton
{
    const char* name;
    const char* frame;
    const char* title;
    const char* panel; // "" for none
    int code;
};

const ExpectedButton expectedButtons[] = {
    {"SaveShopSBtn", "ToolbarFrame", "Save The Shop", "", 0},
    {"ProductCatalogSBtn", "ToolbarFrame", "Products Catalog", "ShopGeneralPnl", 0},
    {"ShopDesignSBtn", "ToolbarFrame", "The Shop Design and Layout", "MainPagePnl", 0},
    {"PreviewBrowserSBtn", "ToolbarFrame", "The Shop Preview", "", 0},
    {"UploadShopSBtn", "ToolbarFrame", "Upload The Shop", "", 0},
    {"ShopGeneralSBtn", "ShopToolbar", "Shop general properties", "ShopGeneralPnl", 0},
    {"ShopDiscountSBtn", "ShopToolbar", "Shop discount properties", "ShopDiscountPnl", 0},
    {"ShopTaxesSBtn", "ShopToolbar", "Taxes", "ShopTaxesPnl", 0},
    {"ShippingChargesSBtn", "ShopToolbar", "Shipping charges", "ShippingChargesPnl", 0},
    {"ShopNewCategorySBtn", "ShopToolbar", "Add new category", "CategoryGeneralPnl", 1},
    {"CategoryGeneralSBtn", "CategoryToolbar", "Category general properties", "CategoryGeneralPnl", 0},
    {"CategoryDiscountSBtn", "CategoryToolbar", "Category discount properties", "CategoryDiscountPnl", 0},
    {"NewCategorySBtn", "CategoryToolbar", "Add new category", "CategoryGeneralPnl", 1},
    {"NewProductSBtn", "CategoryToolbar", "Add new product", "ProductGeneralPnl", 2},
    {"RemoveCategorySBtn", "CategoryToolbar", "Remove category", "CategoryGeneralPnl", 4},
    {"ProductGeneralSBtn", "ProductToolbar", "Product general properties", "ProductGeneralPnl", 0},
    {"ProductDiscountSBtn", "ProductToolbar", "Product discount properties", "ProductDiscountPnl", 0},
    {"ProductPriceSbtn", "ProductToolbar", "Multiple prices", "ProductsMultipricePnl", 0},
    {"ProductRelatedSBtn", "ProductToolbar", "Related products", "ProductsRelatedPnl", 0},
    {"RemoveProductSBtn", "ProductToolbar", "Remove product", "CategoryGeneralPnl", 3},
    {"MainPageDesignSBtn", "ShopDesignMenuFrame", "Main Page Design", "MainPagePnl", 0},
    {"HeaderDesignSBtn", "ShopDesignMenuFrame", "Header Design", "HeaderManagerPnl", 0},
    {"FooterDesignSBtn", "ShopDesignMenuFrame", "Footer Design", "FooterManagerPnl", 0},
    {"MenuDesignSBtn", "ShopDesignMenuFrame", "Menu Design", "MenuManagerPnl", 0},
    {"CategoryPageDesignSBtn", "ShopDesignMenuFrame", "Category Page Design", "CategoryPageManagerPnl", 0},
    {"ProductPageDesignSBtn", "ShopDesignMenuFrame", "Product Page Design", "ProductPageManagerPnl", 0},
    {"SearchPageDesignSBtn", "ShopDesignMenuFrame", "Search Page Design", "SearchPageManagerPnl", 0},
    {"CustomPagesDesignSBtn", "ShopDesignMenuFrame", "Custom Page Design", "CustomPagesManagerPnl", 0},
    {"ShoppingCartPageDesignSBtn", "ShopDesignMenuFrame", "Shopping Cart Page Design", "ShoppingCartPageManagerPnl", 0},
    {"BuyingFormDesignSBtn", "ShopDesignMenuFrame", "Buying  Form Design", "BuyingFormPnl", 0},
};

class Buttons : public WindowTest
{
protected:
    void SetUp() override
    {
        useSampleShop();
        start();
    }
};

TEST_F(Buttons, StandInTheirFramesWithTitlesPanelsAndCodes)
{
    ASSERT_EQ(window->findChildren<ShortcartButton*>().size(), 30);
    const QStringList lines = logLines();
    qsizetype line = lines.indexOf(u"Countries loaded"_s);
    for (const ExpectedButton& expected : expectedButtons) {
        SCOPED_TRACE(expected.name);
        auto* button = find<ShortcartButton>(expected.name);
        EXPECT_EQ(button->parentWidget()->objectName(), QLatin1String(expected.frame));
        EXPECT_EQ(button->ShortCartTitle(), QLatin1String(expected.title));
        EXPECT_EQ(button->findChild<QLabel*>(u"TitleLbl"_s)->text(), QLatin1String(expected.title));
        EXPECT_EQ(button->findChild<QLabel*>(u"IconImg"_s)->toolTip(), QLatin1String(expected.title));
        EXPECT_FALSE(button->findChild<QLabel*>(u"IconImg"_s)->pixmap().isNull());
        EXPECT_EQ(button->accessibleName(), QLatin1String(expected.title));
        const Panel* panel = button->ShortCartFrameToActivate;
        EXPECT_EQ(panel ? panel->objectName() : QString(), QLatin1String(expected.panel));
        EXPECT_EQ(button->Code, expected.code);
        EXPECT_EQ(lines[++line], u"UserControl "_s + QLatin1String(expected.title) + u" loaded"_s);
    }
}

TEST_F(Buttons, ThatShowAPanelOfTheCatalogueShowIt)
{
    for (const ExpectedButton& expected : expectedButtons) {
        if (expected.code == 0 && qstrcmp(expected.frame, "ShopToolbar") == 0) {
            SCOPED_TRACE(expected.name);
            click(expected.name);
            EXPECT_TRUE(isShown(expected.panel));
            EXPECT_EQ(window->VisibleFrame->objectName(), QLatin1String(expected.panel));
        }
    }
}

TEST_F(Buttons, OfTheDesignMenuShowTheirPanels)
{
    click("ShopDesignSBtn");
    for (const ExpectedButton& expected : expectedButtons) {
        if (qstrcmp(expected.frame, "ShopDesignMenuFrame") == 0) {
            SCOPED_TRACE(expected.name);
            click(expected.name);
            EXPECT_TRUE(isShown(expected.panel));
            EXPECT_EQ(window->VisibleFrame->objectName(), QLatin1String(expected.panel));
        }
    }
}

TEST_F(Buttons, AreAlsoClickedByActivate)
{
    auto* button = find<ShortcartButton>("ShopTaxesSBtn");
    bool panelAtTheClick = false;
    int clicks = 0;
    QObject::connect(button, &ShortcartButton::Click, button, [&] {
        panelAtTheClick = isShown("ShopTaxesPnl"); // the panel first, then the button's own click
        ++clicks;
    });
    button->Activate();
    EXPECT_TRUE(isShown("ShopTaxesPnl"));
    EXPECT_TRUE(panelAtTheClick);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Buttons, ActOnAPressOnTheirWordsAsOnThePicture)
{
    int clicks = 0;
    auto* button = find<ShortcartButton>("ShopTaxesSBtn");
    QObject::connect(button, &ShortcartButton::Click, button, [&] { ++clicks; });
    const QPoint words = button->findChild<QLabel*>(u"TitleLbl"_s)->geometry().center();
    QWidget* under = button->childAt(words);
    ASSERT_NE(under, nullptr);
    QTest::mouseClick(under, Qt::LeftButton, Qt::NoModifier, under->mapFrom(button, words));
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(isShown("ShopTaxesPnl"));
}

TEST_F(Buttons, LeadToAllPanelsButTwoWhichStayHidden)
{
    for (const char* name : {"ShopsShippingPnl", "ProductShippingCostsPnl"}) {
        EXPECT_TRUE(find<Panel>(name)->isHidden());
    }
}

} // namespace
