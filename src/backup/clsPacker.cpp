#include "backup/clsPacker.h"

#include "backup/PackedHeader.h"
#include "backup/PackedStream.h"
#include "base/RuntimeError.h"

#include <algorithm>
#include <new>
#include <utility>

clsPacker::clsPacker(const ApplicationFolder& folder, UserPrompts& prompts, const Clock& clock, const QString& version,
                     std::shared_ptr<const FileCalls> calls)
    : m_folder(folder), m_prompts(prompts), m_clock(clock), m_version(version), m_calls(std::move(calls))
{
}

clsFileData& clsPacker::Add(const QString& key)
{
    auto entry = std::make_unique<clsFileData>(m_folder);
    clsFileData& added = *entry;
    added.setKey(key);
    m_entries.Add(std::move(entry), key);
    m_changed = true;
    return added;
}

AddFileResult clsPacker::AddFile(const QString& relativePath)
{
    AddFileResult result = AddFileResult::AlreadyPresent;
    if (!m_entries.hasKey(relativePath)) {
        raiseWorking(false);
        // Only what has loaded is added: an entry that is taken out again costs as much as all entries that stay.
        auto entry = std::make_unique<clsFileData>(m_folder);
        result = AddFileResult::CannotLoad;
        if (entry->Load(relativePath, m_compressed)) {
            m_entries.Add(std::move(entry), relativePath);
            result = AddFileResult::Added;
        }
        m_changed = true; // also without a new entry
    }
    // Raised for a key that is present too, which had no beginning.
    raiseWorking(true);
    return result;
}

void clsPacker::Clear()
{
    m_entries.Clear();
    m_changed = true;
}

PackedStatus clsPacker::ReadFile(const QString& path)
{
    if (!path.isEmpty()) {
        FileSpec = path;
    }
    if (!isFile(FileSpec)) {
        raiseReadError(PackedStatus::FileMissing);
    }
    raiseWorking(false);
    PackedStatus status = PackedStatus::CannotRead;
    try {
        status = readContainer();
    } catch (const RuntimeError&) {
        status = PackedStatus::CannotRead;
    } catch (const std::bad_alloc&) {
        status = PackedStatus::CannotRead;
    }
    raiseWorking(true);
    if (status != PackedStatus::SameVersion) {
        raiseReadError(status);
    }
    return status;
}

PackedStatus clsPacker::readContainer()
{
    PackedStream file(FileSpec, PackedStream::Mode::Read);
    const PackedHeader header = readHeader(file);
    PackedStatus status = PackedStatus::SameVersion;
    // Versions are deliberately compared as texts, so that 1.10.0 is older than 1.9.0.
    if (header.version < m_version) {
        status = PackedStatus::OlderVersion;
    } else if (header.version > m_version) {
        status = PackedStatus::NewerVersion;
    }
    m_compressed = header.compressed;
    Clear();
    for (qint32 i = 0; i < header.count; ++i) {
        auto entry = std::make_unique<clsFileData>(m_folder);
        if (!entry->ReadFromPackedFile(file)) {
            return PackedStatus::CannotRead; // with this entry's length the place of the next one is lost
        }
        const QString key = entry->Key();
        m_entries.Add(std::move(entry), key);
    }
    m_changed = false;
    return Count() > header.count ? PackedStatus::CannotRead : status; // a count below 0
}

bool clsPacker::WriteFile(const QString& path)
{
    const QString target = path.isEmpty() ? FileSpec : path;
    if (m_entries.isEmpty() || target.isEmpty()) {
        return false;
    }
    raiseWorking(false);
    bool written = false;
    try {
        writeContainer(target);
        m_changed = false;
        written = true;
    } catch (const RuntimeError&) {
        written = false;
    } catch (const std::bad_alloc&) {
        written = false;
    }
    raiseWorking(true);
    if (!written) {
        raiseWriteError();
    }
    return written;
}

void clsPacker::writeContainer(const QString& path) const
{
    PackedStream file(path, PackedStream::Mode::Write, *m_calls);
    const QByteArray unfinished = headerBytes({-1, m_version, m_compressed});
    qint64 size = unfinished.size();
    for (const std::unique_ptr<clsFileData>& entry : m_entries) {
        size += entry->packedSize();
    }
    file.reserveToOverwrite(size);
    // The count comes last: where writing is cut short, new entries may meet old ones that they fit together with, and
    // no reader is to take such a mixture for whole.
    file.write(unfinished);
    for (const std::unique_ptr<clsFileData>& entry : m_entries) {
        if (!entry->WriteToPackedFile(file)) {
            throw RuntimeError(ErrorNumber::DeviceError);
        }
    }
    file.seekToStart();
    file.write(headerBytes({Count(), m_version, m_compressed}));
    file.closeDurably(*m_calls);
}

QString clsPacker::FileName() const
{
    // FileSpec is a path of this platform, but may come from a person who writes backslashes.
    return FileSpec.sliced(std::max(FileSpec.lastIndexOf(u'/'), FileSpec.lastIndexOf(u'\\')) + 1);
}

void clsPacker::Remove(int index)
{
    m_entries.Remove(index);
    m_changed = true;
}

void clsPacker::Remove(const QString& key)
{
    m_entries.Remove(key);
    m_changed = true;
}

void clsPacker::setCompressed(bool compressed)
{
    if (compressed == m_compressed) {
        return;
    }
    raiseWorking(false);
    for (const std::unique_ptr<clsFileData>& entry : m_entries) {
        entry->setCompressed(compressed);
    }
    m_compressed = compressed;
    m_changed = true;
    raiseWorking(true);
}

void clsPacker::raiseWorking(bool done) const
{
    if (Working) {
        Working(done);
    }
}

void clsPacker::raiseReadError(PackedStatus status) const
{
    if (ReadError) {
        ReadError(static_cast<int>(status));
    }
}

void clsPacker::raiseWriteError() const
{
    if (WriteError) {
        WriteError();
    }
}
