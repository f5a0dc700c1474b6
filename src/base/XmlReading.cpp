#include "base/XmlReading.h"

#include "base/RuntimeError.h"
#include "base/XMLUtils.h"
#include "base/XmlText.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstring>
#include <string_view>
#include <type_traits>

namespace {

// The library's objects are plain pointers. Comparing them here saves a call into the library for every node.
const void* pointerOf(const pugi::xml_node& node)
{
    static_assert(sizeof(pugi::xml_node) == sizeof(void*) && std::is_trivially_copyable_v<pugi::xml_node>);
    return std::bit_cast<const void*>(node);
}

bool isEmpty(const pugi::xml_node& node)
{
    return pointerOf(node) == nullptr;
}

// As nextNode, for the long walks.
pugi::xml_node nodeBehind(const pugi::xml_node& node, const pugi::xml_node& top)
{
    const pugi::xml_node child = node.first_child();
    if (!isEmpty(child)) {
        return child;
    }
    for (pugi::xml_node at = node; pointerOf(at) != pointerOf(top); at = at.parent()) {
        const pugi::xml_node sibling = at.next_sibling();
        if (!isEmpty(sibling)) {
            return sibling;
        }
    }
    return {};
}

// The place of a name, tried first behind the place of the last hit, where a file in the usual order has it.
std::size_t placeOf(const char* name, std::span<const char* const> names, std::size_t likely)
{
    if (likely < names.size() && names[likely][0] == name[0] && std::strcmp(name, names[likely]) == 0) {
        return likely;
    }
    for (std::size_t place = 0; place < names.size(); ++place) {
        if (names[place][0] == name[0] && std::strcmp(name, names[place]) == 0) {
            return place;
        }
    }
    return names.size();
}

// The number behind the prefix, written without zeros ahead; -1 when the name is of another form.
int numberBehind(std::string_view name, std::string_view prefix)
{
    if (!name.starts_with(prefix)) {
        return -1;
    }
    name.remove_prefix(prefix.size());
    if (name.empty() || name.front() == '-' || (name.front() == '0' && name.size() > 1)) {
        return -1;
    }
    int number = 0;
    const auto result = std::from_chars(name.data(), name.data() + name.size(), number);
    return result.ec == std::errc() && result.ptr == name.data() + name.size() ? number : -1;
}

// Whether the first child node is a text that the parser put into the element.
bool hasTextInside(const pugi::xml_node& node)
{
    return node.type() == pugi::node_element && *node.value() != '\0';
}

} // namespace

void findFirstDescendants(const pugi::xml_node& element, std::span<const char* const> names,
                          std::span<pugi::xml_node> hits)
{
    auto missing = static_cast<std::size_t>(std::count_if(hits.begin(), hits.end(), isEmpty));
    std::size_t likely = 0;
    for (pugi::xml_node at = nodeBehind(element, element); !isEmpty(at) && missing > 0; at = nodeBehind(at, element)) {
        const std::size_t place = placeOf(at.name(), names, likely);
        if (place < names.size() && !hits[place]) {
            hits[place] = at;
            likely = place + 1;
            --missing;
        }
    }
}

QString XmlTexts::text(const pugi::xml_node& node)
{
    if (!node.first_child()) {
        return textFromUtf8(node.value());
    }
    QByteArray text;
    for (pugi::xml_node at = node; !isEmpty(at); at = nodeBehind(at, node)) {
        const char* piece = at.value();
        const auto length = static_cast<qsizetype>(std::strlen(piece));
        m_allowance -= length + 1;
        if (m_allowance < 0) {
            throw RuntimeError(ErrorNumber::OutOfMemory);
        }
        text.append(piece, length);
    }
    return textFromUtf8(text);
}

QString XmlTexts::textOr(const pugi::xml_node& found, const QString& defaultText)
{
    return found ? text(found) : defaultText;
}

void FlatElements::gather(const pugi::xml_node& element)
{
    m_rows.clear();
    m_open.clear();
    m_rows.push_back({element, 0, none});
    m_open.push_back(0);
    std::size_t likely = 0;
    pugi::xml_node at = element.first_child();
    while (!m_open.empty()) {
        if (isEmpty(at)) {
            // The end of a row of siblings: go on behind their parent.
            const Place parent = m_open.back();
            m_open.pop_back();
            m_rows[parent].end = static_cast<Place>(m_rows.size());
            at = m_open.empty() ? pugi::xml_node() : m_rows[parent].node.next_sibling();
            continue;
        }
        const std::uint32_t name = nameOf(at.name(), likely);
        if (name != none) {
            likely = name + 1;
        }
        const auto place = static_cast<Place>(m_rows.size());
        m_rows.push_back({at, place + 1, name});
        const pugi::xml_node child = at.first_child();
        if (isEmpty(child)) {
            at = at.next_sibling();
        } else {
            m_open.push_back(place);
            at = child;
        }
    }
}

