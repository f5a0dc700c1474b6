// The vocabulary of the page options: one list, from which the enumeration, the names, the groups and the defaults are
// made. The order of the list is the order in which the shop file has the options. An option's name is the name of its
// element, letter for letter, misspelled ones included.
#pragma once

#include <QString>
#include <QStringView>

#include <cstddef>
#include <optional>
#include <span>

// OPTION(group, name, default): the default is what a file without the element gives.
// Category_PageHeader is a text whose default is deliberately the word "No".
// clang-format off
#define TARNWICK_DESIGN_OPTIONS(OPTION)                        \
    OPTION(Footer, Footer_CopyrightText, "")                   \
    OPTION(Footer, Footer_ShowMenu, "No")                      \
    OPTION(Footer, Footer_Advanced, "No")                      \
    OPTION(Header, Header_ShowLogo, "No")                      \
    OPTION(Header, Header_ShowMenu, "No")                      \
    OPTION(Header, Header_IncludeSearchBoxTextField, "No")     \
    OPTION(Header, Header_IncludeSearchBoxButton, "No")        \
    OPTION(Header, Header_ShowSoppingCartButton, "No")         \
    OPTION(Header, Header_Advanced, "No")                      \
    OPTION(Main, Main_IncludeTopCategories, "No")              \
    OPTION(Main, Main_SearchTextfield, "No")                   \
    OPTION(Main, Main_SearchButton, "No")                      \
    OPTION(Main, Main_IncludeNavigationMenu, "No")             \
    OPTION(Main, Main_IncludeTwoLevel, "No")                   \
    OPTION(Main, Main_IncludePageHeader, "No")                 \
    OPTION(Main, Main_PageHeader, "")                          \
    OPTION(Main, Main_Advanced, "No")                          \
    OPTION(Main, Main_IncludeShopDescription, "No")            \
    OPTION(Category, Category_PageHeader, "No")                \
    OPTION(Category, Category_IncludePageHeader, "No")         \
    OPTION(Category, Category_AddToCart, "No")                 \
    OPTION(Category, Category_ProductName, "No")               \
    OPTION(Category, Category_ProductImage, "No")              \
    OPTION(Category, Category_ProductDescription, "No")        \
    OPTION(Category, Category_Image, "No")                     \
    OPTION(Category, Category_Name, "No")                      \
    OPTION(Category, Category_Description, "No")               \
    OPTION(Category, Category_Price, "No")                     \
    OPTION(Category, Category_OldPrice, "No")                  \
    OPTION(Category, Category_NewPrice, "No")                  \
    OPTION(Category, Category_Taxes, "No")                     \
    OPTION(Category, Category_ShoppingInfo, "No")              \
    OPTION(Category, Category_Related, "No")                   \
    OPTION(Category, Category_BreadCrumb, "No")                \
    OPTION(Category, Category_Advanced, "No")                  \
    OPTION(Category, Category_Limit_Desc, "0")                 \
    OPTION(Menu, Menu_TopCategories, "No")                     \
    OPTION(Menu, Menu_SearchButton, "No")                      \
    OPTION(Menu, Menu_SearchTextfield, "No")                   \
    OPTION(Menu, Menu_ShowMenu, "No")                          \
    OPTION(Menu, Menu_ProductNames, "No")                      \
    OPTION(Menu, Menu_CartButton, "No")                        \
    OPTION(Menu, Menu_IncludeHeaderTopCategory, "No")          \
    OPTION(Menu, Menu_HeaderTopCategoryText, "")               \
    OPTION(Menu, Menu_Advanced, "")                            \
    OPTION(Product, ProductPage_IncludePageHeader, "No")       \
    OPTION(Product, ProductPage_PageHeader, "")                \
    OPTION(Product, ProductPage_IncludeBreadcrumb, "No")       \
    OPTION(Product, ProductPage_IncludeImage, "No")            \
    OPTION(Product, ProductPage_IncludeAddToCart, "No")        \
    OPTION(Product, ProductPage_IncludeName, "No")             \
    OPTION(Product, ProductPage_IncludeDescription, "No")      \
    OPTION(Product, ProductPage_IncludePrice, "No")            \
    OPTION(Product, ProductPage_IncludeOldPrice, "No")         \
    OPTION(Product, ProductPage_IncludeNewPrice, "No")         \
    OPTION(Product, ProductPage_IncludeTaxes, "No")            \
    OPTION(Product, ProductPage_IncludeShipping, "No")         \
    OPTION(Product, ProductPage_IncludeRelated, "No")          \
    OPTION(Product, ProductPage_Advanced, "No")                \
    OPTION(Search, SearchPage_IncludePageHeader, "No")         \
    OPTION(Search, SearchPage_PageHeader, "")                  \
    OPTION(Search, SearchPage_IncludeBreadcrumb, "No")         \
    OPTION(Search, SearchPage_IncludeImage, "No")              \
    OPTION(Search, SearchPage_IncludeAddToCart, "No")          \
    OPTION(Search, SearchPage_IncludeName, "No")               \
    OPTION(Search, SearchPage_IncludeDescription, "No")        \
    OPTION(Search, SearchPage_IncludePrice, "No")              \
    OPTION(Search, SearchPage_IncludeOldPrice, "No")           \
    OPTION(Search, SearchPage_IncludeNewPrice, "No")           \
    OPTION(Search, SearchPage_IncludeTaxes, "No")              \
    OPTION(Search, SearchPage_IncludeShipping, "No")           \
    OPTION(Search, SearchPage_IncludeRelated, "No")            \
    OPTION(Search, SearchPage_Advanced, "No")                  \
    OPTION(Search, SearchPage_Limit_Desc, "0")                 \
    OPTION(Cart, CartPage_IncludePageHeader, "No")             \
    OPTION(Cart, CartPage_PageHeader, "")                      \
    OPTION(Cart, CartPage_IncludeAddToCart, "")                \
    OPTION(Cart, CartPage_IncludeDescription, "")              \
    OPTION(Cart, CartPage_IncludeImage, "")                    \
    OPTION(Cart, CartPage_IncludeName, "")                     \
    OPTION(Cart, CartPage_IncludeNewPrice, "")                 \
    OPTION(Cart, CartPage_IncludeOldPrice, "")                 \
    OPTION(Cart, CartPage_IncludePrice, "")                    \
    OPTION(Cart, CartPage_IncludeRelated, "")                  \
    OPTION(Cart, CartPage_IncludeShipping, "")                 \
    OPTION(Cart, CartPage_IncludeTaxes, "")                    \
    OPTION(Cart, CartPage_Advanced, "No")                      \
    OPTION(Cart, CartPage_Limit_Desc, "0")                     \
    OPTION(BuyingForm, BuyingForm_IncludeBreadCrumb, "No")     \
    OPTION(BuyingForm, BuyingForm_IncludePageHeader, "No")     \
    OPTION(BuyingForm, BuyingForm_PageHeaderText, "")          \
    OPTION(BuyingForm, BuyingForm_Advanced, "No")              \
    OPTION(CustomPages, CustomPages_Advanced, "No")
