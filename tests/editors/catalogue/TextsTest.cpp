// What the catalogue's panels say, letter for letter.
#include "PanelTest.h"
#include "editors/LinkLabel.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

struct GridTitles
{
    const char* panel;
    const char* node;
    const char* option; // chosen ahead of the look, or none
    const char* grid;
    const char* titles; // of the columns of data, between bars
};

constexpr GridTitles gridTitles[] = {
    {"ShopDiscountPnl", "ID_SHOP", "DependOpt", "DiscountGrd", "From Price|To Price|Discount Percent"},
    {"ShopTaxesPnl", "ID_SHOP", nullptr, "TaxGrd", "Tax choices|Tax Rates (%)|Use"},
    {"ShippingChargesPnl", "ID_SHOP", nullptr, "gridCharges", "Description|Cost|Use"},
    {"ShopsShippingPnl", "ID_SHOP", nullptr, "ShippingGrd", "Shipping Type|Description"},
    {"CategoryDiscountPnl", "ID2", "DependOpt", "DiscountGrd", "From Price|To Price|Discount Percent"},
    {"ProductsMultipricePnl", "ID4", nullptr, "MultipriceGrd", "Price Description|Price"},
};

struct Caption
{
    const char* panel;
    const char* node;
    const char* control;
    const char* text;
};

constexpr Caption captions[] = {
    {"ShopGeneralPnl", "ID_SHOP", "IdLbl", "Max ID = 9"},
    {"ShopDiscountPnl", "ID_SHOP", "NoDiscountOpt", "NO DISCOUNT"},
    {"ShopDiscountPnl", "ID_SHOP", "ApplyOpt", "APPLY TO ALL SHOP (%)"},
    {"ShopDiscountPnl", "ID_SHOP", "DependOpt", "DEPEND ON PRODUCT PRICE"},
    {"CategoryGeneralPnl", "ID2", "IdLbl", "ID = 2"},
    {"CategoryDiscountPnl", "ID2", "NoDiscountOpt", "NO DISCOUNT"},
    {"CategoryDiscountPnl", "ID2", "ApplyOpt", "APPLY TO ALL CATEGORY (%)"},
    {"CategoryDiscountPnl", "ID2", "DependOpt", "DEPEND ON PRODUCT PRICE"},
    {"CategoryDiscountPnl", "ID2", "InheritOpt", "INHERIT FROM  SHOP, CATEGORY, SUBCATEGORY"},
    {"ProductGeneralPnl", "ID4", "IdLbl", "ID = 4"},
    {"ProductDiscountPnl", "ID4", "NoDiscountOpt", "NO DISCOUNT"},
    {"ProductDiscountPnl", "ID4", "SpecificOpt", "SPECIFIC DISCOUNT (%)"},
    {"ProductDiscountPnl", "ID4", "InheritOpt", "INHERIT FROM  SHOP, CATEGORY, SUBCATEGORY"},
};

class Texts : public PanelTest
{
protected:
    void showPanelOf(const char* node, const char* panel)
    {
        clickNode(QLatin1String(node));
        showPanel(panel);
    }
};

TEST_F(Texts, StandAboveTheColumnsOfEachGrid)
{
    for (const GridTitles& row : gridTitles) {
        SCOPED_TRACE(row.panel);
        showPanelOf(row.node, row.panel);
        if (row.option) {
            press(row.option);
        }
        auto* grid = in<CustomGrid>(row.grid);
        EXPECT_EQ(titlesOf(grid), QString::fromLatin1(row.titles).split(u'|'));
        press(grid->AddItemButtonLbl);
        EXPECT_EQ(cell(grid, grid->BaseGrd->rowCount() - 1, grid->BaseGrd->columnCount() - 1), u"Remove"_s);
        window->ResetActivePanel();
    }
}

TEST_F(Texts, StandOnTheOptionsAndLabelsOfEachPanel)
{
    for (const Caption& row : captions) {
        SCOPED_TRACE(row.control);
        showPanelOf(row.node, row.panel);
        const QWidget* control = in(row.control);
        const auto* label = qobject_cast<const QLabel*>(control);
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        ASSERT_TRUE(label || button);
        EXPECT_EQ(label ? label->text() : button->text(), QString::fromLatin1(row.text));
    }
}

} // namespace
