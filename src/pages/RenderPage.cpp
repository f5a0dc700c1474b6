#include "pages/RenderPage.h"

#include "base/Circumstances.h"
#include "design/PageTable.h"
#include "pages/PageFillers.h"
#include "pages/TemplateUtils.h"

using namespace Qt::StringLiterals;

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

// What the page is about, by name; empty when that is the shop, or nothing.
QString nameOfObject(const PageObject& pageObject)
{
    if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&pageObject); category && *category) {
        return (*category)->name;
    }
    if (const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&pageObject); product && *product) {
        return (*product)->name;
    }
    if (const auto* page = std::get_if<std::shared_ptr<CustomPageClass>>(&pageObject); page && *page) {
        return (*page)->pageName;
    }
    if (const auto* results = std::get_if<std::shared_ptr<SearchResults>>(&pageObject); results && *results) {
        return (*results)->word;
    }
    return {};
}

QString pageInWords(const QString& pageName, const PageObject& pageObject)
{
    const QString name = nameOfObject(pageObject);
    return u"The page %1%2 was being made."_s.arg(inQuotes(pageName),
                                                  name.isEmpty() ? name : " of "_L1 + inQuotes(name));
}

const Template& templateOf(const PageContext& context, const QString& pageName)
{
    return during([&] { return u"The template \"%1.html\" could not be read."_s.arg(pageName); },
                  [&]() -> const Template& { return *context.templates().templates.Item(pageName); });
}

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
    return during([&] { return pageInWords(pageName, pageObject); },
                  [&] {
                      const Variables vars = pageVariables(context, pageName, pageObject);
                      return templateOf(context, pageName).Get_String(vars);
                  });
}
