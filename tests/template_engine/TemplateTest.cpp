// What a template gives with a page's variables.
#include "template_engine/Template.h"

#include "template_engine/ExpansionHelp.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

// The variables of all golden cases: shop_name "Cups", empty "", ForSale true, Hidden false, count 12, price 12.5, row
// lists products (id 1 and 2, name one and two), none (no rows) and nested (id 1 with tags a, b; id 2 without).
struct GoldenPage : TryOut
{
    GoldenPage()
    {
        page.Add(u"shop_name", u"Cups"_s);
        page.Add(u"empty", u""_s);
        page.Add(u"ForSale", true);
        page.Add(u"Hidden", false);
        page.Add(u"count", qint16{12});
        page.Add(u"price", 12.5F);
        page.Add(u"tagged", u"<!--:shop_name:-->"_s);
        page.Add(u"products", VariableRows{row({{u"id", u"1"}, {u"name", u"one"}}),
                                           row({{u"id", u"2"}, {u"name", u"two"}, {u"first", u"no"}})});
        page.Add(u"none", VariableRows());
        Variables first = row({{u"id", u"1"}});
        first.Add(u"tags", VariableRows{row({{u"tag", u"a"}}), row({{u"tag", u"b"}})});
        VariableRows nested;
        nested.push_back(std::move(first));
        nested.push_back(row({{u"id", u"2"}}));
        page.Add(u"nested", std::move(nested));
    }
};

struct Golden
{
    const char* what;
    QStringView text;
    QStringView expected;
};

