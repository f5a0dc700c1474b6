// What the preview's browser does with any document and any link.
#include "e2e/BrowserTest.h"
#include "e2e/WebServer.h"
#include "pages/TemplateUtils.h"

#include <QApplication>
#include <QImage>
#include <QTest>
#include <QWebEngineHistory>
#include <QWebEnginePage>
#include <QWebEngineView>

using namespace Qt::StringLiterals;

namespace {

class PreviewBrowserTest : public BrowserTest
{
protected:
    PreviewBrowserTest() { openEmptyShop(); }

    bool isOnMainPage() { return textOf(u"h1"_s) == u"Corner Shop"_s; }
    // The document is still there, whatever the browser was about to do.
    void expectStays(const QString& selector)
    {
        pause(300);
        EXPECT_EQ(countOf(selector), 1) << selector.toStdString();
    }
    void savePicture(const QString& name, int width)
    {
        QImage picture(width, 10, QImage::Format_RGB32);
        picture.fill(Qt::red);
        ASSERT_TRUE(picture.save(session->folder.picturesFolder() + name));
    }
    QString pictureTag(const QString& name) const
    {
        return u"<img id=picture src=\"%1\">"_s.arg(session->folder.picturesFolder() + name);
    }
    int pictureWidth() { return script(u"document.querySelector('#picture').naturalWidth"_s).toInt(); }
    std::shared_ptr<CustomPageClass> addCustomPage(const QString& name, const QString& text)
    {
        auto page = std::make_shared<CustomPageClass>();
        page->pageName = name;
        page->ContentText = text;
        session->shop->CustomPages.Add(page, name);
        return page;
    }
};

TEST_F(PreviewBrowserTest, ADocumentIsShownWithAllItsLetters)
{
    // Whatever the page says of its own encoding.
    show(u"<!DOCTYPE html><meta charset=windows-1252><p id=p>Grüße aus Łódź, 日本 😀</p>"_s);
    EXPECT_EQ(textOf(u"#p"_s), u"Grüße aus Łódź, 日本 😀"_s);
}

TEST_F(PreviewBrowserTest, ADocumentReplacesTheOneBefore)
{
    for (int i = 0; i < 5; ++i) {
        show(u"<p id=p>%1</p>"_s.arg(i));
        EXPECT_EQ(textOf(u"#p"_s), QString::number(i));
    }
    EXPECT_EQ(browser->page()->history()->count(), 1);
}

// The engine takes a document for the one before, loaded again, which it would show where that one was left.
TEST_F(PreviewBrowserTest, ADocumentIsShownFromItsTopWhereverTheOneBeforeWasLeft)
{
    const QString page = u"<div style='height: 9000px'></div><a id=link href='http://previewmode/MAINPAGE'>home</a>"_s;
    writeTemplate(u"main"_s, page.toUtf8());
    templates->ReLoad(u"main"_s, u"main"_s);
    show(page);
    for (int i = 0; i < 2; ++i) {
        script(u"document.querySelector('#link').scrollIntoView()"_s);
        pause(300);
        ASSERT_GT(script(u"scrollY"_s).toInt(), 1000);
        clickToNewPage(u"#link"_s);
        pause(300);
        EXPECT_EQ(script(u"scrollY"_s).toInt(), 0);
    }
}

TEST_F(PreviewBrowserTest, ADocumentOfTenMillionLettersIsShown)
{
    QString text = u"<!DOCTYPE html><body><p id=first>first</p>"_s;
    const QString paragraph = u"<p>"_s + u"A line of a very long page, with ümlauts. "_s.repeated(100) + u"</p>"_s;
    while (text.size() < 10'000'000) {
        text += paragraph;
    }
    show(text + u"<p id=last>last</p>"_s);
    EXPECT_EQ(textOf(u"#first"_s), u"first"_s);
    EXPECT_EQ(textOf(u"#last"_s), u"last"_s);
}

TEST_F(PreviewBrowserTest, ALinkOfTheShopShowsItsPageAndTheBrowserStaysWhereItIs)
{
    const QString address = script(u"location.href"_s).toString();
    show(u"<a id=link href='http://previewmode/MAINPAGE'>home</a>"_s);
    clickToNewPage(u"#link"_s);
    EXPECT_TRUE(isOnMainPage());
    EXPECT_EQ(script(u"location.href"_s).toString(), address);
    EXPECT_EQ(browser->page()->history()->count(), 1);
}

TEST_F(PreviewBrowserTest, AnAddressThatTheShopDoesNotKnowLeavesThePage)
{
    show(u"<a id=link href='http://previewmode/mainpage'>home</a>"_s);
    click(u"#link"_s);
    expectStays(u"#link"_s);
}

TEST_F(PreviewBrowserTest, AFormIsSentWithItsBlanksCommasAndForeignLetters)
{
    writeTemplate(u"search"_s, "<p id=word><!--:SEARCH_WORD:--></p>");
    templates->ReLoad(u"search"_s, u"search"_s);
    const struct
    {
        const char* typed;
        const char* word;
    } rows[] = {
        {"tea", "tea"},     {"green tea", "green+tea"}, {"1,5", "1%2C5"},
        {"Größe", "Größe"}, {"a+b", "a%2Bb"},           {"50%", "50%25"},
    };
    for (const auto& row : rows) {
        show(u"<form action='http://previewmode/'><input type=hidden name=ACTION value=search.php>"
             "<input id=what name=what></form>"_s);
        script(u"document.querySelector('#what').value = '%1'"_s.arg(QString::fromUtf8(row.typed)));
        click(u"#what"_s);
        markPage();
        pressEnter();
        waitForNewPage();
        EXPECT_EQ(textOf(u"#word"_s), QString::fromUtf8(row.word));
    }
}

TEST_F(PreviewBrowserTest, ACustomPageWithANameOutsideAsciiOpens)
{
    addCustomPage(u"Größe und Form"_s, u"<p id=own>own text</p>"_s);
    addCustomPage(u"Цены 日本"_s, u"<p id=own>other text</p>"_s);
    show(u"<a id=a href='http://previewmode/ACTION=custompage.php&amp;name=Größe und Form'>x</a>"_s);
    clickToNewPage(u"#a"_s);
    EXPECT_EQ(textOf(u"#own"_s), u"own text"_s);
    show(u"<a id=a href='http://previewmode/ACTION=custompage.php&amp;name=Цены 日本'>x</a>"_s);
    clickToNewPage(u"#a"_s);
    EXPECT_EQ(textOf(u"#own"_s), u"other text"_s);
}

TEST_F(PreviewBrowserTest, ALinkWithATargetOfItsOwnLandsInTheSamePreview)
{
    show(u"<a id=link target=_blank href='http://previewmode/MAINPAGE'>home</a>"_s);
    clickToNewPage(u"#link"_s);
    EXPECT_TRUE(isOnMainPage());
}

TEST_F(PreviewBrowserTest, TheMiddleButtonLandsInTheSamePreview)
{
    show(u"<a id=link href='http://previewmode/MAINPAGE'>home</a>"_s);
    markPage();
    click(u"#link"_s, Qt::MiddleButton);
    waitForNewPage();
    EXPECT_TRUE(isOnMainPage());
}

TEST_F(PreviewBrowserTest, AFormWithATargetOfItsOwnLandsInTheSamePreview)
{
    show(u"<form target=_blank action='http://previewmode/'><input type=hidden name=ACTION value=shopcart.php>"
         "<button id=button>cart</button></form>"_s);
    clickToNewPage(u"#button"_s);
    EXPECT_EQ(textOf(u"h1"_s), u"cart"_s);
}

TEST_F(PreviewBrowserTest, AWindowThatAScriptOpensLandsInTheSamePreview)
{
    show(u"<button id=button onclick=\"window.open('http://previewmode/MAINPAGE')\">home</button>"_s);
    clickToNewPage(u"#button"_s);
    EXPECT_TRUE(isOnMainPage());
}

TEST_F(PreviewBrowserTest, ScriptsAndRefreshesTakeTheSameRoad)
{
    for (const QString& html : {u"<script>location = 'http://previewmode/MAINPAGE'</script>"_s,
                                u"<meta http-equiv=refresh content='0; url=http://previewmode/MAINPAGE'>"_s}) {
        markPage();
        browser->replaceDocument(html);
        SCOPED_TRACE(html.toStdString());
        waitUntil(u"!window.isOldPage && document.querySelector('h1')?.textContent == 'Corner Shop'"_s);
        pause(300); // a refresh may come twice, and must not meet the next page
    }
}

TEST_F(PreviewBrowserTest, BackLeavesTheDocumentWhereItIs)
{
    show(u"<p id=first>first</p>"_s);
    show(u"<p id=second>second</p>"_s);
    browser->page()->triggerAction(QWebEnginePage::Back);
    expectStays(u"#second"_s);
    QTest::mouseClick(browser->view()->focusProxy(), Qt::BackButton, {}, QPoint(50, 50));
    expectStays(u"#second"_s);
    script(u"history.back()"_s);
    expectStays(u"#second"_s);
}

TEST_F(PreviewBrowserTest, ReloadShowsTheSameDocumentAgain)
{
    show(u"<p id=p>text</p>"_s);
    markPage();
    browser->page()->triggerAction(QWebEnginePage::Reload);
    waitForNewPage();
    EXPECT_EQ(textOf(u"#p"_s), u"text"_s);
}

TEST_F(PreviewBrowserTest, ALinkToAnotherHostLeavesThePreviewAndBackReturns)
{
    WebServer other;
    other.servePage("<p id=other>elsewhere</p>");
    show(u"<a id=link href='%1page'>elsewhere</a>"_s.arg(other.address()));
    clickToNewPage(u"#link"_s);
    EXPECT_EQ(textOf(u"#other"_s), u"elsewhere"_s);
    EXPECT_TRUE(other.requests.contains(u"/page"_s));
    markPage();
    browser->page()->triggerAction(QWebEnginePage::Back);
    waitUntil(u"document.querySelector('#link') != null"_s);
}

TEST_F(PreviewBrowserTest, APageOfAnotherHostLeadsBackIntoTheShop)
{
    WebServer other;
    other.redirectTo("http://previewmode/MAINPAGE");
    show(u"<a id=link href='%1'>elsewhere</a>"_s.arg(other.address()));
    clickToNewPage(u"#link"_s);
    EXPECT_TRUE(isOnMainPage());
}

TEST_F(PreviewBrowserTest, AnAddressOfAnotherHostWithTheCartsWordShowsTheCart)
{
    WebServer other;
    other.servePage("<p id=other>elsewhere</p>");
    show(u"<a id=link href='%1?addtoshopcart=1'>elsewhere</a>"_s.arg(other.address()));
    click(u"#link"_s);
    waitUntil(u"document.querySelector('h1') != null && document.querySelector('h1').textContent.includes('cart')"_s);
}

TEST_F(PreviewBrowserTest, APlaceInTheDocumentIsNoNavigation)
{
    show(u"<a id=link href='#place'>down</a><p style='height:5000px'></p><p id=place>place</p>"_s);
    script(u"window.stayed = true"_s);
    click(u"#link"_s);
    waitUntil(u"window.scrollY > 1000"_s);
    EXPECT_TRUE(script(u"window.stayed == true"_s).toBool());
}

TEST_F(PreviewBrowserTest, APictureOfTheShopIsShownAndAReplacedOneIsTheNewOne)
{
    savePicture(u"red.png"_s, 30);
    show(pictureTag(u"red.png"_s));
    EXPECT_EQ(pictureWidth(), 30);
    savePicture(u"red.png"_s, 70);
    show(pictureTag(u"red.png"_s));
    EXPECT_EQ(pictureWidth(), 70);
}

TEST_F(PreviewBrowserTest, APictureWithAnyLettersInItsNameIsShown)
{
    for (const QString& name : {u"two words.png"_s, u"Größe.png"_s, u"日本.png"_s, u"a+b,c.png"_s, u"a #2.png"_s,
                                u"what?.png"_s, u"a%20b.png"_s, u"5%.png"_s, u"a \"b\".png"_s}) {
        savePicture(name, 30);
        show(u"<img id=picture src=\"%1\">"_s.arg(FullPicturePath(session->folder, name)));
        EXPECT_EQ(pictureWidth(), 30) << name.toStdString();
    }
}

TEST_F(PreviewBrowserTest, TheRightButtonOpensNoMenu)
{
    show(u"<p id=p style='width:300px;height:300px'>text</p>"_s);
    click(u"#p"_s, Qt::RightButton);
    pause(200);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        EXPECT_FALSE(widget->inherits("QMenu") && widget->isVisible());
    }
}

