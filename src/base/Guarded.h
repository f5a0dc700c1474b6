// No exception may cross a frame of Qt's or of the browser's. Every slot, event handler and callback that can raise a
// RuntimeError runs inside guarded(), which hands the error to the handler that ends the program.
#pragma once

#include "base/RuntimeError.h"

#include <new>
#include <type_traits>
#include <utility>

// Takes an error that nobody trapped. The program's own handler shows its box and does not return; a test's handler
// records the error and returns; guarded() then returns a default value.
class FatalErrorHandler
{
public:
    virtual ~FatalErrorHandler() = default;
    virtual void fatalError(const RuntimeError& error) noexcept = 0;
};

// Runs work() and returns its result; after an error, which goes to the handler, a default value of that type.
template <class Work>
auto guarded(FatalErrorHandler& handler, Work&& work) -> std::invoke_result_t<Work>
{
    using Result = std::invoke_result_t<Work>;
    try {
        return std::forward<Work>(work)();
    } catch (const RuntimeError& error) {
        handler.fatalError(error);
    } catch (const std::bad_alloc&) {
        handler.fatalError(RuntimeError(ErrorNumber::OutOfMemory));
    }
    if constexpr (!std::is_void_v<Result>) {
        return Result();
    }
}