const Golden Goldens[] = {
    // Texts without tags.
    {"an empty template", u"", u""},
    {"a template without tags", u"<p>Hello</p>\r", u"<p>Hello</p>\r"},
    {"an ordinary comment is no tag", u"<!--1.2.0-->\r<!-- note -->", u"<!--1.2.0-->\r<!-- note -->"},
    {"a closing mark alone is text", u"a :--> b", u"a :--> b"},

    // Value tags.
    {"a variable", u"a<!--:shop_name:-->b", u"aCupsb"},
    {"text ends in a tag", u"a<!--:shop_name:-->", u"aCups"},
    {"two tags side by side", u"<!--:shop_name:--><!--:count:-->", u"Cups12"},
    {"a missing variable", u"a<!--:nothing:-->b", u"ab"},
    {"a fallback for a missing variable", u"<!--:text:nothing=My shop:-->", u"My shop"},
    {"a fallback without a kind word", u"<!--:nothing=My shop:-->", u"My shop"},
    {"no fallback for a variable that is there", u"<!--:shop_name=My shop:-->", u"Cups"},
    {"no fallback for a variable that is empty", u"<!--:empty=My shop:-->", u""},
    {"a fallback is not looked through for tags", u"<!--:text:nothing=<!--:shop_name:-->", u"<!--:shop_name"},
    {"an opening mark in a fallback has a colon too", u"<!--:nothing=<!--:shop_name:-->", u"Cups"},
    {"a fallback keeps later equals signs", u"<!--:nothing=a=b:-->", u"a=b"},
    {"a fallback with a colon is split at the colon", u"<!--:nothing=see: shop_name:-->", u""},
    {"what stands behind such a colon is the name", u"<!--:nothing=http:shop_name:-->", u"Cups"},
    {"a fallback with a colon behind a kind word", u"<!--:text:nothing=http://x:-->", u"http://x"},
    {"kind html escapes nothing", u"<!--:html:nothing=<b>&:-->", u"<b>&"},
    {"kind js escapes nothing", u"<!--:js:nothing='\"</script>:-->", u"'\"</script>"},
    {"kind dhtml escapes nothing", u"<!--:dhtml:nothing=<i>:-->", u"<i>"},
    {"kind html of a variable", u"<!--:html:shop_name:-->", u"Cups"},
    {"kind js of a variable", u"<!--:js:shop_name:-->", u"Cups"},
    {"kind dhtml of a variable", u"<!--:dhtml:shop_name:-->", u"Cups"},
    {"kind default is a value", u"<!--:default:shop_name:-->", u"Cups"},
    {"kind default with a fallback", u"<!--:default:nothing=x:-->", u"x"},
    {"an unknown kind word is a value", u"<!--:bold:shop_name:-->", u"Cups"},
    {"an empty kind word is a value", u"<!--::shop_name:-->", u"Cups"},
    {"only the first colon parts the kind", u"<!--:text:a:nothing=1:-->", u"1"},
    {"a name is not trimmed", u"<!--: shop_name:-->", u""},
    {"a blank makes another kind word", u"<!--:if :nothing=1:-->", u"1"},
    {"the name may be empty", u"<!--:text:=x:-->", u"x"},
    {"a value is not looked through for tags", u"<!--:tagged:-->", u"<!--:shop_name:-->"},

    // Case.
    {"names without regard to case", u"<!--:SHOP_NAME:-->", u"Cups"},
    {"kind words with regard to case", u"<!--:IF:x=1:-->", u"1"},
    {"such a tag needs no closing tag", u"<!--:IF:x=1:-->|<!--:end:x:-->", u"1|"},
    {"STATIC in another case is a value", u"<!--:Static:shop_name:-->", u"Cups"},
    {"a closing tag that closes nothing is a value", u"<!--:end:shop_name:-->", u"Cups"},
    {"a closing tag in another case", u"<!--:cycle:products:--><!--:id:--><!--:END:Products:-->|", u"12|"},
    {"a closing tag in another case outside of ASCII", u"<!--:ifnot:Größe:-->x<!--:END:GRÖßE:-->|", u"x|"},

    // Static.
    {"static makes nothing of a variable", u"a<!--:static:shop_name:-->b", u"ab"},
    {"static makes nothing of a fallback", u"a<!--:static:nothing=x:-->b", u"ab"},

    // Text forms.
    {"a boolean is a word", u"<!--:ForSale:--> <!--:Hidden:-->", u"True False"},
    {"an integer is plain", u"<!--:count:-->", u"12"},

    // If and ifnot.
    {"if equal", u"<!--:if:shop_name=Cups:-->yes<!--:end:shop_name:-->.", u"yes."},
    {"if not equal", u"<!--:if:shop_name=Pots:-->yes<!--:end:shop_name:-->.", u"."},
    {"if compares with regard to case", u"<!--:if:shop_name=cups:-->yes<!--:end:shop_name:-->.", u"."},
    {"if trims nothing", u"<!--:if:shop_name=Cups :-->yes<!--:end:shop_name:-->.", u"."},
    {"if on a missing variable", u"<!--:if:nothing=Yes:-->yes<!--:end:nothing:-->.", u"."},
    {"if without a value on a missing variable", u"<!--:if:nothing:-->yes<!--:end:nothing:-->.", u"."},
    {"if without a value on an empty one", u"<!--:if:empty:-->yes<!--:end:empty:-->.", u"yes."},
    {"if without a value on a full one", u"<!--:if:shop_name:-->yes<!--:end:shop_name:-->.", u"."},
    {"if on a true boolean", u"<!--:if:ForSale=True:-->yes<!--:end:ForSale:-->.", u"yes."},
    {"if on a true boolean in another case", u"<!--:if:ForSale=true:-->yes<!--:end:ForSale:-->.", u"."},
    {"if on a false boolean", u"<!--:if:Hidden=False:-->yes<!--:end:Hidden:-->.", u"yes."},
    {"if on an integer", u"<!--:if:count=12:-->yes<!--:end:count:-->.", u"yes."},
    {"ifnot equal", u"<!--:ifnot:shop_name=Cups:-->no<!--:end:shop_name:-->.", u"."},
    {"ifnot not equal", u"<!--:ifnot:shop_name=Pots:-->no<!--:end:shop_name:-->.", u"no."},
    {"ifnot in another case", u"<!--:ifnot:shop_name=cups:-->no<!--:end:shop_name:-->.", u"no."},
    {"ifnot on a missing variable", u"<!--:ifnot:HAS_ITEMS=Yes:-->no<!--:end:HAS_ITEMS:-->.", u"no."},
    {"ifnot without a value on a missing one", u"<!--:ifnot:nothing:-->no<!--:end:nothing:-->.", u"no."},
    {"ifnot without a value on an empty one", u"<!--:ifnot:empty:-->no<!--:end:empty:-->.", u"."},
    {"ifnot without a value on a full one", u"<!--:ifnot:shop_name:-->no<!--:end:shop_name:-->.", u"no."},
    {"the closing tag bears the bare name",
     u"<!--:if:shop_name=Cups:-->a<!--:end:shop_name=Cups:-->b<!--:end:shop_name:-->.", u"aCupsb."},
    {"an empty body", u"a<!--:if:shop_name=Cups:--><!--:end:shop_name:-->b", u"ab"},
    {"a block of a block's name behind it", u"<!--:if:empty:-->1<!--:end:empty:--><!--:if:empty:-->2<!--:end:empty:-->",
     u"12"},
    {"blocks of different names nest",
     u"<!--:if:shop_name=Cups:-->a<!--:if:count=12:-->b<!--:ifnot:nothing:-->c<!--:end:nothing:-->d<!--:end:count:-->e"
     u"<!--:end:shop_name:-->f",
     u"abcdef"},
    {"a hidden block hides what stands in it",
     u"<!--:if:shop_name=x:-->a<!--:if:count=12:-->b<!--:end:count:-->c<!--:end:shop_name:-->d", u"d"},
    {"text goes on behind a hidden block", u"<!--:ifnot:empty:-->a<!--:end:empty:-->b<!--:count:-->c", u"b12c"},

    // Cycle.
    {"a body for each row in order", u"<!--:cycle:products:--><!--:id:-->=<!--:name:-->;<!--:end:products:-->",
     u"1=one;2=two;"},
    {"a row hides the page", u"<!--:cycle:products:-->[<!--:shop_name:-->]<!--:end:products:-->", u"[][]"},
    {"the page is seen again behind a cycle", u"<!--:cycle:products:--><!--:end:products:--><!--:shop_name:-->",
     u"Cups"},
    {"rows with different keys", u"<!--:cycle:products:--><!--:first=?:--><!--:end:products:-->", u"?no"},
    {"no rows", u"a<!--:cycle:none:-->x<!--:end:none:-->b", u"ab"},
    {"no list", u"a<!--:cycle:nothing:-->x<!--:end:nothing:-->b", u"ab"},
    {"the value of a cycle means nothing", u"<!--:cycle:products=9:-->x<!--:end:products:-->", u"xx"},
    {"a list in a list",
     u"<!--:cycle:nested:--><!--:id:-->(<!--:cycle:tags:--><!--:tag:--><!--:id=-:--><!--:end:tags:-->)<!--:end:nested:-"
     u"->",
     u"1(a-b-)2()"},
    {"an if in a row", u"<!--:cycle:products:--><!--:if:id=2:-->two<!--:end:id:-->;<!--:end:products:-->", u";two;"},
    {"a cycle named as a variable in its rows", u"<!--:cycle:products:--><!--:products=-:--><!--:end:products:-->",
     u"--"},

    // Xcycle.
    {"xcycle with rows", u"a<!--:xcycle:products:-->x<!--:end:products:-->b", u"ab"},
    {"xcycle on a text", u"a<!--:xcycle:shop_name=Cups:-->x<!--:end:shop_name:-->b", u"ab"},
    {"xcycle without a list", u"a<!--:xcycle:nothing:-->x<!--:end:nothing:-->b", u"ab"},

    // The first closing tag wins.
    {"a text that looks like a closing tag closes", u"<!--:if:empty:-->a<!--:text:nothing=<!--:end:empty:-->b",
     u"ERROR"},

    // Empty tags, deliberately: the text ahead comes once more, with the empty tag's own characters.
    {"an empty tag behind a text", u"abc<!--::-->", u"abcabc<!--::-->"},
    {"an empty tag alone", u"<!--::-->", u"<!--::-->"},
    {"text on both sides of an empty tag", u"a<!--::-->b", u"aa<!--::-->b"},
    {"an empty tag and a tag", u"a<!--::--><!--:count:-->b", u"aa<!--::-->12b"},
    {"two empty tags", u"a<!--::-->b<!--::-->c", u"aa<!--::-->ba<!--::-->b<!--::-->c"},
    {"an empty tag behind a tag", u"<!--:count:--><!--::-->", u"12<!--::-->"},
    {"an empty tag at the end of a body", u"<!--:if:empty:-->a<!--::--><!--:end:empty:-->b", u"aa<!--::-->b"},
};

