// The shop's own panels in the real window: its names, countries and discount.
#include "PanelTest.h"

#include <QLabel>
#include <QListWidget>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

class ShopPanels : public PanelTest
{
};

TEST_F(ShopPanels, ShowTheHighestIdAndTheNames)
{
    EXPECT_EQ(in<QLabel>("IdLbl")->text(), u"Max ID = 9"_s);
    EXPECT_EQ(textIn("ShopNameTxt"), u"Fern"_s);
}

TEST_F(ShopPanels, RenameTheRootWhileTheNameIsTyped)
{
    type("ShopNameTxt", u"Fern & Moss"_s);
    EXPECT_EQ(window->SelectedNode->text, u"Fern & Moss"_s);
    EXPECT_EQ(shop().name, u"Fern"_s);
    submit();
    EXPECT_EQ(shop().name, u"Fern & Moss"_s);
}

TEST_F(ShopPanels, WriteEveryCheckedCountryUnderItsName)
{
    press("lblCheckAll");
    submit();
    ASSERT_EQ(shop().SelectedCountries->Count(), 3);
    for (const QString& country : {u"Norway"_s, u"Iceland"_s, u"Malta"_s}) {
        EXPECT_EQ(shop().SelectedCountries->Item(country), country);
    }
    press("lblClearAll");
    auto* list = in<QListWidget>("lstCountries");
    EXPECT_EQ(list->item(1)->checkState(), Qt::Unchecked);
    const QRect box = list->visualItemRect(list->item(1));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(box.left() + 10, box.center().y()));
    submit();
    ASSERT_EQ(shop().SelectedCountries->Count(), 1);
    EXPECT_EQ(shop().SelectedCountries->Item(1), u"Iceland"_s);
    clickNode(u"ID2"_s);
    clickNode(u"ID_SHOP"_s);
    EXPECT_EQ(in<QListWidget>("lstCountries")->item(1)->checkState(), Qt::Checked);
    EXPECT_EQ(in<QListWidget>("lstCountries")->item(0)->checkState(), Qt::Unchecked);
}

TEST_F(ShopPanels, TickACountryByAClickAnywhereInItsRow)
{
    auto* list = in<QListWidget>("lstCountries");
    const QRect row = list->visualItemRect(list->item(1));
    const auto clickAt = [list, &row](int x, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(list->viewport(), button, {}, QPoint(x, row.center().y()));
        return list->item(1)->checkState();
    };
    EXPECT_EQ(clickAt(row.left() + 50), Qt::Checked); // on its name
    EXPECT_EQ(in<QLabel>("CountriesCountLbl")->text(), u"1 of 3 checked"_s);
    EXPECT_EQ(clickAt(row.right() - 5), Qt::Unchecked);
    EXPECT_EQ(clickAt(row.left() + 10), Qt::Checked); // on its box
    EXPECT_EQ(clickAt(row.left() + 50, Qt::RightButton), Qt::Checked);
    EXPECT_EQ(list->item(0)->checkState(), Qt::Unchecked);
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_EQ(list->item(1)->checkState(), Qt::Unchecked);
}

TEST_F(ShopPanels, HideTheCountriesThatTheFilterDoesNotName)
{
    auto* list = in<QListWidget>("lstCountries");
    const auto shown = [list] {
        QStringList names;
        for (int row = 0; row < list->count(); ++row) {
            if (!list->isRowHidden(row)) {
                names << list->item(row)->text();
            }
        }
        return names;
    };
    list->item(0)->setCheckState(Qt::Checked);
    type("CountriesFilterTxt", u"al"_s);
    EXPECT_EQ(shown(), QStringList{u"Malta"_s});
    type("CountriesFilterTxt", u" NOR "_s);
    EXPECT_EQ(shown(), QStringList{u"Norway"_s});
    submit(); // Norway stays checked, and no other is
    ASSERT_EQ(shop().SelectedCountries->Count(), 1);
    EXPECT_EQ(shop().SelectedCountries->Item(1), u"Norway"_s);
    press("lblCheckAll");
    submit();
    ASSERT_EQ(shop().SelectedCountries->Count(), 3) << "the hidden ones belong to all";
    EXPECT_EQ(shop().SelectedCountries->Item(2), u"Iceland"_s);
    type("CountriesFilterTxt", QString());
    EXPECT_EQ(shown(), (QStringList{u"Norway"_s, u"Iceland"_s, u"Malta"_s}));
    type("CountriesFilterTxt", u"al"_s);
    clickNode(u"ID2"_s);
    clickNode(u"ID_SHOP"_s);
    EXPECT_EQ(shown().size(), 3) << "a filter is not kept for later";
}

TEST_F(ShopPanels, TellHowManyCountriesAreChecked)
{
    auto* list = in<QListWidget>("lstCountries");
    auto* count = in<QLabel>("CountriesCountLbl");
    EXPECT_EQ(count->text(), u"0 of 3 checked"_s);
    const QRect box = list->visualItemRect(list->item(1));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(box.left() + 10, box.center().y()));
    EXPECT_EQ(count->text(), u"1 of 3 checked"_s);
    type("CountriesFilterTxt", u"al"_s);
    press("lblCheckAll");
    EXPECT_EQ(count->text(), u"3 of 3 checked"_s);
    press("lblClearAll");
    EXPECT_EQ(count->text(), u"0 of 3 checked"_s);
    reset();
    EXPECT_EQ(count->text(), u"0 of 3 checked"_s);
}

