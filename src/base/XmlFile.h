// Reading and writing of whole XML documents. A document that is not well-formed reads as an empty one: nothing of a
// failed parse is looked at. Texts survive a round trip exactly: blanks, tabs, line ends, characters outside ASCII.
//
// How a document stands in memory: elements and texts only, no comments, no instructions, no white space between
// elements. A text that is the first thing in its element sits in the element itself (value(), and no child node);
// texts behind an element are child nodes. nodeText in XMLUtils.h takes both.
//
// Read are UTF-8, UTF-16 with its byte order mark, and what a declaration names as ISO-8859-1 or Windows-1252.
#pragma once

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

// Owns the document and the bytes that it was parsed in place from.
class XmlFile
{
public:
    XmlFile() = default;

    // Parses a file. Afterwards the document is empty when the file is missing, unreadable or not well-formed.
    void load(const QString& path);
    // The same on bytes in memory, which are consumed.
    void parse(QByteArray bytes);

    const pugi::xml_document& document() const { return m_document; }
    // How many bytes the document was parsed from; 0 for an empty one.
    qsizetype size() const { return m_bytes.size(); }

private:
    QByteArray m_bytes;
    pugi::xml_document m_document;
};

// The document as UTF-8 without a declaration and without added white space; one that XmlFile read or whose texts came
// in by AddChildElement. Control characters that XML cannot hold are left out; a CR is written as a character
// reference, so that it comes back.
QByteArray xmlToBytes(const pugi::xml_document& document);
