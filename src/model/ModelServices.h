// What the classes of the catalogue are handed when they are made. The session owns one; it and all that it refers to
// outlive the shop, the cart and every object that either made.
#pragma once

#include "base/Clock.h"
#include "design/DesignServices.h"

#include <QString>

#include <functional>
#include <memory>

class CategoryClass;
class ObjectsCollection;
class ProductClass;
class ShopClass;

// Calls that run up. Those of a new session enter the node in ObjectsCollection, and the reading of the shop file sees
// to it that there is one that saves; the main window puts its own in their place, which do the same and show it.
struct SessionCallbacks
{
    // Writes the shop to its file.
    std::function<void()> SaveShop;
    // Adds the category with all its contents to the tree and to ObjectsCollection. Without a parent it is a root
    // category.
    std::function<void(const std::shared_ptr<CategoryClass>& parent, const std::shared_ptr<CategoryClass>& category)>
        AddCategoryToTheTree;
    // The same for one product.
    std::function<void(const std::shared_ptr<CategoryClass>& category, const std::shared_ptr<ProductClass>& product)>
        AddProductToTheTree;
};

struct ModelServices
{
    const DesignServices& design;
    const Clock& clock;
    ObjectsCollection& objects;
    const SessionCallbacks& callbacks;
    // The open shop; none before the first load.
    const std::shared_ptr<ShopClass>& shop;
};

// The open shop. Error 91 when there is none.
ShopClass& currentShop(const ModelServices& services);
