#include "pages/preview/ProductSearch.h"

#include <algorithm>

namespace {

constexpr std::size_t unitCount = 0x10000;

// Marks in the table of known units. Neither is a character of any text.
constexpr char16_t notMetYet = 0;
constexpr char16_t severalUnits = 0xFFFF; // the upper case is longer, or the unit is half of a pair

// One character becomes three at most.
constexpr qsizetype longestUpperCase = 3;

bool isAscii(char16_t unit)
{
    return unit < 0x80;
}

char16_t asciiUpperCase(char16_t unit)
{
    const bool isSmall = unit >= u'a' && unit <= u'z';
    return static_cast<char16_t>(isSmall ? unit - u'a' + u'A' : unit);
}

} // namespace

ProductSearch::ProductSearch(const QString& what)
    : m_matcher(what.toUpper()), m_findsAll(what.isEmpty()), m_known(unitCount, notMetYet)
{
}

bool ProductSearch::isIn(const QString& text)
{
    if (text.isEmpty()) {
        return false;
    }
    return m_findsAll || m_matcher.indexIn(upperCase(text)) >= 0;
}

// Upper case depends on no neighbours, so the units outside ASCII can be learned one by one.
QStringView ProductSearch::upperCase(QStringView text)
{
    const auto room = static_cast<std::size_t>(text.size() * longestUpperCase);
    if (m_buffer.size() < room) {
        m_buffer.resize(room);
    }
    const char16_t* const units = text.utf16();
    char16_t* out = m_buffer.data();
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isAscii(units[i])) {
            *out++ = asciiUpperCase(units[i]);
            continue;
        }
        const char16_t upper = upperCaseOf(units[i]);
        if (upper != severalUnits) {
            *out++ = upper;
            continue;
        }
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const QString several = text.sliced(i, isPair ? 2 : 1).toString().toUpper();
        out = std::copy_n(several.utf16(), several.size(), out);
        i += isPair ? 1 : 0;
    }
    return {m_buffer.data(), out};
}

char16_t ProductSearch::upperCaseOf(char16_t unit)
{
    char16_t& known = m_known[unit];
    if (known == notMetYet) {
        const QString upper = QString(QChar(unit)).toUpper();
        const bool isOne = upper.size() == 1 && !QChar(unit).isSurrogate();
        known = isOne ? upper[0].unicode() : severalUnits;
    }
    return known;
}
