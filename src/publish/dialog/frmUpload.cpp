#include "publish/dialog/frmUpload.h"

#include "publish/UploadLog.h"
#include "publish/VendorAddresses.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int leastTarget = 24; // pixels that can be pressed
constexpr int leastButton = 96; // pixels, as in the other dialogs

} // namespace

frmUpload::frmUpload(const ApplicationFolder& folder, UserPrompts& prompts, FatalErrorHandler& errors,
                     const OpenUrl& openUrl, QWidget* parent)
    : QDialog(parent),
      m_folder(folder),
      m_errors(errors),
      m_openUrl(openUrl),
      m_client(errors),
      m_run(folder, m_client, prompts, *this)
{
    setObjectName(u"frmUpload"_s);
    setWindowTitle(u"Uploading"_s);
    makeControls();
    layOutControls();

    connectGuarded(m_errors, OkBtn, &QPushButton::clicked, this, [this] { m_run.start(); });
    connectGuarded(m_errors, CancelBtn, &QPushButton::clicked, this, &frmUpload::reject);
    lblSignUp->installEventFilter(this);
}

frmUpload::~frmUpload() = default;

void frmUpload::makeControls()
{
    struct Field
    {
        QLineEdit*& control;
        const char* name;
        QString accessibleName;
    };
    const std::array fields{
        Field{txtURL, "txtURL", u"Address of the shop"_s},
        Field{txtLogin, "txtLogin", u"Login"_s},
        Field{txtPassword, "txtPassword", u"Password"_s},
    };
    for (const Field& field : fields) {
        field.control = new QLineEdit(this);
        field.control->setObjectName(QLatin1StringView(field.name));
        field.control->setAccessibleName(field.accessibleName);
    }
    txtURL->setText(VendorAddresses::defaultShop());
    txtURL->setInputMethodHints(Qt::ImhUrlCharactersOnly);
    txtPassword->setEchoMode(QLineEdit::Password);

    OkBtn = new QPushButton(u"OK"_s, this);
    OkBtn->setObjectName(u"OkBtn"_s);
    OkBtn->setAccessibleName(u"Start uploading"_s);
    OkBtn->setDefault(true); // Enter
    CancelBtn = new QPushButton(u"Cancel"_s, this);
    CancelBtn->setObjectName(u"CancelBtn"_s);
    CancelBtn->setAccessibleName(u"Close without uploading"_s);
    CancelBtn->setAutoDefault(false); // Enter stays with OkBtn

    ProgressBar = new QProgressBar(this);
    ProgressBar->setObjectName(u"ProgressBar"_s);
    ProgressBar->setAccessibleName(u"Progress of the upload"_s);
    ProgressBar->setRange(0, 100);
    ProgressBar->setTextVisible(false);

    lblSignUp = new QLabel(this);
    lblSignUp->setObjectName(u"lblSignUp"_s);
    lblSignUp->setTextFormat(Qt::RichText);
    lblSignUp->setText(uR"(<a href="%1">%2</a>)"_s.arg(
        VendorAddresses::signUp(), u"Don't have login and password. Sign up here"_s.toHtmlEscaped()));
    lblSignUp->setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    lblSignUp->setFocusPolicy(Qt::TabFocus);
    lblSignUp->setMinimumHeight(leastTarget);
    lblSignUp->setAccessibleName(u"Don't have login and password. Sign up here"_s);
}

void frmUpload::layOutControls()
{
    auto* fields = new QFormLayout;
    fields->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    fields->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    fields->setHorizontalSpacing(16);
    fields->setVerticalSpacing(8);
    fields->addRow(u"ADDRESS"_s, txtURL); // makes the field the label's buddy
    fields->addRow(u"LOGIN"_s, txtLogin);
    fields->addRow(u"PASSWORD"_s, txtPassword);
    for (QLineEdit* field : {txtURL, txtLogin, txtPassword}) {
        // As high as its field: a label of one line would stand above the field's words.
        fields->labelForField(field)->setMinimumHeight(field->sizeHint().height());
    }

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addStretch();
    for (QPushButton* button : {OkBtn, CancelBtn}) {
        button->setMinimumWidth(leastButton);
        buttons->addWidget(button);
    }

    // The hidden bar keeps its room, so that nothing moves when it appears.
    QSizePolicy policy = ProgressBar->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    ProgressBar->setSizePolicy(policy);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(20, 20, 20, 20);
    all->setSpacing(12);
    all->addLayout(fields);
    all->addWidget(lblSignUp, 0, Qt::AlignLeft);
    all->addWidget(ProgressBar);
    all->addLayout(buttons);
    txtURL->setMinimumWidth(320); // room for an address

    const std::array<QWidget*, 6> order{txtURL, txtLogin, txtPassword, OkBtn, CancelBtn, lblSignUp};
    for (std::size_t i = 1; i < order.size(); ++i) {
        setTabOrder(order[i - 1], order[i]);
    }
}

