// The keys of the window's commands, in one table. A key belongs to what it works on: to an entry of a menu, to the
// tree, to the panels. It acts while that is on the screen and in use and no dialog is up, and once however long it is
// held.
#pragma once

#include <QKeySequence>

#include <span>

class QAction;

struct WindowKey
{
    const char* action; // the name of the entry, or of the command that has none
    const char* keys;   // as QKeySequence reads it
};

std::span<const WindowKey> windowKeys();

// The commands that stand in no menu.
inline constexpr const char* findCommand = "actFind";
inline constexpr const char* guideCommand = "actGuide";

// Gives the action the key of its name, if it has one.
void giveKey(QAction& action);
