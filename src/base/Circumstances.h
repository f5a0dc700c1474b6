// What was going on when an error was raised. A RuntimeError carries it in sentences for the owner, from the innermost
// work outwards, and the last box shows them below the error.
#pragma once

#include "base/RuntimeError.h"

#include <QString>

#include <type_traits>
#include <utility>

// A text as a sentence can hold it: between double quotes, on one line, and cut when it is long.
QString inQuotes(const QString& text);

// Runs work() and returns its result. An error that leaves it is told what was going on: tell() gives a sentence for
// that, and is called only then.
template <class Tell, class Work>
auto during(Tell&& tell, Work&& work) -> std::invoke_result_t<Work>
{
    try {
        return std::forward<Work>(work)();
    } catch (RuntimeError& error) {
        error.addCircumstance(std::forward<Tell>(tell)());
        throw;
    }
}
