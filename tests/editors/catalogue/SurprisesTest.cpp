// What ends the program in the middle of ordinary work, deliberately. docs/guide/surprises.md warns of each of these.
#include "PanelTest.h"
#include "design/ShopDesignClass.h"
#include "design/clsSelectedCustomPages.h"
#include "template_engine/Templates_Set.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

class Surprises : public PanelTest
{
protected:
    void SetUp() override
    {
        PanelTest::SetUp();
        window->CurrentTemplatesSet().Path = QStringLiteral(TARNWICK_SOURCE_DIR "/app/templates/");
        window->CurrentTemplatesSet().parseTemplates();
    }
    // The number of the error that a link of the preview ends with, 0 when the page comes.
    int errorAt(const QString& query)
    {
        EXPECT_TRUE(errors.numbers.empty());
        return errorOf([&] { preview->navigation->act(u"http://previewmode/"_s + query); });
    }
    // Gives the shop a discount by price, with the cells of its one row, and lets the product "Sencha" inherit it.
    void inheritBands(const QStringList& row)
    {
        trigger("mnuProductsCatalog");
        click("ShopDiscountSBtn");
        press("DependOpt");
        addRow(window->VisibleFrame->findChild<CustomGrid*>(), row);
        submit();
        clickNode(u"ID2"_s);
        click("CategoryDiscountSBtn");
        press("InheritOpt");
        submit();
        clickNode(u"ID4"_s);
        click("ProductDiscountSBtn");
        press("InheritOpt");
        submit();
        click("ProductGeneralSBtn");
    }
};

TEST_F(Surprises, AfterCancelAtTheExitThePreviewHasNoCart)
{
    prompts.answerYesNoCancel(u"Ambrel eCommerce Software"_s, u"Do you want save changes?"_s, PromptAnswer::Cancel);
    EXPECT_FALSE(window->close());
    click("PreviewBrowserSBtn");
    EXPECT_EQ(errors.numbers, std::vector<int>{91});
}

// A panel that looks into the cart: the node to click ahead of its button, if any.
struct CartPanel
{
    const char* node;
    const char* button;
};

class SurprisesOfTheCart : public Surprises, public testing::WithParamInterface<CartPanel>
{
};

TEST_P(SurprisesOfTheCart, AfterCancelAtTheExitThePanelMissesIt)
{
    if (const QString node = QString::fromLatin1(GetParam().node); !node.isEmpty()) {
        clickNode(node);
    }
    prompts.answerYesNoCancel(u"Ambrel eCommerce Software"_s, u"Do you want save changes?"_s, PromptAnswer::Cancel);
    EXPECT_FALSE(window->close());
    click(GetParam().button);
    EXPECT_EQ(errors.numbers, std::vector<int>{91});
    EXPECT_THAT(
        errors.circumstances,
        testing::Contains(
            u"The cart is gone since the closing of the program was cancelled. The next start has one again."_s));
}

INSTANTIATE_TEST_SUITE_P(Panels, SurprisesOfTheCart,
                         testing::Values(CartPanel{"", "ShopDiscountSBtn"}, CartPanel{"ID2", "CategoryDiscountSBtn"},
                                         CartPanel{"ID4", "ProductDiscountSBtn"}, CartPanel{"ID4", "ProductPriceSbtn"}),
                         [](const auto& row) { return std::string(row.param.button); });

TEST_F(Surprises, ADeletedPageThatAMenuShowsIsALinkToNothing)
{
    shop().ShopDesign->Pages(PageSelection::HeaderCustomPageSelected)->Add(u"About"_s);
    click("PreviewBrowserSBtn");
    EXPECT_EQ(errorAt(u"ACTION=custompage.php&name=About"_s), 5);
}

TEST_F(Surprises, AProductOfARemovedCategoryIsMissedWhereItIsRelated)
{
    product("4")->setRelatedIds({u"5"_s});
    clickNode(u"ID3"_s);
    prompts.answerYesNo(u"Warning"_s, u"Are you sure you want to remove this category"_s, true);
    click("RemoveCategorySBtn");
    click("PreviewBrowserSBtn");
    EXPECT_EQ(errorAt(u"ACTION=product.php&id=4"_s), 5);
}

TEST_F(Surprises, AnInheritedDiscountByPriceNeedsAPrice)
{
    inheritBands({u"5"_s, u"50"_s, u"10"_s});
    EXPECT_EQ(errorAt(u"ACTION=product.php&id=4"_s), 0);
    trigger("mnuProductsCatalog");
    clickNode(u"ID4"_s);
    type("ProductPriceTxt", QString());
    submit();
    EXPECT_EQ(errorAt(u"ACTION=product.php&id=4"_s), 13);
}

TEST_F(Surprises, ARowOfADiscountByPriceThatIsLeftEmptyIsNoNumber)
{
    inheritBands({});
    EXPECT_EQ(errorAt(u"ACTION=product.php&id=4"_s), 13);
}

} // namespace
