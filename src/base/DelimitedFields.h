// The simple lists that people keep in text files: one field per line, or several separated by commas.
#pragma once

#include <QString>
#include <QStringList>

// The fields of the text in order. Blanks ahead of a field are skipped and double quotes around it are taken off; a
// field with a comma in it must stand in quotes. A line without anything makes no field; a last line without a line end
// counts.
QStringList delimitedFields(const QString& text);
