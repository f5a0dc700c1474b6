#include "pages/RenderPage.h"

#include "pages/CartPage.h"
#include "pages/CategoryPage.h"
#include "pages/CheckoutPage.h"
#include "pages/FooterPage.h"
#include "pages/HeaderPage.h"
#include "pages/MainPage.h"
#include "pages/MenuPage.h"
#include "pages/OwnPage.h"
#include "pages/ProductPage.h"
#include "pages/SearchPage.h"
#include "pages/TemplateUtils.h"

namespace {

struct Page
{
    QStringView name;
    void (*addVariables)(Variables& vars, const PageContext& context, const PageObject& object);
};

constexpr Page Pages[] = {
    {u"main", [](Variables& vars, const PageContext& context,
                 const PageObject& object) { AddMainPage(vars, context, PageObjectAs<ShopClass>(object)); }},
    {u"menu", [](Variables& vars, const PageContext& context, const PageObject&) { AddMenuPage(vars, context); }},
    {u"category",
     [](Variables& vars, const PageContext& context, const PageObject& object) {
         AddCategoryPage(vars, context, PageObjectAs<CategoryClass>(object));
     }},
    {u"product", [](Variables& vars, const PageContext& context,
                    const PageObject& object) { AddProductPage(vars, context, PageObjectAs<ProductClass>(object)); }},
    {u"custompage", [](Variables& vars, const PageContext&,
                       const PageObject& object) { AddOwnPage(vars, PageObjectAs<CustomPageClass>(object)); }},
    {u"footer", [](Variables& vars, const PageContext& context, const PageObject&) { AddFooterPage(vars, context); }},
    {u"header", [](Variables& vars, const PageContext& context, const PageObject&) { AddHeaderPage(vars, context); }},
    {u"search", [](Variables& vars, const PageContext& context,
                   const PageObject& object) { AddSearchPage(vars, context, PageObjectAs<SearchResults>(object)); }},
    {u"cart", [](Variables& vars, const PageContext& context, const PageObject&) { AddCartPage(vars, context); }},
    {u"checkout",
     [](Variables& vars, const PageContext& context, const PageObject&) { AddCheckoutPage(vars, context); }},
};

} // namespace

Variables PageVariables(const PageContext& context, const QString& pageName, const PageObject& pageObject)
{
    Variables vars = context.newVariables();
    vars.Add(u"server", ServerAddress());
    vars.Add(u"shop_currency", context.shop().shop_currency);
    for (const Page& page : Pages) {
        if (page.name == pageName)
            page.addVariables(vars, context, pageObject);
    }
    return vars;
}

QString RenderPage(const PageContext& context, const QString& pageName, const PageObject& pageObject)
{
    const Variables vars = PageVariables(context, pageName, pageObject);
    return context.templates().templates.Item(pageName)->Get_String(vars);
}
