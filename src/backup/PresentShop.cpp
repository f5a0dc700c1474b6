#include "backup/PresentShop.h"

#include "backup/BackUpRestore.h"
#include "backup/PackedHeader.h"
#include "backup/PackedStream.h"
#include "backup/clsFileData.h"
#include "base/KeyedCollection.h"
#include "base/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString freePath(const QString& folder, QDateTime moment)
{
    QString path;
    do {
        path = folder + moment.toString(u"'before restore 'yyyy-MM-dd hh.mm.ss'.kvb'"_s);
        moment = moment.addSecs(1);
    } while (QFileInfo::exists(path));
    return path;
}

bool isKeptName(const QString& name)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(uR"(before restore (\d{4}-\d\d-\d\d) (\d\d\.\d\d\.\d\d)\.kvb)"_s));
    const QRegularExpressionMatch match = form.match(name);
    return QDate::fromString(match.captured(1), Qt::ISODate).isValid() &&
           QTime::fromString(match.captured(2), u"hh.mm.ss"_s).isValid();
}

QStringList shopFileSpecs(const ApplicationFolder& folder)
{
    QStringList fileSpecs{shopEntry};
    for (const auto& [path, prefix] :
         {std::pair(folder.picturesFolder(), picturesPrefix), std::pair(folder.templatesFolder(), templatesPrefix)}) {
        for (const QString& name : fileNames(path)) {
            if (canBePacked(name)) {
                fileSpecs << prefix + name;
            }
        }
    }
    return fileSpecs;
}

// A packed file that is written entry by entry, begun with the first of them. Its count is written last: until then it
// is one that no reader takes for whole. Removed unless it is finished.
class GrowingPackedFile
{
public:
    GrowingPackedFile(const QString& path, const QString& version, const FileCalls& calls)
        : m_path(path), m_version(version), m_calls(calls)
    {
    }
    GrowingPackedFile(const GrowingPackedFile&) = delete;
    GrowingPackedFile& operator=(const GrowingPackedFile&) = delete;
    ~GrowingPackedFile()
    {
        if (m_stream) {
            m_stream.reset();
            QFile::remove(m_path);
        }
    }

    bool isBegun() const { return m_stream.has_value(); }

    void add(const clsFileData& entry)
    {
        if (!m_stream) {
            m_stream.emplace(m_path, PackedStream::Mode::Write, m_calls);
            m_stream->write(headerBytes({-1, m_version, false}));
        }
        if (!entry.WriteToPackedFile(*m_stream)) {
            failAt(ErrorNumber::DeviceError, m_path);
        }
        ++m_count;
    }

    void finish()
    {
        m_stream->seekToStart();
        m_stream->write(headerBytes({m_count, m_version, false}));
        m_stream->closeDurably(m_calls);
        m_stream.reset();
    }

private:
    QString m_path;
    QString m_version;
    const FileCalls& m_calls;
    std::optional<PackedStream> m_stream;
    int m_count = 0;
};

bool hasContent(const QString& path)
{
    const QFileInfo file(path);
    return file.isFile() && file.size() > 0;
}

// A link takes no room worth counting, and what it leads to stays.
qint64 sizeOf(const QFileInfo& file)
{
    return file.isFile() && !file.isSymLink() ? file.size() : 0;
}

qint64 sizeOfFiles(const QString& folder)
{
    qint64 size = 0;
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::System)) {
        size += sizeOf(file);
    }
    return size;
}

} // namespace

KeptShop keepPresentShop(const ApplicationFolder& folder, const QString& version, const QDateTime& moment,
                         const FileCalls& calls)
{
    KeptShop kept;
    const QString path = freePath(folder.backupsFolder(), moment);
    GrowingPackedFile packed(path, version, calls);
    KeyedCollection<int> packedSpecs; // a packed file with two names that differ by case alone could not be read
    for (const QString& fileSpec : shopFileSpecs(folder)) {
        if (packedSpecs.hasKey(fileSpec)) {
            continue;
        }
        clsFileData entry(folder);
        if (!entry.Load(fileSpec, false, calls)) {
            kept.isWhole = kept.isWhole && !hasContent(pathOnDisk(folder, fileSpec));
            continue;
        }
        packedSpecs.Add(0, fileSpec);
        if (!packed.isBegun()) {
            makeFolder(folder.backupsFolder());
        }
        packed.add(entry);
    }
    if (packed.isBegun()) {
        packed.finish();
        kept.path = path;
    }
    return kept;
}

void removeOldKeptShops(const ApplicationFolder& folder, const QString& restored, const QString& kept)
{
    const QDir backups(folder.backupsFolder());
    QStringList names;
    for (const QString& name : backups.entryList({u"before restore *.kvb"_s}, QDir::Files, QDir::Unsorted)) {
        if (isKeptName(name)) {
            names << name;
        }
    }
    names.sort();
    constexpr qsizetype mostKept = 3;
    const QStringList stay = {QFileInfo(restored).canonicalFilePath(), QFileInfo(kept).canonicalFilePath()};
    for (const QString& name : names.first(std::max<qsizetype>(names.size() - mostKept, 0))) {
        if (!stay.contains(QFileInfo(backups, name).canonicalFilePath())) {
            QFile::remove(backups.filePath(name));
        }
    }
}

qint64 sizeOfPresentShop(const ApplicationFolder& folder, bool withTemplates)
{
    return sizeOf(QFileInfo(folder.shopFile())) + sizeOfFiles(folder.picturesFolder()) +
           (withTemplates ? sizeOfFiles(folder.templatesFolder()) : 0);
}
