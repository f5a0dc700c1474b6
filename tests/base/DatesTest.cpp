#include "base/Dates.h"

#include "base/Clock.h"
#include "support/TestSupport.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

bool isGerman()
{
    return QLocale().language() == QLocale::German;
}

} // namespace

TEST(Dates, LocalTextIsTheShortFormWithAYearOfFourDigits)
{
    EXPECT_EQ(localDateText(QDate(2004, 2, 3)), isGerman() ? u"03.02.2004"_s : u"2/3/2004"_s);
    EXPECT_EQ(localDateText(QDate(1900, 12, 31)), isGerman() ? u"31.12.1900"_s : u"12/31/1900"_s);
    EXPECT_EQ(localDateText(QDate(5100, 1, 1)), isGerman() ? u"01.01.5100"_s : u"1/1/5100"_s);
}

TEST(Dates, LocalTextReadsBackAsTheSameDateInEveryLocale)
{
    const QLocale before;
    const QDate dates[] = {QDate(1900, 1, 1),   QDate(5100, 1, 1), QDate(2004, 2, 29),
                           QDate(1999, 12, 31), QDate(100, 1, 1),  QDate(9999, 12, 31)};
    const QList<QLocale> locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    ASSERT_GT(locales.size(), 100);
    for (const QLocale& locale : locales) {
        QLocale::setDefault(locale);
        for (const QDate& date : dates) {
            const QString text = localDateText(date);
            QDate back;
            EXPECT_EQ(errorOf([&] { back = dateFromLocalText(text); }), 0) << locale.name().toStdString();
            EXPECT_EQ(back, date) << locale.name().toStdString() << ' ' << text.toStdString();
        }
    }
    QLocale::setDefault(before);
}

TEST(Dates, TheLocaleWithoutACountryWritesItsDatesInNumbers)
{
    const QLocale before;
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(localDateText(QDate(2004, 2, 3)), u"2004-02-03"_s);
    QLocale::setDefault(before);
}

TEST(Dates, WhatIsNoDateOfTheLocalFormIsATypeMismatch)
{
    const QStringList english = {u""_s,          u"abc"_s,        u"2/3"_s,       u"2/3/04"_s,    u"2/30/2004"_s,
                                 u"13/1/2004"_s, u"2/3/2004 "_s,  u" 2/3/2004"_s, u"2/3/20045"_s, u"3.2.2004"_s,
                                 u"2/3/0099"_s,  u"2/0/2004"_s,   u"-2/3/2004"_s, u"2/3/-2004"_s, u"2/29/2003"_s,
                                 u"2//2004"_s,   u"2/003/2004"_s, u"2/3/2004x"_s, u"2004/2/3"_s};
    const QStringList german = {u""_s,           u"abc"_s,         u"03.02."_s,      u"03.02.04"_s,   u"30.02.2004"_s,
                                u"01.13.2004"_s, u"03.02.2004 "_s, u" 03.02.2004"_s, u"3.2.2004"_s,   u"03/02/2004"_s,
                                u"03.02.0099"_s, u"00.02.2004"_s,  u"03.02.20045"_s, u"29.02.2003"_s, u"03..2004"_s,
                                u"-3.02.2004"_s, u"03.02.-004"_s,  u"2004.02.03"_s,  u"03.02.2004x"_s};
    for (const QString& text : isGerman() ? german : english) {
        EXPECT_EQ(errorOf([&] { dateFromLocalText(text); }), 13) << text.toStdString();
    }
}

TEST(Dates, ALeapDayIsADate)
{
    EXPECT_EQ(dateFromLocalText(isGerman() ? u"29.02.2004"_s : u"2/29/2004"_s), QDate(2004, 2, 29));
}

TEST(Dates, TheShopFileHasDayMonthAndYearBetweenPoints)
{
    EXPECT_EQ(shopFileDateText(QDate(2004, 2, 3)), u"03.02.2004"_s);
    EXPECT_EQ(shopFileDateText(QDate(100, 11, 30)), u"30.11.0100"_s);
    EXPECT_EQ(shopFileDateText(QDate(5100, 1, 1)), u"01.01.5100"_s);
}

TEST(Dates, AFileDateBecomesLocalTextByThreeStepsThatClip)
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

TEST(Dates, ALocalDateBecomesAFileDateAndAnEmptyOneStaysEmpty)
{
    EXPECT_EQ(localToDateText(localDateText({2024, 5, 3})), u"03.05.2024"_s);
    EXPECT_EQ(localToDateText(QString()), QString());
    EXPECT_EQ(errorOf([] { localToDateText(u"tomorrow"_s); }), 13);
}

TEST(Dates, BothEndsCountAndEmptyOnesAreOpen)
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

TEST(Clock, TheSystemsClockTellsTheCurrentDay)
{
    const QDate before = QDate::currentDate();
    const QDate today = SystemClock().today();
    EXPECT_LE(before, today);
    EXPECT_LE(today, QDate::currentDate());
}
