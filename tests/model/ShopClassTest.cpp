#include "model/ShopClass.h"

#include "ShopFixture.h"

using namespace Qt::StringLiterals;

namespace {

class Shops : public ShopFixture
{
protected:
    ShopClass shop{session.services};
};

TEST_F(Shops, ANewOneHasItsDefaults)
{
    for (const QString& text : {shop.name, shop.Description, shop.shop_currency, shop.Version}) {
        EXPECT_EQ(text, QString());
    }
    EXPECT_EQ(shop.MaxProductId, u"1"_s);
    EXPECT_FALSE(shop.ShippingChargesAreSelected);
    EXPECT_FALSE(shop.TaxesAreSelected);
    EXPECT_EQ(shop.SelectedCountries, nullptr);
    EXPECT_EQ(shop.ShippingTypeName, nullptr);
    EXPECT_EQ(shop.ShippingTypeDescription, nullptr);
    EXPECT_EQ(shop.ShippingCostFrameFrom, nullptr);
    EXPECT_EQ(shop.ShippingCostFrameTo, nullptr);
    EXPECT_EQ(shop.ShippingCosts, nullptr);
    EXPECT_TRUE(shop.Taxes.isEmpty());
    EXPECT_TRUE(shop.Charges.isEmpty());
    EXPECT_TRUE(shop.categories.isEmpty());
    EXPECT_TRUE(shop.CSSs.isEmpty());
    EXPECT_TRUE(shop.CustomPages.isEmpty());
    EXPECT_NE(shop.ShopDesign, nullptr);
    EXPECT_EQ(shop.Discount()->Status, DiscountStatus::No);
    EXPECT_EQ(shop.GetProductCount(), 0);
}

TEST_F(Shops, MakingOneIsLogged)
{
    EXPECT_EQ(logLines(), (QStringList{u"Start shop design creating"_s, u"Shop class Initialized"_s}));
}

TEST_F(Shops, IdsCountUpFromTwo)
{
    EXPECT_EQ(shop.getNextProductId(), u"2"_s);
    EXPECT_EQ(shop.MaxProductId, u"2"_s);
    EXPECT_EQ(shop.getNextProductId(), u"3"_s);
}

TEST_F(Shops, BehindTheLargestIdComesError6AndNothingIsStored)
{
    shop.MaxProductId = u"2147483647"_s;
    EXPECT_EQ(errorOf([&] { shop.getNextProductId(); }), 6);
    EXPECT_EQ(shop.MaxProductId, u"2147483647"_s);
    shop.MaxProductId = u"2147483646"_s;
    EXPECT_EQ(shop.getNextProductId(), u"2147483647"_s);
    shop.MaxProductId = u"9999999999"_s;
    EXPECT_EQ(errorOf([&] { shop.getNextProductId(); }), 6);
}

TEST_F(Shops, ACounterThatIsNoNumberIsError13)
{
    for (const QString& text : {u"many"_s, QString(), u"12x"_s}) {
        shop.MaxProductId = text;
        EXPECT_EQ(errorOf([&] { shop.getNextProductId(); }), 13) << text.toStdString();
        EXPECT_EQ(shop.MaxProductId, text);
    }
}

TEST_F(Shops, ACountryCannotStandTwice)
{
    shop.SelectedCountries = std::make_shared<TextCollection>();
    shop.SelectedCountries->Add(u"Chad"_s, u"Chad"_s);
    EXPECT_EQ(errorOf([&] { shop.SelectedCountries->Add(u"Chad"_s, u"Chad"_s); }), 457);
}

} // namespace
