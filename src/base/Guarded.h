// No exception may cross a frame of Qt's or of the browser's. Every event handler and callback that can raise a
// RuntimeError runs inside guarded(), which hands the error to the handler that ends the program; every slot that can
// raise one is connected by connectGuarded().
#pragma once

#include "base/RuntimeError.h"

#include <QObject>

#include <functional>
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

// QObject::connect() for a slot that can raise an error: the slot runs inside guarded(). It is a member function of the
// receiver or anything else that can be called, and takes either all of the signal's arguments or none.
template <class Sender, class Owner, class... Arguments, class Receiver, class Slot>
QMetaObject::Connection connectGuarded(FatalErrorHandler& errors, const Sender* sender,
                                       void (Owner::*signal)(Arguments...), Receiver* receiver, Slot slot)
{
    if constexpr (std::is_member_function_pointer_v<Slot>) {
        return connectGuarded(errors, sender, signal, receiver, std::bind_front(slot, receiver));
    } else {
        return QObject::connect(sender, signal, receiver, [&errors, slot](Arguments... arguments) {
            guarded(errors, [&] {
                if constexpr (std::is_invocable_v<const Slot&, Arguments...>) {
                    slot(arguments...);
                } else {
                    slot();
                }
            });
        });
    }
}
