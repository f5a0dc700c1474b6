#include "model/clsDiscount.h"
#include "pages/PageFillers.h"
#include "pages/TemplateUtils.h"

#include <utility>

using enum DesignOption;

namespace {

constexpr DesignOption mainPageOptions[] = {
    Main_PageHeader,           Main_IncludePageHeader, Main_SearchButton,          Main_SearchTextfield,
    Main_IncludeTopCategories, Main_IncludeTwoLevel,   Main_IncludeNavigationMenu,
};

VariableRows innerCategoryRows(const PageContext& context, const CategoryClass& category)
{
    VariableRows rows;
    for (const auto& subCategory : category.categories) {
        Variables row = context.newVariables();
        row.Add(u"category_in_id", subCategory->id);
        row.Add(u"category_in_name", subCategory->name);
        row.Add(u"server", serverAddress());
        rows.push_back(std::move(row));
    }
    return rows;
}

Variables categoryRow(const PageContext& context, CategoryClass& category, const ImageKeys& imageKeys)
{
    clsDiscount& discount = *category.Discount();
    Variables row = context.newVariables();
    row.Add(u"category_id", category.id);
    row.Add(u"category_name", category.name);
    row.Add(u"category_description", category.Description);
    AddImageVariables(row, context, *category.selectedImage(), imageKeys);
    row.Add(u"server", serverAddress());
    row.Add(u"discount_status", StatusToWord(discount.Status));
    row.Add(u"from_date", discount.DateFrom);
    row.Add(u"to_date", discount.DateTo);
    row.Add(u"discount", discount.ApplyToWhole());
    if (context.design().isOn(Main_IncludeTwoLevel) && !category.categories.isEmpty()) {
        row.Add(u"Main_TwoLevel", innerCategoryRows(context, category));
    }

    // Deliberately the first and the last band in the stored order, not the smallest and the largest.
    const clsDependedDiscounts& bands = *discount.DependedDiscounts();
    if (bands.Count() != 0) {
        row.Add(u"min_discount", bands.Item(1).Value());
        row.Add(u"max_discount", bands.Item(bands.Count()).Value());
    }
    return row;
}

} // namespace

void addMainPage(Variables& vars, const PageContext& context, const PageObject& object)
{
    const auto& shop = pageObjectAs<ShopClass>(object);
    const ShopDesignClass& design = context.design();
    const ImageKeys imageKeys(u"MAINPAGE_IMAGE");
    VariableRows categories;
    for (const auto& category : shop.categories) {
        categories.push_back(categoryRow(context, *category, imageKeys));
    }
    vars.Add(u"categories", std::move(categories));

    vars.Add(u"shop_name", shop.name);
    vars.Add(u"Main_ShopDescription", shop.Description);
    vars.Add(u"Main_IncludeShopDescription", design.Option(Main_IncludeShopDescription));
    addSlotVariables(vars, context, ImageSlot::MainSearchButton);
    AddCustomPageList(vars, context, *design.Pages(PageSelection::MainPageMenuList));
    addOptions(vars, design, mainPageOptions);
}
