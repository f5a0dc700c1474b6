#include "editors/design/ManagerTables.h"

using enum DesignOption;

// clang-format off
namespace {

// Menu ----------------------------------------------------------------------------------------------------------------

constexpr SwitchRow menuCategorySwitches[] = {
    {Menu_TopCategories,            "chkTopCategories",            "Show the top categories"},
    {Menu_IncludeHeaderTopCategory, "chkIncludeHeaderTopCategory", "Show a heading above the categories"},
};
constexpr TextRow menuCategoryTexts[] = {
    {Menu_HeaderTopCategoryText, "txtHeaderTopCategory", "Heading of the categories:"},
};
constexpr SwitchRow menuOtherSwitches[] = {
    {Menu_SearchTextfield, "chkSearchTextfield", "Show the search field"},
    {Menu_SearchButton,    "chkSearchButton",    "Show the search button"},
    {Menu_ShowMenu,        "chkShowMenu",        "Show the links to pages"},
    {Menu_ProductNames,    "chkProductNames",    "Show what is in the cart"},
    {Menu_CartButton,      "chkCartButton",      "Show the shopping cart button"},
};
constexpr OptionGroup menuGroups[] = {
    {"Categories",           menuCategorySwitches, menuCategoryTexts},
    {"Search, links, cart", menuOtherSwitches,    {}},
};
constexpr SlotRow menuSlots[] = {
    {ImageSlot::MenuSearchButton,       "lblSearchButton",       "Search button"},
    {ImageSlot::MenuShoppingCartButton, "lblShoppingCartButton", "Shopping cart button"},
};
constexpr ListRow menuLists[] = {
    {PageSelection::MenuCustomPageSelected, "lblSelectedCustomPageBttn", "Pages in the menu", PageChoice::Several},
};
// Two styles share a title, deliberately.
constexpr StyleRow menuStyles[] = {
    {"General_menu",                  "General Menu Properties",   "Whole menu"},
    {"menu_in_menu",                  "Menu Properties",           "Links to pages"},
    {"Left_menu_searchbox_testfield", "Menu Textfield Properties", "Search field"},
    {"top_categories_in_left_menu",   "Top Categories",            "Top categories"},
    {"Menu_HeaderTopCategory",        "Top Categories",            "Heading of the categories"},
};
constexpr ManagerTable menuTable = {
    .heading = "Menu",
    .page = ShopPage::Menu,
    .savesTemplate = true,
    .groups = menuGroups,
    .imageSlots = menuSlots,
    .lists = menuLists,
    .styles = menuStyles,
};

// Header --------------------------------------------------------------------------------------------------------------

// The question of the header alone is spelled otherwise.
constexpr const char* headerSwitchBackQuestion =
    "If you switch back from Advanced Mode all your changes made in the template will be changed back to defaults. "
    "Do you want to continue?";

constexpr SwitchRow headerSwitches[] = {
    {Header_ShowLogo,                  "chkShowLogo",                  "Show the logo"},
    {Header_ShowMenu,                  "chkShowMenu",                  "Show the links to pages"},
    {Header_IncludeSearchBoxTextField, "chkIncludeSearchBoxTextField", "Show the search field"},
    {Header_IncludeSearchBoxButton,    "chkIncludeSearchBoxButton",    "Show the search button"},
    {Header_ShowSoppingCartButton,     "chkShowSoppingCartButton",     "Show the shopping cart button"},
};
constexpr OptionGroup headerGroups[] = {{"What visitors see", headerSwitches, {}}};
constexpr SlotRow headerSlots[] = {
    {ImageSlot::HeaderLogo,               "lblLogo",               "Logo"},
    {ImageSlot::HeaderSearchButton,       "lblSearchButton",       "Search button"},
    {ImageSlot::HeaderShoppingCartButton, "lblShoppingCartButton", "Shopping cart button"},
};
constexpr ListRow headerLists[] = {
    {PageSelection::HeaderCustomPageSelected, "lblSelectedCustomPageBttn", "Pages in the header", PageChoice::Several},
};
constexpr StyleRow headerStyles[] = {
    {"general_header",            "Header Properties",              "Whole header"},
    {"menuinheader",              "Menu Properties",                "Links to pages"},
    {"header_searchbox_testfield", "SearchBox Textfield Properties", "Search field"},
};
constexpr ManagerTable headerTable = {
    .heading = "Header",
    .page = ShopPage::Header,
    .switchBackQuestion = headerSwitchBackQuestion,
    .savesTemplate = true,
    .groups = headerGroups,
    .imageSlots = headerSlots,
    .lists = headerLists,
    .styles = headerStyles,
};

// Footer --------------------------------------------------------------------------------------------------------------

constexpr SwitchRow footerSwitches[] = {
    {Footer_ShowMenu, "chkShowMenu", "Show the links to pages"},
};
constexpr TextRow footerTexts[] = {
    {Footer_CopyrightText, "CopyrightTxt", "Copyright line:"},
};
constexpr OptionGroup footerGroups[] = {{"What visitors see", footerSwitches, footerTexts}};
constexpr ListRow footerLists[] = {
    {PageSelection::FooterCustomPageSelected, "lblSelectedCustomPageBttn", "Pages in the footer", PageChoice::Several},
};
constexpr StyleRow footerStyles[] = {
    {"menuinfooter", "Menu Properties", "Links to pages"},
};
constexpr ManagerTable footerTable = {
    .heading = "Footer",
    .page = ShopPage::Footer,
    .savesTemplate = true,
    .groups = footerGroups,
    .lists = footerLists,
    .styles = footerStyles,
};

// Main page -----------------------------------------------------------------------------------------------------------

constexpr SwitchRow mainHeaderSwitches[] = {
    {Main_IncludePageHeader,      "chkIncludePageHeader",      "Show the page header"},
    {Main_IncludeShopDescription, "chkIncludeShopDescription", "Show the shop's description"},
    {Main_SearchTextfield,        "chkSearchTextfield",        "Show the search field"},
    {Main_SearchButton,           "chkSearchButton",           "Show the search button"},
    {Main_IncludeNavigationMenu,  "chkIncludeNavigationMenu",  "Show the links to pages"},
};
constexpr TextRow mainTexts[] = {
    {Main_PageHeader, "txtPageHeader", "Page header:"},
};
constexpr SwitchRow mainCategorySwitches[] = {
    {Main_IncludeTopCategories, "chkIncludeTopCategories", "Show the top categories"},
    {Main_IncludeTwoLevel,      "chkIncludeTwoLevel",      "Show their sub-categories"},
};
constexpr OptionGroup mainGroups[] = {
    {"Page",       mainHeaderSwitches,   mainTexts},
    {"Categories", mainCategorySwitches, {}},
};
constexpr SlotRow mainSlots[] = {
    {ImageSlot::MainSearchButton, "lblSearchBoxButton", "Search button"},
};
constexpr ListRow mainLists[] = {
    {PageSelection::MainPageMenuList,     "lblMainPageMenuList",     "Pages in the main page", PageChoice::Several},
    {PageSelection::CustomPageAsMainPage, "lblShowCustomPageAsMain", "Home page of the shop",  PageChoice::One},
};
constexpr StyleRow mainStyles[] = {
    {"main_page_general_properties",         "General main page properties",    "Whole page"},
    {"Main_PageHeader",                      "Page Header Properties",          "Page header"},
    {"Main_ShopDescription",                 "Shop Description Properties",     "Shop description"},
    {"First_level_categories_in_main_page",  "Level 1 Categories Properties",   "Category names"},
    {"Second_level_categories_in_main_page", "Level 2 Categories Properties",   "Sub-category names"},
    {"Menu_in_main_page",                    "Navigation Menu Properties",      "Links to pages"},
    {"Main_page_searchbox_textfield",        "Search Box Textfield Properties", "Search field"},
    {"Top_categories_in_main_page",          "Top Categories Properties",       "Top categories"},
};
constexpr ManagerTable mainTable = {
    .heading = "Main page",
    .page = ShopPage::Main,
    .savesTemplate = false,
    .groups = mainGroups,
    .imageSlots = mainSlots,
    .lists = mainLists,
    .styles = mainStyles,
};

// Buying form ---------------------------------------------------------------------------------------------------------

constexpr SwitchRow buyingSwitches[] = {
    {BuyingForm_IncludePageHeader, "chkIncludePageHeader", "Show the page header"},
    {BuyingForm_IncludeBreadCrumb, "chkIncludeBreadcrumb", "Show the breadcrumb trail"},
};
constexpr TextRow buyingTexts[] = {
    {BuyingForm_PageHeaderText, "txtPageHeader", "Page header:"},
};
constexpr OptionGroup buyingGroups[] = {{"What visitors see", buyingSwitches, buyingTexts}};
// The first slot is never filled, deliberately: its dialog opens and changes nothing.
constexpr SlotRow buyingSlots[] = {
    {std::nullopt,                         "imgRecalculateButton", "Recalculate button"},
    {ImageSlot::BuyingFormMakeOrderButton, "lblMakeOrder",         "Order button"},
};
constexpr StyleRow buyingStyles[] = {
    {"Buyingform_general_page",  "General Page Properties",  "Whole page"},
    {"Buyingform_page_header",   "Page Header Properties",   "Page header"},
    {"Buyingform_bredcrumb",     "Breadcrumb Properties",    "Breadcrumb trail"},
    {"Buyingform_form_elements", "Form Elements Properties", "Fields of the form"},
};
constexpr ManagerTable buyingTable = {
    .heading = "Buying form",
    .page = ShopPage::Checkout,
    .savesTemplate = false,
    .groups = buyingGroups,
    .imageSlots = buyingSlots,
    .styles = buyingStyles,
};

// Custom pages --------------------------------------------------------------------------------------------------------

constexpr StyleRow customPageStyles[] = {
    {"general_custom_pages", "Custom Pages Properties", "Whole page"},
};
constexpr ManagerTable customTable = {
    .heading = "Custom pages",
    .page = ShopPage::CustomPage,
    .savesTemplate = true,
    .styles = customPageStyles,
};

} // namespace
// clang-format on

const ManagerTable& managerTable(ShopPage page)
{
    for (const ManagerTable* table : {&menuTable, &headerTable, &footerTable, &mainTable, &buyingTable, &customTable}) {
        if (table->page == page) {
            return *table;
        }
    }
    return productManagerTable(page);
}

QString captionText(const char* text)
{
    return QString::fromLatin1(text);
}
