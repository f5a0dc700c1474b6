// Publishing a shop with 200 MB of pictures against curl, to PHP's own server on loopback. Curl sends the same bodies,
// made ahead, one after another to the same server; ours reads the files, plans and builds the bodies, too. Both are
// run in turns, each time to an emptied server, and the medians of the wall times are compared.
//
// Memory is measured too: the most that a process of its own ever had may exceed what it had before it published by
// three times the largest file, and 50 MB.
#include "Measuring.h"
#include "NoPrompts.h"
#include "base/FileBytes.h"
#include "publish/UploadPlan.h"
#include "publish/UploadProtocol.h"
#include "publish/UploadRun.h"
#include "publish/dialog/NetworkHttpClient.h"
#include "publish/dialog/PhpServer.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 5;
constexpr double wantedAtMost = 1.3; // our wall time by curl's
constexpr int largestPicture = 5'000'000;
constexpr double wantedMegabytes = 3 * largestPicture / 1e6 + 50;

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        giveUp(path);
    }
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        giveUp(path);
    }
    return file.readAll();
}

// A shop whose pictures have sizes as a shop's have.
void makeShop(const ApplicationFolder& folder)
{
    QDir().mkpath(folder.picturesFolder());
    QDir().mkpath(folder.templatesFolder());
    QByteArray shop = "<Tarnwick><Shop><Category>";
    for (int i = 0; i < 204; ++i) {
        const QByteArray name = QByteArray::number(i) + ".png";
        const int size = i % 50 == 49 ? largestPicture : 20'000 + i * 8'700;
        shop += "<Product><Picture>" + name + "</Picture></Product>";
        writeFile(folder.picturesFolder() + QString::fromLatin1(name), QByteArray(size, static_cast<char>(i)));
    }
    writeFile(folder.shopFile(), shop + "</Category><ShopDesign/></Shop></Tarnwick>");
    const ServerFileList emptyServer;
    for (const UploadItem& item : UploadPlan(folder, emptyServer).items()) {
        if (item.kind == UploadItem::Kind::Template) {
            writeFile(partOf(item, folder).localFile, QByteArray(4000, 't'));
        }
    }
}

class LastMessage : public NoPrompts
{
public:
    void showMessage(const QString& /*title*/, const QString& text, PromptIcon /*icon*/) override { message = text; }

    QString message;
};

class NoWindow : public UploadScreen
{
public:
    explicit NoWindow(const QString& address) : m_address(address) {}

    UploadFields fields() const override { return {m_address, u"anna"_s, u"s3cret"_s}; }
    void setAddress(const QString& /*address*/) override {}
    void setHourglass(bool /*on*/) override {}
    void showProgress(int /*value*/) override {}
    void closeScreen() override { loop.quit(); }

    QEventLoop loop;

private:
    QString m_address;
};

void publish(const ApplicationFolder& folder, const QString& address)
{
    GiveUpOnErrors errors;
    NetworkHttpClient client(errors);
    LastMessage prompts;
    NoWindow screen(address);
    UploadRun run(folder, client, prompts, screen);
    run.start();
    screen.loop.exec();
    if (prompts.message != u"Complete") {
        giveUp(u"The upload failed with \"%1\""_s.arg(prompts.message));
    }
}

// Curl's instructions for the same requests in the same order; the bodies stand in files.
QString prepareCurl(const ApplicationFolder& folder, const QString& address, const QDir& work)
{
    const ServerFileList emptyServer;
    UploadPlan plan(folder, emptyServer);
    plan.walkShopFile();
    const QByteArray head = requestHead(u"anna"_s, u"s3cret"_s, u"1.2.0"_s);
    QString config;
    const auto add = [&](QLatin1StringView page, const QByteArray& body) {
        const QString file = work.filePath(u"body-%1"_s.arg(config.size()));
        writeFile(file, body);
        config += config.isEmpty() ? u""_s : u"next\n"_s;
        config += u"url = \"%1\"\ndata-binary = \"@%2\"\noutput = \"/dev/null\"\n"_s.arg(address + page, file) +
                  u"header = \"Content-Type: %1\"\nheader = \"Expect:\"\nsilent\nfail\n"_s.arg(
                      QString::fromLatin1(requestContentType()));
    };
    add(ListURL, head);
    for (const UploadItem& item : plan.items()) {
        const UploadPart part = partOf(item, folder);
        add(UploadURL, uploadBody(head, part.fileName, part.contentType, readFile(part.localFile)));
    }
    QString path = work.filePath(u"curl.conf"_s);
    writeFile(path, config.toUtf8());
    return path;
}

void runCurl(const QString& config)
{
    if (QProcess::execute(u"curl"_s, {u"--config"_s, config}) != 0) {
        giveUp(u"curl failed"_s);
    }
}

// ---- Memory ----

// The highest that this process's memory ever was.
double peakMegabytes()
{
    return static_cast<double>(memoryOf("VmHWM:")) * 1e-6;
}

int publishAlone(const QString& address, const ApplicationFolder& folder)
{
    const double before = peakMegabytes();
    publish(folder, address);
    std::printf("%.1f", peakMegabytes() - before);
    return 0;
}

double megabytesOfPublishing(const QString& address, const ApplicationFolder& folder)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {u"--alone"_s, address, folder.path()});
    process.waitForFinished(-1);
    bool ok = false;
    const double megabytes = process.readAllStandardOutput().toDouble(&ok);
    if (!ok) {
        giveUp(u"The publishing process failed"_s);
    }
    return megabytes;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 4 && arguments[1] == u"--alone"_s) {
        return publishAlone(arguments[2], ApplicationFolder(arguments[3]));
    }
    const QTemporaryDir shopFolder;
    const QTemporaryDir work;
    const ApplicationFolder folder(shopFolder.path());
    makeShop(folder);
    PhpServer server;
    if (!server.start()) {
        giveUp("PHP's server cannot be started, "_L1 + server.why());
    }
    const QString config = prepareCurl(folder, server.address(), QDir(work.path()));

    const auto seconds = [&server](const std::function<void()>& run) {
        server.empty();
        QElapsedTimer clock;
        clock.start();
        run();
        return static_cast<double>(clock.nsecsElapsed()) / 1e9;
    };
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(seconds([&] { publish(folder, server.address()); }));
        if (server.takeRequests().size() != 220) {
            giveUp(u"Not all files arrived"_s);
        }
        theirs.push_back(seconds([&] { runCurl(config); }));
        if (server.takeRequests().size() != 220) {
            giveUp(u"curl did not send all files"_s);
        }
    }
    server.empty();
    const double megabytes = megabytesOfPublishing(server.address(), folder);

    const double ratio = median(ours) / median(theirs);
    const bool isFast = ratio <= wantedAtMost;
    std::printf("%-44s %12s %12s %8s %8s\n", "wall time by that of the peer", "ours", "curl", "ratio", "at most");
    std::printf("%-44s %10.3f s %10.3f s %8.2f %8.2f  %s\n", "publishing 204 pictures and 15 other files", median(ours),
                median(theirs), ratio, wantedAtMost, isFast ? "PASS" : "FAIL");
    const bool isSmall = megabytes <= wantedMegabytes;
    std::printf("%-44s %10.1f MB %29.1f MB  %s\n", "memory that publishing takes", megabytes, wantedMegabytes,
                isSmall ? "PASS" : "FAIL");
    return isFast && isSmall ? 0 : 1;
}
