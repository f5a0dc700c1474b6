// docs/page-variables.md and the pages agree: every variable that a page adds stands in the section of its template,
// and a section names no variable that its page does not have.
#include "SortedNames.h"
#include "design/PageTable.h"
#include "pages/PagesTest.h"
#include "pages/RenderPage.h"
#include "pages/preview/PreviewPage.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

// What a section tells of a variable's values and of the language.
const Names& wordsThatAreNoVariables()
{
    static const Names words = {u"Yes"_s,   u"No"_s,    u"yes"_s,    u"True"_s,    u"False"_s,   u"Single"_s,
                                u"Multi"_s, u"ToAll"_s, u"Depend"_s, u"Inherit"_s, u"Specific"_s};
    return words;
}

// The names in the section of that template.
Names namesInSection(const QString& page)
{
    static const QString text =
        QString::fromUtf8(fileBytes(QStringLiteral(TARNWICK_SOURCE_DIR "/docs/page-variables.md")));
    static const QRegularExpression name(u"`([A-Za-z_][A-Za-z_0-9]*)`"_s);
    const QRegularExpression section(u"^##+ [^\\n]*`%1\\.html`[^\\n]*\\n(.*?)(?=^##|\\z)"_s.arg(page),
                                     QRegularExpression::MultilineOption |
                                         QRegularExpression::DotMatchesEverythingOption);
    Names names;
    for (const QRegularExpressionMatch& match : name.globalMatch(section.match(text).captured(1))) {
        names.insert(match.captured(1));
    }
    return names - wordsThatAreNoVariables();
}

bool isListOfCustomPages(const QString& key)
{
    for (std::size_t i = 0; i < PageSelectionCount; ++i) {
        if (tagOf(static_cast<PageSelection>(i)) == key) {
            return true;
        }
    }
    return false;
}

// The names from a position on, and those in the rows of all lists but the menus, whose rows are told once for all.
Names namesOf(const Variables& vars, int from)
{
    Names names;
    for (int i = from; i <= vars.Count(); ++i) {
        const QString& key = vars.Key(i);
        names.insert(key);
        const auto* rows = std::get_if<std::shared_ptr<const VariableRows>>(&vars.Item(i));
        if (rows != nullptr && !isListOfCustomPages(key)) {
            for (const Variables& row : **rows) {
                names += namesOf(row, 1);
            }
        }
    }
    return names;
}

// An image is told by its key: the five names become one.
Names withImagesAsKeys(Names names)
{
    for (const QString& name : Names(names)) {
        if (name.endsWith(u"_FILENAME")) {
            const QString key = name.chopped(9);
            for (const char* ending : {"_TYPE", "_FILENAME", "_TEXT", "_WIDTH", "_HEIGHT"}) {
                EXPECT_TRUE(names.remove(key + QLatin1StringView(ending))) << key.toStdString() << ending;
            }
            names.insert(key);
        }
    }
    return names;
}

// A shop with everything that brings a variable.
class PageVariablesPage : public PagesTest
{
protected:
    PageVariablesPage()
    {
        tea = addCategory(u"2"_s, u"Tea"_s);
        addCategory(u"3"_s, u"Green"_s, tea);
        tea->Discount()->Status = DiscountStatus::No;
        tea->Discount()->DependedDiscounts()->Add(u"1"_s, u"20"_s, u"5"_s);
        sencha = addProduct(u"4"_s, u"Sencha"_s, u"20"_s, tea);
        mix = addProduct(u"5"_s, u"Mix"_s, u"10"_s, tea);
        addVariant(*mix, u"small"_s, u"5"_s);
        sencha->setRelatedIds({u"5"_s});
        addToCart(sencha, u"20"_s, u"1"_s);
        for (std::size_t i = 0; i < PageSelectionCount; ++i) {
            design().Pages(static_cast<PageSelection>(i))->Add(u"About"_s);
        }
        markOptions();
        design().setOption(DesignOption::Main_IncludeTwoLevel, u"Yes"_s);
        results->products = {sencha, mix};
        shop().SelectedCountries = std::make_shared<TextCollection>();
        shop().SelectedCountries->Add(u"Iceland"_s);
        clsTax tax;
        tax.IsChecked = true;
        shop().Taxes.Add(tax);
        clsCharge charge;
        charge.IsChecked = true;
        shop().Charges.Add(charge);
    }

