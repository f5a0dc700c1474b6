// What stands ahead of the first entry of a packed file. There are two forms; the legacy one is read only.
#pragma once

#include "backup/PackedStream.h"

#include <QByteArray>
#include <QString>

struct PackedHeader
{
    qint32 count = 0;
    QString version; // empty in the legacy form
    bool compressed = false;
};

// The bytes of a header in the current form. ErrorNumber::Overflow when the version is too long.
QByteArray headerBytes(const PackedHeader& header);

// Reads the header, either form, and leaves the file at the first entry. The legacy form is known by its version length
// of 0; it is always 14 bytes long, and its flag stands where the current form would have it. ErrorNumber::DeviceError
// when the file ends too early.
PackedHeader readHeader(PackedStream& file);
