#include "pages/PageContext.h"

#include "design/PageTable.h"
#include "model/clsCart.h"

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
        failWithoutCart();
    }
    return *m_session->Cart;
}
