// Reads the answer of the server's list page: the server's version, a "|", and one line per file that it has.
#pragma once

#include "publish/clsFileProp.h"

#include <QString>
#include <QStringView>

class UserPrompts;

// The lines behind the version, each "name|size|third value" and ended by CR LF; what follows the last CR LF is not
// read. Blanks around the size are allowed. ErrorNumber::InvalidArgument for a line without a second "|", TypeMismatch
// for a size that is no number, Overflow for one past 32 bits, DuplicateKey for a name that stands twice.
ServerFileList parseFileLines(QStringView lines);

// Reads a whole answer into the list. False when the upload has to end: there is no "|" (no box), the version differs
// from the program's in any character, or a line is wrong (a box each). After a wrong line the list is empty.
bool readFileList(const QString& answer, const QString& programVersion, ServerFileList& list, UserPrompts& prompts);
