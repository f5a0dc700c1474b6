// Modes, panes and the change of panels in the real window.
#include "editors/Panel.h"
#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"
#include "support/WindowTest.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class MainWindow : public WindowTest
{
protected:
    void SetUp() override
    {
        useShop("<Version>1.2.0</Version><Name>Fern</Name><SelectedCountries/>"
                "<Category><Id>2</Id><Name>Tea</Name></Category>");
        useTemplates();
        start();
    }

    // Pages that tell their names.
    void useTemplates()
    {
        for (const char* page :
             {"main", "footer", "menu", "category", "product", "search", "cart", "header", "custompage", "checkout"}) {
            WriteFile(files.path(u"templates/%1.html"_s.arg(QLatin1String(page))), QByteArray("page ") + page);
        }
        WriteFile(files.path(u"templates/layout.html"_s), "<!--:main_part:-->");
    }
};

struct Panes
{
    bool catalogue;
    bool preview;
    bool design;
};

struct ModeCase
{
    qint16 mode;
    Panes shown;
    const char* ticked;
};

TEST_F(MainWindow, ShowsThePanesOfAModeAndTicksItsEntry)
{
    const ModeCase cases[] = {
        {1, {true, false, false}, "mnuProductsCatalog"},
        {2, {false, true, false}, "mnuShopPreview"},
        {3, {false, false, true}, "mnuShopDesign"},
        {1, {true, false, false}, "mnuProductsCatalog"},
    };
    for (const ModeCase& expected : cases) {
        SCOPED_TRACE(expected.mode);
        const qsizetype lines = logLines().size();
        window->SetMode(expected.mode);
        for (const char* name :
             {"CategoriesAndProductsTree", "frmTreeShadowWhite", "frmTreeShadowGray", "frmTreeShadowDarkGray",
              "imgSplitter", "ContextToolbarFrame", "MainFrame", "ShopGeneralPnl"}) {
            EXPECT_EQ(isShown(name), expected.shown.catalogue) << name;
        }
        EXPECT_EQ(isShown("PreviewBrowser"), expected.shown.preview);
        for (const char* name : {"ShopDesignFrame", "ShopDesignMenuFrame"}) {
            EXPECT_EQ(isShown(name), expected.shown.design) << name;
        }
        EXPECT_FALSE(find("MainPagePnl")->isHidden());
        for (const char* action : {"mnuProductsCatalog", "mnuShopPreview", "mnuShopDesign"}) {
            EXPECT_EQ(find<QAction>(action)->isChecked(), qstrcmp(action, expected.ticked) == 0) << action;
        }
        EXPECT_EQ(window->WorkMode, expected.mode);
        EXPECT_EQ(logLines().mid(lines), QStringList{u"End Sub SetMode"_s});
    }
}

TEST_F(MainWindow, TouchesNoPaneInAModeThatThereIsNot)
{
    window->SetMode(2);
    window->SetMode(7);
    EXPECT_TRUE(isShown("PreviewBrowser"));
    EXPECT_TRUE(find<QAction>("mnuShopPreview")->isChecked());
    EXPECT_EQ(window->WorkMode, 7);
    EXPECT_EQ(logLines().last(), u"End Sub SetMode"_s);
}

TEST_F(MainWindow, ShowsTheMainPageUnderThePreviewButton)
{
    click("PreviewBrowserSBtn");
    EXPECT_EQ(window->WorkMode, MainForm::PreviewMode);
    EXPECT_TRUE(isShown("PreviewBrowser"));
    ASSERT_EQ(preview->documents.size(), 1);
    EXPECT_TRUE(preview->documents.first().startsWith(u"page main"));
    EXPECT_TRUE(preview->documents.first().endsWith(u"\r\n"));
}

TEST_F(MainWindow, KeepsThePanelOpenBehindThePreview)
{
    click("PreviewBrowserSBtn");
    ASSERT_NE(window->VisibleFrame, nullptr);
    EXPECT_EQ(window->VisibleFrame->objectName(), u"ShopGeneralPnl"_s);
    EXPECT_EQ(find<ShortcartButton>("PreviewBrowserSBtn")->Code, 10);
}

TEST_F(MainWindow, RunsTheHandlerOfAMainButtonOnlyWhenItReceivesTheFocus)
{
    click("PreviewBrowserSBtn");
    click("PreviewBrowserSBtn");
    EXPECT_EQ(preview->documents.size(), 1);
    click("ShopTaxesSBtn"); // not visible now, so it takes no focus
    trigger("mnuShopPreview");
    trigger("mnuShopPreview");
    EXPECT_EQ(preview->documents.size(), 3);
}

