// A visitor's walk through the sample shop, with real clicks and keys, in the preview that plays the server.
#include "base/Numbers.h"
#include "design/clsSelectedImage.h"
#include "e2e/BrowserTest.h"

#include <QTest>
#include <QWebEngineView>

using namespace Qt::StringLiterals;

namespace {

QString linkTo(const QString& page, const QString& id)
{
    return u"main a[href='http://previewmode/ACTION=%1.php&id=%2']"_s.arg(page, id);
}

class SampleShopTest : public BrowserTest
{
protected:
    SampleShopTest() { openSampleShop(); }

    // The first product for sale that fits.
    template <class Fits>
    std::shared_ptr<ProductClass> firstProduct(Fits fits)
    {
        for (const CatalogueObject& object : session->objects.items()) {
            const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object);
            if (product != nullptr && (*product)->ForSale && fits(**product)) {
                return *product;
            }
        }
        ADD_FAILURE() << "the sample shop has no such product";
        return nullptr;
    }
    std::shared_ptr<ProductClass> productWithOnePrice()
    {
        return firstProduct([](ProductClass& product) { return product.Price()->MultiPriceCount() == 0; });
    }
    std::shared_ptr<ProductClass> productWithVariants()
    {
        return firstProduct([](ProductClass& product) { return product.Price()->MultiPriceCount() > 1; });
    }

    void goTo(const QString& query)
    {
        markPage();
        navigation->act(u"http://previewmode/"_s + query);
        waitForNewPage();
    }
    void goToProduct(const ProductClass& product) { goTo(u"ACTION=product.php&id="_s + product.id); }
    void addToCart(const ProductClass& product)
    {
        goToProduct(product);
        clickToNewPage(u"form.buy [type=submit]"_s);
    }
    // The button of a product on a page that lists several.
    QString buyButtonOf(const ProductClass& product)
    {
        script(
            u"document.querySelector('input[name=product_id][value=\"%1\"]').form.querySelector('[type=submit]').id = 'buy'"_s
                .arg(product.id));
        return u"#buy"_s;
    }
    // Chooses an entry of a list box by keys, as many steps down.
    void chooseEntry(const QString& selector, int steps)
    {
        script(u"document.querySelector('%1').focus()"_s.arg(selector));
        for (int i = 0; i < steps; ++i) {
            QTest::keyClick(browser->view()->focusProxy(), Qt::Key_Down);
        }
        waitUntil(u"document.querySelector('%1').selectedIndex == %2"_s.arg(selector).arg(steps));
    }
    // Texts of the page without the kinds of blanks that it is set with.
    QString plainTextOf(const QString& selector) { return textOf(selector).simplified().replace(u'\u00A0', u' '); }
    QString withCurrency(const QString& number) { return number + u' ' + session->shop->shop_currency; }
    void expectAllPicturesShow(const QString& page)
    {
        script(u"for (const image of document.images) image.loading = 'eager'"_s);
        waitUntil(u"Array.from(document.images).every(image => image.complete)"_s);
        const QString broken =
            script(u"Array.from(document.images).filter(i => i.naturalWidth == 0).map(i => i.src).join(' ')"_s)
                .toString();
        EXPECT_EQ(broken, QString()) << page.toStdString();
    }
    QStringList allPages()
    {
        QStringList pages = {u"MAINPAGE"_s, u"ACTION=shopcart.php"_s, u"?ACTION=checkout.php"_s,
                             u"?ACTION=search.php&where=0&what=a"_s};
        for (const CatalogueObject& object : session->objects.items()) {
            if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object)) {
                pages << u"ACTION=category.php&id="_s + (*category)->id;
            }
            if (const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object)) {
                pages << u"ACTION=product.php&id="_s + (*product)->id;
            }
        }
        for (const auto& page : session->shop->CustomPages) {
            pages << u"ACTION=custompage.php&name="_s + page->pageName;
        }
        return pages;
    }
};

