// What a page passes to the expansion of its template: values under names, in the order of adding. Page code makes one,
// adds the page's values and lists, and hands it to Template::Get_String:
//
//     Variables page(names);
//     page.Add(u"shop_name", shop.name);
//     VariableRows rows;
//     for (...) {
//         Variables row(names);
//         row.Add(u"id", product.id);
//         rows.push_back(std::move(row));
//     }
//     page.Add(u"products", std::move(rows));
//
// Rows that add the same keys in the same order are the fast case (see NameTable.h); nothing has to be said for it.
// After a Variables was moved from, it can only be assigned to.
#pragma once

#include "template_engine/NameTable.h"

#include <QString>
#include <QStringView>

#include <memory>
#include <variant>
#include <vector>

// An object that stands in a Variables and is asked for its text when a template shows it, not before.
class TextObject
{
public:
    virtual ~TextObject() = default;
    virtual QString text() const = 0;
};

class Variables;
using VariableRows = std::vector<Variables>;

// A text, an integer, a boolean, a single, an object with a text, or a list of rows (none at all counts as no rows).
using VariableValue =
    std::variant<QString, qint16, bool, float, std::shared_ptr<const TextObject>, std::shared_ptr<const VariableRows>>;

class Variables
{
public:
    // The table of the templates that will be expanded; it must outlive the Variables.
    explicit Variables(NameTable& names) : m_shape(names.emptyShape()) {}

    // Appends a value. ErrorNumber::DuplicateKey when the key is there already, in whatever case; nothing is changed
    // then.
    void Add(QStringView key, VariableValue value);
    void Add(QStringView key, VariableRows rows);

    int Count() const { return m_shape->size(); }
    bool exists(QStringView key) const;
    // The key at a position, 1-based, spelled as it was added. ErrorNumber::SubscriptOutOfRange when there is no
    // such position.
    const QString& Key(int index) const;
    // The value at a position, 1-based. ErrorNumber::SubscriptOutOfRange when there is no such position.
    const VariableValue& Item(int index) const;
    // The value under a key. ErrorNumber::InvalidArgument when there is none.
    const VariableValue& Item(QStringView key) const;

    const NameTable& names() const { return m_shape->names(); }
    // The value under a name of the same table; nullptr when there is none.
    const VariableValue* find(NameId name) const
    {
        const int slot = m_shape->slotOf(name);
        return slot < 0 ? nullptr : &m_values[static_cast<std::size_t>(slot)];
    }

private:
    void makeRoom();

    Shape* m_shape;
    std::vector<VariableValue> m_values; // in the order of the shape's keys
};

// The text form of a value: a text as it stands, an integer in plain decimal, True or False, a single with at most
// seven significant digits, an object's text. ErrorNumber::TypeMismatch for a list, ObjectNotSet for a null
// object.
QString textOf(const VariableValue& value);

// The rows of a list. ErrorNumber::TypeMismatch for everything else.
const VariableRows& rowsOf(const VariableValue& value);
