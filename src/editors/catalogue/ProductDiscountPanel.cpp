#include "editors/catalogue/ProductDiscountPanel.h"

#include "editors/catalogue/DiscountEditor.h"
#include "model/ShopSession.h"

using namespace Qt::StringLiterals;

namespace {

constexpr DiscountOption productOptions[] = {
    {"NoDiscountOpt", "NO DISCOUNT", DiscountStatus::No, UsesNothing},
    {"SpecificOpt", "SPECIFIC DISCOUNT (%)", DiscountStatus::Specific, UsesPercent | UsesDates},
    // Two blanks stand in this caption.
    {"InheritOpt", "INHERIT FROM  SHOP, CATEGORY, SUBCATEGORY", DiscountStatus::Inherit, UsesInherit},
};

} // namespace

ProductDiscountPanel::ProductDiscountPanel(PanelHost& host, QWidget* parent)
    : CataloguePanel(host, u"Product discount properties"_s, parent)
{
    m_editor = new DiscountEditor(host, productOptions, DiscountEditor::Percent::Specific, m_frame);
    m_frame->addButtons(host);
}

void ProductDiscountPanel::fill(ProductClass& product)
{
    clsPrice& price = *product.Price();
    m_editor->fill(*price.Discount(), inheritedText(*price.Discount(), price.Value));
}

void ProductDiscountPanel::write(ProductClass& product)
{
    clsDiscount& discount = *product.Price()->Discount();
    m_editor->writeStatus(discount);
    m_editor->write(discount);
}
