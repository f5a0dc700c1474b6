// Reading and writing of shop files against bare pugixml on the same bytes in the same run, for shops of 1,000, 10,000
// and 100,000 products.
//
// Reading is everything from the file on disk to the whole object tree: all keyed collections, the push of discounts
// and the collection of all nodes. The peer parses the same bytes, which lie in memory already, by load_buffer as it
// comes. Writing is everything from the object tree to the file on disk; the peer saves a DOM that is ready. Memory is
// the peak of a process that does nothing else, less what it had before; the bytes of the file count on both sides.
// Times are processor times, each of a process of its own that reads and writes once, as the program does.
//
// The unsaved shop is written while the owner works. Its time, from the question whether the shop has changed to the
// file under its name, is by the clock and without the flush, which is the disk's; it is held against a limit and not a
// peer.
//
// The peer's fastest way, which uses up the bytes and makes one node a leaf, is shown and not judged: it is what the
// program itself parses with. With the argument "unsaved" only the unsaved shop is measured.
#include "CupShop.h"
#include "Measuring.h"
#include "NoPrompts.h"
#include "base/Clock.h"
#include "base/FileBytes.h"
#include "model/ShopSession.h"
#include "model/shop_file/ShopFile.h"
#include "model/shop_file/UnsavedShop.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <pugixml.hpp>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// ---- Measuring: every reading and saving happens once in a process of its own, as when the program starts ----

double secondsOf(const std::function<void()>& work)
{
    const double start = processorSeconds();
    work();
    return processorSeconds() - start;
}

// The highest that this process's memory ever was.
double peakKilobytes()
{
    return static_cast<double>(memoryOf("VmHWM:")) / 1024;
}

// What one process has measured.
struct Sample
{
    double read = 0;   // seconds
    double write = 0;  // seconds
    double memory = 0; // kilobytes
};

Sample sampleOurs(ShopSession& session)
{
    Sample sample;
    const double before = peakKilobytes();
    sample.read = secondsOf([&] {
        loadShop(session);
        session.registerShop();
    });
    sample.memory = peakKilobytes() - before;
    sample.write = secondsOf([&] { writeShopFile(session); });
    return sample;
}

// The parser as it comes, and the parser with the options of XmlFile on bytes that it may use up. The second makes one
// node a leaf in the place of two.
enum class PeerParse { Plain, InPlace };

