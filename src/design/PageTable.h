// The pages of the shop: the one list that reading, rendering, previewing, editing, checking and publishing go by. A
// page's name is that of its template: the file without ".html", and its key in the set of templates.
#pragma once

#include "design/DesignOptions.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <span>

enum class PageKind {
    Frame,    // takes the pages and pieces when they are finished
    Page,     // the body of a document
    Piece,    // a part of every document; it can be the body, too
    OnlySent, // for the hosted shop alone: goes up and is never rendered here
};

// PAGE(page, name, kind, advanced option, reading, composing, checking). The rows stand in the order of sending. The
// last three columns are places in an order of their own, counted from 1; 0 means that the page has none.
// clang-format off
#define TARNWICK_PAGES(PAGE)                                                                   \
    PAGE(Cart,        "cart",         Page,     DesignOption::CartPage_Advanced,     7, 0,  7) \
    PAGE(Category,    "category",     Page,     DesignOption::Category_Advanced,     4, 0,  6) \
    PAGE(CustomPage,  "custompage",   Page,     DesignOption::CustomPages_Advanced,  9, 0, 11) \
    PAGE(Footer,      "footer",       Piece,    DesignOption::Footer_Advanced,       2, 2,  2) \
    PAGE(Header,      "header",       Piece,    DesignOption::Header_Advanced,       8, 3,  1) \
    PAGE(Layout,      "layout",       Frame,    std::nullopt,                        0, 0, 12) \
    PAGE(Main,        "main",         Page,     DesignOption::Main_Advanced,         1, 0,  4) \
    PAGE(Menu,        "menu",         Piece,    DesignOption::Menu_Advanced,         3, 1,  3) \
    PAGE(Product,     "product",      Page,     DesignOption::ProductPage_Advanced,  5, 0,  5) \
    PAGE(Search,      "search",       Page,     DesignOption::SearchPage_Advanced,   6, 0,  8) \
    PAGE(Checkout,    "checkout",     Piece,    DesignOption::BuyingForm_Advanced,  10, 4, 10) \
    PAGE(Buying,      "buying",       OnlySent, std::nullopt,                        0, 0,  9) \
    PAGE(PayedCancel, "payed_cancel", OnlySent, std::nullopt,                        0, 0,  0) \
    PAGE(PayedOk,     "payed_ok",     OnlySent, std::nullopt,                        0, 0,  0)
// clang-format on

#define TARNWICK_PAGE_ENUMERATOR(page, name, kind, advanced, reading, composing, checking) page,
enum class ShopPage { TARNWICK_PAGES(TARNWICK_PAGE_ENUMERATOR) };
#undef TARNWICK_PAGE_ENUMERATOR

struct PageRow
{
    ShopPage page;
    QLatin1StringView name;
    PageKind kind;
    std::optional<DesignOption> advanced; // of the advanced mode of its manager; none without a manager
    int reading;                          // one that cannot be read keeps those behind it from being read
    int composing;                        // of the pieces of a document
    int checking;                         // of the template's version
};

// All pages, in the order of sending; a row's position is the number of its page.
std::span<const PageRow> pageTable();
const PageRow& rowOf(ShopPage page);
QString nameOf(ShopPage page);

// The names of the pages that have a place in that order: pageNamesBy(&PageRow::reading).
QStringList pageNamesBy(int PageRow::*order);

// The names by which a menu of custom pages can lead to a page of the shop itself.
inline constexpr QLatin1StringView HomePageName("Home page");
inline constexpr QLatin1StringView ShoppingCartPageName("Shopping cart page");
inline constexpr std::array FixedPageNames = {HomePageName, ShoppingCartPageName};
