// The thirty buttons of the window, and the names of its buttons and panels. The window is built from these rows: to
// add a button, add a name and a row.
#pragma once

#include <QLatin1String>
#include <QMetaEnum>
#include <QString>

#include <array>
#include <optional>
#include <span>

// The names of the buttons and panels, letter for letter as their objects bear them.
namespace ShellNames {
Q_NAMESPACE

enum class ButtonName {
    SaveShopSBtn,
    ProductCatalogSBtn,
    ShopDesignSBtn,
    PreviewBrowserSBtn,
    UploadShopSBtn,
    ShopGeneralSBtn,
    ShopDiscountSBtn,
    ShopTaxesSBtn,
    ShippingChargesSBtn,
    ShopNewCategorySBtn,
    CategoryGeneralSBtn,
    CategoryDiscountSBtn,
    NewCategorySBtn,
    NewProductSBtn,
    RemoveCategorySBtn,
    ProductGeneralSBtn,
    ProductDiscountSBtn,
    ProductPriceSbtn,
    ProductRelatedSBtn,
    RemoveProductSBtn,
    MainPageDesignSBtn,
    HeaderDesignSBtn,
    FooterDesignSBtn,
    MenuDesignSBtn,
    CategoryPageDesignSBtn,
    ProductPageDesignSBtn,
    SearchPageDesignSBtn,
    CustomPagesDesignSBtn,
    ShoppingCartPageDesignSBtn,
    BuyingFormDesignSBtn,
};
Q_ENUM_NS(ButtonName)

enum class PanelName {
    ShopGeneralPnl,
    ShopDiscountPnl,
    ShopTaxesPnl,
    ShippingChargesPnl,
    ShopsShippingPnl,
    CategoryGeneralPnl,
    CategoryDiscountPnl,
    ProductGeneralPnl,
    ProductDiscountPnl,
    ProductsMultipricePnl,
    ProductsRelatedPnl,
    ProductShippingCostsPnl,
    MainPagePnl,
    HeaderManagerPnl,
    FooterManagerPnl,
    MenuManagerPnl,
    CategoryPageManagerPnl,
    ProductPageManagerPnl,
    SearchPageManagerPnl,
    CustomPagesManagerPnl,
    ShoppingCartPageManagerPnl,
    BuyingFormPnl,
};
Q_ENUM_NS(PanelName)
} // namespace ShellNames

using ShellNames::ButtonName;
using ShellNames::PanelName;

// The name as an object bears it.
template <class Name>
QString objectNameOf(Name name)
{
    return QLatin1String(QMetaEnum::fromType<Name>().valueToKey(static_cast<int>(name)));
}

// Where a button stands.
enum class ButtonFrame { ToolbarFrame, ShopToolbar, CategoryToolbar, ProductToolbar, ShopDesignMenuFrame };

// What a change of panel does besides.
namespace PanelCode {
enum Value : qint16 {
    Show = 0,
    NewCategory = 1,
    NewProduct = 2,
    RemoveProduct = 3,
    RemoveCategory = 4,
    DuplicateProduct = 5,
    GatherOnly = 10,
};
}

struct ButtonRow
{
    ButtonName name;
    ButtonFrame frame;
    const char* title; // also looked up in the table of pictures, and logged
    std::optional<PanelName> panel;
    PanelCode::Value code;
    const char* icon; // file under :/icons at rest
};

// All buttons, in the order in which they stand.
std::span<const ButtonRow> buttonTable();
