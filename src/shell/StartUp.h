// The entry routine: what happens from the start of the process to the window on the screen.
#pragma once

#include "base/ApplicationFolder.h"
#include "base/Clock.h"
#include "base/Guarded.h"
#include "base/OperatingSystem.h"
#include "base/UserPrompts.h"
#include "model/shop_file/UnsavedShop.h"
#include "shell/PreviewParts.h"

#include <functional>
#include <memory>

class MainForm;

// What lives outside the window and outlives it.
struct ProgramServices
{
    ApplicationFolder folder;
    UserPrompts& prompts;
    const Clock& clock;
    FatalErrorHandler& errors;
    // Starts a second copy of the program, after a restore; this one ends with its window.
    std::function<void()> startAgain;
    // The window that came first to a folder keeps the unsaved shop there.
    UnsavedShop::Window window = UnsavedShop::Window::First;
    // What the unsaved shop is written by.
    std::function<std::unique_ptr<FileCalls>()> fileCalls = systemFileCalls;
};

// Empties the log, reads the countries, makes the window and shows it. Raises the run-time errors that end a start,
// such as ErrorNumber::FileNotFound when the list of countries is missing.
std::unique_ptr<MainForm> startProgram(const ProgramServices& services, const PreviewFactory& makePreview);
