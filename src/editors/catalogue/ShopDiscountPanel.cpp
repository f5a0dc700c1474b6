#include "editors/catalogue/ShopDiscountPanel.h"

#include "editors/catalogue/DiscountEditor.h"
#include "model/ShopSession.h"

using namespace Qt::StringLiterals;

namespace {

constexpr DiscountOption shopOptions[] = {
    {"NoDiscountOpt", "NO DISCOUNT", DiscountStatus::No, UsesNothing},
    {"ApplyOpt", "APPLY TO ALL SHOP (%)", DiscountStatus::ToAll, UsesPercent | UsesDates},
    {"DependOpt", "DEPEND ON PRODUCT PRICE", DiscountStatus::Depend, UsesBands | UsesDates},
};

} // namespace

ShopDiscountPanel::ShopDiscountPanel(PanelHost& host, QWidget* parent)
    : CataloguePanel(host, u"Shop discount properties"_s, parent)
{
    m_editor = new DiscountEditor(host, shopOptions, DiscountEditor::Percent::ApplyToWhole, m_frame);
    m_frame->addButtons(host);
}

void ShopDiscountPanel::fill(ShopClass& shop)
{
    m_editor->fill(*shop.Discount(), QString());
}

void ShopDiscountPanel::write(ShopClass& shop)
{
    clsDiscount& discount = *shop.Discount();
    m_editor->write(discount);
    m_editor->writeStatus(discount);
    discount.SendDiscountToChilds(discount.DateFrom, discount.DateTo);
}
