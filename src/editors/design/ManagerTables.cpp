#include "editors/design/ManagerTables.h"

#include <QCoreApplication>

#define CAPTION(text) QT_TRANSLATE_NOOP("ManagerTables", text)

using enum DesignOption;

// clang-format off
namespace {

constexpr const char* advancedCh = "AdvancedCh";

// Menu ----------------------------------------------------------------------------------------------------------------

constexpr SwitchRow menuCategorySwitches[] = {
    {Menu_TopCategories,            "chkTopCategories",            CAPTION("Show the top categories")},
    {Menu_IncludeHeaderTopCategory, "chkIncludeHeaderTopCategory", CAPTION("Show a heading above the categories")},
};
constexpr TextRow menuCategoryTexts[] = {
    {Menu_HeaderTopCategoryText, "txtHeaderTopCategory", CAPTION("Heading of the categories:")},
};
constexpr SwitchRow menuOtherSwitches[] = {
    {Menu_SearchTextfield, "chkSearchTextfield", CAPTION("Show the search field")},
    {Menu_SearchButton,    "chkSearchButton",    CAPTION("Show the search button")},
    {Menu_ShowMenu,        "chkShowMenu",        CAPTION("Show the links to pages")},
    {Menu_ProductNames,    "chkProductNames",    CAPTION("Show what is in the cart")},
    {Menu_CartButton,      "chkCartButton",      CAPTION("Show the shopping cart button")},
};
constexpr OptionGroup menuGroups[] = {
    {CAPTION("Categories"),           menuCategorySwitches, menuCategoryTexts},
    {CAPTION("Search, links, cart"), menuOtherSwitches,    {}},
};
constexpr SlotRow menuSlots[] = {
    {ImageSlot::MenuSearchButton,       "lblSearchButton",       CAPTION("Search button")},
    {ImageSlot::MenuShoppingCartButton, "lblShoppingCartButton", CAPTION("Shopping cart button")},
};
constexpr ListRow menuLists[] = {
    {PageSelection::MenuCustomPageSelected, "lblSelectedCustomPageBttn", CAPTION("Pages in the menu"), true},
};
// Two styles bear one title: this is meant.
constexpr StyleRow menuStyles[] = {
    {"General_menu",                  CAPTION("General Menu Properties"),   CAPTION("Whole menu")},
    {"menu_in_menu",                  CAPTION("Menu Properties"),           CAPTION("Links to pages")},
    {"Left_menu_searchbox_testfield", CAPTION("Menu Textfield Properties"), CAPTION("Search field")},
    {"top_categories_in_left_menu",   CAPTION("Top Categories"),            CAPTION("Top categories")},
    {"Menu_HeaderTopCategory",        CAPTION("Top Categories"),            CAPTION("Heading of the categories")},
};
constexpr ManagerTable menuTable = {
    CAPTION("Menu"), "menu", Menu_Advanced, advancedCh, SwitchBackQuestion, true,
    menuGroups, menuSlots, menuLists, menuStyles,
};

// Header --------------------------------------------------------------------------------------------------------------

// The question of the header alone is spelled otherwise.
constexpr const char* headerSwitchBackQuestion =
    "If you switch back from Advanced Mode all your changes made in the template will be changed back to defaults. "
    "Do you want to continue?";

constexpr SwitchRow headerSwitches[] = {
    {Header_ShowLogo,                  "chkShowLogo",                  CAPTION("Show the logo")},
    {Header_ShowMenu,                  "chkShowMenu",                  CAPTION("Show the links to pages")},
    {Header_IncludeSearchBoxTextField, "chkIncludeSearchBoxTextField", CAPTION("Show the search field")},
    {Header_IncludeSearchBoxButton,    "chkIncludeSearchBoxButton",    CAPTION("Show the search button")},
    {Header_ShowSoppingCartButton,     "chkShowSoppingCartButton",     CAPTION("Show the shopping cart button")},
};
constexpr OptionGroup headerGroups[] = {{CAPTION("What visitors see"), headerSwitches, {}}};
constexpr SlotRow headerSlots[] = {
    {ImageSlot::HeaderLogo,               "lblLogo",               CAPTION("Logo")},
    {ImageSlot::HeaderSearchButton,       "lblSearchButton",       CAPTION("Search button")},
    {ImageSlot::HeaderShoppingCartButton, "lblShoppingCartButton", CAPTION("Shopping cart button")},
};
constexpr ListRow headerLists[] = {
    {PageSelection::HeaderCustomPageSelected, "lblSelectedCustomPageBttn", CAPTION("Pages in the header"), true},
};
constexpr StyleRow headerStyles[] = {
    {"general_header",            CAPTION("Header Properties"),              CAPTION("Whole header")},
    {"menuinheader",              CAPTION("Menu Properties"),                CAPTION("Links to pages")},
    {"header_searchbox_testfield", CAPTION("SearchBox Textfield Properties"), CAPTION("Search field")},
};
constexpr ManagerTable headerTable = {
    CAPTION("Header"), "header", Header_Advanced, advancedCh, headerSwitchBackQuestion, true,
    headerGroups, headerSlots, headerLists, headerStyles,
};

// Footer --------------------------------------------------------------------------------------------------------------

constexpr SwitchRow footerSwitches[] = {
    {Footer_ShowMenu, "chkShowMenu", CAPTION("Show the links to pages")},
};
constexpr TextRow footerTexts[] = {
    {Footer_CopyrightText, "CopyrightTxt", CAPTION("Copyright line:")},
};
constexpr OptionGroup footerGroups[] = {{CAPTION("What visitors see"), footerSwitches, footerTexts}};
constexpr ListRow footerLists[] = {
    {PageSelection::FooterCustomPageSelected, "lblSelectedCustomPageBttn", CAPTION("Pages in the footer"), true},
};
constexpr StyleRow footerStyles[] = {
    {"menuinfooter", CAPTION("Menu Properties"), CAPTION("Links to pages")},
};
constexpr ManagerTable footerTable = {
    CAPTION("Footer"), "footer", Footer_Advanced, advancedCh, SwitchBackQuestion, true,
    footerGroups, {}, footerLists, footerStyles,
};

// Main page -----------------------------------------------------------------------------------------------------------

constexpr SwitchRow mainHeaderSwitches[] = {
    {Main_IncludePageHeader,      "chkIncludePageHeader",      CAPTION("Show the page header")},
    {Main_IncludeShopDescription, "chkIncludeShopDescription", CAPTION("Show the shop's description")},
    {Main_SearchTextfield,        "chkSearchTextfield",        CAPTION("Show the search field")},
    {Main_SearchButton,           "chkSearchButton",           CAPTION("Show the search button")},
    {Main_IncludeNavigationMenu,  "chkIncludeNavigationMenu",  CAPTION("Show the links to pages")},
};
constexpr TextRow mainTexts[] = {
    {Main_PageHeader, "txtPageHeader", CAPTION("Page header:")},
};
constexpr SwitchRow mainCategorySwitches[] = {
    {Main_IncludeTopCategories, "chkIncludeTopCategories", CAPTION("Show the top categories")},
    {Main_IncludeTwoLevel,      "chkIncludeTwoLevel",      CAPTION("Show their sub-categories")},
};
constexpr OptionGroup mainGroups[] = {
    {CAPTION("Page"),       mainHeaderSwitches,   mainTexts},
    {CAPTION("Categories"), mainCategorySwitches, {}},
};
constexpr SlotRow mainSlots[] = {
    {ImageSlot::MainSearchButton, "lblSearchBoxButton", CAPTION("Search button")},
};
constexpr ListRow mainLists[] = {
    {PageSelection::MainPageMenuList,     "lblMainPageMenuList",     CAPTION("Pages in the main page"), true},
    {PageSelection::CustomPageAsMainPage, "lblShowCustomPageAsMain", CAPTION("Home page of the shop"),  false},
};
constexpr StyleRow mainStyles[] = {
    {"main_page_general_properties",         CAPTION("General main page properties"),    CAPTION("Whole page")},
    {"Main_PageHeader",                      CAPTION("Page Header Properties"),          CAPTION("Page header")},
    {"Main_ShopDescription",                 CAPTION("Shop Description Properties"),     CAPTION("Shop description")},
    {"First_level_categories_in_main_page",  CAPTION("Level 1 Categories Properties"),   CAPTION("Category names")},
    {"Second_level_categories_in_main_page", CAPTION("Level 2 Categories Properties"),   CAPTION("Sub-category names")},
    {"Menu_in_main_page",                    CAPTION("Navigation Menu Properties"),      CAPTION("Links to pages")},
    {"Main_page_searchbox_textfield",        CAPTION("Search Box Textfield Properties"), CAPTION("Search field")},
    {"Top_categories_in_main_page",          CAPTION("Top Categories Properties"),       CAPTION("Top categories")},
};
constexpr ManagerTable mainTable = {
    CAPTION("Main page"), "main", Main_Advanced, advancedCh, SwitchBackQuestion, false,
    mainGroups, mainSlots, mainLists, mainStyles,
};

// Buying form ---------------------------------------------------------------------------------------------------------

constexpr SwitchRow buyingSwitches[] = {
    {BuyingForm_IncludePageHeader, "chkIncludePageHeader", CAPTION("Show the page header")},
    {BuyingForm_IncludeBreadCrumb, "chkIncludeBreadcrumb", CAPTION("Show the way back to the start")},
};
constexpr TextRow buyingTexts[] = {
    {BuyingForm_PageHeaderText, "txtPageHeader", CAPTION("Page header:")},
};
constexpr OptionGroup buyingGroups[] = {{CAPTION("What visitors see"), buyingSwitches, buyingTexts}};
// The first slot is never filled: the choice opens and changes nothing, and this is meant.
constexpr SlotRow buyingSlots[] = {
    {std::nullopt,                         "imgRecalculateButton", CAPTION("Recalculate button")},
    {ImageSlot::BuyingFormMakeOrderButton, "lblMakeOrder",         CAPTION("Order button")},
};
constexpr StyleRow buyingStyles[] = {
    {"Buyingform_general_page",  CAPTION("General Page Properties"),  CAPTION("Whole page")},
    {"Buyingform_page_header",   CAPTION("Page Header Properties"),   CAPTION("Page header")},
    {"Buyingform_bredcrumb",     CAPTION("Breadcrumb Properties"),    CAPTION("Way back to the start")},
    {"Buyingform_form_elements", CAPTION("Form Elements Properties"), CAPTION("Fields of the form")},
};
constexpr ManagerTable buyingTable = {
    CAPTION("Buying form"), "checkout", BuyingForm_Advanced, advancedCh, SwitchBackQuestion, false,
    buyingGroups, buyingSlots, {}, buyingStyles,
};

// Custom pages --------------------------------------------------------------------------------------------------------

constexpr StyleRow customPageStyles[] = {
    {"general_custom_pages", CAPTION("Custom Pages Properties"), CAPTION("Whole page")},
};
constexpr ManagerTable customPageTable = {
    CAPTION("Custom pages"), "custompage", CustomPages_Advanced, advancedCh, SwitchBackQuestion, true,
    {}, {}, {}, customPageStyles,
};

} // namespace
// clang-format on

const ManagerTable& MenuManagerTable()
{
    return menuTable;
}

const ManagerTable& HeaderManagerTable()
{
    return headerTable;
}

const ManagerTable& FooterManagerTable()
{
    return footerTable;
}

const ManagerTable& MainPageTable()
{
    return mainTable;
}

const ManagerTable& BuyingFormTable()
{
    return buyingTable;
}

const ManagerTable& CustomPageTable()
{
    return customPageTable;
}

QString CaptionText(const char* text)
{
    return QCoreApplication::translate("ManagerTables", text);
}
