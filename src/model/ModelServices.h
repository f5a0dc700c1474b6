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

// Calls that run up: the main window puts its own here. Those of a new session show nothing, and when a shop file is
// read and none saves yet, one that writes the file is put in its place.
struct SessionCallbacks
{
    // Writes the shop to its file.
    std::function<void()> SaveShop;
    // Shows a category that was imported, and which is still empty, in the tree. Without a parent it is a root
    // category.
    std::function<void(const std::shared_ptr<CategoryClass>& parent, const std::shared_ptr<CategoryClass>& category)>
        AddCategoryToTheTree = [](const auto&, const auto&) {};
    // The same for one product.
    std::function<void(const std::shared_ptr<CategoryClass>& category, const std::shared_ptr<ProductClass>& product)>
        AddProductToTheTree = [](const auto&, const auto&) {};
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

// The open shop. ErrorNumber::ObjectNotSet when there is none.
ShopClass& currentShop(const ModelServices& services);
