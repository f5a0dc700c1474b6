#include "base/OperatingSystem.h"
#include "base/RuntimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <filesystem>
#include <system_error>

namespace {

ErrorNumber numberOf(QFileDevice::FileError error, ErrorNumber fallback)
{
    switch (error) {
    case QFileDevice::ResourceError:
        return ErrorNumber::DiskFull;
    case QFileDevice::PermissionsError:
        return ErrorNumber::PermissionDenied;
    default:
        return fallback;
    }
}

class GeneralFile : public OpenFile
{
public:
    GeneralFile(const QString& path, QIODevice::OpenMode mode) : m_file(path)
    {
        if (!m_file.open(mode | QIODevice::Unbuffered)) {
            failAt(numberOf(m_file.error(), ErrorNumber::PathFileAccess), path);
        }
    }

    qint64 size() override { return m_file.size(); }

    qint64 read(char* bytes, qint64 count) override
    {
        const qint64 done = m_file.read(bytes, count);
        check(done >= 0);
        return done;
    }

    void write(QByteArrayView bytes) override
    {
        while (!bytes.isEmpty()) {
            const qint64 done = m_file.write(bytes.data(), bytes.size());
            check(done > 0);
            bytes = bytes.sliced(done);
        }
    }

    void seek(qint64 place) override { check(m_file.seek(place)); }
    void reserve(qint64 /*oldSize*/, qint64 /*newSize*/) override {}
    void cut(qint64 size) override { check(m_file.resize(size)); }
    void flush() override { check(m_file.flush()); }

    void close() override
    {
        m_file.close();
        check(m_file.error() == QFileDevice::NoError);
    }

private:
    void check(bool done) const
    {
        if (!done) {
            failAt(numberOf(m_file.error(), ErrorNumber::DeviceError), m_file.fileName());
        }
    }

    QFile m_file;
};

QIODevice::OpenMode modeOf(FileCalls::Access access)
{
    switch (access) {
    case FileCalls::Access::Read:
        return QIODevice::ReadOnly;
    case FileCalls::Access::Overwrite:
        return QIODevice::ReadWrite | QIODevice::ExistingOnly; // opened for writing alone, it would be emptied
    case FileCalls::Access::Create:
        return QIODevice::WriteOnly | QIODevice::NewOnly;
    case FileCalls::Access::Append:
        return QIODevice::Append;
    }
    return QIODevice::ReadOnly;
}

class GeneralFileCalls : public FileCalls
{
public:
    std::unique_ptr<OpenFile> open(const QString& path, Access access) const override
    {
        const bool needsFile = access == Access::Read || access == Access::Overwrite;
        const QFileInfo info(path);
        if (path.contains(QChar::Null) || !info.exists()) {
            if (needsFile) {
                failAt(ErrorNumber::FileNotFound, path);
            }
            if (path.contains(QChar::Null)) {
                failAt(ErrorNumber::PathFileAccess, path);
            }
        } else if (!info.isFile()) {
            failAt(ErrorNumber::PathFileAccess, path); // a pipe in the way would keep the program waiting
        }
        return std::make_unique<GeneralFile>(path, modeOf(access));
    }

    void rename(const QString& from, const QString& to) const override
    {
        std::error_code error;
        std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), error);
        if (error == std::errc::no_space_on_device) {
            failAt(ErrorNumber::DiskFull, to);
        }
        if (error) {
            failAt(error == std::errc::permission_denied ? ErrorNumber::PermissionDenied : ErrorNumber::PathFileAccess,
                   to);
        }
    }

    void flushFolder(const QString& /*folder*/) const override {}
};

} // namespace

std::optional<qint64> FileCalls::freeRoom(const QString& folder) const
{
    const QStorageInfo storage(folder);
    const qint64 room = storage.isValid() && storage.isReady() ? storage.bytesAvailable() : -1;
    return room >= 0 ? std::optional(room) : std::nullopt;
}

std::unique_ptr<FileCalls> generalFileCalls()
{
    return std::make_unique<GeneralFileCalls>();
}
