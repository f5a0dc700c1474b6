#include "model/clsCart.h"

#include "ShopFixture.h"

using namespace Qt::StringLiterals;

namespace {

class Carts : public ShopFixture
{
protected:
    Carts()
    {
        load(shopFile(
            category("2", product("3", "<Price>10</Price>") +
                              product("4", "<MultiplePrice><PriceDescription>small</PriceDescription><MPrice>5</MPrice>"
                                           "</MultiplePrice><MultiplePrice><PriceDescription>large"
                                           "</PriceDescription><MPrice>8</MPrice></MultiplePrice>"))));
        session.registerShop();
        session.Cart = std::make_unique<clsCart>(session.services);
    }

    clsCart& cart() { return *session.Cart; }
    void add(const QString& id, const QString& price, const QString& quantity)
    {
        const auto product = session.objects.Product(id);
        cart().AddNewProduct(id, product->name, CopyProductForPreview(*product), price, quantity);
    }
};

TEST_F(Carts, TheTotalIsRoundedToTwoDecimals)
{
    add(u"3"_s, u"10"_s, u"1"_s);
    cart().tax = 7.77F;
    EXPECT_EQ(cart().TotalCost(), localised(u"10.78"_s));
    cart().tax = 0;
    cart().Charge = 0.004F;
    EXPECT_EQ(cart().TotalCost(), u"10"_s);
}

TEST_F(Carts, ANewCartIsEmpty)
{
    EXPECT_EQ(cart().Count(), 0);
    EXPECT_EQ(cart().TotalCost(), u"0"_s);
    EXPECT_EQ(errorOf([&] { cart().Item(1); }), 9);
    EXPECT_EQ(errorOf([&] { cart().Item(u"310"_s); }), 5);
}

TEST_F(Carts, ALineIsKeptUnderIdAndPrice)
{
    add(u"3"_s, u"10"_s, u"2"_s);
    ASSERT_EQ(cart().Count(), 1);
    const auto line = cart().Item(u"310"_s);
    EXPECT_EQ(line, cart().Item(1));
    EXPECT_EQ(line->id, u"3"_s);
    EXPECT_EQ(line->Quantity, u"2"_s);
    EXPECT_EQ(line->SelectedPrice(), u"10"_s);
    EXPECT_EQ(line->ProductName(), u"P3"_s);
}

TEST_F(Carts, ALineAsksTheCatalogueForItsProduct)
{
    add(u"3"_s, u"10"_s, u"2"_s);
    session.objects.Product(u"3"_s)->name = u"renamed"_s;
    EXPECT_EQ(cart().Item(1)->ParentProduct(), session.objects.Product(u"3"_s));
    EXPECT_EQ(cart().Item(1)->ProductName(), u"renamed"_s);
}

TEST_F(Carts, TheSameProductAtTheSamePriceAddsUp)
{
    add(u"3"_s, u"10"_s, u"1"_s);
    add(u"3"_s, u"10"_s, u"2"_s);
    ASSERT_EQ(cart().Count(), 1);
    EXPECT_EQ(cart().Item(1)->Quantity, u"3"_s);
    add(u"3"_s, u"10"_s, u"1.5 pieces"_s);
    EXPECT_EQ(cart().Item(1)->Quantity, localised(u"4.5"_s));
    add(u"3"_s, u"10"_s, u"many"_s);
    // The sum was written with the user's separator, and the plain scan stops at a comma.
    EXPECT_EQ(cart().Item(1)->Quantity, localised(u"4.5"_s) == u"4.5"_s ? u"4.5"_s : u"4"_s);
}

TEST_F(Carts, AnotherPriceMakesAnotherLine)
{
    add(u"4"_s, u"5"_s, u"1"_s);
    add(u"4"_s, u"8"_s, u"1"_s);
    EXPECT_EQ(cart().Count(), 2);
    EXPECT_EQ(cart().Item(2)->SelectedPrice(), u"8"_s);
}

TEST_F(Carts, AProductThatHasGoneCannotBeAdded)
{
    const auto product = session.objects.Product(u"3"_s);
    session.objects.Remove(u"ID3"_s);
    EXPECT_EQ(errorOf([&] { cart().AddNewProduct(u"3"_s, u"P3"_s, product, u"10"_s, u"1"_s); }), 5);
    EXPECT_EQ(cart().Count(), 0);
}

TEST_F(Carts, RecalculatingSetsAQuantityAndZeroRemovesTheLine)
{
    add(u"3"_s, u"10"_s, u"1"_s);
    cart().Recalculate(u"3"_s, u"10"_s, u"7 or so"_s);
    EXPECT_EQ(cart().Item(1)->Quantity, u"7 or so"_s);
    cart().Recalculate(u"3"_s, u"10"_s, u"0.0"_s);
    EXPECT_EQ(cart().Count(), 1);
    cart().Recalculate(u"3"_s, u"10"_s, u"0"_s);
    EXPECT_EQ(cart().Count(), 0);
}

TEST_F(Carts, RecalculatingALineThatIsNotThereDoesNothing)
{
    add(u"3"_s, u"10"_s, u"1"_s);
    cart().Recalculate(u"3"_s, u"11"_s, u"0"_s);
    cart().Recalculate(u"99"_s, u"10"_s, u"5"_s);
    EXPECT_EQ(cart().Count(), 1);
    EXPECT_EQ(cart().Item(1)->Quantity, u"1"_s);
}

TEST_F(Carts, APriceNameIsThatOfTheMatchingVariant)
{
    add(u"4"_s, u"8"_s, u"1"_s);
    EXPECT_EQ(cart().Item(1)->PriceName(), u"large"_s);
    // Without a match the last answer stays.
    cart().Item(1)->setSelectedPrice(u"77"_s);
    EXPECT_EQ(cart().Item(1)->PriceName(), u"large"_s);
    session.objects.Product(u"4"_s)->Price()->clearMultiPrices();
    EXPECT_EQ(cart().Item(1)->PriceName(), QString());
}

TEST_F(Carts, APriceNameComparesTheDiscountedValue)
{
    const auto discount = session.objects.Product(u"4"_s)->Price()->Discount();
    discount->Status = DiscountStatus::Specific;
    discount->setSpecific(u"50"_s);
    add(u"4"_s, u"4"_s, u"1"_s);
    EXPECT_EQ(cart().Item(1)->PriceName(), u"large"_s);
}

TEST_F(Carts, TheTotalTakesPricesWithoutQuantitiesThenTaxThenCharge)
{
    add(u"3"_s, u"10"_s, u"3"_s);
    cart().tax = 10;
    cart().Charge = 5;
    EXPECT_EQ(cart().TotalCost(), u"16"_s);
    add(u"4"_s, localised(u"0.1"_s), u"1"_s);
    EXPECT_EQ(cart().TotalCost(), localised(u"16.11"_s));
}

TEST_F(Carts, TheTotalIsComputedInSingles)
{
    cart().tax = 0;
    add(u"3"_s, localised(u"16777216"_s), u"1"_s);
    add(u"3"_s, u"1"_s, u"1"_s);
    // A single is too coarse for the 1 at the end of so large a number.
    EXPECT_EQ(cart().TotalCost(), u"16777216"_s);
}

TEST_F(Carts, TaxIsAddedInSinglesToo)
{
    // In doubles the two totals would be 1320987.625 and 1469135.75, which are other singles.
    add(u"3"_s, localised(u"1234567.89"_s), u"1"_s);
    cart().tax = 7;
    EXPECT_EQ(cart().TotalCost(), localised(u"1320987.8"_s));
    cart().tax = 19;
    EXPECT_EQ(cart().TotalCost(), localised(u"1469135.9"_s));
}

TEST_F(Carts, TheTotalNeedsNumbers)
{
    add(u"3"_s, u"ten"_s, u"1"_s);
    EXPECT_EQ(errorOf([&] { cart().TotalCost(); }), 13);
}

TEST_F(Carts, ClearingKeepsTaxAndCharge)
{
    add(u"3"_s, u"10"_s, u"3"_s);
    cart().tax = 10;
    cart().Charge = 5;
    cart().Clear();
    EXPECT_EQ(cart().Count(), 0);
    EXPECT_EQ(cart().TotalCost(), u"5"_s);
    EXPECT_EQ(cart().tax, 10.0F);
}

TEST_F(Carts, LinesAreRemovedByPositionAndKey)
{
    add(u"3"_s, u"10"_s, u"1"_s);
    add(u"4"_s, u"5"_s, u"1"_s);
    add(u"4"_s, u"8"_s, u"1"_s);
    cart().Remove(1);
    cart().Remove(u"48"_s);
    ASSERT_EQ(cart().Count(), 1);
    EXPECT_EQ(cart().Item(1)->SelectedPrice(), u"5"_s);
}

const QString emptyTitle = u"Your shopping cart isn't empty"_s;
const QString emptyQuestion = u"Do you want make changs and empty cart?\r\n\r\nYES - cart will be emptied\r\n"
                              "NO - changing will be impossible"_s;

TEST_F(Carts, EmptyingAnEmptyCartAsksNothing)
{
    EXPECT_TRUE(ConfirmEmptyCart(&cart(), prompts));
}

TEST_F(Carts, EmptyingIsAskedForAndDoneOnYes)
{
    add(u"3"_s, u"10"_s, u"3"_s);
    prompts.answerYesNo(emptyTitle, emptyQuestion, true);
    EXPECT_TRUE(ConfirmEmptyCart(&cart(), prompts));
    EXPECT_EQ(cart().Count(), 0);
}

TEST_F(Carts, EmptyingIsNotDoneOnNo)
{
    add(u"3"_s, u"10"_s, u"3"_s);
    prompts.answerYesNo(emptyTitle, emptyQuestion, false);
    EXPECT_FALSE(ConfirmEmptyCart(&cart(), prompts));
    EXPECT_EQ(cart().Count(), 1);
}

TEST_F(Carts, EmptyingWithoutACartIsError91)
{
    EXPECT_EQ(errorOf([&] { ConfirmEmptyCart(nullptr, prompts); }), 91);
}

} // namespace
