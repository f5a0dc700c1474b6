#include "publish/UploadRun.h"

#include "base/ApplicationTitle.h"
#include "base/FileBytes.h"
#include "base/ProgramVersion.h"
#include "base/RuntimeError.h"
#include "base/UserPrompts.h"
#include "publish/FileListReader.h"
#include "publish/UploadLog.h"
#include "publish/UploadProtocol.h"

#include <algorithm>
#include <new>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString submitLogText(const QString& what)
{
    return what + "\r\nPlease, submit to vendor 'upload.log' file that located in app folder"_L1;
}

QString noListText()
{
    return submitLogText(u"Server error.\r\nServer didn't send image list."_s);
}

// The most that the answer with the list may have.
constexpr qsizetype longestListAnswer = qsizetype{4} * 1024 * 1024;

QString carriesBoundaryText(const QString& what)
{
    return u"%1 cannot be sent: a line that begins with \"%2\" ends what the server reads."_s.arg(what, boundaryText());
}

// How a box names an item.
QString nameOf(const UploadItem& item)
{
    switch (item.kind) {
    case UploadItem::Kind::Shop:
        return u"The file shop.xml"_s;
    case UploadItem::Kind::Picture:
        return u"The picture "_s + item.name;
    case UploadItem::Kind::Template:
        break;
    }
    return u"The template "_s + item.name + ".html"_L1;
}

QString unknownErrorText()
{
    return submitLogText(u"Unknown error."_s);
}

TransferFailure failureOf(const RuntimeError& error)
{
    return {error.description(), static_cast<int>(error.number())};
}

// What goes wrong while files are sent is trapped; nothing when the work succeeds.
template <class Work>
std::optional<TransferFailure> trapped(Work work)
{
    try {
        work();
        return std::nullopt;
    } catch (const RuntimeError& error) {
        return failureOf(error);
    } catch (const std::bad_alloc&) {
        return failureOf(RuntimeError(ErrorNumber::OutOfMemory));
    }
}

} // namespace

UploadRun::UploadRun(const ApplicationFolder& folder, HttpClient& client, UserPrompts& prompts, UploadScreen& screen)
    : m_folder(folder), m_client(client), m_prompts(prompts), m_screen(screen)
{
}

UploadRun::~UploadRun()
{
    m_client.cancel();
}

void UploadRun::open()
{
    m_transferring = false;
    m_failure.reset();
}

void UploadRun::start()
{
    if (m_transferring) {
        return;
    }
    const UploadFields fields = m_screen.fields(); // a change during the transfer is for the next one
    if (refusesFields(fields)) {
        return;
    }
    m_screen.setHourglass(true);
    m_progress = 0;
    m_screen.showProgress(m_progress);
    m_transferring = true;

    m_baseUrl = normalizedBaseUrl(fields.address);
    m_screen.setAddress(m_baseUrl);
    m_head = requestHead(fields.login, fields.password, programVersion());
    post(ListURL, m_head, &UploadRun::listAnswered);
}

void UploadRun::abandon()
{
    m_client.cancel();
    m_transferring = false;
}

void UploadRun::writeLog() const
{
    const UploadFields fields = m_screen.fields();
    writeUploadLog(m_folder, fields.login, fields.address, m_failure);
}

void UploadRun::post(QLatin1StringView page, const QByteArray& body, void (UploadRun::*answered)(const HttpAnswer&))
{
    m_client.post(m_baseUrl + page, requestContentType(), body,
                  [this, answered](const HttpAnswer& answer) { (this->*answered)(answer); });
}

void UploadRun::listAnswered(const HttpAnswer& answer)
{
    if (answer.failure) {
        fail(*answer.failure, noListText());
        m_screen.closeScreen();
        return;
    }
    if (answer.body.size() > longestListAnswer) {
        fail({u"The answer is too long"_s, static_cast<int>(ErrorNumber::Overflow)}, noListText());
        m_screen.closeScreen();
        return;
    }
    const QString result = readAnswer(answer, m_prompts);
    if (!m_transferring) {
        return; // the program ended while a box was shown
    }
    if (result == errorResult) {
        stop();
        return;
    }
    if (!readFileList(result, programVersion(), m_serverFiles, m_prompts)) {
        stop();
        m_screen.closeScreen();
        return;
    }
    startSending();
}

