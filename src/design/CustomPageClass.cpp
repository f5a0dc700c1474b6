#include "design/CustomPageClass.h"

#include "base/XMLUtils.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    QString CustomPageClass::*member;
    const char* element;
    QLatin1StringView defaultText;
};

// In the order of the file.
constexpr std::array rows = {
    Row{&CustomPageClass::pageName, "PageName", "UNDEFINED_PAGE_NAME"_L1},
    Row{&CustomPageClass::ImageName, "ImageName", ""_L1},
    Row{&CustomPageClass::ImageAligment, "ImageAligment", "Left"_L1},
    Row{&CustomPageClass::ContentText, "ContentText", ""_L1},
};

} // namespace

void CustomPageClass::FromXML(const pugi::xml_node& element)
{
    for (const Row& row : rows) {
        this->*row.member = GetNodeText(element, row.element, row.defaultText);
    }
}

void CustomPageClass::ToXML(pugi::xml_node element) const
{
    for (const Row& row : rows) {
        AddChildElement(element, row.element, this->*row.member);
    }
}
