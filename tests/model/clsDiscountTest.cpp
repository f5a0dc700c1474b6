#include "model/clsDiscount.h"

#include "base/Dates.h"
#include "base/Numbers.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A shop, a category and a product, as far as discounts go.
class Discounts : public testing::Test
{
protected:
    Discounts()
    {
        shop->AddChildDiscount(category, u"2"_s);
        category->AddChildDiscount(product, u"3"_s);
        category->Status = DiscountStatus::Inherit;
        product->Status = DiscountStatus::Inherit;
    }

    std::shared_ptr<clsDiscount> make() { return std::make_shared<clsDiscount>(clock); }
    QString day(int offset) const { return localDateText(clock.day.addDays(offset)); }
    void push() { shop->SendDiscountToChilds(shop->DateFrom, shop->DateTo); }
    void setToAll(clsDiscount& discount, const QString& percent)
    {
        discount.Status = DiscountStatus::ToAll;
        discount.setApplyToWhole(percent);
    }

    FixedClock clock{QDate(2024, 5, 15)};
    std::shared_ptr<clsDiscount> shop = make();
    std::shared_ptr<clsDiscount> category = make();
    std::shared_ptr<clsDiscount> product = make();
};

TEST_F(Discounts, ANewOneHasNoStatusAndNoTexts)
{
    const auto discount = make();
    EXPECT_EQ(discount->Status, 0);
    EXPECT_EQ(discount->ParentStatus, 0);
    for (const QString& text : {discount->DateFrom, discount->DateTo, discount->Inherit, discount->Specific(),
                                discount->ApplyToWhole(), discount->Value(u"10"_s)}) {
        EXPECT_EQ(text, QString());
    }
    EXPECT_EQ(discount->Childs().Count(), 0);
    EXPECT_EQ(discount->DependedDiscounts()->Count(), 0);
    EXPECT_EQ(discount->ParentDependDiscounts, nullptr);
    EXPECT_EQ(discount->ParentDiscount(), nullptr);
}

TEST_F(Discounts, PercentagesAreReadInTheUsersForm)
{
    shop->setSpecific(u"7,5"_s);
    shop->setApplyToWhole(u"2.5"_s);
    EXPECT_EQ(shop->Specific(), localised(u"7.5"_s));
    EXPECT_EQ(shop->ApplyToWhole(), localised(u"2.5"_s));
}

TEST_F(Discounts, BandsAreStoredAndReadInTheUsersForm)
{
    clsDependedDiscounts bands;
    clsDependedDiscount& band = bands.Add(u"1,5"_s, u"2.5"_s, u"3,5"_s);
    EXPECT_EQ(band.PriceFrom(), localised(u"1.5"_s));
    EXPECT_EQ(band.PriceTo(), localised(u"2.5"_s));
    EXPECT_EQ(band.Value(), localised(u"3.5"_s));
    band.setValue(u"4,5"_s);
    EXPECT_EQ(bands.Item(1).Value(), localised(u"4.5"_s));
    bands.Add(u"1"_s, u"2"_s, u"3"_s, u"key"_s);
    EXPECT_EQ(errorOf([&] { bands.Add(u"1"_s, u"2"_s, u"3"_s, u"KEY"_s); }), 457);
    EXPECT_EQ(bands.Count(), 2);
    bands.Remove(1);
    EXPECT_EQ(bands.Item(1).PriceFrom(), u"1"_s);
    EXPECT_EQ(errorOf([&] { bands.Item(2); }), 9);
    bands.Clear();
    EXPECT_EQ(bands.Count(), 0);
}

TEST_F(Discounts, AShopToAllReachesAProductThroughAnInheritingCategory)
{
    setToAll(*shop, u"10"_s);
    push();
    EXPECT_EQ(product->Value(u"1"_s), u"10"_s);
    EXPECT_EQ(product->Value(u"99999"_s), u"10"_s);
    EXPECT_EQ(product->Value(u"no number at all"_s), u"10"_s);
}

TEST_F(Discounts, ALevelsOwnToAllAndDependGiveItNothing)
{
    setToAll(*shop, u"10"_s);
    shop->Inherit = u"99"_s;
    EXPECT_EQ(shop->Value(u"50"_s), QString());
    shop->Status = DiscountStatus::Depend;
    shop->DependedDiscounts()->Add(u"10"_s, u"100"_s, u"5"_s);
    shop->ParentDependDiscounts = shop->DependedDiscounts();
    EXPECT_EQ(shop->Value(u"50"_s), QString());
    shop->Status = DiscountStatus::No;
    EXPECT_EQ(shop->Value(u"50"_s), QString());
}

