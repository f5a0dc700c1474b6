// The preview's handler of addresses. The bytes are an address as UTF-8, on a small shop with categories, products, a
// product with variants and custom pages.
//
// Promised: deciding raises nothing, and what names the pseudo-server is always cancelled; acting fails with the errors
// of what is not there, of numbers and of kinds only; an address without an action shows nothing and changes nothing;
// one with an action that succeeds shows a page; a parameter that is found is what a plain search finds.
#include "FuzzTarget.h"
#include "base/RuntimeError.h"
#include "pages/preview/PreviewNavigation.h"
#include "pages/preview/PreviewUrl.h"

#include <QLocale>
#include <QString>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

class NoPrompts : public UserPrompts
{
public:
    void showMessage(const QString& /*title*/, const QString& /*text*/, PromptIcon /*icon*/) override
    {
        promise(false, "no box is shown");
    }
    bool askYesNo(const QString& /*title*/, const QString& /*text*/) override { return false; }
    PromptAnswer askYesNoCancel(const QString& /*title*/, const QString& /*text*/) override
    {
        return PromptAnswer::Cancel;
    }
    std::optional<QString> askText(const QString& /*title*/, const QString& /*prompt*/) override { return {}; }
    QString chooseFile(const QString& /*folder*/, const QString& /*filter*/) override { return {}; }
    std::optional<int> chooseColour(int /*colour*/) override { return {}; }
};

class CountingSurface : public PreviewSurface
{
public:
    bool replaceDocument(const QString& text) override
    {
        promise(text.endsWith("\r\n"_L1), "a document ends in a line end");
        ++documents;
        return true;
    }
    void goBlank() override { promise(false, "nobody asks for a blank page"); }

    int documents = 0;
};

// The shop, made once; only its cart changes.
struct Shop
{
    Shop();
    void addPage(const QString& name, const QString& text);

    QTemporaryDir folder; // only for the log
    NoPrompts prompts;
    SystemClock clock;
    ShopSession session{ApplicationFolder(folder.path()), prompts, clock};
    Templates_Set templates{session.folder, session.log, shopTemplateNames()};
    CountingSurface surface;
    PreviewPage page{session, templates, surface};
    PreviewNavigation navigation{session, page};
};

void addProduct(ShopSession& session, const std::shared_ptr<CategoryClass>& category, const QString& id,
                bool hasVariants)
{
    auto product = std::make_shared<ProductClass>(session.services);
    product->shop = session.shop.get();
    product->category = category;
    product->id = id;
    product->name = u"Tea "_s + id;
    product->Description = u"<p>Grün und <b>frisch</b>, in der Straße gerollt.</p>"_s;
    product->Price()->Value = u"12.5"_s;
    product->Price()->Discount()->Status = DiscountStatus::Specific;
    product->Price()->Discount()->setSpecific(u"10"_s);
    if (hasVariants) {
        product->Price()->AddMultiPrice()->Value = u"5"_s;
        product->Price()->AddMultiPrice()->Value = u"9"_s;
    }
    product->setRelatedIds({u"3"_s});
    category->products.Add(product, nodeKey(id));
}

Shop::Shop()
{
    QLocale::setDefault(QLocale(u"en_US"_s));
    session.shop = std::make_shared<ShopClass>(session.services);
    auto category = std::make_shared<CategoryClass>(session.services);
    category->shop = session.shop.get();
    category->id = u"2"_s;
    category->name = u"Tea"_s;
    session.shop->categories.Add(category, nodeKey(category->id));
    addProduct(session, category, u"3"_s, false);
    addProduct(session, category, u"4"_s, true);
    for (const QString& name : {u"About"_s, u"Größe"_s, u"Home Page"_s}) {
        auto own = std::make_shared<CustomPageClass>();
        own->pageName = name;
        session.shop->CustomPages.Add(own, name);
    }
    session.Cart = std::make_unique<clsCart>(session.services);
    session.registerShop();
    for (const char* name :
         {"main", "menu", "category", "product", "custompage", "footer", "header", "search", "checkout"}) {
        addPage(QString::fromLatin1(name), u"<!--:shop_name:-->"_s);
    }
    addPage(u"cart"_s, u"<!--:cycle:products:--><!--:quantity:--><!--:price:--><!--:end:products:-->"_s);
    templates.layout_template = std::make_shared<Template>(templates.names);
    templates.layout_template->template_text = u"<!--:main_part:--><!--:menu:-->"_s;
    templates.layout_template->Parse();
}

void Shop::addPage(const QString& name, const QString& text)
{
    auto added = std::make_shared<Template>(templates.names);
    added->template_text = text;
    added->Parse();
    templates.templates.Add(added, name);
}

void checkParameter(const QString& url, const QString& key)
{
    const QString value = GetUrlParam(url, key, u"absent&"_s);
    const QString mark = key + u'=';
    const bool isThere = url.contains(mark);
    promise(isThere == (value != "absent&"_L1), "the default stands for an absent key only");
    if (isThere) {
        promise(url.section(mark, 1).section(u'&', 0, 0) == value, "the value reaches to the next &");
    }
    const QString decoded = DecodeUrlText(value);
    promise(!decoded.contains("%2C"_L1) && !decoded.contains("%20"_L1), "blanks and commas are decoded");
}

// The error of an action, 0 when it succeeds.
int errorOfAction(PreviewNavigation& navigation, const QString& url)
{
    try {
        navigation.act(url);
        return 0;
    } catch (const RuntimeError& error) {
        switch (error.number()) {
        case ErrorNumber::InvalidArgument: // a category, product or page that is not there
        case ErrorNumber::TypeMismatch:    // no number, or an id of another kind
        case ErrorNumber::Overflow:        // a number out of range
            break;
        default:
            promise(false, "acting fails by what is not there, by numbers and by kinds only");
        }
        return static_cast<int>(error.number());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Shop shop;
    shop.session.Cart->Clear();
    shop.surface.documents = 0;

    const QString url = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const QString& key : {u"id"_s, u"ACTION"_s, u"price"_s}) {
        checkParameter(url, key);
    }

    const NavigationDecision decision = PreviewNavigation::judge(url);
    promise(decision.cancel == url.contains("http://previewmode/"_L1), "the pseudo-server is never gone to");
    const int error = errorOfAction(shop.navigation, url);
    promise(error != 0 || decision.hasAction == (shop.surface.documents > 0),
            "an action shows a page, and nothing else does");
    promise(decision.hasAction || (error == 0 && shop.session.Cart->Count() == 0), "without an action nothing happens");
    return 0;
}
