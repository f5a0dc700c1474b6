#include "base/XmlText.h"

namespace {

// Whether a 16-bit unit is suspicious: a control character, half a pair, or one of the two that are no letters.
bool mayBeForbidden(char16_t unit)
{
    return unit < 0x20 || (unit >= 0xD800 && unit <= 0xDFFF) || unit >= 0xFFFE;
}

QString withoutForbidden(const QString& text)
{
    QString kept;
    kept.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar letter = text[i];
        if (letter.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            kept += letter;
            kept += text[++i];
        } else if (!mayBeForbidden(letter.unicode()) || letter == u'\t' || letter == u'\n' || letter == u'\r') {
            kept += letter;
        }
    }
    return kept;
}

} // namespace

QString textFromUtf8(QByteArrayView utf8)
{
    if (utf8.startsWith("\xEF\xBB\xBF")) {
        return QChar(QChar::ByteOrderMark) + QString::fromUtf8(utf8); // the conversion takes one mark off
    }
    return QString::fromUtf8(utf8);
}

QByteArray xmlUtf8FromText(const QString& text)
{
    // Without a way out of the loop, it takes many letters at a time.
    unsigned int found = 0;
    for (const QChar letter : text) {
        found |= static_cast<unsigned int>(mayBeForbidden(letter.unicode()));
    }
    return found == 0 ? text.toUtf8() : withoutForbidden(text).toUtf8();
}
