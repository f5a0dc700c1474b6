#include "base/WholeNumbers.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"

#include <cmath>
#include <limits>

namespace {

// A few plain digits, the bulk of all numbers, without the locale's road; -1 for all else.
int plainNumber(const QString& text)
{
    constexpr qsizetype mostDigits = 4; // fits in every whole number here
    if (text.isEmpty() || text.size() > mostDigits) {
        return -1;
    }
    int number = 0;
    for (const QChar letter : text) {
        if (letter < u'0' || letter > u'9') {
            return -1;
        }
        number = number * 10 + (letter.unicode() - u'0');
    }
    return number;
}

template <class Whole>
Whole wholeNumberFromText(const QString& text)
{
    if (const int plain = plainNumber(text); plain >= 0) {
        return static_cast<Whole>(plain);
    }
    const double rounded = std::nearbyint(numberFromText(text)); // half to even
    if (rounded < std::numeric_limits<Whole>::min() || rounded > std::numeric_limits<Whole>::max()) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<Whole>(rounded);
}

} // namespace

qint16 int16FromText(const QString& text)
{
    return wholeNumberFromText<qint16>(text);
}

qint32 int32FromText(const QString& text)
{
    return wholeNumberFromText<qint32>(text);
}
