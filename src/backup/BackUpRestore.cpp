#include "backup/BackUpRestore.h"

#include "backup/PackedStream.h"
#include "backup/clsPacker.h"
#include "base/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

// The paths in a packed file.
constexpr QLatin1StringView shopEntry = "shop.xml"_L1;
constexpr QLatin1StringView picturesPrefix = "pictures\\"_L1;
constexpr QLatin1StringView templatesPrefix = "templates\\"_L1;

bool isFolder(const QString& path)
{
    return QFileInfo(path).isDir();
}

void makeFolder(const QString& folder)
{
    if (!isFolder(folder) && !QDir().mkpath(folder)) {
        failAt(ErrorNumber::PathFileAccess, folder);
    }
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

// The last three letters decide, so that "x.Kvb" gets a second extension and "x.okvb" none; this is meant.
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
    // A file that cannot be read or is empty is left out without a word.
    AddFile(shopEntry);
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
        // WriteFile has raised it already: whoever listens hears it twice, and this is meant.
        raiseWriteError();
        return false;
    }
    m_prompts.showMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    return true;
}

void clsPacker::addFolder(const QString& folder, const QString& prefix)
{
    for (const QString& name : QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Unsorted)) {
        // The format separates folders by backslashes: it has no way to hold one in a name.
        if (!name.contains(u'\\')) {
            AddFile(prefix + name);
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
    if (withTemplates) {
        PrepareFolder(m_folder.templatesFolder());
    }
    PrepareFolder(m_folder.picturesFolder());
    const QFileInfo shop(m_folder.shopFile());
    if ((shop.exists() || shop.isSymLink()) && !QFile::remove(m_folder.shopFile())) {
        // The pictures, and perhaps the templates, are gone by now, and this is meant.
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
        PackedStream file(target, PackedStream::Mode::Write);
        copy.PutDataToFile(file);
        file.close();
    }
    return true;
}
