// Saving the shop from the window.
#include "editors/Panel.h"
#include "shell/ProgressFrames.h"
#include "shell/ShortcartButton.h"
#include "support/Hands.h"
#include "support/WindowTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QProgressBar>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class SaveShop : public WindowTest
{
protected:
    void SetUp() override
    {
        useSampleShop();
        start();
    }

    // Types a name into the shop's general panel, which is open after the start.
    void typeShopName(const QString& name) { find<QLineEdit>("ShopNameTxt")->setText(name); }

    QByteArray savedShop() const { return fileBytes(files.path(u"shop.xml"_s)); }
};

TEST_F(SaveShop, ShowsItsFrameForAtLeastThreeTenthsOfASecond)
{
    bool frameSeen = false;
    QTimer::singleShot(50, window.get(), [&] { frameSeen = isShown("SaveProgressFrame"); });
    QElapsedTimer clockwork;
    clockwork.start();
    trigger("mnuSaveShop");
    EXPECT_GE(clockwork.elapsed(), 303);
    EXPECT_TRUE(frameSeen);
    EXPECT_FALSE(isShown("SaveProgressFrame"));
    EXPECT_EQ(find<QLabel>("Label1")->text(), u"Saving the shop"_s);
    EXPECT_EQ(find<QProgressBar>("SaveProgressBar")->value(), 100);
}

TEST_F(SaveShop, LetsEventsReenterWhileTheBarRuns)
{
    int modeDuringSave = 0;
    QTimer::singleShot(50, window.get(), [&] {
        trigger("mnuShopDesign");
        modeDuringSave = window->WorkMode;
    });
    trigger("mnuSaveShop");
    EXPECT_EQ(modeDuringSave, MainForm::DesignMode);
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(SaveShop, GathersSavesAndLeavesThePanelOpenOnAPressOfItsButton)
{
    typeShopName(u"Moss"_s);
    click("SaveShopSBtn");
    EXPECT_TRUE(savedShop().contains("<Name>Moss</Name>"));
    EXPECT_TRUE(isShown("ShopGeneralPnl"));
    EXPECT_EQ(find<ShortcartButton>("SaveShopSBtn")->Code, 10);
}

TEST_F(SaveShop, OnlyGathersOnASecondPressWithTheFocusStillThere)
{
    click("SaveShopSBtn");
    typeShopName(u"Moss"_s);
    click("SaveShopSBtn");
    EXPECT_FALSE(savedShop().contains("<Name>Moss</Name>"));
    EXPECT_EQ(window->session().shop->name, u"Moss"_s);
    trigger("mnuSaveShop");
    EXPECT_TRUE(savedShop().contains("<Name>Moss</Name>"));
}

TEST_F(SaveShop, RunsWithNoPanelToo)
{
    window->ShowFrame(nullptr, 0);
    ASSERT_EQ(window->VisibleFrame, nullptr);
    window->session().shop->name = u"Moss"_s;
    trigger("mnuSaveShop");
    EXPECT_TRUE(savedShop().contains("<Name>Moss</Name>"));
}

TEST_F(SaveShop, ThatFailsIsFatalAndItsFrameStaysVisible)
{
    ASSERT_TRUE(QFile::remove(files.path(u"shop.xml"_s)));
    ASSERT_TRUE(QDir(files.folder().path()).mkdir(u"shop.xml"_s));
    trigger("mnuSaveShop");
    EXPECT_EQ(errors.numbers, std::vector<int>{75});
    EXPECT_TRUE(isShown("SaveProgressFrame"));
}

TEST_F(SaveShop, OfAShopWhoseLoadFoundNoneIsErrorNinetyOne)
{
    window.reset();
    writeFile(files.path(u"shop.xml"_s), "<Tarnwick/>");
    prompts.expectMessage(u"Ambrel eCommerce Software"_s, u"Error in the configuration XML file. No 'Shop' node."_s);
    start();
    trigger("mnuSaveShop");
    EXPECT_EQ(errors.numbers, std::vector<int>{91});
    EXPECT_EQ(savedShop(), "<Tarnwick/>");
}

TEST_F(SaveShop, OfAShopWhoseFileIsBrokenLeavesTheFileWhateverWasPressedAheadOfIt)
{
    for (const QByteArray& broken :
         {QByteArray("<Tarnwick/>"), QByteArray("<Tarnwick><Shop><Name>Moss</Na"), QByteArray()}) {
        window.reset();
        errors.numbers.clear();
        writeFile(files.path(u"shop.xml"_s), broken);
        prompts.expectMessage(u"Ambrel eCommerce Software"_s,
                              u"Error in the configuration XML file. No 'Shop' node."_s);
        start();
        trigger("mnuProductsCatalog");
        Hands::type(find<QLineEdit>("ShopNameTxt"), u"Fern"_s);
        trigger("mnuSaveShop");
        EXPECT_EQ(errors.numbers, std::vector<int>{91});
        EXPECT_EQ(savedShop(), broken);
    }
}

TEST_F(SaveShop, OfTheSampleShopLosesNothing)
{
    window.reset();
    useSampleShop();
    start();
    trigger("mnuSaveShop");
    const QByteArray once = savedShop();
    window.reset();
    start();
    trigger("mnuSaveShop");
    EXPECT_EQ(savedShop(), once);
    EXPECT_GT(once.size(), 1000);
}

} // namespace
