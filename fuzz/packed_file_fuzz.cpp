// The reader of packed files. The bytes are one packed file, which lies in memory.
//
// Promised: the status is one of the four; no more entries than the header counts, and of a readable file exactly
// those; inflating gives no more than the room computed from the size told; what was read is written and read back the
// same; and no entry's path leads out of the two folders.
#include "FuzzTarget.h"
#include "backup/BackUpRestore.h"
#include "backup/clsPacker.h"
#include "base/RuntimeError.h"

#include <QByteArray>
#include <QString>
#include <QtEndian>

#include <sys/mman.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Shows nothing: reading and writing ask nobody.
class NoPrompts : public UserPrompts
{
public:
    void showMessage(const QString&, const QString&, PromptIcon) override { promise(false, "no box is shown"); }
    bool askYesNo(const QString&, const QString&) override { return false; }
    PromptAnswer askYesNoCancel(const QString&, const QString&) override { return PromptAnswer::Cancel; }
    std::optional<QString> askText(const QString&, const QString&) override { return std::nullopt; }
    QString chooseFile(const QString&, const QString&) override { return QString(); }
    std::optional<int> chooseColour(int) override { return std::nullopt; }
};

// A file that lies in memory and can be opened by a path.
class MemoryFile
{
public:
    MemoryFile() : m_descriptor(memfd_create("packed", MFD_CLOEXEC)) {}

    QString path() const { return u"/proc/self/fd/%1"_s.arg(m_descriptor); }
    void fill(const std::uint8_t* data, std::size_t size) const
    {
        promise(ftruncate(m_descriptor, 0) == 0 && pwrite(m_descriptor, data, size, 0) == static_cast<ssize_t>(size),
                "there is memory for the file");
    }

private:
    int m_descriptor;
};

// The room for a size: S * 0.01 + S + 12, halves to the even number, in whole numbers.
qint64 roomFor(qint64 size)
{
    const qint64 room = size + 12 + size / 100;
    const qint64 rest = size % 100;
    return rest > 50 || (rest == 50 && room % 2 != 0) ? room + 1 : room;
}

void checkPath(const QString& fileSpec)
{
    const ApplicationFolder folder(u"/shop"_s);
    const QString path = restoredPath(folder, fileSpec, true);
    const QString name = path.sliced(path.lastIndexOf(u'/') + 1);
    const bool isFile = !name.isEmpty() && name != u"."_s && name != u".."_s && !name.contains(QChar::Null);
    promise(path.isEmpty() || path == folder.shopFile() ||
                (isFile && (path == folder.picturesFolder() + name || path == folder.templatesFolder() + name)),
            "an entry stays in its folder");
}

// Whether the entry's path is written and read back the same: it fits into its length, and no byte order mark ahead of
// it gets lost.
bool canReturn(const QString& fileSpec)
{
    return fileSpec.toUtf8().size() <= 0xFFFF && !fileSpec.startsWith(QChar::ByteOrderMark);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const MemoryFile given;
    static const MemoryFile written;
    const ApplicationFolder folder(u"/shop"_s);
    NoPrompts prompts;
    const SystemClock clock;

    given.fill(data, size);
    clsPacker packer(folder, prompts, clock, u"1.2.0"_s);
    const PackedStatus status = packer.ReadFile(given.path());
    const qint32 told = size >= 8 ? qFromLittleEndian<qint32>(data + 4) : 0;
    promise(packer.Count() <= std::max(told, 0), "no more entries than the header counts");
    switch (status) {
    case PackedStatus::SameVersion:
    case PackedStatus::NewerVersion:
    case PackedStatus::OlderVersion:
        promise(packer.Count() == told && !packer.Changed(), "a readable file has the entries that it counts");
        break;
    case PackedStatus::CannotRead:
        break;
    default:
        promise(false, "the status is one of the four");
    }

    bool isReturnable = packer.Count() > 0;
    for (int i = 1; i <= packer.Count(); ++i) {
        checkPath(packer.Item(i).FileSpec());
        isReturnable = isReturnable && canReturn(packer.Item(i).FileSpec());
    }
    if (isReturnable) {
        written.fill(nullptr, 0);
        promise(packer.WriteFile(written.path()), "what was read can be written");
        clsPacker again(folder, prompts, clock, u"1.2.0"_s);
        promise(again.ReadFile(written.path()) == PackedStatus::SameVersion && again.Count() == packer.Count() &&
                    again.Compressed() == packer.Compressed(),
                "what was written can be read");
        for (int i = 1; i <= packer.Count(); ++i) {
            clsFileData& before = packer.Item(i);
            clsFileData& after = again.Item(i);
            promise(after.FileSpec() == before.FileSpec() && after.Compressed() == before.Compressed() &&
                        after.Size() == before.Size() && after.CompressedSize() == before.CompressedSize() &&
                        after.ToString() == before.ToString(),
                    "an entry comes back as it was");
        }
    }

    for (int i = 1; i <= packer.Count(); ++i) {
        clsFileData& entry = packer.Item(i);
        const qint64 room = roomFor(entry.Size());
        const bool wasDeflated = entry.Compressed();
        const QString text = entry.ToString();
        entry.setCompressed(false);
        if (!entry.Compressed()) {
            promise(!wasDeflated || entry.Size() <= room, "inflating stays in its room");
            promise(entry.Size() == text.size() && entry.ToString() == text, "the plain bytes are the text's");
        } else {
            promise(entry.ErrorCode() != 0 && text.isEmpty(), "what cannot be inflated has an error number");
        }
    }
    return 0;
}
