#include "model/CatalogueNodes.h"

#include "base/RuntimeError.h"
#include "model/CategoryClass.h"
#include "model/ObjectsCollection.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<CategoryClass> categoryOf(const ProductClass& product)
{
    std::shared_ptr<CategoryClass> category = product.category.lock();
    if (!category) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return category;
}

} // namespace

// ObjectsCollection has every node, and so refuses an id that is taken before anything else knows the new node.
void enterCategory(ShopClass& shop, const std::shared_ptr<CategoryClass>& parent,
                   const std::shared_ptr<CategoryClass>& category)
{
    const QString key = nodeKey(category->id);
    shop.services().objects.Add(category, key);
    (parent ? parent->Discount() : shop.Discount())->AddChildDiscount(category->Discount(), category->id);
    (parent ? parent->categories : shop.categories).Add(category, key);
}

void enterProduct(ShopClass& shop, const std::shared_ptr<CategoryClass>& category,
                  const std::shared_ptr<ProductClass>& product)
{
    const QString key = nodeKey(product->id);
    shop.services().objects.Add(product, key);
    category->products.Add(product, key);
}

std::shared_ptr<CategoryClass> newCategory(ShopClass& shop, const std::shared_ptr<CategoryClass>& parent)
{
    checkCategoryLevel(parent.get());
    auto category = std::make_shared<CategoryClass>(shop.services());
    category->name = u"New Category"_s;
    category->id = shop.getNextProductId();
    category->shop = &shop;
    category->parentCategory = parent;
    if (parent) {
        category->ParentDiscount = parent->Discount();
    }
    enterCategory(shop, parent, category);
    return category;
}

std::shared_ptr<ProductClass> newProduct(ShopClass& shop, const std::shared_ptr<CategoryClass>& category)
{
    auto product = std::make_shared<ProductClass>(shop.services());
    product->Price()->Discount()->ParentDependDiscounts = category->Discount()->DependedDiscounts();
    product->name = u"New Product"_s;
    product->id = shop.getNextProductId();
    product->shop = &shop;
    product->category = category;
    enterProduct(shop, category, product);
    return product;
}

std::shared_ptr<ProductClass> duplicateProduct(ShopClass& shop, ProductClass& product)
{
    const std::shared_ptr<CategoryClass> category = categoryOf(product);
    std::shared_ptr<ProductClass> clone = product.CreateClone();
    clone->name = product.name + " copy"_L1;
    clone->id = shop.getNextProductId();
    clone->shop = product.shop;
    clone->category = category;
    enterProduct(shop, category, clone);
    return clone;
}

void removeProduct(ProductClass& product)
{
    categoryOf(product)->products.Remove(nodeKey(product.id));
}

void removeCategory(ShopClass& shop, const std::shared_ptr<CategoryClass>& category)
{
    const std::shared_ptr<CategoryClass> parent = category->parentCategory.lock();
    (parent ? parent->Discount() : shop.Discount())->RemoveChildDiscount(category->id);
    (parent ? parent->categories : shop.categories).Remove(nodeKey(category->id));
    shop.services().objects.Remove(nodeKey(category->id));
    category->RemoveChilds();
    shop.keepRemoved(category);
}
