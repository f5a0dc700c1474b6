#include "pages/PagesTest.h"

using namespace Qt::StringLiterals;

namespace {

class MainPageTest : public PagesTest
{
protected:
    QString row(const std::shared_ptr<CategoryClass>& category, const QString& key)
    {
        return valueInRow(u"main"_s, session.shop, u"categories"_s, shop().categories.indexOf(nodeKey(category->id)),
                          key);
    }
};

TEST_F(MainPageTest, AllVariablesStandInTheOrderOfAdding)
{
    shop().Description = u"<p>Everything.</p>"_s;
    markOptions();
    markSlots();
    design().setOption(DesignOption::Main_IncludeTwoLevel, u"Yes"_s);
    design().Pages(PageSelection::MainPageMenuList)->Add(u"Home page"_s);
    design().Pages(PageSelection::MainPageMenuList)->Add(u"About"_s);
    const auto tea = addCategory(u"2"_s, u"Tea"_s);
    tea->Description = u"<b>Leaves</b>"_s;
    setPicture(*tea->selectedImage(), u"tea.png"_s, 64, 48);
    tea->selectedImage()->TextValue = u"a pot"_s;
    clsDiscount& discount = *tea->Discount();
    discount.Status = DiscountStatus::Depend;
    discount.DateFrom = u"from day"_s;
    discount.DateTo = u"to day"_s;
    discount.setApplyToWhole(u"7"_s);
    discount.DependedDiscounts()->Add(u"0"_s, u"10"_s, u"9"_s);
    discount.DependedDiscounts()->Add(u"10"_s, u"20"_s, u"3"_s);
    discount.DependedDiscounts()->Add(u"20"_s, u"30"_s, u"5"_s);
    addCategory(u"3"_s, u"Green"_s, tea);
    addCategory(u"4"_s, u"Black"_s, tea);
    addCategory(u"5"_s, u"Cups"_s);

    const QString expected =
        u"categories:\n"
        "  row\n"
        "    category_id = 2\n"
        "    category_name = Tea\n"
        "    category_description = <b>Leaves</b>\n"_s +
        indented(indented(imageDump(u"MAINPAGE_IMAGE"_s, u"TEXT"_s, u"tea.png"_s, u"a pot"_s, 64, 48))) +
        u"    server = http://previewmode/\n"
        "    discount_status = Depend\n"
        "    from_date = from day\n"
        "    to_date = to day\n"
        "    discount = 7\n"
        "    Main_TwoLevel:\n"
        "      row\n"
        "        category_in_id = 3\n"
        "        category_in_name = Green\n"
        "        server = http://previewmode/\n"
        "      row\n"
        "        category_in_id = 4\n"
        "        category_in_name = Black\n"
        "        server = http://previewmode/\n"
        "    min_discount = 9\n"
        "    max_discount = 5\n"
        "  row\n"
        "    category_id = 5\n"
        "    category_name = Cups\n"
        "    category_description = \n"_s +
        indented(indented(imageDump(u"MAINPAGE_IMAGE"_s, u"TEXT"_s, {}, {}, 0, 0))) +
        u"    server = http://previewmode/\n"
        "    discount_status = No\n"
        "    from_date = \n"
        "    to_date = \n"
        "    discount = \n"
        "shop_name = Corner Shop\n"
        "Main_ShopDescription = <p>Everything.</p>\n"
        "Main_IncludeShopDescription = <Main_IncludeShopDescription>\n"_s +
        slotDump(u"MAIN_SEARCH_BUTTON"_s) +
        u"MAIN_PAGE_MENU_LIST:\n"
        "  row\n"
        "    name = Home page\n"
        "    server = http://previewmode/\n"
        "  row\n"
        "    name = About\n"
        "    server = http://previewmode/\n"_s +
        optionDump({u"Main_PageHeader"_s, u"Main_IncludePageHeader"_s, u"Main_SearchButton"_s,
                    u"Main_SearchTextfield"_s, u"Main_IncludeTopCategories"_s}) +
        u"Main_IncludeTwoLevel = Yes\n"_s + optionDump({u"Main_IncludeNavigationMenu"_s});
    EXPECT_EQ(dumpOf(u"main"_s, session.shop), expected);
}

TEST_F(MainPageTest, AShopWithoutCategoriesHasAListWithoutRows)
{
    const Variables vars = variablesOf(u"main"_s, session.shop);
    ASSERT_TRUE(vars.exists(u"categories"));
    EXPECT_TRUE(rowsOf(vars.Item(u"categories")).empty());
}

TEST_F(MainPageTest, WithoutASelectedPageTheMenuListIsMissing)
{
    EXPECT_EQ(valueOf(u"main"_s, session.shop, u"MAIN_PAGE_MENU_LIST"_s), u"MISSING"_s);
}

TEST_F(MainPageTest, TheSecondLevelNeedsTheWordYesAndSubCategories)
{
    const auto tea = addCategory(u"2"_s, u"Tea"_s);
    addCategory(u"3"_s, u"Green"_s, tea);
    addCategory(u"4"_s, u"Cups"_s);
    const auto rowsWithSecondLevel = [&] {
        QString found;
        const Variables vars = variablesOf(u"main"_s, session.shop);
        for (const Variables& row : rowsOf(vars.Item(u"categories"))) {
            found += row.exists(u"Main_TwoLevel") ? u'x' : u'-';
        }
        return found;
    };
    for (const QString& word : {u"No"_s, u""_s, u"yes"_s, u"YES"_s}) {
        design().setOption(DesignOption::Main_IncludeTwoLevel, word);
        EXPECT_EQ(rowsWithSecondLevel(), u"--"_s) << word.toStdString();
    }
    design().setOption(DesignOption::Main_IncludeTwoLevel, u"Yes"_s);
    EXPECT_EQ(rowsWithSecondLevel(), u"x-"_s);
}

TEST_F(MainPageTest, TheSecondLevelIsOneLevelOnly)
{
    design().setOption(DesignOption::Main_IncludeTwoLevel, u"Yes"_s);
    const auto tea = addCategory(u"2"_s, u"Tea"_s);
    addCategory(u"4"_s, u"Sencha"_s, addCategory(u"3"_s, u"Green"_s, tea));
    const Variables vars = variablesOf(u"main"_s, session.shop);
    const Variables& row = rowsOf(vars.Item(u"categories")).front();
    EXPECT_EQ(rowsOf(row.Item(u"Main_TwoLevel")).size(), 1u);
}

TEST_F(MainPageTest, ACategoryWithoutBandsHasNeitherSmallestNorLargestDiscount)
{
    const auto tea = addCategory(u"2"_s, u"Tea"_s);
    EXPECT_EQ(row(tea, u"min_discount"_s), u"MISSING"_s);
    EXPECT_EQ(row(tea, u"max_discount"_s), u"MISSING"_s);
    addTemplate(u"main"_s, u"<!--:cycle:categories:-->[<!--:text:min_discount=0:-->]<!--:end:categories:-->"_s);
    EXPECT_EQ(templates.templates.Item(u"main"_s)->Get_String(variablesOf(u"main"_s, session.shop)), u"[0]"_s);
}

TEST_F(MainPageTest, OneBandIsBothSmallestAndLargestDiscount)
{
    const auto tea = addCategory(u"2"_s, u"Tea"_s);
    tea->Discount()->DependedDiscounts()->Add(u"0"_s, u"10"_s, u"2.5"_s);
    EXPECT_EQ(row(tea, u"min_discount"_s), localised(u"2.5"_s));
    EXPECT_EQ(row(tea, u"max_discount"_s), localised(u"2.5"_s));
}

TEST_F(MainPageTest, BandsCountInStoredOrderAndAreNotSorted)
{
    const auto tea = addCategory(u"2"_s, u"Tea"_s);
    tea->Discount()->DependedDiscounts()->Add(u"10"_s, u"20"_s, u"30"_s);
    tea->Discount()->DependedDiscounts()->Add(u"0"_s, u"10"_s, u"1"_s);
    tea->Discount()->DependedDiscounts()->Add(u"20"_s, u"30"_s, u"20"_s);
    EXPECT_EQ(row(tea, u"min_discount"_s), u"30"_s);
    EXPECT_EQ(row(tea, u"max_discount"_s), u"20"_s);
}

TEST_F(MainPageTest, EachStatusHasItsWord)
{
    const auto tea = addCategory(u"2"_s, u"Tea"_s);
    const QStringList words = {u"No"_s, u"ToAll"_s, u"Depend"_s, u"Inherit"_s, u"Specific"_s};
    for (int status = 1; status <= 5; ++status) {
        tea->Discount()->Status = status;
        EXPECT_EQ(row(tea, u"discount_status"_s), words[status - 1]);
    }
    tea->Discount()->Status = 0;
    EXPECT_EQ(errorOf([&] { variablesOf(u"main"_s, session.shop); }), 94);
}

TEST_F(MainPageTest, ThePageNeedsTheShop)
{
    EXPECT_EQ(errorOf([&] { variablesOf(u"main"_s); }), 91);
    EXPECT_EQ(errorOf([&] { variablesOf(u"main"_s, addCategory(u"2"_s, u"Tea"_s)); }), 13);
}

} // namespace
