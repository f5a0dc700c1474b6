#include "base/Circumstances.h"

using namespace Qt::StringLiterals;

QString inQuotes(const QString& text)
{
    constexpr qsizetype longest = 60;
    const QString line = text.left(2 * longest).simplified();
    return u'"' + (line.size() > longest || text.size() > 2 * longest ? line.left(longest) + "..."_L1 : line) + u'"';
}