TEST_F(ShopPanels, ThrowAwayWhatWasNotSubmittedOnReset)
{
    type("txtCurrency", u"EUR"_s);
    press("lblCheckAll");
    reset();
    EXPECT_EQ(textIn("txtCurrency"), QString());
    EXPECT_EQ(in<QListWidget>("lstCountries")->item(0)->checkState(), Qt::Unchecked);
    EXPECT_EQ(shop().shop_currency, QString());
}

// Discount -----------------------------------------------------------------------------------------------------------

TEST_F(ShopPanels, WriteTheShopsDiscountAndPushItDown)
{
    category("2")->Discount()->Status = DiscountStatus::Inherit;
    product("4")->Price()->Discount()->Status = DiscountStatus::Inherit;
    click("ShopDiscountSBtn");
    EXPECT_TRUE(in<QRadioButton>("NoDiscountOpt")->isChecked());
    EXPECT_FALSE(in("ApplyTxt")->isEnabled());
    press("ApplyOpt");
    EXPECT_TRUE(in("ApplyTxt")->isEnabled());
    type("ApplyTxt", u"12,5"_s);
    EXPECT_EQ(shop().Discount()->Status, DiscountStatus::No);
    submit();
    EXPECT_EQ(shop().Discount()->Status, DiscountStatus::ToAll);
    EXPECT_EQ(product("4")->Price()->Discount()->Value(u"10"_s), localised(u"12.5"_s));
}

TEST_F(ShopPanels, GreyTheDatesThatADiscountDoesNotUse)
{
    click("ShopDiscountSBtn");
    const std::pair<const char*, bool> options[] = {{"DependOpt", true}, {"NoDiscountOpt", false}, {"ApplyOpt", true}};
    for (const auto& [option, used] : options) {
        press(option);
        for (const char* field : {"DateFromTxt", "DateToTxt"}) {
            const QColor colour = in(field)->palette().color(QPalette::Base);
            EXPECT_EQ(colour, used ? QColor(255, 255, 255) : QColor(192, 192, 192)) << option;
        }
    }
}

TEST_F(ShopPanels, LeaveTheBandsInPlaceWhenTheGridIsEmpty)
{
    shop().Discount()->Status = DiscountStatus::Depend;
    shop().Discount()->DependedDiscounts()->Add(u"1"_s, u"20"_s, u"5"_s);
    click("ShopDiscountSBtn");
    clickCell(in<CustomGrid>("DiscountGrd"), 0, 3);
    submit();
    ASSERT_EQ(shop().Discount()->DependedDiscounts()->Count(), 1);
    reset();
    EXPECT_EQ(rowOf(in<CustomGrid>("DiscountGrd"), 0), (QStringList{u"1"_s, u"20"_s, u"5"_s}));
}

TEST_F(ShopPanels, ShowTheBandsOnlyWhereThePriceDecides)
{
    click("ShopDiscountSBtn");
    EXPECT_FALSE(in("BaseGrd")->isVisible());
    press("DependOpt");
    EXPECT_TRUE(in("BaseGrd")->isVisible());
    auto* grid = in<CustomGrid>("DiscountGrd");
    addRow(grid, {u"1,5"_s, u"100"_s, u"5"_s});
    addRow(grid, {u"100"_s, u"200"_s, u"7.5"_s});
    submit();
    submit(); // saving again changes nothing
    const clsDependedDiscounts& bands = *shop().Discount()->DependedDiscounts();
    ASSERT_EQ(bands.Count(), 2);
    EXPECT_EQ(bands.Item(1).PriceFrom(), localised(u"1.5"_s));
    EXPECT_EQ(bands.Item(2).Value(), localised(u"7.5"_s));
    press("ApplyOpt");
    EXPECT_FALSE(in("BaseGrd")->isVisible());
}

TEST_F(ShopPanels, CanBeReadButNotEditedWhileTheCartIsKept)
{
    shop().Discount()->Status = DiscountStatus::Depend;
    shop().Discount()->DependedDiscounts()->Add(u"1"_s, u"2"_s, u"3"_s);
    putIntoCart("4");
    answerTheCartQuestion(false);
    click("ShopDiscountSBtn");
    EXPECT_TRUE(in<QRadioButton>("DependOpt")->isChecked());
    EXPECT_EQ(rowOf(in<CustomGrid>("DiscountGrd"), 0), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
    for (const char* name :
         {"NoDiscountOpt", "ApplyOpt", "DependOpt", "ApplyTxt", "DateFromTxt", "DateToTxt", "DiscountGrd", "BaseGrd"}) {
        EXPECT_FALSE(in(name)->isEnabled()) << name;
    }
    EXPECT_EQ(window->session().Cart->Count(), 1);

    answerTheCartQuestion(true);
    reset();
    EXPECT_TRUE(in("DependOpt")->isEnabled());
    EXPECT_TRUE(in("DateFromTxt")->isEnabled());
    EXPECT_EQ(window->session().Cart->Count(), 0);
}

TEST_F(ShopPanels, KeepADiscountStatusThatTheyHaveNoOptionFor)
{
    for (const int status : {DiscountStatus::Inherit, DiscountStatus::Specific}) {
        shop().Discount()->Status = status;
        click("ShopDiscountSBtn");
        for (const char* option : {"NoDiscountOpt", "ApplyOpt", "DependOpt"}) {
            EXPECT_FALSE(in<QRadioButton>(option)->isChecked()) << option;
        }
        submit();
        EXPECT_EQ(shop().Discount()->Status, status);
        click("ShopGeneralSBtn");
    }
}

} // namespace