TEST_F(PreviewBrowserTest, AFailureInAnActionReachesTheErrorHandlerAndLeavesThePage)
{
    show(u"<a id=link href='http://previewmode/ACTION=product.php&amp;id=99'>gone</a>"_s);
    click(u"#link"_s);
    expectStays(u"#link"_s);
    EXPECT_EQ(errors.numbers, std::vector<int>{5});
    errors.numbers.clear();
}

TEST_F(PreviewBrowserTest, AFaceThatIsNotThereFallsToASansOne)
{
    show(u"<span id=a style=\"font-family: 'No Such Face'\">Willow iii</span><br>"
         "<span id=b style='font-family: sans-serif'>Willow iii</span><br>"
         "<span id=c style='font-family: serif'>Willow iii</span>"_s);
    const auto width = [this](const QString& id) {
        return script(u"document.querySelector('%1').getBoundingClientRect().width"_s.arg(id)).toDouble();
    };
    EXPECT_EQ(width(u"#a"_s), width(u"#b"_s));
    EXPECT_NE(width(u"#a"_s), width(u"#c"_s));
}

TEST_F(PreviewBrowserTest, APageIsLaidOutInTheWidthThatIsAskedFor)
{
    browser->resize(1000, 600);
    show(u"<p id=p>text</p>"_s);
    const QRect place = browser->geometry();
    for (const auto& [asked, laidOut] : {std::pair(390, 390), {820, 820}, {0, 1000}, {1400, 1000}, {390, 390}}) {
        browser->setPageWidth(asked);
        waitUntil(u"innerWidth == %1"_s.arg(laidOut));
        EXPECT_EQ(browser->geometry(), place);
        EXPECT_EQ(browser->view()->height(), 600);
        EXPECT_EQ(browser->view()->x(), (1000 - laidOut) / 2);
    }
    // The next document comes in the same width.
    show(u"<p id=q>text</p>"_s);
    EXPECT_EQ(script(u"innerWidth"_s).toInt(), 390);
}

TEST_F(PreviewBrowserTest, ABlankPageIsShownOnRequest)
{
    show(u"<p id=p>text</p>"_s);
    browser->goBlank();
    waitUntil(u"location.href == 'about:blank'"_s);
    EXPECT_EQ(countOf(u"#p"_s), 0);
}

TEST_F(PreviewBrowserTest, WithoutANavigationNothingIsAsked)
{
    browser->setNavigation(nullptr);
    show(u"<a id=link href='http://previewmode/MAINPAGE'>home</a>"_s);
    click(u"#link"_s);
    pause(300);
    EXPECT_FALSE(isOnMainPage());
}

} // namespace
