#include "template_engine/clsRegExp.h"

#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView Tags = u"<[^>]*>";

QString cut(const QString& text, int count)
{
    clsRegExp expression;
    expression.setPattern(Tags.toString());
    return expression.Replace(text, u" "_s, count);
}

} // namespace

TEST(clsRegExp, ThePatternIsReadAsItWasWritten)
{
    clsRegExp expression;
    EXPECT_EQ(expression.Pattern(), u""_s);
    expression.setPattern(u"a+"_s);
    EXPECT_EQ(expression.Pattern(), u"a+"_s);
}

// Both ways of working the tags' pattern: by hand, and (by a pattern that means the same) by the engine.
TEST(clsRegExp, EveryTagIsReplaced)
{
    const struct
    {
        QStringView text;
        QStringView result;
    } cases[] = {
        {u"", u""},
        {u"plain", u"plain"},
        {u"<b>one</b> two", u" one  two"},
        {u"<p\r\nclass=\"x\">y</p>", u" y "},
        {u"<>", u" "},
        {u"a<b", u"a<b"},
        {u"a>b", u"a>b"},
        {u"a>b<c>d", u"a>b d"},
        {u"1 < 2 <b>three</b>", u"1  three "},
        {u"<<b>>", u" >"},
        {u"<a><b><c>", u"   "},
        {u"x<a>y<", u"x y<"},
    };
    for (const QStringView pattern : {Tags, QStringView(u"(?:<[^>]*>)")}) {
        clsRegExp expression;
        expression.setPattern(pattern.toString());
        for (const auto& one : cases) {
            EXPECT_EQ(expression.Replace(one.text.toString(), u" "_s, 0), one.result.toString())
                << one.text.toString().toStdString();
        }
    }
}

TEST(clsRegExp, OtherPatternsWorkTooAndCanBeChanged)
{
    clsRegExp expression;
    expression.setPattern(u"[0-9]+"_s);
    EXPECT_EQ(expression.Replace(u"a1b22c"_s, u"#"_s, 0), u"a#b#c"_s);
    expression.setPattern(Tags.toString());
    EXPECT_EQ(expression.Replace(u"1<b>2"_s, u"#"_s, 0), u"1#2"_s);
    expression.setPattern(u"b"_s);
    EXPECT_EQ(expression.Replace(u"1<b>2"_s, u"#"_s, 0), u"1<#>2"_s);
}

TEST(clsRegExp, TheReplacementIsTakenLetterForLetter)
{
    clsRegExp expression;
    expression.setPattern(u"(a)"_s);
    EXPECT_EQ(expression.Replace(u"bab"_s, u"\\1$1\\0"_s, 0), u"b\\1$1\\0b"_s);
}

TEST(clsRegExp, AReplacementIsNotSearchedAgain)
{
    clsRegExp expression;
    expression.setPattern(Tags.toString());
    EXPECT_EQ(expression.Replace(u"a<b>c"_s, u"<x>"_s, 0), u"a<x>c"_s);
}

TEST(clsRegExp, WordsAreCountedByTheBlanksBehindThem)
{
    const struct
    {
        QStringView text;
        int count;
        QStringView result;
    } cases[] = {
        {u"a b c", 2, u"a b"},
        {u"a b", 2, u"a b"},
        {u"a  b c", 2, u"a  b"},
        {u"a b c", 0, u"a b c"},
        {u"a b c", -1, u"a b c"},
        {u"a b c", 1, u"a"},
        {u"a b c", 3, u"a b c"},
        {u"a b c ", 3, u"a b c"},
        {u"a b ", 2, u"a b"},
        {u"  a b", 1, u"  a"},
        {u"   ", 1, u"   "},
        {u"", 1, u""},
        {u" ", 1, u" "},
        {u"a\tb\rc d", 1, u"a\tb\rc"},
        {u"a\u00A0b c", 1, u"a\u00A0b"},
        // Tags have become blanks before words are counted.
        {u"<b>one</b> two", 1, u" one"},
        {u"one<br>two<br>three", 2, u"one two"},
        {u"<b>one</b> two", 0, u" one  two"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(cut(one.text.toString(), one.count), one.result.toString()) << one.text.toString().toStdString();
    }
}

TEST(clsRegExp, ABlankThatIsLookedAtPastTheLastPositionIsAnOverflow)
{
    const QString word(32766, u'x');
    EXPECT_EQ(errorOf([&] { EXPECT_EQ(cut(word + u" y"_s, 1), word); }), 0);
    EXPECT_EQ(errorOf([&] { cut(word + u"x y"_s, 1); }), 6);
    // Blanks behind the cut, or none at all, do no harm; and without a count nothing is walked.
    EXPECT_EQ(cut(u"a "_s + word + u"x y"_s, 1), u"a"_s);
    EXPECT_EQ(errorOf([&] { cut(u"a "_s + word + u"x y"_s, 2); }), 6);
    EXPECT_EQ(cut(word + word, 1), word + word);
    EXPECT_EQ(cut(word + word + u" y"_s, 0), word + word + u" y"_s);
    EXPECT_EQ(cut(word + word + u" y"_s, -1), word + word + u" y"_s);
}

TEST(clsRegExp, BrokenSurrogatePairsDoNotKeepTagsFromBeingReplaced)
{
    EXPECT_EQ(cut(QString(QChar(0xD800)) + u"<b>x"_s, 0), QString(QChar(0xD800)) + u" x"_s);
}

TEST(clsRegExp, ATextFullOfTagStartsEndsSoon)
{
    const QString text(2'000'000, u'<');
    EXPECT_EQ(cut(text, 0), text);
}

TEST(clsRegExp, ExecuteGivesNothingAndFailsOnlyForAPatternThatIsNone)
{
    clsRegExp expression;
    expression.setPattern(u"a(b)"_s);
    EXPECT_EQ(errorOf([&] { expression.Execute(u"xabx"_s); }), 0);
    EXPECT_EQ(errorOf([&] { expression.Execute(u"none"_s); }), 0);
    expression.setPattern(u"a(b"_s);
    EXPECT_EQ(errorOf([&] { expression.Execute(u"xabx"_s); }), 5);
    EXPECT_EQ(errorOf([&] { expression.Replace(u"xabx"_s, u""_s, 0); }), 5);
    expression.setPattern(u"b"_s);
    EXPECT_EQ(expression.Replace(u"xabx"_s, u""_s, 0), u"xax"_s);
}
