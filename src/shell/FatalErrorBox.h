// The last box of a session: an error that nobody trapped. It ends the process at once, with exit code 1 and nothing
// saved, so that half-done work does not continue.
#pragma once

#include "base/Guarded.h"

#include <functional>

class UserPrompts;

class FatalErrorBox : public FatalErrorHandler
{
public:
    // isWorkKept tells whether there is an unsaved shop that the next start offers.
    FatalErrorBox(UserPrompts& prompts, std::function<bool()> isWorkKept)
        : m_prompts(prompts), m_isWorkKept(std::move(isWorkKept))
    {
    }

    [[noreturn]] void fatalError(const RuntimeError& error) noexcept override;

private:
    QString textOf(const RuntimeError& error) const;

    UserPrompts& m_prompts;
    std::function<bool()> m_isWorkKept;
};
