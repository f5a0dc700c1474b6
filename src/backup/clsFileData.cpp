#include "backup/clsFileData.h"

#include "base/FileBytes.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/TextFile.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>
#include <zlib.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestSize = std::numeric_limits<qint32>::max();

// The room that zlib is given for a file of that size, in both directions. Computed in floating point and rounded half
// to even: 62 for 50 bytes, 164 for 150. The buffer itself is one byte longer.
qint64 roomFor(qint32 size)
{
    const double room = static_cast<double>(size) * 0.01 + size + 12;
    return std::min<qint64>(std::llrint(room), largestSize); // a length has to fit into its field
}

// No deflated stream becomes longer than this. It keeps a packed file that promises gigabytes from being given them;
// what can be inflated and what not is decided by roomFor() alone.
qint64 mostFrom(qint64 deflatedSize)
{
    constexpr qint64 largestRatio = 1032;
    return (deflatedSize + 1) * largestRatio;
}

Bytef* outputOf(QByteArray& buffer)
{
    return reinterpret_cast<Bytef*>(buffer.data());
}

const Bytef* inputOf(const QByteArray& bytes)
{
    return reinterpret_cast<const Bytef*>(bytes.constData());
}

void cutTo(QByteArray& bytes, uLongf size)
{
    bytes.truncate(static_cast<qsizetype>(size));
    bytes.squeeze();
}

QString sizeText(qint32 bytes)
{
    if (bytes < 1024) {
        return QString::number(bytes) + (bytes == 1 ? " byte"_L1 : " bytes"_L1);
    }
    // One decimal, a half rounded up; a zero behind the separator is not shown: "1. Kb.".
    const qint64 tenths = (qint64{bytes} * 10 + 512) / 1024;
    const QString decimal = tenths % 10 == 0 ? QString() : QString::number(tenths % 10);
    return QString::number(tenths / 10) + decimalSeparator() + decimal + " Kb."_L1;
}

} // namespace

QString pathOnDisk(const ApplicationFolder& folder, const QString& fileSpec)
{
    return folder.path() + u'/' + QString(fileSpec).replace(u'\\', u'/');
}

clsFileData::clsFileData(const ApplicationFolder& folder) : m_folder(folder) {}

bool clsFileData::CompressData()
{
    if (m_compressed) {
        return true;
    }
    const qint64 room = roomFor(m_size);
    QByteArray buffer(room + 1, Qt::Uninitialized);
    auto length = static_cast<uLongf>(room);
    m_errorCode = compress(outputOf(buffer), &length, inputOf(m_data), static_cast<uLong>(m_data.size()));
    m_compressed = m_errorCode == Z_OK;
    m_compressedSize = 0;
    if (m_compressed) {
        // Deliberately kept even when it did not become smaller.
        cutTo(buffer, length);
        m_compressedSize = static_cast<qint32>(length);
        m_data = std::move(buffer);
    }
    return m_compressed;
}

QString clsFileData::ParentFolder() const
{
    const qsizetype backslash = m_fileSpec.lastIndexOf(u'\\');
    if (backslash >= 0) {
        return m_fileSpec.first(backslash + 1);
    }
    const qsizetype colon = m_fileSpec.lastIndexOf(u':');
    return colon >= 0 ? m_fileSpec.first(colon + 1) + u'\\' : QString();
}

bool clsFileData::Load(const QString& relativePath, bool compress, const FileCalls& calls)
{
    m_fileSpec = relativePath;
    const QString path = pathOnDisk(m_folder, relativePath);
    try {
        if (QFileInfo(path).size() > largestSize) {
            return false;
        }
        const QByteArray bytes = readFileBytes(path, calls);
        if (bytes.isEmpty() || bytes.size() > largestSize) {
            return false;
        }
        m_data = bytes;
        m_size = static_cast<qint32>(bytes.size());
        m_compressed = false;
        m_compressedSize = 0;
        if (compress) {
            CompressData();
        }
    } catch (const RuntimeError&) {
        return false;
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

QString clsFileData::FileName() const
{
    return m_fileSpec.sliced(m_fileSpec.lastIndexOf(u'\\') + 1);
}

QString clsFileData::SizeString() const
{
    return sizeText(m_size);
}

QString clsFileData::CompressedSizeString() const
{
    return m_compressed ? sizeText(m_compressedSize) : u"n/a"_s;
}

QString clsFileData::ToString()
{
    return decodeWindows1252(m_compressed ? inflated().value_or(QByteArray()) : m_data);
}

QString clsFileData::Extension() const
{
    const qsizetype dot = m_fileSpec.lastIndexOf(u'.');
    return dot >= 0 ? m_fileSpec.sliced(dot) : QString();
}

QByteArray clsFileData::headerBytes() const
{
    PackedRecord header;
    header.addFlag(m_compressed);
    header.addText(m_fileSpec);
    header.addInt32(m_size);
    header.addInt32(m_compressedSize);
    return header.bytes();
}

qint64 clsFileData::packedSize() const
{
    return headerBytes().size() + m_data.size();
}

bool clsFileData::WriteToPackedFile(PackedStream& file) const
{
    try {
        file.write(headerBytes());
        file.write(m_data);
    } catch (const RuntimeError&) {
        return false;
    }
    return true;
}

bool clsFileData::ReadFromPackedFile(PackedStream& file)
{
    try {
        const bool compressed = file.readFlag();
        const QString fileSpec = packedText(file.readBytes(file.readUInt16()));
        const qint32 size = file.readInt32();
        const qint32 compressedSize = file.readInt32();
        if (size < 0 || compressedSize < 0) {
            return false;
        }
        m_data = file.readBytes(compressed ? compressedSize : size);
        m_compressed = compressed;
        m_fileSpec = fileSpec;
        m_size = size;
        m_compressedSize = compressedSize;
    } catch (const RuntimeError&) {
        return false;
    }
    return true;
}

void clsFileData::setCompressed(bool compressed)
{
    if (compressed == m_compressed) {
        return;
    }
    if (compressed) {
        CompressData();
    } else if (std::optional<QByteArray> plain = inflated()) {
        m_data = std::move(*plain);
        m_compressed = false;
        m_compressedSize = 0;
        m_size = static_cast<qint32>(m_data.size()); // what came out, not what the entry told
    }
}

void clsFileData::PutDataToFile(PackedStream& file)
{
    setCompressed(false);
    file.write(m_data);
}

std::optional<QByteArray> clsFileData::inflated()
{
    const qint64 room = inflatedRoom();
    QByteArray buffer(room + 1, Qt::Uninitialized);
    auto length = static_cast<uLongf>(room);
    m_errorCode = uncompress(outputOf(buffer), &length, inputOf(m_data), static_cast<uLong>(m_data.size()));
    if (m_errorCode != Z_OK) {
        return std::nullopt;
    }
    cutTo(buffer, length);
    return buffer;
}

qint64 clsFileData::restoredSize()
{
    if (m_compressed) {
        if (const std::optional<QByteArray> plain = inflated()) {
            return plain->size();
        }
    }
    return m_data.size();
}

qint64 clsFileData::mostRestored()
{
    return m_compressed ? std::max<qint64>(inflatedRoom(), m_data.size()) : m_data.size();
}

qint64 clsFileData::inflatedRoom() const
{
    return std::min(roomFor(m_size), mostFrom(m_data.size()));
}
