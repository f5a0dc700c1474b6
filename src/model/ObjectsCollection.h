// Every node of the catalogue tree under its node key ("ID_SHOP", or "ID" followed by the id), in the order of adding.
// It is the only link from a tree node to the model. The session owns the one collection; it is made when the tree is
// built, and asking it before that, which a shop file without a shop leads to, is ErrorNumber::ObjectNotSet.
#pragma once

#include "base/KeyedCollection.h"

#include <QString>

#include <memory>
#include <optional>
#include <variant>
#include <vector>

class CategoryClass;
class ProductClass;
class ShopClass;

// One node's object. The empty state stands for "no object".
using CatalogueObject = std::variant<std::monostate, std::shared_ptr<ShopClass>, std::shared_ptr<CategoryClass>,
                                     std::shared_ptr<ProductClass>>;

// "ID" followed by the id.
QString nodeKey(const QString& id);
// The key of the root node, the shop: "ID_SHOP".
QString shopNodeKey();

class ObjectsCollection
{
public:
    // Makes the collection, or makes it new: empty, with room for as many nodes as are expected.
    void create(int expected = 0) { m_items.emplace().reserve(expected); }
    bool isCreated() const { return m_items.has_value(); }

    // ErrorNumber::DuplicateKey when the key is there already.
    void Add(const CatalogueObject& object, const QString& key) { ownItems().Add(object, key); }
    // ErrorNumber::InvalidArgument when the key is missing.
    void Remove(const QString& key) { ownItems().Remove(key); }
    // The same for many keys at once: those ahead of a missing one are removed.
    void removeAll(const std::vector<QString>& keys) { ownItems().removeAll(keys); }
    const CatalogueObject& Item(const QString& key) const { return items().Item(key); }
    bool hasKey(const QString& key) const { return items().hasKey(key); }

    // The category or product with that id. ErrorNumber::InvalidArgument when there is no node of that id, TypeMismatch
    // when it is of another kind.
    const std::shared_ptr<CategoryClass>& Category(const QString& id) const;
    const std::shared_ptr<ProductClass>& Product(const QString& id) const;

    // All nodes in order, for range-based loops.
    const KeyedCollection<CatalogueObject>& items() const;

private:
    KeyedCollection<CatalogueObject>& ownItems();

    std::optional<KeyedCollection<CatalogueObject>> m_items;
};
