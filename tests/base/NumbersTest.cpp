#include "base/Numbers.h"

#include "support/TestSupport.h"

#include <QLocale>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using namespace Qt::StringLiterals;

namespace {

// A text of en_US with both separators in the user's locale: "1,234.5" is 1.234,5 where the comma separates decimals.
QString withGroups(const QString& text)
{
    QString result;
    for (const QChar letter : text) {
        result += letter == u'.' ? decimalSeparator() : letter == u',' ? QLocale().groupSeparator() : QString(letter);
    }
    return result;
}

// Sets another locale for the length of one test.
class ScopedLocale
{
public:
    explicit ScopedLocale(const QLocale& locale) { QLocale::setDefault(locale); }
    ScopedLocale(const ScopedLocale&) = delete;
    ScopedLocale& operator=(const ScopedLocale&) = delete;
    ~ScopedLocale() { QLocale::setDefault(m_before); }

private:
    QLocale m_before;
};

float singleFromBits(std::uint32_t bits)
{
    float number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

} // namespace

TEST(Numbers, TheDecimalSeparatorIsTheLocalesOwn)
{
    EXPECT_EQ(decimalSeparator(), QLocale().language() == QLocale::German ? u","_s : u"."_s);
}

TEST(Numbers, NumberTextsAreReadByTheLocale)
{
    struct Case
    {
        QString text;
        double number;
    };
    const Case cases[] = {
        {u"0"_s, 0},
        {u"12"_s, 12},
        {u"-12"_s, -12},
        {u"+12"_s, 12},
        {u"12.5"_s, 12.5},
        {u"-0.25"_s, -0.25},
        {u".5"_s, 0.5},
        {u"-.5"_s, -0.5},
        {u"5."_s, 5},
        {u"007"_s, 7},
        {u"1,234"_s, 1234},
        {u"1,234.5"_s, 1234.5},
        {u"-1,234,567.25"_s, -1234567.25},
        {u"1E3"_s, 1000},
        {u"1e3"_s, 1000},
        {u"1.5E+20"_s, 1.5e20},
        {u"1.5E-3"_s, 0.0015},
        {u"0.1"_s, 0.1},
        {u"123456789012345678901234567890"_s, 123456789012345678901234567890.0},
        {u"1.7976931348623157E308"_s, std::numeric_limits<double>::max()},
        {u" 12"_s, 12},
        {u"12 "_s, 12},
        {u"\t 12.5 \r\n"_s, 12.5},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(numberFromText(withGroups(one.text)), one.number) << one.text.toStdString();
    }
}

TEST(Numbers, WhatIsNoNumberIsATypeMismatch)
{
    const QString texts[] = {u""_s,           u" "_s,        u"abc"_s,      u"12a"_s,     u"1 2"_s,       u"- 5"_s,
                             u"--5"_s,        u"1.2.3"_s,    u"12,50"_s,    u"1,2345"_s,  u"1,23"_s,      u",123"_s,
                             u"1,,234"_s,     u"1234,567"_s, u"1,234,56"_s, u"1.234,5"_s, u"1.234,567"_s, u"0x10"_s,
                             u"&H10"_s,       u"1e"_s,       u"e5"_s,       u"inf"_s,     u"-inf"_s,      u"Infinity"_s,
                             u"nan"_s,        u"NaN"_s,      u"."_s,        u"-"_s,       u"1E2.5"_s,     u"12%"_s,
                             u"12\u00A0kg"_s, u"$5"_s,       u"5-"_s,       u"(5)"_s};
    for (const QString& text : texts) {
        EXPECT_EQ(errorOf([&] { numberFromText(withGroups(text)); }), 13) << text.toStdString();
    }
    EXPECT_EQ(errorOf([] { numberFromText(QString(u"1"_s + QChar(0) + u"2"_s)); }), 13);
}

TEST(Numbers, ADecimalNumberOfAnotherLocaleIsNeverAHundredTimesAsLarge)
{
    const QString other = QString(u"12.50"_s).replace(u'.', decimalSeparator() == u"."_s ? u',' : u'.');
    EXPECT_EQ(errorOf([&] { numberFromText(other); }), 13);
}

TEST(Numbers, ANumberTextOutOfRangeIsAnOverflow)
{
    EXPECT_EQ(errorOf([] { numberFromText(u"1E999"_s); }), 6);
    EXPECT_EQ(errorOf([] { numberFromText(u"-1E999"_s); }), 6);
    EXPECT_EQ(errorOf([] { numberFromText(QString(400, u'9')); }), 6);
}

TEST(Numbers, ThePlainScanReadsWhatItCanAndStops)
{
    struct Case
    {
        QString text;
        double number;
    };
    const Case cases[] = {
        {u""_s, 0},        {u"12"_s, 12},          {u"12.50"_s, 12.5},
        {u"12,50"_s, 12},  {u"  7"_s, 7},          {u"\t7"_s, 7},
        {u"-3.5"_s, -3.5}, {u"+3.5"_s, 3.5},       {u"-.5"_s, -0.5},
        {u".5"_s, 0.5},    {u"5."_s, 5},           {u"1.2.3"_s, 1.2},
        {u"1 2"_s, 1},     {u"- 5"_s, 0},          {u"--5"_s, 0},
        {u"+-5"_s, 0},     {u"5-3"_s, 5},          {u"1E3"_s, 1},
        {u"12abc"_s, 12},  {u"abc"_s, 0},          {u"."_s, 0},
        {u"-"_s, 0},       {u"-."_s, 0},           {u"\u0663"_s, 0},
        {u"007"_s, 7},     {u"-007.250"_s, -7.25}, {u"inf"_s, 0},
        {u"nan"_s, 0},     {u"0x10"_s, 0},         {u"..5"_s, 0},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(Val(one.text), one.number) << one.text.toStdString();
    }
    EXPECT_FALSE(std::signbit(Val(u"-"_s)));
    EXPECT_EQ(errorOf([] { Val(QString(400, u'9')); }), 6);
    EXPECT_EQ(Val(u"0."_s + QString(400, u'0') + u"1"_s), 0);
}

TEST(Numbers, NumbersAreWrittenWithAtMostFifteenDigitsInTheShortestForm)
{
    struct Case
    {
        double number;
        QString text;
    };
    const Case cases[] = {
        {0, u"0"_s},
        {-0.0, u"0"_s},
        {1, u"1"_s},
        {-1, u"-1"_s},
        {12.5, u"12.5"_s},
        {-12.50, u"-12.5"_s},
        {0.1 + 0.2, u"0.3"_s},
        {1.0 / 3, u"0.333333333333333"_s},
        {2.0 / 3, u"0.666666666666667"_s},
        {100, u"100"_s},
        {1234567.891, u"1234567.891"_s},
        {123456789012345, u"123456789012345"_s},
        {999999999999999, u"999999999999999"_s},
        {1e15, u"1E+15"_s},
        {1234567890123456, u"1.23456789012346E+15"_s},
        {999999999999999.9, u"1E+15"_s},
        {-1e15, u"-1E+15"_s},
        {1.5e100, u"1.5E+100"_s},
        {std::numeric_limits<double>::max(), u"1.79769313486232E+308"_s},
        {0.5, u"0.5"_s},
        {0.0001, u"0.0001"_s},
        {0.00001, u"0.00001"_s},
        {1e-15, u"0.000000000000001"_s},
        {1e-16, u"1E-16"_s},
        {-1.5e-20, u"-1.5E-20"_s},
        {0.0123456789012345, u"1.23456789012345E-02"_s},
        {0.012345678901234, u"0.012345678901234"_s},
        {5e-324, u"4.94065645841247E-324"_s},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(numberToText(one.number), localised(one.text));
    }
}

TEST(Numbers, SinglesAreWrittenWithAtMostSevenDigitsInTheShortestForm)
{
    struct Case
    {
        float number;
        QString text;
    };
    const Case cases[] = {
        {0, u"0"_s},
        {-0.0F, u"0"_s},
        {0.3F, u"0.3"_s},
        {0.1F + 0.1F + 0.1F, u"0.3"_s},
        {12.5F, u"12.5"_s},
        {-12.5F, u"-12.5"_s},
        {1.0F / 3, u"0.3333333"_s},
        {2.0F / 3, u"0.6666667"_s},
        {1234567, u"1234567"_s},
        {9999999, u"9999999"_s},
        {12345678, u"1.234568E+07"_s},
        {1e7F, u"1E+07"_s},
        {-12345678, u"-1.234568E+07"_s},
        {1e10F, u"1E+10"_s},
        {3.4028235e38F, u"3.402823E+38"_s},
        {0.001F, u"0.001"_s},
        {0.0000001F, u"0.0000001"_s},
        {0.00000001F, u"1E-08"_s},
        {0.01234567F, u"1.234567E-02"_s},
        {1234.567F, u"1234.567"_s},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(singleToText(one.number), localised(one.text));
    }
}

TEST(Numbers, TheShortestTextOfASingleReadsBackAsTheSameSingle)
{
    EXPECT_EQ(singleToShortestText(0.1F), localised(u"0.1"_s));
    EXPECT_EQ(singleToShortestText(0), u"0"_s);
    EXPECT_EQ(singleToShortestText(16777216), u"16777216"_s);
    EXPECT_EQ(singleToShortestText(1234567.9F), localised(u"1234567.9"_s));
    EXPECT_EQ(singleToShortestText(0.1F + 0.1F + 0.1F), localised(u"0.3"_s));
    EXPECT_EQ(singleToShortestText(1e20F), u"1E+20"_s);
    std::mt19937 random(20); // NOLINT(cert-msc51-cpp): the same numbers every time
    for (int i = 0; i < 20000; ++i) {
        const float number = singleFromBits(static_cast<std::uint32_t>(random()));
        if (std::isfinite(number)) {
            EXPECT_EQ(static_cast<float>(numberFromText(singleToShortestText(number))), number);
        }
    }
}

TEST(Numbers, NumberTextsReadBackInEveryLocale)
{
    const double numbers[] = {0, 1, -1, 12.5, -0.001, 1e15, 1.5e100, -2.5e-30, 123456789012345};
    const QList<QLocale> locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    for (const QLocale& locale : locales) {
        const ScopedLocale scoped(locale);
        for (const double number : numbers) {
            const QString text = numberToText(number);
            double back = std::numeric_limits<double>::quiet_NaN();
            EXPECT_EQ(errorOf([&] { back = numberFromText(text); }), 0) << locale.name().toStdString();
            EXPECT_EQ(back, number) << locale.name().toStdString() << ' ' << text.toStdString();
        }
    }
}

TEST(Numbers, TwoDecimalsAreRoundedHalfAwayFromZeroOnTheDecimalText)
{
    struct Case
    {
        double number;
        QString text;
    };
    const Case cases[] = {
        {0, u".00"_s},
        {-0.0, u".00"_s},
        {0.5, u".50"_s},
        {-0.5, u"-.50"_s},
        {1, u"1.00"_s},
        {12.5, u"12.50"_s},
        {-12.5, u"-12.50"_s},
        {1.005, u"1.01"_s},
        {-1.005, u"-1.01"_s},
        {1.004999, u"1.00"_s},
        {2.675, u"2.68"_s},
        {0.005, u".01"_s},
        {-0.005, u"-.01"_s},
        {0.0049, u".00"_s},
        {-0.0049, u".00"_s},
        {0.0005, u".00"_s},
        {0.05, u".05"_s},
        {0.994, u".99"_s},
        {0.995, u"1.00"_s},
        {9.995, u"10.00"_s},
        {99.995, u"100.00"_s},
        {999999.995, u"1000000.00"_s},
        {123.456, u"123.46"_s},
        {1234567.8, u"1234567.80"_s},
        {0.285 * 100, u"28.50"_s},
        {1.1 * 1.1, u"1.21"_s},
        {1e-300, u".00"_s},
        {123456789012345.6, u"123456789012346.00"_s},
        {999999999999.995, u"1000000000000.00"_s},
        {1e15, u"1000000000000000.00"_s},
        {1.5e20, u"150000000000000000000.00"_s},
        {1e300, u"1"_s + QString(300, u'0') + u".00"_s},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(formatTwoDecimals(one.number), localised(one.text));
    }
}

TEST(Numbers, EveryHalfCentIsRoundedAway)
{
    for (int thousandths = 5; thousandths < 100000; thousandths += 10) {
        const int cents = (thousandths + 5) / 10;
        const QString expected = (cents >= 100 ? QString::number(cents / 100) : QString()) + decimalSeparator() +
                                 QString::number(cents % 100).rightJustified(2, u'0');
        ASSERT_EQ(formatTwoDecimals(thousandths / 1000.0), expected) << thousandths;
    }
}

TEST(Numbers, NoTextSaysAnInfiniteNumber)
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    for (const double number : {infinite, -infinite, none}) {
        EXPECT_EQ(errorOf([=] { numberToText(number); }), 6);
        EXPECT_EQ(errorOf([=] { formatTwoDecimals(number); }), 6);
        EXPECT_EQ(errorOf([=] { singleToText(static_cast<float>(number)); }), 6);
        EXPECT_EQ(errorOf([=] { singleToShortestText(static_cast<float>(number)); }), 6);
    }
}

