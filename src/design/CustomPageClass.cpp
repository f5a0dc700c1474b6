#include "design/CustomPageClass.h"

#include "base/XMLUtils.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct PageField
{
    QString CustomPageClass::*member;
    const char* element;
    QLatin1StringView defaultText;
};

// In the order of the file.
constexpr std::array pageFields = {
    PageField{&CustomPageClass::pageName, "PageName", "UNDEFINED_PAGE_NAME"_L1},
    PageField{&CustomPageClass::ImageName, "ImageName", ""_L1},
    PageField{&CustomPageClass::ImageAligment, "ImageAligment", "Left"_L1},
    PageField{&CustomPageClass::ContentText, "ContentText", ""_L1},
};

} // namespace

void CustomPageClass::FromXML(const pugi::xml_node& element)
{
    for (const PageField& field : pageFields) {
        this->*field.member = GetNodeText(element, field.element, field.defaultText);
    }
}

void CustomPageClass::ToXML(pugi::xml_node element) const
{
    for (const PageField& field : pageFields) {
        AddChildElement(element, field.element, this->*field.member);
    }
}
