// The look-up of a category's elements. Where a category lacks one, the first below it counts, at any depth: of nested
// categories that all lack it, each would search all that lies below. So a category that was looked through for one
// above it is remembered until its own turn comes. A part of ShopReading.
#pragma once

#include "base/XmlReading.h"

#include <QString>

#include <array>
#include <cstddef>
#include <unordered_map>

// What is looked up in a category, in the order of the file.
namespace inCategory {
enum Element : std::size_t { Id, Name, Description, Picture, Width, Height, Discount, Count };
} // namespace inCategory

class CategoryLookUp
{
public:
    using Found = std::array<pugi::xml_node, inCategory::Count>;

    // The elements of a category that lies so many levels deep, 1 for a root category. Each category is asked for once,
    // those above before those below.
    Found find(const pugi::xml_node& category, int level);

    // The text of what was found, the default where nothing was. Categories that found the same element share its text.
    QString text(inCategory::Element name, const Found& found, const QString& defaultText, XmlTexts& texts);
    // The text that the last category found there when it is of that element, too; else nothing.
    const QString* known(inCategory::Element name, const pugi::xml_node& element) const;

private:
    struct Last
    {
        pugi::xml_node element;
        QString text;
    };

    Found lookThrough(const pugi::xml_node& category, int level);

    std::unordered_map<std::size_t, Found> m_ahead; // by the element's hash
    std::array<Last, inCategory::Discount> m_last;
};
