#include "e2e/BrowserTest.h"

#include "model/shop_file/ShopFile.h"

#include <QDirIterator>
#include <QFile>

using namespace Qt::StringLiterals;

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
    ASSERT_TRUE(loadShop(*session));
    openPreview();
}

void BrowserTest::openEmptyShop()
{
    session = std::make_unique<ShopSession>(files.folder(), prompts, clock);
    session->shop = std::make_shared<ShopClass>(session->services);
    session->shop->name = u"Corner Shop"_s;
    for (const char* empty : {"menu", "header", "footer", "checkout"}) {
        writeTemplate(QString::fromLatin1(empty), "");
    }
    writeTemplate(u"layout"_s, "<!DOCTYPE html><html><body><!--:main_part:--></body></html>");
    writeTemplate(u"main"_s, "<h1><!--:shop_name:--></h1><!--:Main_ShopDescription:-->");
    writeTemplate(u"custompage"_s, "<main><!--:page_text:--></main>");
    for (const char* plain : {"category", "product", "search", "cart"}) {
        writeTemplate(QString::fromLatin1(plain), "<h1>"_ba + plain + " <!--:name:--></h1>");
    }
    openPreview();
}

void BrowserTest::writeTemplate(const QString& name, const QByteArray& text)
{
    writeFile(files.path(u"templates/"_s + name + u".html"_s), text);
}

void BrowserTest::openPreview()
{
    session->registerShop();
    session->Cart = std::make_unique<clsCart>(session->services);
    templates = std::make_unique<Templates_Set>(session->folder, session->log, shopTemplateNames());
    templates->parseTemplates();
    ASSERT_EQ(templates->templates.Count(), 10);

    browser = std::make_unique<PreviewBrowser>(session->folder, errors);
    preview = std::make_unique<PreviewPage>(*session, *templates, *browser);
    navigation = std::make_unique<PreviewNavigation>(*session, *preview);
    drive(browser.get());
    browser->setNavigation(navigation.get());
    browser->resize(1000, 800);
    browser->show();
    browser->goBlank();
    waitUntil(u"location.href == 'about:blank'"_s);
    markPage();
    navigation->openPreview();
    waitForNewPage();
}

void BrowserTest::show(const QString& html)
{
    markPage();
    browser->replaceDocument(html);
    waitForNewPage();
}
