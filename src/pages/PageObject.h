// What a page is about: the one object that the renderer of a page is handed beside the shop itself. Objects are shared
// with the catalogue; the preview keeps the last one for as long as it shows its page.
#pragma once

#include "base/RuntimeError.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"

#include <QString>

#include <memory>
#include <variant>
#include <vector>

// What a search found. A page counts the word as the first of its items and the products as those behind it.
struct SearchResults
{
    QString word; // as it stands in the request
    std::vector<std::shared_ptr<ProductClass>> products;
};

using PageObject =
    std::variant<std::monostate, std::shared_ptr<ShopClass>, std::shared_ptr<CategoryClass>,
                 std::shared_ptr<ProductClass>, std::shared_ptr<CustomPageClass>, std::shared_ptr<SearchResults>>;

// The object of that type. ErrorNumber::ObjectNotSet when there is none, TypeMismatch when it is of another type.
template <class T>
T& pageObjectAs(const PageObject& object)
{
    if (std::holds_alternative<std::monostate>(object)) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    const auto* typed = std::get_if<std::shared_ptr<T>>(&object);
    if (typed == nullptr) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    if (*typed == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return **typed;
}