// A line that begins with the boundary would end the field, and what follows it could pass for another file.
bool UploadRun::refusesFields(const UploadFields& fields)
{
    for (const auto& [name, value] :
         {std::pair(u"The login"_s, fields.login), std::pair(u"The password"_s, fields.password)}) {
        if (holdsBoundary(requestText(value))) {
            showCarriesBoundary(name);
            return true;
        }
    }
    return false;
}

// The same for the files and their names. All are searched before the first one goes up, so that nothing of the shop is
// sent.
bool UploadRun::refusesFiles()
{
    for (const UploadItem& item : m_items) {
        bool holds = false;
        // A file that cannot be read is told of in its own turn.
        static_cast<void>(trapped([&] {
            const UploadPart part = partOf(item, m_folder);
            holds = holdsBoundary(requestText(part.fileName)) || holdsBoundary(readFileBytes(part.localFile));
        }));
        if (holds) {
            stop();
            showCarriesBoundary(nameOf(item));
            return true;
        }
    }
    return false;
}

void UploadRun::startSending()
{
    UploadPlan plan(m_folder, m_serverFiles);
    switch (plan.walkShopFile()) { // deliberately not trapped: its errors end the program
    case UploadPlan::Found::NoShop:
        stopWithoutNode("Shop");
        return;
    case UploadPlan::Found::NoShopDesign:
        stopWithoutNode("ShopDesign");
        return;
    case UploadPlan::Found::All:
        break;
    }
    m_items = plan.items();
    if (refusesFiles()) {
        return;
    }
    m_next = 0;
    m_progressStep = plan.ProgressStep();
    advance(2);
    sendNext();
}

void UploadRun::sendNext()
{
    if (m_next == m_items.size()) {
        complete();
        return;
    }
    if (const auto failure = trapped([this] { sendItem(m_items[m_next]); })) {
        fail(*failure, unknownErrorText());
    }
}

void UploadRun::sendItem(const UploadItem& item)
{
    const UploadPart part = partOf(item, m_folder);
    const QByteArray file = readFileBytes(part.localFile);
    if (holdsBoundary(file)) { // it has changed since all were searched
        stop();
        showCarriesBoundary(nameOf(item));
        return;
    }
    post(UploadURL, uploadBody(m_head, part.fileName, part.contentType, file), &UploadRun::itemAnswered);
}

void UploadRun::itemAnswered(const HttpAnswer& answer)
{
    if (answer.failure) {
        fail(*answer.failure, unknownErrorText());
        return;
    }
    const QString result = readAnswer(answer, m_prompts);
    if (!m_transferring) {
        return; // the program ended while a box was shown
    }
    if (result == errorResult) {
        stop(); // what has been sent stays on the server
        return;
    }
    advance(m_items[m_next].steps);
    ++m_next;
    sendNext();
}

void UploadRun::advance(int steps)
{
    m_progress = std::min(100, m_progress + steps * m_progressStep);
    m_screen.showProgress(m_progress);
}

void UploadRun::complete()
{
    stop();
    m_prompts.showMessage(u"Uploading data"_s, u"Complete"_s, PromptIcon::None);
    m_screen.closeScreen();
}

void UploadRun::showCarriesBoundary(const QString& what)
{
    m_prompts.showMessage(u"Uploading data"_s, carriesBoundaryText(what), PromptIcon::Warning);
}

void UploadRun::stop()
{
    m_screen.setHourglass(false);
    m_transferring = false;
    m_head.clear(); // holds the password
}

// The hourglass deliberately stays until the screen closes.
void UploadRun::stopWithoutNode(const char* tag)
{
    m_prompts.showMessage(applicationTitle(),
                          u"Error in the configuration XML file. No '%1' node."_s.arg(QLatin1StringView(tag)),
                          PromptIcon::None);
    m_transferring = false;
    m_head.clear();
}

void UploadRun::fail(const TransferFailure& failure, const QString& text)
{
    stop();
    m_failure = failure;
    writeLog();
    m_prompts.showMessage(u"Uploading data"_s, text, PromptIcon::Critical);
}