std::uint32_t FlatElements::nameOf(const char* name, std::size_t likely) const
{
    const std::size_t place = placeOf(name, m_names, likely);
    return place < m_names.size() ? static_cast<std::uint32_t>(place) : none;
}

void FlatElements::findFirst(Place below, std::span<Place> hits) const
{
    std::fill(hits.begin(), hits.end(), none);
    for (Place place = below + 1; place < m_rows[below].end; ++place) {
        const std::uint32_t name = m_rows[place].name;
        if (name != none && hits[name] == none) {
            hits[name] = place;
        }
    }
}

// From the end to the start, the first element of each name behind the place is always known; it lies below the place
// when the place has not ended before it. The rows come out in reverse.
void FlatElements::findRows(std::size_t rowName, Place below, std::span<const std::size_t> wanted,
                            std::vector<Place>& rows, std::vector<Place>& hits) const
{
    rows.clear();
    hits.clear();
    std::vector<Place> next(m_names.size(), none);
    for (Place place = m_rows[below].end; --place > below;) {
        const Row& row = m_rows[place];
        if (row.name == none) {
            continue;
        }
        if (row.name == rowName) {
            rows.push_back(place);
            for (std::size_t i = wanted.size(); i-- > 0;) {
                const Place hit = next[wanted[i]];
                hits.push_back(hit < row.end ? hit : none);
            }
        }
        next[row.name] = place;
    }
    std::reverse(rows.begin(), rows.end());
    std::reverse(hits.begin(), hits.end());
}

void FlatElements::findNumbered(const char* prefix, int firstNumber, int count, Place below,
                                std::vector<Numbered>& hits) const
{
    hits.clear();
    for (Place place = below + 1; place < m_rows[below].end; ++place) {
        if (m_rows[place].name == none) {
            const int index = numberBehind(m_rows[place].node.name(), prefix) - firstNumber;
            if (index >= 0 && index < count) {
                hits.push_back({index, place});
            }
        }
    }
    const auto isBefore = [](const Numbered& a, const Numbered& b) { return a.index < b.index; };
    const auto isSame = [](const Numbered& a, const Numbered& b) { return a.index == b.index; };
    if (!std::is_sorted(hits.begin(), hits.end(), isBefore)) {
        std::stable_sort(hits.begin(), hits.end(), isBefore);
    }
    hits.erase(std::unique(hits.begin(), hits.end(), isSame), hits.end());
}

void FlatElements::findNumberedRows(std::size_t rowName, Place below, const char* prefix, int firstNumber, int count,
                                    std::vector<Place>& hits) const
{
    hits.clear();
    std::vector<Place> next(static_cast<std::size_t>(count), none);
    for (Place place = m_rows[below].end; --place > below;) {
        const Row& row = m_rows[place];
        if (row.name == rowName) {
            for (auto hit = next.rbegin(); hit != next.rend(); ++hit) {
                hits.push_back(*hit < row.end ? *hit : none);
            }
        } else if (row.name == none) {
            const int index = numberBehind(row.node.name(), prefix) - firstNumber;
            if (index >= 0 && index < count) {
                next[static_cast<std::size_t>(index)] = place;
            }
        }
    }
    std::reverse(hits.begin(), hits.end());
}

QString FlatElements::text(Place place, XmlTexts& texts, const QString& defaultText) const
{
    return place == none ? defaultText : texts.text(m_rows[place].node);
}

const char* FlatElements::rawText(Place place) const
{
    return m_rows[place].end == place + 1 ? m_rows[place].node.value() : nullptr;
}

bool isNamed(const pugi::xml_node& node, const char* name)
{
    return std::strcmp(node.name(), name) == 0;
}

std::vector<pugi::xml_node> allDescendants(const pugi::xml_node& element, const char* name)
{
    std::vector<pugi::xml_node> hits;
    for (pugi::xml_node at = nextNode(element, element); at; at = nextNode(at, element)) {
        if (std::strcmp(at.name(), name) == 0) {
            hits.push_back(at);
        }
    }
    return hits;
}

QString textOr(const pugi::xml_node& found, const QString& defaultText)
{
    return found ? nodeText(found) : defaultText;
}

std::vector<QString> childTexts(const pugi::xml_node& element)
{
    std::vector<QString> texts;
    if (hasTextInside(element)) {
        texts.push_back(textFromUtf8(element.value()));
    }
    for (const pugi::xml_node& child : element.children()) {
        texts.push_back(nodeText(child));
    }
    return texts;
}

std::vector<std::optional<QString>> firstGrandchildTexts(const pugi::xml_node& element)
{
    std::vector<std::optional<QString>> texts;
    if (hasTextInside(element)) {
        texts.emplace_back(); // a text has no child
    }
    for (const pugi::xml_node& child : element.children()) {
        if (hasTextInside(child)) {
            texts.emplace_back(textFromUtf8(child.value()));
        } else if (const pugi::xml_node grandchild = child.first_child()) {
            texts.emplace_back(nodeText(grandchild));
        } else {
            texts.emplace_back();
        }
    }
    return texts;
}
