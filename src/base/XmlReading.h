// Looking up many elements of one parent at once. The rule is that of firstDescendant, the first element of a name at
// any depth in document order, but one walk serves all names: a search per field costs five times as much.
#pragma once

#include <QString>

#include <cstddef>
#include <optional>
#include <pugixml.hpp>
#include <span>
#include <vector>

// Finds the first descendant of each of the names. An element that is not there stays an empty node. `hits` has as many
// places as `names`. The walk ends when all are found; it is quickest for elements in the order of the names.
void findFirstDescendants(const pugi::xml_node& element, std::span<const char* const> names,
                          std::span<pugi::xml_node> hits);

// The elements below one element, gathered in one walk, for look-ups in several of them: each look-up is then a run
// over small numbers. One object serves many elements, one after the other, and keeps its memory.
class FlatElements
{
public:
    // `names` are all that will be looked up. The walk is quickest for elements in the order of the names.
    explicit FlatElements(std::span<const char* const> names) : m_names(names) {}

    // Gathers everything below the element; what was gathered before is dropped.
    void gather(const pugi::xml_node& element);

    // An element's place in document order, from 1 on; 0 is the element that was gathered itself.
    using Place = std::size_t;
    static constexpr Place none = static_cast<Place>(-1);

    // For each name, the place of its first element below the given one; `none` where there is none. `hits` has as many
    // places as `names`.
    void findFirst(Place below, std::span<Place> hits) const;
    // The first element of a name behind one place and below another.
    Place next(std::size_t name, Place behind, Place below) const;
    // For each of the numbered names "Cost1", "Cost2" and so on, beginning with `firstNumber`, the place of its first
    // element below the given one; `none` where there is none. The names are none of `names`.
    void findNumbered(const char* prefix, int firstNumber, Place below, std::span<Place> hits) const;

    const pugi::xml_node& node(Place place) const { return m_rows[place].node; }
    // All text below the element of that place, the default for `none`.
    QString text(Place place, const QString& defaultText = QString()) const;
    // The text as it lies in the document, ended by a zero byte; nothing when it is in several pieces.
    const char* rawText(Place place) const;

private:
    struct Row
    {
        pugi::xml_node node;
        Place end;        // behind the last element below
        std::size_t name; // place in m_names, or none
    };

    std::size_t nameOf(const char* name, std::size_t likely) const;

    std::span<const char* const> m_names;
    std::vector<Row> m_rows;
    std::vector<Place> m_open; // the elements that the walk is inside of
};

// The first descendants of numbered names: "Cost1", "Cost2" and so on, `count` of them beginning with `firstNumber`.
std::vector<pugi::xml_node> findNumberedDescendants(const pugi::xml_node& element, const char* prefix, int firstNumber,
                                                    int count);

// All descendants of that name, at any depth, in document order.
std::vector<pugi::xml_node> allDescendants(const pugi::xml_node& element, const char* name);

// The text of a node that a look-up found, or the default when it found none.
QString textOr(const pugi::xml_node& found, const QString& defaultText);

// The child nodes of an element: a text is one, too, and comments are none. A text that is the first child sits in the
// element itself (see XmlFile.h), which these hide.
// The texts of all child nodes, in order.
std::vector<QString> childTexts(const pugi::xml_node& element);
// For each child node, in order, the text of its own first child node; nothing for one without children.
std::vector<std::optional<QString>> firstGrandchildTexts(const pugi::xml_node& element);
