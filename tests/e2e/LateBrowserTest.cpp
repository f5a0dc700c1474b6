// The browser is made when the preview is first asked for, and nothing of it exists before.
#include "e2e/BrowserDriver.h"
#include "shell/BrowserPreview.h"
#include "shell/ShortcartButton.h"
#include "shell/browser/PreviewBrowser.h"
#include "support/WindowTest.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

// How many processes this one has started and still has.
qsizetype childProcesses()
{
    qsizetype count = 0;
    for (const QString& thread : QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile children(u"/proc/self/task/"_s + thread + u"/children"_s);
        if (children.open(QIODevice::ReadOnly)) {
            count += QString::fromLatin1(children.readAll()).split(u' ', Qt::SkipEmptyParts).count();
        }
    }
    return count;
}

class LateBrowserTest : public WindowTest
{
public:
    ~LateBrowserTest() override
    {
        EXPECT_TRUE(errors.numbers.empty());
        window.reset();
    }

protected:
    PreviewParts makePreview(QWidget* parent) override
    {
        PreviewParts parts = browserPreview(files.folder(), errors)(parent);
        browser = qobject_cast<PreviewBrowser*>(parts.widget);
        visitor.drive(browser);
        return parts;
    }
    void begin()
    {
        useSampleShop();
        start();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    PreviewBrowser* browser = nullptr;
    BrowserDriver visitor;
};

// This test stands first in its program: the engine's processes stay when a window goes.
TEST_F(LateBrowserTest, NoProcessOfTheEngineRunsBeforeTheFirstPreview)
{
    begin();
    click("ShopDesignSBtn");
    BrowserDriver::pause(300);
    EXPECT_EQ(childProcesses(), 0);
    EXPECT_EQ(browser->page(), nullptr);
    click("PreviewBrowserSBtn");
    visitor.waitUntil(u"document.readyState == 'complete' && location.href == 'tarnwick-preview:/'"_s);
    EXPECT_GT(childProcesses(), 0);
}

TEST_F(LateBrowserTest, WhatItIsToldBeforeIsDoneWhenItComes)
{
    begin();
    browser->show(); // the window has sent it to a blank page
    visitor.waitUntil(u"location.href == 'about:blank'"_s);
}

TEST_F(LateBrowserTest, TheWindowStaysWhatAndWhereItIs)
{
    begin();
    window->setGeometry(30, 40, 1000, 700);
    BrowserDriver::pause(100);
    const QRect place = window->geometry();
    const WId native = window->winId();
    int shown = 0;
    int clicks = 0;
    auto* button = find<ShortcartButton>("PreviewBrowserSBtn");
    QObject::connect(button, &ShortcartButton::Click, window.get(), [&] { ++clicks; });
    QObject::connect(window->windowHandle(), &QWindow::visibleChanged, window.get(), [&] { ++shown; });
    click("PreviewBrowserSBtn");
    visitor.waitUntil(u"document.readyState == 'complete' && location.href == 'tarnwick-preview:/'"_s);
    EXPECT_EQ(window->winId(), native);
    EXPECT_EQ(window->geometry(), place);
    EXPECT_EQ(shown, 0);
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(window->isActiveWindow());
    EXPECT_TRUE(button->hasFocus());
    EXPECT_EQ(window->windowHandle()->surfaceType(), QSurface::RasterSurface);
}

TEST_F(LateBrowserTest, ThePageIsAsWideAsTheBottomLineSays)
{
    begin();
    click("PreviewBrowserSBtn");
    visitor.waitUntil(u"document.readyState == 'complete' && location.href == 'tarnwick-preview:/'"_s);
    const QRect place = browser->geometry();
    QTest::mouseClick(find("PhoneWidthBtn"), Qt::LeftButton);
    visitor.waitUntil(u"innerWidth == 390"_s);
    EXPECT_EQ(browser->geometry(), place);
    click("ProductCatalogSBtn");
    click("PreviewBrowserSBtn");
    visitor.waitUntil(u"document.readyState == 'complete' && innerWidth == 390"_s);
    QTest::mouseClick(find("FullWidthBtn"), Qt::LeftButton);
    visitor.waitUntil(u"innerWidth == %1"_s.arg(place.width()));
}

TEST_F(LateBrowserTest, AMaximisedWindowStaysMaximised)
{
    begin();
    window->showMaximized();
    BrowserDriver::pause(100);
    click("PreviewBrowserSBtn");
    visitor.waitUntil(u"document.readyState == 'complete' && location.href == 'tarnwick-preview:/'"_s);
    EXPECT_TRUE(window->isMaximized());
}

} // namespace
