// Numbers are held as text in the decimal form of the user's locale (QLocale()) and become numbers for the length of
// one computation. All conversions between the two stand here, so that every place reads and rounds alike.
#pragma once

#include <QString>

// The user's decimal separator, one character for all locales known.
QString decimalSeparator();

// The text with the user's decimal separator: every "," becomes "." where that is the separator, every "." becomes ","
// where that is; with any other separator the text comes back as it is.
QString NormalizeDecimal(const QString& text);

// A locale's number text as a double. Blanks around it are allowed; group separators only where the locale puts them.
// ErrorNumber::TypeMismatch when the text is no number, an empty text included; Overflow when it is out of range.
double numberFromText(const QString& text);
// The same, but 0 for an empty text.
double numberOrZero(const QString& text);

// The nearest single. ErrorNumber::Overflow when the number is beyond the largest one.
float singleFrom(double number);

// The plain number scan: blanks ahead are skipped, then one sign, digits and one "." are read, whatever the locale, up
// to the first character that is no part of that. 0 when nothing was read. An exponent is not read.
// ErrorNumber::Overflow when the number is out of range.
double Val(const QString& text);

// A double as text of at most 15 significant digits, shortest form, no group separators, the user's decimal separator.
// The plain form is taken while it needs no more than 15 digits, a single 0 ahead of the separator not counted: 0.0001,
// 123456789012345; all else takes the exponent form with two or more digits of exponent: 1E+15, 1.5E-20.
// ErrorNumber::Overflow when the number is infinite or not a number.
QString numberToText(double number);

// The same for a single with seven digits: 0.3, 1234567, 1.234568E+07.
QString singleToText(float number);

// A single as the shortest text that reads back as the same single; plain while nine digits are enough. Errors as
// above.
QString singleToShortestText(float number);

// The picture "#.00": two decimals, no digit forced ahead of the separator, rounded half away from zero on the number's
// decimal text of 15 significant digits, so that 1.005 gives 1.01. A half is ".50", zero and what rounds to it ".00".
// ErrorNumber::Overflow when the number is infinite or not a number.
QString formatTwoDecimals(double number);
