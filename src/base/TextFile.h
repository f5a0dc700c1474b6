// Text files that people and other programs edit: templates, the import file, the countries, the upload log. Bytes that
// are valid UTF-8 are UTF-8 (a byte order mark is dropped), all others Windows-1252; no byte is silently lost.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

enum class TextEncoding { Utf8, Windows1252 };

struct DecodedText
{
    QString text;
    TextEncoding encoding = TextEncoding::Utf8;
};

DecodedText decodeText(const QByteArray& bytes);

// Bytes that are known to be Windows-1252. Its five undefined bytes become the control characters of the same number.
QString decodeWindows1252(const QByteArray& bytes);

// One byte for each character; nothing when Windows-1252 lacks one of them. The bytes may happen to be valid UTF-8.
std::optional<QByteArray> encodeWindows1252(const QString& text);

// The text's bytes in that encoding when decodeText makes the same text of them again, else in UTF-8.
QByteArray encodeText(const QString& text, TextEncoding encoding);

// Errors as for readFileBytes.
DecodedText readTextFile(const QString& path);
