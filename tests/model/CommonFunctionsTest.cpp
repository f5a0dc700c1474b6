#include "model/CommonFunctions.h"

#include "base/Dates.h"
#include "base/Numbers.h"
#include "support/TestSupport.h"

#include <QLocale>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Sets another locale for the length of a test.
class OtherLocale
{
public:
    explicit OtherLocale(const QString& name) { QLocale::setDefault(QLocale(name)); }
    ~OtherLocale() { QLocale::setDefault(m_before); }
    OtherLocale(const OtherLocale&) = delete;
    OtherLocale& operator=(const OtherLocale&) = delete;

private:
    QLocale m_before;
};

TEST(NormalizeDecimals, EverySeparatorBecomesTheUsers)
{
    EXPECT_EQ(NormalizeDecimal(u"12,50"_s), localised(u"12.50"_s));
    EXPECT_EQ(NormalizeDecimal(u"12.50"_s), localised(u"12.50"_s));
    EXPECT_EQ(NormalizeDecimal(u"1,2.3"_s), localised(u"1.2.3"_s));
    EXPECT_EQ(NormalizeDecimal(u"abc"_s), u"abc"_s);
    EXPECT_EQ(NormalizeDecimal(QString()), QString());
}

TEST(NormalizeDecimals, BothDirections)
{
    {
        const OtherLocale english(u"en_US"_s);
        EXPECT_EQ(NormalizeDecimal(u"12,50"_s), u"12.50"_s);
    }
    const OtherLocale german(u"de_DE"_s);
    EXPECT_EQ(NormalizeDecimal(u"12.50"_s), u"12,50"_s);
}

TEST(NormalizeDecimals, WithAnotherSeparatorTheTextStays)
{
    const OtherLocale arabic(u"ar_EG"_s);
    ASSERT_NE(decimalSeparator(), u"."_s);
    ASSERT_NE(decimalSeparator(), u","_s);
    EXPECT_EQ(NormalizeDecimal(u"12,50"_s), u"12,50"_s);
    EXPECT_EQ(NormalizeDecimal(u"12.50"_s), u"12.50"_s);
}

