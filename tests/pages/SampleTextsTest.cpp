// What the templates of an installation say when the shop lacks something: a price, a description, the text of a
// header.
#include "design/DesignOptions.h"
#include "pages/PagesTest.h"
#include "pages/RenderPage.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using enum DesignOption;

namespace {

class SampleTextsTest : public PagesTest
{
protected:
    SampleTextsTest()
    {
        for (const DesignOptionRow& row : designOptionTable()) {
            design().setOption(row.option, u"Yes"_s);
        }
        shop().name = u"Corner Shop"_s;
        shop().shop_currency = u"EUR"_s;
        templates.Path = QStringLiteral(TARNWICK_SOURCE_DIR "/app/templates/");
        templates.parseTemplates();
    }

    QString pageOf(const QString& name, const PageObject& object) { return RenderPage(context, name, object); }
    QString searchFor(const QString& word, const std::vector<std::shared_ptr<ProductClass>>& products)
    {
        auto results = std::make_shared<SearchResults>();
        results->word = word;
        results->products = products;
        return pageOf(u"search"_s, results);
    }
    // The words of a piece of HTML, as they are read one after the other.
    static QString wordsOf(QString html)
    {
        static const QRegularExpression tags(u"<[^>]*>"_s);
        return html.replace(tags, QString()).replace("&nbsp;"_L1, " "_L1).simplified();
    }
    // The text of the one h1.
    static QString headingOf(const QString& page)
    {
        static const QRegularExpression heading(u"<h1\\b.*?</h1>"_s, QRegularExpression::DotMatchesEverythingOption);
        EXPECT_EQ(page.count(u"<h1"_s), 1);
        return wordsOf(heading.match(page).captured());
    }

