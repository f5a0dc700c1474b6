// What a page cannot make the preview do: act for a frame or for a script of another host, stand in the owner's way
// with boxes or by hanging, and start his other programs.
#include "PlayedDesktop.h"
#include "e2e/BrowserTest.h"
#include "e2e/WebServer.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineView>

using namespace Qt::StringLiterals;

namespace {

// Whoever acts on it raises ErrorNumber::InvalidArgument.
constexpr auto GoneProduct = "http://previewmode/ACTION=product.php&id=99"_L1;

// Fills the view, so that a click anywhere hits it.
QString large(const QString& tag)
{
    return u"<body style='margin:0'>"_s + tag + u"<div id=large style='height:400px'>here</div>"_s;
}

class StrangePageTest : public BrowserTest
{
protected:
    StrangePageTest() { openEmptyShop(); }

    // Goes to a page of another host by a click.
    void showElsewhere(const QString& html)
    {
        other.servePage(u"<p id=other>elsewhere</p>"_s.toUtf8() + html.toUtf8());
        show(u"<a id=link href='%1'>elsewhere</a>"_s.arg(other.address()));
        click(u"#link"_s);
        waitUntil(u"document.querySelector('#other') != null && document.readyState == 'complete'"_s);
    }
    void expectNothingDone(const QString& what, const QString& selector = u"#other"_s)
    {
        pause(250);
        EXPECT_EQ(countOf(selector), 1) << what.toStdString();
        EXPECT_TRUE(errors.numbers.empty()) << what.toStdString();
        EXPECT_EQ(session->Cart->Count(), 0) << what.toStdString();
        errors.numbers.clear();
    }

