#include "base/OperatingSystem.h"
#include "base/RuntimeError.h"

#include <QFile>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// What a failed call means to the user. Where nothing fits, the fallback.
[[noreturn]] void failFromSystem(int code, ErrorNumber fallback, const QString& path)
{
    switch (code) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        failAt(ErrorNumber::DiskFull, path);
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
        failAt(ErrorNumber::PermissionDenied, path);
    case ENOMEM:
        failAt(ErrorNumber::OutOfMemory, path);
    default:
        failAt(fallback, path);
    }
}

bool isUnsupported(int code)
{
    // NOLINTNEXTLINE(misc-redundant-expression): the last two are one number here, and two elsewhere
    return code == EINVAL || code == ENOSYS || code == EOPNOTSUPP || code == ENOTSUP;
}

// Calls again for as long as a signal comes in between. The result is that of the call, errno is set below 0.
template <class Call>
auto uninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

class PosixFile : public OpenFile
{
public:
    PosixFile(const QString& path, int descriptor) : m_path(path), m_descriptor(descriptor) {}
    PosixFile(const PosixFile&) = delete;
    PosixFile& operator=(const PosixFile&) = delete;
    ~PosixFile() override
    {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }

    bool isRegular() const
    {
        struct stat status = {};
        return ::fstat(m_descriptor, &status) == 0 && S_ISREG(status.st_mode);
    }

    qint64 size() override
    {
        struct stat status = {};
        if (::fstat(m_descriptor, &status) != 0) {
            fail();
        }
        return status.st_size;
    }

    qint64 read(char* bytes, qint64 count) override
    {
        const auto done = uninterrupted([&] { return ::read(m_descriptor, bytes, static_cast<size_t>(count)); });
        if (done < 0) {
            fail();
        }
        return done;
    }

    void write(QByteArrayView bytes) override
    {
        while (!bytes.isEmpty()) {
            const auto done =
                uninterrupted([&] { return ::write(m_descriptor, bytes.data(), static_cast<size_t>(bytes.size())); });
            if (done < 0) {
                fail();
            }
            bytes = bytes.sliced(done);
        }
    }

    void seek(qint64 place) override
    {
        if (::lseek(m_descriptor, place, SEEK_SET) < 0) {
            fail();
        }
    }

    void reserve(qint64 oldSize, qint64 newSize) override
    {
        if (newSize <= oldSize) {
            return;
        }
        // Room is reserved past the limit for files without a word, and writing there fails.
        rlimit limit = {};
        if (::getrlimit(RLIMIT_FSIZE, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY &&
            static_cast<rlim_t>(newSize) > limit.rlim_cur) {
            failAt(ErrorNumber::DiskFull, m_path);
        }
#ifdef FALLOC_FL_KEEP_SIZE
        const int result =
            uninterrupted([&] { return ::fallocate(m_descriptor, FALLOC_FL_KEEP_SIZE, oldSize, newSize - oldSize); });
        if (result != 0 && !isUnsupported(errno)) {
            const int code = errno;
            cut(oldSize); // gives back what was taken of the room until it ran out
            failFromSystem(code, ErrorNumber::DeviceError, m_path);
        }
#endif
    }

    void cut(qint64 size) override
    {
        if (uninterrupted([&] { return ::ftruncate(m_descriptor, size); }) != 0) {
            fail();
        }
    }

    void flush() override
    {
        if (uninterrupted([&] { return ::fsync(m_descriptor); }) != 0 && !isUnsupported(errno)) {
            fail();
        }
    }

    void close() override
    {
        const int descriptor = m_descriptor;
        m_descriptor = -1;
        if (::close(descriptor) != 0 && errno != EINTR) {
            fail();
        }
    }

private:
    [[noreturn]] void fail() const
    {
        failFromSystem(errno, ErrorNumber::DeviceError, m_path);
    }

    QString m_path;
    int m_descriptor;
};

int flagsOf(FileCalls::Access access)
{
    switch (access) {
    case FileCalls::Access::Read:
        return O_RDONLY;
    case FileCalls::Access::Overwrite:
        return O_WRONLY;
    case FileCalls::Access::Create:
        return O_WRONLY | O_CREAT | O_EXCL;
    case FileCalls::Access::Append:
        return O_WRONLY | O_CREAT | O_APPEND;
    }
    return O_RDONLY;
}

bool isMissing(int code, FileCalls::Access access)
{
    const bool reads = access == FileCalls::Access::Read;
    return (code == ENOENT && (reads || access == FileCalls::Access::Overwrite)) ||
           (reads && (code == ENOTDIR || code == ENAMETOOLONG));
}

class PosixFileCalls : public FileCalls
{
public:
    std::unique_ptr<OpenFile> open(const QString& path, Access access) const override
    {
        // A name cannot hold a zero, and the system would take what stands ahead of it for the whole name. Without
        // O_NONBLOCK a pipe in the way would keep the program waiting.
        errno = ENOENT;
        const int descriptor = path.contains(QChar::Null) ? -1
                                                          : ::open(QFile::encodeName(path).constData(),
                                                                   flagsOf(access) | O_CLOEXEC | O_NONBLOCK, 0666);
        if (descriptor < 0) {
            failFromSystem(errno, isMissing(errno, access) ? ErrorNumber::FileNotFound : ErrorNumber::PathFileAccess,
                           path);
        }
        auto file = std::make_unique<PosixFile>(path, descriptor);
        if (!file->isRegular()) {
            failAt(ErrorNumber::PathFileAccess, path);
        }
        return file;
    }

