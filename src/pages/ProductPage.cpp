#include "pages/PageFillers.h"
#include "pages/ProductRows.h"
#include "pages/TemplateUtils.h"

using enum DesignOption;

namespace {

constexpr DesignOption productPageOptions[] = {
    ProductPage_IncludePageHeader,  ProductPage_PageHeader,       ProductPage_IncludeBreadcrumb,
    ProductPage_IncludeImage,       ProductPage_IncludeAddToCart, ProductPage_IncludeName,
    ProductPage_IncludeDescription, ProductPage_IncludePrice,     ProductPage_IncludeOldPrice,
    ProductPage_IncludeNewPrice,    ProductPage_IncludeTaxes,     ProductPage_IncludeShipping,
    ProductPage_IncludeRelated,     ProductPage_Advanced,
};

constexpr VariantOptions productPriceOptions = {
    ProductPage_IncludeDescription,
    {ProductPage_IncludeOldPrice, ProductPage_IncludeNewPrice, ProductPage_IncludePrice}};

// Most switches stand on the page a second time, under these names.
struct SecondName
{
    QStringView name;
    DesignOption option;
};

constexpr SecondName secondNames[] = {
    {u"INCLUDE_PAGE_HEADER", ProductPage_IncludePageHeader},
    {u"INCLUDE_BREADCRUMB", ProductPage_IncludeBreadcrumb},
    {u"INCLUDE_IMAGE", ProductPage_IncludeImage},
    {u"INCLUDE_ADD_TO_CART", ProductPage_IncludeAddToCart},
    {u"INCLUDE_NAME", ProductPage_IncludeName},
    {u"INCLUDE_DESCRIPTION", ProductPage_IncludeDescription},
    {u"INCLUDE_PRICE", ProductPage_IncludePrice},
    {u"INCLUDE_OLD_PRICE", ProductPage_IncludeOldPrice},
    {u"INCLUDE_NEW_PRICE", ProductPage_IncludeNewPrice},
    {u"INCLUDE_TAXES", ProductPage_IncludeTaxes},
    {u"INCLUDE_SHIPPING", ProductPage_IncludeShipping},
    {u"INCLUDE_RELATED", ProductPage_IncludeRelated},
};

} // namespace

void addProductPage(Variables& vars, const PageContext& context, const PageObject& object)
{
    auto& product = pageObjectAs<ProductClass>(object);
    const ShopDesignClass& design = context.design();
    clsSelectedImage& image = *product.selectedImage();
    const std::shared_ptr<clsPrice>& price = product.Price();
    vars.Add(u"id", product.id);
    vars.Add(u"name", product.name);
    vars.Add(u"description", product.Description);
    vars.Add(u"ForSale", product.ForSale);
    vars.Add(u"measuring_unit", product.Unit);
    vars.Add(u"product_link", product.LINK);
    AddImageVariables(vars, context, image, ImageKeys(u"PRODUCTPAGE_IMAGE"));
    vars.Add(u"Width", image.WidthBmp());
    vars.Add(u"Height", image.HeightBmp());
    vars.Add(u"Product_PriceType", priceTypeOf(*price));
    if (hasVariants(*price)) {
        vars.Add(u"MultiplePrice", variantRows(context, *price, productPriceOptions));
    } else {
        addSinglePrice(vars, price);
    }
    addOptions(vars, design, productPageOptions);
    addSlotVariables(vars, context, ImageSlot::ProductCartButton);
    addRelated(vars, context, product);

    const std::shared_ptr<CategoryClass> category = product.category.lock();
    if (category == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    vars.Add(u"breadcrumb", breadcrumbRows(context, *category));
    vars.Add(u"shop_name", context.shop().name);
    for (const SecondName& second : secondNames) {
        vars.Add(second.name, design.Option(second.option));
    }
}
