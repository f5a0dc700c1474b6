// Looking up many elements of one parent at once. The rule is that of firstDescendant, the first element of a name at
// any depth in document order, but one walk serves all names: a search per field costs five times as much.
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <pugixml.hpp>
#include <span>
#include <vector>

// Finds the first descendant of each of the names. An element that is not there stays an empty node, and what was found
// before stays as it is. `hits` has as many places as `names`. The walk ends when all are found; it is quickest for
// elements in the order of the names.
void findFirstDescendants(const pugi::xml_node& element, std::span<const char* const> names,
                          std::span<pugi::xml_node> hits);

// Takes texts out of one document. A text that lies inside of another one that is taken, too, costs its length again,
// and a small file could ask for more than there is memory for. So everything that is gathered from below an element
// counts, and beyond the allowance it is an error; texts that do not overlap never come near the document's size.
class XmlTexts
{
public:
    // How many characters and nodes may be gathered; the document's size in bytes, and something for overlaps.
    explicit XmlTexts(qsizetype allowance) : m_allowance(allowance) {}

    // As nodeText and textOr. ErrorNumber::OutOfMemory when the allowance is used up.
    QString text(const pugi::xml_node& node);
    QString textOr(const pugi::xml_node& found, const QString& defaultText);

private:
    qsizetype m_allowance;
};

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
    using Place = std::uint32_t;
    static constexpr Place none = static_cast<Place>(-1);

    // For each name, the place of its first element below the given one; `none` where there is none. `hits` has as many
    // places as `names`.
    void findFirst(Place below, std::span<Place> hits) const;
    // The same for every element of a name below the given one, in document order, and for the names `wanted` only.
    // Elements of that name may lie in each other: one run serves all of them. `hits` gets a row of `wanted` for each.
    void findRows(std::size_t rowName, Place below, std::span<const std::size_t> wanted, std::vector<Place>& rows,
                  std::vector<Place>& hits) const;
    // The numbered elements "Cost1", "Cost2" and so on, from `firstNumber` on and `count` of them at most: for each
    // number that there is, in ascending order, its first element below the given one. The names are none of `names`.
    struct Numbered
    {
        int index; // the number less firstNumber
        Place place;
    };
    void findNumbered(const char* prefix, int firstNumber, int count, Place below, std::vector<Numbered>& hits) const;
    // As findRows for numbered names: `hits` gets a row of `count` for each element of the name.
    void findNumberedRows(std::size_t rowName, Place below, const char* prefix, int firstNumber, int count,
                          std::vector<Place>& hits) const;

    // How many places there are.
    Place count() const { return static_cast<Place>(m_rows.size()); }
    const pugi::xml_node& node(Place place) const { return m_rows[place].node; }
    // All text below the element of that place, the default for `none`.
    QString text(Place place, XmlTexts& texts, const QString& defaultText = QString()) const;
    // The text as it lies in the document, ended by a zero byte; nothing when it is in several pieces.
    const char* rawText(Place place) const;

private:
    struct Row
    {
        pugi::xml_node node;
        Place end;          // behind the last element below
        std::uint32_t name; // place in m_names, or none
    };

    std::uint32_t nameOf(const char* name, std::size_t likely) const;

    std::span<const char* const> m_names;
    std::vector<Row> m_rows;
    std::vector<Place> m_open; // the elements that the walk is inside of
};

// Whether an element has that name.
bool isNamed(const pugi::xml_node& node, const char* name);

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
