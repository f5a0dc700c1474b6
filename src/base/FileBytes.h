// Whole files, read and written at once. What is written here is on the disk when the call returns, so that a cut of
// power afterwards finds it there; where the file system cannot flush, that much is left to it. All raise RuntimeErrors
// that name the path.
#pragma once

#include "base/OperatingSystem.h"

#include <QByteArray>
#include <QString>

// ErrorNumber::FileNotFound when there is no such file, PermissionDenied or PathFileAccess when it cannot be opened,
// DeviceError when reading it fails, OutOfMemory when it has 2^31 - 1 bytes or more, which is this program's own limit.
QByteArray readFileBytes(const QString& path, const FileCalls& calls = *systemFileCalls());

// Replaces the file's content, in place: its permissions stay, and a link to it goes on leading to it. A new file is
// made where there is none. Room on the disk is made sure of first, where the file system can; without room the old
// file stays whole. ErrorNumber::DiskFull, PermissionDenied, PathFileAccess or DeviceError.
void writeFileBytes(const QString& path, const QByteArray& bytes, const FileCalls& calls = *systemFileCalls());

// Writes the bytes under another name, the path with ".new" behind it, and renames that file into place, so that at
// every moment there is either the old file or the new one, whole. What stands under the other name is overwritten, and
// nothing stays there after a failure. A link is replaced, not followed. Errors as for writeFileBytes.
void replaceFileDurably(const QString& path, const QByteArray& bytes, const FileCalls& calls = *systemFileCalls());

// Appends to the file, which is made when it is not there. Nothing is flushed: what is appended are lines of a log.
// Errors as for writeFileBytes.
void appendFileBytes(const QString& path, const QByteArray& bytes, const FileCalls& calls = *systemFileCalls());

// A file that is open for overwriting.
struct WritableFile
{
    std::unique_ptr<OpenFile> file;
    bool created = false;
};

// Opens a file that is there, or makes it. Errors as for writeFileBytes.
WritableFile openOrCreate(const QString& path, const FileCalls& calls);

// The last part of writing a file that stays: flushes it and closes it, and flushes the folder when the file was made.
void finishDurably(const WritableFile& writable, const QString& path, const FileCalls& calls);
