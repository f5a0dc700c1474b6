#include "pages/PagesTest.h"
#include "pages/RenderPage.h"

using namespace Qt::StringLiterals;

namespace {

class CheckoutPageTest : public PagesTest
{
protected:
    QString page(const QString& key) { return valueOf(u"checkout"_s, {}, key); }
    void addTax(const QString& name, const QString& percent, bool isChecked)
    {
        clsTax tax;
        tax.TaxName = name;
        tax.setPercent(percent);
        tax.IsChecked = isChecked;
        shop().Taxes.Add(tax);
    }
    void addCharge(const QString& destination, const QString& cost, bool isChecked)
    {
        clsCharge charge;
        charge.Destination = destination;
        charge.Cost = cost;
        charge.IsChecked = isChecked;
        shop().Charges.Add(charge);
    }
};

TEST_F(CheckoutPageTest, AllVariablesStandInTheOrderOfAdding)
{
    markOptions();
    markSlots();
    shop().ShippingChargesAreSelected = true;
    addTax(u"VAT"_s, u"19"_s, true);
    addTax(u"Old VAT"_s, u"16"_s, false);
    addTax(u"Tea tax"_s, u"1.5"_s, true);
    addCharge(u"Moon"_s, u"900"_s, false);
    addCharge(u"Inland"_s, localised(u"4.90"_s), true);
    addCharge(u"Europe"_s, u"9"_s, true);
    shop().SelectedCountries = std::make_shared<TextCollection>();
    shop().SelectedCountries->Add(u"Norway"_s, u"Norway"_s);
    shop().SelectedCountries->Add(u"Austria"_s, u"Austria"_s);
    addToCart(addProduct(u"4"_s, u"Sencha"_s, u"20"_s, addCategory(u"2"_s, u"Tea"_s)), u"20"_s, u"3"_s);

    const QString expected = slotDump(u"BUYINGFORM_MAKEORDER_BUTTON"_s) +
                             optionDump({u"BuyingForm_PageHeaderText"_s, u"BuyingForm_IncludeBreadCrumb"_s,
                                         u"BuyingForm_IncludePageHeader"_s}) +
                             u"error = No\n"
                             "shop_name = Corner Shop\n"
                             "price = 20\n"_s +
                             slotDump(u"CARTPAGE_RECALCULATE_BUTTON"_s) +
                             localised(u"taxes:\n"
                                       "  row\n"
                                       "    tax_name = VAT\n"
                                       "    tax_percent = 19\n"
                                       "  row\n"
                                       "    tax_name = Tea tax\n"
                                       "    tax_percent = 1.5\n"
                                       "ShippingChargesAreSelected = True (boolean)\n"
                                       "TaxesAreSelected = False (boolean)\n"
                                       "charges:\n"
                                       "  row\n"
                                       "    destination = Inland\n"
                                       "    cost = 4.90\n"
                                       "    shop_currency = EUR\n"
                                       "  row\n"
                                       "    destination = Europe\n"
                                       "    cost = 9\n"
                                       "    shop_currency = EUR\n"
                                       "SelectedCountries:\n"
                                       "  row\n"
                                       "    country = Norway\n"
                                       "  row\n"
                                       "    country = Austria\n"_s);
    EXPECT_EQ(dumpOf(u"checkout"_s), expected);
}

TEST_F(CheckoutPageTest, WithoutACheckedTaxOrChargeTheListsAreMissingAndTheSwitchesAreNot)
{
    addTax(u"Old VAT"_s, u"16"_s, false);
    addCharge(u"Moon"_s, u"900"_s, false);
    shop().SelectedCountries = std::make_shared<TextCollection>();
    EXPECT_EQ(page(u"taxes"_s), u"MISSING"_s);
    EXPECT_EQ(page(u"charges"_s), u"MISSING"_s);
    EXPECT_EQ(page(u"SelectedCountries"_s), u"MISSING"_s);
    EXPECT_EQ(page(u"TaxesAreSelected"_s), u"False"_s);
    EXPECT_EQ(page(u"ShippingChargesAreSelected"_s), u"False"_s);
}

TEST_F(CheckoutPageTest, AShopThatWasNeverLoadedHasNoCountries)
{
    ASSERT_EQ(shop().SelectedCountries, nullptr);
    EXPECT_EQ(page(u"SelectedCountries"_s), u"MISSING"_s);
}

TEST_F(CheckoutPageTest, TheFormNeverHasAnError)
{
    EXPECT_EQ(page(u"error"_s), u"No"_s);
    addToCart(addProduct(u"4"_s, u"Sencha"_s, u"20"_s, addCategory(u"2"_s, u"Tea"_s)), u"20"_s, u"1"_s);
    EXPECT_EQ(page(u"error"_s), u"No"_s);
}

TEST_F(CheckoutPageTest, ThePriceIsTheCartsTotalWithTaxAndCharge)
{
    addToCart(addProduct(u"4"_s, u"Sencha"_s, u"10"_s, addCategory(u"2"_s, u"Tea"_s)), u"10"_s, u"3"_s);
    session.Cart->tax = 10;
    session.Cart->Charge = 5;
    EXPECT_EQ(page(u"price"_s), u"16"_s);
    EXPECT_EQ(valueOf(u"cart"_s, {}, u"totalcost"_s), u"30"_s);
}

TEST_F(CheckoutPageTest, ThePageObjectIsNotRead)
{
    const auto tea = addCategory(u"2"_s, u"Tea"_s);
    const QString expected = dumpOf(u"checkout"_s);
    EXPECT_EQ(dumpOf(u"checkout"_s, session.shop), expected);
    EXPECT_EQ(dumpOf(u"checkout"_s, tea), expected);
}

TEST_F(CheckoutPageTest, WithoutACartThePageFails)
{
    session.Cart.reset();
    EXPECT_EQ(errorOf([&] { variablesOf(u"checkout"_s); }), 91);
}

} // namespace