// clang-format on

#define TARNWICK_OPTION_ENUMERATOR(group, name, defaultText) name,
enum class DesignOption : int { TARNWICK_DESIGN_OPTIONS(TARNWICK_OPTION_ENUMERATOR) };
#undef TARNWICK_OPTION_ENUMERATOR

enum class DesignGroup { Footer, Header, Main, Category, Menu, Product, Search, Cart, BuyingForm, CustomPages };

struct DesignOptionRow
{
    DesignGroup group;
    DesignOption option;
    const char* element; // the name, also of the element in the file
    QString name;        // the same as text
    QString defaultText;
};

// NOLINTNEXTLINE(bugprone-macro-parentheses): a term of a sum
#define TARNWICK_OPTION_COUNT(group, name, defaultText) +1
inline constexpr std::size_t DesignOptionCount = 0 TARNWICK_DESIGN_OPTIONS(TARNWICK_OPTION_COUNT);
#undef TARNWICK_OPTION_COUNT

// All options in the order of the file; a row's position is the number of its option.
std::span<const DesignOptionRow> designOptionTable();

// The options of one group, in the order of the file.
std::span<const DesignOptionRow> designOptionsOf(DesignGroup group);

// True for the word that turns a switch of the design on; the case counts.
bool isYes(QStringView word);

// The option of that name, exact case; nothing when there is none.
std::optional<DesignOption> designOptionByName(QStringView name);

// What the three limits of description lengths (names ending in "_Limit_Desc") do with a text that is stored: the
// 16-bit whole number that it stands for as text, "0" when it stands for none. Blanks around are allowed, a fraction is
// rounded half to even.
QString NormaliseLimit(const QString& text);
