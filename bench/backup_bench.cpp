// Backup and restore of a shop of 200 MB against what they cannot do without: reading the files and calling zlib's
// compress on each; copying what is there, reading the packed file, calling uncompress on each stream and writing the
// files. The peers do just that, by system calls and into buffers made ahead, and flush the copy as a restore flushes
// the shop that it keeps. Restoring is measured into folders without files, like the peer, so that the shop file alone
// is kept; the time with an old shop to keep and to remove is shown beside it. Half of the shop is pictures that do not
// deflate, half are texts and plain bitmaps that do.
//
// Memory is measured too: a process of its own makes a backup, another restores it, and the most memory that each ever
// had may exceed what it started with by the container, three times the largest file, and 50 MB.
#include "Measuring.h"
#include "NoPrompts.h"
#include "Ratios.h"
#include "backup/clsPacker.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <random>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>
#include <zlib.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 megabyte = 1'000'000;

void writeAll(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        giveUp(u"The shop cannot be written"_s);
    }
}

void emptyFolder(const QString& folder)
{
    const QDir directory(folder);
    for (const QString& name : directory.entryList(QDir::Files, QDir::Unsorted)) {
        QFile::remove(directory.filePath(name));
    }
}

class SampleShop
{
public:
    SampleShop()
    {
        const QDir folder(m_directory.path());
        for (const QString& name : {u"pictures"_s, u"templates"_s, u"backups"_s, u"peer"_s}) {
            folder.mkdir(name);
        }
        add(u"shop.xml"_s, text(10 * megabyte));
        for (int i = 0; i < 12; ++i) {
            add(u"templates/page%1.html"_s.arg(i), text(20'000));
        }
        for (int i = 0; i < 1900; ++i) {
            const qint64 length = 20'000 + i * 7919 % 60'000; // 50 kB on average
            add(u"pictures/photo%1.jpg"_s.arg(i), noise(length));
        }
        add(u"pictures/large.jpg"_s, noise(5 * megabyte));
        for (int i = 0; i < 90; ++i) {
            add(u"pictures/drawing%1.bmp"_s.arg(i), bitmap(megabyte));
        }
    }

    ApplicationFolder folder() const { return ApplicationFolder(m_directory.path()); }
    QString path(const QString& relative) const { return m_directory.filePath(relative); }

    QStringList names;
    qint64 size = 0;
    qint64 largest = 0;

private:
    void add(const QString& name, const QByteArray& bytes)
    {
        writeAll(path(name), bytes);
        names << name;
        size += bytes.size();
        largest = std::max<qint64>(largest, bytes.size());
    }

    QByteArray noise(qint64 length)
    {
        QByteArray bytes(length, Qt::Uninitialized);
        for (char& byte : bytes) {
            byte = static_cast<char>(m_random());
        }
        return bytes;
    }

    QByteArray text(qint64 length)
    {
        static constexpr const char* words[] = {"<Product>", "<Name>cup</Name>", "<Price>", "blue", "saucer", "\r\n",
                                                "9.90"};
        QByteArray bytes;
        while (bytes.size() < length) {
            bytes += words[m_random() % std::size(words)];
            bytes += static_cast<char>('a' + m_random() % 26);
        }
        bytes.truncate(length);
        return bytes;
    }

    // Runs of a few colours with some grain.
    QByteArray bitmap(qint64 length)
    {
        QByteArray bytes;
        while (bytes.size() < length) {
            const auto colour = static_cast<char>(m_random() % 8 * 32);
            bytes += QByteArray(static_cast<qsizetype>(20 + m_random() % 60), colour);
            bytes += static_cast<char>(colour + m_random() % 4);
        }
        bytes.truncate(length);
        return bytes;
    }

    QTemporaryDir m_directory;
    std::mt19937 m_random{1};
};

bool backUp(const SampleShop& shop)
{
    NoPrompts prompts;
    const SystemClock clock;
    clsPacker packer(shop.folder(), prompts, clock);
    QString name = u"big"_s;
    return packer.BackUp(name);
}

bool restore(const SampleShop& shop)
{
    NoPrompts prompts;
    const SystemClock clock;
    clsPacker packer(shop.folder(), prompts, clock);
    return packer.Restore(shop.path(u"backups/big.kvb"_s));
}

// A file by bare system calls.
class BareFile
{
public:
    BareFile(const std::string& path, int flags) : m_descriptor(::open(path.c_str(), flags, 0666))
    {
        if (m_descriptor < 0) {
            giveUp(u"A file cannot be opened"_s);
        }
    }
    BareFile(const BareFile&) = delete;
    BareFile& operator=(const BareFile&) = delete;
    ~BareFile() { ::close(m_descriptor); }

    std::size_t read(std::vector<Bytef>& buffer, std::size_t count) const
    {
        const ssize_t done = ::read(m_descriptor, buffer.data(), std::min(count, buffer.size()));
        return done > 0 ? static_cast<std::size_t>(done) : 0;
    }
    void write(const std::vector<Bytef>& buffer, std::size_t count) const
    {
        if (::write(m_descriptor, buffer.data(), count) != static_cast<ssize_t>(count)) {
            giveUp(u"A file cannot be written"_s);
        }
    }
    void flush() const
    {
        if (::fsync(m_descriptor) != 0) {
            giveUp(u"A file cannot be flushed"_s);
        }
    }

private:
    int m_descriptor;
};

// The bare sums. Streams are kept as sizes only; the bytes lie one after the other in one file, as in a packed file.
class Peer
{
public:
    explicit Peer(const SampleShop& shop)
        : m_packed(shop.path(u"packed"_s).toStdString()),
          m_kept(shop.path(u"kept"_s).toStdString()),
          m_plain(static_cast<std::size_t>(shop.largest) + 1),
          m_deflated(compressBound(static_cast<uLong>(shop.largest)))
    {
        const BareFile packed(m_packed, O_WRONLY | O_CREAT | O_TRUNC);
        for (const QString& name : shop.names) {
            Stream stream;
            stream.from = shop.path(name).toStdString();
            stream.to = shop.path(u"peer/"_s + name.section(u'/', -1)).toStdString();
            m_streams.push_back(stream);
            m_streams.back().deflated = deflate(stream);
            packed.write(m_deflated, m_streams.back().deflated);
        }
    }

    std::size_t readAndCompress()
    {
        std::size_t total = 0;
        for (const Stream& stream : m_streams) {
            total += deflate(stream);
        }
        return total;
    }

    std::size_t copyReadUncompressAndWrite()
    {
        copyWhatIsThere();
        std::size_t total = 0;
        const BareFile packed(m_packed, O_RDONLY);
        for (const Stream& stream : m_streams) {
            const std::size_t count = packed.read(m_deflated, stream.deflated);
            uLongf length = m_plain.size();
            if (uncompress(m_plain.data(), &length, m_deflated.data(), count) != Z_OK) {
                giveUp(u"A stream cannot be inflated"_s);
            }
            BareFile(stream.to, O_WRONLY | O_CREAT | O_TRUNC).write(m_plain, length);
            total += length;
        }
        return total;
    }

private:
    struct Stream
    {
        std::string from;
        std::string to;
        std::size_t deflated = 0;
    };

    // All files of the shop, one behind the other in one file, which is then on the disk.
    void copyWhatIsThere()
    {
        const BareFile kept(m_kept, O_WRONLY | O_CREAT | O_TRUNC);
        for (const Stream& stream : m_streams) {
            if (::access(stream.from.c_str(), F_OK) == 0) {
                const std::size_t count = BareFile(stream.from, O_RDONLY).read(m_plain, m_plain.size());
                kept.write(m_plain, count);
            }
        }
        kept.flush();
    }

    std::size_t deflate(const Stream& stream)
    {
        const std::size_t count = BareFile(stream.from, O_RDONLY).read(m_plain, m_plain.size());
        uLongf length = m_deflated.size();
        if (compress(m_deflated.data(), &length, m_plain.data(), count) != Z_OK) {
            giveUp(u"A file cannot be deflated"_s);
        }
        return length;
    }

    std::string m_packed;
    std::string m_kept;
    std::vector<Stream> m_streams;
    std::vector<Bytef> m_plain;
    std::vector<Bytef> m_deflated;
};

// Runs the work in a process of its own and tells by how much the most memory that it had exceeds what it started with.
qint64 memoryGrowth(const std::function<bool()>& work)
{
    int ends[2];
    if (::pipe(ends) != 0) {
        giveUp(u"No pipe"_s);
    }
    const pid_t child = ::fork();
    if (child == 0) {
        const qint64 before = memoryOf("VmRSS:");
        const qint64 growth = work() ? memoryOf("VmHWM:") - before : -1;
        const bool told = ::write(ends[1], &growth, sizeof growth) == sizeof growth;
        ::_exit(told ? 0 : 1);
    }
    qint64 growth = -1;
    const bool heard = ::read(ends[0], &growth, sizeof growth) == sizeof growth;
    int status = 0;
    ::waitpid(child, &status, 0);
    ::close(ends[0]);
    ::close(ends[1]);
    if (!heard || growth < 0) {
        giveUp(u"A backup or a restore failed"_s);
    }
    return growth;
}

bool memoryIsInside(const char* title, qint64 growth, qint64 limit)
{
    const bool inside = growth <= limit;
    std::printf("%-44s %9.0f MB %9.0f MB %17s\n", title, static_cast<double>(growth) / megabyte,
                static_cast<double>(limit) / megabyte, inside ? "PASS" : "FAIL");
    return inside;
}

// Runs the work each time on folders without files, which is not measured.
void registerRun(const std::string& name, const QStringList& emptied, const std::function<bool()>& work)
{
    benchmark::RegisterBenchmark(name.c_str(), [emptied, work](benchmark::State& state) {
        for (auto _ : state) {
            state.PauseTiming();
            for (const QString& folder : emptied) {
                emptyFolder(folder);
            }
            state.ResumeTiming();
            if (!work()) {
                giveUp(u"A backup or a restore failed"_s);
            }
        }
    })->Unit(benchmark::kMicrosecond);
}

} // namespace

int main(int argc, char** argv)
{
    const SampleShop shop;
    std::printf("a shop of %.0f MB in %d files\n", static_cast<double>(shop.size) / megabyte,
                static_cast<int>(shop.names.size()));

    // Before anything else has taken memory.
    const qint64 backUpGrowth = memoryGrowth([&] { return backUp(shop); });
    const qint64 container = QFile(shop.path(u"backups/big.kvb"_s)).size();
    const qint64 restoreGrowth = memoryGrowth([&] { return restore(shop); });
    const qint64 limit = container + 3 * shop.largest + 50 * megabyte;
    std::printf("\n%-44s %12s %12s\n", "growth of memory", "ours", "limit");
    const bool backUpInside = memoryIsInside("a backup", backUpGrowth, limit);
    const bool restoreInside = memoryIsInside("a restore", restoreGrowth, limit);

    Peer peer(shop);
    const QStringList shopFolders = {shop.path(u"pictures"_s), shop.path(u"templates"_s)};
    registerRun("backup", {}, [&] { return backUp(shop); });
    registerRun("reading and compress", {}, [&] { return peer.readAndCompress() > 0; });
    const QString peerFolder = shop.path(u"peer"_s);
    registerRun("copying, reading, uncompress and writing", shopFolders + QStringList{peerFolder},
                [&] { return peer.copyReadUncompressAndWrite() > 0; });
    registerRun("restore", shopFolders, [&] { return restore(shop); });
    registerRun("restore over an old shop", {}, [&] { return restore(shop); });
    registerRun("the same with the old shop to copy", {peerFolder},
                [&] { return peer.copyReadUncompressAndWrite() > 0; });

    // One run takes seconds.
    std::vector<char*> arguments(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=3";
    arguments.insert(arguments.begin() + 1, repetitions.data());
    const int ratios = runAndCompare(static_cast<int>(arguments.size()), arguments.data(),
                                     {{"backup", "backup", "reading and compress", 1 / 1.1},
                                      {"restore", "restore", "copying, reading, uncompress and writing", 1 / 1.3},
                                      {"  with an old shop to keep and to remove", "restore over an old shop",
                                       "the same with the old shop to copy", 0}});
    return ratios != 0 ? ratios : (backUpInside && restoreInside ? 0 : 1);
}