TEST_F(SampleShopTest, AVisitorWalksFromTheMainPageDownToAProductAndBackUp)
{
    const auto root = session->shop->categories.Item(1);
    ASSERT_FALSE(root->categories.isEmpty());
    const auto sub = root->categories.Item(1);
    ASSERT_FALSE(sub->products.isEmpty());
    const auto product = sub->products.Item(1);

    EXPECT_TRUE(shows(root->name));
    clickToNewPage(linkTo(u"category"_s, root->id));
    EXPECT_TRUE(shows(sub->name));
    clickToNewPage(linkTo(u"category"_s, sub->id));
    EXPECT_EQ(countOf(u"main article.product-card"_s), sub->products.Count());
    clickToNewPage(linkTo(u"product"_s, product->id));
    EXPECT_EQ(textOf(u"main h1"_s), product->name);
    // The path leads back up.
    clickToNewPage(u"nav "_s + linkTo(u"category"_s, root->id).mid(5));
    EXPECT_EQ(countOf(linkTo(u"category"_s, sub->id)) > 0, true);
    clickToNewPage(u"nav a[href='http://previewmode/MAINPAGE']"_s);
    EXPECT_TRUE(shows(session->shop->categories.Item(session->shop->categories.Count())->name));
}

// What is not for sale has its prices in a list, without buttons.
TEST_F(SampleShopTest, AListOfPricesIsAsHighAsItsLines)
{
    QStringList pages;
    for (const CatalogueObject& object : session->objects.items()) {
        const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object);
        if (category == nullptr) {
            continue;
        }
        for (const std::shared_ptr<ProductClass>& product : (*category)->products) {
            if (!product->ForSale && product->Price()->MultiPriceCount() > 1) {
                pages << u"?ACTION=search.php&where=0&what="_s + product->name
                      << u"ACTION=category.php&id="_s + (*category)->id << u"ACTION=product.php&id="_s + product->id;
            }
        }
    }
    ASSERT_FALSE(pages.isEmpty()) << "the sample shop has no such product";
    const QString highest =
        u"Math.max(...Array.from(document.querySelectorAll('main ul.variants > li'), line => line.offsetHeight))"_s;
    for (const QString& page : pages) {
        goTo(page);
        ASSERT_GT(countOf(u"main ul.variants > li"_s), 1) << page.toStdString();
        EXPECT_LE(script(highest).toInt(), 60) << page.toStdString();
    }
}

TEST_F(SampleShopTest, ASearchFindsProductsByAPartOfTheirName)
{
    const auto product = productWithOnePrice();
    const QString word = product->name.section(u' ', -1).toUpper();
    type(u"header input[name=what]"_s, word);
    clickToNewPage(u"header form [type=submit]"_s);
    EXPECT_EQ(preview->lastPageName(), u"search"_s);
    EXPECT_TRUE(countOf(linkTo(u"product"_s, product->id)) > 0);
    type(u"header input[name=what]"_s, u"nosuchthing"_s);
    markPage();
    pressEnter();
    waitForNewPage();
    EXPECT_EQ(countOf(u"main article.product-card"_s), 0);
}

TEST_F(SampleShopTest, AProductIsAddedToTheCartWithAQuantity)
{
    const auto product = productWithOnePrice();
    goToProduct(*product);
    type(u"form.buy input[name=quantity]"_s, u"3"_s);
    clickToNewPage(u"form.buy [type=submit]"_s);
    EXPECT_EQ(preview->lastPageName(), u"cart"_s);
    ASSERT_EQ(session->Cart->Count(), 1);
    EXPECT_EQ(session->Cart->Item(1)->Quantity, u"3"_s);
    EXPECT_EQ(session->Cart->Item(1)->SelectedPrice(), product->Price()->NewPrice(product->Price()->Value));
    EXPECT_EQ(textOf(u".cart-line h2"_s), product->name);
    EXPECT_TRUE(textOf(u".side-menu .side-cart"_s).contains(product->name));
}

