// Text files that people and other programs edit: templates, the import file, the countries, the upload log. Bytes that
// are valid UTF-8 are UTF-8 (a byte order mark is dropped), all others Windows-1252; no byte is silently lost.
#pragma once

#include <QByteArray>
#include <QString>

enum class TextEncoding { Utf8, Windows1252 };

struct DecodedText
{
    QString text;
    TextEncoding encoding = TextEncoding::Utf8;
};

DecodedText decodeText(const QByteArray& bytes);

// Bytes that are known to be Windows-1252. Its five undefined bytes become the control characters of the same number.
QString decodeWindows1252(const QByteArray& bytes);

// The text's bytes in that encoding when it can hold the text, else in UTF-8.
QByteArray encodeText(const QString& text, TextEncoding encoding);

// Errors as for readFileBytes.
DecodedText readTextFile(const QString& path);