    WebServer other;
};

// Frames ------------------------------------------------------------------------------------------------------------

TEST_F(StrangePageTest, AFrameCannotMakeThePreviewAct)
{
    for (const QString& address : {QString(GoneProduct), u"http://previewmode/MAINPAGE"_s,
                                   u"http://previewmode/?addtoshopcart=&product_id=99"_s}) {
        show(u"<p id=page>page</p><iframe src='%1'></iframe>"_s.arg(address));
        expectNothingDone(address, u"#page"_s);
        show(u"<p id=page>page</p><iframe srcdoc=\"<script>location = '%1'</script>\"></iframe>"_s.arg(address));
        expectNothingDone(u"script to "_s + address, u"#page"_s);
        other.servePage(u"<script>location = '%1'</script>"_s.arg(address).toUtf8());
        show(u"<p id=page>page</p><iframe src='%1'></iframe>"_s.arg(other.address()));
        expectNothingDone(u"another host's script to "_s + address, u"#page"_s);
        other.redirectTo(address.toUtf8());
        show(u"<p id=page>page</p><iframe src='%1'></iframe>"_s.arg(other.address()));
        expectNothingDone(u"another host's redirection to "_s + address, u"#page"_s);
    }
}

TEST_F(StrangePageTest, AFrameOfAnotherHostIsShownAndItsAddressMeansNothing)
{
    other.servePage("<script>parent.postMessage('shown', '*')</script>");
    show(u"<p id=page>page</p><script>onmessage = message => window.frameSays = message.data</script>"
         "<iframe src='%1?addtoshopcart=1'></iframe>"_s.arg(other.address()));
    waitUntil(u"window.frameSays == 'shown'"_s);
    expectNothingDone(u"the cart's word"_s, u"#page"_s);
}

// Pages of other hosts ----------------------------------------------------------------------------------------------

TEST_F(StrangePageTest, APageOfAnotherHostDoesNotActByItself)
{
    for (const QString& html :
         {u"<script>location = '%1'</script>"_s, u"<script>setTimeout(() => location = '%1', 100)</script>"_s,
          u"<meta http-equiv=refresh content='0; url=%1'>"_s, u"<script>window.open('%1')</script>"_s,
          u"<a id=a href='%1'>x</a><script>document.querySelector('#a').click()</script>"_s,
          u"<a id=a target=_blank href='%1'>x</a><script>document.querySelector('#a').click()</script>"_s,
          u"<form id=f action='%1'></form><script>document.querySelector('#f').submit()</script>"_s,
          u"<iframe srcdoc=\"<script>top.location = '%1'</script>\"></iframe>"_s}) {
        showElsewhere(html.arg(GoneProduct));
        expectNothingDone(html);
    }
    WebServer sender;
    sender.redirectTo(QString(GoneProduct).toUtf8());
    showElsewhere(u"<script>setTimeout(() => location = '%1', 100)</script>"_s.arg(sender.address()));
    expectNothingDone(u"by redirection"_s);
}

TEST_F(StrangePageTest, AClickThatHitsNoLinkActsForNoScript)
{
    for (const QString& html : {u"<script>onclick = () => location = '%1'</script>"_s,
                                u"<script>onclick = () => window.open('%1')</script>"_s,
                                u"<a id=a href='%1'></a><script>document.querySelector('#large').onclick = () =>"
                                " document.querySelector('#a').click()</script>"_s}) {
        showElsewhere(large({}) + html.arg(GoneProduct));
        click(u"#large"_s);
        expectNothingDone(html);
    }
    // Nor does one that hits another link.
    showElsewhere(u"<a id=a href='/page'>x</a><script>document.querySelector('#a').onclick = event =>"
                  " { event.preventDefault(); location = '%1'; }</script>"_s.arg(GoneProduct));
    click(u"#a"_s);
    expectNothingDone(u"another link"_s);
}

TEST_F(StrangePageTest, APageOfAnotherHostActsByALinkThatIsClicked)
{
    const auto expectMainPage = [this] { waitUntil(u"document.querySelector('h1')?.textContent == 'Corner Shop'"_s); };
    const QString link = u"<a id=a href='http://previewmode/MAINPAGE'>home</a>"_s;
    showElsewhere(link);
    click(u"#a"_s);
    expectMainPage();
    showElsewhere(link);
    click(u"#a"_s, Qt::MiddleButton);
    expectMainPage();
    showElsewhere(link);
    script(u"document.querySelector('#a').focus()"_s);
    pressEnter();
    expectMainPage();
    showElsewhere(u"<a id=a target=_blank href='http://previewmode/MAINPAGE'>home</a>"_s);
    click(u"#a"_s);
    expectMainPage();
    showElsewhere(u"<svg id=a width=50 height=50><a href='http://previewmode/MAINPAGE'>"
                  "<rect width=50 height=50></rect></a></svg>"_s);
    click(u"#a"_s);
    expectMainPage();
    WebServer sender;
    sender.redirectTo("http://previewmode/MAINPAGE");
    showElsewhere(u"<a id=a href='%1'>home</a>"_s.arg(sender.address()));
    click(u"#a"_s);
    expectMainPage();
}

TEST_F(StrangePageTest, TheCartsWordInAnAddressOfAnotherHostCountsOnlyWhereItIsClicked)
{
    showElsewhere(u"<script>if (!location.search) setTimeout(() => location = '?addtoshopcart=1', 100)</script>"_s);
    waitUntil(u"location.search == '?addtoshopcart=1'"_s);
    expectNothingDone(u"by script"_s);
    showElsewhere(u"<a id=a href='?addtoshopcart=1'>x</a>"_s);
    click(u"#a"_s);
    waitUntil(u"document.querySelector('h1')?.textContent.includes('cart')"_s);
}

// Boxes -------------------------------------------------------------------------------------------------------------

class BoxesTest : public StrangePageTest
{
protected:
    BoxesTest()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (box != nullptr) {
                ++boxes;
                box->accept();
            }
        });
        m_timer.start(5);
    }

    int boxes = 0;

private:
    QTimer m_timer;
};

