// Where the addresses of the preview lead, and what an address that leads nowhere does.
#include "base/XmlFile.h"
#include "pages/preview/NavigationTest.h"

using namespace Qt::StringLiterals;

namespace {

using PreviewNavigationTest = NavigationTest;

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
    for (const auto& row : rows) {
        EXPECT_EQ(errorOf([&] { goTo(row.url); }), row.error) << row.url;
    }
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
    EXPECT_EQ(errorOf([&] { goTo("~"); }), 5);
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
        home.Add(u"ignored"_s);
        navigation.openPreview();
        EXPECT_EQ(surface.documents.takeLast(), row.shown);
    }
    home.Clear();
    home.Add(u"gone"_s);
    EXPECT_EQ(errorOf([&] { navigation.openPreview(); }), 5);
    EXPECT_EQ(circumstancesOf([&] { navigation.openPreview(); }),
              QStringList{u"There is no custom page \"gone\", which a link or a choice of pages asks for."_s});
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
    for (const auto& row : rows) {
        EXPECT_EQ(goTo(address("~?ACTION=search.php&where=0&what=") + QString::fromUtf8(row.what)), row.shown);
    }
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
        return xmlToBytes(document);
    };
    const QByteArray before = text();
    for (const char* url :
         {"~MAINPAGE", "~ACTION=category.php&id=2", "~ACTION=product.php&id=4", "~?addtoshopcart=&product_id=4&price=3",
          "~?ACTION=search.php&what=", "~?ACTION=checkout.php"}) {
        goTo(url);
    }
    EXPECT_EQ(text(), before);
}

TEST_F(PreviewNavigationTest, AFailureInRenderingPassesThroughAndKeepsTheOldDocument)
{
    goTo("~MAINPAGE");
    templates.templates.Remove(u"product"_s);
    const QString url = address("~ACTION=product.php&id=4");
    EXPECT_EQ(errorOf([&] { navigation.act(url); }), 5);
    EXPECT_EQ(surface.documents, QStringList{u"main"_s});
}

} // namespace
