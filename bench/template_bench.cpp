// Template expansion against Google's ctemplate: a page like the category page, rows of 40 variables, at 10, 1,000 and
// 20,000 rows. "Fill and expand" is what a page costs: its variables are made from the texts of the catalogue, expanded
// and freed. "Expand alone" starts from filled variables. Before anything is measured both outputs are compared.
//
// Both sides are used as page code would: names as plain texts, the template parsed once, a new text for each page. The
// peer can also be given names whose hashes were made ahead by a generator; that is shown, not judged.
#include "Ratios.h"
#include "template_engine/Template.h"
#include "template_engine/Variables.h"

#include <QRegularExpression>
#include <QString>

#include <array>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <ctemplate/template.h>
#include <deque>
#include <limits>
#include <malloc.h>
#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// One variable of a row: a value that is shown, or an option "Yes" or "No" that shows or hides a piece.
struct Field
{
    const char* name;
    const char* sample;
    bool option;
};

constexpr std::array<Field, 40> Fields{{
    {"id", "", false},
    {"name", "Espresso cup, blue rim, number ", false},
    {"ForSale", "Yes", true},
    {"CATEGORYPAGE_PRODUCT_IMAGE_TYPE", "IMAGE", false},
    {"CATEGORYPAGE_PRODUCT_IMAGE_FILENAME", "/home/shop/Tarnwick/pictures/cup-blue.png", false},
    {"CATEGORYPAGE_PRODUCT_IMAGE_TEXT", "A cup", false},
    {"CATEGORYPAGE_PRODUCT_IMAGE_WIDTH", "240", false},
    {"CATEGORYPAGE_PRODUCT_IMAGE_HEIGHT", "180", false},
    {"Product_PriceType", "Single", false},
    {"price", "12.50", false},
    {"new_price", "10.95", false},
    {"description",
     "Stoneware, fired twice, holds 80 ml and keeps them warm. Goes into the dishwasher. The rim is painted by hand, "
     "so "
     "that no two cups are quite alike.",
     false},
    {"cut_count", "30", false},
    {"server", "http://previewmode/", false},
    {"shop_currency", "EUR", false},
    {"CATEGORY_CART_BUTTON_TYPE", "TEXT", false},
    {"CATEGORY_CART_BUTTON_FILENAME", "/home/shop/Tarnwick/pictures/cart.png", false},
    {"CATEGORY_CART_BUTTON_TEXT", "Add to cart", false},
    {"CATEGORY_CART_BUTTON_WIDTH", "96", false},
    {"CATEGORY_CART_BUTTON_HEIGHT", "28", false},
    {"Category_NewPrice", "Yes", true},
    {"Category_OldPrice", "No", true},
    {"Category_AddToCart", "Yes", true},
    {"Category_Price", "Yes", true},
    {"Category_ProductImage", "Yes", true},
    {"Category_ProductName", "Yes", true},
    {"Category_Related", "No", true},
    {"Category_ShoppingInfo", "No", true},
    {"Category_Taxes", "No", true},
    {"Category_ProductDescription", "Yes", true},
    {"hasrelated", "Yes", true},
    {"sku", "T-4711-BLUE", false},
    {"weight", "310", false},
    {"maker", "Kiln and Wheel", false},
    {"delivery", "2 to 4 days", false},
    {"stock", "17", false},
    {"unit", "piece", false},
    {"rating", "4.6", false},
    {"reviews", "38", false},
    {"colour", "blue and white", false},
}};

// The values of one row in both engines' own types; only the first two differ from row to row.
struct RowTexts
{
    std::array<QString, Fields.size()> wide;
    std::array<std::string, Fields.size()> narrow;
};

std::vector<RowTexts> makeRows(int count)
{
    RowTexts common;
    for (std::size_t i = 0; i < Fields.size(); ++i) {
        common.narrow[i] = Fields[i].sample;
        common.wide[i] = QString::fromLatin1(Fields[i].sample);
    }
    std::vector<RowTexts> rows(static_cast<std::size_t>(count), common);
    int number = 1000;
    for (RowTexts& row : rows) {
        for (std::size_t i = 0; i < 2; ++i) {
            row.narrow[i] += std::to_string(number);
            row.wide[i] = QString::fromStdString(row.narrow[i]);
        }
        ++number;
    }
    return rows;
}

