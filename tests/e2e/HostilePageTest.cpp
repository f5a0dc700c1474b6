// What a page of the shop, whose texts may come from anywhere, cannot do: read the owner's disk outside of pictures/,
// or use the preview's own scheme for anything but the document and its pictures.
#include "e2e/BrowserTest.h"
#include "e2e/WebServer.h"

#include <QFile>
#include <QImage>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Svg = "<svg xmlns='http://www.w3.org/2000/svg' width='30' height='10'>"
                     "<script>parent.ranInFrame = true; top.ranInFrame = true;</script></svg>";

class HostilePageTest : public BrowserTest
{
protected:
    HostilePageTest()
    {
        openEmptyShop();
        writeFile(pictures + u"drawing.svg"_s, Svg);
        writeFile(pictures + u"notes.txt"_s, "secret notes");
        writeFile(pictures + u"page.html"_s, "<script>top.ranInFrame = true</script>");
        writeFile(files.path(u"outside.svg"_s), Svg);
        writeFile(files.path(u"secret.txt"_s), "secret text");
        QImage(30, 10, QImage::Format_RGB32).save(files.path(u"outside.png"_s));
        QImage(30, 10, QImage::Format_RGB32).save(pictures + u"inside.png"_s);
        QFile::link(files.path(u"outside.png"_s), pictures + u"link.png"_s);
    }

    // "loaded" or "failed" for an element that a script makes and adds to the page.
    QString outcome(const QString& element, const QString& attribute, const QString& address)
    {
        script(u"window.outcome = ''; (function() { const e = document.createElement('%1');"
               "e.onload = function() { window.outcome = 'loaded'; };"
               "e.onerror = function() { window.outcome = 'failed'; };"
               "e.%2 = \"%3\"; document.body.appendChild(e); })()"_s.arg(element, attribute, address));
        waitUntil(u"window.outcome != ''"_s);
        return script(u"window.outcome"_s).toString();
    }

    // What a request by script reads: its text, or "failed".
    QString readByScript(const QString& address)
    {
        script(u"window.outcome = null; (function() { const r = new XMLHttpRequest();"
               "r.onload = function() { window.outcome = r.responseText; };"
               "r.onerror = function() { window.outcome = 'failed'; };"
               "try { r.open('GET', \"%1\"); r.send(); } catch (e) { window.outcome = 'failed'; } })()"_s.arg(address));
        waitUntil(u"window.outcome !== null"_s);
        return script(u"window.outcome"_s).toString();
    }

    const QString pictures = files.folder().picturesFolder();
};

