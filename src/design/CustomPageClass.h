// A page that the shop owner writes himself. The shop owns them in ShopClass::CustomPages, under the page's name.
#pragma once

#include "base/XmlNode.h"

#include <QString>

class CustomPageClass
{
public:
    QString pageName;
    QString ImageName;     // a file under pictures/
    QString ImageAligment; // where the picture stands beside the text
    QString ContentText;   // HTML as typed

    // The element is a "CustomPage" element; ToXML is given an empty one.
    void FromXML(const pugi::xml_node& element);
    void ToXML(pugi::xml_node element) const;
};
