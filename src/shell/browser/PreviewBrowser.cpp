#include "shell/browser/PreviewBrowser.h"

#include "base/OperatingSystem.h"
#include "pages/preview/PreviewNavigation.h"
#include "pages/preview/PreviewUrl.h"
#include "shell/browser/DocumentScheme.h"
#include "shell/browser/PreviewEnginePage.h"

#include <QLoggingCategory>
#include <QQuickWindow>
#include <QWebEngineHistory>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInfo>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 patienceInMilliseconds = 5000;

// The pseudo-server does not exist, and what a page embeds from it is not announced as a navigation.
class NoPseudoServer : public QWebEngineUrlRequestInterceptor
{
public:
    void interceptRequest(QWebEngineUrlRequestInfo& request) override
    {
        if (request.requestUrl().host() == m_host) {
            request.block(true);
        }
    }

private:
    const QString m_host = serverHost();
};

} // namespace

void PreviewBrowser::prepareProcess()
{
    DocumentScheme::registerScheme();
    // Without it, the window would be destroyed and made anew on the screen when the engine comes, and from then on be
    // composed as a whole for whatever changes in it, which costs some twenty times as much without a graphics card.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    // The engine lists its parameters on the terminal when it comes. QT_LOGGING_RULES brings the list back.
    QLoggingCategory::setFilterRules(u"qt.webenginecontext.info=false"_s);
    // The engine refuses to start as root with its sandbox, and only then may it go without.
    if (runsAsRoot()) {
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    }
}

PreviewBrowser::PreviewBrowser(const ApplicationFolder& folder, FatalErrorHandler& errors, QWidget* parent)
    : QWidget(parent), m_errors(errors), m_scheme(std::make_unique<DocumentScheme>(folder.picturesFolder()))
{
    setObjectName(u"PreviewBrowser"_s);
}

PreviewBrowser::~PreviewBrowser()
{
    delete m_view;
}

// It takes a quarter of a second, which a start must not wait for.
void PreviewBrowser::makeEngine()
{
    if (m_view != nullptr) {
        return;
    }
    m_interceptor = std::make_unique<NoPseudoServer>();
    m_profile = std::make_unique<QWebEngineProfile>();
    m_profile->installUrlSchemeHandler(DocumentScheme::name(), m_scheme.get());
    m_profile->setUrlRequestInterceptor(m_interceptor.get());
    m_page = std::make_unique<PreviewEnginePage>(
        m_profile.get(),
        NavigationRules{[this](const QString& url) { return judge(url); }, [this](const QString& url) { act(url); }});
    connectGuarded(m_errors, m_page.get(), &PreviewEnginePage::documentBegun, this, [this] { m_asked.invalidate(); });
    connectGuarded(m_errors, m_page.get(), &QWebEnginePage::loadFinished, this, &PreviewBrowser::forgetWayBack);
    connectGuarded(m_errors, m_page.get(), &QWebEnginePage::renderProcessTerminated, this,
                   &PreviewBrowser::processEnded);

    m_view = new QWebEngineView(this);
    m_view->setPage(m_page.get());
    m_view->setContextMenuPolicy(Qt::NoContextMenu);
    m_view->setAccessibleName(u"The shop's preview"_s);
    arrangeView();
    m_view->show();
    if (m_isBlankAsked) {
        goBlank();
    }
}

void PreviewBrowser::setPageWidth(int width)
{
    m_pageWidth = width;
    arrangeView();
}

void PreviewBrowser::arrangeView()
{
    if (m_view != nullptr) {
        const int pageWidth = m_pageWidth == 0 ? width() : std::min(m_pageWidth, width());
        m_view->setGeometry((width() - pageWidth) / 2, 0, pageWidth, height());
    }
}

void PreviewBrowser::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrangeView();
}

void PreviewBrowser::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    makeEngine();
}

bool PreviewBrowser::replaceDocument(const QString& text)
{
    m_scheme->setDocument(text);
    makeEngine();
    showDocument();
    return true;
}

void PreviewBrowser::goBlank()
{
    if (m_page == nullptr) {
        m_isBlankAsked = true;
    } else {
        m_page->load(QUrl(u"about:blank"_s));
    }
}

QWebEnginePage* PreviewBrowser::page() const
{
    return m_page.get();
}

NavigationDecision PreviewBrowser::judge(const QString& url) const
{
    return m_navigation != nullptr ? PreviewNavigation::judge(url) : NavigationDecision{};
}

void PreviewBrowser::act(const QString& url)
{
    if (m_navigation != nullptr) {
        guarded(m_errors, [&] { m_navigation->act(url); });
    }
}

// A page whose script never returns lets no other document in. Who asks for one gets it when he asks again later: then
// the page has had its time, and its process is ended.
void PreviewBrowser::showDocument()
{
    if (m_asked.isValid() && m_asked.hasExpired(patienceInMilliseconds) && endProcess()) {
        m_isEnding = true;
        return;
    }
    if (!m_asked.isValid()) {
        m_asked.start();
    }
    m_page->expectNewDocument();
    // A picture that was replaced on the disk would stay the old one.
    m_profile->clearHttpCache();
    m_page->load(DocumentScheme::documentUrl());
}

bool PreviewBrowser::endProcess() const
{
    const qint64 process = m_page->renderProcessPid();
    return process > 0 && ::endProcess(process);
}

void PreviewBrowser::processEnded()
{
    m_asked.invalidate();
    if (std::exchange(m_isEnding, false)) {
        showDocument();
    }
}

// From the document Back must not lead to the empty page that was there before it. Where a visitor went from here by a
// link to another host, Back leads to the document.
void PreviewBrowser::forgetWayBack()
{
    if (DocumentScheme::isDocument(m_page->url())) {
        m_page->history()->clear();
    }
}
