// From the start of the process to the first painted window, on a shop of 10,000 products, against an empty
// QWebEngineView in a QMainWindow. Ours, whose browser comes later, may take a tenth longer than that, and the time
// that reading the shop takes, which is measured in the same run. Every start is a process of its own, and the wall
// times count; they are taken in turns, and the medians are compared.
//
// The program is the real one with its browser. It runs without a screen and draws without a graphics card.
#include "CupShop.h"
#include "Measuring.h"
#include "NoPrompts.h"
#include "base/Clock.h"
#include "base/FileBytes.h"
#include "look/Theme.h"
#include "model/shop_file/ShopFile.h"
#include "shell/BrowserPreview.h"
#include "shell/MainForm.h"
#include "shell/StartUp.h"
#include "shell/browser/PreviewBrowser.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>
#include <QWebEngineView>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 9;
constexpr int products = 10'000;
constexpr double wantedAtMost = 1.1;

// ---- The processes that are measured ----

// Sees the first painting of any part of a main window. It has to be there before the window is shown, since showing
// may paint at once.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QApplication& application) { application.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* widget = event->type() == QEvent::Paint ? qobject_cast<QWidget*>(watched) : nullptr;
        m_painted = m_painted || (widget != nullptr && qobject_cast<QMainWindow*>(widget->window()) != nullptr);
        return false;
    }

    // Says so to the process that waits for it.
    void reportPaint()
    {
        while (!m_painted) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        std::puts("painted");
        std::fflush(stdout);
    }

private:
    bool m_painted = false;
};

int startOurs(int argc, char** argv)
{
    PreviewBrowser::prepareProcess();
    QApplication application(argc, argv);
    PaintWatch watch(application);
    applyTheme(application);
    NoPrompts prompts;
    GiveUpOnErrors errors;
    const SystemClock clock;
    const ProgramServices services{ApplicationFolder(QString::fromLocal8Bit(argv[2])), prompts, clock, errors, [] {}};
    const std::unique_ptr<MainForm> window = startProgram(services, browserPreview(services.folder, errors));
    watch.reportPaint();
    return 0;
}

int startPeer(int argc, char** argv)
{
    PreviewBrowser::prepareProcess();
    QApplication application(argc, argv);
    PaintWatch watch(application);
    QMainWindow window;
    window.setCentralWidget(new QWebEngineView(&window));
    window.resize(1190, 855);
    window.show();
    watch.reportPaint();
    return 0;
}

int load(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    NoPrompts prompts;
    const SystemClock clock;
    ShopSession session(ApplicationFolder(QString::fromLocal8Bit(argv[2])), prompts, clock);
    QElapsedTimer time;
    time.start();
    loadShop(session);
    session.registerShop();
    std::printf("%.9f\n", static_cast<double>(time.nsecsElapsed()) * 1e-9);
    return 0;
}

// ---- Measuring ----

// What the engine asks the system for comes from a folder of its own.
void prepareEnvironment(const QString& home)
{
    const QByteArray folder = QFile::encodeName(home);
    QDir(home).mkdir(u"run"_s);
    QFile::setPermissions(home + u"/run"_s, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("HOME", folder);
    qputenv("XDG_CONFIG_HOME", folder + "/config");
    qputenv("XDG_CACHE_HOME", folder + "/cache");
    qputenv("XDG_DATA_HOME", folder + "/data");
    qputenv("XDG_RUNTIME_DIR", folder + "/run");
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-gpu --log-level=3");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

struct Answer
{
    double seconds = 0; // until it came
    QByteArray text;
};

Answer answerOf(const QStringList& arguments)
{
    QProcess process;
    QElapsedTimer time;
    time.start();
    process.start(QCoreApplication::applicationFilePath(), arguments);
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(60'000)) {
            process.kill();
            process.waitForFinished();
            std::fputs(process.readAllStandardError().constData(), stderr);
            giveUp(u"A start has failed"_s);
        }
    }
    const double seconds = static_cast<double>(time.nsecsElapsed()) * 1e-9;
    const QByteArray text = process.readLine();
    process.waitForFinished(60'000);
    return {seconds, text};
}

int compare()
{
    const QTemporaryDir home;
    const QTemporaryDir shop;
    prepareEnvironment(home.path());
    makeShopFolder(ApplicationFolder(shop.path()), products);
    std::vector<double> ours;
    std::vector<double> theirs;
    std::vector<double> loads;
    for (int round = 0; round <= rounds; ++round) {
        const double our = answerOf({u"--ours"_s, shop.path()}).seconds;
        const double their = answerOf({u"--peer"_s}).seconds;
        if (round > 0) { // the first start reads its files from the disk
            ours.push_back(our);
            theirs.push_back(their);
            loads.push_back(answerOf({u"--load"_s, shop.path()}).text.toDouble());
        }
    }
    const double our = median(ours);
    const double their = median(theirs);
    const double loading = median(loads);
    const double ratio = (our - loading) / their;
    const bool reached = ratio <= wantedAtMost;
    std::printf("%-44s %10s %10s %10s %8s %8s\n", "wall time less reading, by that of the peer", "ours", "reading",
                "peer", "ratio", "at most");
    std::printf("%-44s %8.3f s %8.3f s %8.3f s %8.2f %8.2f  %s\n", "first painted window, 10,000 products", our,
                loading, their, ratio, wantedAtMost, reached ? "PASS" : "FAIL");
    return reached ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    QLocale::setDefault(QLocale(u"en_US"_s));
    const QByteArray mode(argc > 1 ? argv[1] : "");
    if (mode == "--peer") {
        return startPeer(argc, argv);
    }
    if (mode == "--ours" && argc > 2) {
        return startOurs(argc, argv);
    }
    if (mode == "--load" && argc > 2) {
        return load(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    return compare();
}
