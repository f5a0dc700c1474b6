// Reads the answer of the server's list page: the server's version, a "|", and a line for each file that it has.
#pragma once

#include "publish/clsFileProp.h"

#include <QString>
#include <QStringView>

class UserPrompts;

// The lines behind the version, each "name|size|third value" and ended by CR LF; what follows the last CR LF is not
// read. Error 5 for a line without a second "|", 13 for a size that is no number, 6 for one past 32 bits, 457 for a
// name that is there twice.
ServerFileList parseFileLines(QStringView lines);

// Reads a whole answer into the list. False when the upload has to end: there is no "|" (no box), the version differs
// from the program's in any letter, or a line is wrong (a box each). After a wrong line the list is empty.
bool readFileList(const QString& answer, const QString& programVersion, ServerFileList& list, UserPrompts& prompts);