TEST_F(BoxesTest, ADocumentShowsThreeBoxesAtMostAndTheLaterOnesAnswerThemselves)
{
    for (const QString& call : {u"alert('x')"_s, u"confirm('x')"_s, u"prompt('x', 'y')"_s}) {
        boxes = 0;
        show(u"<p>page</p>"_s);
        script(u"window.answers = []; for (let i = 0; i < 10; ++i) answers.push(%1)"_s.arg(call));
        EXPECT_EQ(boxes, 3) << call.toStdString();
        const QString later = call.startsWith(u"alert"_s)     ? u"undefined"_s
                              : call.startsWith(u"confirm"_s) ? u"false"_s
                                                              : u"null"_s;
        EXPECT_TRUE(script(u"answers.slice(3).every(answer => answer === %1)"_s.arg(later)).toBool());
    }
}

TEST_F(BoxesTest, TheKindsCountTogetherAndEachDocumentCountsAnew)
{
    const QString page = u"<script>alert(1); confirm(2); prompt(3); alert(4); confirm(5)</script><p>page</p>"_s;
    show(page);
    EXPECT_EQ(boxes, 3);
    show(page);
    EXPECT_EQ(boxes, 6);
    showElsewhere(page);
    EXPECT_EQ(boxes, 9);
}

TEST_F(BoxesTest, ADocumentThatLoadsItselfAgainGetsNoMoreBoxes)
{
    show(u"<p>page</p><script>alert(1); alert(2); alert(3)</script>"_s);
    for (int i = 0; i < 3; ++i) {
        markPage();
        script(u"location.reload()"_s);
        waitForNewPage();
    }
    EXPECT_EQ(boxes, 3);
}

TEST_F(BoxesTest, ADocumentThatNeverStopsCallingLeavesTheNextOneItsBoxes)
{
    browser->replaceDocument(u"<script>setInterval(() => alert('x'), 1)</script>"_s);
    pause(500);
    EXPECT_EQ(boxes, 3);
    show(u"<p id=next>next</p><script>alert(1); alert(2); alert(3)</script>"_s);
    EXPECT_EQ(countOf(u"#next"_s), 1);
    EXPECT_EQ(boxes, 6);
}

TEST_F(BoxesTest, APageIsNotAskedWhetherItMayBeLeft)
{
    show(large(u"<script>onbeforeunload = event => { event.preventDefault(); return 'stay'; }</script>"_s));
    click(u"#large"_s); // a page that nobody has touched may not ask anyway
    pause(100);
    show(u"<p id=next>next</p>"_s);
    EXPECT_EQ(countOf(u"#next"_s), 1);
    EXPECT_EQ(boxes, 0);
}

// Pages that hang ---------------------------------------------------------------------------------------------------

class StubbornPageTest : public StrangePageTest
{
protected:
    bool showsTitle(const QString& title)
    {
        for (int i = 0; i < 100 && browser->page()->title() != title; ++i) {
            pause(20);
        }
        return browser->page()->title() == title;
    }
};

TEST_F(StubbornPageTest, APageThatHangsIsEndedWhenAnotherIsAskedForAgainAfterFiveSeconds)
{
    show(u"<p>page</p><script>setTimeout(() => { while (true) {} }, 200)</script>"_s);
    pause(500);
    const qint64 process = browser->page()->renderProcessPid();
    browser->replaceDocument(u"<title>first</title>"_s);
    pause(2000);
    browser->replaceDocument(u"<title>second</title>"_s);
    pause(3200);
    EXPECT_EQ(browser->page()->renderProcessPid(), process);
    EXPECT_NE(browser->page()->title(), u"second"_s);
    browser->replaceDocument(u"<title>third</title>"_s);
    EXPECT_TRUE(showsTitle(u"third"_s));
    EXPECT_NE(browser->page()->renderProcessPid(), process);
    show(u"<p id=fourth>the preview goes on</p>"_s);
    EXPECT_EQ(countOf(u"#fourth"_s), 1);
}

