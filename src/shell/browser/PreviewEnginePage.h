// The engine's page, as the preview's browser uses it: hands every address that the page is about to go to, in whatever
// window, to the rules of the preview, and keeps pages away from what is not theirs: the owner's disk, his other
// programs, and more than a little of his attention. The browser owns the one.
#pragma once

#include "pages/preview/PreviewNavigation.h"
#include "shell/browser/PageWatch.h"

#include <QString>
#include <QUrl>
#include <QWebEnginePage>

#include <functional>

// The rules of the preview.
struct NavigationRules
{
    // What is to become of an address. Called from within the engine: it must not touch the page.
    std::function<NavigationDecision(const QString& url)> judge;
    // Does what the address asks for. Called when the engine is idle.
    std::function<void(const QString& url)> act;
};

class PreviewEnginePage : public QWebEnginePage
{
    Q_OBJECT

public:
    PreviewEnginePage(QWebEngineProfile* profile, NavigationRules rules);

    // The next document is one that the program has asked for: it may show its boxes.
    void expectNewDocument() { m_mayForgetBoxes = true; }

Q_SIGNALS:
    // The main frame has a new document, of which nothing has run yet.
    void documentBegun();

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message, int lineNumber,
                                  const QString& sourceId) override;
    void javaScriptAlert(const QUrl& securityOrigin, const QString& message) override;
    bool javaScriptConfirm(const QUrl& securityOrigin, const QString& message) override;
    bool javaScriptPrompt(const QUrl& securityOrigin, const QString& message, const QString& defaultValue,
                          QString* result) override;

private:
    bool acceptInMainFrame(const QUrl& url, NavigationType type);
    bool mayAct() const;
    void loadInThisWindow(const QUrl& url, bool isByHand);
    bool takeBox();

    NavigationRules m_rules;
    PageWatch m_watch;
    QUrl m_begunWith;          // the address that the navigation under way began with, ahead of all redirections
    bool m_isUnderWay = false; // to an address elsewhere, which has not been reached
    bool m_mayForgetBoxes = false;
    int m_boxes = 0; // of the shown document
};