TEST(Numbers, NormalizingMakesEverySeparatorTheUsers)
{
    EXPECT_EQ(NormalizeDecimal(u"12,50"_s), localised(u"12.50"_s));
    EXPECT_EQ(NormalizeDecimal(u"12.50"_s), localised(u"12.50"_s));
    EXPECT_EQ(NormalizeDecimal(u"1,2.3"_s), localised(u"1.2.3"_s));
    EXPECT_EQ(NormalizeDecimal(u"abc"_s), u"abc"_s);
    EXPECT_EQ(NormalizeDecimal(QString()), QString());
}

TEST(Numbers, NormalizingGoesInBothDirections)
{
    {
        const ScopedLocale english(QLocale(u"en_US"_s));
        EXPECT_EQ(NormalizeDecimal(u"12,50"_s), u"12.50"_s);
    }
    const ScopedLocale german(QLocale(u"de_DE"_s));
    EXPECT_EQ(NormalizeDecimal(u"12.50"_s), u"12,50"_s);
}

TEST(Numbers, WithAnotherSeparatorNormalizingLeavesTheText)
{
    const ScopedLocale arabic(QLocale(u"ar_EG"_s));
    ASSERT_NE(decimalSeparator(), u"."_s);
    ASSERT_NE(decimalSeparator(), u","_s);
    EXPECT_EQ(NormalizeDecimal(u"12,50"_s), u"12,50"_s);
    EXPECT_EQ(NormalizeDecimal(u"12.50"_s), u"12.50"_s);
}

TEST(Numbers, AnEmptyTextIsZeroWhereThatIsAllowed)
{
    EXPECT_EQ(numberOrZero(QString()), 0);
    EXPECT_EQ(numberOrZero(localised(u"1.5"_s)), 1.5);
    EXPECT_EQ(errorOf([] { numberOrZero(u" "_s); }), 13);
}
