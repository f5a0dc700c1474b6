#include "pages/PagesTest.h"
#include "pages/RenderPage.h"

using namespace Qt::StringLiterals;

namespace {

class ProductPageTest : public PagesTest
{
protected:
    QString page(const QString& key) { return valueOf(u"product"_s, sencha, key); }

    // What stands on the page ahead of the price, and behind it.
    static QString headDump()
    {
        return u"id = 4\n"
               "name = Sencha\n"
               "description = <b>Fresh</b> and green\n"
               "ForSale = True (boolean)\n"
               "measuring_unit = 100 g\n"
               "product_link = http://maker/\n"_s +
               imageDump(u"PRODUCTPAGE_IMAGE"_s, u"TEXT"_s, u"sencha.png"_s, u"a cup"_s, 16, 12) +
               u"Width = 16 (integer)\n"
               "Height = 12 (integer)\n"_s;
    }
    static QString tailDump(const QString& related);
    void fillProduct();

    std::shared_ptr<CategoryClass> tea = addCategory(u"2"_s, u"Tea"_s);
    std::shared_ptr<CategoryClass> green = addCategory(u"3"_s, u"Green"_s, tea);
    std::shared_ptr<ProductClass> sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, green);
};

QString ProductPageTest::tailDump(const QString& related)
{
    return optionDump(
               {u"ProductPage_IncludePageHeader"_s, u"ProductPage_PageHeader"_s, u"ProductPage_IncludeBreadcrumb"_s,
                u"ProductPage_IncludeImage"_s, u"ProductPage_IncludeAddToCart"_s, u"ProductPage_IncludeName"_s,
                u"ProductPage_IncludeDescription"_s, u"ProductPage_IncludePrice"_s, u"ProductPage_IncludeOldPrice"_s,
                u"ProductPage_IncludeNewPrice"_s, u"ProductPage_IncludeTaxes"_s, u"ProductPage_IncludeShipping"_s,
                u"ProductPage_IncludeRelated"_s, u"ProductPage_Advanced"_s}) +
           slotDump(u"PRODUCT_CART_BUTTON"_s) + related +
           u"breadcrumb:\n"
           "  row\n"
           "    name = Tea\n"
           "    id = 2\n"
           "    server = http://previewmode/\n"
           "  row\n"
           "    name = Green\n"
           "    id = 3\n"
           "    server = http://previewmode/\n"
           "shop_name = Corner Shop\n"
           "INCLUDE_PAGE_HEADER = <ProductPage_IncludePageHeader>\n"
           "INCLUDE_BREADCRUMB = <ProductPage_IncludeBreadcrumb>\n"
           "INCLUDE_IMAGE = <ProductPage_IncludeImage>\n"
           "INCLUDE_ADD_TO_CART = <ProductPage_IncludeAddToCart>\n"
           "INCLUDE_NAME = <ProductPage_IncludeName>\n"
           "INCLUDE_DESCRIPTION = <ProductPage_IncludeDescription>\n"
           "INCLUDE_PRICE = <ProductPage_IncludePrice>\n"
           "INCLUDE_OLD_PRICE = <ProductPage_IncludeOldPrice>\n"
           "INCLUDE_NEW_PRICE = <ProductPage_IncludeNewPrice>\n"
           "INCLUDE_TAXES = <ProductPage_IncludeTaxes>\n"
           "INCLUDE_SHIPPING = <ProductPage_IncludeShipping>\n"
           "INCLUDE_RELATED = <ProductPage_IncludeRelated>\n"_s;
}

void ProductPageTest::fillProduct()
{
    markOptions();
    markSlots();
    sencha->Description = u"<b>Fresh</b> and green"_s;
    sencha->Unit = u"100 g"_s;
    sencha->LINK = u"http://maker/"_s;
    setPicture(*sencha->selectedImage(), u"sencha.png"_s, 16, 12);
    sencha->selectedImage()->TextValue = u"a cup"_s;
    setDiscount(*sencha, u"50"_s);
}

TEST_F(ProductPageTest, AllVariablesOfASinglePriceStandInTheOrderOfAdding)
{
    fillProduct();
    sencha->setRelatedIds({u"4"_s});
    const QString expected = headDump() +
                             u"Product_PriceType = Single\n"
                             "price = 20 (object)\n"
                             "new_price = 10\n"_s +
                             tailDump(u"hasrelated = yes\n"
                                      "related:\n"
                                      "  row\n"
                                      "    rid = 4\n"
                                      "    rname = Sencha\n"
                                      "    server = http://previewmode/\n"_s);
    EXPECT_EQ(dumpOf(u"product"_s, sencha), expected);
}

