// The model's side of the tree's commands: new nodes, copies and removals. What is made is entered in its parent and in
// ObjectsCollection, what is removed is taken out of them; showing it in the tree is up to the window.
#pragma once

#include <memory>

class CategoryClass;
class ProductClass;
class ShopClass;

// Puts a node that has an id into the collection above it (without a parent: that of the shop) and into
// ObjectsCollection, a category's discount into the discount above as well. ErrorNumber::DuplicateKey, and nothing
// changed, when the catalogue has the id already: a shop file's ids may be ahead of its counter.
void enterCategory(ShopClass& shop, const std::shared_ptr<CategoryClass>& parent,
                   const std::shared_ptr<CategoryClass>& category);
void enterProduct(ShopClass& shop, const std::shared_ptr<CategoryClass>& category,
                  const std::shared_ptr<ProductClass>& product);

// A category "New Category" in the parent, or without one in the root of the shop, with the next id. Its discount is
// entered in the discount above. ErrorNumber::OutOfStackSpace when it would lie too deep.
std::shared_ptr<CategoryClass> newCategory(ShopClass& shop, const std::shared_ptr<CategoryClass>& parent);

// A product "New Product" in the category, with the next id. Its discount gets the category's own bands, but is not
// entered in the category's discount.
std::shared_ptr<ProductClass> newProduct(ShopClass& shop, const std::shared_ptr<CategoryClass>& category);

// A clone of the product named " copy" behind its name, with the next id, in the same category.
// ErrorNumber::ObjectNotSet when the product's category is gone.
std::shared_ptr<ProductClass> duplicateProduct(ShopClass& shop, ProductClass& product);

// Takes the product out of its category. Its entry in ObjectsCollection stays, deliberately: ids are never used again,
// and a panel may still show the product.
void removeProduct(ProductClass& product);

// Takes the category out of its parent and its discount out of the discount above, and everything from it down out of
// ObjectsCollection. ErrorNumber::InvalidArgument when an entry is missing.
void removeCategory(ShopClass& shop, const std::shared_ptr<CategoryClass>& category);
