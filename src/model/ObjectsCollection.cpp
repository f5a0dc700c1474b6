#include "model/ObjectsCollection.h"

#include "base/Circumstances.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

template <class Node>
const std::shared_ptr<Node>& nodeOf(const CatalogueObject& object)
{
    const auto* node = std::get_if<std::shared_ptr<Node>>(&object);
    if (node == nullptr) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    return *node;
}

} // namespace

QString nodeKey(const QString& id)
{
    QString key(id.size() + 2, Qt::Uninitialized);
    key[0] = u'I';
    key[1] = u'D';
    std::copy(id.cbegin(), id.cend(), key.begin() + 2);
    return key;
}

QString shopNodeKey()
{
    return u"ID_SHOP"_s;
}

const std::shared_ptr<CategoryClass>& ObjectsCollection::Category(const QString& id) const
{
    return during([&] { return u"There is no category with the id %1 in the catalogue."_s.arg(inQuotes(id)); },
                  [&]() -> const auto& { return nodeOf<CategoryClass>(Item(nodeKey(id))); });
}

const std::shared_ptr<ProductClass>& ObjectsCollection::Product(const QString& id) const
{
    return during([&] { return u"There is no product with the id %1 in the catalogue."_s.arg(inQuotes(id)); },
                  [&]() -> const auto& { return nodeOf<ProductClass>(Item(nodeKey(id))); });
}

const KeyedCollection<CatalogueObject>& ObjectsCollection::items() const
{
    if (!m_items) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *m_items;
}

KeyedCollection<CatalogueObject>& ObjectsCollection::ownItems()
{
    if (!m_items) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *m_items;
}
