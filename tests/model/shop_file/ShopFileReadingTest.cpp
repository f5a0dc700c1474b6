// What each element of a shop file becomes in the model, and what stands in for one that is missing.
#include "base/Dates.h"
#include "model/ShopFixture.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using ShopFileReading = ShopFixture;

// A value of the model as text, and what it is without its element, with it, and for another content.
struct ValueRow
{
    QByteArray element; // with a %1 for the text
    std::function<QString()> value;
    QString missing;
    QByteArray text;
    QString read;
};

QString word(bool value)
{
    return value ? u"true"_s : u"false"_s;
}

QByteArray filled(const ValueRow& row)
{
    QByteArray xml = row.element;
    return xml.replace("%1", row.text);
}

TEST_F(ShopFileReading, EveryValueOfTheShopHasItsElementAndItsDefault)
{
    const auto shop = [this]() -> ShopClass& { return *session.shop; };
    const auto discount = [this]() -> clsDiscount& { return *session.shop->Discount(); };
    const QString day = DateTextToLocal(u"07.03.2020"_s);
    const QByteArray discountElement = "<ShopDiscount><Status>ToAll</Status>";
    const QList<ValueRow> rows = {
        {"<Version>%1</Version>", [&] { return session.LoadedShopVersion; }, QString(), "1.2.0", u"1.2.0"_s},
        {"<shop_currency>%1</shop_currency>", [&] { return shop().shop_currency; }, QString(), "EUR", u"EUR"_s},
        {"<ShippingChargesAreSelected>%1</ShippingChargesAreSelected>",
         [&] { return word(shop().ShippingChargesAreSelected); }, u"false"_s, "True", u"true"_s},
        {"<TaxesAreSelected>%1</TaxesAreSelected>", [&] { return word(shop().TaxesAreSelected); }, u"false"_s, "True",
         u"true"_s},
        {"<MaxProductId>%1</MaxProductId>", [&] { return shop().MaxProductId; }, u"1"_s, "77", u"77"_s},
        {"<Name>%1</Name>", [&] { return shop().name; }, u"UNDEFINED_SHOP_NAME"_s, " A&amp;B ", u" A&B "_s},
        {"<Description>%1</Description>", [&] { return shop().Description; }, QString(), "d", u"d"_s},
        {"<ShopDiscount><Status>%1</Status></ShopDiscount>", [&] { return QString::number(discount().Status); }, u"1"_s,
         "Inherit", u"4"_s},
        {discountElement + "<DateFrom>%1</DateFrom></ShopDiscount>", [&] { return discount().DateFrom; }, QString(),
         "07.03.2020", day},
        {discountElement + "<DateTo>%1</DateTo></ShopDiscount>", [&] { return discount().DateTo; }, QString(),
         "07.03.2020", day},
        {discountElement + "<DateTo>%1</DateTo></ShopDiscount>", [&] { return discount().DateTo; }, QString(),
         "in 2020", QString()},
        {discountElement + "<ApplyToAll>%1</ApplyToAll></ShopDiscount>", [&] { return discount().ApplyToWhole(); },
         QString(), "7,5", localised(u"7.5"_s)},
        {discountElement + "%1</ShopDiscount>", [&] { return discount().ApplyToWhole(); }, QString(), "", u"0"_s},
    };
    session.callbacks.SaveShop = [] {};
    for (const ValueRow& row : rows) {
        const QByteArray start = "<Tarnwick><Shop><SelectedCountries/>";
        ASSERT_EQ(load(start + "</Shop></Tarnwick>"), 0);
        EXPECT_EQ(row.value(), row.missing) << row.element.toStdString();
        ASSERT_EQ(load(start + filled(row) + "</Shop></Tarnwick>"), 0) << row.element.toStdString();
        EXPECT_EQ(row.value(), row.read) << row.element.toStdString();
    }
}

