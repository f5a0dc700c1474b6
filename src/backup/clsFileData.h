// One file inside a packed file: its path relative to the application folder, its sizes, and its bytes as they stand in
// the packed file, deflated or plain. Owned by clsPacker. A copy shares the bytes until one of the two changes them.
#pragma once

#include "backup/PackedStream.h"
#include "base/ApplicationFolder.h"

#include <QByteArray>
#include <QString>

#include <optional>

// Where the file of that path in a packed file stands on disk.
QString pathOnDisk(const ApplicationFolder& folder, const QString& fileSpec);

class clsFileData
{
public:
    explicit clsFileData(const ApplicationFolder& folder);

    // Deflates the bytes in memory, also when that makes them more. False, and nothing changed, when they do not fit
    // the room that zlib is given (ErrorCode -5) or zlib fails otherwise. Bytes that are deflated already stay so:
    // true.
    bool CompressData();
    // The result of the last call of zlib, 0 or its error number.
    int ErrorCode() const { return m_errorCode; }
    // FileSpec up to and including the last backslash; "c:\" of "c:name"; else empty.
    QString ParentFolder() const;
    // Reads a file by its path relative to the application folder, with backslashes, which becomes FileSpec. False when
    // it cannot be read, or is empty or larger than 2^31 - 1 bytes. With `compress` it is deflated; when that fails it
    // is held plain, which is no failure.
    bool Load(const QString& relativePath, bool compress, const FileCalls& calls = *systemFileCalls());
    // In bytes, before deflating.
    qint32 Size() const { return m_size; }
    // In bytes, 0 when the bytes are not deflated.
    qint32 CompressedSize() const { return m_compressedSize; }
    // FileSpec from behind the last backslash.
    QString FileName() const;
    QString FileSpec() const { return m_fileSpec; }
    // The sizes for people: "1 byte", "1.5 Kb."; "n/a" for the deflated size of plain bytes.
    QString SizeString() const;
    QString CompressedSizeString() const;
    // The plain bytes, each as one character; empty when they cannot be inflated.
    QString ToString();
    // From the last "." of FileSpec on, the dot included; empty without a dot.
    QString Extension() const;
    // How many bytes WriteToPackedFile writes.
    qint64 packedSize() const;
    // Writes header and bytes at the file's position. False on any failure.
    bool WriteToPackedFile(PackedStream& file) const;
    // Reads header and bytes at the file's position. False, and nothing changed, when the file ends too early or a size
    // is below 0.
    bool ReadFromPackedFile(PackedStream& file);
    // The same text as FileSpec. A container goes on finding the entry by the key that it was added under.
    QString Key() const { return m_fileSpec; }
    void setKey(const QString& key) { m_fileSpec = key; }
    bool Compressed() const { return m_compressed; }
    // Deflates or inflates the bytes in memory; what fails changes nothing.
    void setCompressed(bool compressed);
    // Writes the plain bytes at the file's position, without a length. Bytes that cannot be inflated are deliberately
    // written as they are, without a word. ErrorNumber::DeviceError or DiskFull when writing fails.
    void PutDataToFile(PackedStream& file);
    // How many bytes PutDataToFile would write, found by inflating them, and an upper bound of it that costs nothing.
    qint64 restoredSize();
    qint64 mostRestored();

private:
    // ErrorNumber::Overflow when the path is too long.
    QByteArray headerBytes() const;
    // The plain bytes of deflated ones, nothing when they cannot be inflated. Never more than the buffer rule allows.
    std::optional<QByteArray> inflated();
    // The room that zlib is given for the plain bytes.
    qint64 inflatedRoom() const;

    ApplicationFolder m_folder;
    bool m_compressed = false;
    QString m_fileSpec;
    qint32 m_size = 0;
    qint32 m_compressedSize = 0;
    QByteArray m_data;
    int m_errorCode = 0;
};
