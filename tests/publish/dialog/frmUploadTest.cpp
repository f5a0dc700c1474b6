// The dialog itself: its controls, what opens and closes it, and what does nothing while it waits.
#include "publish/VendorAddresses.h"
#include "publish/dialog/RawServer.h"
#include "publish/dialog/UploadDialogTest.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QtTest/qtestspontaneevent.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class frmUploadTest : public UploadDialogTest
{
protected:
    // Starts a transfer that the server never answers.
    void startWaiting()
    {
        server.handler = [](QTcpSocket&, const RawServer::Request&) {};
        open();
        typeAll(server.address());
        click("OkBtn");
        ASSERT_TRUE(waitUntil([this] { return server.requests.size() == 1; }));
        ASSERT_TRUE(dialog->isTransferring());
    }
    // As the frame's button of the desktop closes a window.
    static void closeByItsFrame(QWidget* window)
    {
        QCloseEvent event;
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(window, &event);
    }

    RawServer server;
};

TEST_F(frmUploadTest, ItHasItsControlsUnderTheirNames)
{
    open();
    EXPECT_EQ(dialog->windowTitle(), u"Uploading"_s);
    struct Row
    {
        const char* field;
        QString label;
    };
    for (const Row& row :
         {Row{"txtURL", u"ADDRESS"_s}, Row{"txtLogin", u"LOGIN"_s}, Row{"txtPassword", u"PASSWORD"_s}}) {
        auto* field = find<QLineEdit>(row.field);
        const QList<QLabel*> labels = dialog->findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](QLabel* label) {
            return label->text() == row.label && label->buddy() == field && label->isVisible();
        })) << row.field;
        EXPECT_FALSE(field->accessibleName().isEmpty());
    }
    EXPECT_EQ(find<QLineEdit>("txtPassword")->echoMode(), QLineEdit::Password);
    EXPECT_TRUE(find<QPushButton>("OkBtn")->isVisible());
    EXPECT_TRUE(find<QPushButton>("CancelBtn")->isVisible());
    EXPECT_TRUE(find<QLabel>("lblSignUp")->text().contains(u">Don't have login and password. Sign up here<"));
    auto* bar = find<QProgressBar>("ProgressBar");
    EXPECT_FALSE(bar->isVisible());
    EXPECT_EQ(bar->minimum(), 0);
    EXPECT_EQ(bar->maximum(), 100);
}

TEST_F(frmUploadTest, TheTabKeyGoesThroughTheControlsInOrder)
{
    open();
    find("txtURL")->setFocus();
    QStringList order;
    for (int i = 0; i < 6; ++i) {
        order << dialog->focusWidget()->objectName();
        press(Qt::Key_Tab);
    }
    EXPECT_EQ(order,
              QStringList({u"txtURL"_s, u"txtLogin"_s, u"txtPassword"_s, u"OkBtn"_s, u"CancelBtn"_s, u"lblSignUp"_s}));
}

TEST_F(frmUploadTest, WithoutALogTheFieldsHaveTheirDefaults)
{
    open();
    EXPECT_EQ(textOf("txtURL"), VendorAddresses::defaultShop());
    EXPECT_EQ(textOf("txtLogin"), u""_s);
    EXPECT_EQ(textOf("txtPassword"), u""_s);
}

TEST_F(frmUploadTest, TheLogFillsLoginAndAddress)
{
    writeFile(files.path(u"upload.log"_s), "anna\r\nhttp://cups.test/\r\nConnection refused|1\r\n");
    open();
    EXPECT_EQ(textOf("txtLogin"), u"anna"_s);
    EXPECT_EQ(textOf("txtURL"), u"http://cups.test/"_s);
    EXPECT_EQ(dialog->focusWidget(), find("txtPassword"));
}

TEST_F(frmUploadTest, ALogOfMoreThanFourItemsLeavesTheFieldsAsTheyStand)
{
    writeFile(files.path(u"upload.log"_s), "1\r\n2\r\n3\r\n4\r\n5\r\n");
    open();
    EXPECT_EQ(textOf("txtURL"), VendorAddresses::defaultShop());
    EXPECT_EQ(textOf("txtLogin"), u""_s);
}

TEST_F(frmUploadTest, ClosingWritesTwoLinesWithoutThePasswordAndOpeningEmptiesIt)
{
    open();
    typeAll(u"cups.test"_s, u"anna"_s, u"very secret"_s);
    click("CancelBtn");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(log(), "anna\r\ncups.test\r\n");
    open();
    EXPECT_EQ(textOf("txtURL"), u"cups.test"_s);
    EXPECT_EQ(textOf("txtLogin"), u"anna"_s);
    EXPECT_EQ(textOf("txtPassword"), u""_s);
}