TEST_F(HostilePageTest, OnlyPicturesUnderThePicturesFolderAreShown)
{
    show(u"<body><p id=p>page</p>"_s);
    const struct
    {
        const char* name;
        QString address;
        const char* outcome;
    } rows[] = {
        {"a picture", pictures + u"inside.png"_s, "loaded"},
        {"a drawing", pictures + u"drawing.svg"_s, "loaded"},
        {"by its whole address", u"tarnwick-preview:"_s + pictures + u"inside.png"_s, "loaded"},
        {"a picture outside", files.path(u"outside.png"_s), "failed"},
        {"a step up", pictures + u"../outside.png"_s, "failed"},
        {"a hidden step up", pictures + u"%2e%2e/outside.png"_s, "failed"},
        {"a hidden slash", pictures + u"..%2Foutside.png"_s, "failed"},
        {"a link that leads out", pictures + u"link.png"_s, "failed"},
        {"a picture that is not there", pictures + u"gone.png"_s, "failed"},
        {"a text", pictures + u"notes.txt"_s, "failed"},
        {"the folder", pictures, "failed"},
        {"a file address", u"file://"_s + pictures + u"inside.png"_s, "failed"},
        {"a file address outside", u"file://"_s + files.path(u"outside.png"_s), "failed"},
        {"a device", u"/dev/zero"_s, "failed"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(outcome(u"img"_s, u"src"_s, row.address), QString::fromLatin1(row.outcome)) << row.name;
    }
}

TEST_F(HostilePageTest, AScriptReadsNoFile)
{
    show(u"<body><p id=p>page</p>"_s);
    for (const QString& address : {files.path(u"secret.txt"_s), pictures + u"notes.txt"_s, pictures + u"page.html"_s,
                                   u"file://"_s + files.path(u"secret.txt"_s), u"/etc/passwd"_s,
                                   u"file:///etc/passwd"_s, u"tarnwick-preview:/etc/passwd"_s}) {
        EXPECT_EQ(readByScript(address), u"failed"_s) << address.toStdString();
    }
    EXPECT_EQ(outcome(u"script"_s, u"src"_s, u"file://"_s + files.path(u"secret.txt"_s)), u"failed"_s);
    EXPECT_EQ(outcome(u"script"_s, u"src"_s, files.path(u"secret.txt"_s)), u"failed"_s);
}

TEST_F(HostilePageTest, NoFrameOfTheOwnSchemeRuns)
{
    QString page = u"<body><p id=p>page</p>"_s;
    for (const QString& address : {pictures + u"drawing.svg"_s, pictures + u"page.html"_s, u"tarnwick-preview:/"_s,
                                   u"file://"_s + pictures + u"drawing.svg"_s, files.path(u"outside.svg"_s)}) {
        page += u"<iframe src=\"%1\"></iframe><object data=\"%1\"></object><embed src=\"%1\">"_s.arg(address);
    }
    show(page);
    pause(500);
    EXPECT_FALSE(script(u"window.ranInFrame === true"_s).toBool());
    EXPECT_EQ(textOf(u"#p"_s), u"page"_s);
}

TEST_F(HostilePageTest, AFrameWithAnOriginOfItsOwnGetsNoPicture)
{
    const QString picture = u"tarnwick-preview:"_s + pictures + u"inside.png"_s;
    const QString inner = u"<img src='%1' onload=\\\"parent.postMessage('loaded','*')\\\""
                          " onerror=\\\"parent.postMessage('failed','*')\\\">"_s.arg(picture);
    show(u"<body><p>page</p>"_s);
    for (const QString& attributes : {u"f.sandbox = 'allow-scripts'; f.srcdoc = \"%1\""_s.arg(inner),
                                      u"f.src = 'data:text/html,' + encodeURIComponent(\"%1\")"_s.arg(inner)}) {
        script(u"window.outcome = ''; onmessage = function(m) { window.outcome = m.data; };"
               "(function() { const f = document.createElement('iframe'); %1; document.body.appendChild(f); })()"_s.arg(
                   attributes));
        waitUntil(u"window.outcome != ''"_s);
        EXPECT_EQ(script(u"window.outcome"_s).toString(), u"failed"_s);
    }
}

TEST_F(HostilePageTest, ALinkLeadsToNoFile)
{
    for (const QString& address :
         {pictures + u"page.html"_s, pictures + u"drawing.svg"_s, u"tarnwick-preview:/etc/passwd"_s,
          u"file://"_s + files.path(u"secret.txt"_s), u"view-source:tarnwick-preview:/"_s, u"relative.html"_s,
          u"?query=1"_s, u"qrc:/"_s, u"chrome://version"_s}) {
        for (const QString& target : {u"_self"_s, u"_blank"_s}) {
            show(u"<a id=link target=%1 href=\"%2\">x</a>"_s.arg(target, address));
            click(u"#link"_s);
            pause(150);
            EXPECT_EQ(countOf(u"#link"_s), 1) << address.toStdString() << ' ' << target.toStdString();
        }
    }
}

TEST_F(HostilePageTest, AFormIsNotPostedToTheOwnScheme)
{
    show(u"<form method=post><button id=button>send</button></form>"_s);
    script(u"window.stayed = true"_s);
    click(u"#button"_s);
    pause(300);
    EXPECT_TRUE(script(u"window.stayed === true"_s).toBool());
}

TEST_F(HostilePageTest, AnotherHostGetsNoPictureOfTheShop)
{
    WebServer other;
    other.servePage("<body><p id=other>elsewhere</p>");
    show(u"<a id=link href='%1'>elsewhere</a>"_s.arg(other.address()));
    clickToNewPage(u"#link"_s);
    ASSERT_EQ(countOf(u"#other"_s), 1);
    const QString picture = u"tarnwick-preview:"_s + pictures + u"inside.png"_s;
    EXPECT_EQ(outcome(u"img"_s, u"src"_s, picture), u"failed"_s);
    EXPECT_EQ(readByScript(u"tarnwick-preview:/"_s), u"failed"_s);
}

TEST_F(HostilePageTest, WhatAPageEmbedsFromThePseudoServerDoesNothing)
{
    show(u"<body>"_s);
    EXPECT_EQ(outcome(u"img"_s, u"src"_s, u"http://previewmode/?addtoshopcart=&product_id=1"_s), u"failed"_s);
    EXPECT_EQ(outcome(u"script"_s, u"src"_s, u"http://previewmode/MAINPAGE"_s), u"failed"_s);
    EXPECT_EQ(session->Cart->Count(), 0);
    EXPECT_TRUE(errors.numbers.empty());
}

} // namespace
