#include "editors/catalogue/ShopDiscountPanel.h"

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
    {"ApplyOpt", "APPLY TO ALL SHOP (%)", DiscountStatus::ToAll, true, false, false, true},
    {"DependOpt", "DEPEND ON PRODUCT PRICE", DiscountStatus::Depend, false, true, false, true},
};

} // namespace

ShopDiscountPanel::ShopDiscountPanel(PanelHost& host, QWidget* parent) : Panel(parent), m_host(host)
{
    auto* frame = new PanelFrame(u"Shop discount properties"_s, this);
    m_editor = new DiscountEditor(host, options, DiscountEditor::Percent::ApplyToWhole, frame);
    frame->addButtons(host);
}

void ShopDiscountPanel::SetActiveObject(const CatalogueObject& object)
{
    m_shop = objectOf<ShopClass>(object);
    if (!m_shop) {
        return;
    }
    // The lines of the cart hold prices that were worked out with the discounts as they are.
    m_editor->setEditable(ConfirmEmptyCart(m_host.session().Cart.get(), m_host.session().prompts));
    m_editor->fill(*m_shop->Discount(), QString());
}

void ShopDiscountPanel::SaveActiveObject()
{
    if (!m_shop) {
        return;
    }
    clsDiscount& discount = *m_shop->Discount();
    m_editor->write(discount);
    m_editor->writeStatus(discount);
    discount.SendDiscountToChilds(discount.DateFrom, discount.DateTo);
}

void ShopDiscountPanel::ClearActiveObject()
{
    m_shop.reset();
}
