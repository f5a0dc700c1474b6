// The application folder, taken for this process: a second window on the same folder asks before it opens, since two
// windows that save overwrite one another's work.
#pragma once

#include "base/ApplicationFolder.h"
#include "base/OperatingSystem.h"
#include "model/shop_file/UnsavedShop.h"

#include <memory>

class UserPrompts;

class TakenFolder
{
public:
    // Takes the folder until giveUp() or the end of the process. Where that cannot be done, the window counts as the
    // first one.
    explicit TakenFolder(const ApplicationFolder& folder);

    // Asks when another window has the folder already; false when this one is to end.
    bool mayOpen(UserPrompts& prompts) const;
    UnsavedShop::Window window() const { return m_window; }
    // Lets the folder go, for a successor that is about to start.
    void giveUp() { m_file.reset(); }

private:
    std::unique_ptr<HeldFile> m_file;
    UnsavedShop::Window m_window;
};
