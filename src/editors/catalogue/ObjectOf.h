// What a panel takes of the object that it is given.
#pragma once

#include "model/ObjectsCollection.h"

#include <memory>
#include <variant>

// The object as one of that class; none when it is of another.
template <class Class>
std::shared_ptr<Class> objectOf(const CatalogueObject& object)
{
    const auto* held = std::get_if<std::shared_ptr<Class>>(&object);
    return held ? *held : nullptr;
}
