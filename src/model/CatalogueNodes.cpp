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

std::shared_ptr<CategoryClass> NewCategory(ShopClass& shop, const std::shared_ptr<CategoryClass>& parent)
{
    CheckCategoryLevel(parent.get());
    auto category = std::make_shared<CategoryClass>(shop.services());
    category->name = u"New Category"_s;
    category->id = shop.getNextProductId();
    category->shop = &shop;
    category->parentCategory = parent;
    if (parent) {
        category->ParentDiscount = parent->Discount();
    }
    (parent ? parent->Discount() : shop.Discount())->AddChildDiscount(category->Discount(), category->id);
    (parent ? parent->categories : shop.categories).Add(category, NodeKey(category->id));
    return category;
}

std::shared_ptr<ProductClass> NewProduct(ShopClass& shop, const std::shared_ptr<CategoryClass>& category)
{
    auto product = std::make_shared<ProductClass>(shop.services());
    product->Price()->Discount()->ParentDependDiscounts = category->Discount()->DependedDiscounts();
    product->name = u"New Product"_s;
    product->id = shop.getNextProductId();
    product->shop = &shop;
    product->category = category;
    category->products.Add(product, NodeKey(product->id));
    return product;
}

std::shared_ptr<ProductClass> DuplicateProduct(ShopClass& shop, ProductClass& product)
{
    const std::shared_ptr<CategoryClass> category = categoryOf(product);
    std::shared_ptr<ProductClass> clone = product.CreateClone();
    clone->name = product.name + " copy"_L1;
    clone->id = shop.getNextProductId();
    clone->shop = product.shop;
    clone->category = category;
    category->products.Add(clone, NodeKey(clone->id));
    return clone;
}

void RemoveProduct(ProductClass& product)
{
    categoryOf(product)->products.Remove(NodeKey(product.id));
}

void RemoveCategory(ShopClass& shop, const std::shared_ptr<CategoryClass>& category)
{
    const std::shared_ptr<CategoryClass> parent = category->parentCategory.lock();
    (parent ? parent->Discount() : shop.Discount())->RemoveChildDiscount(category->id);
    (parent ? parent->categories : shop.categories).Remove(NodeKey(category->id));
    shop.services().objects.Remove(NodeKey(category->id));
    category->RemoveChilds();
    shop.keepRemoved(category);
}
