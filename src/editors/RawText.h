// The text that the user sees in a field of several lines, letter for letter.
#pragma once

#include <QString>

class QTextDocument;

// Non-breaking blanks stay what they are, and each line ends in lineEnd, whether it was begun by Enter or by
// Shift+Enter.
QString rawText(const QTextDocument& document, const QString& lineEnd);