class GoldenTemplates : public testing::TestWithParam<Golden>
{
};

void PrintTo(const Golden& golden, std::ostream* out)
{
    *out << golden.what;
}

} // namespace

TEST_P(GoldenTemplates, ExpandAsExpected)
{
    const GoldenPage page;
    if (GetParam().expected == u"ERROR") {
        EXPECT_THROW(page.expand(GetParam().text), TemplateError);
    } else {
        EXPECT_EQ(page.expand(GetParam().text), GetParam().expected.toString());
    }
}

INSTANTIATE_TEST_SUITE_P(Language, GoldenTemplates, testing::ValuesIn(Goldens));

TEST(Template, ASingleHasTheUsersDecimalSeparator)
{
    const GoldenPage page;
    EXPECT_EQ(page.expand(u"<!--:price:-->"), localised(u"12.5"_s));
}

TEST(Template, IntegersOfAllSizesArePlain)
{
    for (const int number : {-32768, -1000, -1, 0, 9, 10, 1000, 32767}) {
        TryOut tryOut;
        tryOut.page.Add(u"n", static_cast<qint16>(number));
        EXPECT_EQ(tryOut.expand(u"[<!--:n:-->]"), u"[%1]"_s.arg(number));
        EXPECT_EQ(tryOut.expand(u"<!--:if:n=%1:-->equal<!--:end:n:-->"_s.arg(number)), u"equal"_s);
    }
}

