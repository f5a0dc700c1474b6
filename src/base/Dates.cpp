#include "base/Dates.h"

#include "base/Circumstances.h"

#include <QLocale>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int firstYear = 100;
constexpr int lastYear = 9999;

// The locale's short form with the year in four digits: "M/d/yyyy", "dd.MM.yyyy". Only the locale "C" has a form with
// the month's name; it takes year, month and day in numbers instead.
QString localForm()
{
    QString form = QLocale().dateFormat(QLocale::ShortFormat);
    if (form.contains("MMM"_L1)) {
        return u"yyyy-MM-dd"_s;
    }
    if (!form.contains("yyyy"_L1)) {
        form.replace("yy"_L1, "yyyy"_L1);
    }
    return form.remove(u'\''); // letters that are no part of the date stand between these
}

// The length of the run of one letter that starts at that place.
qsizetype runLength(QStringView form, qsizetype at)
{
    qsizetype end = at;
    while (end < form.size() && form[end] == form[at]) {
        ++end;
    }
    return end - at;
}

QString padded(int number, qsizetype digits)
{
    return QString::number(number).rightJustified(digits, u'0');
}

// Takes up to `most` digits off the front of the text. ErrorNumber::TypeMismatch when there are fewer than
// `fewest`.
int takeNumber(QStringView& text, qsizetype fewest, qsizetype most)
{
    int number = 0;
    qsizetype count = 0;
    while (count < most && count < text.size() && text[count] >= u'0' && text[count] <= u'9') {
        number = number * 10 + (text[count].unicode() - u'0');
        ++count;
    }
    if (count < fewest) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    text = text.sliced(count);
    return number;
}

// A run of digits as a number; nothing when a character is no digit.
std::optional<int> digitsOnly(QStringView text)
{
    int number = 0;
    for (const QChar letter : text) {
        if (letter < u'0' || letter > u'9') {
            return {};
        }
        number = number * 10 + (letter.unicode() - u'0');
    }
    return number;
}

// The date that the text is. ErrorNumber::TypeMismatch when it is none.
QDate readLocalDate(const QString& text)
{
    const QString form = localForm();
    QStringView rest(text);
    int day = 0;
    int month = 0;
    int year = 0;
    for (qsizetype at = 0; at < form.size();) {
        const qsizetype length = runLength(form, at);
        if (form[at] == u'd') {
            day = takeNumber(rest, length, 2);
        } else if (form[at] == u'M') {
            month = takeNumber(rest, length, 2);
        } else if (form[at] == u'y') {
            year = takeNumber(rest, 4, 4);
        } else if (rest.startsWith(QStringView(form).sliced(at, length))) {
            rest = rest.sliced(length);
        } else {
            throw RuntimeError(ErrorNumber::TypeMismatch);
        }
        at += length;
    }
    if (!rest.isEmpty() || year < firstYear || year > lastYear || !QDate::isValid(year, month, day)) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    return {year, month, day};
}

} // namespace

QString localDateText(const QDate& date)
{
    const QString form = localForm();
    QString text;
    for (qsizetype at = 0; at < form.size();) {
        const qsizetype length = runLength(form, at);
        if (form[at] == u'd') {
            text += padded(date.day(), length);
        } else if (form[at] == u'M') {
            text += padded(date.month(), length);
        } else if (form[at] == u'y') {
            text += padded(date.year(), length);
        } else {
            text += QStringView(form).sliced(at, length);
        }
        at += length;
    }
    return text;
}

QDate dateFromLocalText(const QString& text)
{
    return during([&] { return inQuotes(text) + " is no date."_L1; }, [&] { return readLocalDate(text); });
}

QString shopFileDateText(const QDate& date)
{
    return padded(date.day(), 2) + u'.' + padded(date.month(), 2) + u'.' + padded(date.year(), 4);
}

// Shop files depend on these very steps, the clipping included.
QString DateTextToLocal(const QString& text)
{
    if (text.size() < 5) {
        return {};
    }
    const std::optional<int> day = digitsOnly(QStringView(text).first(2));
    const std::optional<int> month = digitsOnly(QStringView(text).sliced(3, 2));
    const std::optional<int> year = digitsOnly(QStringView(text).last(4));
    if (!day || !month || !year) {
        return {};
    }
    const QDate date = QDate(1899, 12, 30).addDays(*day + 1).addMonths(*month - 1).addYears(*year - 1900);
    const bool hasText = date.isValid() && date.year() >= firstYear && date.year() <= lastYear;
    return hasText ? localDateText(date) : QString();
}

QString localToDateText(const QString& text)
{
    return text.isEmpty() ? QString() : shopFileDateText(dateFromLocalText(text));
}

bool dateIsBetween(const QDate& day, const QString& dateFrom, const QString& dateTo)
{
    const QDate first = dateFrom.isEmpty() ? QDate(1900, 1, 1) : dateFromLocalText(dateFrom);
    const QDate last = dateTo.isEmpty() ? QDate(5100, 1, 1) : dateFromLocalText(dateTo);
    return first <= day && day <= last;
}
