#include "editors/catalogue/ProductsMultipricePanel.h"

#include "editors/catalogue/CustomGrid.h"
#include "model/ShopSession.h"
#include "model/clsCart.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ProductsMultipricePanel::ProductsMultipricePanel(PanelHost& host, QWidget* parent)
    : CataloguePanel(host, u"Multiple prices"_s, parent)
{
    MultipriceGrd = named(new CustomGrid(host, m_frame), "MultipriceGrd", u"Multiple prices"_s);
    MultipriceGrd->setContents({CellContent::Text, CellContent::Number});
    m_frame->addColumn(u"Prices of the product's variants"_s, PanelFrame::Height::Rest)->addWidget(MultipriceGrd, 1);
    m_frame->addButtons(host);
}

void ProductsMultipricePanel::fill(ProductClass& product)
{
    // The lines of the cart hold prices that were worked out with the variants as they are.
    MultipriceGrd->setEnabled(ConfirmEmptyCart(m_host.session().Cart.get(), m_host.session().prompts));
    auto descriptions = std::make_shared<TextCollection>();
    auto values = std::make_shared<TextCollection>();
    for (const std::shared_ptr<clsMultiPrice>& variant : product.Price()->MultiPriceCollection()) {
        descriptions->Add(variant->Description);
        values->Add(variant->Value);
    }
    MultipriceGrd->Init({u"Price Description"_s, u"Price"_s}, {descriptions, values});
}

void ProductsMultipricePanel::write(ProductClass& product)
{
    clsPrice& price = *product.Price();
    price.clearMultiPrices();
    const CustomGrid::Columns columns = MultipriceGrd->GetData();
    for (int row = 1; columns[0] && row <= columns[0]->Count(); ++row) {
        const std::shared_ptr<clsMultiPrice> variant = price.AddMultiPrice();
        variant->Description = columns[0]->Item(row);
        variant->Value = columns[1]->Item(row);
    }
}
