// The icons that the editors bring with them.
#pragma once

#include <QIcon>

// One of editors/icons, by its file name without the ending.
QIcon editorIcon(const char* name);
