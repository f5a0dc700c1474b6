// What the classes of the design are handed when they are made, because they log, ask or read picture files. The
// session owns one and outlives all who hold a reference to it.
#pragma once

#include "base/ApplicationFolder.h"
#include "base/LoadLog.h"
#include "base/UserPrompts.h"

struct DesignServices
{
    LoadLog& log;
    UserPrompts& prompts;
    const ApplicationFolder& folder;
};
