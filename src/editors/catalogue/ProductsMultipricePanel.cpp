#include "editors/catalogue/ProductsMultipricePanel.h"

#include "editors/PanelFrame.h"
#include "editors/PanelHost.h"
#include "editors/catalogue/CustomGrid.h"
#include "editors/catalogue/ObjectOf.h"
#include "model/ShopSession.h"
#include "model/clsCart.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ProductsMultipricePanel::ProductsMultipricePanel(PanelHost& host, QWidget* parent) : Panel(parent), m_host(host)
{
    auto* frame = new PanelFrame(u"Multiple prices"_s, this);
    MultipriceGrd = named(new CustomGrid(host, frame), "MultipriceGrd", u"Multiple prices"_s);
    frame->addColumn(u"Prices of the product's variants"_s, true)->addWidget(MultipriceGrd, 1);
    frame->addButtons(host);
}

void ProductsMultipricePanel::SetActiveObject(const CatalogueObject& object)
{
    m_product = objectOf<ProductClass>(object);
    if (!m_product) {
        return;
    }
    // The lines of the cart hold prices that were worked out with the variants as they are.
    MultipriceGrd->setEnabled(ConfirmEmptyCart(m_host.session().Cart.get(), m_host.session().prompts));
    auto descriptions = std::make_shared<TextCollection>();
    auto values = std::make_shared<TextCollection>();
    for (const std::shared_ptr<clsMultiPrice>& variant : m_product->Price()->MultiPriceCollection()) {
        descriptions->Add(variant->Description);
        values->Add(variant->Value);
    }
    MultipriceGrd->Init({u"Price Description"_s, u"Price"_s}, {descriptions, values});
}

void ProductsMultipricePanel::SaveActiveObject()
{
    if (!m_product) {
        return;
    }
    clsPrice& price = *m_product->Price();
    price.clearMultiPrices();
    const CustomGrid::Columns columns = MultipriceGrd->GetData();
    for (int row = 1; columns[0] && row <= columns[0]->Count(); ++row) {
        const std::shared_ptr<clsMultiPrice> variant = price.AddMultiPrice();
        variant->Description = columns[0]->Item(row);
        variant->Value = columns[1]->Item(row);
    }
}

void ProductsMultipricePanel::ClearActiveObject()
{
    m_product.reset();
}
