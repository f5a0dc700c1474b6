// All that the program takes from one operating system alone: files down to the disk, holds on them, and who runs the
// program. The form for POSIX systems is OperatingSystemPosix.cpp, the one for all others OperatingSystemGeneral.cpp.
// Tests put their own FileCalls in between to see the order of the calls.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>
#include <optional>

// An open file, read or written from its start on. Closed with the object at the latest. Whatever fails raises a
// RuntimeError that names the path: ErrorNumber::DiskFull, PermissionDenied or OutOfMemory where the system says so,
// else ErrorNumber::DeviceError.
class OpenFile
{
public:
    OpenFile() = default;
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    virtual ~OpenFile() = default;

    // In bytes.
    virtual qint64 size() = 0;
    // Reads at most `count` bytes and tells how many there were, 0 at the end of the file.
    virtual qint64 read(char* bytes, qint64 count) = 0;
    virtual void write(QByteArrayView bytes) = 0;
    // The next write goes to that place, counted in bytes from the start.
    virtual void seek(qint64 place) = 0;
    // Takes the room on the disk that a file needs to grow to `newSize`. The file's size stays what it is, so that a
    // reader never sees the room as zeros. Raises, and gives back what it took, when the disk has too little. Does
    // nothing where the file system cannot reserve.
    virtual void reserve(qint64 oldSize, qint64 newSize) = 0;
    virtual void cut(qint64 size) = 0;
    // Returns when the bytes are on the disk. Does nothing where the file system answers that it cannot.
    virtual void flush() = 0;
    // Closes the file now, so that a failure of closing is told.
    virtual void close() = 0;
};

class FileCalls
{
public:
    enum class Access {
        Read,
        Overwrite, // a file that is there; nothing of it is cut
        Create,    // a file that is not there
        Append,    // made when it is not there
    };

    FileCalls() = default;
    FileCalls(const FileCalls&) = delete;
    FileCalls& operator=(const FileCalls&) = delete;
    virtual ~FileCalls() = default;

    // ErrorNumber::FileNotFound when there is no file to read or to overwrite, PermissionDenied or DiskFull where the
    // system says so, else PathFileAccess: for a folder, a device or a pipe, too.
    virtual std::unique_ptr<OpenFile> open(const QString& path, Access access) const = 0;
    // Gives a file another name in the same folder; one that bears it already is replaced. Errors as for open().
    virtual void rename(const QString& from, const QString& to) const = 0;
    // Returns when the names in the folder are on the disk. Does nothing where the file system answers that it cannot.
    // ErrorNumber::DeviceError or DiskFull when it fails.
    virtual void flushFolder(const QString& folder) const = 0;
    // The bytes that may still be written below the folder; nothing where the file system does not answer.
    virtual std::optional<qint64> freeRoom(const QString& folder) const;
};

// The calls of this operating system.
std::unique_ptr<FileCalls> systemFileCalls();

// The same by what every system has: nothing is reserved, and flushing is left to the system.
std::unique_ptr<FileCalls> generalFileCalls();

// A file that this process holds while the object lives. The system lets it go when the process ends, however that
// happens, so a crash leaves no hold behind. Nothing is ever written into it.
class HeldFile
{
public:
    HeldFile() = default;
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    // Lets it go. The last one to hold it removes the file.
    virtual ~HeldFile() = default;

    // Whether another one held the file already when this one came.
    virtual bool isShared() const = 0;
};

// Holds the file, which is made when it is not there. Never waits and never fails: none where the file cannot be made
// or the file system knows no holds.
std::unique_ptr<HeldFile> holdFile(const QString& path);

// Whether the program runs with the rights of the system's owner (root).
bool runsAsRoot();

// Ends another process of the same user at once. False when it cannot.
bool endProcess(qint64 process);