TEST_F(Discounts, AClosedWindowOfTheShopEmptiesEveryInheritBelow)
{
    setToAll(*shop, u"10"_s);
    shop->DateTo = day(-1);
    push();
    EXPECT_EQ(category->Inherit, QString());
    EXPECT_EQ(product->Value(u"50"_s), QString());
}

TEST_F(Discounts, BothEndsOfAWindowCount)
{
    setToAll(*shop, u"10"_s);
    struct Row
    {
        QString from, to;
        bool isOpen;
    };
    for (const Row& row : {Row{day(0), day(0), true}, Row{day(-1), day(0), true}, Row{day(0), {}, true},
                           Row{day(1), {}, false}, Row{{}, day(-1), false}, Row{{}, {}, true}}) {
        shop->DateFrom = row.from;
        shop->DateTo = row.to;
        push();
        EXPECT_EQ(product->Value(u"50"_s), row.isOpen ? u"10"_s : QString()) << row.from.toStdString();
    }
}

TEST_F(Discounts, BothLimitsOfABandAreExclusive)
{
    shop->Status = DiscountStatus::Depend;
    shop->DependedDiscounts()->Add(u"10"_s, u"100"_s, u"5"_s);
    push();
    EXPECT_EQ(product->Value(u"10"_s), QString());
    EXPECT_EQ(product->Value(u"100"_s), QString());
    EXPECT_EQ(product->Value(localised(u"10.01"_s)), u"5"_s);
    EXPECT_EQ(product->Value(localised(u"99.99"_s)), u"5"_s);
    EXPECT_EQ(product->Value(u"9"_s), QString());
}

TEST_F(Discounts, TheFirstOfOverlappingBandsWins)
{
    shop->Status = DiscountStatus::Depend;
    shop->DependedDiscounts()->Add(u"50"_s, u"200"_s, u"7"_s);
    shop->DependedDiscounts()->Add(u"10"_s, u"100"_s, u"5"_s);
    push();
    EXPECT_EQ(product->Value(u"60"_s), u"7"_s);
    EXPECT_EQ(product->Value(u"20"_s), u"5"_s);
}

TEST_F(Discounts, BandsWithoutAMatchGiveNothingEvenWithAPercentageFromAbove)
{
    product->Inherit = u"33"_s;
    auto bands = std::make_shared<clsDependedDiscounts>();
    bands->Add(u"10"_s, u"100"_s, u"5"_s);
    product->ParentDependDiscounts = bands;
    EXPECT_EQ(product->Value(u"500"_s), QString());
}

TEST_F(Discounts, WalkingBandsNeedsNumbers)
{
    auto bands = std::make_shared<clsDependedDiscounts>();
    bands->Add(u"10"_s, u"100"_s, u"5"_s);
    product->ParentDependDiscounts = bands;
    EXPECT_EQ(errorOf([&] { product->Value(u"x"_s); }), 13);
    EXPECT_EQ(errorOf([&] { product->Value(QString()); }), 13);
    bands->Add(QString(), u"x"_s, u"5"_s);
    EXPECT_EQ(product->Value(u"50"_s), u"5"_s); // the bad row is not reached
    EXPECT_EQ(errorOf([&] { product->Value(u"500"_s); }), 13);
}

TEST_F(Discounts, ACategoryNoShieldsItsProducts)
{
    setToAll(*shop, u"10"_s);
    category->Status = DiscountStatus::No;
    push();
    EXPECT_EQ(category->Inherit, u"10"_s);
    EXPECT_EQ(product->Value(u"50"_s), QString());
}

TEST_F(Discounts, ACategoryToAllUsesItsOwnPercentageAndDates)
{
    setToAll(*shop, u"10"_s);
    setToAll(*category, u"20"_s);
    shop->DateTo = day(-1);
    push();
    EXPECT_EQ(category->Inherit, QString());
    EXPECT_EQ(product->Value(u"50"_s), u"20"_s);
    category->DateFrom = day(1);
    push();
    EXPECT_EQ(product->Value(u"50"_s), QString());
}

TEST_F(Discounts, AnInheritingCategoryHandsBandsOnAndNoneWhenTheWindowIsClosed)
{
    shop->Status = DiscountStatus::Depend;
    shop->DependedDiscounts()->Add(u"10"_s, u"100"_s, u"5"_s);
    push();
    EXPECT_EQ(product->ParentDependDiscounts, shop->DependedDiscounts());
    EXPECT_EQ(product->Value(u"50"_s), u"5"_s);
    shop->DateTo = day(-1);
    push();
    EXPECT_EQ(product->ParentDependDiscounts, nullptr);
    EXPECT_EQ(product->Value(u"50"_s), QString());
}

