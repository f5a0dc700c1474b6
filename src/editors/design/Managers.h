// The managers that are nothing but their table.
#pragma once

#include "design/PageTable.h"
#include "editors/design/PageManager.h"

template <ShopPage designed>
class ManagerOf : public PageManager
{
public:
    ManagerOf(PanelHost& host, QWidget* parent) : PageManager(host, designed, parent) {}
};

using MenuManager = ManagerOf<ShopPage::Menu>;
using HeaderManager = ManagerOf<ShopPage::Header>;
using ucMainPage = ManagerOf<ShopPage::Main>;
using CategoryPageManager = ManagerOf<ShopPage::Category>;
using ProductPageManager = ManagerOf<ShopPage::Product>;
using SearchPageManager = ManagerOf<ShopPage::Search>;
using ShoppingCartPageManager = ManagerOf<ShopPage::Cart>;
using ucBuyingForm = ManagerOf<ShopPage::Checkout>;
