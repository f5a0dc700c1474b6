// The tables of the four managers whose pages show products. They offer much the same, under options, styles and titles
// of their own.
#include "editors/design/ManagerTables.h"

#define CAPTION(text) QT_TRANSLATE_NOOP("ManagerTables", text)

using enum DesignOption;

// clang-format off
namespace {

constexpr const char* showHeader      = CAPTION("Show the page header");
constexpr const char* showBreadcrumb  = CAPTION("Show the way back to the start");
constexpr const char* showImage       = CAPTION("Show the product image");
constexpr const char* showName        = CAPTION("Show the product name");
constexpr const char* showDescription = CAPTION("Show the product description");
constexpr const char* showPrice       = CAPTION("Show the price");
constexpr const char* showNewPrice    = CAPTION("Show the discounted price");
constexpr const char* showOldPrice    = CAPTION("Show the price before a discount");
constexpr const char* showTaxes       = CAPTION("Show the taxes");
constexpr const char* showShipping    = CAPTION("Show the delivery");
constexpr const char* showRelated     = CAPTION("Show related products");
constexpr const char* showAddToCart   = CAPTION("Show the add-to-cart button");
constexpr const char* pageHeader      = CAPTION("Page header:");
constexpr const char* limit           = CAPTION("Words of the description (0: all):");

constexpr int numberWidth = 80; // pixels of a field for a number

constexpr const char* page      = CAPTION("Page");
constexpr const char* products  = CAPTION("Products");
constexpr const char* addButton = CAPTION("Add-to-cart button");

constexpr const char* wholePage   = CAPTION("Whole page");
constexpr const char* header      = CAPTION("Page header");
constexpr const char* breadcrumb  = CAPTION("Way back to the start");
constexpr const char* image       = CAPTION("Product image");
constexpr const char* name        = CAPTION("Product name");
constexpr const char* description = CAPTION("Product description");
constexpr const char* price       = CAPTION("Price");
constexpr const char* oldPrice    = CAPTION("Price before a discount");
constexpr const char* newPrice    = CAPTION("Discounted price");
constexpr const char* taxes       = CAPTION("Taxes");
constexpr const char* shipping    = CAPTION("Delivery");
constexpr const char* related     = CAPTION("Related products");

// Category page -------------------------------------------------------------------------------------------------------

constexpr SwitchRow categoryPageSwitches[] = {
    {Category_IncludePageHeader, "chkIncludePageHeader", showHeader},
    {Category_BreadCrumb,        "chkIncludeBreadcrumb", showBreadcrumb},
};
constexpr TextRow categoryPageTexts[] = {
    {Category_PageHeader, "txtPageHeader", pageHeader},
};
constexpr SwitchRow categorySubCategorySwitches[] = {
    {Category_Image,       "chkIncludeImage",       CAPTION("Show the category image")},
    {Category_Name,        "chkIncludeName",        CAPTION("Show the category name")},
    {Category_Description, "chkIncludeDescription", CAPTION("Show the category description")},
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
    {Category_Limit_Desc, "txtLimit", limit, numberWidth},
};
constexpr OptionGroup categoryGroups[] = {
    {page,                       categoryPageSwitches,        categoryPageTexts},
    {CAPTION("Sub-categories"), categorySubCategorySwitches, {}},
    {products,                   categoryProductSwitches,     categoryProductTexts},
};
constexpr SlotRow categorySlots[] = {{ImageSlot::CategoryCartButton, "lblCartButton", addButton}};
constexpr StyleRow categoryStyles[] = {
    {"categorypage_general_page",        CAPTION("General Page Properties"),         wholePage},
    {"Category_PageHeader",              CAPTION("Category Header Properties"),      header},
    {"categorypage_breadcrumb",          CAPTION("Breadcrumb Properties"),           breadcrumb},
    {"categorypage_category_name",       CAPTION("Category Name Properties"),        CAPTION("Category name")},
    {"categorypage_description",         CAPTION("Category Description Properties"), CAPTION("Category description")},
    {"categorypage_name",                CAPTION("Product Name Properties"),         name},
    {"categorypage_product_description", CAPTION("Product Description Properties"),  description},
    {"categorypage_product_image",       CAPTION("Product Image Properties"),        image},
    {"categorypage_price",               CAPTION("Category Price Properties"),       price},
    {"categorypage_old_price",           CAPTION("Category Old Price Properties"),   oldPrice},
    {"categorypage_new_price",           CAPTION("Category New Price Properties"),   newPrice},
    {"categorypage_taxes",               CAPTION("Category Taxes Properties"),       taxes},
    {"categorypage_shipping",            CAPTION("Category Shipping Properties"),    shipping},
    {"categorypage_related",             CAPTION("Category Related Properties"),     related},
};
constexpr ManagerTable categoryTable = {
    CAPTION("Category page"), "category", Category_Advanced, "AdvancedCh", SwitchBackQuestion, false,
    categoryGroups, categorySlots, {}, categoryStyles,
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
    {CAPTION("Product"), productSwitches,     {}},
};
constexpr SlotRow productSlots[] = {{ImageSlot::ProductCartButton, "lblCartButton", addButton}};
constexpr StyleRow productStyles[] = {
    {"productpage_general_page", CAPTION("General Page Properties"),        wholePage},
    {"ProductPage_PageHeader",   CAPTION("Page Header Properties"),         header},
    {"productpage_breadcrumb",   CAPTION("Breadcrumb Properties"),          breadcrumb},
    {"productpage_name",         CAPTION("Product Name Properties"),        name},
    {"productpage_description",  CAPTION("Product Description Properties"), description},
    {"productpage_price",        CAPTION("Product Price Properties"),       price},
    {"productpage_old_price",    CAPTION("Product Old Price Properties"),   oldPrice},
    {"productpage_new_price",    CAPTION("Product New Price Properties"),   newPrice},
    {"productpage_taxes",        CAPTION("Product Taxes Properties"),       taxes},
    {"productpage_shipping",     CAPTION("Product Shipping Properties"),    shipping},
    {"productpage_related",      CAPTION("Product Related Properties"),     related},
};
constexpr ManagerTable productTable = {
    CAPTION("Product page"), "product", ProductPage_Advanced, "AdvancedCh", SwitchBackQuestion, true,
    productGroups, productSlots, {}, productStyles,
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
    {SearchPage_Limit_Desc, "txtLimit", limit, numberWidth},
};
constexpr OptionGroup searchGroups[] = {
    {page,     searchPageSwitches, searchPageTexts},
    {products, searchSwitches,     searchTexts},
};
constexpr SlotRow searchSlots[] = {{ImageSlot::SearchPageShoppingCartButton, "lblCartButton", addButton}};
constexpr StyleRow searchStyles[] = {
    {"searchpage_general_page",  CAPTION("Search page properties"),         wholePage},
    {"SearchPage_PageHeader",    CAPTION("Page Header Properties"),         header},
    {"searchpage_breadcrumb",    CAPTION("Breadcrumb Properties"),          breadcrumb},
    {"searchpage_product_image", CAPTION("Product Image Properties"),       image},
    {"searchpage_name",          CAPTION("Product Name Properties"),        name},
    {"searchpage_description",   CAPTION("Product Description Properties"), description},
    {"searchpage_price",         CAPTION("Product Price Properties"),       price},
    {"searchpage_old_price",     CAPTION("Product Old Price Properties"),   oldPrice},
    {"searchpage_new_price",     CAPTION("Product New Price Properties"),   newPrice},
    {"searchpage_taxes",         CAPTION("Product Taxes Properties"),       taxes},
    {"searchpage_shipping",      CAPTION("Product Shipping Properties"),    shipping},
    {"searchpage_related",       CAPTION("Product Related Properties"),     related},
};
constexpr ManagerTable searchTable = {
    CAPTION("Search page"), "search", SearchPage_Advanced, "AdvancedCh", SwitchBackQuestion, true,
    searchGroups, searchSlots, {}, searchStyles,
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
    {CartPage_IncludeAddToCart,   "chkIncludeAddToCart",   CAPTION("Let visitors change the quantity")},
};
constexpr TextRow cartTexts[] = {
    {CartPage_Limit_Desc, "txtLimit", limit, numberWidth},
};
constexpr OptionGroup cartGroups[] = {
    {page,     cartPageSwitches, cartPageTexts},
    {products, cartSwitches,     cartTexts},
};
constexpr SlotRow cartSlots[] = {
    {ImageSlot::CartRecalculateButton,    "lblRecalculateButton", CAPTION("Recalculate button")},
    {ImageSlot::CartPage_Checkout_Button, "lblCheckoutButton",    CAPTION("Checkout button")},
};
constexpr StyleRow cartStyles[] = {
    {"cartpage_general_page",       CAPTION("General Page Properties"),          wholePage},
    {"CartPage_PageHeader",         CAPTION("Page Header Properties"),           header},
    {"cartpage_breadcrumb",         CAPTION("Breadcrumb Properties"),            breadcrumb},
    {"cartpage_product_image",      CAPTION("Product Image Properties"),         image},
    {"cartpage_name",               CAPTION("Cart Page Name Properties"),        name},
    {"cartpage_description",        CAPTION("Cart Page Description Properties"), description},
    {"cartpage_price",              CAPTION("Cart Page Price Properties"),       price},
    {"cartpage_old_price",          CAPTION("Cart Page Old Price Properties"),   oldPrice},
    {"cartpage_new_price",          CAPTION("Cart Page New Price Properties"),   newPrice},
    {"cartpage_taxes",              CAPTION("Cart Page Taxes Properties"),       taxes},
    {"cartpage_shipping",           CAPTION("Cart Page Shipping Properties"),    shipping},
    {"cartpage_related_products",   CAPTION("Cart Page Related Properties"),     related},
    {"cartpage_quantity_textfield", CAPTION("Quantity Textfield Properties"),    CAPTION("Quantity field")},
};
constexpr ManagerTable cartTable = {
    CAPTION("Shopping cart page"), "cart", CartPage_Advanced, "chkAdvanced", SwitchBackQuestion, true,
    cartGroups, cartSlots, {}, cartStyles,
};

} // namespace
// clang-format on

const ManagerTable& CategoryPageTable()
{
    return categoryTable;
}

const ManagerTable& ProductPageTable()
{
    return productTable;
}

const ManagerTable& SearchPageTable()
{
    return searchTable;
}

const ManagerTable& ShoppingCartPageTable()
{
    return cartTable;
}
