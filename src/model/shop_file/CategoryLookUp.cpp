#include "model/shop_file/CategoryLookUp.h"

#include "model/CategoryClass.h"

#include <algorithm>

namespace {

constexpr std::array<const char*, inCategory::Count> categoryNames = {"Id",    "Name",   "Description", "Picture",
                                                                      "Width", "Height", "Discount"};

} // namespace

CategoryLookUp::Found CategoryLookUp::find(const pugi::xml_node& category, int level)
{
    const auto ahead = m_ahead.find(category.hash_value());
    if (ahead == m_ahead.end()) {
        return lookThrough(category, level);
    }
    const Found found = ahead->second;
    m_ahead.erase(ahead);
    return found;
}

// Of what lies deeper than a category may, none will be read as one: it is walked over without recursion.
CategoryLookUp::Found CategoryLookUp::lookThrough(const pugi::xml_node& category, int level)
{
    Found found;
    std::size_t missing = found.size();
    for (const pugi::xml_node& child : category.children()) {
        for (std::size_t name = 0; name < categoryNames.size(); ++name) {
            if (!found[name] && isNamed(child, categoryNames[name])) {
                found[name] = child;
                --missing;
            }
        }
        if (missing == 0) {
            break;
        }
        if (level < MaximumCategoryLevel && isNamed(child, "Category")) {
            const Found below = lookThrough(child, level + 1);
            m_ahead.emplace(child.hash_value(), below);
            for (std::size_t name = 0; name < categoryNames.size(); ++name) {
                found[name] = found[name] ? found[name] : below[name];
            }
        } else if (child.first_child()) {
            findFirstDescendants(child, categoryNames, found);
        }
        missing = static_cast<std::size_t>(std::count(found.begin(), found.end(), pugi::xml_node()));
    }
    return found;
}

QString CategoryLookUp::text(inCategory::Element name, const Found& found, const QString& defaultText, XmlTexts& texts)
{
    if (!found[name]) {
        return defaultText;
    }
    Last& last = m_last[name];
    if (last.element != found[name]) {
        last = {found[name], texts.text(found[name])};
    }
    return last.text;
}

const QString* CategoryLookUp::known(inCategory::Element name, const pugi::xml_node& element) const
{
    return m_last[name].element == element ? &m_last[name].text : nullptr;
}
