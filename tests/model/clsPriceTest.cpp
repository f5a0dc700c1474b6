#include "model/clsPrice.h"

#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Prices : public testing::Test
{
protected:
    void addVariant(const QString& description, const QString& value)
    {
        const auto variant = price.AddMultiPrice();
        variant->Description = description;
        variant->Value = value;
    }
    void setSpecific(const QString& percent)
    {
        price.Discount()->Status = DiscountStatus::Specific;
        price.Discount()->setSpecific(percent);
    }

    FixedClock clock{QDate(2024, 5, 15)};
    clsPrice price{clock};
};

TEST_F(Prices, ANewOneIsEmpty)
{
    EXPECT_EQ(price.PriceType, 0);
    EXPECT_EQ(price.Value, QString());
    EXPECT_EQ(price.Selected, QString());
    EXPECT_EQ(price.MultiPriceCount(), 0);
    EXPECT_EQ(price.OldPrice(), QString());
    EXPECT_EQ(errorOf([&] { price.GetMultiPrice(1); }), 9);
    EXPECT_EQ(errorOf([&] { price.RemoveMultiPrice(1); }), 9);
}

TEST_F(Prices, TheDiscountIsLookedUpForTheVeryPrice)
{
    auto bands = std::make_shared<clsDependedDiscounts>();
    bands->Add(u"10"_s, u"100"_s, u"5"_s);
    bands->Add(u"100"_s, u"1000"_s, u"50"_s);
    price.Discount()->Status = DiscountStatus::Inherit;
    price.Discount()->ParentDependDiscounts = bands;
    EXPECT_EQ(price.NewPrice(u"20"_s), u"19"_s);
    EXPECT_EQ(price.NewPrice(u"200"_s), u"100"_s);
    EXPECT_EQ(price.NewPrice(u"100"_s), u"100"_s);
    addVariant(u"small"_s, u"20"_s);
    addVariant(u"large"_s, u"200"_s);
    EXPECT_EQ(price.GetMultiPrice(1)->NewValue(), u"19"_s);
    EXPECT_EQ(price.GetMultiPrice(2)->NewValue(), u"100"_s);
    price.Selected = u"200"_s;
    EXPECT_EQ(price.SelectedNew(), u"100"_s);
}

TEST_F(Prices, AChangeOfTheDiscountShowsAtOnce)
{
    price.Value = u"100"_s;
    addVariant(u"v"_s, u"50"_s);
    EXPECT_EQ(price.NewPrice(price.Value), u"100"_s);
    setSpecific(u"10"_s);
    EXPECT_EQ(price.NewPrice(price.Value), u"90"_s);
    EXPECT_EQ(price.GetMultiPrice(1)->NewValue(), u"45"_s);
}

TEST_F(Prices, AllVariantsShareTheDiscount)
{
    addVariant(u"a"_s, u"1"_s);
    const auto existing = std::make_shared<clsMultiPrice>();
    EXPECT_EQ(errorOf([&] { existing->NewValue(); }), 91);
    price.AddExistingMultiPrice(existing);
    EXPECT_EQ(price.GetMultiPrice(1)->Discount, price.Discount());
    EXPECT_EQ(price.GetMultiPrice(2), existing);
    EXPECT_EQ(existing->Discount, price.Discount());
}

TEST_F(Prices, VariantsAreCountedAndRemovedByTheir1BasedIndex)
{
    addVariant(u"a"_s, u"1"_s);
    addVariant(u"b"_s, u"2"_s);
    addVariant(u"c"_s, u"3"_s);
    EXPECT_EQ(price.MultiPriceCount(), 3);
    price.RemoveMultiPrice(2);
    EXPECT_EQ(price.GetMultiPrice(2)->Description, u"c"_s);
    EXPECT_EQ(errorOf([&] { price.RemoveMultiPrice(3); }), 9);
    price.clearMultiPrices();
    EXPECT_EQ(price.MultiPriceCount(), 0);
}

TEST_F(Prices, MoreVariantsThanA16BitCountCanSayIsError6)
{
    for (int i = 0; i < 32767; ++i) {
        price.AddMultiPrice();
    }
    EXPECT_EQ(price.MultiPriceCount(), 32767);
    price.AddMultiPrice();
    EXPECT_EQ(errorOf([&] { price.MultiPriceCount(); }), 6);
}

TEST_F(Prices, AVariantIsFoundByItsDiscountedValueAsText)
{
    price.Value = u"77"_s;
    setSpecific(u"10"_s);
    addVariant(u"small"_s, u"10"_s);
    addVariant(u"large"_s, u"20"_s);
    addVariant(u"also large"_s, u"20"_s);
    QString value;
    QString description;
    price.FindMultiPrice(u"18"_s, value, description);
    EXPECT_EQ(value, u"20"_s);
    EXPECT_EQ(description, u"large"_s);
    price.FindMultiPrice(localised(u"18.0"_s), value, description);
    EXPECT_EQ(value, u"77"_s);
    EXPECT_EQ(description, QString());
}

TEST_F(Prices, WithoutAMatchThePlainValueAndNoDescriptionAreGiven)
{
    price.Value = u"77"_s;
    addVariant(u"small"_s, u"10"_s);
    QString value = u"old"_s;
    QString description = u"old"_s;
    price.FindMultiPrice(u"11"_s, value, description);
    EXPECT_EQ(value, u"77"_s);
    EXPECT_EQ(description, QString());
}

TEST_F(Prices, TheOldPriceIsTheValueAndWithVariantsError28)
{
    price.Value = u"77"_s;
    EXPECT_EQ(price.OldPrice(), u"77"_s);
    price.AddMultiPrice();
    EXPECT_EQ(errorOf([&] { price.OldPrice(); }), 28);
}

TEST_F(Prices, AClonesVariantsPointToTheClonesDiscount)
{
    price.PriceType = 3;
    price.Value = u"77"_s;
    price.Selected = u"5"_s;
    setSpecific(u"10"_s);
    addVariant(u"small"_s, u"10"_s);
    const auto clone = price.CreateClone();
    EXPECT_EQ(clone->PriceType, 3);
    EXPECT_EQ(clone->Value, u"77"_s);
    EXPECT_EQ(clone->Selected, u"5"_s);
    EXPECT_NE(clone->Discount(), price.Discount());
    EXPECT_EQ(clone->Discount()->Specific(), u"10"_s);
    ASSERT_EQ(clone->MultiPriceCount(), 1);
    EXPECT_NE(clone->GetMultiPrice(1), price.GetMultiPrice(1));
    EXPECT_EQ(clone->GetMultiPrice(1)->Discount, clone->Discount());
    EXPECT_EQ(clone->GetMultiPrice(1)->Description, u"small"_s);
    clone->GetMultiPrice(1)->Value = u"99"_s;
    EXPECT_EQ(price.GetMultiPrice(1)->Value, u"10"_s);
}

TEST_F(Prices, WhatIsNoNumberIsError13)
{
    EXPECT_EQ(errorOf([&] { price.NewPrice(u"ten"_s); }), 13);
    setSpecific(u"ten"_s);
    EXPECT_EQ(errorOf([&] { price.NewPrice(u"10"_s); }), 13);
}

} // namespace
