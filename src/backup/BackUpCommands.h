// What the menu's two entries for backups do, as far as it needs no window: the questions, the boxes and the calls of
// clsPacker. The window calls them and does the rest.
#pragma once

#include "base/ApplicationFolder.h"
#include "base/Clock.h"
#include "base/LoadLog.h"
#include "base/UserPrompts.h"

#include <QString>

#include <functional>
#include <optional>

struct BackUpServices
{
    const ApplicationFolder& folder;
    UserPrompts& prompts;
    const Clock& clock;
    LoadLog& log;
    QString plainTitle; // of a box that has no title of its own
};

// A backup that was made.
struct BackUpReport
{
    QString fileName;      // without a folder
    qint64 size = 0;       // of the packed file, in bytes
    qsizetype leftOut = 0; // files that could not be packed; the log names them
};

// Asks for a name and packs the saved shop into that file under backups/, which is made when it is not there. Edits
// that are not saved are not in it. Nothing after Cancel, or after a failure that was told. A log that cannot be
// written is no failure. ErrorNumber::PathFileAccess when the folder cannot be made.
std::optional<BackUpReport> backUpFromMenu(const BackUpServices& services);

// Asks for a packed file and restores it. True when the files on disk are those of the backup: the window then forgets
// its unsaved changes, starts the program anew and closes. whenRestored is called as soon as they are, ahead of the box
// that tells it. False after Cancel, or after a failure that was told. Errors as those of clsPacker::Restore.
[[nodiscard]] bool restoreFromMenu(const BackUpServices& services, const std::function<void()>& whenRestored);
