// The bytes of a packed file: fixed records, field after field with no gaps, integers little-endian, texts with a
// 16-bit length ahead. A record is put together by PackedRecord and written in one go; PackedStream is the open file.
// Whatever reads checks every length against the bytes that the file still has before it takes memory for them.
#pragma once

#include "base/FileBytes.h"

#include <QByteArray>
#include <QString>

class PackedRecord
{
public:
    void addInt32(qint32 number);
    // 16 bits: -1 for true, 0 for false.
    void addFlag(bool flag);
    // The text in UTF-8, its length in bytes ahead. ErrorNumber::Overflow when it is longer than 65,535 bytes.
    void addText(const QString& text);

    const QByteArray& bytes() const { return m_bytes; }

private:
    void addUInt16(quint16 number);

    QByteArray m_bytes;
};

class PackedStream
{
public:
    enum class Mode { Read, Write };

    // Opens the file at its start. For writing it is made when it is not there, and never emptied: what an older,
    // longer file has behind the last byte written deliberately stays. ErrorNumber::FileNotFound when there is no file
    // to read, PathFileAccess when something else than a file is in the way, PermissionDenied, DiskFull or
    // PathFileAccess when it cannot be opened.
    PackedStream(const QString& path, Mode mode, const FileCalls& calls = *systemFileCalls());

    // ErrorNumber::DeviceError when the file ends before the field does, or cannot be read.
    qint32 readInt32();
    quint16 readUInt16();
    // Any number but 0 is true.
    bool readFlag();
    // Exactly that many bytes; a count below 0 is an error, too.
    QByteArray readBytes(qint64 count);

    // ErrorNumber::DiskFull when the disk is full, DeviceError on any other failure; so for all that follow.
    void write(const QByteArray& bytes);
    // Takes the room for that many bytes where an older file is overwritten, so that a full disk is met while that one
    // is whole. A new file has nothing to lose and deliberately grows as far as the disk lets it.
    void reserveToOverwrite(qint64 size);
    void seekToStart();
    // Cuts off what an older, longer file has behind the last byte written.
    void cutBehindWritten();
    // Closes the file here, so that a failure is told.
    void close();
    // Closes a file that is to stay when the power is cut: it and its name are then on the disk.
    void closeDurably(const FileCalls& calls);

private:
    QString m_path;
    WritableFile m_file;  // only read in Mode::Read
    qint64 m_left = 0;    // bytes that are still to be read
    qint64 m_written = 0; // bytes that were written
};

// The text of a field: UTF-8 when its bytes are that, else Windows-1252.
QString packedText(const QByteArray& bytes);

// Whether a file of this path exists; a folder, a pipe or a device is none.
bool isFile(const QString& path);
