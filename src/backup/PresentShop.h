// The shop that is on the disk when a restore begins. It is kept as a packed file under backups/, named after the
// moment, so that a restore can be undone by another one. Free functions: they look at the disk each time.
#pragma once

#include "base/ApplicationFolder.h"
#include "base/OperatingSystem.h"

#include <QDateTime>
#include <QString>

struct KeptShop
{
    QString path;        // of the new file; empty when there is none
    bool isWhole = true; // false when a file that is not empty was left out, since it cannot be read or is too large
};

// Packs what there is of the shop, without deflating it, as "before restore yyyy-mm-dd hh.mm.ss.kvb". What is missing,
// empty or cannot be packed is left out; where nothing is left, no file is made. A name that the format cannot hold, or
// that differs from another one's by case alone, makes the kept shop no less whole. One file of the shop is in memory
// at a time. A second that has its file already is taken for the next one that has none. The new file is on the disk
// when this returns. ErrorNumber::DiskFull, PermissionDenied, PathFileAccess or DeviceError when it cannot be written;
// no part of it is left then.
KeptShop keepPresentShop(const ApplicationFolder& folder, const QString& version, const QDateTime& moment,
                         const FileCalls& calls);

// Deletes the files of keepPresentShop but for the last three by name, and neither the one that was restored just now
// nor the one that was kept just now: the names hold the local time, which may go back. One that cannot be deleted
// stays. `kept` is empty when there is none.
void removeOldKeptShops(const ApplicationFolder& folder, const QString& restored, const QString& kept);

// The size in bytes of the files that a restore removes.
qint64 sizeOfPresentShop(const ApplicationFolder& folder, bool withTemplates);
