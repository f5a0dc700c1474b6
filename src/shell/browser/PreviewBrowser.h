// The embedded browser that the shop's preview is shown in. It shows one document, which the program hands it, and asks
// before every navigation; what the preview then does is put off until the engine has its answer. The engine, with its
// processes, is made when the browser is first shown or first gets a document; until then the widget is empty and only
// remembers what it was told. The window owns it.
#pragma once

#include "base/ApplicationFolder.h"
#include "base/Guarded.h"
#include "pages/preview/PreviewSurface.h"

#include <QElapsedTimer>
#include <QString>
#include <QWidget>

#include <memory>

class DocumentScheme;
class PreviewEnginePage;
class PreviewNavigation;
class QWebEnginePage;
class QWebEngineProfile;
class QWebEngineUrlRequestInterceptor;
class QWebEngineView;
struct NavigationDecision;

class PreviewBrowser : public QWidget, public PreviewSurface
{
    Q_OBJECT

public:
    // What the process needs ahead of its application object. To be called once.
    static void prepareProcess();

    // Errors of what a navigation leads to go to the handler, which must outlive the browser.
    PreviewBrowser(const ApplicationFolder& folder, FatalErrorHandler& errors, QWidget* parent = nullptr);
    PreviewBrowser(const PreviewBrowser&) = delete;
    PreviewBrowser& operator=(const PreviewBrowser&) = delete;
    ~PreviewBrowser() override;

    // Who is asked before each navigation; it must outlive the browser, or be taken back by a null pointer. Without one
    // every address may be gone to.
    void setNavigation(PreviewNavigation* navigation) { m_navigation = navigation; }

    // Lays the page out as wide as that, in logical pixels, in the middle of the widget, or as wide as the widget where
    // that is less; 0, the start, for all of it.
    void setPageWidth(int width);

    bool replaceDocument(const QString& text) override;
    void goBlank() override;

    // Null while there is no engine.
    QWebEngineView* view() const { return m_view; }
    QWebEnginePage* page() const;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeEngine();
    void arrangeView();
    NavigationDecision judge(const QString& url) const;
    void act(const QString& url);
    void showDocument();
    bool endProcess() const;
    void forgetWayBack();
    void processEnded();

    FatalErrorHandler& m_errors;
    PreviewNavigation* m_navigation = nullptr;
    bool m_isBlankAsked = false; // of the engine, when there is one
    // In the order in which they may not be missed: a page goes before its profile, and that before what serves it.
    std::unique_ptr<DocumentScheme> m_scheme;
    std::unique_ptr<QWebEngineUrlRequestInterceptor> m_interceptor;
    std::unique_ptr<QWebEngineProfile> m_profile;
    std::unique_ptr<PreviewEnginePage> m_page;
    int m_pageWidth = 0;
    QElapsedTimer m_asked;   // since when the engine owes a document; not running when it owes none
    bool m_isEnding = false; // the page's process, which hangs; the document is shown then
    QWebEngineView* m_view = nullptr;
};