TEST_F(SampleShopTest, APriceWithADecimalReachesTheCart)
{
    const auto product = productWithOnePrice();
    product->Price()->Value = localised(u"12.50"_s);
    product->Price()->Discount()->Status = DiscountStatus::No;
    addToCart(*product);
    ASSERT_EQ(session->Cart->Count(), 1);
    EXPECT_EQ(session->Cart->Item(1)->SelectedPrice(), localised(u"12.5"_s));
    type(u".cart-line input[name=quantity][type=number]"_s, u"4"_s);
    clickToNewPage(u".cart-line form [type=submit]"_s);
    EXPECT_EQ(session->Cart->Item(1)->Quantity, u"4"_s);
    EXPECT_EQ(plainTextOf(u".cart-sum strong"_s), withCurrency(u"50"_s));
    product->Price()->Value = localised(u"12.55"_s);
    goTo(u"ACTION=shopcart.php"_s);
    EXPECT_EQ(plainTextOf(u".cart-sum strong"_s), withCurrency(localised(u"50.2"_s)));
}

TEST_F(SampleShopTest, AChosenVariantIsAddedToTheCart)
{
    const auto product = productWithVariants();
    const auto variant = product->Price()->GetMultiPrice(2);
    goToProduct(*product);
    EXPECT_EQ(countOf(u"form.buy input[name=price]:checked"_s), 1);
    click(u"form.buy label.variant:nth-of-type(2)"_s);
    waitUntil(u"document.querySelectorAll('form.buy input[name=price]')[1].checked"_s);
    clickToNewPage(u"form.buy [type=submit]"_s);
    ASSERT_EQ(session->Cart->Count(), 1);
    EXPECT_EQ(session->Cart->Item(1)->SelectedPrice(), variant->NewValue());
    EXPECT_EQ(session->Cart->Item(1)->PriceName(), variant->Description);
    EXPECT_TRUE(textOf(u".cart-line"_s).contains(variant->Description));
}

TEST_F(SampleShopTest, OnlyAVariantWithAPriceCanBeBought)
{
    const auto product = productWithVariants();
    product->Price()->Discount()->Status = DiscountStatus::No; // one by bands of prices needs a price
    const QString priced = product->Price()->GetMultiPrice(2)->NewValue();
    for (int i = 1; i <= product->Price()->MultiPriceCount(); ++i) {
        if (i != 2) {
            product->Price()->GetMultiPrice(i)->Value.clear();
        }
    }
    const QStringList pages = {u"ACTION=category.php&id="_s + product->category.lock()->id,
                               u"ACTION=product.php&id="_s + product->id,
                               u"?ACTION=search.php&where=0&what="_s + product->name};
    for (const QString& page : pages) {
        goTo(page);
        const QString button = buyButtonOf(*product);
        ASSERT_EQ(script(u"document.querySelectorAll('#buy').length"_s).toInt(), 1) << page.toStdString();
        script(u"window.stayed = true"_s);
        click(button); // the first one has no price, so nothing is chosen
        pause(400);
        EXPECT_TRUE(script(u"window.stayed === true"_s).toBool()) << page.toStdString();
        EXPECT_EQ(session->Cart->Count(), 0) << page.toStdString();
        script(u"document.querySelector('#buy').form.querySelector('[type=radio]').click()"_s);
        clickToNewPage(button);
        ASSERT_EQ(session->Cart->Count(), 1) << page.toStdString();
        EXPECT_EQ(session->Cart->Item(1)->SelectedPrice(), priced);
        session->Cart->Clear();
    }
    product->Price()->GetMultiPrice(2)->Value.clear();
    for (const QString& page : pages) {
        goTo(page);
        buyButtonOf(*product);
        EXPECT_EQ(script(u"document.querySelector('#buy').offsetWidth"_s).toInt(), 0) << page.toStdString();
        EXPECT_EQ(script(u"[...document.querySelector('#buy').form.elements].filter(e => e.offsetWidth > 0"
                         " && e.matches('input, button')).length"_s)
                      .toInt(),
                  0)
            << page.toStdString();
    }
}

