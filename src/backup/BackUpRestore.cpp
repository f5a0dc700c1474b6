#include "backup/BackUpRestore.h"

#include "backup/PackedStream.h"
#include "backup/PresentShop.h"
#include "backup/clsPacker.h"
#include "base/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <new>
#include <numeric>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

bool isFolder(const QString& path)
{
    return QFileInfo(path).isDir();
}

// Deletes all files of a folder, hidden ones and links included; sub-folders stay. Makes the folder if it is not there.
void PrepareFolder(const QString& folder)
{
    makeFolder(folder);
    const QDir directory(folder);
    for (const QString& name : directory.entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Unsorted)) {
        if (!QFile::remove(folder + name)) {
            failAt(ErrorNumber::PermissionDenied, folder + name);
        }
    }
}

// The last three characters decide: "x.Kvb" deliberately gets a second extension, and "x.okvb" gets none.
QString completedName(const QString& name)
{
    const bool complete = name.contains(u'.') && (name.endsWith("KVB"_L1) || name.endsWith("kvb"_L1));
    return complete ? name : name + ".kvb"_L1;
}

// Whether an entry's name, behind its prefix, is one file name here: nothing is written outside of the folder.
bool staysInFolder(QStringView name, const QString& fileName)
{
    return !name.contains(u'/') && !name.contains(QChar::Null) && !fileName.isEmpty() && fileName != "."_L1 &&
           fileName != ".."_L1;
}

} // namespace

QStringList fileNames(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Unsorted);
}

bool canBePacked(const QString& fileName)
{
    return !fileName.contains(u'\\');
}

void makeFolder(const QString& folder)
{
    if (!isFolder(folder) && !QDir().mkpath(folder)) {
        failAt(ErrorNumber::PathFileAccess, folder);
    }
}

QString restoredPath(const ApplicationFolder& folder, const QString& fileSpec, bool withTemplates)
{
    if (fileSpec == shopEntry) {
        return folder.shopFile();
    }
    const QString fileName = fileSpec.sliced(fileSpec.lastIndexOf(u'\\') + 1);
    const auto isIn = [&](QLatin1StringView prefix) {
        return fileSpec.startsWith(prefix) && staysInFolder(QStringView(fileSpec).sliced(prefix.size()), fileName);
    };
    if (isIn(picturesPrefix)) {
        return folder.picturesFolder() + fileName;
    }
    return withTemplates && isIn(templatesPrefix) ? folder.templatesFolder() + fileName : QString();
}

bool clsPacker::BackUp(QString& name)
{
    setCompressed(true);
    if (!isFile(m_folder.shopFile())) {
        raiseReadError(PackedStatus::FileMissing);
        return false;
    }
    m_leftOut.clear();
    addOrLeaveOut(shopEntry);
    if (!isFolder(m_folder.picturesFolder())) {
        m_prompts.showMessage(u"Error"_s, u"Picture folder not found"_s, PromptIcon::Critical);
        return false;
    }
    addFolder(m_folder.picturesFolder(), picturesPrefix);
    if (!isFolder(m_folder.templatesFolder())) {
        m_prompts.showMessage(u"Error"_s, u"Templates folder not found"_s, PromptIcon::Critical);
        return false;
    }
    addFolder(m_folder.templatesFolder(), templatesPrefix);
    makeFolder(m_folder.backupsFolder());
    name = completedName(name);
    if (!WriteFile(m_folder.backupsFolder() + name)) {
        // WriteFile has raised it already: whoever listens deliberately hears it twice.
        raiseWriteError();
        return false;
    }
    m_prompts.showMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    return true;
}

void clsPacker::addFolder(const QString& folder, const QString& prefix)
{
    for (const QString& name : fileNames(folder)) {
        if (canBePacked(name)) {
            addOrLeaveOut(prefix + name);
        } else {
            m_leftOut << prefix + name;
        }
    }
}

void clsPacker::addOrLeaveOut(const QString& fileSpec)
{
    if (AddFile(fileSpec) != AddFileResult::Added) {
        // An empty file is no loss.
        const QFileInfo file(pathOnDisk(m_folder, fileSpec));
        if (!file.isFile() || file.size() > 0) {
            m_leftOut << fileSpec;
        }
    }
}

