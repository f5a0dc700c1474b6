// Where the files of a packed file belong on disk. BackUpRestore.cpp holds the two routines of clsPacker that know a
// shop: what goes into a backup, and in which order a restore takes away what is there and writes back what was packed.
// All that is removed goes first, so that a restore leaves no stray file; ahead of that the present shop is kept.
#pragma once

#include "base/ApplicationFolder.h"

#include <QString>
#include <QStringList>

// The paths in a packed file.
inline constexpr QLatin1StringView shopEntry("shop.xml");
inline constexpr QLatin1StringView picturesPrefix("pictures\\");
inline constexpr QLatin1StringView templatesPrefix("templates\\");

// The names of the files in a folder, hidden ones too, in the order in which the file system gives them. Sub-folders
// are not looked at.
QStringList fileNames(const QString& folder);

// The format separates folders by backslashes, so that it cannot hold one in a name.
bool canBePacked(const QString& fileName);

// Makes a folder that is not there. ErrorNumber::PathFileAccess when it cannot be made.
void makeFolder(const QString& folder);

// Where an entry of that path is written to; empty when it is skipped: a path of another form, one that would lead out
// of its folder, or a template when templates are not restored.
QString restoredPath(const ApplicationFolder& folder, const QString& fileSpec, bool withTemplates);
