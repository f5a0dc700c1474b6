#include "pages/PreviewNavigation.h"

#include "base/Numbers.h"
#include "base/XmlFile.h"
#include "pages/PagesTest.h"

using namespace Qt::StringLiterals;

namespace {

class TextSurface : public PreviewSurface
{
public:
    bool replaceDocument(const QString& text) override
    {
        documents << text.chopped(2);
        return true;
    }
    void goBlank() override {}

    QStringList documents;
};

// The server's address stands for "~" in the tests' addresses.
QString address(const char* text)
{
    return QString::fromUtf8(text).replace(u'~', u"http://previewmode/"_s);
}

class PreviewNavigationTest : public PagesTest
{
protected:
    PreviewNavigationTest()
    {
        for (const QString& empty : {u"menu"_s, u"footer"_s, u"header"_s})
            addTemplate(empty, {});
        addTemplate(u"checkout"_s, u"form <!--:price:-->"_s);
        addTemplate(u"main"_s, u"main"_s);
        addTemplate(u"category"_s, u"category <!--:category_id:-->"_s);
        addTemplate(u"product"_s, u"product <!--:id:-->"_s);
        addTemplate(u"custompage"_s, u"own <!--:page_text:-->"_s);
        addTemplate(u"search"_s, u"search [<!--:SEARCH_WORD:-->]<!--:cycle:products:--> <!--:name:-->"
                                 "<!--:end:products:-->"_s);
        addTemplate(u"cart"_s, u"cart<!--:cycle:products:--> <!--:quantity:-->x<!--:id:--><!--:end:products:-->"_s);
        setLayout(u"<!--:main_part:-->"_s);
        addCustomPage(u"About"_s, u"about"_s);
        addCustomPage(u"Größe und Form"_s, u"sizes"_s);
        addCustomPage(u"10.5"_s, u"ten"_s);
        addCustomPage(u"a+b"_s, u"plus"_s);
    }

    // Goes to an address as the browser does and gives what was shown, page behind page.
    QString goTo(const QString& url)
    {
        surface.documents.clear();
        if (PreviewNavigation::judge(url).hasAction)
            navigation.act(url);
        return surface.documents.join(u" > "_s);
    }
    QString goTo(const char* url) { return goTo(address(url)); }

    // The lines of the cart: quantity x id @ price.
    QString cartLines()
    {
        QStringList lines;
        for (const auto& line : *session.Cart)
            lines << line->Quantity + u'x' + line->id + u'@' + line->SelectedPrice();
        return lines.join(u' ');
    }