TEST_F(Discounts, BandsThatAnInheritingLevelHasAreHandedOnWithinTheDatesOfThePushOnly)
{
    shop->Status = DiscountStatus::Depend;
    shop->DependedDiscounts()->Add(u"10"_s, u"100"_s, u"5"_s);
    push();
    category->SendDiscountToChilds(QString(), day(-1));
    EXPECT_EQ(category->ParentDependDiscounts, shop->DependedDiscounts());
    EXPECT_EQ(product->ParentDependDiscounts, nullptr);
    EXPECT_EQ(product->Value(u"50"_s), QString());
    category->SendDiscountToChilds(QString(), day(0));
    EXPECT_EQ(product->Value(u"50"_s), u"5"_s);
}

TEST_F(Discounts, TheDatesOfAnInheritingLevelHaveNoEffectInValue)
{
    setToAll(*shop, u"10"_s);
    push();
    product->DateTo = day(-1);
    EXPECT_EQ(product->Value(u"50"_s), u"10"_s);
    category->DateTo = day(-1);
    push();
    EXPECT_EQ(product->Value(u"50"_s), u"10"_s);
}

TEST_F(Discounts, ADateWindowAtTheShopAlsoClosesAChainOfInheritFurtherDown)
{
    // A shop that hands nothing on itself still passes its dates down.
    shop->Status = DiscountStatus::Inherit;
    shop->Inherit = u"8"_s;
    shop->DateTo = day(-1);
    push();
    EXPECT_EQ(product->Value(u"50"_s), QString());
    shop->DateTo = day(0);
    push();
    EXPECT_EQ(product->Value(u"50"_s), u"8"_s);
}

TEST_F(Discounts, ALevelIsPushedWithTheDatesOfItsCaller)
{
    shop->Status = DiscountStatus::Inherit;
    shop->Inherit = u"8"_s;
    shop->SendDiscountToChilds(day(1), QString());
    EXPECT_EQ(product->Value(u"50"_s), QString());
    shop->SendDiscountToChilds(day(-1), day(1));
    EXPECT_EQ(product->Value(u"50"_s), u"8"_s);
    // A level with a percentage for all below takes its own dates instead.
    setToAll(*shop, u"9"_s);
    shop->SendDiscountToChilds(day(1), QString());
    EXPECT_EQ(product->Value(u"50"_s), u"9"_s);
}

TEST_F(Discounts, FromToAllToDependTheOldPercentageStaysAndShowsAgainWithoutBands)
{
    setToAll(*shop, u"10"_s);
    push();
    shop->Status = DiscountStatus::Depend;
    shop->DependedDiscounts()->Add(u"10"_s, u"100"_s, u"5"_s);
    push();
    EXPECT_EQ(category->Inherit, u"10"_s);
    EXPECT_EQ(product->Value(u"50"_s), u"5"_s);
    shop->DependedDiscounts()->Clear();
    push();
    EXPECT_EQ(product->Value(u"50"_s), u"10"_s);
}

TEST_F(Discounts, BandsAreSharedWithTheLevelsBelow)
{
    shop->Status = DiscountStatus::Depend;
    shop->DependedDiscounts()->Add(u"10"_s, u"100"_s, u"5"_s);
    push();
    shop->DependedDiscounts()->Clear();
    shop->DependedDiscounts()->Add(u"10"_s, u"100"_s, u"6"_s);
    EXPECT_EQ(product->Value(u"50"_s), u"6"_s);
}

TEST_F(Discounts, ASpecificCategorySendsNothingAndItsProductsKeepWhatTheyHad)
{
    setToAll(*shop, u"10"_s);
    push();
    category->Status = DiscountStatus::Specific;
    category->setSpecific(u"40"_s);
    setToAll(*shop, u"11"_s);
    push();
    EXPECT_EQ(category->Inherit, u"11"_s);
    EXPECT_EQ(product->Value(u"50"_s), u"10"_s);
}

TEST_F(Discounts, ASpecificLevelStillDropsTheBandsBelow)
{
    auto bands = std::make_shared<clsDependedDiscounts>();
    bands->Add(u"10"_s, u"100"_s, u"5"_s);
    product->ParentDependDiscounts = bands;
    category->Status = DiscountStatus::Specific;
    push();
    EXPECT_EQ(product->ParentDependDiscounts, nullptr);
}

TEST_F(Discounts, ASpecificPercentageCountsWithinItsDatesOnly)
{
    product->Status = DiscountStatus::Specific;
    product->setSpecific(u"12,5"_s);
    EXPECT_EQ(product->Value(u"50"_s), localised(u"12.5"_s));
    product->DateFrom = day(1);
    EXPECT_EQ(product->Value(u"50"_s), QString());
    clock.day = clock.day.addDays(1);
    EXPECT_EQ(product->Value(u"50"_s), localised(u"12.5"_s));
}

