// Files from strangers that are small and ask for much: each is read, or imported, with N and with 4 N of what it
// repeats. The larger may take four times as long, and half of that more; and the memory of reading stays below ten
// times the file's size plus 100 MB, and, for a shop file, below 1.3 times what pugixml's parse of the same bytes
// takes, plus 1 KB for each category, product and row, plus 50 MB.
//
// Every file is read in processes of their own.
#include "Measuring.h"
#include "NoPrompts.h"
#include "base/Clock.h"
#include "base/FileBytes.h"
#include "data/HostileShops.h"
#include "model/ShopSession.h"
#include "model/clsImporter.h"
#include "model/shop_file/ShopFile.h"

#include <QCoreApplication>
#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>
#include <limits>
#include <malloc.h>
#include <pugixml.hpp>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 5;
constexpr double growthAtMost = 1.5;
constexpr double megabyte = 1'000'000;

// Long enough to be told from the noise of one reading.
constexpr double leastSeconds = 0.2;

const QByteArray emptyShop("<Tarnwick><Shop><Version>1.2.0</Version><Name>S</Name><Description/>"
                           "<MaxProductId>1</MaxProductId><SelectedCountries/></Shop></Tarnwick>");

// What one process has measured.
struct Sample
{
    double seconds = 0; // of processor time, for one reading
    double memory = 0;  // bytes, of the first reading
};

Sample sampleOf(const std::function<void()>& prepare, const std::function<void()>& work)
{
    Sample sample;
    prepare();
    const double before = static_cast<double>(memoryOf("VmHWM:"));
    work();
    sample.memory = static_cast<double>(memoryOf("VmHWM:")) - before;

    // The first reading pays for the pages of memory that the later ones find, so it does not count.
    double total = 0;
    int runs = 0;
    for (; total < leastSeconds; ++runs) {
        prepare();
        const double start = processorSeconds();
        work();
        total += processorSeconds() - start;
    }
    sample.seconds = total / runs;
    return sample;
}

// The file of a folder's shop, or of its import. A shop of an older version is written back as it is read, so every
// reading starts from the bytes.
Sample sampleOurs(const ApplicationFolder& folder, bool isImport)
{
    NoPrompts prompts;
    const SystemClock clock;
    const QString file = folder.path() + u"/input"_s;
    std::unique_ptr<ShopSession> session;
    const auto readShopFile = [&] {
        if (!loadShop(*session)) {
            giveUp(u"A shop cannot be read"_s);
        }
        session->registerShop();
    };
    const auto prepare = [&] {
        session.reset();
        session = std::make_unique<ShopSession>(folder, prompts, clock);
        writeFileBytes(folder.shopFile(), isImport ? emptyShop : readFileBytes(file));
        if (isImport) {
            readShopFile();
        }
    };
    return sampleOf(prepare, [&] { isImport ? clsImporter(*session).Import(file) : readShopFile(); });
}

Sample sampleParse(const ApplicationFolder& folder)
{
    const QByteArray bytes = readFileBytes(folder.path() + u"/input"_s);
    pugi::xml_document document;
    return sampleOf([&] { document.reset(); },
                    [&] { document.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size())); });
}

// Runs this program again for one sample.
Sample sampleInProcess(const QString& what, const QString& folder)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {what, folder});
    process.waitForFinished(-1);
    const QList<QByteArray> numbers = process.readAllStandardOutput().split(' ');
    if (numbers.size() != 2) {
        std::fputs(process.readAllStandardError().constData(), stderr);
        giveUp(u"A measuring process has failed"_s);
    }
    return {numbers[0].toDouble(), numbers[1].toDouble()};
}

// Categories, products and rows of tables in a shop file.
double entries(const QByteArray& bytes)
{
    qsizetype count = 0;
    for (const char* name : {"Category", "Product", "MultiplePrice", "PriceFrame", "Type", "CostsFrame", "RId"}) {
        count += bytes.count('<' + QByteArray(name) + '>') + bytes.count('<' + QByteArray(name) + "/>");
    }
    return static_cast<double>(count);
}

bool measure(const HostileInput& input)
{
    const QTemporaryDir directories[2];
    QByteArray files[2];
    for (int i = 0; i < 2; ++i) {
        // The larger is of the size that the tests read, since some of them meet their limits above it.
        files[i] = input.make(i == 0 ? input.size / 4 : input.size);
        writeFileBytes(directories[i].path() + u"/input"_s, files[i]);
    }
    std::vector<double> seconds[2];
    std::vector<double> memory;
    std::vector<double> ofParse;
    for (int round = 0; round < rounds; ++round) {
        const QString what = input.isImport ? u"--import"_s : u"--read"_s;
        seconds[0].push_back(sampleInProcess(what, directories[0].path()).seconds);
        const Sample large = sampleInProcess(what, directories[1].path());
        seconds[1].push_back(large.seconds);
        memory.push_back(large.memory);
        if (!input.isImport) {
            ofParse.push_back(sampleInProcess(u"--parse"_s, directories[1].path()).memory);
        }
    }
    const auto size = static_cast<double>(files[1].size());
    std::printf("%s: %.2f MB, %.1f and %.1f ms, %.1f MB\n", input.name, size / megabyte, median(seconds[0]) * 1e3,
                median(seconds[1]) * 1e3, median(memory) / megabyte);
    const double growth = median(seconds[1]) / median(seconds[0]) / (input.isSquare ? 16 : 4);
    bool isReached = judgeAtMost("  time for 4 N : what it grows by", growth, growthAtMost);
    isReached &= judgeAtMost("  MB : ten times the size and 100 MB", median(memory) / (10 * size + 100 * megabyte), 1);
    if (!input.isImport) {
        const double limit = 1.3 * median(ofParse) + 1'024 * entries(files[1]) + 50 * megabyte;
        isReached &= judgeAtMost("  MB : 1.3 parses, 1 KB an entry and 50 MB", median(memory) / limit, 1);
    }
    std::fflush(stdout);
    return isReached;
}

} // namespace

int main(int argc, char** argv)
{
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    QLocale::setDefault(QLocale(u"en_US"_s));
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3) {
        const ApplicationFolder folder(arguments[2]);
        const Sample sample =
            arguments[1] == u"--parse"_s ? sampleParse(folder) : sampleOurs(folder, arguments[1] == u"--import"_s);
        std::printf("%.9f %.0f", sample.seconds, sample.memory);
        return 0;
    }
    bool isReached = true;
    for (const HostileInput& input : hostileInputs()) {
        isReached &= measure(input);
    }
    return isReached ? 0 : 1;
}
