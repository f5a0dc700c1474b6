// Publishing against curl: a shop of 200 pictures and a few large ones to PHP's own server on loopback. Curl sends the
// same bodies, made ahead, one after another to the same server; ours reads the files, plans and builds the bodies,
// too. Both are run in turns, each time to an emptied server, and the medians of the wall times are compared.
#include "base/UserPrompts.h"
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

[[noreturn]] void giveUp(const QString& what)
{
    std::fprintf(stderr, "%s: nothing is measured.\n", qPrintable(what));
    std::exit(2);
}

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
        const int size = i % 50 == 49 ? 5000000 : 20000 + i * 700;
        shop += "<Product><Picture>" + name + "</Picture></Product>";
        writeFile(folder.picturesFolder() + QString::fromLatin1(name), QByteArray(size, static_cast<char>(i)));
    }
    writeFile(folder.shopFile(), shop + "</Category><ShopDesign/></Shop></Tarnwick>");
    const ServerFileList emptyServer;
    for (const UploadItem& item : UploadPlan(folder, emptyServer).items()) {
        if (item.kind == UploadItem::Kind::Template) {
            writeFile(PartOf(item, folder).localFile, QByteArray(4000, 't'));
        }
    }
}

class LastMessage : public UserPrompts
{
public:
    void showMessage(const QString& /*title*/, const QString& text, PromptIcon /*icon*/) override { message = text; }
    bool askYesNo(const QString& /*title*/, const QString& /*text*/) override { return false; }
    PromptAnswer askYesNoCancel(const QString& /*title*/, const QString& /*text*/) override { return PromptAnswer::No; }
    std::optional<QString> askText(const QString& /*title*/, const QString& /*prompt*/) override { return {}; }
    QString chooseFile(const QString& /*folder*/, const QString& /*filter*/) override { return {}; }
    std::optional<int> chooseColour(int /*colour*/) override { return {}; }

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

class GiveUpOnErrors : public FatalErrorHandler
{
public:
    void fatalError(const RuntimeError& error) noexcept override { giveUp(error.description()); }
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
    const QByteArray head = RequestHead(u"anna"_s, u"s3cret"_s, u"1.2.0"_s);
    QString config;
    const auto add = [&](QLatin1StringView page, const QByteArray& body) {
        const QString file = work.filePath(u"body-%1"_s.arg(config.size()));
        writeFile(file, body);
        config += config.isEmpty() ? u""_s : u"next\n"_s;
        config += u"url = \"%1\"\ndata-binary = \"@%2\"\noutput = \"/dev/null\"\n"_s.arg(address + page, file) +
                  u"header = \"Content-Type: %1\"\nheader = \"Expect:\"\nsilent\nfail\n"_s.arg(
                      QString::fromLatin1(RequestContentType()));
    };
    add(ListURL, head);
    for (const UploadItem& item : plan.items()) {
        const UploadPart part = PartOf(item, folder);
        add(UploadURL, UploadBody(head, part.fileName, part.contentType, readFile(part.localFile)));
    }
    const QString path = work.filePath(u"curl.conf"_s);
    writeFile(path, config.toUtf8());
    return path;
}

void runCurl(const QString& config)
{
    if (QProcess::execute(u"curl"_s, {u"--config"_s, config}) != 0) {
        giveUp(u"curl failed"_s);
    }
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
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
    const double ratio = median(ours) / median(theirs);
    const bool reached = ratio <= wantedAtMost;
    std::printf("%-44s %12s %12s %8s %8s\n", "wall time by that of the peer", "ours", "curl", "ratio", "at most");
    std::printf("%-44s %10.3f s %10.3f s %8.2f %8.2f  %s\n", "publishing 204 pictures and 15 other files", median(ours),
                median(theirs), ratio, wantedAtMost, reached ? "PASS" : "FAIL");
    return reached ? 0 : 1;
}