TEST_F(Discounts, InheritedDiscountsDoNotNoticeMidnight)
{
    setToAll(*shop, u"10"_s);
    shop->DateTo = day(0);
    push();
    clock.day = clock.day.addDays(5);
    EXPECT_EQ(product->Value(u"50"_s), u"10"_s);
    push();
    EXPECT_EQ(product->Value(u"50"_s), QString());
}

TEST_F(Discounts, NoProductIsEmptyWhateverTheTreeSays)
{
    setToAll(*shop, u"10"_s);
    product->Status = DiscountStatus::No;
    push();
    EXPECT_EQ(product->Inherit, u"10"_s);
    EXPECT_EQ(product->Value(u"50"_s), QString());
}

TEST_F(Discounts, ADateThatIsNoDateIsError13)
{
    setToAll(*shop, u"10"_s);
    shop->DateFrom = u"soon"_s;
    EXPECT_EQ(errorOf([&] { push(); }), 13);
    product->DateTo = u"later"_s;
    EXPECT_EQ(errorOf([&] { product->Value(u"50"_s); }), 13);
    shop->Status = DiscountStatus::No;
    EXPECT_EQ(errorOf([&] { shop->SendDiscountToChilds(u"soon"_s, QString()); }), 13);
}

TEST_F(Discounts, ThePushMakesEachLevelTheParentOfTheNext)
{
    push();
    EXPECT_EQ(category->ParentDiscount(), shop);
    EXPECT_EQ(product->ParentDiscount(), category);
}

TEST_F(Discounts, SettingAParentRunsDownTheTree)
{
    const auto above = make();
    shop->setParentDiscount(above);
    EXPECT_EQ(shop->ParentDiscount(), above);
    EXPECT_EQ(category->ParentDiscount(), shop);
    EXPECT_EQ(product->ParentDiscount(), category);
}

TEST_F(Discounts, ChildrenAreKeptUnderTheirKeys)
{
    EXPECT_EQ(shop->Childs().Item(u"2"_s), category);
    EXPECT_EQ(errorOf([&] { shop->AddChildDiscount(make(), u"2"_s); }), 457);
    shop->RemoveChildDiscount(u"2"_s);
    EXPECT_EQ(shop->Childs().Count(), 0);
    EXPECT_EQ(errorOf([&] { shop->RemoveChildDiscount(u"2"_s); }), 5);
    EXPECT_EQ(errorOf([&] { product->RemoveChildDiscount(u"2"_s); }), 5);
}

TEST_F(Discounts, AClonedOneHasDatesInheritSpecificAndStatusAndNothingElse)
{
    setToAll(*category, u"20"_s);
    category->DateFrom = day(-1);
    category->DateTo = day(1);
    category->Inherit = u"3"_s;
    category->setSpecific(u"4"_s);
    category->DependedDiscounts()->Add(u"1"_s, u"2"_s, u"3"_s);
    category->ParentDependDiscounts = category->DependedDiscounts();
    category->ParentStatus = 9;
    category->setParentDiscount(shop);
    const auto clone = category->CreateClone();
    EXPECT_EQ(clone->DateFrom, day(-1));
    EXPECT_EQ(clone->DateTo, day(1));
    EXPECT_EQ(clone->Inherit, u"3"_s);
    EXPECT_EQ(clone->Specific(), u"4"_s);
    EXPECT_EQ(clone->Status, DiscountStatus::ToAll);
    EXPECT_EQ(clone->ApplyToWhole(), QString());
    EXPECT_EQ(clone->DependedDiscounts()->Count(), 0);
    EXPECT_EQ(clone->ParentDependDiscounts, nullptr);
    EXPECT_EQ(clone->Childs().Count(), 0);
    EXPECT_EQ(clone->ParentDiscount(), nullptr);
    EXPECT_EQ(clone->ParentStatus, 0);
}

TEST(StatusWords, EachNumberHasItsWordAndBack)
{
    const QList<std::pair<int, QString>> rows = {
        {1, u"No"_s}, {2, u"ToAll"_s}, {3, u"Depend"_s}, {4, u"Inherit"_s}, {5, u"Specific"_s}};
    for (const auto& [number, word] : rows) {
        EXPECT_EQ(StatusFromWord(word), number);
        EXPECT_EQ(StatusToWord(number), word);
    }
}

TEST(StatusWords, AnythingElseIsError94)
{
    for (const QString& word : {u"1"_s, u"no"_s, u"TOALL"_s, u" No"_s, QString()}) {
        EXPECT_EQ(errorOf([&] { StatusFromWord(word); }), 94) << word.toStdString();
    }
    EXPECT_EQ(errorOf([] { StatusToWord(0); }), 94);
    EXPECT_EQ(errorOf([] { StatusToWord(6); }), 94);
}

} // namespace
