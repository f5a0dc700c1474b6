#include "pages/PageFillers.h"
#include "pages/TemplateUtils.h"

#include <utility>

using namespace Qt::StringLiterals;
using enum DesignOption;

namespace {

constexpr DesignOption optionsAheadOfTheCart[] = {
    Menu_TopCategories, Menu_SearchButton, Menu_SearchTextfield, Menu_ShowMenu, Menu_ProductNames,
};

constexpr DesignOption optionsBehindTheCart[] = {
    Menu_CartButton,
    Menu_IncludeHeaderTopCategory,
    Menu_HeaderTopCategoryText,
};

VariableRows categoryRows(const PageContext& context)
{
    VariableRows rows;
    for (const auto& category : context.shop().categories) {
        Variables row = context.newVariables();
        row.Add(u"category_id", category->id);
        row.Add(u"category_name", category->name);
        row.Add(u"server", serverAddress());
        rows.push_back(std::move(row));
    }
    return rows;
}

VariableRows cartRows(const PageContext& context)
{
    VariableRows rows;
    for (const auto& line : context.cart()) {
        Variables row = context.newVariables();
        row.Add(u"name", line->ProductName());
        row.Add(u"id", line->id);
        row.Add(u"quantity", line->Quantity);
        row.Add(u"server", serverAddress());
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace

void addMenuPage(Variables& vars, const PageContext& context, const PageObject&)
{
    const ShopDesignClass& design = context.design();
    vars.Add(u"categories", categoryRows(context));
    vars.Add(u"shop_name", context.shop().name);
    addSlotVariables(vars, context, ImageSlot::CartPage_Checkout_Button);
    addSlotVariables(vars, context, ImageSlot::MenuSearchButton);
    addSlotVariables(vars, context, ImageSlot::MenuShoppingCartButton);
    AddCustomPageList(vars, context, *design.Pages(PageSelection::MenuCustomPageSelected));
    addOptions(vars, design, optionsAheadOfTheCart);
    // Here the guard exists in any case, unlike the one of the cart page.
    vars.Add(u"HAS_ITEMS", context.cart().Count() != 0 ? u"Yes"_s : QString());
    vars.Add(u"products", cartRows(context));
    addOptions(vars, design, optionsBehindTheCart);
}
