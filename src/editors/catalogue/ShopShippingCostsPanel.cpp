#include "editors/catalogue/ShopShippingCostsPanel.h"

#include "editors/catalogue/CustomGrid.h"
#include "editors/catalogue/GridTexts.h"
#include "model/ShopClass.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int frameColumns = 2; // from and to, ahead of the types

// One column of costs: the cost of that type (1-based) in each frame, empty where a frame has none.
std::shared_ptr<TextCollection> costColumn(const KeyedCollection<TextCollection>& costs, int type)
{
    auto column = std::make_shared<TextCollection>();
    for (const TextCollection& frame : costs) {
        column->Add(type <= frame.Count() ? frame.Item(type) : QString());
    }
    return column;
}

// One list of costs per frame, from the columns behind the frames' own.
std::shared_ptr<KeyedCollection<TextCollection>> costsByFrame(const CustomGrid::Columns& columns)
{
    auto costs = std::make_shared<KeyedCollection<TextCollection>>();
    for (int frame = 1; frame <= columns[0]->Count(); ++frame) {
        TextCollection row;
        for (std::size_t column = frameColumns; column < columns.size(); ++column) {
            row.Add(columns[column]->Item(frame), u"cost%1"_s.arg(row.Count()));
        }
        costs->Add(std::move(row));
    }
    return costs;
}

} // namespace

ShopShippingCostsPanel::ShopShippingCostsPanel(PanelHost& host, QWidget* parent)
    : CataloguePanel(host, u"Shipping costs"_s, parent)
{
    ShippingGrd = named(new CustomGrid(host, m_frame), "ShippingGrd", u"Shipping costs by weight"_s);
    ShippingGrd->setContents({CellContent::Number});
    m_frame->addColumn(u"Costs by weight and shipping type"_s, PanelFrame::Height::Rest)->addWidget(ShippingGrd, 1);
}

void ShopShippingCostsPanel::fill(ShopClass& shop)
{
    QStringList titles = {u"From (kg)"_s, u"To (kg)"_s};
    CustomGrid::Columns columns = {shop.ShippingCostFrameFrom, shop.ShippingCostFrameTo};
    if (shop.ShippingTypeName) {
        for (const QString& type : *shop.ShippingTypeName) {
            titles << type;
            columns.push_back(shop.ShippingCosts
                                  ? costColumn(*shop.ShippingCosts, static_cast<int>(titles.size()) - frameColumns)
                                  : nullptr);
        }
    }
    ShippingGrd->Init(titles, columns);
}

void ShopShippingCostsPanel::write(ShopClass& shop)
{
    const CustomGrid::Columns columns = ShippingGrd->GetData();
    const bool hasRows = columns[0] != nullptr;
    shop.ShippingCostFrameFrom = hasRows ? rekeyed(*columns[0], "from") : nullptr;
    shop.ShippingCostFrameTo = hasRows ? rekeyed(*columns[1], "to") : nullptr;
    shop.ShippingCosts = hasRows ? costsByFrame(columns) : nullptr;
}