TEST(DateTexts, AFileDateBecomesLocalTextByThreeStepsThatClip)
{
    struct Row
    {
        QString text;
        QDate date; // an invalid one: the empty text
    };
    const QList<Row> rows = {
        {u"15.05.2024"_s, {2024, 5, 15}},
        {u"01.01.1900"_s, {1900, 1, 1}},
        {u"01.01.5100"_s, {5100, 1, 1}},
        {u"31.12.1999"_s, {1999, 12, 31}},
        {u"29.02.2004"_s, {2004, 2, 28}},
        {u"31.04.2000"_s, {2000, 4, 30}},
        {u"28.02.2004"_s, {2004, 2, 28}},
        {u"32.01.2000"_s, {2000, 2, 1}},
        {u"00.01.2000"_s, {1999, 12, 31}},
        {u"01.13.2000"_s, {2001, 1, 1}},
        {u"01/02/2003"_s, {2003, 2, 1}},
        {u"01.02.12003"_s, {2003, 2, 1}},
        {u"1.2.2003"_s, {}},
        {u"01.02.03"_s, {}},
        {u"aa.02.2003"_s, {}},
        {u"01.bb.2003"_s, {}},
        {u"01.02.cccc"_s, {}},
        {u" 1.02.2003"_s, {}},
        {u"+1.02.2003"_s, {}},
        {u"01.02.-200"_s, {}},
        {u"01"_s, {}},
        {u"2003-02-01"_s, {}},
        {u"01.01.0001"_s, {}},
        {u"01.99.9999"_s, {}},
        {QString(), {}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(DateTextToLocal(row.text), row.date.isValid() ? localDateText(row.date) : QString())
            << row.text.toStdString();
    }
}

TEST(DateTexts, ALocalDateBecomesAFileDateAndAnEmptyOneStaysEmpty)
{
    EXPECT_EQ(localToDateText(localDateText({2024, 5, 3})), u"03.05.2024"_s);
    EXPECT_EQ(localToDateText(QString()), QString());
    EXPECT_EQ(errorOf([] { localToDateText(u"tomorrow"_s); }), 13);
}

TEST(DateTexts, BothEndsCountAndEmptyOnesAreOpen)
{
    const QDate today(2024, 5, 15);
    const QString before = localDateText(today.addDays(-1));
    const QString same = localDateText(today);
    const QString after = localDateText(today.addDays(1));
    EXPECT_TRUE(dateIsBetween(today, QString(), QString()));
    EXPECT_TRUE(dateIsBetween(today, same, same));
    EXPECT_TRUE(dateIsBetween(today, before, after));
    EXPECT_FALSE(dateIsBetween(today, after, QString()));
    EXPECT_FALSE(dateIsBetween(today, QString(), before));
    EXPECT_FALSE(dateIsBetween(QDate(1899, 12, 31), QString(), QString()));
    EXPECT_TRUE(dateIsBetween(QDate(5100, 1, 1), QString(), QString()));
    EXPECT_FALSE(dateIsBetween(QDate(5100, 1, 2), QString(), QString()));
    EXPECT_EQ(errorOf([&] { dateIsBetween(today, u"x"_s, QString()); }), 13);
    EXPECT_EQ(errorOf([&] { dateIsBetween(today, QString(), u"x"_s); }), 13);
}

TEST(NewPrices, ThePriceIsLoweredAndRoundedToTwoDecimalsInShortestForm)
{
    struct Row
    {
        QString price, percent, result;
    };
    const QList<Row> rows = {
        {u"100"_s, u"10"_s, u"90"_s},    {u"19.99"_s, u"15"_s, u"16.99"_s},  {u"19.99"_s, QString(), u"19.99"_s},
        {QString(), u"10"_s, u"0"_s},    {QString(), QString(), u"0"_s},     {u"100"_s, u"100"_s, u"0"_s},
        {u"100"_s, u"-10"_s, u"110"_s},  {u"9.50"_s, u"0"_s, u"9.5"_s},      {u"10.00"_s, QString(), u"10"_s},
        {u"0.5"_s, QString(), u"0.5"_s}, {u"1.005"_s, QString(), u"1.01"_s}, {u"2.675"_s, u"0"_s, u"2.68"_s},
        {u"0.004"_s, QString(), u"0"_s}, {u"-0.004"_s, QString(), u"0"_s},   {u"33.33"_s, u"12.5"_s, u"29.16"_s},
        {u"0.01"_s, u"50"_s, u"0.01"_s}, {u"-5"_s, u"10"_s, u"-4.5"_s},      {u"1000000"_s, u"1"_s, u"990000"_s},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(CalculateNewPrice(localised(row.price), localised(row.percent)), localised(row.result))
            << row.price.toStdString() << " at " << row.percent.toStdString();
    }
}

TEST(NewPrices, WhatIsNoNumberIsError13AndWhatIsTooLargeError6)
{
    EXPECT_EQ(errorOf([] { CalculateNewPrice(u"x"_s, u"10"_s); }), 13);
    EXPECT_EQ(errorOf([] { CalculateNewPrice(u"10"_s, u"x"_s); }), 13);
    EXPECT_EQ(errorOf([] { CalculateNewPrice(u" "_s, u"10"_s); }), 13);
    EXPECT_EQ(errorOf([] { CalculateNewPrice(u"1e308"_s, u"-900"_s); }), 6);
}

TEST(NewPrices, AForeignSeparatorIsNoNumber)
{
    const QString foreign = decimalSeparator() == u"."_s ? u"12,50"_s : u"12.50"_s;
    EXPECT_EQ(errorOf([&] { CalculateNewPrice(foreign, QString()); }), 13);
}

TEST(StatusWords, EachNumberHasItsWordAndBack)
{
    const QList<std::pair<int, QString>> rows = {
        {1, u"No"_s}, {2, u"ToAll"_s}, {3, u"Depend"_s}, {4, u"Inherit"_s}, {5, u"Specific"_s}};
    for (const auto& [number, word] : rows) {
        EXPECT_EQ(StatusFromWord(word), number);
        EXPECT_EQ(StatusToWord(number), word);
    }
}

TEST(StatusWords, AnythingElseIsError94)
{
    for (const QString& word : {u"1"_s, u"no"_s, u"TOALL"_s, u" No"_s, QString()}) {
        EXPECT_EQ(errorOf([&] { StatusFromWord(word); }), 94) << word.toStdString();
    }
    EXPECT_EQ(errorOf([] { StatusToWord(0); }), 94);
    EXPECT_EQ(errorOf([] { StatusToWord(6); }), 94);
}

} // namespace
