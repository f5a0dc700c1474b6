// The packed file: a flat container of files that is held in memory whole, and the two routines that pack the saved
// shop into one and write it back. Made for each backup and each restore by whoever runs them. The application folder's
// shop is what is on disk, not what is in memory.
#pragma once

#include "backup/clsFileData.h"
#include "base/ApplicationFolder.h"
#include "base/KeyedCollection.h"
#include "base/OperatingSystem.h"
#include "base/ProgramVersion.h"
#include "base/UserPrompts.h"

#include <QString>

#include <functional>
#include <memory>

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
    // The prompts outlive the packer. The version is compared with those of packed files, and written into them.
    clsPacker(const ApplicationFolder& folder, UserPrompts& prompts, const QString& version = programVersion(),
              std::shared_ptr<const FileCalls> calls = systemFileCalls());

    // Empties pictures/ and templates/, removes shop.xml and writes back what the packed file holds; templates of an
    // older version are left as they are. False, after a box, when the packed file cannot be read or is of a newer
    // version, nothing on disk being touched then, or when shop.xml cannot be removed. Errors 57, 61, 70 or 75 when a
    // file or folder cannot be removed or written otherwise.
    bool Restore(const QString& path);
    // Packs shop.xml, pictures/ and templates/ into a file under backups/, after a box. The name is completed by
    // ".kvb". False, after a box or an event, when something is missing or writing fails. Error 75 when backups/ cannot
    // be made.
    bool BackUp(QString& name);
    // A new, empty entry. Error 457 when the key is there already.
    clsFileData& Add(const QString& key);
    // Loads a file by its path relative to the application folder, with backslashes.
    AddFileResult AddFile(const QString& relativePath);
    bool Changed() const { return m_changed; }
    void Clear();
    // By 1-based index or by key. Error 9 or 5 when there is none. Valid until the entry is removed.
    clsFileData& Item(int index) { return *m_entries.Item(index); }
    clsFileData& Item(const QString& key) { return *m_entries.Item(key); }
    int Count() const { return m_entries.Count(); }
    // Reads a packed file in place of what is held; an empty path means FileSpec. After CannotRead the entries that
    // were read stay.
    PackedStatus ReadFile(const QString& path = QString());
    // An empty path means FileSpec, which is not changed. False when there is nothing to write, or writing fails; a
    // part of the file is then left behind.
    bool WriteFile(const QString& path = QString());
    // The name behind the last separator of FileSpec.
    QString FileName() const;
    // By 1-based index or by key. Error 9 or 5 when there is none.
    void Remove(int index);
    void Remove(const QString& key);
    // The path of the packed file that is meant when none is told.
    QString FileSpec;
    bool Compressed() const { return m_compressed; }
    // Deflates or inflates all entries in memory; files added later follow.
    void setCompressed(bool compressed);

    // False when long work begins, true when it ends.
    std::function<void(bool)> Working;
    std::function<void()> VersionError; // never raised, and this is meant: a version that differs is a status
    std::function<void(int)> ReadError; // the numbers of PackedStatus
    std::function<void()> WriteError;

private:
    PackedStatus readContainer();
    void writeContainer(const QString& path) const;
    void addFolder(const QString& folder, const QString& prefix);
    void raiseWorking(bool done) const;
    void raiseReadError(PackedStatus status) const;
    void raiseWriteError() const;

    ApplicationFolder m_folder;
    UserPrompts& m_prompts;
    QString m_version;
    std::shared_ptr<const FileCalls> m_calls;
    KeyedCollection<std::unique_ptr<clsFileData>> m_entries; // keyed by FileSpec
    bool m_compressed = false;
    bool m_changed = false;
};
