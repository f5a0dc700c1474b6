#include "base/XmlCheck.h"

#include "base/Utf8.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <string_view>
#include <vector>

namespace {

bool isBlank(unsigned char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
}

// A byte with its high bit set in the result, for every byte of the word that is that letter. Bytes above the lowest
// one found may be marked wrongly.
constexpr std::uint64_t everyByte = 0x0101010101010101ULL;

std::uint64_t bytesEqual(std::uint64_t word, unsigned char letter)
{
    const std::uint64_t zeros = word ^ (everyByte * letter);
    return (zeros - everyByte) & ~zeros;
}

bool isXmlLetter(std::uint32_t code)
{
    return code == '\t' || code == '\n' || code == '\r' || (code >= 0x20 && code <= 0xD7FF) ||
           (code >= 0xE000 && code <= 0xFFFD) || (code >= 0x10000 && code <= 0x10FFFF);
}

class Scanner
{
public:
    explicit Scanner(QByteArrayView bytes)
        : m_at(reinterpret_cast<const unsigned char*>(bytes.data())), m_end(m_at + bytes.size())
    {
    }

    bool document()
    {
        while (m_at != m_end) {
            const bool good = m_depth > 0 ? content() : besideRoot();
            if (!good) {
                return false;
            }
        }
        return m_rootSeen && m_depth == 0;
    }

    bool hasSections() const { return m_hasSections; }

private:
    bool startsWith(std::string_view word) const
    {
        return static_cast<std::size_t>(m_end - m_at) >= word.size() && std::equal(word.begin(), word.end(), m_at);
    }

    bool skip(std::string_view word)
    {
        if (!startsWith(word)) {
            return false;
        }
        m_at += word.size();
        return true;
    }

    bool skipBlanks()
    {
        const unsigned char* const start = m_at;
        while (isBlank(*m_at)) {
            ++m_at;
        }
        return m_at != start;
    }

    // Eight bytes at a time, up to the next one that is among the stops or is no printing letter of ASCII. May stand
    // still short of the end.
    template <unsigned char... Stops>
    void skipPlain()
    {
        while (m_end - m_at >= 8) {
            const auto word = qFromLittleEndian<std::uint64_t>(m_at);
            const std::uint64_t controls = (word - everyByte * 0x20) & ~word;
            const std::uint64_t marks = (word | controls | (bytesEqual(word, Stops) | ...)) & (everyByte * 0x80);
            if (marks != 0) {
                m_at += std::countr_zero(marks) / 8;
                return;
            }
            m_at += 8;
        }
    }

    // One letter that a text may hold, of any length.
    bool letter()
    {
        if (*m_at < 0x80) {
            return isXmlLetter(*m_at++);
        }
        const int length = utf8SequenceLength(m_at, m_end);
        const bool noLetter = length == 3 && m_at[0] == 0xEF && m_at[1] == 0xBF && m_at[2] >= 0xBE;
        m_at += length;
        return length != 0 && !noLetter;
    }

    // Letters up to and including the word.
    bool lettersUntil(std::string_view word)
    {
        while (m_at != m_end) {
            if (skip(word)) {
                return true;
            }
            if (!letter()) {
                return false;
            }
        }
        return false;
    }

    // "&amp;" and its like, or a character by its number.
    bool reference()
    {
        ++m_at; // the &
        if (!skip("#")) {
            return skip("amp;") || skip("lt;") || skip("gt;") || skip("quot;") || skip("apos;");
        }
        const unsigned int base = skip("x") ? 16 : 10;
        std::uint32_t code = 0;
        const unsigned char* const digits = m_at;
        for (; *m_at != ';'; ++m_at) {
            const unsigned int lower = *m_at | 0x20U;
            unsigned int digit = *m_at - '0';
            if (digit > 9) {
                digit = lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : base;
            }
            code = code * base + digit;
            if (digit >= base || code > 0x10FFFF) {
                return false;
            }
        }
        return m_at++ != digits && isXmlLetter(code);
    }

    bool content()
    {
        for (;;) {
            skipPlain<'<', '&', ']'>();
            switch (*m_at) {
            case '<':
                return markup();
            case '&':
                if (!reference()) {
                    return false;
                }
                break;
            case ']':
                if (startsWith("]]>")) {
                    return false;
                }
                ++m_at;
                break;
            default:
                // The end included, which has a zero byte that is no letter.
                if (!letter()) {
                    return false;
                }
            }
        }
    }

    bool besideRoot()
    {
        skipBlanks();
        return m_at == m_end || (*m_at == '<' && markup());
    }

