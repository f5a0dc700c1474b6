#include "base/Dates.h"

#include "base/RuntimeError.h"

#include <QLocale>

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

// Takes up to `most` digits off the front of the text. Error 13 when there are fewer than `fewest`.
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

QString shopFileDateText(const QDate& date)
{
    return padded(date.day(), 2) + u'.' + padded(date.month(), 2) + u'.' + padded(date.year(), 4);
}
