#include "pages/preview/PreviewNavigation.h"

#include "base/Circumstances.h"
#include "base/Numbers.h"
#include "design/PageTable.h"
#include "model/ProductClass.h"
#include "pages/TemplateUtils.h"
#include "pages/preview/PreviewUrl.h"
#include "pages/preview/ProductSearch.h"

using namespace Qt::StringLiterals;

namespace {

enum class Request {
    Foreign, // not for the shop's server
    MainPage,
    Category,
    Product,
    AddToCart,
    ShoppingCart,
    Search,
    CustomPage,
    Checkout,
    Unknown, // for the shop's server, which does not know it
    Recalculation,
};

// What stands behind the server's address. As many characters are cut off as that has, wherever it stands.
QString queryOf(const QString& url)
{
    return url.sliced(serverAddress().size());
}

// The first rule that fits counts. Deliberately, some rules look at the query only and some at the whole address.
Request requestOf(const QString& url, const QString& query)
{
    if (!url.contains(serverAddress())) {
        return Request::Foreign;
    }
    if (query == "MAINPAGE"_L1) {
        return Request::MainPage;
    }
    if (query.startsWith("ACTION=category.php"_L1)) {
        return Request::Category;
    }
    if (query.startsWith("ACTION=product.php"_L1)) {
        return Request::Product;
    }
    // Only the key without a value adds to the cart.
    if (GetUrlParam(url, u"addtoshopcart"_s, u"nothing"_s).isEmpty()) {
        return Request::AddToCart;
    }
    const QString action = GetUrlParam(url, u"ACTION"_s, u"qqq"_s);
    if (action == "shopcart.php"_L1) {
        return Request::ShoppingCart;
    }
    if (action == "search.php"_L1) {
        return Request::Search;
    }
    if (query.startsWith("ACTION=custompage.php&name="_L1)) {
        return Request::CustomPage;
    }
    if (query.startsWith("?ACTION=checkout.php"_L1)) {
        return Request::Checkout;
    }
    if (!query.endsWith("ACTION=checkout.php"_L1)) {
        return Request::Unknown;
    }
    return query.contains("recalculate"_L1) ? Request::Recalculation : Request::Unknown;
}

// The cart is shown at the end for every address with this word in it, of whatever host.
bool showsCartAtTheEnd(const QString& url)
{
    return url.contains("addtoshopcart"_L1);
}

// A price as the cart keeps it: the number that the text begins with.
QString cartPrice(const QString& text)
{
    return numberToText(Val(DecodeUrlText(text)));
}

// A field of the checkout form, in which a blank is a plus. Its comma is one of the user's locale, so it must not
// become a point.
float singleOfField(const QString& url, const QString& key)
{
    QString text = GetUrlParam(url, key, u"0"_s);
    text.replace(u'+', u' ').replace("%2B"_L1, "+"_L1).replace("%2C"_L1, ","_L1);
    return singleFrom(numberOrZero(text));
}

} // namespace

NavigationDecision PreviewNavigation::judge(const QString& url)
{
    if (!url.contains(serverAddress())) {
        return {false, showsCartAtTheEnd(url)};
    }
    const QString query = queryOf(url);
    const bool isUnknown = !query.isEmpty() && requestOf(url, query) == Request::Unknown;
    return {true, !isUnknown || showsCartAtTheEnd(url)};
}

void PreviewNavigation::act(const QString& url)
{
    QString query;
    if (url.contains(serverAddress())) {
        query = queryOf(url);
        if (query.isEmpty()) {
            query = homeQuery();
        }
    }
    switch (requestOf(url, query)) {
    case Request::MainPage:
        showMain();
        break;
    case Request::Category:
        showCategory(url);
        break;
    case Request::Product:
        showProduct(url);
        break;
    case Request::AddToCart:
        addToCart(url);
        break;
    case Request::ShoppingCart:
        recalculateLine(url);
        showCart();
        break;
    case Request::Search:
        showFoundProducts(url);
        break;
    case Request::CustomPage:
        showNamedPage(DecodeUrlText(GetUrlParam(query, u"name"_s, HomePageName)));
        break;
    case Request::Checkout:
        showCheckout();
        break;
    case Request::Recalculation:
        setTaxAndCharge(url);
        showCheckout();
        break;
    case Request::Foreign:
    case Request::Unknown:
        break;
    }
    if (showsCartAtTheEnd(url)) {
        const PageObject last = m_page.lastPageObject();
        m_page.ShowPreviewPage(nameOf(ShopPage::Cart), last);
    }
}

