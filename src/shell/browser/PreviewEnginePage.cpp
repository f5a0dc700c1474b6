#include "shell/browser/PreviewEnginePage.h"

#include "shell/browser/DocumentScheme.h"

#include <QMetaObject>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineSettings>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// What a page of the shop has no need of, and must not use against the owner's disk or attention.
constexpr std::array SettingsOff = {
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

// Schemes that show the owner's disk or the engine itself, or run in the page.
bool isForbiddenScheme(const QString& scheme)
{
    constexpr std::array Forbidden = {"file"_L1, "qrc"_L1, "chrome"_L1, "view-source"_L1, "javascript"_L1};
    for (const QLatin1StringView forbidden : Forbidden) {
        if (scheme == forbidden) {
            return true;
        }
    }
    return false;
}

} // namespace

PreviewEnginePage::PreviewEnginePage(QWebEngineProfile* profile, BeforeNavigate beforeNavigate)
    : QWebEnginePage(profile), m_beforeNavigate(std::move(beforeNavigate))
{
    for (const QWebEngineSettings::WebAttribute attribute : SettingsOff) {
        settings()->setAttribute(attribute, false);
    }
    // A link with a target of its own and the middle button stay in this window.
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [this](const QWebEngineNewWindowRequest& request) { loadInThisWindow(request.requestedUrl()); });
}

bool PreviewEnginePage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame)
{
    if (DocumentScheme::isDocument(url)) {
        return isMainFrame && type != NavigationTypeFormSubmitted;
    }
    if (m_beforeNavigate(url.toString(QUrl::EncodeSpaces))) {
        return false;
    }
    return !DocumentScheme::isOwn(url) && !isForbiddenScheme(url.scheme());
}

// The page must not be touched while the engine waits for an answer, so the load is put off.
void PreviewEnginePage::loadInThisWindow(const QUrl& url)
{
    if (url.isEmpty() || isForbiddenScheme(url.scheme())) {
        return;
    }
    QMetaObject::invokeMethod(
        this, [this, url] { load(url); }, Qt::QueuedConnection);
}
