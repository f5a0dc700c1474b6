#include "pages/PagesTest.h"
#include "pages/RenderPage.h"

using namespace Qt::StringLiterals;

namespace {

class CartPageTest : public PagesTest
{
protected:
    QString page(const QString& key) { return valueOf(u"cart"_s, {}, key); }
    QString line(int number, const QString& key) { return valueInRow(u"cart"_s, {}, u"products"_s, number, key); }
    void addTax(const QString& name, const QString& percent)
    {
        clsTax tax;
        tax.TaxName = name;
        tax.setPercent(percent);
        tax.IsChecked = true;
        shop().Taxes.Add(tax);
    }
    // The product's own discount becomes one of bands: so much percent strictly between two prices.
    static void setBand(ProductClass& product, const QString& from, const QString& to, const QString& percent)
    {
        auto bands = std::make_shared<clsDependedDiscounts>();
        bands->Add(from, to, percent);
        product.Price()->Discount()->Status = DiscountStatus::Inherit;
        product.Price()->Discount()->ParentDependDiscounts = bands;
    }

    std::shared_ptr<CategoryClass> tea = addCategory(u"2"_s, u"Tea"_s);
    std::shared_ptr<ProductClass> sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
};

const QStringList LineOptionNames = {
    u"CartPage_IncludeAddToCart"_s,  u"CartPage_IncludeDescription"_s, u"CartPage_IncludeImage"_s,
    u"CartPage_IncludeName"_s,       u"CartPage_IncludeNewPrice"_s,    u"CartPage_IncludeOldPrice"_s,
    u"CartPage_IncludePageHeader"_s, u"CartPage_IncludePrice"_s,       u"CartPage_IncludeRelated"_s,
    u"CartPage_IncludeShipping"_s,   u"CartPage_IncludeTaxes"_s,
};

TEST_F(CartPageTest, AllVariablesStandInTheOrderOfAdding)
{
    markOptions();
    markSlots();
    design().setOption(DesignOption::CartPage_Limit_Desc, u"1"_s);
    sencha->Description = u"Fresh and green"_s;
    setPicture(*sencha->selectedImage(), u"sencha.png"_s, 16, 12);
    setDiscount(*sencha, u"50"_s);
    addToCart(sencha, u"10"_s, u"3"_s);
    const auto mix = addProduct(u"5"_s, u"Mix"_s, u"99"_s, tea);
    addVariant(*mix, u"bag"_s, u"8"_s);
    addVariant(*mix, u"tin"_s, u"12"_s);
    mix->setRelatedIds({u"4"_s});
    addToCart(mix, u"12"_s, u"2"_s);

    const QString expected =
        optionDump({u"CartPage_IncludePageHeader"_s, u"CartPage_PageHeader"_s}) +
        slotDump(u"CARTPAGE_CHECKOUT_BUTTON"_s) +
        u"totalcost = 54 (single)\n"
        "products:\n"
        "  row\n"
        "    id = 4\n"
        "    name = Sencha\n"
        "    PriceDescription = \n"
        "    quantity = 3\n"
        "    shop_currency = EUR\n"
        "    cut_count = 1\n"_s +
        indented(indented(imageDump(u"CARTPAGE_IMAGE"_s, u"TEXT"_s, u"sencha.png"_s, {}, 16, 12))) +
        u"    price = 20 (object)\n"
        "    new_price = 10\n"
        "    description = Fresh\n"_s +
        indented(indented(slotDump(u"CARTPAGE_RECALCULATE_BUTTON"_s) + optionDump(LineOptionNames))) +
        u"    server = http://previewmode/\n"
        "    hasrelated = \n"
        "    taxes:\n"
        "      row\n"
        "    hastaxes = \n"
        "  row\n"
        "    id = 5\n"
        "    name = Mix\n"
        "    PriceDescription = tin\n"
        "    quantity = 2\n"
        "    shop_currency = EUR\n"
        "    cut_count = 1\n"_s +
        indented(indented(imageDump(u"CARTPAGE_IMAGE"_s, u"TEXT"_s, {}, {}, 0, 0))) +
        u"    price = 12\n"
        "    new_price = \n"
        "    description = \n"_s +
        indented(indented(slotDump(u"CARTPAGE_RECALCULATE_BUTTON"_s) + optionDump(LineOptionNames))) +
        u"    server = http://previewmode/\n"
        "    hasrelated = yes\n"
        "    related:\n"
        "      row\n"
        "        rid = 4\n"
        "        rname = Sencha\n"
        "        server = http://previewmode/\n"
        "    taxes:\n"
        "      row\n"
        "    hastaxes = \n"
        "HAS_ITEMS = Yes\n"_s;
    EXPECT_EQ(dumpOf(u"cart"_s), expected);
}

TEST_F(CartPageTest, AnEmptyCartHasNothingBehindTheButton)
{
    markOptions();
    markSlots();
    EXPECT_EQ(dumpOf(u"cart"_s), optionDump({u"CartPage_IncludePageHeader"_s, u"CartPage_PageHeader"_s}) +
                                     slotDump(u"CARTPAGE_CHECKOUT_BUTTON"_s));
    addTemplate(u"cart"_s, u"<!--:ifnot:HAS_ITEMS=Yes:-->Your cart is empty<!--:end:HAS_ITEMS:-->"
                           "<!--:if:HAS_ITEMS=:-->never<!--:end:HAS_ITEMS:-->"_s);
    EXPECT_EQ(RenderPage(context, u"cart"_s, {}), u"Your cart is empty"_s);
}

TEST_F(CartPageTest, TheTotalIsASingleInItsGeneralForm)
{
    const struct
    {
        QString price;
        QString quantity;
        QString total;
    } rows[] = {
        {u"0.1"_s, u"3"_s, u"0.3"_s},
        {u"10"_s, u"3"_s, u"30"_s},
        {u"19.99"_s, u"3"_s, u"59.97"_s},
        {u"1234567.89"_s, u"1"_s, u"1234568"_s},
        {u"12345678"_s, u"1"_s, u"1.234568E+07"_s},
        {u"0.01"_s, u"0.001"_s, u"0.00001"_s},
        {u"10"_s, u"-2"_s, u"-20"_s},
        {u"10"_s, QString(), u"0"_s},
        {QString(), u"3"_s, u"0"_s},
    };
    for (const auto& row : rows) {
        session.Cart->Clear();
        sencha->Price()->Value = localised(row.price);
        addToCart(sencha, u"1"_s, localised(row.quantity));
        EXPECT_EQ(page(u"totalcost"_s), localised(row.total))
            << row.price.toStdString() << " times " << row.quantity.toStdString();
    }
}

TEST_F(CartPageTest, EverySumIsRoundedToASingle)
{
    const auto cheap = addProduct(u"5"_s, u"Bag"_s, u"1"_s, tea);
    sencha->Price()->Value = u"16777216"_s; // the last number up to which a single knows every whole one
    addToCart(sencha, u"1"_s, u"1"_s);
    addToCart(cheap, u"1"_s, u"1"_s);
    addToCart(cheap, u"2"_s, u"1"_s);
    const Variables vars = variablesOf(u"cart"_s);
    EXPECT_EQ(std::get<float>(vars.Item(u"totalcost")), 16777216.0F);
}

TEST_F(CartPageTest, PriceTimesQuantityIsNotRoundedAheadOfTheSum)
{
    sencha->Price()->Value = u"16777217"_s; // no single: as one it would be a whole number less
    addToCart(sencha, u"1"_s, u"3"_s);
    const Variables vars = variablesOf(u"cart"_s);
    EXPECT_EQ(std::get<float>(vars.Item(u"totalcost")), 50331652.0F);
}

TEST_F(CartPageTest, AVariantWithoutAPriceCostsNothing)
{
    addVariant(*sencha, u"bag"_s, u"8"_s);
    addToCart(sencha, QString(), u"3"_s);
    EXPECT_EQ(page(u"totalcost"_s), u"0"_s);
    EXPECT_EQ(line(1, u"price"_s), u"20"_s);
}

TEST_F(CartPageTest, TheTotalStartsAtZeroOnEachRenderingAndHoldsNoTaxAndNoCharge)
{
    addToCart(sencha, u"20"_s, u"2"_s);
    session.Cart->tax = 10;
    session.Cart->Charge = 5;
    EXPECT_EQ(page(u"totalcost"_s), u"40"_s);
    EXPECT_EQ(page(u"totalcost"_s), u"40"_s);
}

TEST_F(CartPageTest, ATotalTooLargeForASingleFailsThePage)
{
    sencha->Price()->Value = u"9"_s + QString(30, u'9');
    addToCart(sencha, u"1"_s, u"1"_s + QString(20, u'0'));
    EXPECT_EQ(errorOf([&] { variablesOf(u"cart"_s); }), 6);
}

TEST_F(CartPageTest, AQuantityOrPriceThatIsNoNumberFailsThePage)
{
    addToCart(sencha, u"20"_s, u"two"_s);
    EXPECT_EQ(errorOf([&] { variablesOf(u"cart"_s); }), 13);
    session.Cart->Clear();
    addToCart(sencha, u"20"_s, u"1%2C5"_s);
    EXPECT_EQ(errorOf([&] { variablesOf(u"cart"_s); }), 13);
    session.Cart->Clear();
    addVariant(*sencha, u"bag"_s, u"8"_s);
    addToCart(sencha, u"free"_s, u"1"_s);
    EXPECT_EQ(errorOf([&] { variablesOf(u"cart"_s); }), 13);
}

TEST_F(CartPageTest, TheDiscountIsAskedForWithTheDiscountedText)
{
    setBand(*sencha, u"15"_s, u"25"_s, u"50"_s); // holds 20, but not 10
    addToCart(sencha, u"10"_s, u"1"_s);
    EXPECT_EQ(line(1, u"price"_s), u"20"_s);
    EXPECT_EQ(line(1, u"new_price"_s), QString());
    EXPECT_EQ(page(u"totalcost"_s), u"10"_s);

    setBand(*sencha, u"5"_s, u"25"_s, u"50"_s); // holds both
    EXPECT_EQ(line(1, u"new_price"_s), u"10"_s);
}

TEST_F(CartPageTest, ASinglePriceIsThatOfTheCatalogueAndNotTheOneOfTheLine)
{
    addToCart(sencha, u"3"_s, u"2"_s);
    EXPECT_EQ(line(1, u"price"_s), u"20"_s);
    EXPECT_EQ(page(u"totalcost"_s), u"40"_s);
}

TEST_F(CartPageTest, AVariantIsFoundByItsDiscountedPrice)
{
    addVariant(*sencha, u"bag"_s, u"8"_s);
    addVariant(*sencha, u"tin"_s, u"12"_s);
    setDiscount(*sencha, u"50"_s);
    addToCart(sencha, u"6"_s, u"2"_s);
    EXPECT_EQ(line(1, u"PriceDescription"_s), u"tin"_s);
    EXPECT_EQ(line(1, u"price"_s), u"12"_s);
    EXPECT_EQ(line(1, u"new_price"_s), u"6"_s);
    EXPECT_EQ(page(u"totalcost"_s), u"12"_s);
}

TEST_F(CartPageTest, AVariantThatIsNoLongerThereGivesThePlainPriceAndKeepsItsName)
{
    addVariant(*sencha, u"bag"_s, u"8"_s);
    addToCart(sencha, u"8"_s, u"2"_s);
    EXPECT_EQ(line(1, u"PriceDescription"_s), u"bag"_s);
    sencha->Price()->GetMultiPrice(1)->Value = u"9"_s;
    EXPECT_EQ(line(1, u"price"_s), u"20"_s);
    EXPECT_EQ(line(1, u"PriceDescription"_s), u"bag"_s);
    EXPECT_EQ(page(u"totalcost"_s), u"16"_s);
}

TEST_F(CartPageTest, PictureAndDescriptionAreThoseOfTheCatalogue)
{
    addToCart(sencha, u"20"_s, u"1"_s);
    auto other = std::make_shared<clsSelectedImage>(session.designServices);
    setPicture(*other, u"other.png"_s, 1, 1);
    sencha->setSelectedImage(other);
    sencha->Description = u"new text"_s;
    EXPECT_TRUE(line(1, u"CARTPAGE_IMAGE_FILENAME"_s).endsWith(u"other.png"_s));
    EXPECT_EQ(line(1, u"description"_s), u"new text"_s);
}

TEST_F(CartPageTest, AProductWithATaxFailsThePage)
{
    addTax(u"VAT"_s, u"19"_s);
    addToCart(sencha, u"20"_s, u"1"_s);
    EXPECT_EQ(line(1, u"hastaxes"_s), QString());
    sencha->Taxes()->Add(u"N"_s);
    EXPECT_EQ(line(1, u"hastaxes"_s), QString());
    sencha->Taxes()->Remove(1);
    sencha->Taxes()->Add(u"Y"_s);
    EXPECT_EQ(errorOf([&] { variablesOf(u"cart"_s); }), 438);
    // The checkout reads the name as it is called.
    EXPECT_EQ(valueInRow(u"checkout"_s, {}, u"taxes"_s, 1, u"tax_name"_s), u"VAT"_s);
}

TEST_F(CartPageTest, TheListOfTaxesHasARowWithoutVariablesWhenThereIsNoTax)
{
    addToCart(sencha, u"20"_s, u"1"_s);
    addTemplate(u"cart"_s, u"<!--:cycle:products:--><!--:cycle:taxes:-->[<!--:tax_name=none:-->]<!--:end:taxes:-->"
                           "<!--:end:products:-->"_s);
    EXPECT_EQ(RenderPage(context, u"cart"_s, {}), u"[none]"_s);
}

TEST_F(CartPageTest, AProductWithFewerFlagsThanTheShopHasTaxesFailsThePage)
{
    addTax(u"VAT"_s, u"19"_s);
    addTax(u"Tea tax"_s, u"1"_s);
    addToCart(sencha, u"20"_s, u"1"_s);
    sencha->Taxes()->Add(u"N"_s);
    EXPECT_EQ(errorOf([&] { variablesOf(u"cart"_s); }), 9);
}

TEST_F(CartPageTest, AnImportedProductHasNoShopToAskForTaxes)
{
    addToCart(sencha, u"20"_s, u"1"_s);
    sencha->shop = nullptr;
    EXPECT_EQ(line(1, u"hastaxes"_s), QString());
    sencha->Taxes()->Add(u"N"_s);
    EXPECT_EQ(errorOf([&] { variablesOf(u"cart"_s); }), 91);
}

TEST_F(CartPageTest, AProductThatWasRemovedButIsStillFoundStaysInTheCart)
{
    addToCart(sencha, u"20"_s, u"1"_s);
    tea->products.Remove(1);
    EXPECT_EQ(line(1, u"name"_s), u"Sencha"_s);
    session.objects.Remove(u"ID4"_s);
    EXPECT_EQ(errorOf([&] { variablesOf(u"cart"_s); }), 5);
}

} // namespace
