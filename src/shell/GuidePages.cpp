#include "shell/GuidePages.h"

#include "base/ApplicationFolder.h"

using namespace Qt::StringLiterals;

namespace {

using enum PanelName;

constexpr GuidePage pages[] = {
    {ShopGeneralPnl, "catalogue"},
    {ShopDiscountPnl, "discounts"},
    {ShopTaxesPnl, "catalogue"},
    {ShippingChargesPnl, "catalogue"},
    {ShopsShippingPnl, "catalogue"},
    {CategoryGeneralPnl, "catalogue"},
    {CategoryDiscountPnl, "discounts"},
    {ProductGeneralPnl, "catalogue"},
    {ProductDiscountPnl, "discounts"},
    {ProductsMultipricePnl, "catalogue"},
    {ProductsRelatedPnl, "catalogue"},
    {ProductShippingCostsPnl, "catalogue"},
    {MainPagePnl, "design"},
    {HeaderManagerPnl, "design"},
    {FooterManagerPnl, "design"},
    {MenuManagerPnl, "design"},
    {CategoryPageManagerPnl, "design"},
    {ProductPageManagerPnl, "design"},
    {SearchPageManagerPnl, "design"},
    {CustomPagesManagerPnl, "design"},
    {ShoppingCartPageManagerPnl, "design"},
    {BuyingFormPnl, "design"},
};

} // namespace

std::span<const GuidePage> guidePages()
{
    return pages;
}

const char* guidePageOf(PanelName panel)
{
    for (const GuidePage& row : pages) {
        if (row.panel == panel) {
            return row.page;
        }
    }
    return firstGuidePage;
}

QString guideFile(const ApplicationFolder& folder, const char* page)
{
    return folder.path() + u"/guide/%1.html"_s.arg(QLatin1String(page));
}