TEST_F(MainWindow, LeavesTheCataloguesPanelWhenItGoesToTheDesign)
{
    click("ShopDesignSBtn");
    EXPECT_EQ(window->WorkMode, MainForm::DesignMode);
    ASSERT_NE(window->VisibleFrame, nullptr);
    EXPECT_EQ(window->VisibleFrame->objectName(), u"MainPagePnl"_s);
    EXPECT_TRUE(find("ShopGeneralPnl")->isHidden());
}

TEST_F(MainWindow, ComesBackToTheShopsGeneralPanel)
{
    clickNode(u"ID2"_s);
    EXPECT_EQ(window->VisibleFrame->objectName(), u"CategoryGeneralPnl"_s);
    EXPECT_TRUE(isShown("CategoryToolbar"));
    click("ShopDesignSBtn");
    click("ProductCatalogSBtn");
    EXPECT_EQ(window->WorkMode, MainForm::CatalogueMode);
    EXPECT_EQ(window->VisibleFrame->objectName(), u"ShopGeneralPnl"_s);
    EXPECT_TRUE(isShown("ShopToolbar"));
    EXPECT_FALSE(isShown("CategoryToolbar"));
    // The node stays the one that was clicked.
    EXPECT_EQ(window->SelectedNode->key, u"ID2"_s);
    EXPECT_TRUE(std::holds_alternative<std::shared_ptr<ShopClass>>(window->ActiveObject));
}

TEST_F(MainWindow, HoldsTheMenusWithTheirCaptions)
{
    const std::pair<const char*, const char*> captions[] = {
        {"mnuSaveShop", "&Save"},
        {"mnuProductsCatalog", "Products Ca&talog"},
        {"mnuShopDesign", "Shop &Design"},
        {"mnuShopPreview", "Shop &Preview"},
    };
    for (const auto& [name, caption] : captions) {
        EXPECT_EQ(find<QAction>(name)->text(), QLatin1String(caption));
    }
    EXPECT_EQ(find<QMenu>("mnuShop")->title(), u"&Shop"_s);
    EXPECT_EQ(find<QMenu>("mnuTools")->title(), u"&Tools"_s);
}

// A panel that keeps what was done to it.
class RecordingPanel : public Panel
{
public:
    using Panel::Panel;
    void SetActiveObject(const CatalogueObject& /*object*/) override { calls << u"set"_s; }
    void SaveActiveObject() override { calls << u"save"_s; }
    void ClearActiveObject() override { calls << u"clear"_s; }

    QStringList calls;
};

TEST_F(MainWindow, SavesAPanelTwiceThenUnbindsItWhenItIsLeft)
{
    RecordingPanel panel(window.get());
    window->ShowFrame(&panel, 0);
    EXPECT_EQ(panel.calls, (QStringList{u"set"_s}));
    EXPECT_TRUE(panel.isVisible());
    window->ShowFrame(nullptr, 0);
    EXPECT_EQ(panel.calls, (QStringList{u"set"_s, u"save"_s, u"save"_s, u"clear"_s}));
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(window->VisibleFrame, nullptr);
}

TEST_F(MainWindow, OnlyGathersWithCodeTen)
{
    RecordingPanel panel(window.get());
    window->ShowFrame(&panel, 0);
    window->ShowFrame(nullptr, 10);
    EXPECT_EQ(panel.calls, (QStringList{u"set"_s, u"save"_s}));
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(window->VisibleFrame, &panel);
    window->ShowFrame(nullptr, 0);
}

TEST_F(MainWindow, DoesNothingWithCodeTenAndNoPanel)
{
    window->ShowFrame(nullptr, 0);
    window->ShowFrame(nullptr, 10);
    EXPECT_EQ(window->VisibleFrame, nullptr);
}

TEST_F(MainWindow, ReloadsThePanelOnReset)
{
    RecordingPanel panel(window.get());
    window->ShowFrame(&panel, 0);
    window->ResetActivePanel();
    window->ApplyActivePanel();
    EXPECT_EQ(panel.calls, (QStringList{u"set"_s, u"set"_s, u"save"_s}));
    window->ShowFrame(nullptr, 0);
}

TEST_F(MainWindow, OpensAtItsSizeOrTheScreens)
{
    const QSize expected = QSize(1190, 855).boundedTo(window->screen()->availableSize());
    EXPECT_EQ(window->size(), expected);
    EXPECT_EQ(window->pos(), QPoint(0, 0));
}

} // namespace
