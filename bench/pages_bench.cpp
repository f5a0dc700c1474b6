// The pages of the shop that grow with the catalogue.
//
// A category page of 1,000 products, from the model to the text, by the shop's own template and design, against
// Google's ctemplate with an equivalent template and the same rows. The peer's rows are ready texts, and what the
// template compares is worked out for it ahead: it fills and expands, while ours reads prices, discounts, pictures and
// descriptions from the model, too. Handed only those variables that its template uses, the peer has less to fill; that
// is shown, not judged.
//
// The search over 100,000 products with texts of 34 million characters, from the address to the page of what was found,
// against QString::toUpper on every text and contains. Before anything is measured the peer's answers are compared with
// ours, and once more after an edit: nothing that was searched before may be remembered.
#include "Measuring.h"
#include "NoPrompts.h"
#include "PeerTemplate.h"
#include "Ratios.h"
#include "base/Clock.h"
#include "model/shop_file/ShopFile.h"
#include "pages/RenderPage.h"
#include "pages/preview/PreviewNavigation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>

#include <array>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int productsOfPage = 1'000;
constexpr int productsOfShop = 100'000;
constexpr int productsOfCategory = 1'000;

// The design and the templates of the sample shop, and a catalogue that is made here.
class Shop
{
public:
    Shop()
    {
        const QDir sample(QStringLiteral(TARNWICK_SOURCE_DIR "/app"));
        QFile::copy(sample.filePath(u"shop.xml"_s), session.folder.shopFile());
        QDir().mkpath(session.folder.picturesFolder());
        for (const QString& picture : QDir(sample.filePath(u"pictures"_s)).entryList(QDir::Files)) {
            QFile::copy(sample.filePath(u"pictures/"_s + picture), session.folder.picturesFolder() + picture);
        }
        if (!loadShop(session)) {
            giveUp(u"The sample shop cannot be read"_s);
        }
        session.registerShop();
        session.Cart = std::make_unique<clsCart>(session.services);
        templates.Path = sample.filePath(u"templates/"_s);
        templates.parseTemplates();
    }

    // Products like a shop's: one in three with a discount of its own, one in five with two variants, one in four with
    // a related one. Every description has 310 characters or so, with a few letters outside ASCII.
    std::shared_ptr<CategoryClass> addCategory(int products)
    {
        auto category = std::make_shared<CategoryClass>(session.services);
        category->shop = session.shop.get();
        category->id = session.shop->getNextProductId();
        category->name = u"Cups, shelf "_s + category->id;
        session.shop->categories.Add(category, nodeKey(category->id));
        session.objects.Add(category, nodeKey(category->id));
        QString former;
        for (int i = 0; i < products; ++i) {
            const auto product = newProduct(i, former);
            product->category = category;
            category->products.Add(product, nodeKey(product->id));
            session.objects.Add(product, nodeKey(product->id));
            former = product->id;
        }
        return category;
    }

    QTemporaryDir directory;
    NoPrompts prompts;
    SystemClock clock;
    ShopSession session{ApplicationFolder(directory.path()), prompts, clock};
    Templates_Set templates{session.folder, session.log, shopTemplateNames()};
    PageContext context{session, templates};

private:
    std::shared_ptr<ProductClass> newProduct(int number, const QString& former)
    {
        auto product = std::make_shared<ProductClass>(session.services);
        product->shop = session.shop.get();
        product->id = session.shop->getNextProductId();
        product->name = u"Espresso cup number %1, blue rim"_s.arg(number);
        product->Description =
            u"<p>Stoneware, fired twice, holds 80 ml and keeps them warm. Goes into the dishwasher. The rim is painted "
            "by hand, so that no two cups are quite alike; number %1 was made in the small kiln of Frau Vo\u00DF. "
            "<b>Fits "
            "the saucers</b> of the same series. Please allow %2 days, and tell us when you need it for a "
            "f\u00EAte.</p>"_s.arg(QString::number(number), number % 1000 == 7 ? u"dreiundvierzig"_s : u"four"_s);
        product->Price()->Value = QString::number(10 + number % 90);
        product->selectedImage()->imageFileName = u"cup-%1.png"_s.arg(number % 500);
        product->selectedImage()->setWidthBmp(240);
        product->selectedImage()->setHeightBmp(180);
        if (number % 3 == 0) {
            product->Price()->Discount()->Status = DiscountStatus::Specific;
            product->Price()->Discount()->setSpecific(u"5"_s);
        }
        for (const QString& size : number % 5 == 0 ? QStringList{u"small"_s, u"large"_s} : QStringList()) {
            const auto variant = product->Price()->AddMultiPrice();
            variant->Description = size;
            variant->Value = QString::number(10 + number % 70);
        }
        product->setRelatedIds(number % 4 == 3 ? QStringList{former} : QStringList());
        return product;
    }
};

// ---- Search ----

class NoBrowser : public PreviewSurface
{
public:
    bool replaceDocument(const QString& text) override
    {
        benchmark::DoNotOptimize(text.size());
        return true;
    }
    void goBlank() override {}
};

using Products = std::vector<std::shared_ptr<ProductClass>>;