TEST_F(frmUploadTest, EscClosesFromEveryField)
{
    for (const char* field : {"txtURL", "txtLogin", "txtPassword", "OkBtn"}) {
        open();
        find(field)->setFocus();
        press(Qt::Key_Escape);
        EXPECT_FALSE(dialog->isVisible()) << field;
    }
    EXPECT_EQ(server.startedRequests, 0);
}

TEST_F(frmUploadTest, EnterStartsFromEveryControlAlsoFromCancel)
{
    useSmallShop(files);
    int uploads = 0;
    for (const char* control : {"txtURL", "txtLogin", "txtPassword", "OkBtn", "CancelBtn", "lblSignUp"}) {
        SCOPED_TRACE(control);
        open();
        typeAll(server.address());
        find(control)->setFocus();
        expectComplete();
        press(uploads % 2 == 0 ? Qt::Key_Return : Qt::Key_Enter);
        waitForEnd();
        ++uploads;
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(server.requests.size(), static_cast<std::size_t>(uploads) * 20);
    }
}

TEST_F(frmUploadTest, WhileItWaitsNothingClosesItAndNothingStartsAnother)
{
    startWaiting();
    click("OkBtn");
    press(Qt::Key_Return);
    find("CancelBtn")->setFocus();
    press(Qt::Key_Return);
    click("CancelBtn");
    press(Qt::Key_Escape);
    dialog->close();
    closeByItsFrame(dialog.get());
    QTest::qWait(200);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(dialog->isTransferring());
    EXPECT_EQ(server.startedRequests, 1);
}

TEST_F(frmUploadTest, TheWindowStaysAliveWhileItWaits)
{
    startWaiting();
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&ticks] { ++ticks; });
    timer.start(1);
    EXPECT_TRUE(waitUntil([&ticks] { return ticks >= 20; }));
    type("txtLogin", u"somebody else"_s);
}

TEST_F(frmUploadTest, BarAndHourglassShowFromTheStartOn)
{
    startWaiting();
    EXPECT_TRUE(find<QProgressBar>("ProgressBar")->isVisible());
    EXPECT_EQ(find<QProgressBar>("ProgressBar")->value(), 0);
    EXPECT_EQ(dialog->cursor().shape(), Qt::WaitCursor);
    EXPECT_EQ(find("txtURL")->cursor().shape(), Qt::WaitCursor);
    EXPECT_EQ(find("OkBtn")->cursor().shape(), Qt::WaitCursor);
}

