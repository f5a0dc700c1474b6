#include "design/CSSClass.h"

#include "base/XMLUtils.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct StyleField
{
    QString CSSClass::*member;
    const char* element;
    QLatin1StringView defaultText;
};

// In the order of the file.
constexpr std::array styleFields = {
    StyleField{&CSSClass::CSSName, "CSSName", "UNDEFINED_CSS_NAME"_L1},
    StyleField{&CSSClass::ForeGroundColor, "ForeGroundColor", "#000000"_L1},
    StyleField{&CSSClass::BackGroundColor, "BackGroundColor", "#FFFFFF"_L1},
    StyleField{&CSSClass::FontName, "FontName", "Arial"_L1},
    StyleField{&CSSClass::FontSize, "FontSize", "10pt"_L1},
    StyleField{&CSSClass::IsBold, "IsBold", "No"_L1},
    StyleField{&CSSClass::IsCursive, "IsCursive", "No"_L1},
    StyleField{&CSSClass::IsUndcelined, "IsUnderlined", "No"_L1},
    StyleField{&CSSClass::IsLineThrugh, "IsLineThrugh", "No"_L1},
};

} // namespace

CSSClass::CSSClass() : ForeGroundColor(u"0"_s), BackGroundColor(u"255"_s) {}

void CSSClass::FromXML(const pugi::xml_node& element)
{
    for (const StyleField& field : styleFields) {
        this->*field.member = GetNodeText(element, field.element, field.defaultText);
    }
}

void CSSClass::ToXML(pugi::xml_node element) const
{
    for (const StyleField& field : styleFields) {
        AddChildElement(element, field.element, this->*field.member);
    }
}
