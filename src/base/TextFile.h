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

// Error 53 when there is no such file, 70 or 75 when it cannot be opened, 57 when reading it fails.
QByteArray readFileBytes(const QString& path);
DecodedText readTextFile(const QString& path);

// Replaces the file's content. The old file stays whole when there is no room: error 61, 70, 75 or 57.
void writeFileBytes(const QString& path, const QByteArray& bytes);

// Appends to the file, which is made when it is not there. Errors 61, 70, 75 or 57.
void appendFileBytes(const QString& path, const QByteArray& bytes);
