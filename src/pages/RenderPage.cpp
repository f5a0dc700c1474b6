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
                 const PageObject& object) { addMainPage(vars, context, pageObjectAs<ShopClass>(object)); }},
    {u"menu", [](Variables& vars, const PageContext& context, const PageObject&) { addMenuPage(vars, context); }},
    {u"category",
     [](Variables& vars, const PageContext& context, const PageObject& object) {
         addCategoryPage(vars, context, pageObjectAs<CategoryClass>(object));
     }},
    {u"product", [](Variables& vars, const PageContext& context,
                    const PageObject& object) { addProductPage(vars, context, pageObjectAs<ProductClass>(object)); }},
    {u"custompage", [](Variables& vars, const PageContext&,
                       const PageObject& object) { addOwnPage(vars, pageObjectAs<CustomPageClass>(object)); }},
    {u"footer", [](Variables& vars, const PageContext& context, const PageObject&) { addFooterPage(vars, context); }},
    {u"header", [](Variables& vars, const PageContext& context, const PageObject&) { addHeaderPage(vars, context); }},
    {u"search", [](Variables& vars, const PageContext& context,
                   const PageObject& object) { addSearchPage(vars, context, pageObjectAs<SearchResults>(object)); }},
    {u"cart", [](Variables& vars, const PageContext& context, const PageObject&) { addCartPage(vars, context); }},
    {u"checkout",
     [](Variables& vars, const PageContext& context, const PageObject&) { addCheckoutPage(vars, context); }},
};

} // namespace

Variables pageVariables(const PageContext& context, const QString& pageName, const PageObject& pageObject)
{
    Variables vars = context.newVariables();
    vars.Add(u"server", serverAddress());
    vars.Add(u"shop_currency", context.shop().shop_currency);
    for (const Page& page : Pages) {
        if (page.name == pageName) {
            page.addVariables(vars, context, pageObject);
        }
    }
    return vars;
}

QString RenderPage(const PageContext& context, const QString& pageName, const PageObject& pageObject)
{
    const Variables vars = pageVariables(context, pageName, pageObject);
    return context.templates().templates.Item(pageName)->Get_String(vars);
}
