// Names of custom pages, and which of them a link can carry: the table of the rule, which one test holds against the
// code and another against the browser.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

struct PageNameCase
{
    QString name;
    bool carried;
};

inline std::vector<PageNameCase> pageNameCases()
{
    using namespace Qt::StringLiterals;
    return {
        {QString(), false},
        {u"About us"_s, true},
        {u" About"_s, true},
        {u"About  us"_s, true},
        {u"About "_s, false},
        {u"About\u00a0"_s, true},
        {u"Tea & cups"_s, false},
        {u"No. 1: \u201cTea\u201d"_s, true},
        {u"12\" plates"_s, false},
        {u"Baker's tea"_s, true},
        {u"#1"_s, false},
        {u"100% linen"_s, false},
        {u"About%20us"_s, false},
        {u"Tea\\Cups"_s, false},
        {u"Tea/Cups"_s, true},
        {u"Tea/../Cups"_s, false},
        {u"Tea/./Cups"_s, false},
        {u"Tea/.."_s, false},
        {u"/."_s, false},
        {u".."_s, true},
        {u"../Tea"_s, true},
        {u"Tea/..."_s, true},
        {u"a < b"_s, false},
        {u"<b>Tea</b>"_s, false},
        {u"a > b"_s, false},
        {u"What? Why?"_s, true},
        {u"Who's here?"_s, true},
        {u"Who? 'Me'"_s, false},
        {u"a?b/../c"_s, true},
        {u"name=Care"_s, true},
        {u"ACTION=shopcart.php"_s, true},
        {u"?ACTION=checkout.php"_s, true},
        {u"addtoshopcart"_s, false},
        {u"addtoshopcart="_s, false},
        {u"http://previewmode/MAINPAGE"_s, true},
        {u"https://example.org/"_s, true},
        {u"a\tb"_s, false},
        {u"a+b, c; d"_s, true},
        {u"Prices from 3,50"_s, true},
        {u"\u00dcber uns"_s, true},
        {u"U\u0308ber uns"_s, true},
        {u"\u041e \u043d\u0430\u0441"_s, true},
        {u"\u914d\u9001"_s, true},
        {u"\U0001f375 Tea"_s, true},
    };
}

// All of ASCII and Latin-1 that can be printed, and samples of what people write with beyond that; a few that cannot be
// printed come along.
inline QStringList printableCharacters()
{
    QStringList characters;
    for (char16_t code = 0x20; code < 0x100; ++code) {
        if (QChar(code).isPrint()) {
            characters << QChar(code);
        }
    }
    const std::u32string beyond =
        U"\u0141\u0159\u01f5\u1e9e\u03a9\u03cd\u0416\u044f\u0491\u05d0\u0623\u0e01\u0905\u3042\u30ab\uac00"
        U"\u8336\u4f60\uff06\uff03\u2013\u2026\u201c\u2019\u20ac\u2122\u2192\u2265\u0301\u200d\u2028\u3000"
        U"\u0001\u007f\u0085\u00ad\u200b\u202e\ufb01\ufffd\U0001f600\U0001f375\U00020bb7";
    for (const char32_t code : beyond) {
        characters << QString::fromUcs4(&code, 1);
    }
    return characters;
}
