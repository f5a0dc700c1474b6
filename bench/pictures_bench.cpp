// How long the owner waits for the choice of a picture among 5,000 of them: until the dialog is there, and for a key or
// the wheel while thumbnails are made. A wait counts beyond the decoding of one picture, which is measured beside it.
// The limits are milliseconds: 100 for the dialog, 50 for a wait.
//
// On a screen, or under a virtual one: ./bench.sh sees to that.
#include "LonePanelHost.h"
#include "Measuring.h"
#include "NoPrompts.h"
#include "base/Clock.h"
#include "design/clsSelectedImage.h"
#include "editors/design/pickers/PictureGrid.h"
#include "editors/design/pickers/Thumbnail.h"
#include "editors/design/pickers/frmSelectImage.h"
#include "look/Theme.h"
#include "model/ShopSession.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int pictureCount = 5'000;
constexpr int rounds = 7;
constexpr double dialogAtMost = 100;
constexpr double waitAtMost = 50;

// As a camera makes them, and as a shop has them: a JPEG of 12 megapixels in every tenth place, else a PNG of 800 by
// 600.
void makePictures(const QString& folder, const QString& originals)
{
    const auto save = [&](const QSize& size, const char* format) {
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        QLinearGradient light(0, 0, size.width(), size.height());
        light.setColorAt(0, QColor(0xe2b07a));
        light.setColorAt(1, QColor(0x2d5a4c));
        painter.fillRect(image.rect(), light);
        for (int i = 0; i < 400; ++i) {
            painter.setBrush(QColor::fromHsv(i * 7 % 360, 120, 200));
            painter.drawEllipse(QPoint(i * 131 % size.width(), i * 211 % size.height()), 10 + i % 60, 10 + i % 40);
        }
        painter.end();
        QString path = originals + u"/first."_s + QLatin1String(format);
        image.save(path, format);
        return path;
    };
    const QString photo = save({4000, 3000}, "JPG");
    const QString drawing = save({800, 600}, "PNG");
    for (int i = 0; i < pictureCount; ++i) {
        const bool isPhoto = i % 10 == 0;
        const QString name = u"%1 %2.%3"_s.arg(i % 3 == 0 ? u"Teapot"_s : u"Bowl"_s)
                                 .arg(i, 4, 10, QChar(u'0'))
                                 .arg(isPhoto ? u"jpg"_s : u"png"_s);
        QFile::link(isPhoto ? photo : drawing, folder + name);
    }
}

// Of processor time: what else runs on the machine does not count.
double milliseconds(const std::function<void()>& work)
{
    const double start = processorSeconds();
    work();
    return (processorSeconds() - start) * 1e3;
}

// Counts the paints of a widget.
class Paints : public QObject
{
public:
    explicit Paints(QWidget* widget) { widget->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

// Does something to the dialog, and lets events run until the list is painted anew.
double waitFor(const PictureGrid& grid, const std::function<void()>& act)
{
    Paints paints(grid.viewport());
    return milliseconds([&] {
        act();
        while (paints.count == 0) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    });
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    applyTheme(application);
    const QTemporaryDir folder;
    const QTemporaryDir originals; // the shop's pictures lead there
    NoPrompts prompts;
    const SystemClock clock;
    ShopSession session(ApplicationFolder(folder.path()), prompts, clock);
    QDir().mkpath(session.folder.picturesFolder());
    makePictures(session.folder.picturesFolder(), originals.path());
    LonePanelHost host(session);

    const double photo = milliseconds([&] {
        readThumbnail(session.folder.picturesFolder() + u"Teapot 0000.jpg"_s, {100, 76}, 1);
    });
    const double drawing = milliseconds([&] {
        readThumbnail(session.folder.picturesFolder() + u"Bowl 0001.png"_s, {100, 76}, 1);
    });
    const double decoding = std::max(photo, drawing);
    std::printf("%-58s %8.1f ms, %.1f ms\n", "Decoding a thumbnail of a photograph, of a drawing", photo, drawing);

    std::vector<double> openings;
    double longestKey = 0;
    double longestWheel = 0;
    double longestLetter = 0;
    for (int round = 0; round < rounds; ++round) {
        const auto selection = std::make_shared<clsSelectedImage>(session.designServices);
        selection->imageFileName = u"Bowl 2501.png"_s;
        std::unique_ptr<frmSelectImage> dialog;
        PictureGrid* grid = nullptr;
        openings.push_back(milliseconds([&] {
            dialog = std::make_unique<frmSelectImage>(host, selection, nullptr);
            grid = dialog->findChild<PictureGrid*>(u"lstImages"_s);
            Paints paints(grid->viewport());
            dialog->show();
            while (paints.count == 0) {
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            }
        }));
        QScrollBar* bar = grid->verticalScrollBar();
        for (int step = 1; step <= 20; ++step) { // all while thumbnails are made
            const int place = bar->maximum() / 21 * step;
            longestWheel = std::max(longestWheel, waitFor(*grid, [&] { bar->setValue(place); }));
            longestKey = std::max(longestKey, waitFor(*grid, [&] { QTest::keyClick(grid, Qt::Key_Down); }));
        }
        auto* filter = dialog->findChild<QLineEdit*>(u"txtFilter"_s);
        for (const char letter : QByteArrayLiteral("teapot 33")) {
            longestLetter = std::max(longestLetter, waitFor(*grid, [&] { QTest::keyClick(filter, letter); }));
        }
        for (int i = 0; i < 9; ++i) {
            longestLetter =
                std::max(longestLetter, waitFor(*grid, [&] { QTest::keyClick(filter, Qt::Key_Backspace); }));
        }
    }
    bool isGood =
        judgeAtMost("The dialog with 5,000 pictures, until it is painted, ms", median(openings), dialogAtMost);
    isGood &=
        judgeAtMost("Longest wait for the wheel, less the decoding of one, ms", longestWheel - decoding, waitAtMost);
    // A key that moves on decodes the picture that it chooses, for the preview.
    isGood &= judgeAtMost("Longest wait for a key in the list, less the same, ms", longestKey - decoding, waitAtMost);
    isGood &=
        judgeAtMost("Longest wait for a key in the filter, less the same, ms", longestLetter - decoding, waitAtMost);
    return isGood ? 0 : 1;
}
