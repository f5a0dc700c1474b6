// The words of the bottom line for what happened last. Numbers and sizes are written as the user's locale does it.
#pragma once

#include <QString>
#include <QTime>

struct BackUpReport;

namespace EventTexts {

// "Saved 14:03": hours and minutes.
QString saved(const QTime& time);
// "312 products imported"
QString imported(int products);
// "Line 17 of the import is not understood"; 1-based.
QString notUnderstood(int line);
// "Backup x.kvb, 12.4 MB, 2 files left out". Nothing is said of files when all are in it.
QString backedUp(const BackUpReport& report);

} // namespace EventTexts
