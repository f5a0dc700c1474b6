#include "model/clsCharge.h"
#include "model/clsTax.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(Taxes, ANewOneIsEmptyAndUnchecked)
{
    const clsTax tax;
    EXPECT_EQ(tax.TaxName, QString());
    EXPECT_EQ(tax.Percent(), QString());
    EXPECT_FALSE(tax.IsChecked);
    EXPECT_EQ(tax.IsCheckedString(), u"N"_s);
}

TEST(Taxes, ThePercentageIsReadInTheUsersForm)
{
    clsTax tax;
    tax.setPercent(u"7,5"_s);
    EXPECT_EQ(tax.Percent(), localised(u"7.5"_s));
    tax.setPercent(u"7.5"_s);
    EXPECT_EQ(tax.Percent(), localised(u"7.5"_s));
}

template <class Row>
void expectExactFlag()
{
    Row row;
    row.setIsCheckedString(u"Y"_s);
    EXPECT_TRUE(row.IsChecked);
    EXPECT_EQ(row.IsCheckedString(), u"Y"_s);
    for (const QString& text : {u"n"_s, u"No"_s, QString(), u" N"_s}) {
        row.setIsCheckedString(text);
        EXPECT_TRUE(row.IsChecked) << text.toStdString();
    }
    row.setIsCheckedString(u"N"_s);
    EXPECT_FALSE(row.IsChecked);
    for (const QString& text : {u"y"_s, u"Yes"_s, u"True"_s}) {
        row.setIsCheckedString(text);
        EXPECT_FALSE(row.IsChecked) << text.toStdString();
    }
}

TEST(Taxes, TheFlagWordIsTestedExactly)
{
    expectExactFlag<clsTax>();
}

TEST(Charges, TheFlagWordIsTestedExactly)
{
    expectExactFlag<clsCharge>();
}

TEST(Charges, ANewOneIsEmptyAndUncheckedAndItsCostStaysAsEntered)
{
    clsCharge charge;
    EXPECT_EQ(charge.Destination, QString());
    EXPECT_EQ(charge.Cost, QString());
    EXPECT_EQ(charge.IsCheckedString(), u"N"_s);
    charge.Cost = u"12,5 or 12.5"_s;
    EXPECT_EQ(charge.Cost, u"12,5 or 12.5"_s);
}

} // namespace
