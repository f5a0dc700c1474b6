// The shop's tables in the real window: taxes, charges, shipping types and what they cost.
#include "PanelTest.h"
#include "editors/catalogue/ProductTaxesPanel.h"
#include "editors/catalogue/ShopShippingCostsPanel.h"

#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

class ShopTables : public PanelTest
{
protected:
    static QStringList texts(const std::shared_ptr<TextCollection>& collection)
    {
        return collection ? QStringList(collection->begin(), collection->end()) : QStringList{u"absent"_s};
    }
};

// Taxes and charges --------------------------------------------------------------------------------------------------

TEST_F(ShopTables, ShowTheTaxesWithTheirPictures)
{
    click("ShopTaxesSBtn");
    auto* grid = in<CustomGrid>("TaxGrd");
    EXPECT_EQ(grid->Tag(), u"Tax"_s);
    EXPECT_EQ(rowOf(grid, 1), (QStringList{u"Local"_s, localised(u"7.5"_s), QString()}));
    const auto picture = [&](int row) {
        return grid->BaseGrd->item(row, 2)->data(Qt::DecorationRole).value<QPixmap>();
    };
    EXPECT_FALSE(picture(0).isNull());
    EXPECT_NE(picture(0).toImage(), picture(1).toImage());
}

TEST_F(ShopTables, ShareTheWidthOfTheTaxGridAmongItsColumns)
{
    click("ShopTaxesSBtn");
    QCoreApplication::processEvents();
    const auto* grid = in<CustomGrid>("TaxGrd");
    const int column =
        (grid->width() - 130) / 3; // the links and their margin take 120, and a tax grid's columns 10 more
    ASSERT_GT(column, 60);
    for (int place = 0; place < 3; ++place) {
        EXPECT_EQ(grid->BaseGrd->columnWidth(place), column) << place;
    }
    EXPECT_EQ(grid->BaseGrd->columnWidth(3), 113);
}

TEST_F(ShopTables, PutATaxToUseOnlyWhenTaxesAreSelected)
{
    click("ShopTaxesSBtn");
    EXPECT_TRUE(in<QRadioButton>("optNoTax")->isChecked());
    EXPECT_FALSE(in("TaxGrd")->isEnabled());
    press("optSelectTax");
    EXPECT_TRUE(in("TaxGrd")->isEnabled());
    EXPECT_FALSE(shop().TaxesAreSelected);
    submit();
    EXPECT_TRUE(shop().TaxesAreSelected);
    press("optNoTax");
    EXPECT_FALSE(in("TaxGrd")->isEnabled());
}

TEST_F(ShopTables, LeaveAToggledUseInForceOnReset)
{
    click("ShopTaxesSBtn");
    press("optSelectTax");
    auto* grid = in<CustomGrid>("TaxGrd");
    clickCell(grid, 1, 2);
    EXPECT_TRUE(shop().Taxes.Item(2).IsChecked);
    typeIntoCell(grid, 1, 0, u"Nothing"_s);
    reset();
    EXPECT_TRUE(shop().Taxes.Item(2).IsChecked);
    EXPECT_EQ(cell(grid, 1, 0), u"Local"_s);
    press("optSelectTax");
    clickCell(grid, 1, 2);
    EXPECT_FALSE(shop().Taxes.Item(2).IsChecked);
}

TEST_F(ShopTables, AppendATaxToTheShopAtOnce)
{
    click("ShopTaxesSBtn");
    press("optSelectTax");
    auto* grid = in<CustomGrid>("TaxGrd");
    addRow(grid, {u"Eco"_s, u"1,5"_s});
    ASSERT_EQ(shop().Taxes.Count(), 3);
    EXPECT_EQ(shop().Taxes.Item(3).TaxName, QString());
    clickCell(grid, 2, 2);
    EXPECT_TRUE(shop().Taxes.Item(3).IsChecked);
    submit();
    EXPECT_EQ(shop().Taxes.Item(3).TaxName, u"Eco"_s);
    EXPECT_EQ(shop().Taxes.Item(3).Percent(), localised(u"1.5"_s));
    EXPECT_TRUE(shop().Taxes.Item(3).IsChecked);
}