    bool markup()
    {
        ++m_at; // the <
        switch (*m_at) {
        case '/':
            return endTag();
        case '!':
            return declaration();
        case '?':
            return instruction();
        default:
            return startTag();
        }
    }

    bool endTag()
    {
        // The parser compares the name with that of the start tag. Behind a leaf's text only its name may follow, so
        // that its length is known.
        if (m_leafNameSize < m_end - m_at - 1) {
            m_at += m_leafNameSize + 1;
        }
        m_leafNameSize = 0;
        while (*m_at != '>') {
            if (m_at == m_end) {
                return false;
            }
            ++m_at;
        }
        ++m_at;
        return --m_depth >= 0;
    }

    bool startTag()
    {
        if (m_depth == 0) {
            if (m_rootSeen) {
                return false;
            }
            m_rootSeen = true;
        }
        const unsigned char* const start = m_at;
        if (!name()) {
            return false;
        }
        const std::ptrdiff_t size = m_at - start;
        if (*m_at != '>' && !attributes()) {
            return false;
        }
        const bool isEmpty = skip("/");
        m_leafNameSize = isEmpty ? 0 : size;
        m_depth += isEmpty ? 0 : 1;
        return skip(">");
    }

    // The parser sees to it that a name holds no letters of ASCII that a name must not hold.
    bool name()
    {
        const unsigned char* const start = m_at;
        for (;;) {
            skipPlain<'>', ' ', '/', '=', '?'>();
            const unsigned char byte = *m_at;
            if (byte <= ' ' || byte == '>' || byte == '/' || byte == '=' || byte == '?') {
                return m_at != start;
            }
            if (!letter()) {
                return false;
            }
        }
    }

    // Up to the end of the tag. A value may hold a ">", but no "<".
    bool attributes()
    {
        m_names.clear();
        while (skipBlanks() && *m_at != '>' && *m_at != '/') {
            const unsigned char* const start = m_at;
            if (!name()) {
                return false;
            }
            m_names.emplace_back(reinterpret_cast<const char*>(start), static_cast<std::size_t>(m_at - start));
            skipBlanks();
            if (!skip("=")) {
                return false;
            }
            skipBlanks();
            if (!attributeValue()) {
                return false;
            }
        }
        std::sort(m_names.begin(), m_names.end());
        return std::adjacent_find(m_names.begin(), m_names.end()) == m_names.end();
    }

    bool attributeValue()
    {
        const unsigned char quote = *m_at;
        if (quote != '"' && quote != '\'') {
            return false;
        }
        ++m_at;
        while (*m_at != quote) {
            if (*m_at == '<' || !(*m_at == '&' ? reference() : letter())) {
                return false;
            }
        }
        ++m_at;
        return true;
    }

    bool declaration()
    {
        if (skip("!--")) {
            return lettersUntil("--") && skip(">");
        }
        if (m_depth > 0) {
            m_hasSections = true;
            return skip("![CDATA[") && lettersUntil("]]>");
        }
        return skip("!DOCTYPE") && documentType();
    }

    bool documentType()
    {
        if (m_rootSeen || m_documentTypeSeen || !skipBlanks() || !name()) {
            return false;
        }
        m_documentTypeSeen = true;
        while (*m_at != '>') {
            if (*m_at == '"' || *m_at == '\'') {
                const char quote = static_cast<char>(*m_at++);
                if (!lettersUntil({&quote, 1})) {
                    return false;
                }
            } else if (*m_at == '<' || *m_at == '[' || !letter()) {
                return false;
            }
        }
        ++m_at;
        return true;
    }

    // An instruction's name is never "xml": the declaration is not among these bytes.
    bool instruction()
    {
        ++m_at; // the ?
        const unsigned char* const start = m_at;
        if (!name()) {
            return false;
        }
        const bool reserved =
            m_at - start == 3 && (start[0] | 0x20) == 'x' && (start[1] | 0x20) == 'm' && (start[2] | 0x20) == 'l';
        return !reserved && (startsWith("?>") || isBlank(*m_at)) && lettersUntil("?>");
    }

    const unsigned char* m_at;
    const unsigned char* m_end;
    int m_depth = 0;
    std::ptrdiff_t m_leafNameSize = 0; // of the last tag when that was a start tag, else 0
    bool m_rootSeen = false;
    bool m_documentTypeSeen = false;
    bool m_hasSections = false;
    std::vector<std::string_view> m_names; // of the attributes of one tag
};

} // namespace

bool keepsXmlRules(QByteArrayView bytes, bool* hasSections)
{
    Scanner scanner(bytes);
    const bool kept = scanner.document();
    if (hasSections != nullptr) {
        *hasSections = scanner.hasSections();
    }
    return kept;
}
