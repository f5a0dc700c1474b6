#include "pages/PagesTest.h"
#include "pages/RenderPage.h"

using namespace Qt::StringLiterals;

namespace {

class CategoryPageTest : public PagesTest
{
protected:
    QString page(const QString& key) { return valueOf(u"category"_s, tea, key); }
    // A variable of the first product.
    QString first(const QString& key) { return valueInRow(u"category"_s, tea, u"products"_s, 1, key); }

    std::shared_ptr<CategoryClass> tea = addCategory(u"2"_s, u"Tea"_s);
};

const QStringList ProductOptionNames = {
    u"Category_NewPrice"_s,     u"Category_OldPrice"_s,           u"Category_AddToCart"_s, u"Category_Price"_s,
    u"Category_ProductImage"_s, u"Category_ProductName"_s,        u"Category_Related"_s,   u"Category_ShoppingInfo"_s,
    u"Category_Taxes"_s,        u"Category_ProductDescription"_s,
};

TEST_F(CategoryPageTest, AllVariablesStandInTheOrderOfAdding)
{
    markOptions();
    markSlots();
    setPicture(*tea->selectedImage(), u"tea.png"_s, 64, 48);
    const auto green = addCategory(u"3"_s, u"Green"_s, tea);
    green->Description = u"<b>Leaves</b>"_s;
    setPicture(*green->selectedImage(), u"green.png"_s, 32, 24);
    const auto sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
    sencha->Description = u"<b>Fresh</b> and green"_s;
    setPicture(*sencha->selectedImage(), u"sencha.png"_s, 16, 12);
    setDiscount(*sencha, u"10"_s);
    const auto mix = addProduct(u"5"_s, u"Mix"_s, u""_s, tea);
    mix->ForSale = false;
    addVariant(*mix, u"small"_s, u"10"_s);
    addVariant(*mix, u"large"_s, u"30"_s);
    setDiscount(*mix, u"50"_s);
    mix->setRelatedIds({u"4"_s, u"5"_s});

    const QString expected =
        optionDump({u"Category_BreadCrumb"_s, u"Category_PageHeader"_s, u"Category_IncludePageHeader"_s}) +
        u"Category_Empty = No\n"
        "categories:\n"
        "  row\n"
        "    id = 3\n"
        "    name = Green\n"
        "    description = <b>Leaves</b>\n"
        "    server = http://previewmode/\n"_s +
        indented(indented(optionDump({u"Category_Description"_s, u"Category_Name"_s, u"Category_Image"_s}) +
                          imageDump(u"SUBCATEGORYPAGE_IMAGE"_s, u"TEXT"_s, u"green.png"_s, {}, 32, 24))) +
        u"products:\n"
        "  row\n"
        "    id = 4\n"
        "    name = Sencha\n"
        "    ForSale = True (boolean)\n"_s +
        indented(indented(imageDump(u"CATEGORYPAGE_PRODUCT_IMAGE"_s, u"TEXT"_s, u"sencha.png"_s, {}, 16, 12))) +
        u"    Product_PriceType = Single\n"
        "    price = 20 (object)\n"
        "    new_price = 18\n"
        "    description =  Fresh  and green\n"
        "    cut_count = 0\n"
        "    server = http://previewmode/\n"
        "    shop_currency = EUR\n"_s +
        indented(indented(slotDump(u"CATEGORY_CART_BUTTON"_s) + optionDump(ProductOptionNames))) +
        u"    hasrelated = \n"
        "  row\n"
        "    id = 5\n"
        "    name = Mix\n"
        "    ForSale = False (boolean)\n"_s +
        indented(indented(imageDump(u"CATEGORYPAGE_PRODUCT_IMAGE"_s, u"TEXT"_s, {}, {}, 0, 0))) +
        u"    Product_PriceType = Multi\n"
        "    MultiplePrice:\n"
        "      row\n"
        "        PriceDescription = small\n"
        "        MPrice = 10\n"
        "        shop_currency = EUR\n"
        "        Category_ProductDescription = <Category_ProductDescription>\n"
        "        first_price = 1\n"
        "        Mnew_price = 5\n"
        "        Category_Price = <Category_Price>\n"
        "        Category_OldPrice = <Category_OldPrice>\n"
        "        Category_NewPrice = <Category_NewPrice>\n"
        "      row\n"
        "        PriceDescription = large\n"
        "        MPrice = 30\n"
        "        shop_currency = EUR\n"
        "        Category_ProductDescription = <Category_ProductDescription>\n"
        "        Mnew_price = 15\n"
        "        Category_Price = <Category_Price>\n"
        "        Category_OldPrice = <Category_OldPrice>\n"
        "        Category_NewPrice = <Category_NewPrice>\n"
        "    description = \n"
        "    cut_count = 0\n"
        "    server = http://previewmode/\n"
        "    shop_currency = EUR\n"_s +
        indented(indented(slotDump(u"CATEGORY_CART_BUTTON"_s) + optionDump(ProductOptionNames))) +
        u"    related:\n"
        "      row\n"
        "        rid = 4\n"
        "        rname = Sencha\n"
        "        server = http://previewmode/\n"
        "      row\n"
        "        rid = 5\n"
        "        rname = Mix\n"
        "        server = http://previewmode/\n"
        "    hasrelated = yes\n"
        "breadcrumb:\n"
        "  row\n"
        "    name = Tea\n"
        "    id = 2\n"
        "    server = http://previewmode/\n"
        "shop_name = Corner Shop\n"
        "category_picture = FOLDER/pictures/tea.png\n"
        "category_id = 2\n"_s;
    EXPECT_EQ(dumpOf(u"category"_s, tea), expected);
}

TEST_F(CategoryPageTest, ProductsDoNotCountForTheGuardAndStillShow)
{
    addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
    EXPECT_EQ(page(u"Category_Empty"_s), u"Yes"_s);
    EXPECT_EQ(page(u"categories"_s), u"MISSING"_s);
    EXPECT_EQ(first(u"name"_s), u"Sencha"_s);
}

TEST_F(CategoryPageTest, WithoutProductsTheListIsMissingAndItsCycleYieldsNothing)
{
    addCategory(u"3"_s, u"Green"_s, tea);
    EXPECT_EQ(page(u"products"_s), u"MISSING"_s);
    addTemplate(u"category"_s, u"[<!--:cycle:products:-->x<!--:end:products:-->]"_s);
    EXPECT_EQ(RenderPage(context, u"category"_s, tea), u"[]"_s);
}

TEST_F(CategoryPageTest, OneVariantMakesAProductMultiAndIsItsFirstPrice)
{
    const auto sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
    addVariant(*sencha, u"bag"_s, u"5"_s);
    EXPECT_EQ(first(u"Product_PriceType"_s), u"Multi"_s);
    EXPECT_EQ(first(u"price"_s), u"MISSING"_s);
    EXPECT_EQ(first(u"new_price"_s), u"MISSING"_s);
    const Variables vars = variablesOf(u"category"_s, tea);
    const VariableRows& variants = rowsOf(rowsOf(vars.Item(u"products")).front().Item(u"MultiplePrice"));
    ASSERT_EQ(variants.size(), 1u);
    EXPECT_EQ(textOf(variants.front().Item(u"first_price")), u"1"_s);
}

TEST_F(CategoryPageTest, EveryProductHasAFirstPriceOfItsOwn)
{
    for (const QString& id : {u"4"_s, u"5"_s}) {
        const auto product = addProduct(id, u"Sencha"_s, u"20"_s, tea);
        addVariant(*product, u"bag"_s, u"5"_s);
        addVariant(*product, u"tin"_s, u"9"_s);
    }
    addTemplate(u"category"_s, u"<!--:cycle:products:--><!--:cycle:MultiplePrice:--><!--:first_price=-:-->"
                               "<!--:end:MultiplePrice:--><!--:end:products:-->"_s);
    EXPECT_EQ(RenderPage(context, u"category"_s, tea), u"1-1-"_s);
}

TEST_F(CategoryPageTest, ThePriceStandsAsStoredAndTheNewOneOnlyWithADiscount)
{
    const struct
    {
        const char* name;
        QString value;
        QString percent; // empty: no discount
        QString price;
        QString newPrice;
    } rows[] = {
        {"no discount", u"19.90"_s, {}, u"19.90"_s, {}},
        {"a discount", u"19.90"_s, u"10"_s, u"19.90"_s, u"17.91"_s},
        {"a discount of nothing", u"20.00"_s, u"0"_s, u"20.00"_s, u"20"_s},
        {"no price", {}, {}, {}, {}},
        {"no price and a discount", {}, u"10"_s, {}, u"0"_s},
    };
    const auto sencha = addProduct(u"4"_s, u"Sencha"_s, {}, tea);
    for (const auto& row : rows) {
        sencha->Price()->Value = localised(row.value);
        sencha->Price()->Discount()->Status = DiscountStatus::No;
        if (!row.percent.isEmpty()) {
            setDiscount(*sencha, row.percent);
        }
        EXPECT_EQ(first(u"price"_s), localised(row.price)) << row.name;
        EXPECT_EQ(first(u"new_price"_s), localised(row.newPrice)) << row.name;
    }
}

TEST_F(CategoryPageTest, TheDiscountIsAskedForWithTheUndiscountedPrice)
{
    const auto sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
    clsDiscount& discount = *sencha->Price()->Discount();
    discount.Status = DiscountStatus::Inherit;
    auto bands = std::make_shared<clsDependedDiscounts>();
    bands->Add(u"15"_s, u"25"_s, u"50"_s); // holds the price of 20, but not the discounted one of 10
    discount.ParentDependDiscounts = bands;
    EXPECT_EQ(first(u"new_price"_s), u"10"_s);
}

TEST_F(CategoryPageTest, APriceThatIsNoNumberFailsThePage)
{
    addProduct(u"4"_s, u"Sencha"_s, u"a lot"_s, tea);
    EXPECT_EQ(errorOf([&] { variablesOf(u"category"_s, tea); }), 13);
}

TEST_F(CategoryPageTest, TheNewPriceOfAVariantIsEmptyWithoutADiscount)
{
    const auto sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
    addVariant(*sencha, u"bag"_s, u"5"_s);
    addTemplate(u"category"_s, u"<!--:cycle:products:--><!--:cycle:MultiplePrice:-->[<!--:Mnew_price=missing:-->]"
                               "<!--:end:MultiplePrice:--><!--:end:products:-->"_s);
    EXPECT_EQ(RenderPage(context, u"category"_s, tea), u"[]"_s);
}

TEST_F(CategoryPageTest, DescriptionsAreStrippedAndCut)
{
    const struct
    {
        const char* limit;
        QString description;
        QString shown;
    } rows[] = {
        {"", u"<b>one</b> two three"_s, u" one  two three"_s},
        {"0", u"<b>one</b> two three"_s, u" one  two three"_s},
        {"1", u"<b>one</b> two"_s, u" one"_s},
        {"2", u"one two three"_s, u"one two"_s},
        {"3", u"one two three"_s, u"one two three"_s},
        {"-1", u"one two three"_s, u"one two three"_s},
        {"1", u"<p class=\"a b\">one</p>"_s, u" one"_s},
        {"1", u"1 < 2"_s, u"1"_s},
    };
    const auto sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
    for (const auto& row : rows) {
        design().setOption(DesignOption::Category_Limit_Desc, QString::fromLatin1(row.limit));
        sencha->Description = row.description;
        EXPECT_EQ(first(u"description"_s), row.shown) << row.limit;
    }
}

TEST_F(CategoryPageTest, ADesignThatWasNeverReadHasNoLimitAtAll)
{
    const auto sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
    sencha->Description = u"one two"_s;
    ASSERT_EQ(design().Option(DesignOption::Category_Limit_Desc), QString());
    EXPECT_EQ(first(u"description"_s), u"one two"_s);
    EXPECT_EQ(first(u"cut_count"_s), QString());
}

TEST_F(CategoryPageTest, TheCountOfWordsIsShownAsStored)
{
    addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
    design().setOption(DesignOption::Category_Limit_Desc, u"12"_s);
    EXPECT_EQ(first(u"cut_count"_s), u"12"_s);
}

TEST_F(CategoryPageTest, ADescriptionTooLongToCutFailsThePage)
{
    const auto sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
    sencha->Description = QString(32767, u'x') + u" end"_s;
    EXPECT_EQ(first(u"description"_s).size(), 32771);
    design().setOption(DesignOption::Category_Limit_Desc, u"1"_s);
    EXPECT_EQ(errorOf([&] { variablesOf(u"category"_s, tea); }), 6);
}

TEST_F(CategoryPageTest, ARelatedProductThatIsGoneFailsThePage)
{
    const auto sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
    sencha->setRelatedIds({u"99"_s});
    EXPECT_EQ(errorOf([&] { variablesOf(u"category"_s, tea); }), 5);
    sencha->setRelatedIds({u"2"_s}); // a category
    EXPECT_EQ(errorOf([&] { variablesOf(u"category"_s, tea); }), 13);
}

TEST_F(CategoryPageTest, ARelatedProductShowsTheNameThatItHasNow)
{
    const auto sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
    sencha->setRelatedIds({u"4"_s});
    sencha->name = u"Gyokuro"_s;
    addTemplate(u"category"_s, u"<!--:cycle:products:--><!--:cycle:related:--><!--:rname:--><!--:end:related:-->"
                               "<!--:end:products:-->"_s);
    EXPECT_EQ(RenderPage(context, u"category"_s, tea), u"Gyokuro"_s);
}

TEST_F(CategoryPageTest, TheBreadcrumbLeadsFromTheRootToTheCategory)
{
    const auto green = addCategory(u"3"_s, u"Green"_s, tea);
    const auto sencha = addCategory(u"4"_s, u"Sencha"_s, green);
    EXPECT_EQ(dumpOfList(u"category"_s, sencha, u"breadcrumb"_s), u"row\n"
                                                                  "  name = Tea\n"
                                                                  "  id = 2\n"
                                                                  "  server = http://previewmode/\n"
                                                                  "row\n"
                                                                  "  name = Green\n"
                                                                  "  id = 3\n"
                                                                  "  server = http://previewmode/\n"
                                                                  "row\n"
                                                                  "  name = Sencha\n"
                                                                  "  id = 4\n"
                                                                  "  server = http://previewmode/\n"_s);
}

TEST_F(CategoryPageTest, ARootCategoryHasABreadcrumbOfOneRow)
{
    EXPECT_EQ(dumpOfList(u"category"_s, tea, u"breadcrumb"_s).count(u"row\n"_s), 1);
}

TEST_F(CategoryPageTest, ACategoryWithoutPictureHasAnEmptyPath)
{
    EXPECT_EQ(page(u"category_picture"_s), QString());
}

TEST_F(CategoryPageTest, APictureNameWithAColonFailsThePageOfTheCategory)
{
    setPicture(*tea->selectedImage(), u"http://elsewhere/tea.png"_s, 1, 1);
    EXPECT_EQ(errorOf([&] { variablesOf(u"category"_s, tea); }), 438);
    // The main page shows the same picture in another way and is not affected.
    EXPECT_EQ(valueInRow(u"main"_s, session.shop, u"categories"_s, 1, u"MAINPAGE_IMAGE_FILENAME"_s),
              u"http://elsewhere/tea.png"_s);
}

TEST_F(CategoryPageTest, APictureThatIsGoneFailsThePageWhenItsSizeIsNotKnown)
{
    addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea)->selectedImage()->imageFileName = u"gone.png"_s;
    EXPECT_EQ(errorOf([&] { variablesOf(u"category"_s, tea); }), 53);
}

TEST_F(CategoryPageTest, ABrokenButtonPictureDoesNotMatterWithoutProducts)
{
    design().Image(ImageSlot::CategoryCartButton)->imageFileName = u"gone.png"_s;
    EXPECT_EQ(errorOf([&] { variablesOf(u"category"_s, tea); }), 0);
    addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
    EXPECT_EQ(errorOf([&] { variablesOf(u"category"_s, tea); }), 53);
}

TEST_F(CategoryPageTest, ThePageNeedsACategory)
{
    EXPECT_EQ(errorOf([&] { variablesOf(u"category"_s); }), 91);
    EXPECT_EQ(errorOf([&] { variablesOf(u"category"_s, session.shop); }), 13);
    EXPECT_EQ(errorOf([&] { variablesOf(u"category"_s, std::shared_ptr<CategoryClass>()); }), 91);
}

} // namespace
