#include "shell/browser/PreviewEnginePage.h"

#include "shell/browser/DocumentScheme.h"

#include <QDesktopServices>
#include <QMetaObject>
#include <QWebEngineHistory>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostBoxes = 3;

// What a page of the shop has no need of, and must not use against the owner's disk or attention.
constexpr std::array settingsOff = {
    QWebEngineSettings::LocalContentCanAccessFileUrls,
    QWebEngineSettings::LocalContentCanAccessRemoteUrls,
    QWebEngineSettings::PluginsEnabled,
    QWebEngineSettings::PdfViewerEnabled,
    QWebEngineSettings::LocalStorageEnabled,
    QWebEngineSettings::JavascriptCanAccessClipboard,
    QWebEngineSettings::JavascriptCanPaste,
    QWebEngineSettings::HyperlinkAuditingEnabled,
    QWebEngineSettings::DnsPrefetchEnabled,
    QWebEngineSettings::FullScreenSupportEnabled,
    QWebEngineSettings::ScreenCaptureEnabled,
    QWebEngineSettings::NavigateOnDropEnabled,
};

// All others show the owner's disk or the engine itself, or are for other programs.
constexpr std::array shownSchemes = {"http"_L1, "https"_L1, "about"_L1, "data"_L1, "blob"_L1};
// What the desktop may be handed.
constexpr std::array desktopSchemes = {"mailto"_L1, "tel"_L1};

template <std::size_t Count>
bool isOneOf(const std::array<QLatin1StringView, Count>& schemes, const QUrl& url)
{
    return std::find(schemes.begin(), schemes.end(), url.scheme()) != schemes.end();
}

QString textOf(const QUrl& url)
{
    return url.toString(QUrl::EncodeSpaces);
}

} // namespace

PreviewEnginePage::PreviewEnginePage(QWebEngineProfile* profile, NavigationRules rules)
    : QWebEnginePage(profile), m_rules(std::move(rules))
{
    for (const QWebEngineSettings::WebAttribute attribute : settingsOff) {
        settings()->setAttribute(attribute, false);
    }
    // A face that this computer does not have falls to a sans one, as the shop's own styles would have it.
    settings()->setFontFamily(QWebEngineSettings::StandardFont,
                              settings()->fontFamily(QWebEngineSettings::SansSerifFont));
    scripts().insert(m_watch.script());
    // A link with a target of its own and the middle button stay in this window.
    connect(this, &QWebEnginePage::newWindowRequested, this, [this](const QWebEngineNewWindowRequest& request) {
        loadInThisWindow(request.requestedUrl(), request.isUserInitiated());
    });
    const auto arrive = [this] { m_isUnderWay = false; };
    connect(this, &QWebEnginePage::urlChanged, this, arrive);
    connect(this, &QWebEnginePage::loadFinished, this, arrive);
}

// What a frame does is no navigation of the preview's: nothing is done for it, and it gets neither the document nor
// another program.
bool PreviewEnginePage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame)
{
    if (isMainFrame) {
        return acceptInMainFrame(url, type);
    }
    return isOneOf(shownSchemes, url) && !m_rules.judge(textOf(url)).cancel;
}

bool PreviewEnginePage::acceptInMainFrame(const QUrl& url, NavigationType type)
{
    const bool isRedirection = type == NavigationTypeRedirect;
    if (!isRedirection || !m_isUnderWay) {
        m_begunWith = url;
    }
    if (DocumentScheme::isDocument(url)) {
        return type != NavigationTypeFormSubmitted;
    }
    const NavigationDecision decision = m_rules.judge(textOf(url));
    if (decision.hasAction && mayAct()) {
        QMetaObject::invokeMethod(
            this, [this, url] { m_rules.act(textOf(url)); }, Qt::QueuedConnection);
    }
    if (decision.cancel) {
        return false;
    }
    // The engine asks about an address for the desktop when it has found that it cannot show it. Of a redirection from
    // a server it then tells nothing, but that is still under way.
    if (isOneOf(desktopSchemes, url)) {
        return !isRedirection && !m_isUnderWay;
    }
    if (!isOneOf(shownSchemes, url)) {
        return false;
    }
    m_isUnderWay = true;
    m_mayForgetBoxes = true;
    return true;
}

// The shop's own pages act in any way, those of other hosts by a link that the owner has clicked.
bool PreviewEnginePage::mayAct() const
{
    return DocumentScheme::isOwn(history()->currentItem().url()) ||
           (!m_begunWith.isEmpty() && m_begunWith == m_watch.clickedLink());
}

// The page must not be touched while the engine waits for an answer, so the load is put off.
void PreviewEnginePage::loadInThisWindow(const QUrl& url, bool isByHand)
{
    if (isOneOf(desktopSchemes, url)) {
        if (isByHand) {
            QDesktopServices::openUrl(url);
        }
        return;
    }
    if (isOneOf(shownSchemes, url)) {
        QMetaObject::invokeMethod(
            this, [this, url] { load(url); }, Qt::QueuedConnection);
    }
}

// Boxes -------------------------------------------------------------------------------------------------------------

void PreviewEnginePage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message,
                                                 int lineNumber, const QString& sourceId)
{
    switch (m_watch.hear(message)) {
    case PageWatch::News::None:
        QWebEnginePage::javaScriptConsoleMessage(level, message, lineNumber, sourceId);
        break;
    case PageWatch::News::NewDocument:
        // One that loads itself again does not get its boxes anew.
        if (std::exchange(m_mayForgetBoxes, false)) {
            m_boxes = 0;
        }
        Q_EMIT documentBegun();
        break;
    case PageWatch::News::Click:
        break;
    }
}

bool PreviewEnginePage::takeBox()
{
    return ++m_boxes <= mostBoxes;
}

void PreviewEnginePage::javaScriptAlert(const QUrl& securityOrigin, const QString& message)
{
    if (takeBox()) {
        QWebEnginePage::javaScriptAlert(securityOrigin, message);
    }
}

bool PreviewEnginePage::javaScriptConfirm(const QUrl& securityOrigin, const QString& message)
{
    return takeBox() && QWebEnginePage::javaScriptConfirm(securityOrigin, message);
}

bool PreviewEnginePage::javaScriptPrompt(const QUrl& securityOrigin, const QString& message,
                                         const QString& defaultValue, QString* result)
{
    return takeBox() && QWebEnginePage::javaScriptPrompt(securityOrigin, message, defaultValue, result);
}
