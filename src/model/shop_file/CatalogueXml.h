// What the reading and writing of shops, categories and products share. The elements of a category are named in
// CategoryLookUp.h, those of a product in ProductReading.h, those of the shop in ShopXml.cpp.
#pragma once

#include <QString>

#include <pugixml.hpp>

// "True" and "False", exact case, else a number that counts as true when it is not zero. ErrorNumber::TypeMismatch for
// any other text.
bool booleanFromWord(const QString& word);
QString booleanToWord(bool value);

// A file name without everything up to and including the last backslash.
QString StripDirectory(const QString& fileName);

// Appends an element whose name is the prefix and a number behind it, such as "Cost1".
pugi::xml_node addNumberedElement(pugi::xml_node parent, const char* prefix, int number, const QString& text);
