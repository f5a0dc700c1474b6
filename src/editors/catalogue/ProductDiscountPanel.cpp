#include "editors/catalogue/ProductDiscountPanel.h"

#include "editors/PanelFrame.h"
#include "editors/PanelHost.h"
#include "editors/catalogue/DiscountEditor.h"
#include "editors/catalogue/ObjectOf.h"
#include "model/ShopSession.h"
#include "model/clsCart.h"

using namespace Qt::StringLiterals;

namespace {

// Name, caption, status; whether it uses the percentage, the bands, what is inherited, the dates.
constexpr DiscountOption options[] = {
    {"NoDiscountOpt", "NO DISCOUNT", DiscountStatus::No, false, false, false, false},
    {"SpecificOpt", "SPECIFIC DISCOUNT (%)", DiscountStatus::Specific, true, false, false, true},
    // Two blanks stand in this caption.
    {"InheritOpt", "INHERIT FROM  SHOP, CATEGORY, SUBCATEGORY", DiscountStatus::Inherit, false, false, true, false},
};

} // namespace

ProductDiscountPanel::ProductDiscountPanel(PanelHost& host, QWidget* parent) : Panel(parent), m_host(host)
{
    auto* frame = new PanelFrame(u"Product discount properties"_s, this);
    m_editor = new DiscountEditor(host, options, DiscountEditor::Percent::Specific, frame);
    frame->addButtons(host);
}

void ProductDiscountPanel::SetActiveObject(const CatalogueObject& object)
{
    m_product = objectOf<ProductClass>(object);
    if (!m_product) {
        return;
    }
    // The lines of the cart hold prices that were worked out with the discounts as they are.
    m_editor->setEditable(ConfirmEmptyCart(m_host.session().Cart.get(), m_host.session().prompts));
    clsPrice& price = *m_product->Price();
    m_editor->fill(*price.Discount(), inheritedText(*price.Discount(), price.Value));
}

void ProductDiscountPanel::SaveActiveObject()
{
    if (!m_product) {
        return;
    }
    clsDiscount& discount = *m_product->Price()->Discount();
    m_editor->writeStatus(discount);
    m_editor->write(discount);
}

void ProductDiscountPanel::ClearActiveObject()
{
    m_product.reset();
}
