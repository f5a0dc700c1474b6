#include "base/Numbers.h"

#include "base/Circumstances.h"
#include "base/RuntimeError.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

constexpr int doubleDigits = 15;
constexpr int singleDigits = 7;

// A number as d.ddd x 10^exponent: the digits without the point and without zeros at the end; "0" for zero.
struct Decimal
{
    std::array<char, 40> storage{};
    int count = 0;
    int exponent = 0;
    bool negative = false;

    std::string_view digits() const { return {storage.data(), static_cast<std::size_t>(count)}; }
};

// Takes "-d.ddde+xx" apart.
Decimal decimalFromScientific(std::string_view text)
{
    Decimal decimal;
    if (text.front() == '-') {
        decimal.negative = true;
        text.remove_prefix(1);
    }
    const std::size_t mark = text.find('e');
    for (const char letter : text.substr(0, mark)) {
        if (letter != '.') {
            decimal.storage[static_cast<std::size_t>(decimal.count++)] = letter;
        }
    }
    while (decimal.count > 1 && decimal.storage[static_cast<std::size_t>(decimal.count - 1)] == '0') {
        --decimal.count;
    }
    const bool negativeExponent = text[mark + 1] == '-';
    const std::string_view exponent = text.substr(mark + 2);
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.exponent);
    if (negativeExponent) {
        decimal.exponent = -decimal.exponent;
    }
    if (decimal.digits() == "0") {
        decimal.negative = false;
    }
    return decimal;
}

// The number rounded to so many significant digits. ErrorNumber::Overflow when it is infinite or no
// number, which no text can say.
template <class Number>
Decimal roundedDecimal(Number number, int significantDigits)
{
    if (!std::isfinite(number)) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    std::array<char, 40> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::scientific,
                                      significantDigits - 1);
    return decimalFromScientific({text.data(), static_cast<std::size_t>(result.ptr - text.data())});
}

void appendAscii(QString& text, std::string_view letters)
{
    text.append(QLatin1StringView(letters.data(), static_cast<qsizetype>(letters.size())));
}

void appendZeros(QString& text, int count)
{
    text.append(QString(count, u'0'));
}

QString plainForm(const Decimal& decimal)
{
    QString text = decimal.negative ? u"-"_s : QString();
    const std::string_view digits = decimal.digits();
    if (decimal.exponent < 0) {
        text.append(u'0');
        text.append(decimalSeparator());
        appendZeros(text, -decimal.exponent - 1);
        appendAscii(text, digits);
        return text;
    }
    const int wholeDigits = decimal.exponent + 1;
    if (decimal.count <= wholeDigits) {
        appendAscii(text, digits);
        appendZeros(text, wholeDigits - decimal.count);
        return text;
    }
    appendAscii(text, digits.substr(0, static_cast<std::size_t>(wholeDigits)));
    text.append(decimalSeparator());
    appendAscii(text, digits.substr(static_cast<std::size_t>(wholeDigits)));
    return text;
}

QString exponentForm(const Decimal& decimal)
{
    QString text = decimal.negative ? u"-"_s : QString();
    appendAscii(text, decimal.digits().substr(0, 1));
    if (decimal.count > 1) {
        text.append(decimalSeparator());
        appendAscii(text, decimal.digits().substr(1));
    }
    text.append(decimal.exponent < 0 ? "E-"_L1 : "E+"_L1);
    const int exponent = std::abs(decimal.exponent);
    if (exponent < 10) {
        text.append(u'0');
    }
    text.append(QString::number(exponent));
    return text;
}

// Plain while the digits, not counting the single 0 ahead of the separator, are no more than the limit.
QString generalForm(const Decimal& decimal, int limit)
{
    const bool plain =
        decimal.exponent >= 0 ? decimal.exponent < limit : -decimal.exponent - 1 + decimal.count <= limit;
    return plain ? plainForm(decimal) : exponentForm(decimal);
}

// Reads "12", "-12.5" and the like, the bulk of all numbers, without the locale's slow road. False for all else.
bool readPlainNumber(QStringView text, std::optional<QChar> separator, double& number)
{
    std::array<char, 64> plain{};
    if (text.isEmpty() || text.size() > static_cast<qsizetype>(plain.size())) {
        return false;
    }
    std::size_t length = 0;
    bool digitSeen = false;
    for (const QChar letter : text) {
        if (letter >= u'0' && letter <= u'9') {
            digitSeen = true;
            plain[length++] = static_cast<char>(letter.unicode());
        } else if (letter == separator && digitSeen) {
            plain[length++] = '.';
        } else if (letter == u'-' && length == 0) {
            plain[length++] = '-';
        } else {
            return false;
        }
    }
    const char* const end = plain.data() + length;
    const auto result = std::from_chars(plain.data(), end, number, std::chars_format::fixed);
    return result.ec == std::errc() && result.ptr == end;
}

} // namespace

