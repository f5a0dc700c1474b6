// One named style of the generated pages: colours, font, emphasis. The shop owns them in ShopClass::CSSs, under "ID"
// followed by the name. All values are texts as they stand in a style sheet; the switches are the words "Yes" and "No".
#pragma once

#include "base/XmlNode.h"

#include <QString>

class CSSClass
{
public:
    CSSClass();

    QString CSSName;
    // A new style has decimal colour numbers here, "0" and "255", and keeps them until an editor saves it,
    // deliberately.
    QString ForeGroundColor;
    QString BackGroundColor;
    QString FontName;
    QString FontSize;
    QString IsBold;
    QString IsCursive;
    QString IsUndcelined; // the element in the file is spelled otherwise: "IsUnderlined"
    QString IsLineThrugh;

    // The element is a "CSS" element; ToXML is given an empty one.
    void FromXML(const pugi::xml_node& element);
    void ToXML(pugi::xml_node element) const;
};