// The page in our language. Options are compared with "Yes", as the shop's templates do it.
constexpr const char* PageText = R"(<h1><!--:shop_name:--></h1>
<ul class="products">
<!--:cycle:products:--><li class="product" id="product<!--:id:-->">
<!--:if:Category_ProductImage=Yes:--><a href="<!--:server:-->product.php?id=<!--:id:-->"><img
  src="<!--:CATEGORYPAGE_PRODUCT_IMAGE_FILENAME:-->" alt="<!--:CATEGORYPAGE_PRODUCT_IMAGE_TEXT:-->"
  class="<!--:CATEGORYPAGE_PRODUCT_IMAGE_TYPE:-->" width="<!--:CATEGORYPAGE_PRODUCT_IMAGE_WIDTH:-->"
  height="<!--:CATEGORYPAGE_PRODUCT_IMAGE_HEIGHT:-->"></a><!--:end:Category_ProductImage:-->
<!--:if:Category_ProductName=Yes:--><h2><!--:name:--></h2><!--:end:Category_ProductName:-->
<!--:if:Category_ProductDescription=Yes:--><p class="words<!--:cut_count:-->"><!--:description:--></p>
<!--:end:Category_ProductDescription:--><dl><dt>Number</dt><dd><!--:sku:--></dd>
<dt>Maker</dt><dd><!--:maker:--></dd><dt>Colour</dt><dd><!--:colour:--></dd>
<dt>Weight</dt><dd><!--:weight:--> g</dd><dt>In stock</dt><dd><!--:stock:--></dd>
<dt>Sold by</dt><dd><!--:unit:--></dd><dt>Rating</dt><dd><!--:rating:--> (<!--:reviews:-->)</dd></dl>
<!--:if:Category_Price=Yes:--><p class="<!--:Product_PriceType:-->"><!--:if:Category_OldPrice=Yes:--><del>
<!--:price:--></del><!--:end:Category_OldPrice:--> <!--:if:Category_NewPrice=Yes:--><ins><!--:new_price:--></ins>
<!--:end:Category_NewPrice:--> <!--:shop_currency:--></p><!--:end:Category_Price:-->
<!--:if:Category_Taxes=Yes:--><p>Taxes are added.</p><!--:end:Category_Taxes:-->
<!--:if:Category_ShoppingInfo=Yes:--><p>Delivered in <!--:delivery:-->.</p><!--:end:Category_ShoppingInfo:-->
<!--:if:hasrelated=Yes:--><p class="related">Goes well with others.</p><!--:end:hasrelated:-->
<!--:if:Category_Related=Yes:--><p>See also</p><!--:end:Category_Related:-->
<!--:if:ForSale=Yes:--><!--:if:Category_AddToCart=Yes:--><a
  href="<!--:server:-->shopcart.php?addtoshopcart=<!--:id:-->&amp;price=<!--:price:-->" class="cart"
  title="<!--:CATEGORY_CART_BUTTON_TYPE:-->"><img src="<!--:CATEGORY_CART_BUTTON_FILENAME:-->"
  alt="<!--:CATEGORY_CART_BUTTON_TEXT:-->" width="<!--:CATEGORY_CART_BUTTON_WIDTH:-->"
  height="<!--:CATEGORY_CART_BUTTON_HEIGHT:-->"></a><!--:end:Category_AddToCart:--><!--:end:ForSale:-->
</li>
<!--:end:products:--></ul>
)";

// The same page in the peer's language.
std::string peerPageText()
{
    QString text = QString::fromLatin1(PageText);
    text.replace(QRegularExpression(u"<!--:(?:if|cycle):([^=:]*)(?:=Yes)?:-->"_s), u"{{#\\1}}"_s);
    text.replace(QRegularExpression(u"<!--:end:([^:]*):-->"_s), u"{{/\\1}}"_s);
    text.replace(QRegularExpression(u"<!--:([^:]*):-->"_s), u"{{\\1}}"_s);
    return text.toStdString();
}

class OurPage
{
public:
    OurPage() : m_template(m_names)
    {
        m_template.template_text = QString::fromLatin1(PageText);
        m_template.Parse();
        for (const Field& field : Fields) {
            m_keys.push_back(QString::fromLatin1(field.name));
        }
    }

    Variables fill(const std::vector<RowTexts>& texts)
    {
        Variables page(m_names);
        page.Add(u"shop_name", u"The Cup Shop"_s);
        VariableRows rows;
        rows.reserve(texts.size());
        for (const RowTexts& text : texts) {
            Variables row(m_names);
            for (std::size_t i = 0; i < Fields.size(); ++i) {
                row.Add(m_keys[i], text.wide[i]);
            }
            rows.push_back(std::move(row));
        }
        page.Add(u"products", std::move(rows));
        return page;
    }

