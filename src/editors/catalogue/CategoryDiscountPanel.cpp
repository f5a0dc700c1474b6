#include "editors/catalogue/CategoryDiscountPanel.h"

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
    {"ApplyOpt", "APPLY TO ALL CATEGORY (%)", DiscountStatus::ToAll, true, false, false, true},
    {"DependOpt", "DEPEND ON PRODUCT PRICE", DiscountStatus::Depend, false, true, false, true},
    // Two blanks stand in this caption.
    {"InheritOpt", "INHERIT FROM  SHOP, CATEGORY, SUBCATEGORY", DiscountStatus::Inherit, false, false, true, false},
};

} // namespace

CategoryDiscountPanel::CategoryDiscountPanel(PanelHost& host, QWidget* parent) : Panel(parent), m_host(host)
{
    auto* frame = new PanelFrame(u"Category discount properties"_s, this);
    m_editor = new DiscountEditor(host, options, DiscountEditor::Percent::ApplyToWhole, frame);
    frame->addButtons(host);
}

void CategoryDiscountPanel::SetActiveObject(const CatalogueObject& object)
{
    m_category = objectOf<CategoryClass>(object);
    if (!m_category) {
        return;
    }
    // The lines of the cart hold prices that were worked out with the discounts as they are.
    m_editor->setEditable(ConfirmEmptyCart(m_host.session().Cart.get(), m_host.session().prompts));
    m_editor->fill(*m_category->Discount(), inheritedText(*m_category->Discount()));
}

void CategoryDiscountPanel::SaveActiveObject()
{
    if (!m_category) {
        return;
    }
    clsDiscount& discount = *m_category->Discount();
    m_editor->write(discount);
    m_editor->writeStatus(discount);
    discount.SendDiscountToChilds(discount.DateFrom, discount.DateTo);
}

void CategoryDiscountPanel::ClearActiveObject()
{
    m_category.reset();
}
