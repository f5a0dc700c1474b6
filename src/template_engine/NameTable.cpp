#include "template_engine/NameTable.h"

#include "base/RuntimeError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Code point by code point, as the case-insensitive comparison of QString does it; QString::toCaseFolded would make
// "ss" of a sharp s.
QString foldedName(QStringView name)
{
    QString folded;
    folded.reserve(name.size());
    for (qsizetype i = 0; i < name.size(); ++i) {
        char32_t character = name[i].unicode();
        if (name[i].isHighSurrogate() && i + 1 < name.size() && name[i + 1].isLowSurrogate()) {
            character = QChar::surrogateToUcs4(name[i], name[i + 1]);
            ++i;
        }
        folded += QChar::fromUcs4(QChar::toCaseFolded(character));
    }
    return folded;
}

} // namespace

Shape::Shape(NameTable& names, Shape* parent, const QString& key, NameId name)
    : m_names(names),
      m_parent(parent),
      m_key(key),
      m_name(name),
      m_size(parent == nullptr ? 0 : parent->m_size + 1),
      m_longest(m_size)
{
}

const QString& Shape::key(int slot) const
{
    const Shape* shape = this;
    while (shape->m_size > slot + 1) {
        shape = shape->m_parent;
    }
    return shape->m_key;
}

Shape* Shape::findOrMakeNext(QStringView key)
{
    const auto known =
        std::find_if(m_next.begin(), m_next.end(), [key](const Shape* next) { return next->m_key == key; });
    if (known != m_next.end()) {
        return m_latest = *known;
    }

    const NameId name = m_names.intern(key);
    for (const Shape* shape = this; shape != nullptr; shape = shape->m_parent) {
        if (shape->m_name == name) {
            throw RuntimeError(ErrorNumber::DuplicateKey, u"The variable \"%1\" is there already."_s.arg(key));
        }
    }
    m_latest = &m_names.m_shapes.emplace_back(m_names, this, key.toString(), name);
    m_next.push_back(m_latest);
    for (Shape* shape = this; shape != nullptr && shape->m_longest < m_latest->m_size; shape = shape->m_parent) {
        shape->m_longest = m_latest->m_size;
    }
    return m_latest;
}

void Shape::fillSlots() const
{
    for (const Shape* shape = this; shape->m_parent != nullptr; shape = shape->m_parent) {
        const auto name = static_cast<std::size_t>(shape->m_name);
        if (name >= m_slots.size()) {
            m_slots.resize(name + 1, -1);
        }
        m_slots[name] = shape->m_size - 1;
    }
}

NameTable::NameTable()
{
    m_shapes.emplace_back(*this, nullptr, QString(), NoName);
}

NameId NameTable::intern(QStringView name)
{
    const QString folded = foldedName(name);
    const auto known = m_ids.constFind(folded);
    if (known != m_ids.constEnd()) {
        return *known;
    }
    const auto id = static_cast<NameId>(m_ids.size());
    m_ids.insert(folded, id);
    return id;
}

NameId NameTable::find(QStringView name) const
{
    return m_ids.value(foldedName(name), NoName);
}
