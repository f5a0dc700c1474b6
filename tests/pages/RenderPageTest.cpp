#include "pages/RenderPage.h"

#include "pages/PagesTest.h"

using namespace Qt::StringLiterals;

namespace {

using RenderPageTest = PagesTest;

TEST_F(RenderPageTest, ACustomPageHasItsTextUnchangedAndNothingElse)
{
    const QString text = u"<p>Über uns: <!--:shop_name:--> & mehr</p>\r\n"_s;
    const auto page = addCustomPage(u"About"_s, text);
    EXPECT_EQ(dumpOf(u"custompage"_s, page), u"page_text = "_s + text + u'\n');
    addTemplate(u"custompage"_s, u"<!--:page_text:-->|<!--:shop_currency:-->|<!--:server:-->"_s);
    EXPECT_EQ(RenderPage(context, u"custompage"_s, page), text + u"|EUR|http://previewmode/"_s);
}

TEST_F(RenderPageTest, ACustomPageNeedsItsObject)
{
    EXPECT_EQ(errorOf([&] { variablesOf(u"custompage"_s); }), 91);
    EXPECT_EQ(errorOf([&] { variablesOf(u"custompage"_s, session.shop); }), 13);
}

TEST_F(RenderPageTest, ANameThatIsNoPageHasTheTwoVariablesOfAllPages)
{
    for (const QString& name : {u"Main"_s, u"CATEGORY"_s, u"layout"_s, u""_s, u"main "_s}) {
        EXPECT_EQ(dumpOf(name, session.shop), QString()) << name.toStdString();
    }
    addTemplate(u"own"_s, u"[<!--:server:-->][<!--:shop_name=none:-->]"_s);
    EXPECT_EQ(RenderPage(context, u"own"_s, {}), u"[http://previewmode/][none]"_s);
}

TEST_F(RenderPageTest, ThePageIsFilledByTheExactNameButTheTemplateIsFoundInAnyCase)
{
    addTemplate(u"main"_s, u"<!--:shop_name=nothing:-->"_s);
    EXPECT_EQ(RenderPage(context, u"main"_s, session.shop), u"Corner Shop"_s);
    EXPECT_EQ(RenderPage(context, u"MAIN"_s, session.shop), u"nothing"_s);
}

TEST_F(RenderPageTest, AnAbsentTemplateFailsThePage)
{
    EXPECT_EQ(errorOf([&] { RenderPage(context, u"main"_s, session.shop); }), 5);
}

TEST_F(RenderPageTest, ATemplateThatUsesAListAsATextFailsThePage)
{
    addTemplate(u"main"_s, u"<!--:categories:-->"_s);
    EXPECT_EQ(errorOf([&] { RenderPage(context, u"main"_s, session.shop); }), 13);
}

TEST_F(RenderPageTest, AnErrorNamesThePageAndItsObject)
{
    const auto product = addProduct(u"7"_s, u"Teapot"_s, u"1"_s, addCategory(u"2"_s, u"Cups"_s));
    EXPECT_EQ(circumstancesOf([&] { RenderPage(context, u"product"_s, product); }),
              (QStringList{u"The template \"product.html\" could not be read."_s,
                           u"The page \"product\" of \"Teapot\" was being made."_s}));
    addTemplate(u"main"_s, u"<!--:categories:-->"_s);
    EXPECT_EQ(circumstancesOf([&] { RenderPage(context, u"main"_s, session.shop); }),
              QStringList{u"The page \"main\" was being made."_s});
}

TEST_F(RenderPageTest, WithoutACartTheErrorSaysWhyItIsGone)
{
    addTemplate(u"cart"_s, u"-"_s);
    session.Cart.reset();
    EXPECT_EQ(circumstancesOf([&] { RenderPage(context, u"cart"_s, {}); }),
              (QStringList{
                  u"The cart is gone since the closing of the program was cancelled. The next start has one again."_s,
                  u"The page \"cart\" was being made."_s}));
}

TEST_F(RenderPageTest, ADiscountByBandsWithoutAPriceIsNamed)
{
    const auto category = addCategory(u"2"_s, u"Cups"_s);
    const auto product = addProduct(u"7"_s, u"Teapot"_s, {}, category);
    product->Price()->Discount()->Status = DiscountStatus::Inherit;
    auto bands = std::make_shared<clsDependedDiscounts>();
    bands->Add(u"1"_s, u"5"_s, u"10"_s);
    product->Price()->Discount()->ParentDependDiscounts = bands;
    addTemplate(u"product"_s, u"-"_s);
    EXPECT_EQ(circumstancesOf([&] { RenderPage(context, u"product"_s, product); }),
              (QStringList{u"\"\" is no number."_s,
                           u"A discount by bands of prices needs a price, and two limits in every row of its bands."_s,
                           u"The page \"product\" of \"Teapot\" was being made."_s}));
}

TEST_F(RenderPageTest, ARelatedProductThatIsGoneIsNamed)
{
    const auto product = addProduct(u"7"_s, u"Teapot"_s, u"1"_s, addCategory(u"2"_s, u"Cups"_s));
    product->setRelatedIds({u"77"_s});
    addTemplate(u"product"_s, u"-"_s);
    EXPECT_EQ(circumstancesOf([&] { RenderPage(context, u"product"_s, product); }).value(0),
              u"There is no product with the id \"77\" in the catalogue."_s);
}

} // namespace
