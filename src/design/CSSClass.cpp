#include "design/CSSClass.h"

#include "base/XMLUtils.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    QString CSSClass::*member;
    const char* element;
    QLatin1StringView defaultText;
};

// In the order of the file.
constexpr std::array rows = {
    Row{&CSSClass::CSSName, "CSSName", "UNDEFINED_CSS_NAME"_L1},
    Row{&CSSClass::ForeGroundColor, "ForeGroundColor", "#000000"_L1},
    Row{&CSSClass::BackGroundColor, "BackGroundColor", "#FFFFFF"_L1},
    Row{&CSSClass::FontName, "FontName", "Arial"_L1},
    Row{&CSSClass::FontSize, "FontSize", "10pt"_L1},
    Row{&CSSClass::IsBold, "IsBold", "No"_L1},
    Row{&CSSClass::IsCursive, "IsCursive", "No"_L1},
    Row{&CSSClass::IsUndcelined, "IsUnderlined", "No"_L1},
    Row{&CSSClass::IsLineThrugh, "IsLineThrugh", "No"_L1},
};

} // namespace

CSSClass::CSSClass() : ForeGroundColor(u"0"_s), BackGroundColor(u"255"_s) {}

void CSSClass::FromXML(const pugi::xml_node& element)
{
    for (const Row& row : rows) {
        this->*row.member = GetNodeText(element, row.element, row.defaultText);
    }
}

void CSSClass::ToXML(pugi::xml_node element) const
{
    for (const Row& row : rows) {
        AddChildElement(element, row.element, this->*row.member);
    }
}