    void rename(const QString& from, const QString& to) const override
    {
        if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0) {
            failFromSystem(errno, ErrorNumber::PathFileAccess, to);
        }
    }

    void flushFolder(const QString& folder) const override
    {
        const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (descriptor < 0) {
            // Files may be made in a folder that may not be read; its names reach the disk when the system likes.
            if (errno == EACCES) {
                return;
            }
            failFromSystem(errno, ErrorNumber::DeviceError, folder);
        }
        PosixFile(folder, descriptor).flush();
    }
};

// A lock belongs to the open file and not to the process where the system knows that: then no other opening of the file
// in this process lets it go, and two of them see each other.
#ifdef F_OFD_SETLK
constexpr int setLock = F_OFD_SETLK;
#else
constexpr int setLock = F_SETLK;
#endif

// The first byte is held by the first one alone, the second byte by all of them.
constexpr off_t firstByte = 0;
constexpr off_t sharedByte = 1;

class PosixHeldFile : public HeldFile
{
public:
    PosixHeldFile(const QString& path, int descriptor) : m_path(QFile::encodeName(path)), m_descriptor(descriptor) {}
    PosixHeldFile(const PosixHeldFile&) = delete;
    PosixHeldFile& operator=(const PosixHeldFile&) = delete;
    ~PosixHeldFile() override
    {
        if (isInPlace() && lock(F_WRLCK, firstByte, 2)) {
            ::unlink(m_path.constData());
        }
        ::close(m_descriptor);
    }

    bool isShared() const override { return m_isShared; }

    // False when the file system knows no locks.
    bool take()
    {
        if (lock(F_WRLCK, firstByte, 2)) {
            return lock(F_RDLCK, sharedByte, 1);
        }
        m_isShared = errno == EACCES || errno == EAGAIN;
        // One that comes at this very moment may have the byte to itself until it has looked.
        return m_isShared && (lock(F_RDLCK, sharedByte, 1) || errno == EACCES || errno == EAGAIN);
    }

    // Whether the path still leads to this file: the last one to hold it may have removed it.
    bool isInPlace() const
    {
        struct stat here = {};
        struct stat there = {};
        return ::fstat(m_descriptor, &here) == 0 && ::stat(m_path.constData(), &there) == 0 &&
               here.st_dev == there.st_dev && here.st_ino == there.st_ino;
    }

private:
    bool lock(short type, off_t start, off_t length) const
    {
        struct flock range = {};
        range.l_type = type;
        range.l_whence = SEEK_SET;
        range.l_start = start;
        range.l_len = length;
        return ::fcntl(m_descriptor, setLock, &range) == 0;
    }

    QByteArray m_path;
    int m_descriptor;
    bool m_isShared = false;
};

} // namespace

std::unique_ptr<HeldFile> holdFile(const QString& path)
{
    constexpr int mostTries = 10; // each is for one that ends at the same moment
    for (int attempt = 0; attempt < mostTries; ++attempt) {
        const int descriptor =
            ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0666);
        if (descriptor < 0) {
            return nullptr;
        }
        auto file = std::make_unique<PosixHeldFile>(path, descriptor);
        if (!file->take()) {
            return nullptr;
        }
        if (file->isInPlace()) {
            return file;
        }
    }
    return nullptr;
}

std::unique_ptr<FileCalls> systemFileCalls()
{
    return std::make_unique<PosixFileCalls>();
}

bool runsAsRoot()
{
    return ::geteuid() == 0;
}

bool endProcess(qint64 process)
{
    return ::kill(static_cast<pid_t>(process), SIGKILL) == 0;
}
