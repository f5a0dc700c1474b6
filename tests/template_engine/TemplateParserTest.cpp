// What the parser makes of a text: its elements, the failures with their places, and the limit of the format.
#include "template_engine/TemplateParser.h"

#include "template_engine/ExpansionHelp.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

// All elements on one line: type, value, default and body.
QString outline(const ElementArray& elements)
{
    QStringList outlines;
    for (int i = 0; i < upperBound(elements); ++i) {
        const Template_Element& element = *elements[static_cast<std::size_t>(i)];
        QString text = u"%1 %2"_s.arg(element.TType).arg(element.Value);
        if (!element.Default.isEmpty()) {
            text += u"="_s + element.Default;
        }
        if (upperBound(element.Template_Parts) >= 0) {
            text += u"{"_s + outline(element.Template_Parts) + u"}"_s;
        }
        outlines += text;
    }
    return outlines.join(u", "_s);
}

struct Failure
{
    int number = 0;
    qsizetype position = -1;
    QString description;
};

Failure failureOf(const QString& text)
{
    try {
        parse_text(text);
    } catch (const TemplateError& error) {
        return {static_cast<int>(error.number()), error.position(), error.description()};
    }
    return {};
}

} // namespace

TEST(TemplateParser, EachKindMakesItsElement)
{
    const struct
    {
        QStringView text;
        QStringView outline;
    } cases[] = {
        {u"a", u"1 a"},
        {u"a<!--:x:-->b", u"1 a, 2 x, 1 b"},
        {u"<!--:x=1:-->", u"2 x=1"},
        {u"<!--:default:x:-->", u"2 x"},
        {u"<!--:static:x=1:-->", u""},
        {u"<!--:text:x=1:-->", u"2 x=1"},
        {u"<!--:html:x=1:-->", u"3 x=1"},
        {u"<!--:js:x=1:-->", u"4 x=1"},
        {u"<!--:dhtml:x=1:-->", u"5 x=1"},
        {u"<!--:if:x=1:-->a<!--:end:x:-->", u"6 x=1{1 a}"},
        {u"<!--:ifnot:x=1:-->a<!--:end:x:-->", u"7 x=1{1 a}"},
        {u"<!--:cycle:x:-->a<!--:end:x:-->", u"8 x{1 a}"},
        {u"<!--:xcycle:x:-->a<!--:end:x:-->", u"9 x{1 a}"},
        {u"<!--:other:x:-->", u"2 x"},
        {u"<!--:Cycle:x:-->", u"2 x"},
        {u"<!--:a=b:c=d:-->", u"2 c=d"},
        {u"<!--:text:a=b:c=d:-->", u"2 a=b:c=d"},
        {u"<!--:if:a:b=1:-->y<!--:end:a:b:-->", u"6 a:b=1{1 y}"},
        {u"<!--:if::-->y<!--:end::-->", u"6 {1 y}"},
        {u"<!--:if:a:-->1<!--:cycle:b:-->2<!--:c:--><!--:end:b:-->3<!--:end:a:-->4",
         u"6 a{1 1, 8 b{1 2, 2 c}, 1 3}, 1 4"},
        {u"<!--:if:x:--><!--:end:x:-->", u"6 x{}"},
        {u"abc<!--::-->", u"1 abc, 1 abc<!--::-->"},
        {u"a<!--::-->b<!--:x:-->", u"1 a, 1 a<!--::-->b, 2 x"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(outline(parse_text(one.text)), one.outline.toString()) << one.text.toString().toStdString();
    }
}

TEST(TemplateParser, ATextWithoutContentHasASingleEmptySlot)
{
    const ElementArray elements = parse_text(u"");
    ASSERT_EQ(elements.size(), 1U);
    EXPECT_EQ(elements[0], nullptr);
    EXPECT_EQ(upperBound(elements), 0);
}

TEST(TemplateParser, ArraysEndInASpareSlot)
{
    const ElementArray elements = parse_text(u"a<!--:if:x:-->b<!--:y:--><!--:end:x:-->");
    ASSERT_EQ(upperBound(elements), 2);
    EXPECT_EQ(elements[2], nullptr);
    const ElementArray& body = elements[1]->Template_Parts;
    ASSERT_EQ(upperBound(body), 2);
    EXPECT_EQ(body[2], nullptr);
    // Leaves have no body, not even an empty one.
    EXPECT_EQ(upperBound(elements[0]->Template_Parts), -1);
    EXPECT_EQ(upperBound(body[1]->Template_Parts), -1);
}

TEST(TemplateParser, WhatIsNotClosedIsAnInvalidArgumentAtTheTagThatOpensIt)
{
    const struct
    {
        QStringView text;
        qsizetype position;
    } cases[] = {
        {u"<!--:", 0},
        {u"abc<!--:x", 3},
        {u"abc<!--:x-->", 3},
        {u"abc<!--:-->", 3},
        {u"<!--:x:--> <!--:y", 11},
        {u"a<!--:if:x:-->b", 1},
        {u"a<!--:if:x:-->b<!--:end:y:-->", 1},
        {u"a<!--:if:x=1:-->b<!--:end:x=1:-->", 1},
        {u"a<!--:cycle:x:-->b<!--:end:cycle:x:-->", 1},
        {u"a<!--:xcycle:x:-->b", 1},
        {u"a<!--:ifnot:x:-->b<!--:end:x-->", 1},
        {u"a<!--:if:x:-->b<!--:end: x:-->", 1},
        // The first closing tag closes the outer block, so the inner block of that name has none.
        {u"a<!--:if:x:-->b<!--:if:x:-->c<!--:end:x:-->d<!--:end:x:-->e", 15},
        // Inside of bodies the place still counts from the start of the template.
        {u"<!--:if:x:-->12<!--:if:y:-->34<!--:z<!--:end:y:--><!--:end:x:-->", 30},
        {u"<!--:if:x:-->12<!--:if:y:-->34<!--:-->5<!--:end:y:--><!--:end:x:-->", 30},
    };
    for (const auto& one : cases) {
        const Failure failure = failureOf(one.text.toString());
        EXPECT_EQ(failure.number, 5) << one.text.toString().toStdString();
        EXPECT_EQ(failure.position, one.position) << one.text.toString().toStdString();
    }
}

TEST(TemplateParser, TheFailureNamesTheBlockThatIsNotClosed)
{
    EXPECT_TRUE(failureOf(u"<!--:cycle:products=1:-->"_s).description.contains(u"\"products\""_s));
    EXPECT_TRUE(failureOf(u"<!--:cycle:%1:-->"_s).description.contains(u"\"%1\""_s));
}

TEST(TemplateParser, ATagMayEndAtTheLastPositionAndNoFurther)
{
    const QString tag = u"<!--:x=1:-->"_s;
    const QString room = repeated(u".", 32767 - tag.size());
    EXPECT_EQ(failureOf(room + tag).number, 0);
    EXPECT_EQ(failureOf(room + tag + u"text behind it"_s).number, 0);
    EXPECT_EQ(failureOf(room + u"."_s + tag).number, 6);
    EXPECT_EQ(failureOf(room + u"."_s + tag).position, 32767 - tag.size() + 1);
    // A tag without an element counts alike.
    EXPECT_EQ(failureOf(repeated(u".", 32767 - 14) + u"<!--:static:-->"_s).number, 6);
    EXPECT_EQ(failureOf(repeated(u".", 32767 - 8) + u"<!--::-->"_s).number, 6);
    EXPECT_EQ(failureOf(repeated(u".", 32767 - 9) + u"<!--::-->"_s).number, 0);
}

TEST(TemplateParser, ABlockMayEndAtTheLastPositionAndNoFurther)
{
    const QString opening = u"<!--:if:x:-->"_s;
    const QString closing = u"<!--:end:x:-->"_s;
    const QString body = repeated(u".", 32767 - opening.size() - closing.size());
    EXPECT_EQ(failureOf(opening + body + closing).number, 0);
    EXPECT_EQ(failureOf(opening + body + closing + u"text behind it"_s).number, 0);
    EXPECT_EQ(failureOf(opening + body + u"."_s + closing).number, 6);
    EXPECT_EQ(failureOf(u"."_s + opening + body + closing).position, 1);
    EXPECT_EQ(failureOf(opening + repeated(u".", 40000) + closing).number, 6);
}

TEST(TemplateParser, AMarkPastTheLastPositionIsAnOverflowEvenWhenNothingClosesIt)
{
    EXPECT_EQ(failureOf(repeated(u".", 32767) + u"<!--:x"_s).number, 6);
    EXPECT_EQ(failureOf(repeated(u".", 32766) + u"<!--:x"_s).number, 5);
}

TEST(TemplateParser, LiteralTextMayBeOfAnyLength)
{
    const QString text = repeated(u"0123456789", 10000);
    EXPECT_EQ(outline(parse_text(text)), u"1 "_s + text);
    EXPECT_EQ(outline(parse_text(u"<!--:x:-->"_s + text)), u"2 x, 1 "_s + text);
}

TEST(TemplateParser, TheLimitCountsSixteenBitUnits)
{
    const QString tag = u"<!--:x:-->"_s;
    // A character past the first plane is two units.
    const QString pairs = repeated(u"\U0001F600", 16378);
    EXPECT_EQ(failureOf(pairs + u"."_s + tag).number, 0);
    EXPECT_EQ(failureOf(pairs + u".."_s + tag).number, 6);
}

TEST(TemplateParser, ABodyCountsFromItsOwnStart)
{
    // The inner tag ends at 32,747 of the template and at 32,734 of the body.
    const QString opening = u"<!--:if:x:-->"_s;
    const QString closing = u"<!--:end:x:-->"_s;
    const QString inner = u"<!--:y=1:-->"_s;
    const QString text =
        opening + repeated(u".", 32767 - opening.size() - inner.size() - closing.size()) + inner + closing;
    ASSERT_EQ(text.size(), 32767);
    EXPECT_EQ(failureOf(text).number, 0);
}

TEST(TemplateParser, ATextFullOfOpeningMarksEndsSoon)
{
    EXPECT_EQ(failureOf(repeated(u"<!--:", 200000)).number, 5);
    EXPECT_EQ(failureOf(u"<!--:if:x:-->"_s + repeated(u"<!--:end:", 200000)).number, 5);
}
