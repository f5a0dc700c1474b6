// What a click on a node of the tree costs in processor time, in the real window: before the first preview, after it,
// and with a plain widget in the browser's place. And what the short bar that acknowledges it costs, against one that
// is painted twice per step and with what lies behind it. Every window is a process of its own; they are taken in
// turns, and the medians count.
//
// On a screen, or under a virtual one: ./bench.sh sees to that.
#include "CupShop.h"
#include "Measuring.h"
#include "NoBrowser.h"
#include "NoPrompts.h"
#include "base/Clock.h"
#include "look/Theme.h"
#include "shell/BrowserPreview.h"
#include "shell/CatalogueTree.h"
#include "shell/MainForm.h"
#include "shell/ProgressFrames.h"
#include "shell/StartUp.h"
#include "shell/browser/PreviewBrowser.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QWebEnginePage>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 5;
constexpr int products = 1'000;
constexpr int clicks = 21;
constexpr double clickAtMost = 1.5;
constexpr double barAtMost = 0.6;

// ---- The processes that are measured ----

// Milliseconds of processor time.
double costOf(const std::function<void()>& work)
{
    const double before = processorSeconds();
    work();
    QCoreApplication::processEvents();
    return (processorSeconds() - before) * 1e3;
}

double costOfClick(MainForm& window)
{
    CatalogueTree& tree = *window.parts().CategoriesAndProductsTree;
    const int height = tree.visualRect(tree.indexAt(QPoint(60, 5))).height();
    std::vector<double> costs;
    for (int i = 0; i < clicks; ++i) {
        const QPoint place(100, height * (1 + i % 2) + height / 2);
        costs.push_back(costOf([&] { QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, place); }));
        settle(30);
    }
    return median(costs);
}

// Painted as often as the value is set and then once more, over what lies behind it.
void runPlainBar(QProgressBar& bar)
{
    bar.raise();
    bar.show();
    for (int value = 0; value <= 100; value += 5) {
        bar.setValue(value);
        bar.repaint();
        QThread::msleep(1);
    }
    bar.hide();
}

void printBars(MainForm& window)
{
    ShortProgressBar& ours = *window.parts().PrBar;
    QProgressBar theirs(ours.parentWidget());
    theirs.setTextVisible(false);
    theirs.setRange(0, 100);
    theirs.setGeometry(ours.geometry());
    theirs.hide();
    std::vector<double> ourCosts;
    std::vector<double> theirCosts;
    for (int i = 0; i < clicks; ++i) {
        ourCosts.push_back(costOf([&] { ours.run(); }));
        theirCosts.push_back(costOf([&] { runPlainBar(theirs); }));
    }
    std::printf("%.6f %.6f\n", median(ourCosts), median(theirCosts));
}

void showPreviewOnce(MainForm& window)
{
    window.findChild<QAction*>(u"mnuShopPreview"_s)->trigger();
    auto* browser = qobject_cast<PreviewBrowser*>(window.parts().PreviewBrowser);
    bool isThere = false;
    QObject::connect(browser->page(), &QWebEnginePage::loadFinished, &window,
                     [&](bool isLoaded) { isThere = isLoaded; });
    QElapsedTimer waiting;
    waiting.start();
    while (!isThere) {
        if (waiting.elapsed() > 60'000) {
            giveUp(u"The preview did not come"_s);
        }
        settle(10);
    }
    settle(500);
    window.findChild<QAction*>(u"mnuProductsCatalog"_s)->trigger();
}

int measure(int argc, char** argv, const QByteArray& mode)
{
    PreviewBrowser::prepareProcess();
    QApplication application(argc, argv);
    applyTheme(application);
    NoPrompts prompts;
    GiveUpOnErrors errors;
    const SystemClock clock;
    const ProgramServices services{ApplicationFolder(QString::fromLocal8Bit(argv[2])), prompts, clock, errors, [] {}};
    const bool hasBrowser = mode == "--before" || mode == "--after";
    const std::unique_ptr<MainForm> window =
        startProgram(services, hasBrowser ? browserPreview(services.folder, errors) : NoBrowser::make);
    settle(500);
    if (mode == "--after") {
        showPreviewOnce(*window);
        settle(500);
    }
    if (mode == "--bar") {
        printBars(*window);
    } else {
        std::printf("%.6f\n", costOfClick(*window));
    }
    std::fflush(stdout);
    return 0;
}

// ---- Measuring ----

std::vector<double> answerOf(const QString& mode, const QString& shop)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {mode, shop});
    process.waitForFinished(120'000);
    std::vector<double> numbers;
    for (const QByteArray& number : process.readAllStandardOutput().simplified().split(' ')) {
        numbers.push_back(number.toDouble());
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 || numbers.front() <= 0) {
        std::fputs(process.readAllStandardError().constData(), stderr);
        giveUp(u"A window has failed"_s);
    }
    return numbers;
}

bool report(const char* title, const std::vector<double>& ours, const std::vector<double>& theirs, double atMost)
{
    const double ratio = median(ours) / median(theirs);
    const bool isReached = ratio <= atMost;
    std::printf("%-44s %7.1f ms %7.1f ms %8.2f %8.2f  %s\n", title, median(ours), median(theirs), ratio, atMost,
                isReached ? "PASS" : "FAIL");
    return isReached;
}

int compare()
{
    const QTemporaryDir home;
    const QTemporaryDir shop;
    qputenv("HOME", QFile::encodeName(home.path()));
    makeShopFolder(ApplicationFolder(shop.path()), products);
    std::array<std::vector<double>, 5> costs; // plain, before, after, our bar, the peer's
    for (int round = 0; round < rounds; ++round) {
        costs[0].push_back(answerOf(u"--plain"_s, shop.path())[0]);
        costs[1].push_back(answerOf(u"--before"_s, shop.path())[0]);
        costs[2].push_back(answerOf(u"--after"_s, shop.path())[0]);
        const std::vector<double> bars = answerOf(u"--bar"_s, shop.path());
        costs[3].push_back(bars[0]);
        costs[4].push_back(bars[1]);
    }
    std::printf("%-44s %10s %10s %8s %8s\n", "processor time, by that of the peer", "ours", "peer", "ratio", "at most");
    const bool before = report("a click before the first preview", costs[1], costs[0], clickAtMost);
    const bool after = report("a click after the first preview", costs[2], costs[0], clickAtMost);
    const bool bar = report("the short bar", costs[3], costs[4], barAtMost);
    return before && after && bar ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    QLocale::setDefault(QLocale(u"en_US"_s));
    const QByteArray mode(argc > 1 ? argv[1] : "");
    if (mode.startsWith("--") && argc > 2) {
        return measure(argc, argv, mode);
    }
    const QCoreApplication application(argc, argv);
    return compare();
}
