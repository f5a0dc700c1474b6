#include "pages/PageFillers.h"
#include "pages/ProductRows.h"
#include "pages/TemplateUtils.h"

#include <utility>

using namespace Qt::StringLiterals;
using enum DesignOption;

namespace {

constexpr DesignOption categoryPageOptions[] = {Category_BreadCrumb, Category_PageHeader, Category_IncludePageHeader};

constexpr DesignOption subCategoryOptions[] = {Category_Description, Category_Name, Category_Image};

constexpr DesignOption categoryProductOptions[] = {
    Category_NewPrice,    Category_OldPrice, Category_AddToCart,    Category_Price, Category_ProductImage,
    Category_ProductName, Category_Related,  Category_ShoppingInfo, Category_Taxes, Category_ProductDescription,
};

constexpr VariantOptions categoryPriceOptions = {Category_ProductDescription,
                                                 {Category_Price, Category_OldPrice, Category_NewPrice}};

VariableRows subCategoryRows(const PageContext& context, const CategoryClass& category)
{
    const ImageKeys imageKeys(u"SUBCATEGORYPAGE_IMAGE");
    VariableRows rows;
    for (const auto& subCategory : category.categories) {
        Variables row = context.newVariables();
        row.Add(u"id", subCategory->id);
        row.Add(u"name", subCategory->name);
        row.Add(u"description", subCategory->Description);
        row.Add(u"server", serverAddress());
        addOptions(row, context.design(), subCategoryOptions);
        AddImageVariables(row, context, *subCategory->selectedImage(), imageKeys);
        rows.push_back(std::move(row));
    }
    return rows;
}

// On this page only, an empty price counts as "0" for the discounted text.
void addPrices(Variables& row, const std::shared_ptr<clsPrice>& price)
{
    row.Add(u"price", priceVariable(price));
    row.Add(u"new_price", price->Value.isEmpty() ? ifDiscounted(*price, price->Value, price->NewPrice(u"0"_s))
                                                 : newPriceIfDiscounted(*price, price->Value));
}

VariableRows productRows(const PageContext& context, const CategoryClass& category)
{
    const ShopDesignClass& design = context.design();
    const ImageKeys imageKeys(u"CATEGORYPAGE_PRODUCT_IMAGE");
    SlotForRows cartButton(context, ImageSlot::CategoryCartButton);
    DescriptionCutter descriptions(design, Category_Limit_Desc);
    VariableRows rows;
    rows.reserve(static_cast<std::size_t>(category.products.Count()));
    for (const auto& product : category.products) {
        const std::shared_ptr<clsPrice>& price = product->Price();
        Variables row = context.newVariables();
        row.Add(u"id", product->id);
        row.Add(u"name", product->name);
        row.Add(u"ForSale", product->ForSale);
        AddImageVariables(row, context, *product->selectedImage(), imageKeys);
        row.Add(u"Product_PriceType", priceTypeOf(*price));
        if (hasVariants(*price)) {
            row.Add(u"MultiplePrice", variantRows(context, *price, categoryPriceOptions));
        } else {
            addPrices(row, price);
        }
        row.Add(u"description", descriptions.cut(product->Description));
        row.Add(u"cut_count", design.Option(Category_Limit_Desc));
        row.Add(u"server", serverAddress());
        row.Add(u"shop_currency", context.shop().shop_currency);
        cartButton.addTo(row);
        addOptions(row, design, categoryProductOptions);
        VariableRows related = relatedRows(context, *product);
        const bool hasRelated = !related.empty();
        if (hasRelated) {
            row.Add(u"related", std::move(related));
        }
        row.Add(u"hasrelated", hasRelated ? u"yes"_s : QString());
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace

void addCategoryPage(Variables& vars, const PageContext& context, const PageObject& object)
{
    auto& category = pageObjectAs<CategoryClass>(object);
    addOptions(vars, context.design(), categoryPageOptions);
    // Products do not count.
    const bool isEmpty = category.categories.isEmpty();
    vars.Add(u"Category_Empty", isEmpty ? u"Yes"_s : u"No"_s);
    if (!isEmpty) {
        vars.Add(u"categories", subCategoryRows(context, category));
    }
    if (!category.products.isEmpty()) {
        vars.Add(u"products", productRows(context, category));
    }
    vars.Add(u"breadcrumb", breadcrumbRows(context, category));
    vars.Add(u"shop_name", context.shop().name);
    vars.Add(u"category_picture", SelectedPicturePath(context.folder(), category));
    vars.Add(u"category_id", category.id);
}
