// A category of the catalogue: sub-categories, products and a discount. Its parent, or the shop, owns it.
#pragma once

#include "base/KeyedCollection.h"
#include "base/Unwritable.h"
#include "base/XmlNode.h"
#include "design/clsSelectedImage.h"
#include "model/ModelServices.h"
#include "model/ProductClass.h"
#include "model/clsDiscount.h"

#include <QString>
#include <QStringList>

#include <memory>

struct ShopReading;

// Categories nested deeper than this do not load, and cannot be made.
inline constexpr int MaximumCategoryLevel = 500;

class CategoryClass : public std::enable_shared_from_this<CategoryClass>
{
public:
    explicit CategoryClass(const ModelServices& services);

    ShopClass* shop = nullptr;                   // the owning shop; none for a category that was imported
    std::weak_ptr<CategoryClass> parentCategory; // none for a root category
    QString id;                                  // "1" until it is set
    QString name;
    QString Description;
    KeyedCollection<std::shared_ptr<CategoryClass>> categories; // under "ID" and the id
    KeyedCollection<std::shared_ptr<ProductClass>> products;    // under "ID" and the id
    std::weak_ptr<clsDiscount> ParentDiscount; // the discount above: set on root categories at load and by the tree

    // Made on first use.
    const std::shared_ptr<clsSelectedImage>& selectedImage();
    bool hasSelectedImage() const { return m_selectedImage != nullptr; }
    // Made on first use, with status 1.
    const std::shared_ptr<clsDiscount>& Discount();
    void setDiscount(std::shared_ptr<clsDiscount> discount) { m_discount = std::move(discount); }

    // How many categories there are from the root down to this one, itself included.
    int Level() const;
    // Products in this category and in all below. ErrorNumber::Overflow above 32767.
    qint16 GetProductCount() const;
    // Takes everything below this category out of ObjectsCollection; the collections stay as they are.
    // ErrorNumber::InvalidArgument when an entry is missing there.
    void RemoveChilds();

    // The element is a "Category" element; ToXML is given an empty one. An empty id takes the next one of the shop. The
    // caller adds the category to its parent afterwards, under the id that was read. ErrorNumber::OutOfStackSpace when
    // it lies too deep, DuplicateKey when an id stands twice in one parent. Both are the work of model/shop_file.
    void FromXML(const pugi::xml_node& element, ShopClass& owner, const std::shared_ptr<CategoryClass>& parent,
                 ShopReading& reading);
    void ToXML(pugi::xml_node element, Unwritable unwritable = Unwritable::Raises);

    // Imports one product from here down: see CatalogueImport::addProduct.
    void ImportCategory(QStringList& fields);

    const ModelServices& services() const { return *m_services; }

private:
    // The keys of what lies below, in the order in which they leave ObjectsCollection.
    void addKeysBelow(std::vector<QString>& keys) const;

    const ModelServices* m_services;
    std::shared_ptr<clsSelectedImage> m_selectedImage;
    std::shared_ptr<clsDiscount> m_discount;
};

// A category that is to stand below that parent (none: a root category) must not lie too deep.
// ErrorNumber::OutOfStackSpace when it would.
void checkCategoryLevel(const CategoryClass* parent);