TEST_F(SampleShopTest, AProductIsAddedFromTheCategoryAndFromTheSearch)
{
    const auto product = productWithOnePrice();
    goTo(u"ACTION=category.php&id="_s + product->category.lock()->id);
    clickToNewPage(buyButtonOf(*product));
    ASSERT_EQ(session->Cart->Count(), 1);
    EXPECT_EQ(session->Cart->Item(1)->id, product->id);
    goTo(u"?ACTION=search.php&where=0&what="_s + product->name.section(u' ', -1));
    clickToNewPage(buyButtonOf(*product));
    ASSERT_EQ(session->Cart->Count(), 1);
    EXPECT_EQ(session->Cart->Item(1)->Quantity, u"2"_s);
}

TEST_F(SampleShopTest, AQuantityIsChangedAndZeroRemovesTheLine)
{
    const auto product = productWithOnePrice();
    product->Price()->Value = u"20"_s;
    product->Price()->Discount()->Status = DiscountStatus::No;
    addToCart(*product);
    EXPECT_EQ(plainTextOf(u".cart-sum strong"_s), withCurrency(u"20"_s));
    type(u".cart-line input[name=quantity][type=number]"_s, u"5"_s);
    clickToNewPage(u".cart-line form [type=submit]"_s);
    EXPECT_EQ(plainTextOf(u".cart-sum strong"_s), withCurrency(u"100"_s));
    type(u".cart-line input[name=quantity][type=number]"_s, u"0"_s);
    clickToNewPage(u".cart-line form [type=submit]"_s);
    EXPECT_EQ(session->Cart->Count(), 0);
    EXPECT_EQ(countOf(u".cart-line"_s), 0);
    EXPECT_TRUE(shows(u"Your cart is empty"_s));
}

TEST_F(SampleShopTest, TheCheckoutIsRecalculatedWithATaxAndACharge)
{
    const auto product = productWithOnePrice();
    product->Price()->Value = u"100"_s;
    product->Price()->Discount()->Status = DiscountStatus::No;
    session->shop->TaxesAreSelected = true;
    session->shop->ShippingChargesAreSelected = true;
    session->shop->Taxes.Clear();
    session->shop->Charges.Clear();
    for (const char* percent : {"19", "7.5"}) {
        clsTax tax;
        tax.TaxName = u"Tax"_s;
        tax.setPercent(localised(QString::fromLatin1(percent)));
        tax.IsChecked = true;
        session->shop->Taxes.Add(tax);
    }
    for (const char* cost : {"4.90", "9"}) {
        clsCharge charge;
        charge.Destination = u"Anywhere"_s;
        charge.Cost = localised(QString::fromLatin1(cost));
        charge.IsChecked = true;
        session->shop->Charges.Add(charge);
    }
    addToCart(*product);
    clickToNewPage(u".cart-sum a[href*=checkout]"_s);
    EXPECT_EQ(preview->lastPageName(), u"checkout"_s);
    EXPECT_EQ(plainTextOf(u".summary .total strong"_s), withCurrency(u"100"_s));

    chooseEntry(u"select[name=tax]"_s, 2);
    chooseEntry(u"select[name=charge]"_s, 1);
    clickToNewPage(u".summary form [type=submit]"_s);
    EXPECT_EQ(session->Cart->tax, 7.5F);
    EXPECT_EQ(session->Cart->Charge, 4.9F);
    EXPECT_EQ(plainTextOf(u".summary .total strong"_s), withCurrency(localised(u"112.4"_s)));

    // Without a choice both are nothing again.
    clickToNewPage(u".summary form [type=submit]"_s);
    EXPECT_EQ(plainTextOf(u".summary .total strong"_s), withCurrency(u"100"_s));
}