TEST_F(ProductPageTest, AllVariablesOfMultiplePricesStandInTheOrderOfAdding)
{
    fillProduct();
    addVariant(*sencha, u"bag"_s, u"8"_s);
    addVariant(*sencha, u"tin"_s, u"12"_s);
    const QString expected = headDump() +
                             u"Product_PriceType = Multi\n"
                             "MultiplePrice:\n"
                             "  row\n"
                             "    PriceDescription = bag\n"
                             "    MPrice = 8\n"
                             "    shop_currency = EUR\n"
                             "    ProductPage_IncludeDescription = <ProductPage_IncludeDescription>\n"
                             "    first_price = 1\n"
                             "    Mnew_price = 4\n"
                             "    ProductPage_IncludeOldPrice = <ProductPage_IncludeOldPrice>\n"
                             "    ProductPage_IncludeNewPrice = <ProductPage_IncludeNewPrice>\n"
                             "    ProductPage_IncludePrice = <ProductPage_IncludePrice>\n"
                             "  row\n"
                             "    PriceDescription = tin\n"
                             "    MPrice = 12\n"
                             "    shop_currency = EUR\n"
                             "    ProductPage_IncludeDescription = <ProductPage_IncludeDescription>\n"
                             "    Mnew_price = 6\n"
                             "    ProductPage_IncludeOldPrice = <ProductPage_IncludeOldPrice>\n"
                             "    ProductPage_IncludeNewPrice = <ProductPage_IncludeNewPrice>\n"
                             "    ProductPage_IncludePrice = <ProductPage_IncludePrice>\n"_s +
                             tailDump(u"hasrelated = \n"_s);
    EXPECT_EQ(dumpOf(u"product"_s, sencha), expected);
}

TEST_F(ProductPageTest, TheDescriptionKeepsItsTagsAndIsNotCut)
{
    sencha->Description = u"<p>one <b>two</b> three</p>"_s;
    design().setOption(DesignOption::Category_Limit_Desc, u"1"_s);
    addTemplate(u"product"_s, u"<!--:description:-->"_s);
    EXPECT_EQ(RenderPage(context, u"product"_s, sencha), u"<p>one <b>two</b> three</p>"_s);
}

TEST_F(ProductPageTest, AProductOfARootCategoryHasABreadcrumbOfOneRow)
{
    const auto mix = addProduct(u"5"_s, u"Mix"_s, u"1"_s, tea);
    EXPECT_EQ(dumpOfList(u"product"_s, mix, u"breadcrumb"_s), u"row\n"
                                                              "  name = Tea\n"
                                                              "  id = 2\n"
                                                              "  server = http://previewmode/\n"_s);
}

TEST_F(ProductPageTest, WithoutRelatedProductsTheGuardIsEmptyAndTheListMissing)
{
    EXPECT_EQ(page(u"hasrelated"_s), QString());
    EXPECT_EQ(page(u"related"_s), u"MISSING"_s);
}

TEST_F(ProductPageTest, AProductThatIsNotForSaleSaysSo)
{
    sencha->ForSale = false;
    EXPECT_EQ(page(u"ForSale"_s), u"False"_s);
}

TEST_F(ProductPageTest, AnEmptyPriceIsNotReplacedHere)
{
    // Without a discount both pages agree; the discounted text of nothing is "0" here, too.
    sencha->Price()->Value.clear();
    EXPECT_EQ(page(u"price"_s), QString());
    EXPECT_EQ(page(u"new_price"_s), QString());
    setDiscount(*sencha, u"10"_s);
    EXPECT_EQ(page(u"new_price"_s), u"0"_s);
    // Bands ask for the number of the price: the category page asks for "0" first, this page for the empty text.
    clsDiscount& discount = *sencha->Price()->Discount();
    discount.Status = DiscountStatus::Inherit;
    auto bands = std::make_shared<clsDependedDiscounts>();
    bands->Add(u"1"_s, u"2"_s, u"50"_s);
    discount.ParentDependDiscounts = bands;
    EXPECT_EQ(errorOf([&] { variablesOf(u"product"_s, sencha); }), 13);
}

TEST_F(ProductPageTest, AProductWhoseCategoryIsGoneFailsThePage)
{
    sencha->category.reset();
    EXPECT_EQ(errorOf([&] { variablesOf(u"product"_s, sencha); }), 91);
}

TEST_F(ProductPageTest, ThePageNeedsAProduct)
{
    EXPECT_EQ(errorOf([&] { variablesOf(u"product"_s); }), 91);
    EXPECT_EQ(errorOf([&] { variablesOf(u"product"_s, tea); }), 13);
}

} // namespace
