// The rules of XML that the parser does not hold a document to. XmlFile asks here before it lets the parser at the
// bytes; rules that the parser does check, such as end tags that match, are left to it.
#pragma once

#include <QByteArrayView>

// Whether the bytes, UTF-8 without byte order mark and declaration, are one element with nothing but white space,
// comments, instructions and one document type beside it; hold only characters that XML allows; no stray "&", "<" or
// "]]>"; no attribute twice. A document type with declarations of its own is refused: nobody would read them. The byte
// behind the last one must be there and be zero, as behind those of a QByteArray.
// `hasSections`, when it is given, is set when there is a CDATA section.
bool keepsXmlRules(QByteArrayView bytes, bool* hasSections = nullptr);