    QString expand(const Variables& page) const { return m_template.Get_String(page); }

private:
    NameTable m_names;
    Template m_template;
    std::vector<QString> m_keys;
};

class PeerPage
{
public:
    using Dictionary = std::unique_ptr<ctemplate::TemplateDictionary>;

    PeerPage() : m_template(ctemplate::Template::StringToTemplate(peerPageText(), ctemplate::DO_NOT_STRIP))
    {
        for (const Field& field : Fields) {
            m_plainNames.emplace_back(field.name);
            m_hashedNames.push_back({{field.name, std::char_traits<char>::length(field.name), 0}});
            ctemplate::StaticTemplateStringInitializer(&m_hashedNames.back());
        }
    }

    Dictionary fill(const std::vector<RowTexts>& texts) const { return fillBy(m_plainNames, texts); }
    Dictionary fillByHashedNames(const std::vector<RowTexts>& texts) const { return fillBy(m_hashedNames, texts); }

    std::string expand(const Dictionary& page) const
    {
        std::string out;
        m_template->Expand(&out, page.get());
        return out;
    }

private:
    template <class Names>
    static Dictionary fillBy(const Names& names, const std::vector<RowTexts>& texts)
    {
        auto page = std::make_unique<ctemplate::TemplateDictionary>("page");
        page->SetValue("shop_name", "The Cup Shop");
        for (const RowTexts& text : texts) {
            ctemplate::TemplateDictionary* row = page->AddSectionDictionary("products");
            for (std::size_t i = 0; i < Fields.size(); ++i) {
                if (!Fields[i].option) {
                    row->SetValue(names[i], text.narrow[i]);
                } else if (text.narrow[i] == "Yes") {
                    row->ShowSection(names[i]);
                }
            }
        }
        return page;
    }

    std::unique_ptr<ctemplate::Template> m_template;
    std::vector<std::string> m_plainNames;
    std::deque<ctemplate::StaticTemplateString> m_hashedNames; // a deque, since the library keeps their addresses
};

bool outputsAreEqual(OurPage& ours, const PeerPage& peer, const std::vector<RowTexts>& rows)
{
    const std::string theirs = peer.expand(peer.fill(rows));
    return theirs.size() > 500 * rows.size() && ours.expand(ours.fill(rows)).toStdString() == theirs &&
           peer.expand(peer.fillByHashedNames(rows)) == theirs;
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
    // Freed memory stays with the process: otherwise each side's pages go back to the system and come again, or do not,
    // depending on what ran before it, and the ratios say more about the system than about the engines.
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());

    OurPage ours;
    const PeerPage peer;
    std::deque<std::vector<RowTexts>> pages;
    std::deque<Variables> ourFilled;
    std::deque<PeerPage::Dictionary> peerFilled;
    std::vector<Comparison> comparisons;
    for (const int count : {10, 1000, 20000}) {
        const std::vector<RowTexts>& rows = pages.emplace_back(makeRows(count));
        if (!outputsAreEqual(ours, peer, rows)) {
            std::fprintf(stderr, "The outputs at %d rows differ: nothing is measured.\n", count);
            return 2;
        }
        const Variables& ourPage = ourFilled.emplace_back(ours.fill(rows));
        const PeerPage::Dictionary& peerPage = peerFilled.emplace_back(peer.fill(rows));

        const std::string both = "fill and expand, " + std::to_string(count) + " rows";
        const std::string alone = "expand alone, " + std::to_string(count) + " rows";
        const bool judged = count == 1000;
        registerRun(both, [&] { return ours.expand(ours.fill(rows)); });
        registerRun(both + ", ctemplate", [&] { return peer.expand(peer.fill(rows)); });
        registerRun(both + ", ctemplate with hashed names", [&] { return peer.expand(peer.fillByHashedNames(rows)); });
        registerRun(alone, [&] { return ours.expand(ourPage); });
        registerRun(alone + ", ctemplate", [&] { return peer.expand(peerPage); });
        comparisons.push_back({both, both, both + ", ctemplate", judged ? 6.0 : 0.0});
        comparisons.push_back({"  peer with hashed names", both, both + ", ctemplate with hashed names", 0.0});
        comparisons.push_back({alone, alone, alone + ", ctemplate", judged ? 4.0 : 0.0});
    }
    return runAndCompare(argc, argv, comparisons);
}