TEST_F(ShopFileReading, EveryValueOfACategoryHasItsElementAndItsDefault)
{
    const auto node = [this]() -> CategoryClass& { return *rootCategory(); };
    const auto discount = [this]() -> clsDiscount& { return *rootCategory()->Discount(); };
    const QString day = DateTextToLocal(u"07.03.2020"_s);
    const QList<ValueRow> rows = {
        {"<Id>%1</Id>", [&] { return node().id; }, u"101"_s, "7", u"7"_s},
        {"<Name>%1</Name>", [&] { return node().name; }, u"UNDEFINED_PRODUCT_NAME"_s, "n", u"n"_s},
        {"<Description>%1</Description>", [&] { return node().Description; }, QString(), "d", u"d"_s},
        {"<Picture>%1</Picture>", [&] { return node().selectedImage()->imageFileName; }, QString(), "a\\b.png",
         u"b.png"_s},
        {"<Width>%1</Width>", [&] { return QString::number(node().selectedImage()->cachedSize().width); }, u"0"_s, "12",
         u"12"_s},
        {"<Height>%1</Height>", [&] { return QString::number(node().selectedImage()->cachedSize().height); }, u"0"_s,
         "34", u"34"_s},
        {"<Discount><Status>%1</Status></Discount>", [&] { return QString::number(discount().Status); }, u"1"_s,
         "Depend", u"3"_s},
        {"<Discount>%1</Discount>", [&] { return QString::number(discount().Status); }, u"1"_s, "", u"1"_s},
        {"<Discount><DateFrom>%1</DateFrom></Discount>", [&] { return discount().DateFrom; }, QString(), "07.03.2020",
         day},
        {"<Discount><DateTo>%1</DateTo></Discount>", [&] { return discount().DateTo; }, QString(), "07.03.2020", day},
        {"<Discount><ApplyToAll>%1</ApplyToAll></Discount>", [&] { return discount().ApplyToWhole(); }, QString(),
         "7,5", localised(u"7.5"_s)},
        {"<Discount>%1</Discount>", [&] { return discount().ApplyToWhole(); }, QString(), "", u"0"_s},
    };
    for (const ValueRow& row : rows) {
        ASSERT_EQ(load(shopFile("<Category></Category>")), 0);
        EXPECT_EQ(row.value(), row.missing) << row.element.toStdString();
        ASSERT_EQ(load(shopFile("<Category>" + filled(row) + "</Category>")), 0) << row.element.toStdString();
        EXPECT_EQ(row.value(), row.read) << row.element.toStdString();
    }
}

