// The dialog that publishes the shop: asks for address, login and password, and shows the bar while the upload runs.
// The main window owns the one dialog and shows it again and again with exec().
#pragma once

#include "base/ApplicationFolder.h"
#include "base/Guarded.h"
#include "publish/UploadRun.h"
#include "publish/UploadScreen.h"
#include "publish/dialog/NetworkHttpClient.h"

#include <QDialog>
#include <QUrl>

#include <functional>

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class UserPrompts;

class frmUpload : public QDialog, private UploadScreen
{
    Q_OBJECT

public:
    // Opens an address outside of the program.
    using OpenUrl = std::function<void(const QUrl& url)>;

    // The prompts and the error handler outlive the dialog. Closing the dialog's frame during a transfer asks the
    // window `parent` to close, which is how the user ends the program then; without a parent it does nothing.
    frmUpload(const ApplicationFolder& folder, UserPrompts& prompts, FatalErrorHandler& errors, const OpenUrl& openUrl,
              QWidget* parent = nullptr);
    ~frmUpload() override;

    bool isTransferring() const { return m_run.isTransferring(); }

    // Esc and CancelBtn: closes the dialog, does nothing during a transfer.
    void reject() override;
    // Every closing ends here: writes upload.log.
    void done(int result) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    UploadFields fields() const override;
    void setAddress(const QString& address) override;
    void setHourglass(bool on) override;
    void showProgress(int value) override;
    void closeScreen() override;

    void makeControls();
    void layOutControls();
    void fillFromLog();
    void abandonTransfer();
    bool signUpPressed(QEvent* event);
    void openSignUpPage();

    ApplicationFolder m_folder;
    FatalErrorHandler& m_errors;
    OpenUrl m_openUrl;
    NetworkHttpClient m_client;
    UploadRun m_run;

    QLineEdit* txtURL = nullptr;
    QLineEdit* txtLogin = nullptr;
    QLineEdit* txtPassword = nullptr;
    QPushButton* OkBtn = nullptr;
    QPushButton* CancelBtn = nullptr;
    QProgressBar* ProgressBar = nullptr;
    QLabel* lblSignUp = nullptr;
};
