#include "pages/RenderPage.h"

#include "pages/PageFillers.h"
#include "pages/TemplateUtils.h"

namespace {

struct Page
{
    QStringView name;
    void (*addVariables)(Variables& vars, const PageContext& context, const PageObject& object);
};

constexpr Page Pages[] = {
    {u"main", addMainPage},         {u"menu", addMenuPage},         {u"category", addCategoryPage},
    {u"product", addProductPage},   {u"custompage", addCustomPage}, {u"footer", addFooterPage},
    {u"header", addHeaderPage},     {u"search", addSearchPage},     {u"cart", addCartPage},
    {u"checkout", addCheckoutPage},
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
