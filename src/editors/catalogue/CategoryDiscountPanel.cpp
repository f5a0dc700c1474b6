#include "editors/catalogue/CategoryDiscountPanel.h"

#include "editors/catalogue/DiscountEditor.h"
#include "model/ShopSession.h"

using namespace Qt::StringLiterals;

namespace {

constexpr DiscountOption categoryOptions[] = {
    {"NoDiscountOpt", "NO DISCOUNT", DiscountStatus::No, UsesNothing},
    {"ApplyOpt", "APPLY TO ALL CATEGORY (%)", DiscountStatus::ToAll, UsesPercent | UsesDates},
    {"DependOpt", "DEPEND ON PRODUCT PRICE", DiscountStatus::Depend, UsesBands | UsesDates},
    // Two blanks stand in this caption.
    {"InheritOpt", "INHERIT FROM  SHOP, CATEGORY, SUBCATEGORY", DiscountStatus::Inherit, UsesInherit},
};

} // namespace

CategoryDiscountPanel::CategoryDiscountPanel(PanelHost& host, QWidget* parent)
    : CataloguePanel(host, u"Category discount properties"_s, parent)
{
    m_editor = new DiscountEditor(host, categoryOptions, DiscountEditor::Percent::ApplyToWhole, m_frame);
    m_frame->addButtons(host);
}

void CategoryDiscountPanel::fill(CategoryClass& category)
{
    m_editor->fill(*category.Discount(), inheritedText(*category.Discount()));
}

void CategoryDiscountPanel::write(CategoryClass& category)
{
    clsDiscount& discount = *category.Discount();
    m_editor->write(discount);
    m_editor->writeStatus(discount);
    discount.SendDiscountToChilds(discount.DateFrom, discount.DateTo);
}
