#include "backup/PackedHeader.h"

QByteArray headerBytes(const PackedHeader& header)
{
    PackedRecord record;
    record.addInt32(0);
    record.addInt32(header.count);
    record.addText(header.version);
    record.addFlag(header.compressed);
    return record.bytes();
}

PackedHeader readHeader(PackedStream& file)
{
    PackedHeader header;
    file.readInt32(); // always written as 0, never looked at
    header.count = file.readInt32();
    const quint16 versionLength = file.readUInt16();
    header.version = packedText(file.readBytes(versionLength));
    header.compressed = file.readFlag();
    if (versionLength == 0) {
        file.readUInt16();
    }
    return header;
}
