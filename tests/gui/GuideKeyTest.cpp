// F1: which page of the guide opens, and that there is one for each panel.
#include "editors/Panel.h"
#include "shell/GuidePages.h"
#include "shell/ShortcartButton.h"
#include "support/WindowTest.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QTest>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace {

class GuideKey : public WindowTest
{
protected:
    void SetUp() override
    {
        QDesktopServices::setUrlHandler(u"file"_s, &desktop, "setSource");
        useSampleShop();
        start();
    }
    void TearDown() override { QDesktopServices::unsetUrlHandler(u"file"_s); }

    void makeGuide()
    {
        QDir().mkpath(files.path(u"guide"_s));
        for (const QString& page : QDir(guide).entryList({u"*.md"_s})) {
            const QString name = page == u"README.md"_s ? u"index"_s : page.chopped(3);
            writeFile(files.path(u"guide/%1.html"_s.arg(name)), "<h1>" + name.toUtf8() + "</h1>");
        }
    }
    // The page that the desktop was asked to open, without its folder.
    QString opened()
    {
        desktop.setSource({});
        QTest::keyClick(window->focusWidget() ? window->focusWidget() : window.get(), Qt::Key_F1);
        const QString file = desktop.source().toLocalFile();
        EXPECT_TRUE(file.isEmpty() || QFileInfo(file).path() == files.path(u"guide"_s));
        return QFileInfo(file).fileName();
    }

    const QString guide = QStringLiteral(TARNWICK_SOURCE_DIR "/docs/guide");
    QTextBrowser desktop; // stands in for the browser of the desktop
};

TEST_F(GuideKey, OpensThePageOfThePanelOnScreen)
{
    makeGuide();
    EXPECT_EQ(opened(), u"catalogue.html"_s);
    click("ShopDiscountSBtn");
    EXPECT_EQ(opened(), u"discounts.html"_s);
    click("ShopDesignSBtn");
    EXPECT_EQ(opened(), u"design.html"_s);
    click("PreviewBrowserSBtn");
    EXPECT_EQ(opened(), u"first-shop.html"_s);
    trigger("mnuProductsCatalog");
    window->ShowFrame(nullptr, PanelCode::Show);
    EXPECT_EQ(opened(), u"index.html"_s);
}

TEST_F(GuideKey, SaysInABoxWhereTheGuideIsMissing)
{
    prompts.expectMessage(u"Ambrel eCommerce Software"_s,
                          u"The guide cannot be opened:\n"_s + files.path(u"guide/catalogue.html"_s));
    EXPECT_EQ(opened(), QString());
}

TEST_F(GuideKey, HasAPageForEachPanelOfTheWindow)
{
    const QList<Panel*> panels = window->findChildren<Panel*>();
    EXPECT_EQ(static_cast<std::size_t>(panels.size()), guidePages().size());
    for (const Panel* panel : panels) {
        const auto rows = std::count_if(guidePages().begin(), guidePages().end(), [&](const GuidePage& row) {
            return objectNameOf(row.panel) == panel->objectName();
        });
        EXPECT_EQ(rows, 1) << panel->objectName().toStdString();
    }
    for (const GuidePage& row : guidePages()) {
        EXPECT_TRUE(QFileInfo(guide + u"/%1.md"_s.arg(QLatin1String(row.page))).isFile()) << row.page;
    }
    EXPECT_TRUE(QFileInfo(guide + u"/%1.md"_s.arg(QLatin1String(guidePageOfPreview))).isFile());
}

} // namespace
