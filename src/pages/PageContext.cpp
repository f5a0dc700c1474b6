#include "pages/PageContext.h"

#include "design/PageTable.h"

using namespace Qt::StringLiterals;

TemplateNames shopTemplateNames()
{
    return {nameOf(ShopPage::Layout), pageNamesBy(&PageRow::reading)};
}

const std::shared_ptr<ShopClass>& PageContext::sharedShop() const
{
    if (m_session->shop == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return m_session->shop;
}

ShopDesignClass& PageContext::design() const
{
    const std::shared_ptr<ShopDesignClass>& design = shop().ShopDesign;
    if (design == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *design;
}

clsCart& PageContext::cart() const
{
    if (m_session->Cart == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet)
            .because(
                u"The cart is gone since the closing of the program was cancelled. The next start has one again."_s);
    }
    return *m_session->Cart;
}