TEST_F(ShopFileReading, EveryValueOfAProductHasItsElementAndItsDefault)
{
    const auto node = [this]() -> ProductClass& { return *firstProduct(); };
    const auto discount = [this]() -> clsDiscount& { return *firstProduct()->Price()->Discount(); };
    const auto variant = [this](auto member) {
        const auto& all = firstProduct()->Price()->MultiPriceCollection();
        return all.isEmpty() ? u"none"_s : (*all.Item(1)).*member;
    };
    const auto cost = [this] {
        const auto& costs = *firstProduct()->ShippingCosts();
        return costs.hasKey(u"Post"_s) ? costs.Item(u"Post"_s) : u"none"_s;
    };
    const auto tax = [this](int index) {
        const auto& taxes = *firstProduct()->Taxes();
        return index <= taxes.Count() ? taxes.Item(index) : u"none"_s;
    };
    const QString day = DateTextToLocal(u"07.03.2020"_s);
    const QList<ValueRow> rows = {
        {"<Id>%1</Id>", [&] { return node().id; }, u"101"_s, "7", u"7"_s},
        {"<Name>%1</Name>", [&] { return node().name; }, u"UNDEFINED_PRODUCT_NAME"_s, "n", u"n"_s},
        {"<Description>%1</Description>", [&] { return node().Description; }, QString(), "d", u"d"_s},
        {"<Code>%1</Code>", [&] { return node().Code; }, QString(), "c", u"c"_s},
        {"<Price>%1</Price>", [&] { return node().Price()->Value; }, QString(), "12,50", u"12,50"_s},
        {"<ForSale>%1</ForSale>", [&] { return word(node().ForSale); }, u"true"_s, "False", u"false"_s},
        {"<ForSale>%1</ForSale>", [&] { return word(node().ForSale); }, u"true"_s, "0", u"false"_s},
        {"<ForSale>%1</ForSale>", [&] { return word(node().ForSale); }, u"true"_s, "-1", u"true"_s},
        {"<ForSale>%1</ForSale>", [&] { return word(node().ForSale); }, u"true"_s, localised(u"0.0"_s).toUtf8(),
         u"false"_s},
        {"<ForSale>%1</ForSale>", [&] { return word(node().ForSale); }, u"true"_s, localised(u"0.5"_s).toUtf8(),
         u"true"_s},
        {"<Unit>%1</Unit>", [&] { return node().Unit; }, QString(), "u", u"u"_s},
        {"<Link>%1</Link>", [&] { return node().LINK; }, QString(), "l", u"l"_s},
        {"<Picture>%1</Picture>", [&] { return node().selectedImage()->imageFileName; }, QString(), "a\\b.png",
         u"b.png"_s},
        {"<Width>%1</Width>", [&] { return QString::number(node().selectedImage()->cachedSize().width); }, u"0"_s, "12",
         u"12"_s},
        {"<Height>%1</Height>", [&] { return QString::number(node().selectedImage()->cachedSize().height); }, u"0"_s,
         "34", u"34"_s},
        {"<Discount><Status>%1</Status></Discount>", [&] { return QString::number(discount().Status); }, u"1"_s,
         "Specific", u"5"_s},
        {"<Discount><DateFrom>%1</DateFrom></Discount>", [&] { return discount().DateFrom; }, QString(), "07.03.2020",
         day},
        {"<Discount><DateTo>%1</DateTo></Discount>", [&] { return discount().DateTo; }, QString(), "07.03.2020", day},
        {"<Discount><Specific>%1</Specific></Discount>", [&] { return discount().Specific(); }, QString(), "7,5",
         localised(u"7.5"_s)},
        {"<Discount>%1</Discount>", [&] { return discount().Specific(); }, QString(), "", u"0"_s},
        // Without its element a product keeps what a new one has; an empty element gives the reader's default.
        {"<Shipping>%1</Shipping>", [&] { return node().ShippingStatus; }, u"Weight"_s, "", u"No"_s},
        {"<Shipping><ShippingStatus>%1</ShippingStatus></Shipping>", [&] { return node().ShippingStatus; }, u"Weight"_s,
         "Individual", u"Individual"_s},
        {"<Shipping><Weight>%1</Weight></Shipping>", [&] { return node().Weight; }, u"0"_s, "2,5", u"2,5"_s},
        {"<Shipping><ShippingCost1>%1</ShippingCost1></Shipping>", cost, u"none"_s, "4", u"4"_s},
        {"<Shipping><ShippingCost2>%1</ShippingCost2></Shipping>", cost, u"none"_s, "4", QString()},
        {"<MultiplePrice><PriceDescription>%1</PriceDescription></MultiplePrice>",
         [&] { return variant(&clsMultiPrice::Description); }, u"none"_s, "v", u"v"_s},
        {"<MultiplePrice><PriceDescription>%1</PriceDescription></MultiplePrice>",
         [&] { return variant(&clsMultiPrice::Value); }, u"none"_s, "v", u"0"_s},
        {"<MultiplePrice><MPrice>%1</MPrice></MultiplePrice>", [&] { return variant(&clsMultiPrice::Description); },
         u"none"_s, "4", QString()},
        {"<MultiplePrice><MPrice>%1</MPrice></MultiplePrice>", [&] { return variant(&clsMultiPrice::Value); },
         u"none"_s, "12.50", localised(u"12.5"_s)},
        {"<MultiplePrice><MPrice>%1</MPrice></MultiplePrice>", [&] { return variant(&clsMultiPrice::Value); },
         u"none"_s, "12,50", u"12"_s},
        {"<MultiplePrice><MPrice>%1</MPrice></MultiplePrice>", [&] { return variant(&clsMultiPrice::Value); },
         u"none"_s, "  -7x", u"-7"_s},
        {"<ProductTaxes><Tax0>%1</Tax0></ProductTaxes>", [&] { return tax(1); }, u"none"_s, "Y", u"Y"_s},
        {"<ProductTaxes><Tax0>%1</Tax0></ProductTaxes>", [&] { return tax(2); }, u"none"_s, "Y", u"N"_s},
        {"<ProductTaxes><Tax0>%1</Tax0></ProductTaxes>", [&] { return tax(3); }, u"none"_s, "Y", u"none"_s},
    };
    const QByteArray start = "<ShopShipping><Type><Name>Post</Name></Type></ShopShipping>"
                             "<Taxes><Type><Name>A</Name></Type><Type><Name>B</Name></Type></Taxes>"
                             "<Category><Id>2</Id><Product><Related/>";
    for (const ValueRow& row : rows) {
        ASSERT_EQ(load(shopFile(start + "</Product></Category>")), 0);
        EXPECT_EQ(row.value(), row.missing) << row.element.toStdString();
        ASSERT_EQ(load(shopFile(start + filled(row) + "</Product></Category>")), 0) << row.element.toStdString();
        EXPECT_EQ(row.value(), row.read) << row.element.toStdString() << " with " << row.text.toStdString();
    }
}

