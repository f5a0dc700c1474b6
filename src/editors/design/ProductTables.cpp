// The tables of the four managers whose pages show products. They offer much the same, under options, styles and titles
// of their own.
#include "base/RuntimeError.h"
#include "editors/design/ManagerTables.h"

using enum DesignOption;

// clang-format off
namespace {

constexpr const char* showHeader      = "Show the page header";
constexpr const char* showBreadcrumb  = "Show the breadcrumb trail";
constexpr const char* showImage       = "Show the product image";
constexpr const char* showName        = "Show the product name";
constexpr const char* showDescription = "Show the product description";
constexpr const char* showPrice       = "Show the price";
constexpr const char* showNewPrice    = "Show the discounted price";
constexpr const char* showOldPrice    = "Show the price before a discount";
constexpr const char* showTaxes       = "Show the taxes";
constexpr const char* showShipping    = "Show the delivery";
constexpr const char* showRelated     = "Show related products";
constexpr const char* showAddToCart   = "Show the add-to-cart button";
constexpr const char* pageHeader      = "Page header:";
constexpr const char* limit           = "Words of the description (0: all):";

constexpr const char* page      = "Page";
constexpr const char* products  = "Products";
constexpr const char* addButton = "Add-to-cart button";

constexpr const char* wholePage   = "Whole page";
constexpr const char* header      = "Page header";
constexpr const char* breadcrumb  = "Breadcrumb trail";
constexpr const char* image       = "Product image";
constexpr const char* name        = "Product name";
constexpr const char* description = "Product description";
constexpr const char* price       = "Price";
constexpr const char* oldPrice    = "Price before a discount";
constexpr const char* newPrice    = "Discounted price";
constexpr const char* taxes       = "Taxes";
constexpr const char* shipping    = "Delivery";
constexpr const char* related     = "Related products";

// Category page -------------------------------------------------------------------------------------------------------

constexpr SwitchRow categoryPageSwitches[] = {
    {Category_IncludePageHeader, "chkIncludePageHeader", showHeader},
    {Category_BreadCrumb,        "chkIncludeBreadcrumb", showBreadcrumb},
};
constexpr TextRow categoryPageTexts[] = {
    {Category_PageHeader, "txtPageHeader", pageHeader},
};
constexpr SwitchRow categorySubCategorySwitches[] = {
    {Category_Image,       "chkIncludeImage",       "Show the category image"},
    {Category_Name,        "chkIncludeName",        "Show the category name"},
    {Category_Description, "chkIncludeDescription", "Show the category description"},
};
constexpr SwitchRow categoryProductSwitches[] = {
    {Category_ProductImage,       "chkIncludeProductImage",       showImage},
    {Category_ProductName,        "chkIncludeProductName",        showName},
    {Category_ProductDescription, "chkIncludeProductDescription", showDescription},
    {Category_Price,              "chkIncludePrice",              showPrice},
    {Category_NewPrice,           "chkIncludeNewPrice",           showNewPrice},
    {Category_OldPrice,           "chkIncludeOldPrice",           showOldPrice},
    {Category_Taxes,              "chkIncludeTaxes",              showTaxes},
    {Category_ShoppingInfo,       "chkIncludeShipping",           showShipping},
    {Category_Related,            "chkIncludeRelated",            showRelated},
    {Category_AddToCart,          "chkIncludeAddToCart",          showAddToCart},
};
constexpr TextRow categoryProductTexts[] = {
    {Category_Limit_Desc, "txtLimit", limit, Holds::Number},
};
constexpr OptionGroup categoryGroups[] = {
    {page,                       categoryPageSwitches,        categoryPageTexts},
    {"Sub-categories", categorySubCategorySwitches, {}},
    {products,                   categoryProductSwitches,     categoryProductTexts},
};
constexpr SlotRow categorySlots[] = {{ImageSlot::CategoryCartButton, "lblCartButton", addButton}};
constexpr StyleRow categoryStyles[] = {
    {"categorypage_general_page",        "General Page Properties",         wholePage},
    {"Category_PageHeader",              "Category Header Properties",      header},
    {"categorypage_breadcrumb",          "Breadcrumb Properties",           breadcrumb},
    {"categorypage_category_name",       "Category Name Properties",        "Category name"},
    {"categorypage_description",         "Category Description Properties", "Category description"},
    {"categorypage_name",                "Product Name Properties",         name},
    {"categorypage_product_description", "Product Description Properties",  description},
    {"categorypage_product_image",       "Product Image Properties",        image},
    {"categorypage_price",               "Category Price Properties",       price},
    {"categorypage_old_price",           "Category Old Price Properties",   oldPrice},
    {"categorypage_new_price",           "Category New Price Properties",   newPrice},
    {"categorypage_taxes",               "Category Taxes Properties",       taxes},
    {"categorypage_shipping",            "Category Shipping Properties",    shipping},
    {"categorypage_related",             "Category Related Properties",     related},
};
constexpr ManagerTable categoryTable = {
    .heading = "Category page",
    .page = ShopPage::Category,
    .savesTemplate = false,
    .groups = categoryGroups,
    .imageSlots = categorySlots,
    .styles = categoryStyles,
};

// Product page --------------------------------------------------------------------------------------------------------

constexpr SwitchRow productPageSwitches[] = {
    {ProductPage_IncludePageHeader, "chkIncludePageHeader", showHeader},
    {ProductPage_IncludeBreadcrumb, "chkIncludeBreadcrumb", showBreadcrumb},
};
constexpr TextRow productTexts[] = {
    {ProductPage_PageHeader, "txtPageHeader", pageHeader},
};
constexpr SwitchRow productSwitches[] = {
    {ProductPage_IncludeImage,       "chkIncludeImage",       showImage},
    {ProductPage_IncludeName,        "chkIncludeName",        showName},
    {ProductPage_IncludeDescription, "chkIncludeDescription", showDescription},
    {ProductPage_IncludePrice,       "chkIncludePrice",       showPrice},
    {ProductPage_IncludeNewPrice,    "chkIncludeNewPrice",    showNewPrice},
    {ProductPage_IncludeOldPrice,    "chkIncludeOldPrice",    showOldPrice},
    {ProductPage_IncludeTaxes,       "chkIncludeTaxes",       showTaxes},
    {ProductPage_IncludeShipping,    "chkIncludeShipping",    showShipping},
    {ProductPage_IncludeRelated,     "chkIncludeRelated",     showRelated},
    {ProductPage_IncludeAddToCart,   "chkIncludeAddToCart",   showAddToCart},
};
constexpr OptionGroup productGroups[] = {
    {page,                productPageSwitches, productTexts},
    {"Product", productSwitches,     {}},
};
constexpr SlotRow productSlots[] = {{ImageSlot::ProductCartButton, "lblCartButton", addButton}};
constexpr StyleRow productStyles[] = {
    {"productpage_general_page", "General Page Properties",        wholePage},
    {"ProductPage_PageHeader",   "Page Header Properties",         header},
    {"productpage_breadcrumb",   "Breadcrumb Properties",          breadcrumb},
    {"productpage_name",         "Product Name Properties",        name},
    {"productpage_description",  "Product Description Properties", description},
    {"productpage_price",        "Product Price Properties",       price},
    {"productpage_old_price",    "Product Old Price Properties",   oldPrice},
    {"productpage_new_price",    "Product New Price Properties",   newPrice},
    {"productpage_taxes",        "Product Taxes Properties",       taxes},
    {"productpage_shipping",     "Product Shipping Properties",    shipping},
    {"productpage_related",      "Product Related Properties",     related},
};
constexpr ManagerTable productTable = {
    .heading = "Product page",
    .page = ShopPage::Product,
    .savesTemplate = true,
    .groups = productGroups,
    .imageSlots = productSlots,
    .styles = productStyles,
};

// Search page ---------------------------------------------------------------------------------------------------------

constexpr SwitchRow searchPageSwitches[] = {
    {SearchPage_IncludePageHeader, "chkIncludePageHeader", showHeader},
    {SearchPage_IncludeBreadcrumb, "chkIncludeBreadcrumb", showBreadcrumb},
};
constexpr TextRow searchPageTexts[] = {
    {SearchPage_PageHeader, "txtPageHeader", pageHeader},
};
constexpr SwitchRow searchSwitches[] = {
    {SearchPage_IncludeImage,       "chkIncludeImage",       showImage},
    {SearchPage_IncludeName,        "chkIncludeName",        showName},
    {SearchPage_IncludeDescription, "chkIncludeDescription", showDescription},
    {SearchPage_IncludePrice,       "chkIncludePrice",       showPrice},
    {SearchPage_IncludeNewPrice,    "chkIncludeNewPrice",    showNewPrice},
    {SearchPage_IncludeOldPrice,    "chkIncludeOldPrice",    showOldPrice},
    {SearchPage_IncludeTaxes,       "chkIncludeTaxes",       showTaxes},
    {SearchPage_IncludeShipping,    "chkIncludeShipping",    showShipping},
    {SearchPage_IncludeRelated,     "chkIncludeRelated",     showRelated},
    {SearchPage_IncludeAddToCart,   "chkIncludeAddToCart",   showAddToCart},
};
constexpr TextRow searchTexts[] = {
    {SearchPage_Limit_Desc, "txtLimit", limit, Holds::Number},
};
constexpr OptionGroup searchGroups[] = {
    {page,     searchPageSwitches, searchPageTexts},
    {products, searchSwitches,     searchTexts},
};
constexpr SlotRow searchSlots[] = {{ImageSlot::SearchPageShoppingCartButton, "lblCartButton", addButton}};
constexpr StyleRow searchStyles[] = {
    {"searchpage_general_page",  "Search page properties",         wholePage},
    {"SearchPage_PageHeader",    "Page Header Properties",         header},
    {"searchpage_breadcrumb",    "Breadcrumb Properties",          breadcrumb},
    {"searchpage_product_image", "Product Image Properties",       image},
    {"searchpage_name",          "Product Name Properties",        name},
    {"searchpage_description",   "Product Description Properties", description},
    {"searchpage_price",         "Product Price Properties",       price},
    {"searchpage_old_price",     "Product Old Price Properties",   oldPrice},
    {"searchpage_new_price",     "Product New Price Properties",   newPrice},
    {"searchpage_taxes",         "Product Taxes Properties",       taxes},
    {"searchpage_shipping",      "Product Shipping Properties",    shipping},
    {"searchpage_related",       "Product Related Properties",     related},
};
constexpr ManagerTable searchTable = {
    .heading = "Search page",
    .page = ShopPage::Search,
    .savesTemplate = true,
    .groups = searchGroups,
    .imageSlots = searchSlots,
    .styles = searchStyles,
};

// Shopping cart page --------------------------------------------------------------------------------------------------

constexpr SwitchRow cartPageSwitches[] = {
    {CartPage_IncludePageHeader, "chkIncludePageHeader", showHeader},
};
constexpr TextRow cartPageTexts[] = {
    {CartPage_PageHeader, "txtPageHeader", pageHeader},
};
constexpr SwitchRow cartSwitches[] = {
    {CartPage_IncludeImage,       "chkIncludeImage",       showImage},
    {CartPage_IncludeName,        "chkIncludeName",        showName},
    {CartPage_IncludeDescription, "chkIncludeDescription", showDescription},
    {CartPage_IncludePrice,       "chkIncludePrice",       showPrice},
    {CartPage_IncludeNewPrice,    "chkIncludeNewPrice",    showNewPrice},
    {CartPage_IncludeOldPrice,    "chkIncludeOldPrice",    showOldPrice},
    {CartPage_IncludeTaxes,       "chkIncludeTaxes",       showTaxes},
    {CartPage_IncludeShipping,    "chkIncludeShipping",    showShipping},
    {CartPage_IncludeRelated,     "chkIncludeRelated",     showRelated},
    {CartPage_IncludeAddToCart,   "chkIncludeAddToCart",   "Let visitors change the quantity"},
};
constexpr TextRow cartTexts[] = {
    {CartPage_Limit_Desc, "txtLimit", limit, Holds::Number},
};
constexpr OptionGroup cartGroups[] = {
    {page,     cartPageSwitches, cartPageTexts},
    {products, cartSwitches,     cartTexts},
};
constexpr SlotRow cartSlots[] = {
    {ImageSlot::CartRecalculateButton,    "lblRecalculateButton", "Recalculate button"},
    {ImageSlot::CartPage_Checkout_Button, "lblCheckoutButton",    "Checkout button"},
};
constexpr StyleRow cartStyles[] = {
    {"cartpage_general_page",       "General Page Properties",          wholePage},
    {"CartPage_PageHeader",         "Page Header Properties",           header},
    {"cartpage_breadcrumb",         "Breadcrumb Properties",            breadcrumb},
    {"cartpage_product_image",      "Product Image Properties",         image},
    {"cartpage_name",               "Cart Page Name Properties",        name},
    {"cartpage_description",        "Cart Page Description Properties", description},
    {"cartpage_price",              "Cart Page Price Properties",       price},
    {"cartpage_old_price",          "Cart Page Old Price Properties",   oldPrice},
    {"cartpage_new_price",          "Cart Page New Price Properties",   newPrice},
    {"cartpage_taxes",              "Cart Page Taxes Properties",       taxes},
    {"cartpage_shipping",           "Cart Page Shipping Properties",    shipping},
    {"cartpage_related_products",   "Cart Page Related Properties",     related},
    {"cartpage_quantity_textfield", "Quantity Textfield Properties",    "Quantity field"},
};
constexpr ManagerTable cartTable = {
    .heading = "Shopping cart page",
    .page = ShopPage::Cart,
    .advancedControl = "chkAdvanced",
    .savesTemplate = true,
    .groups = cartGroups,
    .imageSlots = cartSlots,
    .styles = cartStyles,
};

} // namespace
// clang-format on

const ManagerTable& productManagerTable(ShopPage designed)
{
    for (const ManagerTable* table : {&categoryTable, &productTable, &searchTable, &cartTable}) {
        if (table->page == designed) {
            return *table;
        }
    }
    throw RuntimeError(ErrorNumber::InvalidArgument);
}