    // All pages with the objects that together bring all of their variables.
    QList<std::pair<QString, std::vector<PageObject>>> pages() const
    {
        return {{u"main"_s, {session.shop}},    {u"category"_s, {tea}},        {u"product"_s, {sencha, mix}},
                {u"search"_s, {results}},       {u"custompage"_s, {about}},    {u"menu"_s, {PageObject()}},
                {u"header"_s, {PageObject()}},  {u"footer"_s, {PageObject()}}, {u"cart"_s, {PageObject()}},
                {u"checkout"_s, {PageObject()}}};
    }

    std::shared_ptr<CategoryClass> tea;
    std::shared_ptr<ProductClass> sencha;
    std::shared_ptr<ProductClass> mix;
    std::shared_ptr<CustomPageClass> about = addCustomPage(u"About"_s, u"text"_s);
    std::shared_ptr<SearchResults> results = std::make_shared<SearchResults>();
};

TEST_F(PageVariablesPage, HasASectionForEveryPageWithItsVariablesAndNoOthers)
{
    const int firstOfItsOwn = 3; // behind those of all pages
    QStringList tested;
    for (const auto& [page, objects] : pages()) {
        tested << page;
        Names names;
        for (const PageObject& object : objects) {
            names += namesOf(variablesOf(page, object), firstOfItsOwn);
        }
        if (page == u"cart"_s) {
            names += {u"tax_name"_s, u"tax_percent"_s}; // of rows that fail the page
        }
        names = withImagesAsKeys(names);
        const Names documented = namesInSection(page);
        EXPECT_EQ(sortedText(names - documented), "") << "not told of " << page.toStdString();
        EXPECT_EQ(sortedText(documented - names), "") << "told of " << page.toStdString() << " and not there";
    }
    tested.sort();
    QStringList read = pageNamesBy(&PageRow::reading);
    read.sort();
    EXPECT_EQ(tested, read);
}

class OneDocument : public PreviewSurface
{
public:
    bool replaceDocument(const QString& document) override
    {
        text = document.chopped(2);
        return true;
    }
    void goBlank() override {}

    QString text;
};

TEST_F(PageVariablesPage, TellsWhatTheFrameHas)
{
    Names documented = namesInSection(u"layout"_s);
    EXPECT_TRUE(documented.remove(u"server"_s)); // said not to be there
    EXPECT_TRUE(documented.remove(u"shop_name"_s));
    EXPECT_TRUE(documented.remove(u"css"_s)); // of the rows
    Names expected = {u"main_part"_s, u"csss"_s};
    for (const QString& piece : pageNamesBy(&PageRow::composing)) {
        expected.insert(piece);
    }
    EXPECT_EQ(documented, expected);

    QString layout = u"<!--:cycle:csss:--><!--:css=MISSING:--><!--:end:csss:-->"_s;
    documented.remove(u"csss"_s);
    for (const QString& name : documented) {
        layout += u"<!--:%1=MISSING:-->"_s.arg(name);
        if (name != u"main_part"_s) {
            addTemplate(name, u"["_s + name + u"]"_s);
        }
    }
    addTemplate(u"main"_s, u"[main]"_s);
    setLayout(layout);
    shop().CSSs.Add(std::make_shared<CSSClass>());
    OneDocument document;
    PreviewPage preview(session, templates, document);
    preview.ShowPreviewPage(u"main"_s, session.shop);
    EXPECT_FALSE(document.text.contains(u"MISSING"_s));
    EXPECT_EQ(document.text.count(u'['), documented.size());
    EXPECT_TRUE(document.text.contains(u".{"_s));
}

} // namespace
