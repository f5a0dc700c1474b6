#include "shell/ButtonTable.h"

namespace {

using enum ButtonFrame;
using enum ButtonName;
using enum PanelName;
using namespace PanelCode;

constexpr std::array<ButtonRow, 30> buttonRows = {{
    {SaveShopSBtn, ToolbarFrame, "Save The Shop", std::nullopt, Show, "131"},
    {ProductCatalogSBtn, ToolbarFrame, "Products Catalog", ShopGeneralPnl, Show, "133"},
    {ShopDesignSBtn, ToolbarFrame, "The Shop Design and Layout", MainPagePnl, Show, "134"},
    {PreviewBrowserSBtn, ToolbarFrame, "The Shop Preview", std::nullopt, Show, "135"},
    {UploadShopSBtn, ToolbarFrame, "Upload The Shop", std::nullopt, Show, "132"},

    {ShopGeneralSBtn, ShopToolbar, "Shop general properties", ShopGeneralPnl, Show, "151"},
    {ShopDiscountSBtn, ShopToolbar, "Shop discount properties", ShopDiscountPnl, Show, "153"},
    {ShopTaxesSBtn, ShopToolbar, "Taxes", ShopTaxesPnl, Show, "152"},
    {ShippingChargesSBtn, ShopToolbar, "Shipping charges", ShippingChargesPnl, Show, "123"},
    {ShopNewCategorySBtn, ShopToolbar, "Add new category", CategoryGeneralPnl, NewCategory, "125"},

    {CategoryGeneralSBtn, CategoryToolbar, "Category general properties", CategoryGeneralPnl, Show, "151"},
    {CategoryDiscountSBtn, CategoryToolbar, "Category discount properties", CategoryDiscountPnl, Show, "153"},
    {NewCategorySBtn, CategoryToolbar, "Add new category", CategoryGeneralPnl, NewCategory, "125"},
    {NewProductSBtn, CategoryToolbar, "Add new product", ProductGeneralPnl, NewProduct, "114"},
    {RemoveCategorySBtn, CategoryToolbar, "Remove category", CategoryGeneralPnl, RemoveCategory, "113"},

    {ProductGeneralSBtn, ProductToolbar, "Product general properties", ProductGeneralPnl, Show, "151"},
    {ProductDiscountSBtn, ProductToolbar, "Product discount properties", ProductDiscountPnl, Show, "153"},
    {ProductPriceSbtn, ProductToolbar, "Multiple prices", ProductsMultipricePnl, Show, "104"},
    {ProductRelatedSBtn, ProductToolbar, "Related products", ProductsRelatedPnl, Show, "105"},
    {RemoveProductSBtn, ProductToolbar, "Remove product", CategoryGeneralPnl, RemoveProduct, "remove_product"},

    {MainPageDesignSBtn, ShopDesignMenuFrame, "Main Page Design", MainPagePnl, Show, "main_page_design"},
    {HeaderDesignSBtn, ShopDesignMenuFrame, "Header Design", HeaderManagerPnl, Show, "header_design"},
    {FooterDesignSBtn, ShopDesignMenuFrame, "Footer Design", FooterManagerPnl, Show, "footer_design"},
    {MenuDesignSBtn, ShopDesignMenuFrame, "Menu Design", MenuManagerPnl, Show, "menu_design"},
    {CategoryPageDesignSBtn, ShopDesignMenuFrame, "Category Page Design", CategoryPageManagerPnl, Show,
     "category_page_design"},
    {ProductPageDesignSBtn, ShopDesignMenuFrame, "Product Page Design", ProductPageManagerPnl, Show,
     "product_page_design"},
    {SearchPageDesignSBtn, ShopDesignMenuFrame, "Search Page Design", SearchPageManagerPnl, Show, "search_page_design"},
    {CustomPagesDesignSBtn, ShopDesignMenuFrame, "Custom Page Design", CustomPagesManagerPnl, Show,
     "custom_page_design"},
    {ShoppingCartPageDesignSBtn, ShopDesignMenuFrame, "Shopping Cart Page Design", ShoppingCartPageManagerPnl, Show,
     "cart_page_design"},
    // Two blanks stand in this title.
    {BuyingFormDesignSBtn, ShopDesignMenuFrame, "Buying  Form Design", BuyingFormPnl, Show, "buying_form_design"},
}};

} // namespace

std::span<const ButtonRow> buttonTable()
{
    return buttonRows;
}
