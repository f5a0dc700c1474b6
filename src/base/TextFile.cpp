#include "base/TextFile.h"

#include "base/FileBytes.h"
#include "base/Utf8.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

// Windows-1252's own characters at 0x80 to 0x9F. Its five undefined bytes stand for the control characters of the same
// number, so that every byte has a character of its own and comes back.
constexpr std::array<char16_t, 32> windows1252{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                               0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<char> windows1252Byte(char16_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    for (std::size_t i = 0; i < windows1252.size(); ++i) {
        if (windows1252[i] == character) {
            return static_cast<char>(0x80 + i);
        }
    }
    return std::nullopt;
}

} // namespace

DecodedText decodeText(const QByteArray& bytes)
{
    if (isValidUtf8(bytes)) {
        return {QString::fromUtf8(bytes), TextEncoding::Utf8}; // drops one byte order mark
    }
    return {decodeWindows1252(bytes), TextEncoding::Windows1252};
}

QString decodeWindows1252(const QByteArray& bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar& letter : text) {
        if (letter.unicode() >= 0x80 && letter.unicode() <= 0x9F) {
            letter = windows1252[letter.unicode() - 0x80U];
        }
    }
    return text;
}

std::optional<QByteArray> encodeWindows1252(const QString& text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const std::optional<char> byte = windows1252Byte(text[i].unicode());
        if (!byte) {
            return std::nullopt;
        }
        bytes[i] = *byte;
    }
    return bytes;
}

QByteArray encodeText(const QString& text, TextEncoding encoding)
{
    if (encoding == TextEncoding::Windows1252) {
        const std::optional<QByteArray> bytes = encodeWindows1252(text);
        if (bytes && decodeText(*bytes).text == text) {
            return *bytes;
        }
    }
    return text.toUtf8();
}

DecodedText readTextFile(const QString& path)
{
    return decodeText(readFileBytes(path));
}
