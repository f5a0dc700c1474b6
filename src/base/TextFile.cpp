#include "base/TextFile.h"

#include "base/LargePages.h"
#include "base/RuntimeError.h"
#include "base/Utf8.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Windows-1252's own letters at 0x80 to 0x9F. Its five undefined bytes stand for the control characters of the same
// number, so that every byte has a letter of its own and comes back.
constexpr std::array<char16_t, 32> windows1252{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                               0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<char> windows1252Byte(char16_t letter)
{
    if (letter < 0x80 || (letter >= 0xA0 && letter <= 0xFF)) {
        return static_cast<char>(letter);
    }
    for (std::size_t i = 0; i < windows1252.size(); ++i) {
        if (windows1252[i] == letter) {
            return static_cast<char>(0x80 + i);
        }
    }
    return std::nullopt;
}

std::optional<QByteArray> encodeWindows1252(const QString& text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const std::optional<char> byte = windows1252Byte(text[i].unicode());
        if (!byte) {
            return std::nullopt;
        }
        bytes[i] = *byte;
    }
    return bytes;
}

[[noreturn]] void fail(ErrorNumber number, const QString& path)
{
    throw RuntimeError(number, RuntimeError(number).description() + ": "_L1 + path);
}

// What a failed system call means to the user. Where nothing fits, the fallback.
ErrorNumber errorFromSystem(int code, ErrorNumber fallback)
{
    switch (code) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return ErrorNumber::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
        return ErrorNumber::PermissionDenied;
    case ENOMEM:
        return ErrorNumber::OutOfMemory;
    default:
        return fallback;
    }
}

[[noreturn]] void failFromSystem(int code, ErrorNumber fallback, const QString& path)
{
    fail(errorFromSystem(code, fallback), path);
}

// An open regular file, closed at the end of its scope.
class OpenFile
{
public:
    explicit OpenFile(const QString& path) : m_path(path) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile()
    {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }

    // False with errno set when the file cannot be opened.
    bool open(int flags)
    {
        if (m_path.contains(QChar::Null)) {
            errno = ENOENT;
            return false;
        }
        // Without O_NONBLOCK a pipe in the way would keep the program waiting.
        m_descriptor = ::open(QFile::encodeName(m_path).constData(), flags | O_CLOEXEC | O_NONBLOCK, 0666);
        return m_descriptor >= 0;
    }

    // The size in bytes. Error 75 when it is a folder or a device.
    qint64 size() const
    {
        struct stat status = {};
        if (::fstat(m_descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
            fail(ErrorNumber::PathFileAccess, m_path);
        }
        return status.st_size;
    }

    QByteArray readAll(qint64 expectedSize) const
    {
        if (expectedSize >= std::numeric_limits<int>::max()) {
            fail(ErrorNumber::OutOfMemory, m_path);
        }
        // One byte more than expected, so that the end is seen without another round.
        QByteArray bytes(expectedSize + 1, Qt::Uninitialized);
        useLargePages(bytes.data(), bytes.size());
        qsizetype filled = 0;
        for (;;) {
            const ssize_t count = ::read(m_descriptor, bytes.data() + filled, bytes.size() - filled);
            if (count == 0) {
                break;
            }
            if (count < 0 && errno != EINTR) {
                failFromSystem(errno, ErrorNumber::DeviceError, m_path);
            }
            if (count > 0) {
                filled += count;
                if (filled == bytes.size()) {
                    bytes.resize(bytes.size() * 2);
                }
            }
        }
        bytes.truncate(filled);
        return bytes;
    }

    void write(const QByteArray& bytes) const
    {
        qsizetype done = 0;
        while (done < bytes.size()) {
            const ssize_t count = ::write(m_descriptor, bytes.constData() + done, bytes.size() - done);
            if (count < 0 && errno != EINTR) {
                failFromSystem(errno, ErrorNumber::DeviceError, m_path);
            }
            done += count > 0 ? count : 0;
        }
    }

    // Takes room on the disk for a file of that size, or leaves the file as it is and raises.
    void reserve(qint64 oldSize, qint64 newSize) const
    {
        if (newSize <= oldSize) {
            return;
        }
        int code = 0;
        do {
            code = ::posix_fallocate(m_descriptor, oldSize, newSize - oldSize);
        } while (code == EINTR);
        // A file system that cannot reserve is written to without.
        if (code == 0 || code == EOPNOTSUPP || code == EINVAL || code == ENOSYS) {
            return;
        }
        // What was taken of the room until it ran out is given back.
        if (::ftruncate(m_descriptor, oldSize) != 0) {
            failFromSystem(errno, ErrorNumber::DeviceError, m_path);
        }
        failFromSystem(code, ErrorNumber::DeviceError, m_path);
    }

    void truncate(qint64 size) const
    {
        if (::ftruncate(m_descriptor, size) != 0) {
            failFromSystem(errno, ErrorNumber::DeviceError, m_path);
        }
    }

    void close()
    {
        const int descriptor = m_descriptor;
        m_descriptor = -1;
        if (::close(descriptor) != 0 && errno != EINTR) {
            failFromSystem(errno, ErrorNumber::DeviceError, m_path);
        }
    }

private:
    QString m_path;
    int m_descriptor = -1;
};

} // namespace

DecodedText decodeText(const QByteArray& bytes)
{
    if (isValidUtf8(bytes)) {
        return {QString::fromUtf8(bytes), TextEncoding::Utf8}; // drops one byte order mark
    }
    return {decodeWindows1252(bytes), TextEncoding::Windows1252};
}

QString decodeWindows1252(const QByteArray& bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar& letter : text) {
        if (letter.unicode() >= 0x80 && letter.unicode() <= 0x9F) {
            letter = windows1252[letter.unicode() - 0x80U];
        }
    }
    return text;
}

QByteArray encodeText(const QString& text, TextEncoding encoding)
{
    if (encoding == TextEncoding::Windows1252) {
        if (const std::optional<QByteArray> bytes = encodeWindows1252(text)) {
            return *bytes;
        }
    }
    return text.toUtf8();
}

QByteArray readFileBytes(const QString& path)
{
    OpenFile file(path);
    if (!file.open(O_RDONLY)) {
        const bool missing = errno == ENOENT || errno == ENOTDIR || errno == ENAMETOOLONG;
        failFromSystem(errno, missing ? ErrorNumber::FileNotFound : ErrorNumber::PathFileAccess, path);
    }
    return file.readAll(file.size());
}

DecodedText readTextFile(const QString& path)
{
    return decodeText(readFileBytes(path));
}

void writeFileBytes(const QString& path, const QByteArray& bytes)
{
    OpenFile file(path);
    bool created = false;
    if (!file.open(O_WRONLY)) {
        created = errno == ENOENT && file.open(O_WRONLY | O_CREAT | O_EXCL);
        if (!created) {
            failFromSystem(errno, ErrorNumber::PathFileAccess, path);
        }
    }
    const qint64 oldSize = file.size();
    try {
        file.reserve(oldSize, bytes.size());
    } catch (const RuntimeError&) {
        if (created) {
            QFile::remove(path);
        }
        throw;
    }
    file.write(bytes);
    if (oldSize > bytes.size()) {
        file.truncate(bytes.size());
    }
    file.close();
}

void appendFileBytes(const QString& path, const QByteArray& bytes)
{
    OpenFile file(path);
    if (!file.open(O_WRONLY | O_CREAT | O_APPEND)) {
        failFromSystem(errno, ErrorNumber::PathFileAccess, path);
    }
    file.size(); // refuses what is no file
    file.write(bytes);
    file.close();
}
