// What writing does with a value that has no form in the shop file, such as a date that is none or the size of a
// picture that is gone.
#pragma once

#include "base/RuntimeError.h"

#include <utility>

enum class Unwritable {
    Raises,     // a save: the error ends it, and the old file stays
    IsLeftEmpty // the unsaved shop: all the rest is worth keeping
};

// What make() gives; where that raises and is to be left empty, the default value in its place.
template <class Make>
auto written(Unwritable unwritable, Make&& make) -> std::invoke_result_t<Make>
{
    if (unwritable == Unwritable::Raises) {
        return std::forward<Make>(make)();
    }
    try {
        return std::forward<Make>(make)();
    } catch (const RuntimeError&) {
        return {};
    }
}