    std::shared_ptr<CategoryClass> cups = addCategory(u"2"_s, u"Cups"_s);
    std::shared_ptr<ProductClass> cup = addProduct(u"3"_s, u"Moor"_s, u"20"_s, cups);
};

TEST_F(SampleTextsTest, AVariantWithoutAPriceIsNamedAndNotOffered)
{
    addVariant(*cup, u"Small"_s, QString());
    addVariant(*cup, u"Large"_s, u"30"_s);
    struct State
    {
        bool forSale;
        const char* button;
        const char* discount;
        int choices;
        const char* large;
    };
    const State states[] = {
        {true, "Yes", "", 1, "Large 30 EUR"},
        {true, "No", "", 0, "Large 30 EUR"},
        {false, "Yes", "", 0, "Large 30 EUR"},
        {true, "Yes", "10", 1, "Large Before: 30 EUR Now: 27 EUR"},
        {false, "Yes", "10", 0, "Large Before: 30 EUR Now: 27 EUR"},
    };
    for (const State& state : states) {
        cup->ForSale = state.forSale;
        for (const DesignOption option :
             {Category_AddToCart, ProductPage_IncludeAddToCart, SearchPage_IncludeAddToCart}) {
            design().setOption(option, QString::fromLatin1(state.button));
        }
        setDiscount(*cup, QString::fromLatin1(state.discount));
        for (const QString& page : {pageOf(u"category"_s, cups), pageOf(u"product"_s, cup), searchFor(u"m"_s, {cup})}) {
            const QString words = wordsOf(page);
            EXPECT_TRUE(words.contains(u"Small Price on request "_s + QString::fromLatin1(state.large)))
                << words.toStdString();
            EXPECT_EQ(words.count(u"Price on request"_s), 1);
            EXPECT_EQ(page.count(u"type=\"radio\""_s), state.choices);
            // None is chosen, and a request without a price would ask for nothing.
            EXPECT_EQ(page.count(u"\" required>"_s + u"<span class=\"variant-name\">Large"_s), state.choices);
        }
    }
}

TEST_F(SampleTextsTest, TheFrontPageSaysWhatADiscountIsAndWhenItCounts)
{
    struct State
    {
        int status;
        const char* percent; // for everything, and of the last band
        const char* from;
        const char* to;
        const char* badge;
    };
    const State states[] = {
        {DiscountStatus::ToAll, "20", "", "", "20% off"},
        {DiscountStatus::ToAll, "20", "first", "", "20% off from first"},
        {DiscountStatus::ToAll, "20", "first", "last", "20% off from first until last"},
        {DiscountStatus::ToAll, "20", "", "last", "20% off until last"},
        {DiscountStatus::ToAll, "", "first", "last", ""},
        {DiscountStatus::Depend, "5", "", "", "Up to 5% off"},
        {DiscountStatus::Depend, "5", "first", "last", "Up to 5% off from first until last"},
        {DiscountStatus::Depend, "", "", "", ""},
        {DiscountStatus::No, "20", "first", "last", ""},
    };
    static const QRegularExpression badge(u"<p class=\"badge\">.*?</p>"_s);
    clsDiscount& discount = *cups->Discount();
    for (const State& state : states) {
        discount.Status = state.status;
        discount.setApplyToWhole(QString::fromLatin1(state.percent));
        discount.DependedDiscounts()->Clear();
        discount.DependedDiscounts()->Add(u"0"_s, u"10"_s, QString::fromLatin1(state.percent));
        discount.DateFrom = QString::fromLatin1(state.from);
        discount.DateTo = QString::fromLatin1(state.to);
        const QString page = pageOf(u"main"_s, session.shop);
        EXPECT_EQ(wordsOf(badge.match(page).captured()), QString::fromLatin1(state.badge));
        EXPECT_FALSE(wordsOf(page).contains(u" % off"_s));
    }
}

TEST_F(SampleTextsTest, OnlyADescriptionThatIsThereCanBeReadOn)
{
    for (const DesignOption limit : {Category_Limit_Desc, SearchPage_Limit_Desc, CartPage_Limit_Desc}) {
        design().setOption(limit, u"2"_s);
    }
    addToCart(cup, u"20"_s, u"1"_s);
    for (const QString& description : {u"Grey and round"_s, QString()}) {
        cup->Description = description;
        for (const QString& page : {pageOf(u"category"_s, cups), searchFor(u"m"_s, {cup}), pageOf(u"cart"_s, {})}) {
            EXPECT_EQ(page.contains(u"Read more"_s), !description.isEmpty()) << page.toStdString();
        }
    }
}

TEST_F(SampleTextsTest, EveryPageHasAHeadingWithWordsInIt)
{
    const DesignOption included[] = {Main_IncludePageHeader, CartPage_IncludePageHeader, SearchPage_IncludePageHeader,
                                     BuyingForm_IncludePageHeader, ProductPage_IncludeName};
    const DesignOption texts[] = {Main_PageHeader, CartPage_PageHeader, SearchPage_PageHeader,
                                  BuyingForm_PageHeaderText};
    struct State
    {
        const char* included;
        const char* text;
        QStringList headings;
    };
    const QStringList own = {u"Corner Shop"_s, u"Shopping cart"_s, u"Search"_s, u"Checkout"_s, u"Moor"_s};
    const State states[] = {
        {"Yes", "Hello", {u"Hello"_s, u"Hello"_s, u"Hello"_s, u"Hello"_s, u"Moor"_s}},
        {"Yes", "", own},
        {"No", "Hello", own},
    };
    for (const State& state : states) {
        for (const DesignOption option : included) {
            design().setOption(option, QString::fromLatin1(state.included));
        }
        for (const DesignOption option : texts) {
            design().setOption(option, QString::fromLatin1(state.text));
        }
        EXPECT_EQ((QStringList{headingOf(pageOf(u"main"_s, session.shop)), headingOf(pageOf(u"cart"_s, {})),
                               headingOf(searchFor(u"m"_s, {})), headingOf(pageOf(u"checkout"_s, {})),
                               headingOf(pageOf(u"product"_s, cup))}),
                  state.headings);
    }
}

TEST_F(SampleTextsTest, ALineWithoutItsTextLeavesNoEmptyParagraph)
{
    static const QRegularExpression paragraph(u"<p\\b[^>]*>([^<]*)</p>"_s);
    for (const QString& text : {u"Fine things"_s, QString()}) {
        for (const DesignOption option : {Category_PageHeader, ProductPage_PageHeader, Footer_CopyrightText}) {
            design().setOption(option, text);
        }
        for (const QString& page : {pageOf(u"category"_s, cups), pageOf(u"product"_s, cup), pageOf(u"footer"_s, {})}) {
            QStringList texts;
            for (const QRegularExpressionMatch& match : paragraph.globalMatch(page)) {
                texts << match.captured(1);
            }
            EXPECT_EQ(texts.contains(u"Fine things"_s), !text.isEmpty()) << page.toStdString();
            EXPECT_FALSE(texts.contains(QString())) << page.toStdString();
        }
    }
}

TEST_F(SampleTextsTest, AnEmptySearchInAnEmptyShopNamesNoWord)
{
    EXPECT_TRUE(searchFor(u"jug"_s, {}).contains(u"Nothing found for &ldquo;jug&rdquo;"_s));
    EXPECT_FALSE(searchFor(QString(), {}).contains(u"&ldquo;"_s));
    EXPECT_TRUE(searchFor(QString(), {}).contains(u"Nothing in the shop yet"_s));
}

} // namespace