Sample samplePeer(const ApplicationFolder& folder, PeerParse parse)
{
    constexpr unsigned int inPlaceOptions =
        pugi::parse_cdata | pugi::parse_escapes | pugi::parse_ws_pcdata_single | pugi::parse_embed_pcdata;
    Sample sample;
    const double before = peakKilobytes();
    QByteArray bytes = readFileBytes(folder.shopFile());
    const auto size = static_cast<std::size_t>(bytes.size());
    pugi::xml_document document;
    sample.read = secondsOf([&] {
        if (parse == PeerParse::Plain) {
            document.load_buffer(bytes.constData(), size);
        } else {
            document.load_buffer_inplace(bytes.data(), size, inPlaceOptions, pugi::encoding_utf8);
        }
    });
    sample.memory = peakKilobytes() - before;
    const std::string path = (folder.shopFile() + u".peer"_s).toStdString();
    sample.write = secondsOf([&] {
        document.save_file(path.c_str(), "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    });
    return sample;
}

// Keeps a shop that has changed since it was read, by file calls that flush nothing.
Sample sampleUnsaved(ShopSession& session)
{
    Sample sample;
    UnsavedShop unsaved(session, UnsavedShop::Window::First, generalFileCalls());
    loadShop(session);
    unsaved.begin();
    session.shop->name += u" (changed)"_s;
    const qint64 start = session.clock.steadyTime();
    unsaved.keep();
    sample.write = static_cast<double>(session.clock.steadyTime() - start) * 1e-6;
    if (!QFileInfo::exists(session.folder.unsavedShopFile())) {
        giveUp(u"The unsaved shop was not written"_s);
    }
    unsaved.giveUp();
    return sample;
}

// Runs this program again for one sample.
Sample sampleInProcess(const QString& what, const QString& folder)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {what, folder});
    process.waitForFinished(-1);
    const QList<QByteArray> numbers = process.readAllStandardOutput().split(' ');
    if (numbers.size() != 3) {
        giveUp(u"A measuring process has failed"_s);
    }
    return {numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble()};
}

double median(std::vector<Sample> samples, double Sample::*value)
{
    std::sort(samples.begin(), samples.end(),
              [value](const Sample& a, const Sample& b) { return a.*value < b.*value; });
    return samples[samples.size() / 2].*value;
}

struct Result
{
    int products = 0;
    Sample ours;
    Sample plain;
    Sample inPlace;
};

void print(const char* name, const Sample& sample)
{
    std::printf("  %-34s %8.1f ms %8.1f ms %8.1f MB\n", name, sample.read * 1e3, sample.write * 1e3,
                sample.memory / 1024);
}

Result measure(ShopSession& session, int products, int rounds)
{
    fillShop(session, products);
    writeShopFile(session);
    session.shop.reset();
    std::vector<Sample> ours;
    std::vector<Sample> plain;
    std::vector<Sample> inPlace;
    for (int i = 0; i < rounds; ++i) {
        ours.push_back(sampleInProcess(u"--ours"_s, session.folder.path()));
        plain.push_back(sampleInProcess(u"--plain"_s, session.folder.path()));
        inPlace.push_back(sampleInProcess(u"--inplace"_s, session.folder.path()));
    }
    const auto medians = [](const std::vector<Sample>& samples) {
        return Sample{median(samples, &Sample::read), median(samples, &Sample::write),
                      median(samples, &Sample::memory)};
    };
    Result result{products, medians(ours), medians(plain), medians(inPlace)};
    std::printf("%d products, %.1f MB: read, write, peak memory of reading\n", products,
                static_cast<double>(QFileInfo(session.folder.shopFile()).size()) * 1e-6);
    print("the shop", result.ours);
    print("pugixml, load_buffer", result.plain);
    print("pugixml, in place, one node a leaf", result.inPlace);
    std::fflush(stdout);
    return result;
}

// Seconds.
double measureUnsaved(ShopSession& session, int products)
{
    fillShop(session, products);
    writeShopFile(session);
    session.shop.reset();
    constexpr int rounds = 15;
    std::vector<Sample> samples;
    samples.reserve(rounds);
    for (int i = 0; i < rounds; ++i) {
        samples.push_back(sampleInProcess(u"--unsaved"_s, session.folder.path()));
    }
    const double seconds = median(samples, &Sample::write);
    std::printf("%d products: write the unsaved shop %8.1f ms\n", products, seconds * 1e3);
    std::fflush(stdout);
    return seconds;
}

void show(const char* title, double ratio)
{
    std::printf("%-60s %6.2f\n", title, ratio);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QLocale::setDefault(QLocale(u"en_US"_s));
    NoPrompts prompts;
    const SystemClock clock;
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments[1].startsWith(u"--"_s)) {
        ShopSession session(ApplicationFolder(arguments[2]), prompts, clock);
        const PeerParse parse = arguments[1] == u"--plain"_s ? PeerParse::Plain : PeerParse::InPlace;
        const Sample sample = arguments[1] == u"--ours"_s      ? sampleOurs(session)
                              : arguments[1] == u"--unsaved"_s ? sampleUnsaved(session)
                                                               : samplePeer(session.folder, parse);
        std::printf("%.9f %.9f %.0f", sample.read, sample.write, sample.memory);
        std::fflush(stdout);
        std::_Exit(0); // what was made need not be taken apart
    }

    QTemporaryDir directory;
    ShopSession session(ApplicationFolder(directory.path()), prompts, clock);
    const double unsaved = measureUnsaved(session, 20'000);
    if (arguments.contains(u"unsaved"_s)) {
        return judgeAtMost("seconds to write the unsaved shop of 20,000 products", unsaved, 0.15) ? 0 : 1;
    }
    const std::vector<std::pair<int, int>> sizes = {{1'000, 25}, {10'000, 15}, {100'000, 7}};
    std::vector<Result> results;
    results.reserve(sizes.size());
    for (const auto& [products, rounds] : sizes) {
        results.push_back(measure(session, products, rounds));
    }

    std::printf("\nmultiples of the peer\n");
    bool allReached = judgeAtMost("seconds to write the unsaved shop of 20,000 products", unsaved, 0.15);
    for (const Result& result : results) {
        std::printf("%d products\n", result.products);
        allReached &=
            judgeAtMost("  read the file into the object tree : parse", result.ours.read / result.plain.read, 2.8);
        allReached &= judgeAtMost("  write the object tree to the file : save a ready DOM",
                                  result.ours.write / result.plain.write, 2.7);
        allReached &=
            judgeAtMost("  peak memory of reading : of a parse", result.ours.memory / result.plain.memory, 2.0);
        show("  read : parse in place, one node a leaf", result.ours.read / result.inPlace.read);
        show("  write : save that DOM", result.ours.write / result.inPlace.write);
        show("  peak memory : of that parse", result.ours.memory / result.inPlace.memory);
    }
    const Result& middle = results[1];
    const Result& large = results[2];
    std::printf("100,000 products against 10,000, per product\n");
    allReached &= judgeAtMost("  read", large.ours.read / middle.ours.read / 10, 1.5);
    allReached &= judgeAtMost("  write", large.ours.write / middle.ours.write / 10, 1.5);
    return allReached ? 0 : 1;
}
