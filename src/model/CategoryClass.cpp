#include "model/CategoryClass.h"

#include "base/RuntimeError.h"
#include "model/CatalogueImport.h"
#include "model/ObjectsCollection.h"
#include "model/ShopClass.h"

#include <limits>

using namespace Qt::StringLiterals;

CategoryClass::CategoryClass(const ModelServices& services) : id(u"1"_s), m_services(&services) {}

const std::shared_ptr<clsSelectedImage>& CategoryClass::selectedImage()
{
    if (!m_selectedImage) {
        m_selectedImage = std::make_shared<clsSelectedImage>(m_services->design);
    }
    return m_selectedImage;
}

const std::shared_ptr<clsDiscount>& CategoryClass::Discount()
{
    if (!m_discount) {
        m_discount = std::make_shared<clsDiscount>(m_services->clock);
        m_discount->Status = DiscountStatus::No;
    }
    return m_discount;
}

int CategoryClass::Level() const
{
    int level = 1;
    for (auto above = parentCategory.lock(); above; above = above->parentCategory.lock()) {
        ++level;
    }
    return level;
}

qint16 CategoryClass::GetProductCount() const
{
    qint64 count = products.Count();
    for (const std::shared_ptr<CategoryClass>& category : categories) {
        count += category->GetProductCount();
    }
    if (count > std::numeric_limits<qint16>::max()) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<qint16>(count);
}

void CategoryClass::RemoveChilds()
{
    std::vector<QString> keys;
    addKeysBelow(keys);
    m_services->objects.removeAll(keys);
}

void CategoryClass::addKeysBelow(std::vector<QString>& keys) const
{
    for (const std::shared_ptr<CategoryClass>& category : categories) {
        category->addKeysBelow(keys);
        keys.push_back(nodeKey(category->id));
    }
    for (const std::shared_ptr<ProductClass>& product : products) {
        keys.push_back(nodeKey(product->id));
    }
}

void CategoryClass::ImportCategory(QStringList& fields)
{
    CatalogueImport(currentShop(*m_services)).addProduct(fields, shared_from_this());
}

void checkCategoryLevel(const CategoryClass* parent)
{
    if (parent != nullptr && parent->Level() >= MaximumCategoryLevel) {
        throw RuntimeError(ErrorNumber::OutOfStackSpace);
    }
}
