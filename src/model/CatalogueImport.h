// How the lines of one import find their way through the categories. Made for one run, during which nothing else
// changes the catalogue: each level that a path leads through is looked through once, and its names are then known.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

class CategoryClass;
class ShopClass;

class CatalogueImport
{
public:
    // The shop must outlive it.
    explicit CatalogueImport(ShopClass& shop) : m_shop(shop) {}

    // Finds or makes the categories of the path in fields[2], below the given category or, without one, from the root,
    // and adds a product named fields[0] with the description fields[1] to the last; the fields are consumed.
    // ErrorNumber::SubscriptOutOfRange with fewer than three of them, OutOfStackSpace when the path is too deep,
    // DuplicateKey when the next id is taken.
    void addProduct(QStringList& fields, std::shared_ptr<CategoryClass> top = nullptr);

private:
    using Names = QHash<QString, std::shared_ptr<CategoryClass>>;

    // The first category of that name below the parent; a new one when there is none. `level` is the parent's.
    std::shared_ptr<CategoryClass> categoryBelow(const std::shared_ptr<CategoryClass>& parent, int level,
                                                 QStringView name);
    Names namesBelow(const CategoryClass* parent) const;
    std::shared_ptr<CategoryClass> makeCategory(const std::shared_ptr<CategoryClass>& parent, const QString& name);
    void makeProduct(const std::shared_ptr<CategoryClass>& category, QStringList& fields);

    ShopClass& m_shop;
    QHash<const CategoryClass*, Names> m_names; // by the category above; those of the root under none
};
