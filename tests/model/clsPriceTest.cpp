#include "model/clsPrice.h"

#include "base/Numbers.h"
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

TEST_F(Prices, AVariantAddedFromAnotherPriceFollowsTheDiscountOfItsNewOne)
{
    clsPrice other(clock);
    other.Discount()->Status = DiscountStatus::Specific;
    other.Discount()->setSpecific(u"50"_s);
    const auto variant = other.AddMultiPrice();
    variant->Value = u"8"_s;
    EXPECT_EQ(variant->NewValue(), u"4"_s);
    price.AddExistingMultiPrice(variant);
    EXPECT_EQ(variant->Discount, price.Discount());
    EXPECT_EQ(variant->NewValue(), u"8"_s);
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

TEST(NewPrices, ThePriceIsLoweredAndRoundedToTwoDecimalsInShortestForm)
{
    struct Row
    {
        QString price, percent, result;
    };
    const QList<Row> rows = {
        {u"100"_s, u"10"_s, u"90"_s},    {u"19.99"_s, u"15"_s, u"16.99"_s},  {u"19.99"_s, QString(), u"19.99"_s},
        {QString(), u"10"_s, u"0"_s},    {QString(), QString(), u"0"_s},     {u"100"_s, u"100"_s, u"0"_s},
        {u"100"_s, u"-10"_s, u"110"_s},  {u"9.50"_s, u"0"_s, u"9.5"_s},      {u"10.00"_s, QString(), u"10"_s},
        {u"0.5"_s, QString(), u"0.5"_s}, {u"1.005"_s, QString(), u"1.01"_s}, {u"2.675"_s, u"0"_s, u"2.68"_s},
        {u"0.004"_s, QString(), u"0"_s}, {u"-0.004"_s, QString(), u"0"_s},   {u"33.33"_s, u"12.5"_s, u"29.16"_s},
        {u"0.01"_s, u"50"_s, u"0.01"_s}, {u"-5"_s, u"10"_s, u"-4.5"_s},      {u"1000000"_s, u"1"_s, u"990000"_s},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(CalculateNewPrice(localised(row.price), localised(row.percent)), localised(row.result))
            << row.price.toStdString() << " at " << row.percent.toStdString();
    }
}

TEST(NewPrices, WhatIsNoNumberIsError13AndWhatIsTooLargeError6)
{
    EXPECT_EQ(errorOf([] { CalculateNewPrice(u"x"_s, u"10"_s); }), 13);
    EXPECT_EQ(errorOf([] { CalculateNewPrice(u"10"_s, u"x"_s); }), 13);
    EXPECT_EQ(errorOf([] { CalculateNewPrice(u" "_s, u"10"_s); }), 13);
    EXPECT_EQ(errorOf([] { CalculateNewPrice(u"1e308"_s, u"-900"_s); }), 6);
}

TEST(NewPrices, AForeignSeparatorIsNoNumber)
{
    const QString foreign = decimalSeparator() == u"."_s ? u"12,50"_s : u"12.50"_s;
    EXPECT_EQ(errorOf([&] { CalculateNewPrice(foreign, QString()); }), 13);
}

} // namespace
