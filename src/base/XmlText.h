// Texts on their way into and out of an XML document, which holds them as UTF-8 ended by a zero byte.
#pragma once

#include <QByteArray>
#include <QString>

// A document's text. A byte order mark in it is a character like any other.
QString textFromUtf8(QByteArrayView utf8);

// A text as a document can hold it: without the characters that XML has no form for.
QByteArray xmlUtf8FromText(const QString& text);
