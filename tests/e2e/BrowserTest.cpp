#include "e2e/BrowserTest.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTest>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int PatienceInMilliseconds = 30000;

QString quoted(QString text)
{
    return u'\'' + text.replace(u'\\', u"\\\\"_s).replace(u'\'', u"\\'"_s) + u'\'';
}

} // namespace

BrowserTest::~BrowserTest()
{
    EXPECT_TRUE(errors.numbers.empty()) << "run-time error " << errors.numbers.front();
    browser.reset(); // it calls the navigation
}

void BrowserTest::openSampleShop()
{
    const QString sample = QStringLiteral(TARNWICK_SOURCE_DIR "/app/");
    QDirIterator entries(sample, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        ASSERT_TRUE(QFile::copy(file, files.path(file.mid(sample.size())))) << file.toStdString();
    }
    session = std::make_unique<ShopSession>(files.folder(), prompts, clock);
    ASSERT_TRUE(session->loadShop());
    openPreview();
}

void BrowserTest::openEmptyShop()
{
    session = std::make_unique<ShopSession>(files.folder(), prompts, clock);
    session->shop = std::make_shared<ShopClass>(session->services);
    session->shop->name = u"Corner Shop"_s;
    for (const char* empty : {"menu", "header", "footer", "checkout"})
        writeTemplate(QString::fromLatin1(empty), "");
    writeTemplate(u"layout"_s, "<!DOCTYPE html><html><body><!--:main_part:--></body></html>");
    writeTemplate(u"main"_s, "<h1><!--:shop_name:--></h1><!--:Main_ShopDescription:-->");
    writeTemplate(u"custompage"_s, "<main><!--:page_text:--></main>");
    for (const char* plain : {"category", "product", "search", "cart"})
        writeTemplate(QString::fromLatin1(plain), "<h1>"_ba + plain + " <!--:name:--></h1>");
    openPreview();
}

void BrowserTest::writeTemplate(const QString& name, const QByteArray& text)
{
    WriteFile(files.path(u"templates/"_s + name + u".html"_s), text);
}

void BrowserTest::openPreview()
{
    session->registerShop();
    session->Cart = std::make_unique<clsCart>(session->services);
    templates = std::make_unique<Templates_Set>(session->folder, session->log);
    templates->parseTemplates();
    ASSERT_EQ(templates->templates.Count(), 10);

    browser = std::make_unique<PreviewBrowser>(session->folder, errors);
    preview = std::make_unique<PreviewPage>(*session, *templates, *browser);
    navigation = std::make_unique<PreviewNavigation>(*session, *preview);
    browser->setNavigation(navigation.get());
    browser->resize(1000, 800);
    browser->show();
    browser->goBlank();
    waitUntil(u"location.href == 'about:blank'"_s);
    markPage();
    navigation->openPreview();
    waitForNewPage();
}

QVariant BrowserTest::script(const QString& javaScript)
{
    const auto result = std::make_shared<std::optional<QVariant>>();
    QEventLoop loop;
    QTimer::singleShot(PatienceInMilliseconds, &loop, &QEventLoop::quit);
    const QPointer<QEventLoop> waiting = &loop;
    browser->page()->runJavaScript(javaScript, [result, waiting](const QVariant& value) {
        *result = value;
        if (waiting != nullptr)
            waiting->quit();
    });
    if (!result->has_value())
        loop.exec();
    EXPECT_TRUE(result->has_value()) << "no answer to: " << javaScript.toStdString();
    return result->value_or(QVariant());
}

void BrowserTest::waitUntil(const QString& condition)
{
    QElapsedTimer time;
    time.start();
    while (!script(condition).toBool()) {
        if (time.elapsed() > PatienceInMilliseconds) {
            ADD_FAILURE() << "never true: " << condition.toStdString();
            return;
        }
        pause(10);
    }
}

void BrowserTest::markPage()
{
    script(u"window.isOldPage = true"_s);
}

void BrowserTest::waitForNewPage()
{
    waitUntil(u"!window.isOldPage && document.readyState == 'complete'"_s);
}

void BrowserTest::show(const QString& html)
{
    markPage();
    browser->replaceDocument(html);
    waitForNewPage();
}

void BrowserTest::pause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

QPoint BrowserTest::middleOf(const QString& selector)
{
    const QVariantList middle =
        script(u"(function() { const element = document.querySelector(%1);"
               "if (!element) return [];"
               "element.scrollIntoView({block: 'center', behavior: 'instant'});"
               "const box = element.getBoundingClientRect();"
               "return [box.x + box.width / 2, box.y + box.height / 2]; })()"_s.arg(quoted(selector)))
            .toList();
    EXPECT_EQ(middle.size(), 2) << "not on the page: " << selector.toStdString();
    return middle.size() == 2 ? QPointF(middle[0].toDouble(), middle[1].toDouble()).toPoint() : QPoint();
}

void BrowserTest::click(const QString& selector, Qt::MouseButton button)
{
    const QPoint place = middleOf(selector);
    pause(50);
    QTest::mouseClick(browser->view()->focusProxy(), button, {}, place);
}

void BrowserTest::clickToNewPage(const QString& selector)
{
    markPage();
    click(selector);
    waitForNewPage();
}

void BrowserTest::type(const QString& selector, const QString& text)
{
    click(selector);
    waitUntil(u"document.activeElement == document.querySelector(%1)"_s.arg(quoted(selector)));
    script(u"document.activeElement.select()"_s);
    QTest::keyClicks(browser->view()->focusProxy(), text);
    waitUntil(u"document.activeElement.value == %1"_s.arg(quoted(text)));
}

void BrowserTest::pressEnter()
{
    QTest::keyClick(browser->view()->focusProxy(), Qt::Key_Return);
}

QString BrowserTest::textOf(const QString& selector)
{
    return script(u"(document.querySelector(%1) || {textContent: 'NOT ON THE PAGE'}).textContent.trim()"_s.arg(
                      quoted(selector)))
        .toString();
}

int BrowserTest::countOf(const QString& selector)
{
    return script(u"document.querySelectorAll(%1).length"_s.arg(quoted(selector))).toInt();
}

bool BrowserTest::shows(const QString& text)
{
    return script(u"document.body.innerText.includes(%1)"_s.arg(quoted(text))).toBool();
}
