// The engine's page, as the preview's browser uses it: hands every address that the page is about to go to, in whatever
// window, to one function that decides, and keeps pages away from what is not theirs. The browser owns the one.
#pragma once

#include <QString>
#include <QUrl>
#include <QWebEnginePage>

#include <functional>

class PreviewEnginePage : public QWebEnginePage
{
    Q_OBJECT

public:
    // Told the text of an address; true when the page must not go there. Called from within the engine: it must not
    // touch the page.
    using BeforeNavigate = std::function<bool(const QString& url)>;

    PreviewEnginePage(QWebEngineProfile* profile, BeforeNavigate beforeNavigate);

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;

private:
    void loadInThisWindow(const QUrl& url);

    BeforeNavigate m_beforeNavigate;
};
