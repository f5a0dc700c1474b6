#include "backup/PackedStream.h"

#include "base/RuntimeError.h"
#include "base/TextFile.h"

#include <QFileInfo>
#include <QtEndian>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void failAt(ErrorNumber number, const QString& path)
{
    throw RuntimeError(number, RuntimeError(number).description() + ": "_L1 + path);
}

template <class Number>
void append(QByteArray& bytes, Number number)
{
    const Number ordered = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&ordered), sizeof ordered);
}

ErrorNumber numberOf(QFileDevice::FileError error)
{
    switch (error) {
    case QFileDevice::ResourceError:
        return ErrorNumber::DiskFull;
    case QFileDevice::PermissionsError:
        return ErrorNumber::PermissionDenied;
    case QFileDevice::OpenError:
        return ErrorNumber::PathFileAccess;
    default:
        return ErrorNumber::DeviceError;
    }
}

} // namespace

void PackedRecord::addInt32(qint32 number)
{
    append(m_bytes, number);
}

void PackedRecord::addFlag(bool flag)
{
    addUInt16(flag ? 0xFFFF : 0);
}

void PackedRecord::addText(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    if (utf8.size() > std::numeric_limits<quint16>::max()) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    addUInt16(static_cast<quint16>(utf8.size()));
    m_bytes += utf8;
}

void PackedRecord::addUInt16(quint16 number)
{
    append(m_bytes, number);
}

PackedStream::PackedStream(const QString& path, Mode mode) : m_file(path)
{
    if (path.contains(QChar::Null)) {
        failAt(mode == Mode::Read ? ErrorNumber::FileNotFound : ErrorNumber::PathFileAccess, path);
    }
    const bool exists = QFileInfo::exists(path);
    if (!exists && mode == Mode::Read) {
        failAt(ErrorNumber::FileNotFound, path);
    }
    // A pipe in the way would keep the program waiting.
    if (exists && !isFile(path)) {
        failAt(ErrorNumber::PathFileAccess, path);
    }
    // Opened for writing alone, the file would be emptied.
    const QIODevice::OpenMode access = mode == Mode::Read ? QIODevice::ReadOnly : QIODevice::ReadWrite;
    if (!m_file.open(access | QIODevice::Unbuffered)) {
        fail();
    }
    m_left = m_file.size();
}

qint32 PackedStream::readInt32()
{
    return qFromLittleEndian<qint32>(readBytes(sizeof(qint32)).constData());
}

quint16 PackedStream::readUInt16()
{
    return qFromLittleEndian<quint16>(readBytes(sizeof(quint16)).constData());
}

bool PackedStream::readFlag()
{
    return readUInt16() != 0;
}

QByteArray PackedStream::readBytes(qint64 count)
{
    if (count < 0 || count > m_left) {
        failAt(ErrorNumber::DeviceError, m_file.fileName());
    }
    QByteArray bytes(count, Qt::Uninitialized);
    if (m_file.read(bytes.data(), count) != count) {
        failAt(ErrorNumber::DeviceError, m_file.fileName());
    }
    m_left -= count;
    return bytes;
}

void PackedStream::write(const QByteArray& bytes)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 count = m_file.write(bytes.constData() + done, bytes.size() - done);
        if (count <= 0) {
            fail();
        }
        done += count;
    }
}

void PackedStream::close()
{
    m_file.close();
    if (m_file.error() != QFileDevice::NoError) {
        fail();
    }
}

void PackedStream::fail() const
{
    failAt(numberOf(m_file.error()), m_file.fileName());
}

QString packedText(const QByteArray& bytes)
{
    return decodeText(bytes).text;
}

bool isFile(const QString& path)
{
    return !path.contains(QChar::Null) && QFileInfo(path).isFile();
}