QString decimalSeparator()
{
    return QLocale().decimalPoint();
}

QString NormalizeDecimal(const QString& text)
{
    if (!text.contains(u'.') && !text.contains(u',')) {
        return text;
    }
    const QString separator = decimalSeparator();
    QString normalised = text;
    if (separator == "."_L1) {
        normalised.replace(u',', u'.');
    } else if (separator == ","_L1) {
        normalised.replace(u'.', u',');
    }
    return normalised;
}

double numberFromText(const QString& text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    double number = 0;
    // Most numbers are whole, and making a locale takes longer than reading one.
    if (readPlainNumber(trimmed, std::nullopt, number)) {
        return number;
    }
    const QLocale locale;
    if (readPlainNumber(trimmed, locale.decimalPoint().front(), number)) {
        return number;
    }
    bool ok = false;
    number = locale.toDouble(trimmed, &ok);
    // The locale takes the words for infinite and for no number, which are no numbers here, and gives an infinite one
    // with a failure for what is too large.
    if (!ok && std::isinf(number)) {
        throw RuntimeError(ErrorNumber::Overflow).because(inQuotes(text) + " is too large."_L1);
    }
    if (!ok || !std::isfinite(number)) {
        throw RuntimeError(ErrorNumber::TypeMismatch).because(inQuotes(text) + " is no number."_L1);
    }
    return number;
}

double numberOrZero(const QString& text)
{
    return text.isEmpty() ? 0 : numberFromText(text);
}

float singleFrom(double number)
{
    if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max())) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<float>(number);
}

double Val(const QString& text)
{
    QByteArray plain;
    bool pointSeen = false;
    for (const QChar letter : QStringView(text).trimmed()) {
        if (letter >= u'0' && letter <= u'9') {
            plain.append(static_cast<char>(letter.unicode()));
        } else if (letter == u'.' && !pointSeen) {
            pointSeen = true;
            plain.append('.');
        } else if ((letter == u'-' || letter == u'+') && plain.isEmpty()) {
            plain.append(letter == u'-' ? "-0" : "0"); // the zero takes the place of a sign where none is expected
        } else {
            break;
        }
    }
    double number = 0;
    const auto result = std::from_chars(plain.cbegin(), plain.cend(), number, std::chars_format::fixed);
    if (result.ec == std::errc::result_out_of_range) {
        // Too large when there is a digit ahead of the point, else too small, which is 0.
        const auto* digit = std::find_if_not(plain.cbegin(), plain.cend(), [](char c) { return c == '0' || c == '-'; });
        if (*digit != '.') {
            throw RuntimeError(ErrorNumber::Overflow);
        }
        return 0;
    }
    return number == 0 ? 0 : number; // no "-0" for a lone sign
}

QString numberToText(double number)
{
    return generalForm(roundedDecimal(number, doubleDigits), doubleDigits);
}

QString singleToText(float number)
{
    return generalForm(roundedDecimal(number, singleDigits), singleDigits);
}

QString singleToShortestText(float number)
{
    if (!std::isfinite(number)) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    std::array<char, 40> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::scientific);
    const auto length = static_cast<std::size_t>(result.ptr - text.data());
    constexpr int most = 9; // digits that a single ever needs
    return generalForm(decimalFromScientific({text.data(), length}), most);
}

QString formatTwoDecimals(double number)
{
    const Decimal decimal = roundedDecimal(number, doubleDigits);
    const std::string_view digits = decimal.digits();
    // The whole number of cents: the digits down to the second decimal, rounded by the one behind them. A zero ahead
    // takes the carry.
    const int kept = std::max(decimal.exponent + 3, 0);
    QByteArray cents(std::max(kept, 2) + 1, '0');
    const qsizetype end = cents.size();
    std::copy_n(digits.begin(), std::min(kept, decimal.count), cents.begin() + end - kept);
    const int next = decimal.exponent + 3;
    if (next >= 0 && next < decimal.count && digits[static_cast<std::size_t>(next)] >= '5') {
        qsizetype at = end - 1;
        for (; cents[at] == '9'; --at) {
            cents[at] = '0';
        }
        ++cents[at];
    }
    // The picture forces no digit ahead of the separator, and what rounds to nothing has no sign.
    qsizetype first = 0;
    while (first < end - 2 && cents[first] == '0') {
        ++first;
    }
    const bool isZero = first == end - 2 && cents.endsWith("00");
    QString text = decimal.negative && !isZero ? u"-"_s : QString();
    text.append(QLatin1StringView(cents.constData() + first, end - 2 - first));
    text.append(decimalSeparator());
    text.append(QLatin1StringView(cents.constData() + end - 2, 2));
    return text;
}
