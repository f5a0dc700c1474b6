#include "base/FileBytes.h"

#include "base/RuntimeError.h"

#include <QFile>
#include <QFileInfo>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

void flushFolderOf(const QString& path, const FileCalls& calls)
{
    calls.flushFolder(QFileInfo(path).path());
}

// Room first, so that a full disk is met while the old content is still whole.
void putBytes(OpenFile& file, const QByteArray& bytes)
{
    const qint64 oldSize = file.size();
    file.reserve(oldSize, bytes.size());
    file.write(bytes);
    if (oldSize > bytes.size()) {
        file.cut(bytes.size());
    }
}

} // namespace

QByteArray readFileBytes(const QString& path, const FileCalls& calls)
{
    const std::unique_ptr<OpenFile> file = calls.open(path, FileCalls::Access::Read);
    const qint64 expectedSize = file->size();
    if (expectedSize >= std::numeric_limits<int>::max()) {
        failAt(ErrorNumber::OutOfMemory, path);
    }
    // One byte more than expected, so that the end is seen without another round.
    QByteArray bytes(expectedSize + 1, Qt::Uninitialized);
    qsizetype filled = 0;
    while (const qint64 count = file->read(bytes.data() + filled, bytes.size() - filled)) {
        filled += count;
        if (filled == bytes.size()) {
            bytes.resize(bytes.size() * 2);
        }
    }
    bytes.truncate(filled);
    return bytes;
}

WritableFile openOrCreate(const QString& path, const FileCalls& calls)
{
    try {
        return {calls.open(path, FileCalls::Access::Overwrite), false};
    } catch (const RuntimeError& error) {
        if (error.number() != ErrorNumber::FileNotFound) {
            throw;
        }
    }
    return {calls.open(path, FileCalls::Access::Create), true};
}

void finishDurably(const WritableFile& writable, const QString& path, const FileCalls& calls)
{
    writable.file->flush();
    writable.file->close();
    if (writable.created) {
        flushFolderOf(path, calls);
    }
}

void writeFileBytes(const QString& path, const QByteArray& bytes, const FileCalls& calls)
{
    const WritableFile writable = openOrCreate(path, calls);
    try {
        putBytes(*writable.file, bytes);
    } catch (const RuntimeError&) {
        if (writable.created) {
            QFile::remove(path);
        }
        throw;
    }
    finishDurably(writable, path, calls);
}

void replaceFileDurably(const QString& path, const QByteArray& bytes, const FileCalls& calls)
{
    const QString other = path + ".new"_L1;
    try {
        const WritableFile writable = openOrCreate(other, calls);
        putBytes(*writable.file, bytes);
        writable.file->flush();
        writable.file->close();
        calls.rename(other, path);
    } catch (const RuntimeError&) {
        QFile::remove(other);
        throw;
    }
    flushFolderOf(path, calls);
}

void appendFileBytes(const QString& path, const QByteArray& bytes, const FileCalls& calls)
{
    const std::unique_ptr<OpenFile> file = calls.open(path, FileCalls::Access::Append);
    file->write(bytes);
    file->close();
}
