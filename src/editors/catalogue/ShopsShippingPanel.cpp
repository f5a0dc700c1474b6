#include "editors/catalogue/ShopsShippingPanel.h"

#include "editors/catalogue/CustomGrid.h"
#include "editors/catalogue/GridTexts.h"
#include "model/ShopClass.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ShopsShippingPanel::ShopsShippingPanel(PanelHost& host, QWidget* parent)
    : CataloguePanel(host, u"Shipping types"_s, parent)
{
    ShippingGrd = named(new CustomGrid(host, m_frame), "ShippingGrd", u"Shipping types"_s);
    m_frame->addColumn(u"Delivery options"_s, PanelFrame::Height::Rest)->addWidget(ShippingGrd, 1);
}

void ShopsShippingPanel::fill(ShopClass& shop)
{
    ShippingGrd->Init({u"Shipping Type"_s, u"Description"_s}, {shop.ShippingTypeName, shop.ShippingTypeDescription});
}

void ShopsShippingPanel::write(ShopClass& shop)
{
    const CustomGrid::Columns columns = ShippingGrd->GetData();
    const bool hasRows = columns[0] != nullptr;
    shop.ShippingTypeName = hasRows ? rekeyed(*columns[0], "ship_name") : nullptr;
    shop.ShippingTypeDescription = hasRows ? rekeyed(*columns[1], "ship_desc") : nullptr;
}