void PreviewNavigation::openPreview()
{
    const auto& pages = m_page.context().design().Pages(PageSelection::CustomPageAsMainPage)->selectedPages();
    if (pages.isEmpty()) {
        showMain();
    } else {
        showNamedPage(pages.Item(1));
    }
}

// With no page chosen this deliberately asks for a custom page "Home Page", with a capital P, which is not the shop's
// own "Home page".
QString PreviewNavigation::homeQuery() const
{
    const auto& pages = m_page.context().design().Pages(PageSelection::CustomPageAsMainPage)->selectedPages();
    return u"ACTION=custompage.php&name="_s + (pages.isEmpty() ? u"Home Page"_s : pages.Item(1));
}

void PreviewNavigation::showCategory(const QString& url)
{
    m_page.ShowPreviewPage(nameOf(ShopPage::Category), m_session.objects.Category(GetUrlParam(url, u"id"_s, {})));
}

void PreviewNavigation::showProduct(const QString& url)
{
    m_page.ShowPreviewPage(nameOf(ShopPage::Product), m_session.objects.Product(GetUrlParam(url, u"id"_s, {})));
}

void PreviewNavigation::addToCart(const QString& url)
{
    const QString id = GetUrlParam(url, u"product_id"_s, u"0"_s);
    const QString quantity = GetUrlParam(url, u"quantity"_s, u"1"_s);
    const QString price = cartPrice(GetUrlParam(url, u"price"_s, u"0"_s));
    const std::shared_ptr<ProductClass> product = m_session.objects.Product(id);
    const std::shared_ptr<ProductClass> copy = CopyProductForPreview(*product);
    copy->Price()->Selected = price;
    m_page.context().cart().AddNewProduct(id, product->name, copy, price, quantity);
}

void PreviewNavigation::recalculateLine(const QString& url)
{
    const QString price = cartPrice(GetUrlParam(url, u"product_price"_s, u"0"_s));
    const QString quantity = GetUrlParam(url, u"quantity"_s, u"0"_s);
    const QString id = GetUrlParam(url, u"product_id"_s, u"-1"_s);
    if (id != "-1"_L1) {
        m_page.context().cart().Recalculate(id, price, quantity);
    }
}

void PreviewNavigation::showFoundProducts(const QString& url)
{
    const auto results = std::make_shared<SearchResults>();
    results->word = GetUrlParam(url, u"what"_s, {}); // deliberately not decoded
    ProductSearch search(results->word);
    for (const CatalogueObject& object : m_session.objects.items()) {
        const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object);
        if (product != nullptr && (search.isIn((*product)->name) || search.isIn((*product)->Description))) {
            results->products.push_back(*product);
        }
    }
    m_page.ShowPreviewPage(nameOf(ShopPage::Search), results);
}

void PreviewNavigation::showNamedPage(const QString& name)
{
    if (name == HomePageName) {
        showMain();
    } else if (name == ShoppingCartPageName) {
        showCart();
    } else {
        const auto& page = during(
            [&] {
                return u"There is no custom page %1, which a link or a choice of pages asks for."_s.arg(inQuotes(name));
            },
            [&]() -> const auto& { return shop()->CustomPages.Item(name); });
        m_page.ShowPreviewPage(nameOf(ShopPage::CustomPage), page);
    }
}

void PreviewNavigation::setTaxAndCharge(const QString& url)
{
    clsCart& cart = m_page.context().cart();
    cart.tax = singleOfField(url, u"tax"_s);
    cart.Charge = singleOfField(url, u"charge"_s);
}

void PreviewNavigation::showMain()
{
    m_page.ShowPreviewPage(nameOf(ShopPage::Main), shop());
}

void PreviewNavigation::showCart()
{
    m_page.ShowPreviewPage(nameOf(ShopPage::Cart), {});
}

void PreviewNavigation::showCheckout()
{
    m_page.ShowPreviewPage(nameOf(ShopPage::Checkout), shop());
}