bool clsPacker::Restore(const QString& path)
{
    const PackedStatus status = ReadFile(path);
    if (status == PackedStatus::CannotRead) {
        m_prompts.showMessage(u"Restoring"_s, u"File restore failure.\r\n"_s + path, PromptIcon::Critical);
        return false;
    }
    if (status == PackedStatus::NewerVersion) {
        m_prompts.showMessage(u"Restoring canceled"_s,
                              u"File version is newer than the version of application.\r\n"_s + path,
                              PromptIcon::Warning);
        return false;
    }
    // Templates belong to their version of the program: an older backup leaves those of this installation alone.
    const bool withTemplates = status != PackedStatus::OlderVersion;
    const std::optional<QString> kept = presentShopKept(withTemplates);
    if (!kept) {
        return false;
    }
    if (withTemplates) {
        PrepareFolder(m_folder.templatesFolder());
    }
    PrepareFolder(m_folder.picturesFolder());
    const QFileInfo shop(m_folder.shopFile());
    if ((shop.exists() || shop.isSymLink()) && !QFile::remove(m_folder.shopFile())) {
        // The pictures, and perhaps the templates, are gone by now; the kept file brings them back.
        m_prompts.showMessage(u"Restoring canceled"_s, u"Can't remove shop.xml"_s, PromptIcon::Critical);
        return false;
    }
    for (const std::unique_ptr<clsFileData>& entry : m_entries) {
        const QString target = restoredPath(m_folder, entry->FileSpec(), withTemplates);
        if (target.isEmpty()) {
            continue;
        }
        // A copy is inflated and goes, so that the container does not grow to the size of the whole shop.
        clsFileData copy(*entry);
        PackedStream file(target, PackedStream::Mode::Write, *m_calls);
        copy.PutDataToFile(file);
        file.cutBehindWritten(); // two entries may have one target: the later one is the file
        file.close();
    }
    removeOldKeptShops(m_folder, path, *kept);
    return true;
}

std::optional<QString> clsPacker::presentShopKept(bool withTemplates)
{
    KeptShop kept;
    try {
        kept = keepPresentShop(m_folder, m_version, m_clock.now(), *m_calls);
    } catch (const RuntimeError&) {
        kept.isWhole = false;
    } catch (const std::bad_alloc&) {
        kept.isWhole = false;
    }
    const auto goesOn = [this](const QString& danger) {
        return m_prompts.askYesNoWithDefaultNo(u"Restoring"_s, danger + " Restore all the same?"_L1);
    };
    if ((kept.isWhole || goesOn(u"The present shop could not be kept."_s)) &&
        (hasRoomToRestore(withTemplates) || goesOn(u"The disk may lack the room for the restored files."_s))) {
        return kept.path;
    }
    if (!kept.path.isEmpty()) {
        QFile::remove(kept.path);
    }
    return std::nullopt;
}

bool clsPacker::hasRoomToRestore(bool withTemplates)
{
    const std::optional<qint64> freeRoom = m_calls->freeRoom(m_folder.path());
    if (!freeRoom) {
        return true;
    }
    const qint64 room = *freeRoom + sizeOfPresentShop(m_folder, withTemplates);
    // What an entry claims bounds what can come out of it, and costs nothing to ask; only where that is too much are
    // the bytes themselves counted.
    try {
        return sizeOfRestored(withTemplates, &clsFileData::mostRestored) <= room ||
               sizeOfRestored(withTemplates, &clsFileData::restoredSize) <= room;
    } catch (const std::bad_alloc&) {
        return false; // nobody knows
    }
}

qint64 clsPacker::sizeOfRestored(bool withTemplates, qint64 (clsFileData::*sizeOf)())
{
    QHash<QString, qint64> sizes; // of two entries of one target, the later one counts
    for (const std::unique_ptr<clsFileData>& entry : m_entries) {
        const QString target = restoredPath(m_folder, entry->FileSpec(), withTemplates);
        if (!target.isEmpty()) {
            sizes[target] = ((*entry).*sizeOf)();
        }
    }
    return std::accumulate(sizes.cbegin(), sizes.cend(), qint64{0});
}
