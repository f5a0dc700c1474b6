#include "base/WholeNumbers.h"

#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

TEST(WholeNumbers, TextsBecomeWholeNumbersRoundedHalfToEven)
{
    const QList<std::pair<QString, int>> rows = {
        {u"0"_s, 0},
        {u"12"_s, 12},
        {u"007"_s, 7},
        {u" 12 "_s, 12},
        {u"-12"_s, -12},
        {u"9999"_s, 9999},
        {u"32767"_s, 32767},
        {u"-32768"_s, -32768},
        {u"1e2"_s, 100},
        {localised(u"2.5"_s), 2},
        {localised(u"3.5"_s), 4},
        {localised(u"2.51"_s), 3},
    };
    for (const auto& [text, number] : rows) {
        EXPECT_EQ(int16FromText(text), number) << text.toStdString();
        EXPECT_EQ(int32FromText(text), number) << text.toStdString();
    }
}

TEST(WholeNumbers, WhatIsNoNumberIsError13)
{
    for (const QString& text : {QString(), u" "_s, u"x"_s, u"12x"_s, u"\u0661"_s}) {
        EXPECT_EQ(errorOf([&] { int16FromText(text); }), 13) << text.toStdString();
        EXPECT_EQ(errorOf([&] { int32FromText(text); }), 13) << text.toStdString();
    }
}

TEST(WholeNumbers, WhatIsOutOfRangeIsError6)
{
    EXPECT_EQ(errorOf([] { int16FromText(u"32768"_s); }), 6);
    EXPECT_EQ(errorOf([] { int16FromText(u"-32769"_s); }), 6);
    EXPECT_EQ(int32FromText(u"2147483647"_s), 2147483647);
    EXPECT_EQ(errorOf([] { int32FromText(u"2147483648"_s); }), 6);
    EXPECT_EQ(errorOf([] { int32FromText(u"-2147483649"_s); }), 6);
}

} // namespace
