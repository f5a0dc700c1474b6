// From the press that first asks for the preview to its loaded page, in a running program, against a QWebEngineView
// that is made late in a shown QMainWindow and given the same page. Ours may take 0.15 longer. Every program is a
// process of its own, and the wall times count; they are taken in turns, and the medians are compared.
//
// On a screen, or under a virtual one: ./bench.sh sees to that.
#include "CupShop.h"
#include "Measuring.h"
#include "NoBrowser.h"
#include "NoPrompts.h"
#include "base/Clock.h"
#include "base/FileBytes.h"
#include "look/Theme.h"
#include "shell/BrowserPreview.h"
#include "shell/MainForm.h"
#include "shell/StartUp.h"
#include "shell/browser/PreviewBrowser.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLocale>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 9;
constexpr int products = 1'000;
constexpr double wantedAtMost = 1.15;

// ---- The processes that are measured ----

// Asks for a page, and tells the seconds until it is loaded. `ask` gives the page that it will be in.
double secondsUntilLoaded(const std::function<QWebEnginePage*()>& ask)
{
    QElapsedTimer time;
    time.start();
    bool isThere = false;
    const QWebEnginePage* page = ask();
    const auto connection =
        QObject::connect(page, &QWebEnginePage::loadFinished, page, [&](bool isLoaded) { isThere = isLoaded; });
    while (!isThere) {
        if (time.elapsed() > 60'000) {
            giveUp(u"The page did not come"_s);
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1'000);
    }
    QObject::disconnect(connection);
    return static_cast<double>(time.nsecsElapsed()) * 1e-9;
}

double measureOurs(const ApplicationFolder& folder)
{
    NoPrompts prompts;
    GiveUpOnErrors errors;
    const SystemClock clock;
    const std::unique_ptr<MainForm> window =
        startProgram({folder, prompts, clock, errors, [] {}}, browserPreview(folder, errors));
    settle(1'000);
    return secondsUntilLoaded([&] {
        window->findChild<QAction*>(u"mnuShopPreview"_s)->trigger();
        return qobject_cast<PreviewBrowser*>(window->parts().PreviewBrowser)->page();
    });
}

double measurePeer(const ApplicationFolder& folder)
{
    QMainWindow window;
    window.setCentralWidget(new QWidget(&window));
    window.resize(1190, 855);
    window.show();
    settle(1'000);
    const QString text = QString::fromUtf8(readFileBytes(folder.path() + u"/page.html"_s));
    return secondsUntilLoaded([&] {
        auto* view = new QWebEngineView(&window);
        window.setCentralWidget(view);
        view->setHtml(text, QUrl::fromLocalFile(folder.path() + u'/'));
        return view->page();
    });
}

int measure(int argc, char** argv, const QByteArray& mode)
{
    PreviewBrowser::prepareProcess();
    QApplication application(argc, argv);
    applyTheme(application);
    const ApplicationFolder folder(QString::fromLocal8Bit(argv[2]));
    std::printf("%.6f\n", mode == "--ours" ? measureOurs(folder) : measurePeer(folder));
    std::fflush(stdout);
    return 0;
}

// Keeps the page that the first preview shows, for the peer.
int keepPage(int argc, char** argv)
{
    QApplication application(argc, argv);
    const ApplicationFolder folder(QString::fromLocal8Bit(argv[2]));
    NoPrompts prompts;
    GiveUpOnErrors errors;
    const SystemClock clock;
    const std::unique_ptr<MainForm> window = startProgram({folder, prompts, clock, errors, [] {}}, NoBrowser::make);
    window->findChild<QAction*>(u"mnuShopPreview"_s)->trigger();
    const QString page = static_cast<NoBrowser*>(window->parts().PreviewBrowser)->document;
    if (page.isEmpty()) {
        giveUp(u"The preview shows no page"_s);
    }
    writeFileBytes(folder.path() + u"/page.html"_s, page.toUtf8());
    std::puts("1");
    return 0;
}

// ---- Measuring ----

double answerOf(const QString& mode, const QString& shop)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {mode, shop});
    process.waitForFinished(120'000);
    const double answer = process.readAllStandardOutput().trimmed().toDouble();
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 || answer <= 0) {
        std::fputs(process.readAllStandardError().constData(), stderr);
        giveUp(u"A window has failed"_s);
    }
    return answer;
}

int compare()
{
    const QTemporaryDir home;
    const QTemporaryDir shop;
    qputenv("HOME", QFile::encodeName(home.path()));
    makeShopFolder(ApplicationFolder(shop.path()), products);
    answerOf(u"--page"_s, shop.path());
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = 0; round <= rounds; ++round) {
        const double our = answerOf(u"--ours"_s, shop.path());
        const double their = answerOf(u"--peer"_s, shop.path());
        if (round > 0) { // the first of them reads its files from the disk
            ours.push_back(our);
            theirs.push_back(their);
        }
    }
    std::printf("the first page of the preview: %.3f s, a bare view %.3f s\n", median(ours), median(theirs));
    return judgeAtMost("wall time : that of the bare view", median(ours) / median(theirs), wantedAtMost) ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    QLocale::setDefault(QLocale(u"en_US"_s));
    const QByteArray mode(argc > 1 ? argv[1] : "");
    if (mode == "--page" && argc > 2) {
        return keepPage(argc, argv);
    }
    if (mode.startsWith("--") && argc > 2) {
        return measure(argc, argv, mode);
    }
    const QCoreApplication application(argc, argv);
    return compare();
}
