// The model's side of the tree's commands: new nodes, copies and removals. The tree itself and ObjectsCollection, as
// far as a command touches it, are served here through the session's callbacks and services; what is shown is the
// window's.
#pragma once

#include <memory>

class CategoryClass;
class ProductClass;
class ShopClass;

// A category "New Category" in the parent, or without one in the root of the shop, with the next id. Its discount is
// entered in the discount above; the caller adds its tree node. Error 28 when it would lie too deep.
std::shared_ptr<CategoryClass> newCategory(ShopClass& shop, const std::shared_ptr<CategoryClass>& parent);

// A product "New Product" in the category, with the next id. Its discount gets the category's own bands, but is not
// entered in the category's discount. The caller adds its tree node.
std::shared_ptr<ProductClass> newProduct(ShopClass& shop, const std::shared_ptr<CategoryClass>& category);

// A clone of the product named " copy" behind its name, with the next id, in the same category. The caller adds its
// tree node. Error 91 when the product's category is gone.
std::shared_ptr<ProductClass> duplicateProduct(ShopClass& shop, ProductClass& product);

// Takes the product out of its category. Its entry in ObjectsCollection stays: this is meant.
void removeProduct(ProductClass& product);

// Takes the category out of its parent and its discount out of the discount above, and everything from it down out of
// ObjectsCollection. Error 5 when an entry is missing.
void removeCategory(ShopClass& shop, const std::shared_ptr<CategoryClass>& category);
