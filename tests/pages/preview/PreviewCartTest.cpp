// What the addresses of the preview do to the cart: adding, quantities, the recalculation of the checkout.
#include "base/Numbers.h"
#include "pages/preview/NavigationTest.h"

using namespace Qt::StringLiterals;

namespace {

using PreviewCartTest = NavigationTest;

TEST_F(PreviewCartTest, OnlyAKeyWithoutValueAddsToTheCart)
{
    const struct
    {
        const char* url;
        QString lines;
    } rows[] = {
        {"~?addtoshopcart=&product_id=4&price=20&quantity=2", u"2x4@20"_s},
        {"~addtoshopcart=&product_id=4&price=20&quantity=2", u"2x4@20"_s},
        {"~?product_id=4&price=20&quantity=2&addtoshopcart=", u"2x4@20"_s},
        {"~?addtoshopcart=&product_id=4", u"1x4@0"_s},
        {"~?addtoshopcart=&product_id=4&quantity=&price=", u"x4@0"_s},
        {"~?addtoshopcart=1&product_id=4&price=20", {}},
        {"~?addtoshopcart&product_id=4&price=20", {}},
        {"~?AddToShopCart=&product_id=4&price=20", {}},
        {"~?addtoshopcart=&ACTION=shopcart.php&product_id=4&price=20", u"1x4@20"_s},
    };
    for (const auto& row : rows) {
        session.Cart->Clear();
        goTo(row.url);
        EXPECT_EQ(cartLines(), row.lines) << row.url;
    }
}

TEST_F(PreviewCartTest, AfterAddingTheCartIsShownWithTheNewLine)
{
    EXPECT_EQ(goTo("~ACTION=product.php&id=4"), u"product 4"_s);
    EXPECT_EQ(goTo("~?addtoshopcart=&product_id=4&price=20&quantity=2"), u"cart 2x4"_s);
    EXPECT_EQ(goTo("~?addtoshopcart=&product_id=4&price=20&quantity=1"), u"cart 3x4"_s);
    EXPECT_EQ(goTo("~?addtoshopcart=&product_id=5&price=10&quantity=1"), u"cart 3x4 1x5"_s);
}

TEST_F(PreviewCartTest, TheCartIsShownWithTheObjectOfTheLastPage)
{
    goTo("~ACTION=product.php&id=4");
    goTo("~?addtoshopcart=&product_id=4");
    EXPECT_EQ(preview.lastPageName(), u"cart"_s);
    EXPECT_EQ(std::get<std::shared_ptr<ProductClass>>(preview.lastPageObject()), sencha);
    goTo("~ACTION=shopcart.php");
    EXPECT_TRUE(std::holds_alternative<std::monostate>(preview.lastPageObject()));
}

TEST_F(PreviewCartTest, ThePriceIsTheNumberThatItsTextBeginsWith)
{
    const struct
    {
        const char* price;
        QString inCart; // with a point
    } rows[] = {
        {"20", u"20"_s},  {"12%2C50", u"12.5"_s}, {"12,50", u"12"_s}, {"12.50", u"12.5"_s},  {"", u"0"_s},
        {"free", u"0"_s}, {"7%20EUR", u"7"_s},    {"%207", u"7"_s},   {"1%2C000.5", u"1"_s}, {"-3", u"-3"_s},
        {".5", u"0.5"_s}, {"12%2c50", u"12"_s},   {"1e3", u"1"_s},    {"0012", u"12"_s},
    };
    for (const auto& row : rows) {
        session.Cart->Clear();
        goTo(address("~?addtoshopcart=&product_id=4&price=") + QString::fromLatin1(row.price));
        EXPECT_EQ(session.Cart->Item(1)->SelectedPrice(), localised(row.inCart)) << row.price;
    }
}

TEST_F(PreviewCartTest, TheCopyInTheCartHasTheChosenPriceAndTheCatalogueHasNot)
{
    goTo("~?addtoshopcart=&product_id=4&price=12%2C50");
    EXPECT_EQ(sencha->Price()->Selected, QString());
    EXPECT_EQ(sencha->Price()->Value, u"20"_s);
}

TEST_F(PreviewCartTest, AQuantityIsSetAndZeroRemovesTheLine)
{
    addToCart(sencha, localised(u"12.5"_s), u"2"_s);
    addToCart(mix, u"10"_s, u"1"_s);
    EXPECT_EQ(goTo("~?ACTION=shopcart.php&product_id=4&product_price=12%2C50&quantity=7"), u"cart 7x4 1x5"_s);
    EXPECT_EQ(goTo("~?ACTION=shopcart.php&product_id=4&product_price=12.5&quantity=6"), u"cart 6x4 1x5"_s);
    EXPECT_EQ(goTo("~?ACTION=shopcart.php&product_id=4&product_price=99&quantity=0"), u"cart 6x4 1x5"_s);
    EXPECT_EQ(goTo("~?ACTION=shopcart.php&product_id=-1&product_price=10&quantity=0"), u"cart 6x4 1x5"_s);
    EXPECT_EQ(goTo("~?ACTION=shopcart.php&product_id=4&product_price=12.5"), u"cart 1x5"_s);
    EXPECT_EQ(goTo("~ACTION=shopcart.php"), u"cart 1x5"_s);
    EXPECT_EQ(goTo("~?product_id=5&product_price=10&quantity=0&ACTION=shopcart.php"), u"cart"_s);
}

TEST_F(PreviewCartTest, RecalculationSetsTaxAndCharge)
{
    const struct
    {
        const char* fields; // "_" stands for the user's decimal separator
        float tax;
        float charge;
    } rows[] = {
        {"tax=7&charge=5", 7, 5},
        {"tax=&charge=", 0, 0},
        {"tax=19", 19, 0},
        {"charge=4", 0, 4},
        {"", 0, 0},
        {"tax=7_5&charge=4_9", 7.5F, 4.9F},
        {"charge=1&tax=2", 2, 1},
        {"tax=-7&charge=-1", -7, -1},
        {"tax=%2B7+&charge=4_9+", 7, 4.9F}, // "+7 " and "4_9 "
    };
    for (const auto& row : rows) {
        session.Cart->tax = 99;
        session.Cart->Charge = 99;
        // A browser escapes a comma of a form.
        const QString separator = decimalSeparator() == u"," ? u"%2C"_s : u"."_s;
        const QString fields = QString::fromLatin1(row.fields).replace(u'_', separator);
        goTo(address("~?recalculate=1&") + fields + u"&ACTION=checkout.php"_s);
        EXPECT_EQ(session.Cart->tax, row.tax) << row.fields;
        EXPECT_EQ(session.Cart->Charge, row.charge) << row.fields;
    }
}

TEST_F(PreviewCartTest, WhatIsNoRecalculationLeavesTaxAndCharge)
{
    for (const char* url :
         {"~?recalculate=1&tax=7&charge=5", "~?recalculate=1&ACTION=checkout.php&tax=7&charge=5",
          "~?tax=7&charge=5&ACTION=checkout.php", "~?ACTION=checkout.php&recalculate=1&tax=7&charge=5",
          "~?ACTION=checkout.php&recalculate=1&tax=7&charge=5&ACTION=checkout.php",
          "~MAINPAGE&recalculate=1&tax=7&charge=5", "~ACTION=shopcart.php&recalculate=1&tax=7&ACTION=checkout.php",
          "http://example.com/?recalculate=1&tax=7&charge=5&ACTION=checkout.php"}) {
        session.Cart->tax = 99;
        session.Cart->Charge = 98;
        goTo(url);
        EXPECT_EQ(session.Cart->tax, 99.0F) << url;
        EXPECT_EQ(session.Cart->Charge, 98.0F) << url;
    }
}

TEST_F(PreviewCartTest, WithoutAProductTheCartIsOnlyShown)
{
    // A line that the defaults of the other fields would remove.
    addToCart(addProduct(u"-1"_s, u"Odd"_s, u"0"_s, tea), u"0"_s, u"1"_s);
    EXPECT_EQ(goTo("~ACTION=shopcart.php"), u"cart 1x-1"_s);
    EXPECT_EQ(goTo("~?ACTION=shopcart.php&product_price=0&quantity=0"), u"cart 1x-1"_s);
}

TEST_F(PreviewCartTest, TheRecalculatedTotalIsOnTheCheckout)
{
    addToCart(sencha, u"20"_s, u"1"_s);
    EXPECT_EQ(goTo("~?recalculate=1&tax=10&charge=3&ACTION=checkout.php"), u"form 25"_s);
}

TEST_F(PreviewCartTest, ATaxOrChargeThatIsNoNumberIsAnError)
{
    for (const char* fields : {"tax=seven", "charge=a", "tax=1.5.5", "tax=7&charge=%20%20x"}) {
        const QString url = address("~?recalculate=1&") + QString::fromLatin1(fields) + u"&ACTION=checkout.php"_s;
        EXPECT_EQ(errorOf([&] { navigation.act(url); }), 13) << fields;
    }
    EXPECT_EQ(errorOf([&] { navigation.act(address("~?recalculate=1&tax=1E39&ACTION=checkout.php")); }), 6);
    EXPECT_TRUE(surface.documents.isEmpty());
}

} // namespace
