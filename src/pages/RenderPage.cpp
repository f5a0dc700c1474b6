#include "pages/RenderPage.h"

#include "design/PageTable.h"
#include "pages/PageFillers.h"
#include "pages/TemplateUtils.h"

namespace {

struct PageFiller
{
    ShopPage page;
    void (*addVariables)(Variables& vars, const PageContext& context, const PageObject& object);
};

constexpr PageFiller fillers[] = {
    {ShopPage::Main, addMainPage},         {ShopPage::Menu, addMenuPage},         {ShopPage::Category, addCategoryPage},
    {ShopPage::Product, addProductPage},   {ShopPage::CustomPage, addCustomPage}, {ShopPage::Footer, addFooterPage},
    {ShopPage::Header, addHeaderPage},     {ShopPage::Search, addSearchPage},     {ShopPage::Cart, addCartPage},
    {ShopPage::Checkout, addCheckoutPage},
};

} // namespace

Variables pageVariables(const PageContext& context, const QString& pageName, const PageObject& pageObject)
{
    Variables vars = context.newVariables();
    vars.Add(u"server", serverAddress());
    vars.Add(u"shop_currency", context.shop().shop_currency);
    for (const PageFiller& filler : fillers) {
        if (rowOf(filler.page).name == pageName) {
            filler.addVariables(vars, context, pageObject);
        }
    }
    return vars;
}

QString RenderPage(const PageContext& context, const QString& pageName, const PageObject& pageObject)
{
    const Variables vars = pageVariables(context, pageName, pageObject);
    return context.templates().templates.Item(pageName)->Get_String(vars);
}