TEST_F(ShopTables, ToggleTheRowsOwnTaxBelowARemovedOne)
{
    click("ShopTaxesSBtn");
    press("optSelectTax");
    auto* grid = in<CustomGrid>("TaxGrd");
    clickCell(grid, 0, 3);
    ASSERT_EQ(grid->BaseGrd->rowCount(), 1);
    EXPECT_EQ(shop().Taxes.Count(), 2); // the shop hears of it at Submit
    clickCell(grid, 0, 2);
    EXPECT_TRUE(shop().Taxes.Item(1).IsChecked);
    EXPECT_TRUE(shop().Taxes.Item(2).IsChecked);
    submit();
    ASSERT_EQ(shop().Taxes.Count(), 1);
    EXPECT_EQ(shop().Taxes.Item(1).TaxName, u"Local"_s);
    clickCell(grid, 0, 2);
    EXPECT_FALSE(shop().Taxes.Item(1).IsChecked);
}

TEST_F(ShopTables, ToggleAndAppendAChargeAtOnceAndKeepBothOnReset)
{
    click("ShippingChargesSBtn");
    press("cmbSelectCharges");
    auto* grid = in<CustomGrid>("gridCharges");
    const auto picture = [&](int row) {
        return grid->BaseGrd->item(row, 2)->data(Qt::DecorationRole).value<QPixmap>().toImage();
    };
    EXPECT_NE(picture(0), picture(1));
    clickCell(grid, 0, 2);
    EXPECT_TRUE(shop().Charges.Item(1).IsChecked);
    EXPECT_EQ(picture(0), picture(1));
    addRow(grid, {u"Moon"_s, u"99"_s});
    EXPECT_EQ(shop().Charges.Count(), 3);
    EXPECT_NE(picture(2), picture(0));
    reset();
    EXPECT_TRUE(shop().Charges.Item(1).IsChecked);
    ASSERT_EQ(shop().Charges.Count(), 3);
    EXPECT_EQ(rowOf(grid, 2), (QStringList{QString(), QString(), QString()}));
}

TEST_F(ShopTables, KeepTheCostOfAChargeAsItIsTyped)
{
    click("ShippingChargesSBtn");
    EXPECT_FALSE(in("gridCharges")->isEnabled());
    press("cmbSelectCharges");
    auto* grid = in<CustomGrid>("gridCharges");
    typeIntoCell(grid, 0, 1, u"4,5.6"_s);
    clickCell(grid, 1, 2);
    addRow(grid, {u"Moon"_s, u"99"_s});
    EXPECT_EQ(shop().Charges.Count(), 3);
    submit();
    EXPECT_TRUE(shop().ShippingChargesAreSelected);
    EXPECT_EQ(shop().Charges.Item(1).Cost, u"4,5.6"_s);
    EXPECT_FALSE(shop().Charges.Item(2).IsChecked);
    EXPECT_EQ(shop().Charges.Item(3).Destination, u"Moon"_s);
    press("cmbNoCharges");
    EXPECT_FALSE(in("gridCharges")->isEnabled());
}

TEST_F(ShopTables, RemoveTheLastChargeForGoodAtSubmit)
{
    click("ShippingChargesSBtn");
    press("cmbSelectCharges");
    auto* grid = in<CustomGrid>("gridCharges");
    clickCell(grid, 0, 3);
    clickCell(grid, 0, 3);
    submit();
    EXPECT_EQ(shop().Charges.Count(), 0);
}

// Shipping -----------------------------------------------------------------------------------------------------------

TEST_F(ShopTables, EditTheShippingTypesThoughNoButtonLeadsToThem)
{
    EXPECT_FALSE(find("ShopsShippingPnl")->isVisible());
    showPanel("ShopsShippingPnl");
    auto* grid = in<CustomGrid>("ShippingGrd");
    addRow(grid, {u"Post"_s, u"By letter"_s});
    addRow(grid, {u"Courier"_s, u"By van"_s});
    window->ShowFrame(nullptr, PanelCode::Show);
    EXPECT_EQ(shop().ShippingTypeName->Item(u"ship_name1"_s), u"Courier"_s);
    EXPECT_EQ(shop().ShippingTypeDescription->Item(u"ship_desc0"_s), u"By letter"_s);

    showPanel("ShopsShippingPnl");
    clickCell(grid, 0, 2);
    clickCell(grid, 0, 2);
    window->ShowFrame(nullptr, PanelCode::Show);
    EXPECT_EQ(texts(shop().ShippingTypeName), QStringList{u"absent"_s});
    window->SaveShop();
}

class ShippingCosts : public ShopTables
{
protected:
    void SetUp() override
    {
        PanelTest::SetUp();
        panel = std::make_unique<ShopShippingCostsPanel>(*window, nullptr);
        panel->resize(700, 400);
        panel->show();
        panel->activateWindow();
        QTest::qWait(1);
    }
    void TearDown() override { panel.reset(); }

