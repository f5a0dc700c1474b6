// Gives the window the embedded browser as its preview. Stands apart from the window, so that only the program itself
// links the browser's engine.
#pragma once

#include "base/ApplicationFolder.h"
#include "base/Guarded.h"
#include "shell/PreviewParts.h"

// The handler must outlive the browser that is made.
PreviewFactory browserPreview(const ApplicationFolder& folder, FatalErrorHandler& errors);
