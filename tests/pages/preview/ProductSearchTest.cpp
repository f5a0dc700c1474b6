#include "pages/preview/ProductSearch.h"

#include "support/TestSupport.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

bool isFound(const QString& what, const QString& text)
{
    return ProductSearch(what).isIn(text);
}

TEST(ProductSearch, AWordIsFoundInUpperCase)
{
    const struct
    {
        QString what;
        QString text;
        bool found;
    } rows[] = {
        {u"tea"_s, u"Green Tea"_s, true},
        {u"TEA"_s, u"steam"_s, true},
        {u"tea"_s, u"coffee"_s, false},
        {u"green tea"_s, u"Green Tea"_s, true},
        {u"strasse"_s, u"Straße 5"_s, true},
        {u"STRAẞE"_s, u"Straße 5"_s, false},
        {u"ß"_s, u"Strasse"_s, true},
        {u"größe"_s, u"GRÖSSE"_s, true},
        {u"ﬁn"_s, u"FINE"_s, true},
        {u"ΣΟΦΟΣ"_s, u"σοφος"_s, true},
        {u"𐐨"_s, u"x𐐀y"_s, true}, // a letter outside the first plane
        {u"ı"_s, u"I"_s, true},
        {u"tea"_s, u""_s, false},
        {u""_s, u"x"_s, true},
        {u""_s, u""_s, false},
        {u"longer than the text"_s, u"text"_s, false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(isFound(row.what, row.text), row.found) << row.what.toStdString() << " in " << row.text.toStdString();
    }
}

TEST(ProductSearch, EveryLetterIsComparedAsItsUpperCase)
{
    constexpr char32_t blockSize = 0x100;
    for (char32_t block = 0; block < 0x110000; block += blockSize) {
        QString text;
        for (char32_t letter = block; letter < block + blockSize; ++letter) {
            text += QString::fromUcs4(&letter, 1);
        }
        ASSERT_TRUE(isFound(text.toUpper(), text)) << std::hex << static_cast<unsigned>(block);
    }
}

TEST(ProductSearch, TheAnswersAreThoseOfThePlainWay)
{
    std::mt19937 random(7);
    const QStringList letters = {u"a"_s, u"A"_s, u"b"_s, u"Z"_s, u"{"_s, u"@"_s, u" "_s, u"ß"_s,     u"ä"_s,
                                 u"ı"_s, u"İ"_s, u"ŉ"_s, u"ﬁ"_s, u"ΐ"_s, u"𐐨"_s, u"😀"_s, u"\uFFFF"_s};
    std::uniform_int_distribution<qsizetype> anyLetter(0, letters.size() - 1);
    std::uniform_int_distribution<int> anyLength(0, 6);
    const auto anyText = [&](int length) {
        QString text;
        for (int i = 0; i < length; ++i) {
            text += letters[anyLetter(random)];
        }
        return text;
    };
    int found = 0;
    for (int i = 0; i < 20000; ++i) {
        const QString what = anyText(anyLength(random) / 2);
        ProductSearch search(what);
        for (int j = 0; j < 3; ++j) {
            const QString text = anyText(anyLength(random) * 3);
            const bool expected = !text.isEmpty() && text.toUpper().contains(what.toUpper());
            ASSERT_EQ(search.isIn(text), expected) << what.toStdString() << " in " << text.toStdString();
            found += expected ? 1 : 0;
        }
    }
    EXPECT_GT(found, 1000);
}

TEST(ProductSearch, HalfOfASurrogatePairDoesNoHarm)
{
    for (const QString& half : {QString(QChar(0xD801)), QString(QChar(0xDC28))}) {
        EXPECT_TRUE(isFound(half, half));
        EXPECT_TRUE(isFound(u"tea"_s, half + u"Tea"_s + half));
        EXPECT_FALSE(isFound(u"tea"_s, u"Te"_s + half + u"a"_s));
    }
}

} // namespace