    void useTypes(const QStringList& names)
    {
        shop().ShippingTypeName = std::make_shared<TextCollection>();
        shop().ShippingTypeDescription = std::make_shared<TextCollection>();
        for (const QString& name : names) {
            shop().ShippingTypeName->Add(name);
            shop().ShippingTypeDescription->Add(name);
        }
    }
    CustomGrid* grid() const { return in<CustomGrid>("ShippingGrd", panel.get()); }

    std::unique_ptr<ShopShippingCostsPanel> panel;
};

TEST_F(ShippingCosts, OfAShopWithoutTypesHaveTheWeightsOnly)
{
    panel->SetActiveObject(window->session().shop);
    EXPECT_EQ(titlesOf(grid()), (QStringList{u"From (kg)"_s, u"To (kg)"_s}));
    EXPECT_EQ(grid()->BaseGrd->rowCount(), 0);
    panel->SaveActiveObject();
    EXPECT_EQ(shop().ShippingCosts, nullptr);
}

TEST_F(ShippingCosts, AreKeptAsOneListAFrame)
{
    useTypes({u"Post"_s, u"Courier"_s});
    panel->SetActiveObject(window->session().shop);
    EXPECT_EQ(titlesOf(grid()), (QStringList{u"From (kg)"_s, u"To (kg)"_s, u"Post"_s, u"Courier"_s}));
    addRow(grid(), {u"0"_s, u"1"_s, u"2"_s, u"3"_s});
    addRow(grid(), {u"1"_s, u"5"_s, u"4"_s, u"6"_s});
    panel->SaveActiveObject();
    panel->SaveActiveObject(); // saving again changes nothing
    EXPECT_EQ(shop().ShippingCostFrameFrom->Item(u"from1"_s), u"1"_s);
    EXPECT_EQ(shop().ShippingCostFrameTo->Item(u"to1"_s), u"5"_s);
    ASSERT_EQ(shop().ShippingCosts->Count(), 2);
    EXPECT_EQ(shop().ShippingCosts->Item(1).Item(u"cost1"_s), u"3"_s);
    EXPECT_EQ(shop().ShippingCosts->Item(2).Item(1), u"4"_s);

    panel->SetActiveObject(window->session().shop);
    EXPECT_EQ(rowOf(grid(), 1), (QStringList{u"1"_s, u"5"_s, u"4"_s, u"6"_s}));
}

TEST_F(ShippingCosts, OfARemovedTypeStayUntilTheyAreSaved)
{
    useTypes({u"Post"_s, u"Courier"_s});
    panel->SetActiveObject(window->session().shop);
    addRow(grid(), {u"0"_s, u"1"_s, u"2"_s, u"3"_s});
    panel->SaveActiveObject();

    showPanel("ShopsShippingPnl");
    clickCell(in<CustomGrid>("ShippingGrd"), 1, 2);
    window->ShowFrame(nullptr, PanelCode::Show);
    EXPECT_EQ(texts(shop().ShippingTypeName), QStringList{u"Post"_s});
    EXPECT_EQ(shop().ShippingCosts->Item(1).Count(), 2);

    panel->SetActiveObject(window->session().shop);
    EXPECT_EQ(titlesOf(grid()), (QStringList{u"From (kg)"_s, u"To (kg)"_s, u"Post"_s}));
    panel->SaveActiveObject();
    EXPECT_EQ(shop().ShippingCosts->Item(1).Count(), 1);
}

TEST_F(ShippingCosts, OfATypeThatIsNewAreEmpty)
{
    useTypes({u"Post"_s});
    panel->SetActiveObject(window->session().shop);
    addRow(grid(), {u"0"_s, u"1"_s, u"2"_s});
    panel->SaveActiveObject();
    useTypes({u"Post"_s, u"Courier"_s});
    panel->SetActiveObject(window->session().shop);
    EXPECT_EQ(rowOf(grid(), 0), (QStringList{u"0"_s, u"1"_s, u"2"_s, QString()}));
}

TEST_F(ShopTables, OfAProductsTaxesShowAndSaveNothing)
{
    ProductTaxesPanel panel(*window, nullptr);
    EXPECT_NE(panel.findChild<QAbstractButton*>(u"TaxCh"_s), nullptr);
    panel.SetActiveObject(product("4"));
    panel.findChild<QAbstractButton*>(u"TaxCh"_s)->setChecked(true);
    panel.SaveActiveObject();
    panel.ClearActiveObject();
    EXPECT_EQ(product("4")->Taxes()->Count(), 0);
}

} // namespace
