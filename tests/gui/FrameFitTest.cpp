// How the window fits its frame to the screen, with a window manager that puts real frames around windows.
#include "shell/FrameFit.h"

#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QMargins frameOf(const QWidget& window)
{
    return window.windowHandle()->frameMargins();
}

bool isFramed(const QWidget& window)
{
    return QTest::qWaitFor([&] { return window.windowHandle() && !frameOf(window).isNull(); }, 1'000);
}

class FrameFitTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_manager.start(u"openbox"_s, {u"--config-file"_s, u"/dev/null"_s});
        ASSERT_TRUE(m_manager.waitForStarted()) << "openbox is not installed";
        for (int attempt = 0; attempt < 20; ++attempt) { // a window from before it manages gets a frame late, or none
            QWidget probe;
            probe.show();
            if (isFramed(probe)) {
                return;
            }
        }
        FAIL() << "The window manager gives no frames: " << m_manager.readAllStandardError().constData();
    }
    void TearDown() override
    {
        m_manager.terminate();
        m_manager.waitForFinished();
    }

    // Until the window manager has answered what the window asked it for.
    void show(QWidget& window)
    {
        window.show();
        ASSERT_TRUE(isFramed(window));
        QTest::qWait(200);
    }
    static QRect screen() { return QGuiApplication::primaryScreen()->availableGeometry(); }

private:
    QProcess m_manager;
};

TEST_F(FrameFitTest, GivesAWindowThatIsTooLargeTheScreenLessItsOwnFrame)
{
    QWidget window;
    window.move(0, 0);
    new FrameFit(window, screen().size() + QSize(100, 100));
    show(window);
    EXPECT_EQ(window.size(), screen().size().shrunkBy(frameOf(window)));
    EXPECT_EQ(window.frameGeometry().size(), screen().size());
}

TEST_F(FrameFitTest, GivesAWindowThatHasRoomTheSizeThatIsWanted)
{
    QWidget window;
    new FrameFit(window, QSize(800, 500));
    show(window);
    EXPECT_EQ(window.size(), QSize(800, 500));
}

TEST_F(FrameFitTest, LeavesASizeAloneThatSomebodyElseHasGiven)
{
    QWidget window;
    new FrameFit(window, screen().size() + QSize(100, 100));
    window.resize(700, 400);
    show(window);
    EXPECT_EQ(window.size(), QSize(700, 400));
}

} // namespace