TEST_F(SampleShopTest, EveryCustomPageOfTheMenusOpens)
{
    ASSERT_GE(session->shop->CustomPages.Count(), 2);
    for (const auto& page : session->shop->CustomPages) {
        goTo(u"MAINPAGE"_s);
        const QString link = u"a[href='http://previewmode/ACTION=custompage.php&name=%1']"_s.arg(page->pageName);
        ASSERT_GE(countOf(link), 1) << page->pageName.toStdString();
        clickToNewPage(link);
        EXPECT_EQ(preview->lastPageName(), u"custompage"_s);
        EXPECT_EQ(std::get<std::shared_ptr<CustomPageClass>>(preview->lastPageObject()), page);
    }
    clickToNewPage(u"nav.menuinheader a[href='http://previewmode/MAINPAGE']"_s);
    EXPECT_EQ(preview->lastPageName(), u"main"_s);
    clickToNewPage(u"nav.menuinfooter a[href='http://previewmode/ACTION=shopcart.php']"_s);
    EXPECT_EQ(preview->lastPageName(), u"cart"_s);

    // Header and footer have a short way to one of the shop's own pages each; the other is found by its name.
    session->shop->ShopDesign->Pages(PageSelection::FooterCustomPageSelected)->Add(u"Home page"_s);
    session->shop->ShopDesign->Pages(PageSelection::HeaderCustomPageSelected)->Add(u"Shopping cart page"_s);
    goTo(u"ACTION=shopcart.php"_s);
    clickToNewPage(u"a[href='http://previewmode/ACTION=custompage.php&name=Home page']"_s);
    EXPECT_EQ(preview->lastPageName(), u"main"_s);
    clickToNewPage(u"a[href='http://previewmode/ACTION=custompage.php&name=Shopping cart page']"_s);
    EXPECT_EQ(preview->lastPageName(), u"cart"_s);
}

TEST_F(SampleShopTest, AnOrderThatIsSentStaysInThePreviewAndDoesNothing)
{
    addToCart(*productWithOnePrice());
    goTo(u"?ACTION=checkout.php"_s);
    script(
        u"for (const field of document.querySelectorAll('[required]')) field.required = false; window.stayed = true"_s);
    click(u".checkout section:last-of-type form [type=submit]"_s);
    pause(400);
    EXPECT_TRUE(script(u"window.stayed === true"_s).toBool());
    EXPECT_EQ(session->Cart->Count(), 1);
}

TEST_F(SampleShopTest, EveryPictureOfEveryPageShows)
{
    for (const QString& page : allPages()) {
        goTo(page);
        expectAllPicturesShow(page);
    }
}

TEST_F(SampleShopTest, NoPageIsWiderThanANarrowScreen)
{
    addToCart(*productWithVariants());
    browser->resize(375, 800);
    for (const QString& page : allPages()) {
        goTo(page);
        waitUntil(u"window.innerWidth == 375"_s);
        EXPECT_LE(script(u"document.documentElement.scrollWidth"_s).toInt(), 375) << page.toStdString();
    }
}

