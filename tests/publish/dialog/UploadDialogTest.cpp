#include "publish/dialog/UploadDialogTest.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

UploadDialogTest::~UploadDialogTest()
{
    EXPECT_EQ(errors.numbers, std::vector<int>());
}

void UploadDialogTest::makeDialog(QWidget* parent)
{
    dialog = std::make_unique<frmUpload>(
        files.folder(), prompts, errors, [this](const QUrl& url) { openedUrls << url; }, parent);
}

void UploadDialogTest::open()
{
    if (!dialog) {
        makeDialog();
    }
    dialog->setModal(true);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
}

QString UploadDialogTest::textOf(const char* field) const
{
    return find<QLineEdit>(field)->text();
}

void UploadDialogTest::type(const char* field, const QString& text)
{
    auto* edit = find<QLineEdit>(field);
    QTest::mouseClick(edit, Qt::LeftButton);
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
    EXPECT_EQ(edit->text(), text);
}

void UploadDialogTest::typeAll(const QString& address, const QString& login, const QString& password)
{
    type("txtURL", address);
    type("txtLogin", login);
    type("txtPassword", password);
}

void UploadDialogTest::click(const char* button)
{
    QTest::mouseClick(find(button), Qt::LeftButton);
}

void UploadDialogTest::press(Qt::Key key)
{
    QWidget* target = dialog->focusWidget();
    QTest::keyClick(target ? target : dialog.get(), key);
}

void UploadDialogTest::expectComplete()
{
    prompts.expectMessage(u"Uploading data"_s, u"Complete"_s);
}

void UploadDialogTest::waitForEnd()
{
    ASSERT_TRUE(waitUntil([this] { return !dialog->isTransferring(); }));
}

void UploadDialogTest::upload(const QString& address)
{
    typeAll(address);
    click("OkBtn");
    waitForEnd();
}

QByteArray UploadDialogTest::log() const
{
    return fileBytes(files.path(u"upload.log"_s));
}

bool waitUntil(const std::function<bool()>& condition)
{
    QElapsedTimer clock;
    clock.start();
    QTimer wake; // not QTest::qWaitFor, which sleeps after each turn: an answer from this thread takes many turns
    wake.start(5);
    while (!condition() && clock.elapsed() < 60000) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return condition();
}