    TextSurface surface;
    PreviewPage preview{session, templates, surface};
    PreviewNavigation navigation{session, preview};
    std::shared_ptr<CategoryClass> tea = addCategory(u"2"_s, u"Tea"_s);
    std::shared_ptr<ProductClass> sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
    std::shared_ptr<ProductClass> mix = addProduct(u"5"_s, u"Morning Mix"_s, u"10"_s, tea);
};

TEST_F(PreviewNavigationTest, EveryAddressLeadsToItsPage)
{
    const struct
    {
        const char* url;
        bool cancel;
        QString shown; // pages that were shown, in order; empty: none
    } rows[] = {
        // other hosts
        {"http://example.com/", false, {}},
        {"about:blank", false, {}},
        {"", false, {}},
        {"http://previewmode", false, {}},
        {"https://previewmode/MAINPAGE", false, {}},
        {"HTTP://PREVIEWMODE/MAINPAGE", false, {}},
        {"http://example.com/?addtoshopcart=1", false, u"cart"_s},
        {"http://example.com/addtoshopcart", false, u"cart"_s},
        // the address stands inside of another one; as many characters are cut off from the start
        {"http://example.com/~MAINPAGE", true, {}},
        {"012345678901234567MAINPAGE~", true, {}},
        // the main page
        {"~MAINPAGE", true, u"main"_s},
        {"~mainpage", true, {}},
        {"~MainPage", true, {}},
        {"~MAINPAGE&", true, {}},
        {"~?MAINPAGE", true, {}},
        {"~MAINPAGE#content", true, {}},
        // categories and products
        {"~ACTION=category.php&id=2", true, u"category 2"_s},
        {"~ACTION=category.php?id=2", true, u"category 2"_s},
        {"~ACTION=category.phpid=2&x", true, u"category 2"_s},
        {"~?ACTION=category.php&id=2", true, {}},
        {"~ACTION=product.php&id=4", true, u"product 4"_s},
        {"~action=product.php&id=4", true, {}},
        {"~ACTION=product.php&product_id=5&id=4", true, u"product 5"_s},
        // both: the category first, since its rule comes first, and the cart at the end
        {"~ACTION=category.php&id=2&addtoshopcart=", true, u"category 2 > cart"_s},
        {"~ACTION=product.php&id=4&addtoshopcart=1", true, u"product 4 > cart"_s},
        {"~MAINPAGE?addtoshopcart", true, u"cart"_s},
        // the cart
        {"~addtoshopcart=1&product_id=4", true, u"cart"_s},
        {"~addtoshopcart", true, u"cart"_s},
        {"~ACTION=shopcart.php", true, u"cart"_s},
        {"~?ACTION=shopcart.php", true, u"cart"_s},
        {"~?quantity=1&ACTION=shopcart.php", true, u"cart"_s},
        {"~ACTION=shopcart.php&addtoshopcart=1", true, u"cart > cart"_s},
        {"~ACTION=shopcart.phpx", true, {}},
        // search
        {"~ACTION=search.php&where=0&what=sencha", true, u"search [sencha] Sencha"_s},
        {"~?ACTION=search.php&where=0&what=SENCHA", true, u"search [SENCHA] Sencha"_s},
        {"~?what=MIX&ACTION=search.php", true, u"search [MIX] Morning Mix"_s},
        {"~?ACTION=search.php&what=", true, u"search [] Sencha Morning Mix"_s},
        {"~?ACTION=search.php", true, u"search [] Sencha Morning Mix"_s},
        {"~?ACTION=search.php&what=morning+mix", true, u"search [morning+mix]"_s},
        {"~?ACTION=search.php&what=morning%20mix", true, u"search [morning%20mix]"_s},
        {"~?ACTION=search.php&what=Tea", true, u"search [Tea]"_s},
        // custom pages
        {"~ACTION=custompage.php&name=About", true, u"own about"_s},
        {"~ACTION=custompage.php&name=aBOUT", true, u"own about"_s},
        {"~ACTION=custompage.php&name=Größe%20und%20Form", true, u"own sizes"_s},
        {"~ACTION=custompage.php&name=10%2C5", true, u"own ten"_s},
        {"~ACTION=custompage.php&name=a+b", true, u"own plus"_s},
        {"~ACTION=custompage.php&name=About&name=Home%20page", true, u"own about"_s},
        {"~ACTION=custompage.php&name=Home%20page", true, u"main"_s},
        {"~ACTION=custompage.php&name=Home page", true, u"main"_s},
        {"~ACTION=custompage.php&name=Shopping%20cart%20page", true, u"cart"_s},
        {"~?ACTION=custompage.php&name=About", true, {}},
        {"~ACTION=custompage.php&x=1&name=About", true, {}},
        // the checkout
        {"~?ACTION=checkout.php", true, u"form 0"_s},
        {"~?ACTION=checkout.php&recalculate=1&tax=7", true, u"form 0"_s},
        {"~ACTION=checkout.php", true, {}},
        {"~x=1&ACTION=checkout.php", true, {}},
        {"~?recalculate=&tax=0&charge=0&ACTION=checkout.php", true, u"form 0"_s},
        {"~?recalculate&ACTION=checkout.php", true, u"form 0"_s},
        {"~recalculateACTION=checkout.php", true, u"form 0"_s},
        {"~?recalculate=1&ACTION=checkout.php&tax=7", true, {}},
        {"~?recalculate=1", true, {}},
        // what nobody knows
        {"~?ACTION=order.php", true, {}},
        {"~favicon.ico", true, {}},
        {"~?", true, {}},
    };
    for (const auto& row : rows) {
        session.Cart->Clear();
        EXPECT_EQ(PreviewNavigation::judge(address(row.url)).cancel, row.cancel) << row.url;
        EXPECT_EQ(goTo(row.url), row.shown) << row.url;
        EXPECT_EQ(session.Cart->Count(), 0) << row.url;
    }
}

TEST_F(PreviewNavigationTest, OnlyAKeyWithoutValueAddsToTheCart)
{
    const struct
    {
        const char* url;
        QString lines;
    } rows[] = {
        {"~?addtoshopcart=&product_id=4&price=20&quantity=2", u"2x4@20"_s},
        {"~addtoshopcart=&product_id=4&price=20&quantity=2", u"2x4@20"_s},
        {"~?product_id=4&price=20&quantity=2&addtoshopcart=", u"2x4@20"_s},
        {"~?addtoshopcart=&product_id=4", u"1x4@0"_s},
        {"~?addtoshopcart=&product_id=4&quantity=&price=", u"x4@0"_s},
        {"~?addtoshopcart=1&product_id=4&price=20", {}},
        {"~?addtoshopcart&product_id=4&price=20", {}},
        {"~?AddToShopCart=&product_id=4&price=20", {}},
        {"~?addtoshopcart=&ACTION=shopcart.php&product_id=4&price=20", u"1x4@20"_s},
    };
    for (const auto& row : rows) {
        session.Cart->Clear();
        goTo(row.url);
        EXPECT_EQ(cartLines(), row.lines) << row.url;
    }
}

TEST_F(PreviewNavigationTest, AfterAddingTheCartIsShownWithTheNewLine)
{
    EXPECT_EQ(goTo("~ACTION=product.php&id=4"), u"product 4"_s);
    EXPECT_EQ(goTo("~?addtoshopcart=&product_id=4&price=20&quantity=2"), u"cart 2x4"_s);
    EXPECT_EQ(goTo("~?addtoshopcart=&product_id=4&price=20&quantity=1"), u"cart 3x4"_s);
    EXPECT_EQ(goTo("~?addtoshopcart=&product_id=5&price=10&quantity=1"), u"cart 3x4 1x5"_s);
}

TEST_F(PreviewNavigationTest, TheCartIsShownWithTheObjectOfTheLastPage)
{
    goTo("~ACTION=product.php&id=4");
    goTo("~?addtoshopcart=&product_id=4");
    EXPECT_EQ(preview.lastPageName(), u"cart"_s);
    EXPECT_EQ(std::get<std::shared_ptr<ProductClass>>(preview.lastPageObject()), sencha);
    goTo("~ACTION=shopcart.php");
    EXPECT_TRUE(std::holds_alternative<std::monostate>(preview.lastPageObject()));
}

TEST_F(PreviewNavigationTest, ThePriceIsTheNumberThatItsTextBeginsWith)
{
    const struct
    {
        const char* price;
        QString inCart; // with a point
    } rows[] = {
        {"20", u"20"_s},  {"12%2C50", u"12.5"_s}, {"12,50", u"12"_s}, {"12.50", u"12.5"_s},  {"", u"0"_s},
        {"free", u"0"_s}, {"7%20EUR", u"7"_s},    {"%207", u"7"_s},   {"1%2C000.5", u"1"_s}, {"-3", u"-3"_s},
        {".5", u"0.5"_s}, {"12%2c50", u"12"_s},   {"1e3", u"1"_s},    {"0012", u"12"_s},
    };
    for (const auto& row : rows) {
        session.Cart->Clear();
        goTo(address("~?addtoshopcart=&product_id=4&price=") + QString::fromLatin1(row.price));
        EXPECT_EQ(session.Cart->Item(1)->SelectedPrice(), Localised(row.inCart)) << row.price;
    }
}

TEST_F(PreviewNavigationTest, TheCopyInTheCartHasTheChosenPriceAndTheCatalogueHasNot)
{
    goTo("~?addtoshopcart=&product_id=4&price=12%2C50");
    EXPECT_EQ(sencha->Price()->Selected, QString());
    EXPECT_EQ(sencha->Price()->Value, u"20"_s);
}

TEST_F(PreviewNavigationTest, AQuantityIsSetAndZeroRemovesTheLine)
{
    addToCart(sencha, Localised(u"12.5"_s), u"2"_s);
    addToCart(mix, u"10"_s, u"1"_s);
    EXPECT_EQ(goTo("~?ACTION=shopcart.php&product_id=4&product_price=12%2C50&quantity=7"), u"cart 7x4 1x5"_s);
    EXPECT_EQ(goTo("~?ACTION=shopcart.php&product_id=4&product_price=12.5&quantity=6"), u"cart 6x4 1x5"_s);
    EXPECT_EQ(goTo("~?ACTION=shopcart.php&product_id=4&product_price=99&quantity=0"), u"cart 6x4 1x5"_s);
    EXPECT_EQ(goTo("~?ACTION=shopcart.php&product_id=-1&product_price=10&quantity=0"), u"cart 6x4 1x5"_s);
    EXPECT_EQ(goTo("~?ACTION=shopcart.php&product_id=4&product_price=12.5"), u"cart 1x5"_s);
    EXPECT_EQ(goTo("~ACTION=shopcart.php"), u"cart 1x5"_s);
    EXPECT_EQ(goTo("~?product_id=5&product_price=10&quantity=0&ACTION=shopcart.php"), u"cart"_s);
}

TEST_F(PreviewNavigationTest, RecalculationSetsTaxAndCharge)
{
    const struct
    {
        const char* fields; // "_" stands for the user's decimal separator
        float tax;
        float charge;
    } rows[] = {
        {"tax=7&charge=5", 7, 5},
        {"tax=&charge=", 0, 0},
        {"tax=19", 19, 0},
        {"charge=4", 0, 4},
        {"", 0, 0},
        {"tax=7_5&charge=4_9", 7.5F, 4.9F},
        {"charge=1&tax=2", 2, 1},
        {"tax=-7&charge=-1", -7, -1},
    };
    for (const auto& row : rows) {
        session.Cart->tax = 99;
        session.Cart->Charge = 99;
        // A browser escapes a comma of a form.
        const QString separator = DecimalSeparator() == u"," ? u"%2C"_s : u"."_s;
        const QString fields = QString::fromLatin1(row.fields).replace(u'_', separator);
        goTo(address("~?recalculate=1&") + fields + u"&ACTION=checkout.php"_s);
        EXPECT_EQ(session.Cart->tax, row.tax) << row.fields;
        EXPECT_EQ(session.Cart->Charge, row.charge) << row.fields;
    }
}

TEST_F(PreviewNavigationTest, TheRecalculatedTotalIsOnTheCheckout)
{
    addToCart(sencha, u"20"_s, u"1"_s);
    EXPECT_EQ(goTo("~?recalculate=1&tax=10&charge=3&ACTION=checkout.php"), u"form 25"_s);
}

TEST_F(PreviewNavigationTest, ATaxOrChargeThatIsNoNumberIsAnError)
{
    for (const char* fields : {"tax=seven", "charge=a", "tax=1.5.5", "tax=7&charge=%20%20x"}) {
        const QString url = address("~?recalculate=1&") + QString::fromLatin1(fields) + u"&ACTION=checkout.php"_s;
        EXPECT_EQ(ErrorOf([&] { navigation.act(url); }), 13) << fields;
    }
    EXPECT_EQ(ErrorOf([&] { navigation.act(address("~?recalculate=1&tax=1E39&ACTION=checkout.php")); }), 6);
    EXPECT_TRUE(surface.documents.isEmpty());
}

TEST_F(PreviewNavigationTest, WhatIsNotThereIsAnErrorAndShowsNothing)
{
    const struct
    {
        const char* url;
        int error;
    } rows[] = {
        {"~ACTION=category.php&id=99", 5},
        {"~ACTION=category.php", 5},
        {"~ACTION=category.php&id=4", 13},     // a product
        {"~ACTION=category.php&id=_SHOP", 13}, // the shop
        {"~ACTION=product.php&id=99", 5},
        {"~ACTION=product.php&id=2", 13},
        {"~?addtoshopcart=", 5},
        {"~?addtoshopcart=&product_id=99", 5},
        {"~?addtoshopcart=&product_id=2", 13},
        {"~ACTION=custompage.php&name=Nobody", 5},
        {"~ACTION=custompage.php&name=", 5},
        {"~ACTION=custompage.php&name=Home%20Page", 5},
        {"~ACTION=custompage.php&name=home%20page", 5},
        {"~ACTION=custompage.php&name=Home+page", 5},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ErrorOf([&] { goTo(row.url); }), row.error) << row.url;
    EXPECT_TRUE(surface.documents.isEmpty());
    EXPECT_EQ(session.Cart->Count(), 0);
}

TEST_F(PreviewNavigationTest, TheEmptyQueryShowsTheChosenHomePage)
{
    auto& home = *design().Pages(PageSelection::CustomPageAsMainPage);
    const struct
    {
        QString name;
        QString shown;
    } rows[] = {
        {u"About"_s, u"own about"_s},
        {u"Home page"_s, u"main"_s},
        {u"Shopping cart page"_s, u"cart"_s},
        {u"Größe und Form"_s, u"own sizes"_s},
    };
    for (const auto& row : rows) {
        home.Clear();
        home.Add(row.name);
        home.Add(u"ignored"_s);
        EXPECT_EQ(goTo("~"), row.shown);
    }
}

TEST_F(PreviewNavigationTest, WithoutAChosenHomePageTheEmptyQueryAsksForACustomPage)
{
    EXPECT_TRUE(PreviewNavigation::judge(address("~")).cancel);
    EXPECT_EQ(ErrorOf([&] { goTo("~"); }), 5);
    addCustomPage(u"home PAGE"_s, u"mine"_s); // keys ignore case
    EXPECT_EQ(goTo("~"), u"own mine"_s);
}

TEST_F(PreviewNavigationTest, ThePreviewOpensWithTheHomePage)
{
    auto& home = *design().Pages(PageSelection::CustomPageAsMainPage);
    navigation.openPreview();
    EXPECT_EQ(surface.documents.takeLast(), u"main"_s);
    const struct
    {
        QString name;
        QString shown;
    } rows[] = {
        {u"Shopping cart page"_s, u"cart"_s},
        {u"Home page"_s, u"main"_s},
        {u"About"_s, u"own about"_s},
        {u"10.5"_s, u"own ten"_s},
    };
    for (const auto& row : rows) {
        home.Clear();
        home.Add(row.name);
        navigation.openPreview();
        EXPECT_EQ(surface.documents.takeLast(), row.shown);
    }
    home.Clear();
    home.Add(u"gone"_s);
    EXPECT_EQ(ErrorOf([&] { navigation.openPreview(); }), 5);
}

TEST_F(PreviewNavigationTest, TheSearchLooksAtNamesAndDescriptionsOfProductsOnly)
{
    sencha->Description = u"A fresh tea from <b>Uji</b>."_s;
    mix->Description = u"Straße"_s;
    addProduct(u"6"_s, u""_s, u"1"_s, tea); // without name and description no word finds it
    shop().Description = u"fresh"_s;
    tea->Description = u"fresh"_s;
    const struct
    {
        const char* what;
        QString shown;
    } rows[] = {
        {"fresh", u"search [fresh] Sencha"_s},     {"FRESH", u"search [FRESH] Sencha"_s},
        {"<b>", u"search [<b>] Sencha"_s},         {"strasse", u"search [strasse] Morning Mix"_s},
        {"", u"search [] Sencha Morning Mix"_s},   {"a+b", u"search [a+b]"_s},
        {"s", u"search [s] Sencha Morning Mix"_s},
    };
    for (const auto& row : rows)
        EXPECT_EQ(goTo(address("~?ACTION=search.php&where=0&what=") + QString::fromUtf8(row.what)), row.shown);
}

TEST_F(PreviewNavigationTest, ARemovedProductThatIsStillKnownIsStillShown)
{
    tea->products.Remove(u"ID4"_s);
    EXPECT_EQ(goTo("~ACTION=product.php&id=4"), u"product 4"_s);
    EXPECT_EQ(goTo("~?ACTION=search.php&what=sencha"), u"search [sencha] Sencha"_s);
}

TEST_F(PreviewNavigationTest, RenderingChangesNothingInTheCatalogue)
{
    const auto text = [&] {
        pugi::xml_document document;
        shop().SelectedCountries = std::make_shared<TextCollection>();
        const pugi::xml_node root = document.append_child("Shop");
        shop().ToXML(root);
        return XmlToBytes(document);
    };
    const QByteArray before = text();
    for (const char* url :
         {"~MAINPAGE", "~ACTION=category.php&id=2", "~ACTION=product.php&id=4", "~?addtoshopcart=&product_id=4&price=3",
          "~?ACTION=search.php&what=", "~?ACTION=checkout.php"})
        goTo(url);
    EXPECT_EQ(text(), before);
}

TEST_F(PreviewNavigationTest, AFailureInRenderingPassesThroughAndKeepsTheOldDocument)
{
    goTo("~MAINPAGE");
    templates.templates.Remove(u"product"_s);
    const QString url = address("~ACTION=product.php&id=4");
    EXPECT_EQ(ErrorOf([&] { navigation.act(url); }), 5);
    EXPECT_EQ(surface.documents, QStringList{u"main"_s});
}

} // namespace