TEST_F(ShopFileReading, BandsAreReadFromShopAndCategoryAndSharedDownTheTree)
{
    const QByteArray bands = "<Status>Depend</Status><PriceFrame><From>10</From><To>100</To><Percent>5</Percent>"
                             "</PriceFrame><PriceFrame><To>1000</To></PriceFrame>";
    ASSERT_EQ(load(shopFile("<ShopDiscount>" + bands + "</ShopDiscount>" +
                            category("2", "<Discount>" + bands + "</Discount>"))),
              0);
    for (const auto& discount : {session.shop->Discount(), rootCategory()->Discount()}) {
        ASSERT_EQ(discount->DependedDiscounts()->Count(), 2);
        EXPECT_EQ(discount->DependedDiscounts()->Item(1).PriceFrom(), u"10"_s);
        EXPECT_EQ(discount->DependedDiscounts()->Item(1).PriceTo(), u"100"_s);
        EXPECT_EQ(discount->DependedDiscounts()->Item(1).Value(), u"5"_s);
        EXPECT_EQ(discount->DependedDiscounts()->Item(2).PriceFrom(), QString());
        EXPECT_EQ(discount->DependedDiscounts()->Item(2).PriceTo(), u"1000"_s);
        EXPECT_EQ(discount->DependedDiscounts()->Item(2).Value(), QString());
    }
    EXPECT_EQ(rootCategory()->Discount()->ParentDependDiscounts, session.shop->Discount()->DependedDiscounts());
}

TEST_F(ShopFileReading, DiscountsArePushedAtTheEndOfALoad)
{
    ASSERT_EQ(load(shopFile("<ShopDiscount><Status>ToAll</Status><ApplyToAll>10</ApplyToAll></ShopDiscount>" +
                            category("2", "<Discount><Status>Inherit</Status></Discount>" +
                                              product("3", "<Discount><Status>Inherit</Status></Discount>")))),
              0);
    EXPECT_EQ(firstProduct()->Price()->Discount()->Value(u"50"_s), u"10"_s);
}

TEST_F(ShopFileReading, CountriesAreAllChildNodesWhateverTheirNames)
{
    writeFile(session.folder.shopFile(),
              "<Tarnwick><Shop><Version>1.2.0</Version><SelectedCountries>Mali"
              "<Country7>Chad</Country7><!-- none --><X>Peru</X></SelectedCountries></Shop></Tarnwick>");
    loadShop(session);
    ASSERT_EQ(session.shop->SelectedCountries->Count(), 3);
    EXPECT_EQ(session.shop->SelectedCountries->Item(1), u"Mali"_s);
    EXPECT_EQ(session.shop->SelectedCountries->Item(2), u"Chad"_s);
    EXPECT_EQ(session.shop->SelectedCountries->Item(u"peru"_s), u"Peru"_s);
}

TEST_F(ShopFileReading, ShippingTypesAndCostFrames)
{
    ASSERT_EQ(load(shopFile(
                  "<ShopShipping><Type><Name>Post</Name><Description>slow</Description></Type><Type/>"
                  "</ShopShipping><ShopShippingCosts>"
                  "<CostsFrame><From>0</From><To>5</To><Cost1>1</Cost1><Cost2>2</Cost2><Cost3>3</Cost3></CostsFrame>"
                  "<CostsFrame><To>9</To><Cost2>4</Cost2></CostsFrame></ShopShippingCosts>")),
              0);
    const ShopClass& shop = *session.shop;
    ASSERT_EQ(shop.ShippingTypeName->Count(), 2);
    EXPECT_EQ(shop.ShippingTypeName->Item(u"ship_name0"_s), u"Post"_s);
    EXPECT_EQ(shop.ShippingTypeDescription->Item(u"ship_desc0"_s), u"slow"_s);
    EXPECT_EQ(shop.ShippingTypeName->Item(u"ship_name1"_s), QString());
    EXPECT_EQ(shop.ShippingTypeDescription->Item(u"ship_desc1"_s), QString());
    ASSERT_EQ(shop.ShippingCosts->Count(), 2);
    EXPECT_EQ(shop.ShippingCostFrameFrom->Item(u"from0"_s), u"0"_s);
    EXPECT_EQ(shop.ShippingCostFrameTo->Item(u"to1"_s), u"9"_s);
    EXPECT_EQ(shop.ShippingCostFrameFrom->Item(2), QString());
    // Costs beyond the types are not read, and those that are missing are empty.
    ASSERT_EQ(shop.ShippingCosts->Item(1).Count(), 2);
    EXPECT_EQ(shop.ShippingCosts->Item(1).Item(u"cost0"_s), u"1"_s);
    EXPECT_EQ(shop.ShippingCosts->Item(1).Item(u"cost1"_s), u"2"_s);
    EXPECT_EQ(shop.ShippingCosts->Item(2).Item(1), QString());
    EXPECT_EQ(shop.ShippingCosts->Item(2).Item(2), u"4"_s);
}

