// Dates are held as text in the short form of the user's locale, with the year always written in four digits so that
// 1900 and 5100 survive; the shop file has them as "dd.mm.yyyy".
#pragma once

#include <QDate>
#include <QString>

// A date as local date text.
QString localDateText(const QDate& date);

// Local date text as a date of the years 100 to 9999. Error 13 when the text is no date of that form: nothing but the
// numbers and what the locale puts between them, the year in four digits.
QDate dateFromLocalText(const QString& text);

// A date in the shop file's form "dd.mm.yyyy".
QString shopFileDateText(const QDate& date);
