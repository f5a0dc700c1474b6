// Where the files of a packed file belong on disk. BackUpRestore.cpp holds the two routines of clsPacker that know a
// shop: what goes into a backup, and in which order a restore takes away what is there and writes back what was packed.
// All that is removed goes first, so that a restore leaves no stray file; there is no way back from there.
#pragma once

#include "base/ApplicationFolder.h"

#include <QString>

// Where an entry of that path is written to; empty when it is skipped: a path of another form, one that would lead out
// of its folder, or a template when templates are not restored.
QString restoredPath(const ApplicationFolder& folder, const QString& fileSpec, bool withTemplates);