// Around everything that takes the focus: neither cut off by a box around it nor in a colour like the ground's.
TEST_F(SampleShopTest, TheRingOfTheFocusStandsOutOnEveryGround)
{
    const QString pale =
        u"(function() {"
        "const numbers = colour => colour.match(/[0-9.]+/g).map(Number);"
        "const light = colour => { const c = numbers(colour).slice(0, 3).map(v => v / 255)"
        "    .map(v => v <= 0.04045 ? v / 12.92 : ((v + 0.055) / 1.055) ** 2.4);"
        "  return 0.2126 * c[0] + 0.7152 * c[1] + 0.0722 * c[2] + 0.05; };"
        "const contrast = (a, b) => Math.max(light(a), light(b)) / Math.min(light(a), light(b));"
        "const found = []; let looked = 0;"
        "for (const element of document.querySelectorAll('a, button, select, textarea, input:not([type=hidden])')) {"
        "  element.focus();"
        "  if (!element.matches(':focus-visible') || element.offsetWidth == 0) continue;"
        "  const ringed = element.matches('.menu-switch') ? element.nextElementSibling : element;"
        "  const style = getComputedStyle(ringed);"
        "  const wide = parseFloat(style.outlineWidth) + parseFloat(style.outlineOffset);"
        "  const box = ringed.getBoundingClientRect();"
        "  let ground = null;"
        "  for (let around = ringed.parentElement; around; around = around.parentElement) {"
        "    const its = getComputedStyle(around); const room = around.getBoundingClientRect();"
        "    const colour = numbers(its.backgroundColor);"
        "    if (!ground && (colour.length == 3 || colour[3] == 1)) ground = its.backgroundColor;"
        "    if (its.overflow != 'visible' && (box.left - wide < room.left || box.right + wide > room.right"
        "        || box.top - wide < room.top || box.bottom + wide > room.bottom))"
        "      found.push(ringed.outerHTML.slice(0, 80) + ' is cut off by ' + around.className);"
        "  }"
        "  const colours = [style.outlineColor].concat(style.boxShadow.match(/^rgba?[(][^)]*[)]/) || []);"
        "  const best = Math.max(...colours.map(colour => contrast(colour, ground)));"
        "  ++looked;"
        "  if (best < 3) found.push(ringed.outerHTML.slice(0, 80) + ' on ' + ground + ' has ' + best.toFixed(1));"
        "}"
        "if (looked < 15) found.push('only ' + looked + ' have the focus');"
        "return found.join('\\n'); })()"_s;
    const auto product = productWithVariants();
    addToCart(*product);
    for (const int width : {1000, 390}) {
        browser->resize(width, 800);
        for (const QString& page :
             {u"MAINPAGE"_s, u"ACTION=shopcart.php"_s, u"?ACTION=checkout.php"_s,
              u"?ACTION=search.php&where=0&what=marzipan"_s,
              u"ACTION=category.php&id="_s + product->category.lock()->id, u"ACTION=product.php&id="_s + product->id}) {
            goTo(page);
            waitUntil(u"window.innerWidth == %1"_s.arg(width));
            EXPECT_EQ(script(pale).toString().toStdString(), "") << page.toStdString();
        }
    }
}

TEST_F(SampleShopTest, NoLongWordMakesAPageWiderThanANarrowScreen)
{
    const QString word = QString(45, u'w');
    const auto product = productWithVariants();
    const auto category = product->category.lock();
    product->name = product->Description = product->Unit = category->name = category->Description = word;
    for (int i = 1; i <= product->Price()->MultiPriceCount(); ++i) {
        product->Price()->GetMultiPrice(i)->Description = word;
    }
    clsSelectedImage& logo = *session->shop->ShopDesign->Image(ImageSlot::HeaderLogo);
    logo.SelectionType = ImageSelection::Text;
    logo.TextValue = word;
    addToCart(*product);
    browser->resize(375, 800);
    const QStringList pages = {u"MAINPAGE"_s,
                               u"ACTION=shopcart.php"_s,
                               u"?ACTION=checkout.php"_s,
                               u"?ACTION=search.php&where=0&what="_s + word,
                               u"?ACTION=search.php&where=0&what="_s + QString(45, u'm'),
                               u"ACTION=category.php&id="_s + category->id,
                               u"ACTION=product.php&id="_s + product->id};
    for (const QString& page : pages) {
        goTo(page);
        waitUntil(u"window.innerWidth == 375"_s);
        EXPECT_LE(script(u"document.documentElement.scrollWidth"_s).toInt(), 375) << page.toStdString();
    }
}

} // namespace