class Search
{
public:
    explicit Search(Shop& shop) : m_shop(shop) {}

    const Products& ours(const QString& word)
    {
        m_navigation.act(u"http://previewmode/?what=%1&ACTION=search.php"_s.arg(word));
        return std::get<std::shared_ptr<SearchResults>>(m_page.lastPageObject())->products;
    }

    Products theirs(const QString& word) const
    {
        const QString upper = word.toUpper();
        Products found;
        for (const CatalogueObject& object : m_shop.session.objects.items()) {
            const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object);
            if (product != nullptr &&
                ((*product)->name.toUpper().contains(upper) || (*product)->Description.toUpper().contains(upper))) {
                found.push_back(*product);
            }
        }
        return found;
    }

private:
    Shop& m_shop;
    NoBrowser m_browser;
    PreviewPage m_page{m_shop.session, m_shop.templates, m_browser};
    PreviewNavigation m_navigation{m_shop.session, m_page};
};

struct Word
{
    const char16_t* text;
    const char* title;
};

constexpr std::array<Word, 3> words{{
    {u"samovar", "a word that is nowhere"},
    {u"dreiundvierzig", "a word of every 1,000th product"},
    {u"VOSS DER DRITTE", "a word outside ASCII that is in one product"},
}};

std::size_t checkedCount(Search& search)
{
    std::size_t count = 0;
    for (const Word& word : words) {
        const QString text = QString::fromUtf16(word.text);
        const Products& found = search.ours(text);
        if (found != search.theirs(text)) {
            giveUp(u"The searches find different products"_s);
        }
        count += found.size();
    }
    return count;
}

// Puts the one product there that the last of the words finds.
void checkAnswers(Search& search, ProductClass& product)
{
    const std::size_t before = checkedCount(search);
    product.Description += u" Vo\u00DF der Dritte"_s;
    if (before != productsOfShop / 1000 || checkedCount(search) != before + 1) {
        giveUp(u"The search has missed an edit"_s);
    }
}

double millionCharacters(const ShopSession& session)
{
    qsizetype characters = 0;
    for (const CatalogueObject& object : session.objects.items()) {
        if (const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object)) {
            characters += (*product)->name.size() + (*product)->Description.size();
        }
    }
    return static_cast<double>(characters) * 1e-6;
}

template <class Work>
void registerRun(const std::string& name, Work work)
{
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State& state) {
        for (auto _ : state) {
            benchmark::DoNotOptimize(work());
        }
    })->Unit(benchmark::kMicrosecond);
}

} // namespace

int main(int argc, char** argv)
{
    // Freed memory stays with the process, so that neither side pays for what the other has given back.
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    const QCoreApplication application(argc, argv);
    QLocale::setDefault(QLocale(u"en_US"_s));

    std::vector<Comparison> comparisons;

    Shop pageShop;
    const std::shared_ptr<CategoryClass> category = pageShop.addCategory(productsOfPage);
    const PeerTemplate peer(pageShop.templates.templates.Item(u"category"_s)->template_text);
    const Variables variables = pageVariables(pageShop.context, u"category"_s, category);
    const PeerRow page = peer.rowOf(variables, PeerTemplate::Unshown::Keep);
    const PeerRow shortPage = peer.rowOf(variables, PeerTemplate::Unshown::LeaveOut);
    const std::string text = RenderPage(pageShop.context, u"category"_s, category).toStdString();
    if (text.size() < std::size_t{500} * productsOfPage || peer.fillAndExpand(page) != text ||
        peer.fillAndExpand(shortPage) != text) {
        giveUp(u"The category pages differ"_s);
    }
    const std::string pageTitle = "category page, 1,000 products";
    registerRun(pageTitle, [&] { return RenderPage(pageShop.context, u"category"_s, category); });
    registerRun(pageTitle + ", ctemplate", [&] { return peer.fillAndExpand(page); });
    registerRun(pageTitle + ", ctemplate with less", [&] { return peer.fillAndExpand(shortPage); });
    comparisons.push_back({pageTitle, pageTitle, pageTitle + ", ctemplate", 4.0});
    comparisons.push_back({"  peer with the used variables alone", pageTitle, pageTitle + ", ctemplate with less", 0});

    Shop searchShop;
    std::shared_ptr<CategoryClass> first;
    for (int i = 0; i < productsOfShop / productsOfCategory; ++i) {
        const auto shelf = searchShop.addCategory(productsOfCategory);
        first = first ? first : shelf;
    }
    Search search(searchShop);
    checkAnswers(search, *first->products.Item(3));
    std::printf("the search reads %.1f million characters\n", millionCharacters(searchShop.session));
    for (const Word& word : words) {
        const QString wanted = QString::fromUtf16(word.text);
        const std::string title = std::string("search for ") + word.title;
        registerRun(title, [&search, wanted] { return search.ours(wanted).size(); });
        registerRun(title + ", toUpper and contains", [&search, wanted] { return search.theirs(wanted).size(); });
        comparisons.push_back({title, title, title + ", toUpper and contains", 3.0});
    }
    return runAndCompare(argc, argv, comparisons);
}
