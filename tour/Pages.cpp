#include "Parts.h"
#include "Walk.h"
#include "model/ShopSession.h"
#include "shell/browser/PreviewBrowser.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QWebEnginePage>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int narrow = 375;       // pixels, the width of a small telephone
constexpr int least = 500;        // pixels of height that a page's picture has
constexpr int longest = 4000;     // and at most
constexpr int pageTimeout = 5000; // milliseconds

// A page of the shop, and how a visitor comes there: an address of the preview's server, or a click on what a selector
// finds in the page before.
struct PageStop
{
    const char* address;
    const char* clicked;
    const char* picture;
};

constexpr PageStop pages[] = {
    {"MAINPAGE", nullptr, "main"},
    {"ACTION=category.php&id=2", nullptr, "category_of_categories"},
    {"ACTION=category.php&id=4", nullptr, "category"},
    {"ACTION=product.php&id=20", nullptr, "product"},
    {"ACTION=product.php&id=23", nullptr, "product_with_several_prices"},
    {"?ACTION=search.php&where=0&what=tea", nullptr, "search"},
    {"?ACTION=search.php&where=0&what=marzipan", nullptr, "search_without_results"},
    {"ACTION=custompage.php&name=Brewing", nullptr, "custom_page"},
    {"ACTION=shopcart.php", nullptr, "cart_empty"},
    {"ACTION=product.php&id=23", nullptr, nullptr},
    {nullptr, "form.buy [type=submit]", nullptr},
    {"ACTION=product.php&id=36", nullptr, nullptr},
    {nullptr, "form.buy [type=submit]", "cart"},
    {"?ACTION=checkout.php", nullptr, "checkout"},
};

QVariant script(QWebEnginePage& page, const QString& text)
{
    struct Answer
    {
        QVariant value;
        bool isThere = false;
    };
    // The engine may answer after the wait has ended.
    const auto answer = std::make_shared<Answer>();
    page.runJavaScript(text, [answer](const QVariant& value) { *answer = {value, true}; });
    for (int waited = 0; !answer->isThere && waited < pageTimeout; waited += 5) {
        Walk::pause(5);
    }
    return answer->value;
}

void goTo(QWebEnginePage& page, const PageStop& stop)
{
    script(page, u"window.seen = true"_s);
    if (stop.address) {
        script(page, u"location.href = 'http://previewmode/%1'"_s.arg(QLatin1String(stop.address)));
    } else {
        script(page, u"document.querySelector('%1').click()"_s.arg(QLatin1String(stop.clicked)));
    }
    QElapsedTimer waiting;
    waiting.start();
    const QString isThere = u"!window.seen && document.readyState == 'complete'"_s;
    while (!script(page, isThere).toBool() && waiting.elapsed() < pageTimeout) {
        Walk::pause(10);
    }
}

// Makes the browser as wide as that and as high as the page that it shows, and keeps the page.
void keepPage(Walk& walk, int width, const QString& name)
{
    PreviewBrowser& browser = walk.browser();
    QWebEnginePage& page = *browser.page();
    browser.setFixedSize(width, least); // a page is as high as the window at least
    // A scroll bar would take width, so that the page came out higher than it is in the picture.
    script(page, u"document.documentElement.style.overflow = 'hidden'"_s);
    for (int pass = 0; pass < 2; ++pass) {
        script(page, u"for (const image of document.images) image.loading = 'eager'"_s);
        Walk::pause(60);
        const int height = script(page, u"document.body.scrollHeight"_s).toInt();
        browser.setFixedHeight(qBound(least, height, longest));
    }
    const QString pictures = u"Array.from(document.images).every(image => image.complete)"_s;
    for (int waited = 0; !script(page, pictures).toBool() && waited < pageTimeout; waited += 20) {
        Walk::pause(20);
    }
    Walk::pause(250); // for the engine to paint
    walk.keepPicture(browser.grab(), name);
}

} // namespace

void walkPages(Walk& walk)
{
    walk.beginPart(u"page"_s);
    walk.enter(MainForm::PreviewMode);
    Walk::pause(900);
    walk.keep(u"preview"_s);
    for (const auto& [button, picture] : {std::pair("PhoneWidthBtn", "preview_as_on_a_phone"),
                                          {"TabletWidthBtn", "preview_as_on_a_tablet"},
                                          {"FullWidthBtn", nullptr}}) {
        Walk::partOf<QAbstractButton>(&walk.window, button)->click();
        Walk::pause(600); // for the engine to lay out and paint
        if (picture) {
            walk.keep(QLatin1String(picture));
        }
    }
    const QSize before = walk.window.size();
    const int wide = walk.browser().width();
    for (const PageStop& stop : pages) {
        goTo(*walk.browser().page(), stop);
        if (stop.picture) {
            keepPage(walk, wide, QLatin1String(stop.picture));
            keepPage(walk, narrow, QLatin1String(stop.picture) + u"_narrow"_s);
        }
    }
    walk.browser().setMinimumSize(0, 0);
    walk.browser().setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    walk.window.resize(before);
    walk.enter(MainForm::CatalogueMode);
}
