#include "design/clsSelectedImage.h"

#include "base/ApplicationTitle.h"
#include "base/RuntimeError.h"
#include "base/WholeNumbers.h"
#include "base/XMLUtils.h"
#include "base/XmlReading.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct SelectionName
{
    ImageSelection selection;
    QLatin1StringView name;
};

constexpr std::array selectionNames = {
    SelectionName{ImageSelection::Nothing, "Nothing"_L1},
    SelectionName{ImageSelection::Text, "Text"_L1},
    SelectionName{ImageSelection::Image, "Image"_L1},
};

QString nameOf(ImageSelection selection)
{
    for (const SelectionName& row : selectionNames) {
        if (row.selection == selection) {
            return row.name;
        }
    }
    return {};
}

enum Element : std::size_t { SelectionType, FileName, Text, Width, Height, ElementCount };
constexpr std::array<const char*, ElementCount> elementNames = {"SelectionType", "FileName", "Text", "Width", "Height"};

} // namespace

clsSelectedImage::clsSelectedImage(const DesignServices& services, const QString& tag) : Tag(tag), m_services(&services)
{
}

qint16 clsSelectedImage::WidthBmp()
{
    if (m_size.width == 0 && !imageFileName.isEmpty()) {
        m_size.width = readImageSize(m_services->folder, imageFileName).width;
    }
    return m_size.width;
}

qint16 clsSelectedImage::HeightBmp()
{
    if (m_size.height == 0 && !imageFileName.isEmpty()) {
        m_size.height = readImageSize(m_services->folder, imageFileName).height;
    }
    return m_size.height;
}

void clsSelectedImage::ToXML(pugi::xml_node parent, Unwritable unwritable)
{
    const pugi::xml_node element = AddChildElement(parent, Tag.toUtf8().constData(), u"HUERAGA"_s);
    AddChildElement(element, elementNames[Element::SelectionType], nameOf(SelectionType));
    AddChildElement(element, elementNames[Element::FileName], imageFileName);
    AddChildElement(element, elementNames[Element::Text], TextValue);
    ImageSize size = m_size;
    if (!imageFileName.isEmpty() && (size.width == 0 || size.height == 0)) {
        size = sizeForFile(unwritable);
    }
    AddChildElement(element, elementNames[Element::Width], QString::number(size.width));
    AddChildElement(element, elementNames[Element::Height], QString::number(size.height));
}

ImageSize clsSelectedImage::sizeForFile(Unwritable unwritable)
{
    if (unwritable == Unwritable::Raises) {
        m_size = readImageSize(m_services->folder, imageFileName);
        return m_size;
    }
    try {
        return readImageSize(m_services->folder, imageFileName);
    } catch (const RuntimeError&) {
        return m_size;
    }
}

ImageSize clsSelectedImage::writtenSize(Unwritable unwritable)
{
    if (unwritable == Unwritable::Raises) {
        return {WidthBmp(), HeightBmp()};
    }
    ImageSize size = m_size;
    if (!imageFileName.isEmpty() && (size.width == 0 || size.height == 0)) {
        const ImageSize inFile = sizeForFile(unwritable);
        size.width = size.width != 0 ? size.width : inFile.width;
        size.height = size.height != 0 ? size.height : inFile.height;
    }
    return size;
}

void clsSelectedImage::FromXML(const pugi::xml_node& node)
{
    if (Tag.isEmpty()) {
        m_services->prompts.showMessage(
            applicationTitle(), u"You didn't type tag for one of the image selection type"_s, PromptIcon::Critical);
        return;
    }
    const pugi::xml_node element = firstDescendant(node, Tag.toUtf8().constData());
    if (!element) {
        return;
    }
    std::array<pugi::xml_node, ElementCount> found;
    findFirstDescendants(element, elementNames, found);
    m_size = {};
    const QString type = textOr(found[Element::SelectionType], u"0"_s);
    for (const SelectionName& row : selectionNames) {
        if (type == row.name) {
            SelectionType = row.selection;
        }
    }
    // The test is on the word that was read: an unknown one leaves the type and brings no size.
    if (type == nameOf(ImageSelection::Image)) {
        m_size.width = int16FromText(textOr(found[Element::Width], u"0"_s));
        m_size.height = int16FromText(textOr(found[Element::Height], u"0"_s));
    }
    TextValue = textOr(found[Element::Text], QString());
    imageFileName = textOr(found[Element::FileName], QString());
}

ImageSizeTexts clsSelectedImage::GetBitmapSize(const ImageSize& shownPicture) const
{
    return {QString::number(m_size.width != 0 ? m_size.width : shownPicture.width),
            QString::number(m_size.height != 0 ? m_size.height : shownPicture.height)};
}

ImageSizeTexts clsSelectedImage::GetBitmapSizeOriginal(const ImageSize& shownPicture)
{
    m_size = shownPicture;
    return {QString::number(m_size.width), QString::number(m_size.height)};
}

void clsSelectedImage::GetBitmapSizeVirtual(const QString& fileName)
{
    if (fileName.isEmpty()) {
        return;
    }
    try {
        m_size = readImageSize(m_services->folder, fileName);
    } catch (const RuntimeError&) {
        // A file that cannot be read leaves the size as it was.
    }
}
