#include "pages/PageFillers.h"
#include "pages/ProductRows.h"
#include "pages/TemplateUtils.h"

#include <utility>

using namespace Qt::StringLiterals;
using enum DesignOption;

namespace {

constexpr DesignOption searchPageOptions[] = {SearchPage_IncludePageHeader, SearchPage_PageHeader};

constexpr DesignOption searchProductOptions[] = {
    SearchPage_IncludeBreadcrumb,  SearchPage_IncludeImage,    SearchPage_IncludeAddToCart, SearchPage_IncludeName,
    SearchPage_IncludeDescription, SearchPage_IncludePrice,    SearchPage_IncludeOldPrice,  SearchPage_IncludeNewPrice,
    SearchPage_IncludeTaxes,       SearchPage_IncludeShipping, SearchPage_IncludeRelated,
};

constexpr VariantOptions searchPriceOptions = {
    SearchPage_IncludeDescription, {SearchPage_IncludeOldPrice, SearchPage_IncludeNewPrice, SearchPage_IncludePrice}};

VariableRows productRows(const PageContext& context, const SearchResults& results)
{
    const ShopDesignClass& design = context.design();
    const ImageKeys imageKeys(u"CATEGORYPAGE_IMAGE");
    SlotForRows cartButton(context, ImageSlot::SearchPageShoppingCartButton);
    DescriptionCutter descriptions(design, SearchPage_Limit_Desc);
    VariableRows rows;
    rows.reserve(results.products.size());
    for (const auto& product : results.products) {
        const std::shared_ptr<clsPrice>& price = product->Price();
        Variables row = context.newVariables();
        row.Add(u"id", product->id);
        row.Add(u"name", product->name);
        row.Add(u"ForSale", product->ForSale);
        row.Add(u"cut_count", design.Option(SearchPage_Limit_Desc));
        row.Add(u"Product_PriceType", priceTypeOf(*price));
        if (hasVariants(*price)) {
            row.Add(u"MultiplePrice", variantRows(context, *price, searchPriceOptions));
        } else {
            addSinglePrice(row, price);
        }
        AddImageVariables(row, context, *product->selectedImage(), imageKeys);
        row.Add(u"description", descriptions.cut(product->Description));
        cartButton.addTo(row);
        addOptions(row, design, searchProductOptions);
        row.Add(u"server", serverAddress());
        addRelated(row, context, *product);
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace

void addSearchPage(Variables& vars, const PageContext& context, const PageObject& object)
{
    const auto& results = pageObjectAs<SearchResults>(object);
    vars.Add(u"products", productRows(context, results));
    vars.Add(u"SEARCH_WORD", results.word);
    vars.Add(u"HAS_ITEMS", results.products.empty() ? u"No"_s : u"Yes"_s);
    addOptions(vars, context.design(), searchPageOptions);
}