void frmUpload::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) { // not when a minimised window comes back
        m_run.open();
        ProgressBar->hide();
        ProgressBar->setValue(0);
        txtPassword->clear();
        fillFromLog();
        qApp->installEventFilter(this); // for the end of the program
    }
    QDialog::showEvent(event);
}

void frmUpload::fillFromLog()
{
    const RememberedUpload remembered = readUploadLog(m_folder);
    txtLogin->setText(remembered.login.value_or(txtLogin->text()));
    txtURL->setText(remembered.address.value_or(txtURL->text()));
    (txtLogin->text().isEmpty() ? txtLogin : txtPassword)->setFocus();
}

void frmUpload::reject()
{
    if (!isTransferring()) {
        QDialog::reject();
    }
}

void frmUpload::done(int result)
{
    qApp->removeEventFilter(this);
    setHourglass(false);
    guarded(m_errors, [this] { m_run.writeLog(); });
    QDialog::done(result);
}

void frmUpload::closeEvent(QCloseEvent* event)
{
    // The main window cannot be closed while this dialog is open. When a server never answers, closing the dialog is
    // the user's only way out. It closes the program, which asks its usual question.
    if (isTransferring() && event->spontaneous() && parentWidget()) {
        event->ignore();
        QMetaObject::invokeMethod(parentWidget()->window(), "close", Qt::QueuedConnection); // not inside of this event
        return;
    }
    QDialog::closeEvent(event);
}

bool frmUpload::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == lblSignUp && signUpPressed(event)) {
        return true;
    }
    // The program ends while the dialog waits: it is told to quit, or the main window has gone.
    const bool quits = watched == qApp && event->type() == QEvent::Quit;
    const bool windowGoes =
        parentWidget() && watched == parentWidget()->window() && event->type() == QEvent::Hide && !event->spontaneous();
    if ((quits || windowGoes) && isTransferring()) {
        abandonTransfer();
    }
    return QDialog::eventFilter(watched, event);
}

// The link takes a press anywhere on its label. It shows that it has the focus, and Space opens it; Enter belongs to
// OkBtn.
bool frmUpload::signUpPressed(QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        lblSignUp->setSelection(0, static_cast<int>(lblSignUp->accessibleName().size()));
        return false;
    case QEvent::FocusOut:
        lblSignUp->setSelection(0, 0);
        return false;
    case QEvent::MouseButtonRelease: {
        const auto& release = *static_cast<QMouseEvent*>(event);
        if (release.button() == Qt::LeftButton && lblSignUp->rect().contains(release.position().toPoint())) {
            guarded(m_errors, [this] { openSignUpPage(); });
        }
        return true;
    }
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
            guarded(m_errors, [this] { openSignUpPage(); });
            return true;
        }
        return false;
    default:
        return false;
    }
}

void frmUpload::openSignUpPage()
{
    m_openUrl(QUrl(VendorAddresses::signUp()));
}

void frmUpload::abandonTransfer()
{
    m_run.abandon();
    done(Rejected);
}

UploadFields frmUpload::fields() const
{
    return {txtURL->text(), txtLogin->text(), txtPassword->text()};
}

void frmUpload::setAddress(const QString& address)
{
    txtURL->setText(address);
}

void frmUpload::setHourglass(bool on)
{
    // Fields and the link set their own mouse pointers.
    for (QWidget* field : {txtURL, txtLogin, txtPassword}) {
        field->setCursor(on ? Qt::WaitCursor : Qt::IBeamCursor);
    }
    lblSignUp->setCursor(on ? Qt::WaitCursor : Qt::ArrowCursor);
    if (on) {
        setCursor(Qt::WaitCursor);
    } else {
        unsetCursor();
    }
}

void frmUpload::showProgress(int value)
{
    ProgressBar->setValue(value);
    ProgressBar->show();
}

void frmUpload::closeScreen()
{
    if (isVisible()) {
        done(Accepted);
    }
}
