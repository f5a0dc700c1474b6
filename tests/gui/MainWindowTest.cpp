// Modes, panes and the change of panels in the real window.
#include "editors/Panel.h"
#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"
#include "support/WindowTest.h"

#include <QAction>
#include <QElapsedTimer>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QTest>
#include <QWindow>

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

    // Pages that show their names.
    void useTemplates()
    {
        for (const char* page :
             {"main", "footer", "menu", "category", "product", "search", "cart", "header", "custompage", "checkout"}) {
            writeFile(files.path(u"templates/%1.html"_s.arg(QLatin1String(page))), QByteArray("page ") + page);
        }
        writeFile(files.path(u"templates/layout.html"_s), "<!--:main_part:-->");
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

TEST_F(MainWindow, ChangesNoPaneForAModeThatDoesNotExist)
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

TEST_F(MainWindow, TakesNoOtherButtonThanTheLeftOneForAPress)
{
    auto* picture = find<ShortcartButton>("PreviewBrowserSBtn")->findChild<QLabel*>(u"IconImg"_s);
    QWidget* focus = find<QLineEdit>("ShopNameTxt");
    focus->setFocus();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(picture, button);
        EXPECT_EQ(window->focusWidget(), focus);
        EXPECT_EQ(window->WorkMode, MainForm::CatalogueMode);
    }
    // Nor does it turn a later press into the first one.
    click("PreviewBrowserSBtn");
    EXPECT_EQ(preview->documents.size(), 1);
    QTest::mouseClick(picture, Qt::RightButton);
    click("PreviewBrowserSBtn");
    EXPECT_EQ(preview->documents.size(), 1);
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
    // The selected node stays the one that was clicked.
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

// A panel that records what is done to it.
class RecordingPanel : public Panel
{
public:
    using Panel::Panel;
    void SetActiveObject(const CatalogueObject& /*object*/) override { calls << u"set"_s; }
    void SaveActiveObject() override { calls << u"save"_s; }
    void ClearActiveObject() override { calls << u"clear"_s; }

    QStringList calls;
};

// Records among a panel's calls when the short bar appears and disappears.
class BarWatch : public QObject
{
public:
    explicit BarWatch(QStringList& notes) : m_notes(notes) {}
    bool eventFilter(QObject* /*bar*/, QEvent* event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
            m_notes << (event->type() == QEvent::Show ? u"bar"_s : u"no bar"_s);
        }
        return false;
    }

private:
    QStringList& m_notes;
};

class PaintCount : public QObject
{
public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
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

TEST_F(MainWindow, UnbindsThePanelThatTheDesignTakesOverFrom)
{
    RecordingPanel panel(window.get());
    window->ShowFrame(&panel, 0);
    click("ShopDesignSBtn");
    EXPECT_EQ(panel.calls, (QStringList{u"set"_s, u"save"_s, u"save"_s, u"clear"_s}));
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(window->VisibleFrame, find<Panel>("MainPagePnl"));
}

TEST_F(MainWindow, AcknowledgesEveryChangeOfPanelWithItsShortBarBeforeTheSave)
{
    RecordingPanel panel(window.get());
    BarWatch watch(panel.calls);
    find("PrBar")->installEventFilter(&watch);
    window->ShowFrame(&panel, 0);
    panel.calls.clear();
    QElapsedTimer time;
    time.start();
    window->ApplyActivePanel();
    EXPECT_GE(time.elapsed(), 21); // a millisecond at each of its steps
    EXPECT_EQ(panel.calls, (QStringList{u"bar"_s, u"no bar"_s, u"save"_s}));
    panel.calls.clear();
    window->ShowFrame(nullptr, 10);
    EXPECT_EQ(panel.calls, (QStringList{u"save"_s}));
    panel.calls.clear();
    window->ShowFrame(nullptr, 0);
    EXPECT_EQ(panel.calls, (QStringList{u"bar"_s, u"no bar"_s, u"save"_s, u"save"_s, u"clear"_s}));
}

TEST_F(MainWindow, PaintsItsShortBarOncePerStep)
{
    PaintCount paints;
    find("PrBar")->installEventFilter(&paints);
    for (int run = 1; run <= 2; ++run) {
        window->ApplyActivePanel();
        EXPECT_EQ(paints.count, run * 21);
    }
}

TEST_F(MainWindow, PreparesTheClicksOfTheButtonsThatMayFollow)
{
    const auto code = [this](const char* button) { return find<ShortcartButton>(button)->Code; };
    for (const char* button : {"SaveShopSBtn", "PreviewBrowserSBtn", "UploadShopSBtn"}) {
        EXPECT_EQ(code(button), 0) << button;
    }
    click("ShopDesignSBtn");
    EXPECT_EQ(code("PreviewBrowserSBtn"), 10);
    EXPECT_EQ(code("SaveShopSBtn"), 0);
    click("ProductCatalogSBtn");
    EXPECT_EQ(code("SaveShopSBtn"), 10);
    EXPECT_EQ(code("UploadShopSBtn"), 0); // so that its click closes the panel
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
    window->ApplyActivePanel();
    window->ResetActivePanel();
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

// The frame is the desktop's own, which is known once the window is on the screen.
TEST_F(MainWindow, OpensAtItsOwnSizeOrAtWhatTheScreenLeavesInsideItsFrame)
{
    const QMargins frame = window->windowHandle()->frameMargins();
    ASSERT_FALSE(frame.isNull());
    const QSize expected = QSize(1190, 855).boundedTo(window->screen()->availableSize().shrunkBy(frame));
    EXPECT_EQ(window->size(), expected);
    EXPECT_EQ(window->pos(), QPoint(0, 0));
    EXPECT_TRUE(window->screen()->availableGeometry().contains(window->frameGeometry()));
}

TEST_F(MainWindow, FitsItselfToItsFrameOnceAndNeverAgain)
{
    window->resize(700, 600);
    window->move(10, 10);
    QCoreApplication::processEvents();
    EXPECT_EQ(window->size(), QSize(700, 600));
}

} // namespace
