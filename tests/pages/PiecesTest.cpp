// The pieces that stand around every page: menu, header and footer.
#include "pages/PagesTest.h"
#include "pages/RenderPage.h"

using namespace Qt::StringLiterals;

namespace {

using PiecesTest = PagesTest;

TEST_F(PiecesTest, AllVariablesOfTheMenuStandInTheOrderOfAdding)
{
    markOptions();
    markSlots();
    design().Pages(PageSelection::MenuCustomPageSelected)->Add(u"About"_s);
    const auto tea = addCategory(u"2"_s, u"Tea"_s);
    addCategory(u"3"_s, u"Green"_s, tea);
    addCategory(u"4"_s, u"Cups"_s);
    const auto sencha = addProduct(u"5"_s, u"Sencha"_s, u"10"_s, tea);
    addToCart(sencha, u"10"_s, u"2"_s);
    addToCart(sencha, u"8"_s, u"1"_s);

    const QString expected =
        u"categories:\n"
        "  row\n"
        "    category_id = 2\n"
        "    category_name = Tea\n"
        "    server = http://previewmode/\n"
        "  row\n"
        "    category_id = 4\n"
        "    category_name = Cups\n"
        "    server = http://previewmode/\n"
        "shop_name = Corner Shop\n"_s +
        slotDump(u"CARTPAGE_CHECKOUT_BUTTON"_s) + slotDump(u"MENU_SEARCH_BUTTON"_s) +
        slotDump(u"MENU_SHOPPINGCART_BUTTON"_s) +
        u"LEFT_MENU_MENU_LIST:\n"
        "  row\n"
        "    name = About\n"
        "    server = http://previewmode/\n"_s +
        optionDump({u"Menu_TopCategories"_s, u"Menu_SearchButton"_s, u"Menu_SearchTextfield"_s, u"Menu_ShowMenu"_s,
                    u"Menu_ProductNames"_s}) +
        u"HAS_ITEMS = Yes\n"
        "products:\n"
        "  row\n"
        "    name = Sencha\n"
        "    id = 5\n"
        "    quantity = 2\n"
        "    server = http://previewmode/\n"
        "  row\n"
        "    name = Sencha\n"
        "    id = 5\n"
        "    quantity = 1\n"
        "    server = http://previewmode/\n"_s +
        optionDump({u"Menu_CartButton"_s, u"Menu_IncludeHeaderTopCategory"_s, u"Menu_HeaderTopCategoryText"_s});
    EXPECT_EQ(dumpOf(u"menu"_s), expected);
}

TEST_F(PiecesTest, AllVariablesOfTheHeaderStandInTheOrderOfAdding)
{
    markOptions();
    markSlots();
    design().Pages(PageSelection::HeaderCustomPageSelected)->Add(u"About"_s);
    const QString expected =
        slotDump(u"HEADER_LOGO"_s) + slotDump(u"HEADER_SEARCH_BUTTON"_s) + slotDump(u"HEADER_SHOPPINGCART_BUTTON"_s) +
        u"HEADER_MENU_LIST:\n"
        "  row\n"
        "    name = About\n"
        "    server = http://previewmode/\n"_s +
        optionDump({u"Header_ShowLogo"_s, u"Header_ShowMenu"_s, u"Header_IncludeSearchBoxTextField"_s,
                    u"Header_IncludeSearchBoxButton"_s, u"Header_ShowSoppingCartButton"_s});
    EXPECT_EQ(dumpOf(u"header"_s), expected);
}

TEST_F(PiecesTest, AllVariablesOfTheFooterStandInTheOrderOfAdding)
{
    markOptions();
    design().Pages(PageSelection::FooterCustomPageSelected)->Add(u"About"_s);
    EXPECT_EQ(dumpOf(u"footer"_s), u"COPYRIGHT_TEXT = <Footer_CopyrightText>\n"
                                   "Footer_ShowMenu = <Footer_ShowMenu>\n"
                                   "FOOTER_MENU_LIST:\n"
                                   "  row\n"
                                   "    name = About\n"
                                   "    server = http://previewmode/\n"_s);
}

TEST_F(PiecesTest, TheMenusListsExistWithoutRowsToo)
{
    const Variables vars = variablesOf(u"menu"_s);
    for (const QString& list : {u"categories"_s, u"products"_s}) {
        ASSERT_TRUE(vars.exists(list)) << list.toStdString();
        EXPECT_TRUE(rowsOf(vars.Item(list)).empty());
    }
}

TEST_F(PiecesTest, WithAnEmptyCartTheMenusGuardIsEmptyAndNotMissing)
{
    EXPECT_EQ(valueOf(u"menu"_s, {}, u"HAS_ITEMS"_s), QString());
    addTemplate(u"menu"_s, u"<!--:if:HAS_ITEMS=Yes:-->full<!--:end:HAS_ITEMS:-->"
                           "<!--:ifnot:HAS_ITEMS=Yes:-->empty<!--:end:HAS_ITEMS:-->"
                           "<!--:if:HAS_ITEMS=:--> and there<!--:end:HAS_ITEMS:-->"_s);
    EXPECT_EQ(RenderPage(context, u"menu"_s, {}), u"empty and there"_s);
}

TEST_F(PiecesTest, AListOfCustomPagesWithoutSelectionIsMissingAndItsCycleYieldsNothing)
{
    const struct
    {
        QString page;
        QString list;
    } rows[] = {
        {u"menu"_s, u"LEFT_MENU_MENU_LIST"_s},
        {u"header"_s, u"HEADER_MENU_LIST"_s},
        {u"footer"_s, u"FOOTER_MENU_LIST"_s},
    };
    for (const auto& row : rows) {
        EXPECT_FALSE(variablesOf(row.page).exists(row.list)) << row.list.toStdString();
        addTemplate(row.page, u"[<!--:cycle:%1:-->x<!--:end:%1:-->]"_s.arg(row.list));
        EXPECT_EQ(RenderPage(context, row.page, {}), u"[]"_s);
    }
}

TEST_F(PiecesTest, TheMenuShowsTheNameThatTheProductHasNow)
{
    const auto sencha = addProduct(u"5"_s, u"Sencha"_s, u"10"_s, addCategory(u"2"_s, u"Tea"_s));
    addToCart(sencha, u"10"_s, u"1"_s);
    sencha->name = u"Gyokuro"_s;
    EXPECT_EQ(valueInRow(u"menu"_s, {}, u"products"_s, 1, u"name"_s), u"Gyokuro"_s);
}

TEST_F(PiecesTest, WithoutACartTheMenuFails)
{
    session.Cart.reset();
    EXPECT_EQ(errorOf([&] { variablesOf(u"menu"_s); }), 91);
}

TEST_F(PiecesTest, WithoutAShopNoPieceIsMade)
{
    session.shop.reset();
    for (const QString& piece : {u"menu"_s, u"header"_s, u"footer"_s, u"checkout"_s}) {
        EXPECT_EQ(errorOf([&] { variablesOf(piece); }), 91) << piece.toStdString();
    }
}

} // namespace
