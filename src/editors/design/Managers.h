// The managers that are nothing but their table.
#pragma once

#include "editors/design/ManagerTables.h"
#include "editors/design/PageManager.h"

class MenuManager : public PageManager
{
    Q_OBJECT

public:
    MenuManager(PanelHost& host, QWidget* parent) : PageManager(host, menuManagerTable(), parent) {}
};

class HeaderManager : public PageManager
{
    Q_OBJECT

public:
    HeaderManager(PanelHost& host, QWidget* parent) : PageManager(host, headerManagerTable(), parent) {}
};

class ucMainPage : public PageManager
{
    Q_OBJECT

public:
    ucMainPage(PanelHost& host, QWidget* parent) : PageManager(host, mainPageTable(), parent) {}
};

class CategoryPageManager : public PageManager
{
    Q_OBJECT

public:
    CategoryPageManager(PanelHost& host, QWidget* parent) : PageManager(host, categoryPageTable(), parent) {}
};

class ProductPageManager : public PageManager
{
    Q_OBJECT

public:
    ProductPageManager(PanelHost& host, QWidget* parent) : PageManager(host, productPageTable(), parent) {}
};

class SearchPageManager : public PageManager
{
    Q_OBJECT

public:
    SearchPageManager(PanelHost& host, QWidget* parent) : PageManager(host, searchPageTable(), parent) {}
};

class ShoppingCartPageManager : public PageManager
{
    Q_OBJECT

public:
    ShoppingCartPageManager(PanelHost& host, QWidget* parent) : PageManager(host, shoppingCartPageTable(), parent) {}
};

class ucBuyingForm : public PageManager
{
    Q_OBJECT

public:
    ucBuyingForm(PanelHost& host, QWidget* parent) : PageManager(host, buyingFormTable(), parent) {}
};
