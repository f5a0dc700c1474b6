// What the monkey does, line by line, on the standard error stream: the way to a defect can be read there.
#pragma once

#include <QString>

void note(const QString& line);
// A text as it fits into a line: control characters and what is too long are cut out.
QString shortened(const QString& text);
