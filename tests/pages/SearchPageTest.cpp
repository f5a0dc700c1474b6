#include "pages/PagesTest.h"
#include "pages/RenderPage.h"

using namespace Qt::StringLiterals;

namespace {

class SearchPageTest : public PagesTest
{
protected:
    static std::shared_ptr<SearchResults> found(const QString& word,
                                                const std::vector<std::shared_ptr<ProductClass>>& products = {})
    {
        auto results = std::make_shared<SearchResults>();
        results->word = word;
        results->products = products;
        return results;
    }

    std::shared_ptr<CategoryClass> tea = addCategory(u"2"_s, u"Tea"_s);
    std::shared_ptr<ProductClass> sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
};

const QStringList ProductOptionNames = {
    u"SearchPage_IncludeBreadcrumb"_s, u"SearchPage_IncludeImage"_s,       u"SearchPage_IncludeAddToCart"_s,
    u"SearchPage_IncludeName"_s,       u"SearchPage_IncludeDescription"_s, u"SearchPage_IncludePrice"_s,
    u"SearchPage_IncludeOldPrice"_s,   u"SearchPage_IncludeNewPrice"_s,    u"SearchPage_IncludeTaxes"_s,
    u"SearchPage_IncludeShipping"_s,   u"SearchPage_IncludeRelated"_s,
};

TEST_F(SearchPageTest, AllVariablesStandInTheOrderOfAdding)
{
    markOptions();
    markSlots();
    design().setOption(DesignOption::SearchPage_Limit_Desc, u"1"_s);
    sencha->Description = u"Fresh and green"_s;
    setPicture(*sencha->selectedImage(), u"sencha.png"_s, 16, 12);
    setDiscount(*sencha, u"50"_s);
    const auto mix = addProduct(u"5"_s, u"Mix"_s, u""_s, tea);
    addVariant(*mix, u"bag"_s, u"8"_s);
    addVariant(*mix, u"tin"_s, u"12"_s);
    mix->setRelatedIds({u"4"_s});

    const QString priceOptions = u"        SearchPage_IncludeOldPrice = <SearchPage_IncludeOldPrice>\n"
                                 "        SearchPage_IncludeNewPrice = <SearchPage_IncludeNewPrice>\n"
                                 "        SearchPage_IncludePrice = <SearchPage_IncludePrice>\n"_s;
    const QString expected =
        u"products:\n"
        "  row\n"
        "    id = 4\n"
        "    name = Sencha\n"
        "    ForSale = True (boolean)\n"
        "    cut_count = 1\n"
        "    Product_PriceType = Single\n"
        "    price = 20 (object)\n"
        "    new_price = 10\n"_s +
        indented(indented(imageDump(u"CATEGORYPAGE_IMAGE"_s, u"TEXT"_s, u"sencha.png"_s, {}, 16, 12) +
                          u"description = Fresh\n"_s + slotDump(u"SEARCHPAGE_SHOPPINGCART_BUTTON"_s) +
                          optionDump(ProductOptionNames))) +
        u"    server = http://previewmode/\n"
        "    hasrelated = \n"
        "  row\n"
        "    id = 5\n"
        "    name = Mix\n"
        "    ForSale = True (boolean)\n"
        "    cut_count = 1\n"
        "    Product_PriceType = Multi\n"
        "    MultiplePrice:\n"
        "      row\n"
        "        PriceDescription = bag\n"
        "        MPrice = 8\n"
        "        shop_currency = EUR\n"
        "        SearchPage_IncludeDescription = <SearchPage_IncludeDescription>\n"
        "        first_price = 1\n"
        "        Mnew_price = \n"_s +
        priceOptions +
        u"      row\n"
        "        PriceDescription = tin\n"
        "        MPrice = 12\n"
        "        shop_currency = EUR\n"
        "        SearchPage_IncludeDescription = <SearchPage_IncludeDescription>\n"
        "        Mnew_price = \n"_s +
        priceOptions +
        indented(indented(imageDump(u"CATEGORYPAGE_IMAGE"_s, u"TEXT"_s, {}, {}, 0, 0) + u"description = \n"_s +
                          slotDump(u"SEARCHPAGE_SHOPPINGCART_BUTTON"_s) + optionDump(ProductOptionNames))) +
        u"    server = http://previewmode/\n"
        "    hasrelated = yes\n"
        "    related:\n"
        "      row\n"
        "        rid = 4\n"
        "        rname = Sencha\n"
        "        server = http://previewmode/\n"
        "SEARCH_WORD = tea\n"
        "HAS_ITEMS = Yes\n"_s +
        optionDump({u"SearchPage_IncludePageHeader"_s, u"SearchPage_PageHeader"_s});
    EXPECT_EQ(dumpOf(u"search"_s, found(u"tea"_s, {sencha, mix})), expected);
}

TEST_F(SearchPageTest, AProductRowHasNoCurrency)
{
    EXPECT_EQ(valueInRow(u"search"_s, found(u"tea"_s, {sencha}), u"products"_s, 1, u"shop_currency"_s), u"MISSING"_s);
}

TEST_F(SearchPageTest, AProductThatIsNotForSaleSaysSo)
{
    sencha->ForSale = false;
    EXPECT_EQ(valueInRow(u"search"_s, found(u"tea"_s, {sencha}), u"products"_s, 1, u"ForSale"_s), u"False"_s);
}

TEST_F(SearchPageTest, ANewPriceOfBandsNeedsAPrice)
{
    sencha->Price()->Value.clear();
    sencha->Price()->Discount()->Status = DiscountStatus::Inherit;
    auto bands = std::make_shared<clsDependedDiscounts>();
    bands->Add(u"1"_s, u"2"_s, u"50"_s);
    sencha->Price()->Discount()->ParentDependDiscounts = bands;
    EXPECT_EQ(errorOf([&] { variablesOf(u"search"_s, found(u"tea"_s, {sencha})); }), 13);
}

TEST_F(SearchPageTest, NothingFoundIsAListWithoutRowsAndTheGuardSaysNo)
{
    const Variables vars = variablesOf(u"search"_s, found(u"coffee"_s));
    EXPECT_TRUE(rowsOf(vars.Item(u"products")).empty());
    addTemplate(u"search"_s, u"<!--:HAS_ITEMS:-->[<!--:if:HAS_ITEMS=Yes:--><!--:cycle:products:-->x"
                             "<!--:end:products:--><!--:end:HAS_ITEMS:-->]"_s);
    EXPECT_EQ(RenderPage(context, u"search"_s, found(u"coffee"_s)), u"No[]"_s);
}

TEST_F(SearchPageTest, TheWordStandsAsItWasTyped)
{
    for (const QString& word : {u"a+b"_s, u""_s, u"a%20b"_s, u"<b>"_s, u"Größe"_s}) {
        EXPECT_EQ(valueOf(u"search"_s, found(word), u"SEARCH_WORD"_s), word);
    }
}

TEST_F(SearchPageTest, ThePageNeedsResults)
{
    EXPECT_EQ(errorOf([&] { variablesOf(u"search"_s); }), 91);
    EXPECT_EQ(errorOf([&] { variablesOf(u"search"_s, sencha); }), 13);
}

} // namespace