TEST(Template, AnObjectsTextIsAskedForWhenThePageIsExpanded)
{
    struct Price : TextObject
    {
        QString text() const override { return value; }
        QString value = u"1"_s;
    };
    const auto price = std::make_shared<Price>();
    TryOut tryOut;
    tryOut.page.Add(u"price", price);
    const Template page = tryOut.parsed(u"<!--:price:--><!--:if:price=2:--> two<!--:end:price:-->");
    EXPECT_EQ(page.Get_String(tryOut.page), u"1"_s);
    price->value = u"2"_s;
    EXPECT_EQ(page.Get_String(tryOut.page), u"2 two"_s);
}

TEST(Template, ASingleIsComparedByItsText)
{
    const GoldenPage page;
    const QString text = u"<!--:if:price=%1:-->yes<!--:end:price:-->"_s;
    EXPECT_EQ(page.expand(text.arg(localised(u"12.5"_s))), u"yes"_s);
    EXPECT_EQ(page.expand(text.arg(localised(u"12.50"_s))), u""_s);
}

TEST(Template, OneParsedTemplateServesManyExpansions)
{
    TryOut first;
    first.page.Add(u"name", u"one"_s);
    const Template page = first.parsed(u"<!--:name:-->!");
    Variables second(first.names);
    second.Add(u"other", u"x"_s);
    second.Add(u"NAME", u"two"_s);
    EXPECT_EQ(page.Get_String(first.page), u"one!"_s);
    EXPECT_EQ(page.Get_String(second), u"two!"_s);
    EXPECT_EQ(page.Get_String(first.page), u"one!"_s);
}

TEST(Template, WritingTheTextDoesNotParse)
{
    const TryOut tryOut;
    Template page = tryOut.parsed(u"old");
    page.template_text = u"new"_s;
    EXPECT_EQ(page.Get_String(tryOut.page), u"old"_s);
    page.Parse();
    EXPECT_EQ(page.Get_String(tryOut.page), u"new"_s);
}

TEST(Template, AFailedParseLeavesTheOldPartsInPlace)
{
    const TryOut tryOut;
    Template page = tryOut.parsed(u"old <!--:x=1:-->");
    page.template_text = u"new <!--:x"_s;
    EXPECT_EQ(errorOf([&] { page.Parse(); }), 5);
    EXPECT_EQ(page.template_text, u"new <!--:x"_s);
    EXPECT_EQ(page.Get_String(tryOut.page), u"old 1"_s);
    EXPECT_EQ(upperBound(page.parts()), 2);
}

TEST(Template, ATemplateThatWasNeverParsedGivesNothing)
{
    TryOut tryOut;
    Template page(tryOut.names);
    page.template_text = u"text"_s;
    EXPECT_EQ(page.Get_String(tryOut.page), u""_s);
    EXPECT_EQ(upperBound(page.parts()), -1);
}

TEST(Template, ItemExistsAsksWithoutRegardToCase)
{
    const GoldenPage page;
    EXPECT_TRUE(Template::ItemExists(page.page, u"SHOP_name"));
    EXPECT_TRUE(Template::ItemExists(page.page, u"none"));
    EXPECT_FALSE(Template::ItemExists(page.page, u"shop"));
}

