// The packed file: a flat container of files that is held in memory whole, and the two routines that pack the saved
// shop into one and write it back. Made for each backup and each restore by whoever runs them. The application folder's
// shop is what is on disk, not what is in memory.
#pragma once

#include "backup/clsFileData.h"
#include "base/ApplicationFolder.h"
#include "base/Clock.h"
#include "base/KeyedCollection.h"
#include "base/OperatingSystem.h"
#include "base/ProgramVersion.h"
#include "base/UserPrompts.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

// The result of ReadFile, and the code of ReadError.
enum class PackedStatus : int {
    SameVersion = 0,
    CannotRead = 2,
    FileMissing = 3, // a code of ReadError only
    NewerVersion = 4,
    OlderVersion = 5, // or the legacy form
};

enum class AddFileResult : int { Added = 0, AlreadyPresent = 1, CannotLoad = 2 };

class clsPacker
{
public:
    // The prompts and the clock outlive the packer. The version is compared with those of packed files, and written
    // into them.
    clsPacker(const ApplicationFolder& folder, UserPrompts& prompts, const Clock& clock,
              const QString& version = programVersion(), std::shared_ptr<const FileCalls> calls = systemFileCalls());

    // Keeps the present shop under backups/ (see PresentShop.h), then empties pictures/ and templates/, removes
    // shop.xml and writes back what the packed file holds; templates of an older version are left as they are. False,
    // after a box, when the packed file cannot be read or is of a newer version, or after a question, when the present
    // shop cannot be kept or the disk may lack the room and the user stops; nothing on disk is touched then. False,
    // too, when shop.xml cannot be removed. ErrorNumber::DeviceError, DiskFull, PermissionDenied or PathFileAccess when
    // a file or folder cannot be removed or written otherwise.
    bool Restore(const QString& path);
    // Packs shop.xml, pictures/ and templates/ into a file under backups/, after a box. The name is completed by
    // ".kvb". False, after a box or an event, when something is missing or writing fails. ErrorNumber::PathFileAccess
    // when backups/ cannot be made.
    bool BackUp(QString& name);
    // The files that the last backup had to leave out, as a packed file would name them: those that cannot be read, are
    // too large, have a backslash in their names, or names that differ from another one's by case alone. Empty files
    // are none of them.
    const QStringList& leftOut() const { return m_leftOut; }
    // A new, empty entry. ErrorNumber::DuplicateKey when the key is there already.
    clsFileData& Add(const QString& key);
    // Loads a file by its path relative to the application folder, with backslashes.
    AddFileResult AddFile(const QString& relativePath);
    bool Changed() const { return m_changed; }
    void Clear();
    // By 1-based index or by key. ErrorNumber::SubscriptOutOfRange or InvalidArgument when there is none. Valid until
    // the entry is removed.
    clsFileData& Item(int index) { return *m_entries.Item(index); }
    clsFileData& Item(const QString& key) { return *m_entries.Item(key); }
    int Count() const { return m_entries.Count(); }
    // Reads a packed file in place of what is held; an empty path means FileSpec. After CannotRead the entries that
    // were read stay.
    PackedStatus ReadFile(const QString& path = QString());
    // An empty path means FileSpec, which is not changed. False when there is nothing to write, or writing fails. A
    // part of the file is then left behind, which cannot be read; but a file that would be overwritten stays whole when
    // the disk lacks the room.
    bool WriteFile(const QString& path = QString());
    // The name behind the last separator of FileSpec.
    QString FileName() const;
    // By 1-based index or by key. Errors as for Item.
    void Remove(int index);
    void Remove(const QString& key);
    // The path of the packed file to read or write when none is given.
    QString FileSpec;
    bool Compressed() const { return m_compressed; }
    // Deflates or inflates all entries in memory; files added later follow.
    void setCompressed(bool compressed);

    // False when long work begins, true when it ends.
    std::function<void(bool)> Working;
    std::function<void()> VersionError; // never raised: a version that differs is a status
    std::function<void(int)> ReadError; // the numbers of PackedStatus
    std::function<void()> WriteError;

private:
    PackedStatus readContainer();
    void writeContainer(const QString& path) const;
    void addFolder(const QString& folder, const QString& prefix);
    void addOrLeaveOut(const QString& fileSpec);
    // Keeps the present shop and looks for the room, with a question for each of the two that fails. The path of the
    // kept file, empty when there is none; nothing when the user stops, and no kept file then.
    std::optional<QString> presentShopKept(bool withTemplates);
    bool hasRoomToRestore(bool withTemplates);
    qint64 sizeOfRestored(bool withTemplates, qint64 (clsFileData::*sizeOf)());
    void raiseWorking(bool done) const;
    void raiseReadError(PackedStatus status) const;
    void raiseWriteError() const;

    ApplicationFolder m_folder;
    UserPrompts& m_prompts;
    const Clock& m_clock;
    QString m_version;
    std::shared_ptr<const FileCalls> m_calls;
    KeyedCollection<std::unique_ptr<clsFileData>> m_entries; // keyed by FileSpec
    bool m_compressed = false;
    bool m_changed = false;
    QStringList m_leftOut;
};