TEST_F(frmUploadTest, AfterACompleteUploadTheBarIsHiddenAgainWhenTheDialogOpens)
{
    useSmallShop(files);
    open();
    expectComplete();
    upload(server.address());
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(find<QProgressBar>("ProgressBar")->value(), 100);
    EXPECT_EQ(log(), "anna\r\n" + server.address().toLatin1() + "\r\n");
    open();
    EXPECT_FALSE(find<QProgressBar>("ProgressBar")->isVisible());
    EXPECT_EQ(dialog->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(frmUploadTest, TheAddressIsCorrectedInItsField)
{
    useSmallShop(files);
    open();
    expectComplete();
    upload(u"127.0.0.1:%1"_s.arg(server.port()));
    EXPECT_EQ(textOf("txtURL"), server.address());
    EXPECT_EQ(server.requests.size(), 20U);
}

TEST_F(frmUploadTest, AShopFileWithoutItsDesignLeavesTheHourglassOnUntilTheDialogCloses)
{
    writeFile(files.path(u"shop.xml"_s), "<Tarnwick><Shop/></Tarnwick>");
    open();
    prompts.expectMessage(u"Ambrel eCommerce Software"_s,
                          u"Error in the configuration XML file. No 'ShopDesign' node."_s);
    upload(server.address());
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->cursor().shape(), Qt::WaitCursor);
    press(Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(find("txtURL")->cursor().shape(), Qt::IBeamCursor);
}

TEST_F(frmUploadTest, AFailureOfTheWalkGoesToWhatEndsTheProgram)
{
    useSmallShop(files);
    ASSERT_TRUE(QDir(files.path(u"pictures"_s)).removeRecursively());
    open();
    typeAll(server.address());
    click("OkBtn");
    EXPECT_TRUE(waitUntil([this] { return !errors.numbers.empty(); }));
    EXPECT_EQ(errors.numbers, std::vector<int>{75});
    errors.numbers.clear();
}

TEST_F(frmUploadTest, AFailureStaysInTheLogOverTheClosingAndGoesWithTheNextOpening)
{
    useSmallShop(files);
    ASSERT_TRUE(QFile::remove(files.path(u"templates/cart.html"_s)));
    open();
    prompts.expectMessage(u"Uploading data"_s,
                          u"Unknown error.\r\nPlease, submit to vendor 'upload.log' file that located in app folder"_s,
                          PromptIcon::Critical);
    upload(server.address());
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->cursor().shape(), Qt::ArrowCursor);
    click("CancelBtn");
    EXPECT_EQ(log().split('\n').size(), 4);
    EXPECT_TRUE(log().endsWith("cart.html|53\r\n"));
    open();
    EXPECT_EQ(textOf("txtLogin"), u"anna"_s);
    click("CancelBtn");
    EXPECT_EQ(log(), "anna\r\n" + server.address().toLatin1() + "\r\n");
}

TEST_F(frmUploadTest, TheLinkOpensTheSignUpPageByClickAndByKey)
{
    open();
    auto* link = find<QLabel>("lblSignUp");
    QTest::mouseClick(link, Qt::LeftButton, Qt::NoModifier, QPoint(20, link->height() / 2));
    EXPECT_EQ(openedUrls, QList<QUrl>{QUrl(VendorAddresses::signUp())});
    find("CancelBtn")->setFocus();
    press(Qt::Key_Tab);
    EXPECT_EQ(dialog->focusWidget(), link);
    press(Qt::Key_Space);
    EXPECT_EQ(openedUrls.size(), 2);
    EXPECT_EQ(server.startedRequests, 0);
}

TEST_F(frmUploadTest, TheLinkTakesAPressAtItsUpperEdge)
{
    open();
    QTest::mouseClick(find<QLabel>("lblSignUp"), Qt::LeftButton, Qt::NoModifier, QPoint(20, 1));
    EXPECT_EQ(openedUrls.size(), 1);
}

TEST_F(frmUploadTest, QuittingTheProgramDuringAWaitWorks)
{
    server.handler = [](QTcpSocket&, const RawServer::Request&) {};
    makeDialog();
    bool returned = false;
    QTimer::singleShot(0, dialog.get(), [this, &returned] {
        dialog->exec();
        returned = true;
    });
    QTimer::singleShot(50, dialog.get(), [this] {
        typeAll(server.address());
        click("OkBtn");
    });
    QTimer::singleShot(400, qApp, &QCoreApplication::quit);
    QApplication::exec();
    EXPECT_TRUE(returned);
    EXPECT_EQ(server.requests.size(), 1U);
    EXPECT_FALSE(dialog->isTransferring());
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(log(), "anna\r\n" + server.address().toLatin1() + "\r\n");
}

// A main window that may refuse to close, as the program's own does by its question.
class MainWindow : public QWidget
{
public:
    bool closes = true;
    int asked = 0;

protected:
    void closeEvent(QCloseEvent* event) override
    {
        ++asked;
        event->setAccepted(closes);
    }
};

TEST_F(frmUploadTest, ClosingItsFrameDuringAWaitAsksTheMainWindowToClose)
{
    MainWindow window;
    window.show();
    makeDialog(&window);
    startWaiting();
    window.closes = false;
    closeByItsFrame(dialog.get());
    EXPECT_TRUE(waitUntil([&window] { return window.asked == 1; }));
    EXPECT_TRUE(dialog->isTransferring());
    EXPECT_TRUE(dialog->isVisible());

    window.closes = true;
    closeByItsFrame(dialog.get());
    EXPECT_TRUE(waitUntil([&window] { return window.asked == 2; }));
    EXPECT_FALSE(dialog->isTransferring());
    EXPECT_FALSE(dialog->isVisible());
    dialog.reset();
}

TEST_F(frmUploadTest, ClosingItsFrameWithoutATransferClosesItAlone)
{
    MainWindow window;
    window.show();
    makeDialog(&window);
    open();
    closeByItsFrame(dialog.get());
    QTest::qWait(50);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(window.asked, 0);
    EXPECT_TRUE(QFile::exists(files.path(u"upload.log"_s)));
    dialog.reset();
}

TEST_F(frmUploadTest, ADialogMayGoInTheMidstOfATransfer)
{
    startWaiting();
    dialog.reset();
    QTest::qWait(100);
    EXPECT_EQ(server.startedRequests, 1);
}

} // namespace
