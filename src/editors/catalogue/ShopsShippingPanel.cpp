#include "editors/catalogue/ShopsShippingPanel.h"

#include "editors/PanelFrame.h"
#include "editors/catalogue/CustomGrid.h"
#include "editors/catalogue/GridTexts.h"
#include "editors/catalogue/ObjectOf.h"
#include "model/ShopClass.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ShopsShippingPanel::ShopsShippingPanel(PanelHost& host, QWidget* parent) : Panel(parent)
{
    auto* frame = new PanelFrame(u"Shipping types"_s, this);
    ShippingGrd = named(new CustomGrid(host, frame), "ShippingGrd", u"Shipping types"_s);
    frame->addColumn(u"Delivery options"_s, true)->addWidget(ShippingGrd, 1);
}

void ShopsShippingPanel::SetActiveObject(const CatalogueObject& object)
{
    m_shop = objectOf<ShopClass>(object);
    if (m_shop) {
        ShippingGrd->Init({u"Shipping Type"_s, u"Description"_s},
                          {m_shop->ShippingTypeName, m_shop->ShippingTypeDescription});
    }
}

void ShopsShippingPanel::SaveActiveObject()
{
    if (!m_shop) {
        return;
    }
    const CustomGrid::Columns columns = ShippingGrd->GetData();
    const bool hasRows = columns[0] != nullptr;
    m_shop->ShippingTypeName = hasRows ? rekeyed(*columns[0], "ship_name") : nullptr;
    m_shop->ShippingTypeDescription = hasRows ? rekeyed(*columns[1], "ship_desc") : nullptr;
}

void ShopsShippingPanel::ClearActiveObject()
{
    m_shop.reset();
}