TEST_F(StubbornPageTest, APageThatStandsForLongIsNotEnded)
{
    show(u"<p>page</p>"_s);
    const qint64 process = browser->page()->renderProcessPid();
    browser->replaceDocument(u"<title>second</title>"_s);
    pause(5500);
    browser->replaceDocument(u"<title>third</title>"_s);
    EXPECT_TRUE(showsTitle(u"third"_s));
    EXPECT_EQ(browser->page()->renderProcessPid(), process);
}

// Other programs ----------------------------------------------------------------------------------------------------

class DesktopTest : public StrangePageTest
{
protected:
    QStringList takeOpened() { return std::exchange(desktop.opened, {}); }

    PlayedDesktop desktop;
};

TEST_F(DesktopTest, MailAndTelephoneGoToTheDesktopAndNothingElseDoes)
{
    const struct
    {
        QString address;
        bool isHandedOver;
    } rows[] = {
        {u"mailto:owner@example.com"_s, true}, {u"tel:123456"_s, true},  {u"steam:run"_s, false},
        {u"ftp://example.com/file"_s, false},  {u"ssh:host"_s, false},   {u"ws://example.com/"_s, false},
        {u"file:///etc/passwd"_s, false},      {u"unheard:of"_s, false},
    };
    for (const auto& row : rows) {
        const QStringList expected = row.isHandedOver ? QStringList{row.address} : QStringList();
        for (const QString& target : {u"_self"_s, u"_blank"_s}) {
            show(u"<a id=link target=%1 href='%2'>x</a>"_s.arg(target, row.address));
            click(u"#link"_s);
            expectNothingDone(row.address, u"#link"_s);
            EXPECT_EQ(takeOpened(), expected) << row.address.toStdString() << ' ' << target.toStdString();
        }
        show(large(u"<script>onclick = () => location = '%1'</script>"_s.arg(row.address)));
        click(u"#large"_s);
        expectNothingDone(row.address, u"#large"_s);
        EXPECT_EQ(takeOpened(), expected) << row.address.toStdString() << " by the script of a click";
    }
}

TEST_F(DesktopTest, ARedirectionToWhatTheEngineDoesNotShowEndsInNothing)
{
    for (const QString& address : {u"mailto:owner@example.com"_s, u"tel:123456"_s, u"steam:run"_s, u"unheard:of"_s}) {
        other.redirectTo(address.toUtf8());
        show(u"<a id=link href='%1'>x</a>"_s.arg(other.address()));
        click(u"#link"_s);
        expectNothingDone(address, u"#link"_s);
        EXPECT_EQ(takeOpened(), QStringList()) << address.toStdString();
        show(large(u"<meta http-equiv=refresh content='1; url=%1'>"_s.arg(address)));
        click(u"#large"_s);
        pause(1000);
        expectNothingDone(address, u"#large"_s);
        EXPECT_EQ(takeOpened(), QStringList()) << address.toStdString() << " by refresh";
    }
}

TEST_F(DesktopTest, AFrameHandsNothingToTheDesktop)
{
    show(large(u"<iframe id=frame style='border:0' srcdoc=\"<a href='mailto:owner@example.com'>"
               "<div style='height:200px'>x</div></a>\"></iframe>"_s));
    click(u"#frame"_s);
    expectNothingDone(u"a link"_s, u"#frame"_s);
    EXPECT_EQ(takeOpened(), QStringList());
}

TEST_F(DesktopTest, WhatRunsInThePageGoesOn)
{
    show(u"<a id=link href='javascript:void(window.ran = true)'>x</a><a id=down href='#place'>down</a>"
         "<p style='height:3000px'></p><p id=place>place</p>"_s);
    click(u"#link"_s);
    waitUntil(u"window.ran === true"_s);
    click(u"#down"_s);
    waitUntil(u"location.hash == '#place'"_s);
    EXPECT_EQ(takeOpened(), QStringList());
}

} // namespace
