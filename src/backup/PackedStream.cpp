#include "backup/PackedStream.h"

#include "base/RuntimeError.h"
#include "base/TextFile.h"

#include <QFileInfo>
#include <QtEndian>

#include <limits>

namespace {

template <class Number>
void append(QByteArray& bytes, Number number)
{
    const Number ordered = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&ordered), sizeof ordered);
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

PackedStream::PackedStream(const QString& path, Mode mode, const FileCalls& calls) : m_path(path)
{
    if (mode == Mode::Read) {
        m_file.file = calls.open(path, FileCalls::Access::Read);
        m_left = m_file.file->size();
    } else {
        m_file = openOrCreate(path, calls);
    }
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
        failAt(ErrorNumber::DeviceError, m_path);
    }
    QByteArray bytes(count, Qt::Uninitialized);
    qint64 filled = 0;
    while (filled < count) {
        const qint64 done = m_file.file->read(bytes.data() + filled, count - filled);
        if (done == 0) {
            failAt(ErrorNumber::DeviceError, m_path);
        }
        filled += done;
    }
    m_left -= count;
    return bytes;
}

void PackedStream::write(const QByteArray& bytes)
{
    m_file.file->write(bytes);
    m_written += bytes.size();
}

void PackedStream::reserveToOverwrite(qint64 size)
{
    if (!m_file.created) {
        m_file.file->reserve(m_file.file->size(), size);
    }
}

void PackedStream::seekToStart()
{
    m_file.file->seek(0);
}

void PackedStream::cutBehindWritten()
{
    if (m_file.file->size() > m_written) {
        m_file.file->cut(m_written);
    }
}

void PackedStream::close()
{
    m_file.file->close();
}

void PackedStream::closeDurably(const FileCalls& calls)
{
    finishDurably(m_file, m_path, calls);
}

QString packedText(const QByteArray& bytes)
{
    return decodeText(bytes).text;
}

bool isFile(const QString& path)
{
    return !path.contains(QChar::Null) && QFileInfo(path).isFile();
}
