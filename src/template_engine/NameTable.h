// The names of template variables, each known by a small number, so that an expansion compares numbers and no texts.
// Names are compared without regard to case, as QString's case-insensitive comparison does.
//
// Templates_Set owns the one table of the program; its templates and all Variables that are poured into them work on
// it. The table also keeps the shapes: a shape is the sequence of keys that a Variables was filled with, so rows that
// are filled alike share one shape and hold only their values.
#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

#include <deque>
#include <vector>

using NameId = int;
constexpr NameId NoName = -1;

class NameTable;

// One sequence of keys. Adding a key leads to the shape that is longer by this key; the way there is remembered, and
// filling the next row alike costs one comparison of texts for each key.
class Shape
{
public:
    Shape(NameTable& names, Shape* parent, const QString& key, NameId name);
    Shape(const Shape&) = delete;
    Shape& operator=(const Shape&) = delete;

    NameTable& names() const { return m_names; }
    int size() const { return m_size; }
    // How many keys the longest shape has that begins like this one.
    int longest() const { return m_longest; }
    // The key at a slot, 0-based, as it was spelled when it was added.
    const QString& key(int slot) const;

    // The shape with one more key. ErrorNumber::DuplicateKey when the name is among the keys already.
    Shape* with(QStringView key)
    {
        if (m_latest != nullptr && m_latest->m_key == key) {
            return m_latest;
        }
        return findOrMakeNext(key);
    }

    // The 0-based slot of a name, -1 when it is not among the keys.
    int slotOf(NameId name) const
    {
        if (m_slots.empty() && m_size > 0) {
            fillSlots();
        }
        return name >= 0 && name < static_cast<NameId>(m_slots.size()) ? m_slots[static_cast<std::size_t>(name)] : -1;
    }

private:
    Shape* findOrMakeNext(QStringView key);
    void fillSlots() const;

    NameTable& m_names;
    Shape* m_parent;
    QString m_key; // the last key; all others are the parent's
    NameId m_name;
    int m_size;
    int m_longest;
    Shape* m_latest = nullptr; // where the last addition went
    std::vector<Shape*> m_next;
    mutable std::vector<int> m_slots; // by name; filled by the first search
};

class NameTable
{
public:
    NameTable();
    NameTable(const NameTable&) = delete;
    NameTable& operator=(const NameTable&) = delete;

    // The number of a name, a new one when the name is new.
    NameId intern(QStringView name);
    // The number of a name, NoName when the table has never met it.
    NameId find(QStringView name) const;

    // The shape without keys, where all others begin.
    Shape* emptyShape() { return &m_shapes.front(); }

private:
    friend class Shape;

    QHash<QString, NameId> m_ids; // by folded name
    std::deque<Shape> m_shapes;   // a deque, since shapes are pointed to
};
