// The sample shop shows what a shop can be: each feature of the pages stands on one of its pages, switched on and
// filled with something. A feature that is new gets a row here, and something in the sample shop that shows it.
#include "SamplePages.h"
#include "design/DesignOptions.h"
#include "design/clsSelectedCustomPages.h"
#include "design/clsSelectedImage.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Feature
{
    const char* what;
    const char* page;    // what the query of a page that may show it contains
    const char* pattern; // in the page's document
};

constexpr const char* Main = "MAINPAGE";
constexpr const char* Category = "category.php";
constexpr const char* Product = "product.php";
constexpr const char* Found = "what=a";
constexpr const char* NothingFound = "what=marzipan";
constexpr const char* Custom = "custompage.php";
constexpr const char* EmptyCart = "shopcart.php";
constexpr const char* Cart = "addtoshopcart";
constexpr const char* Form = "?ACTION=checkout.php";

constexpr Feature features[] = {
    // Header, footer and menu, on any page
    {"logo", Main, R"(<a class="logo".*?</a>)"},
    {"search field of the header", Main, R"(class="header_searchbox_testfield")"},
    {"search button of the header", Main, R"(aria-label="Search the shop".*?<button type="submit".*?</form>)"},
    {"cart button of the header", Main, R"(<div class="bar">.*?ACTION=shopcart\.php)"},
    {"home page in a menu", Main, R"(<nav class="menuinheader".*?MAINPAGE">Home page<)"},
    {"own page in the header", Main, R"(<nav class="menuinheader".*?custompage\.php&amp;name=\w+">\w+<)"},
    {"cart page in a menu", Main, R"(<nav class="menuinfooter".*?ACTION=shopcart\.php">Shopping cart page<)"},
    {"own page in the footer", Main, R"(<nav class="menuinfooter".*?custompage\.php&amp;name=\w+">\w+<)"},
    {"copyright line", Main, R"(<p class="copyright">[^<]+</p>)"},
    {"search field of the menu", Main, R"(class="Left_menu_searchbox_testfield")"},
    {"search button of the menu", Main, R"(aria-label="Search products".*?<button type="submit".*?</form>)"},
    {"heading of the categories", Main, R"(Menu_HeaderTopCategory">[^<]+<)"},
    {"categories in the menu", Main, R"(top_categories_in_left_menu">\s*<li><a)"},
    {"own page in the menu", Main, R"(<nav class="menu_in_menu".*?custompage\.php&amp;name=\w+">\w+<)"},
    {"empty cart in the menu", Main, R"(side-cart.*?Nothing in it yet)"},
    {"full cart in the menu", Cart, R"(side-cart.*?class="quantity">&times; 2<)"},
    {"checkout button of the menu", Cart, R"(side-cart.*?\?ACTION=checkout\.php.*?</section>)"},
    {"cart button of the menu", Main, R"(ACTION=shopcart\.php">Open the cart<)"},
    {"style of the owner", Main, R"(\.menuinheader\{[^}]*color)"},

    // Main page
    {"header of the main page", Main, R"(<h1 class="Main_PageHeader">[^<]+<)"},
    {"description of the shop", Main, R"(Main_ShopDescription"><p>)"},
    {"search field of the main page", Main, R"(class="Main_page_searchbox_textfield")"},
    {"search button of the main page", Main, R"(aria-label="Find something".*?<button type="submit".*?</form>)"},
    {"own page on the main page", Main, R"(<nav class="Menu_in_main_page".*?custompage\.php&amp;name=\w+">)"},
    {"top category with its picture", Main, R"(category-card.*?<img src="[^"]*cat-\w+\.png")"},
    {"sub-categories of a top category", Main, R"(Second_level_categories_in_main_page"><?\s*<li>)"},
    {"percentage for a whole category", Main, R"(class="badge">\d+% off)"},
    {"first day of a discount", Main, R"(class="badge">[^<]*% off from \d)"},
    {"last day of a discount", Main, R"(class="badge">[^<]*% off[^<]* until \d)"},
    {"percentage by price", Main, R"(class="badge">Up to \d+% off)"},

    // Category page
    {"header of a category page", Category, R"(Category_PageHeader">[^<]+<)"},
    {"breadcrumb of a category", Category, R"(categorypage_breadcrumb.*?category\.php&amp;id=\d+">)"},
    {"sub-category with its picture", Category, R"(category-card.*?<img src="[^"]*cat-\w+\.png")"},
    {"sub-category without a picture", Category, R"(category-card.*?No picture yet)"},
    {"category with nothing in it", Category, R"(product-list"></div>\s*<div class="empty-state when-empty")"},
    {"product in a list", Category, R"(<article class="card product-card">.*?class="categorypage_name")"},
    {"description that is cut", Category, R"(categorypage_product_description">[^<]+&hellip; <a class="more")"},
    {"product without a picture", Category, R"(product-card.*?No picture yet)"},
    {"price without a discount", Category, R"(<span class="categorypage_price">\d)"},
    {"old and new price", Category, R"(<del class="categorypage_old_price">.*?<ins class="categorypage_new_price">)"},
    {"variants with discounted prices", Category, R"(<label class="variant"><input type="radio".*?<ins)"},
    {"taxes of a product in a list", Category, R"(categorypage_taxes)"},
    {"delivery of a product in a list", Category, R"(categorypage_shipping)"},
    {"related products in a list", Category, R"(categorypage_related">.*?product\.php&amp;id=\d+">[^<]+<)"},
    {"cart button in a list", Category, R"(product-card.*?<form class="buy".*?type="submit")"},

    // Product page
    {"header of a product page", Product, R"(ProductPage_PageHeader">[^<]+<)"},
    {"breadcrumb of a product", Product, R"(productpage_breadcrumb.*?category\.php&amp;id=\d+">)"},
    {"picture of a product", Product, R"(<figure class="product-picture"><img src="[^"]*\.png")"},
    {"whole description of a product", Product, R"(productpage_description"><p>.*?<li>)"},
    {"unit of a product", Product, R"(Sold by the [a-z])"},
    {"address of a product", Product, R"(<a href="[^"]+">More about this product)"},
    {"quantity to buy", Product, R"(type="number" name="quantity")"},
    {"discount of a product", Product, R"(<ins class="productpage_new_price">)"},
    {"variants of a product", Product, R"(<label class="variant"><input type="radio" name="price")"},
    {"price on request", Product, R"(Price on request)"},
    {"product not for sale", Product, R"(<p class="price-line">.*?Not for sale at the moment)"},
    {"variants not for sale", Product, R"(<ul class="variants">.*?Not for sale at the moment)"},
    {"taxes of a product", Product, R"(productpage_taxes)"},
    {"delivery of a product", Product, R"(productpage_shipping)"},
    {"related products", Product, R"(productpage_related">.*?product\.php&amp;id=\d+">[^<]+<)"},

    // Search
    {"header of the search page", Found, R"(SearchPage_PageHeader">[^<]+<)"},
    {"breadcrumb of the search page", Found, R"(searchpage_breadcrumb)"},
    {"product that was found", Found, R"(class="searchpage_name".*?searchpage_description">[^<]+&hellip;)"},
    {"old and new price of a found product", Found, R"(<del class="searchpage_old_price.*?<ins class="searchpage_new)"},
    {"variants of a found product", Found, R"(<label class="variant"><input type="radio")"},
    {"taxes of a found product", Found, R"(searchpage_taxes)"},
    {"delivery of a found product", Found, R"(searchpage_shipping)"},
    {"related products of a found product", Found, R"(searchpage_related">.*?product\.php&amp;id=\d+">)"},
    {"cart button of a found product", Found, R"(product-card.*?<form class="buy".*?type="submit")"},
    {"search without a hit", NothingFound, R"(Nothing found for)"},

    // Cart
    {"empty cart", EmptyCart, R"(Your cart is empty)"},
    {"header of the cart", Cart, R"(CartPage_PageHeader">[^<]+<)"},
    {"line of the cart with its picture", Cart, R"(cart-line.*?<img src="[^"]*\.png")"},
    {"variant in the cart", Cart, R"(cart-line.*?<p class="info">One mug</p>)"},
    {"old and new price in the cart", Cart, R"(<del class="cartpage_old_price">.*?<ins class="cartpage_new_price">)"},
    {"description in the cart", Cart, R"(cartpage_description">[^<]+&hellip;)"},
    {"taxes in the cart", Cart, R"(cartpage_taxes)"},
    {"delivery in the cart", Cart, R"(cartpage_shipping)"},
    {"related products in the cart", Cart, R"(cartpage_related_products">.*?product\.php&amp;id=\d+">)"},
    {"quantity in the cart", Cart, R"(class="cartpage_quantity_textfield")"},
    {"sum of the cart", Cart, R"(<p class="total">.*?<strong>\d+&nbsp;)"},

    // Buying form
    {"header of the buying form", Form, R"(Buyingform_page_header">[^<]+<)"},
    {"breadcrumb of the buying form", Form, R"(Buyingform_bredcrumb)"},
    {"taxes to choose from", Form, R"(<select name="tax".*?<option value="\d.*?<option value="\d.*?</select>)"},
    {"charges to choose from", Form, R"(<select name="charge".*?<option value="\d.*?<option value="\d.*?</select>)"},
    {"countries to choose from", Form, R"(<select name="customer_country".*?<option>.*?<option>.*?</select>)"},

    // Own pages
    {"own page with a text", Custom, R"(general_custom_pages">.*?<p>)"},
    {"own page with a table", Custom, R"(general_custom_pages">.*?<table>)"},
    {"own page with a list", Custom, R"(general_custom_pages">.*?<ul>)"},
};

class SampleFeatures : public SamplePages
{
protected:
    // Whether one of the pages shows it.
    static bool shows(const QList<SamplePage>& pages, const Feature& feature)
    {
        const QRegularExpression pattern(QString::fromUtf8(feature.pattern),
                                         QRegularExpression::DotMatchesEverythingOption);
        return std::any_of(pages.begin(), pages.end(), [&](const SamplePage& page) {
            return page.query.contains(QLatin1String(feature.page)) && page.document.contains(pattern);
        });
    }
    static bool shows(const QList<SamplePage>& pages, const QString& text)
    {
        return std::any_of(pages.begin(), pages.end(),
                           [&](const SamplePage& page) { return page.document.contains(text); });
    }
};

TEST_F(SampleFeatures, AllStandOnAPage)
{
    const QList<SamplePage> pages = everyPage();
    for (const Feature& feature : features) {
        EXPECT_TRUE(shows(pages, feature)) << "not shown: " << feature.what;
    }
}

TEST_F(SampleFeatures, OfThePagesAreAllSwitchedOnAndFilled)
{
    for (const DesignOptionRow& row : designOptionTable()) {
        const QString value = design().Option(row.option);
        if (row.name.endsWith(u"_Advanced")) {
            EXPECT_EQ(value, u"No"_s) << row.name.toStdString();
        } else if (row.name.endsWith(u"_Limit_Desc")) {
            EXPECT_GT(value.toInt(), 0) << row.name.toStdString();
        } else {
            EXPECT_TRUE(value == "Yes"_L1 || (value != "No"_L1 && !value.isEmpty())) << row.name.toStdString();
        }
    }
    for (std::size_t list = 0; list < PageSelectionCount; ++list) {
        EXPECT_FALSE(design().Pages(static_cast<PageSelection>(list))->selectedPages().isEmpty());
    }
}

TEST_F(SampleFeatures, OfTheButtonsAreAPictureAndATextEach)
{
    setEverySlot(ImageSelection::Image);
    const QList<SamplePage> withPictures = everyPage();
    setEverySlot(ImageSelection::Text);
    const QList<SamplePage> withTexts = everyPage();
    for (std::size_t slot = 0; slot < ImageSlotCount; ++slot) {
        const clsSelectedImage& image = *design().Image(static_cast<ImageSlot>(slot));
        SCOPED_TRACE(image.Tag.toStdString());
        const QString picture = session.folder.picturesFolder() + image.imageFileName;
        EXPECT_TRUE(QFile::exists(picture)) << picture.toStdString();
        EXPECT_TRUE(shows(withPictures, u"<img src=\"%1\" alt=\"\""_s.arg(picture)));
        EXPECT_TRUE(shows(withTexts, u">%1</"_s.arg(image.TextValue)));
    }
}

// Every kind of discount at every level that can have it, and periods that run, that are over, and that never end.
TEST_F(SampleFeatures, OfTheDiscountsAreAllKinds)
{
    QStringList kinds{u"shop "_s + StatusToWord(session.shop->Discount()->Status)};
    QStringList periods;
    const auto look = [&](const QString& level, clsDiscount& discount) {
        kinds << level + u' ' + StatusToWord(discount.Status);
        periods << (discount.DateFrom.isEmpty() ? u"open"_s : u"from"_s) +
                       (discount.DateTo.isEmpty() ? u" open"_s : u" to"_s);
    };
    for (const CatalogueObject& object : session.objects.items()) {
        if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object)) {
            look(u"category"_s, *(*category)->Discount());
        } else if (const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object)) {
            look(u"product"_s, *(*product)->Price()->Discount());
        }
    }
    for (const char* kind : {"shop Depend", "category No", "category ToAll", "category Depend", "category Inherit",
                             "product No", "product Inherit", "product Specific"}) {
        EXPECT_TRUE(kinds.contains(QLatin1String(kind))) << kind;
    }
    for (const char* period : {"open open", "from open", "open to", "from to"}) {
        EXPECT_TRUE(periods.contains(QLatin1String(period))) << period;
    }
}

TEST_F(SampleFeatures, ThatAreTakenOutOfAPageAreMissed)
{
    setEverySwitch(u"No"_s);
    const QList<SamplePage> pages = everyPage();
    int missed = 0;
    for (const Feature& feature : features) {
        missed += shows(pages, feature) ? 0 : 1;
    }
    EXPECT_GT(missed, 50);
}

} // namespace