TEST(Template, AWrongKindOfValueIsATypeMismatch)
{
    const GoldenPage page;
    const struct
    {
        QStringView text;
        int error;
    } cases[] = {
        {u"<!--:products:-->", 13},
        {u"<!--:html:products:-->", 13},
        {u"<!--:none:-->", 13},
        {u"<!--:if:products=x:--><!--:end:products:-->", 13},
        {u"<!--:ifnot:products=x:--><!--:end:products:-->", 13},
        {u"<!--:cycle:shop_name:--><!--:end:shop_name:-->", 13},
        {u"<!--:cycle:empty:--><!--:end:empty:-->", 13},
        {u"<!--:cycle:count:--><!--:end:count:-->", 13},
        {u"<!--:cycle:ForSale:--><!--:end:ForSale:-->", 13},
        {u"<!--:xcycle:shop_name:--><!--:end:shop_name:-->", 0},
        {u"<!--:static:products:-->", 0},
        {u"<!--:if:nothing=1:--><!--:products:--><!--:end:nothing:-->", 0},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(errorOf([&] { page.expand(one.text); }), one.error) << one.text.toString().toStdString();
    }
}

TEST(Template, AFailureInALaterRowLeavesTheTemplateUsable)
{
    TryOut tryOut;
    VariableRows rows{tryOut.row({{u"x", u"1"}})};
    rows.emplace_back(tryOut.names).Add(u"x", VariableRows());
    tryOut.page.Add(u"rows", std::move(rows));
    const Template page = tryOut.parsed(u"<!--:cycle:rows:--><!--:x:--><!--:end:rows:-->");
    EXPECT_EQ(errorOf([&] { page.Get_String(tryOut.page); }), 13);
    EXPECT_EQ(page.Get_String(Variables(tryOut.names)), u""_s);
}

TEST(Template, TextsOfAllLengthsComeOutWhole)
{
    QString all;
    for (int length = 0; length < 200; ++length) {
        TryOut tryOut;
        QString value;
        for (int i = 0; i < length; ++i) {
            value += QChar(u'a' + (i * 7 + length) % 26);
        }
        tryOut.page.Add(u"x", value);
        const QString text = value + u"<!--:x:-->"_s + value + u"<!--:x:-->"_s;
        EXPECT_EQ(tryOut.expand(text), value.repeated(4)) << length;
    }
}

TEST(Template, APageGrowsAsLongAsItHasTo)
{
    TryOut tryOut;
    VariableRows rows;
    QString expected;
    for (int i = 0; i < 3000; ++i) {
        const QString number = QString::number(i);
        rows.push_back(tryOut.row({{u"id", number}}));
        expected += u"<li>"_s + number + u"</li>"_s;
    }
    tryOut.page.Add(u"rows", std::move(rows));
    const QString longText = repeated(u"0123456789", 20000);
    tryOut.page.Add(u"long", longText);
    EXPECT_EQ(tryOut.expand(u"<!--:cycle:rows:--><li><!--:id:--></li><!--:end:rows:--><!--:long:-->"),
              expected + longText);
}

TEST(Template, TwelveHundredNestedBlocksExpand)
{
    TryOut tryOut;
    // As many as the limit of the format admits: the shortest kind word, names of one unit.
    QString opening;
    QString closing;
    int depth = 0;
    while (opening.size() + closing.size() + 27 <= 32767) {
        const QString name(QChar(u'\u4E00' + depth));
        opening += u"<!--:if:%1:-->"_s.arg(name);
        closing.prepend(u"<!--:end:%1:-->"_s.arg(name));
        tryOut.page.Add(name, u""_s);
        ++depth;
    }
    EXPECT_GE(depth, 1200);
    EXPECT_EQ(tryOut.expand(opening + u"x"_s + closing), u"x"_s);
}

TEST(Template, NestedCyclesExpandAsDeepAsTheyParse)
{
    TryOut tryOut;
    constexpr int depth = 1000;
    QString opening;
    QString closing;
    Variables row = tryOut.row({{u"x", u"bottom"}});
    for (int i = 0; i < depth; ++i) {
        const QString name(QChar(u'\u4E00' + i));
        opening.prepend(u"<!--:cycle:%1:-->"_s.arg(name));
        closing += u"<!--:end:%1:-->"_s.arg(name);
        Variables outer(tryOut.names);
        VariableRows rows;
        rows.push_back(std::move(row));
        outer.Add(name, std::move(rows));
        row = std::move(outer);
    }
    EXPECT_EQ(tryOut.parsed(opening + u"<!--:x:-->"_s + closing).Get_String(row), u"bottom"_s);
}
