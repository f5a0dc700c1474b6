// Dates are held as text in the short form of the user's locale, with the year always written in four digits so that
// 1900 and 5100 survive; the shop file has them as "dd.mm.yyyy".
#pragma once

#include <QDate>
#include <QString>

// A date as local date text.
QString localDateText(const QDate& date);

// Local date text as a date of the years 100 to 9999. ErrorNumber::TypeMismatch when the text is no date of that form:
// nothing but the numbers and what the locale puts between them, the year in four digits.
QDate dateFromLocalText(const QString& text);

// A date in the shop file's form "dd.mm.yyyy".
QString shopFileDateText(const QDate& date);

// A date of the shop file, "dd.mm.yyyy", as local date text; the empty text when it is none. The date is reached in
// three steps from the first day of the calendar (days, months, years), and each step clips a day that its month does
// not have: 29.02.2004 reads as 28 February, since the step of months lands in 1900.
QString DateTextToLocal(const QString& text);

// Local date text in the shop file's form; the empty text stays empty. ErrorNumber::TypeMismatch when it is no date.
QString localToDateText(const QString& text);

// True when the day lies between the two local date texts, both ends included; an empty one is an open end, which the
// years 1900 and 5100 stand for. ErrorNumber::TypeMismatch when a text is no date.
bool dateIsBetween(const QDate& day, const QString& dateFrom, const QString& dateTo);
