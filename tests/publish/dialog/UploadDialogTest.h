// The fixture of the tests that drive the upload dialog with real keys and clicks.
#pragma once

#include "publish/PublishSupport.h"
#include "publish/dialog/frmUpload.h"
#include "support/RecordingErrors.h"

#include <QList>
#include <QUrl>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class UploadDialogTest : public testing::Test
{
public:
    ~UploadDialogTest() override;

protected:
    void makeDialog(QWidget* parent = nullptr);
    // Shows the dialog, which is made when there is none.
    void open();

    template <class T = QWidget>
    T* find(const char* name) const
    {
        T* widget = dialog->findChild<T*>(QLatin1StringView(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    QString textOf(const char* field) const;
    void type(const char* field, const QString& text);
    void typeAll(const QString& address, const QString& login = QStringLiteral("anna"),
                 const QString& password = QStringLiteral("s3cret"));
    void click(const char* button);
    void press(Qt::Key key);
    void expectComplete();
    // Waits until no transfer is under way.
    void waitForEnd();
    // Types everything, starts with a click and waits.
    void upload(const QString& address);
    QByteArray log() const;

    TemporaryShopFolder files;
    RecordingPrompts prompts;
    RecordingErrors errors;
    QList<QUrl> openedUrls;
    std::unique_ptr<frmUpload> dialog;
};

// Lets events run until the condition holds. False when it does not within a minute.
bool waitUntil(const std::function<bool()>& condition);
