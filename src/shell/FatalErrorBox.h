// The last box of a session: an error that nobody trapped. It ends the process at once, with exit code 1 and nothing
// saved, so that half-done work does not continue.
#pragma once

#include "base/Guarded.h"

class UserPrompts;

class FatalErrorBox : public FatalErrorHandler
{
public:
    explicit FatalErrorBox(UserPrompts& prompts) : m_prompts(prompts) {}

    [[noreturn]] void fatalError(const RuntimeError& error) noexcept override;

private:
    UserPrompts& m_prompts;
};