TEST_F(ShopFileReading, WithoutShippingTypesFramesHaveNoCosts)
{
    ASSERT_EQ(load(shopFile("<ShopShippingCosts><CostsFrame><From>0</From><To>5</To><Cost1>1</Cost1></CostsFrame>"
                            "</ShopShippingCosts>")),
              0);
    EXPECT_EQ(session.shop->ShippingTypeName, nullptr);
    EXPECT_EQ(session.shop->ShippingCosts->Item(1).Count(), 0);
}

TEST_F(ShopFileReading, WithoutFramesTheTablesStayAbsent)
{
    ASSERT_EQ(load(shopFile("<ShopShipping/><ShopShippingCosts/>")), 0);
    EXPECT_EQ(session.shop->ShippingTypeName->Count(), 0);
    EXPECT_EQ(session.shop->ShippingCostFrameFrom, nullptr);
    EXPECT_EQ(session.shop->ShippingCostFrameTo, nullptr);
    EXPECT_EQ(session.shop->ShippingCosts, nullptr);
}

TEST_F(ShopFileReading, TaxesAndCharges)
{
    ASSERT_EQ(load(shopFile("<Taxes><Type><Name>VAT</Name><Percent>7,5</Percent><Used>Y</Used></Type><Type/></Taxes>"
                            "<Charges><Type><Destination>Mali</Destination><Cost>12,5</Cost><Used>Y</Used></Type>"
                            "<Type><Used>y</Used></Type></Charges>")),
              0);
    const ShopClass& shop = *session.shop;
    ASSERT_EQ(shop.Taxes.Count(), 2);
    EXPECT_EQ(shop.Taxes.Item(1).TaxName, u"VAT"_s);
    EXPECT_EQ(shop.Taxes.Item(1).Percent(), localised(u"7.5"_s));
    EXPECT_TRUE(shop.Taxes.Item(1).IsChecked);
    EXPECT_EQ(shop.Taxes.Item(2).TaxName, QString());
    EXPECT_EQ(shop.Taxes.Item(2).Percent(), QString());
    EXPECT_FALSE(shop.Taxes.Item(2).IsChecked);
    ASSERT_EQ(shop.Charges.Count(), 2);
    EXPECT_EQ(shop.Charges.Item(1).Destination, u"Mali"_s);
    EXPECT_EQ(shop.Charges.Item(1).Cost, u"12,5"_s);
    EXPECT_TRUE(shop.Charges.Item(1).IsChecked);
    EXPECT_FALSE(shop.Charges.Item(2).IsChecked);
}

TEST_F(ShopFileReading, StylesAndCustomPagesAreKeptUnderTheirNames)
{
    ASSERT_EQ(load(shopFile("<CSS><CSSName>copyright</CSSName><IsBold>Yes</IsBold></CSS><CSS/>"
                            "<CustomPage><PageName>About</PageName></CustomPage>")),
              0);
    EXPECT_EQ(session.shop->CSSs.Item(u"IDcopyright"_s)->IsBold, u"Yes"_s);
    EXPECT_EQ(session.shop->CSSs.Item(u"IDUNDEFINED_CSS_NAME"_s)->FontSize, u"10pt"_s);
    EXPECT_EQ(session.shop->CustomPages.Item(u"About"_s)->ImageAligment, u"Left"_s);
}

} // namespace
