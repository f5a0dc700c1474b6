#include "shell/browser/PageWatch.h"

#include "shell/browser/DocumentScheme.h"

#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

// A click counts when it came from the visitor's hand, not from a script; the page's own handlers come later and cannot
// hide it. A page is not asked whether it may be left: the preview shows what the program hands it. The engine takes
// the shop's next page for the same one, loaded again, and would show it where that was left: each begins at its top.
constexpr auto source = R"((function() {
    const tell = text => console.debug('%1' + text);
    const watchClick = event => {
        const link = event.isTrusted && event.composedPath().find(element => element.href);
        if (link) {
            const address = typeof link.href == 'string' ? link.href : link.href.baseVal;
            tell(new URL(address, document.baseURI).href);
        }
    };
    addEventListener('click', watchClick, true);
    addEventListener('auxclick', watchClick, true);
    addEventListener('beforeunload', event => event.stopImmediatePropagation(), true);
    if (location.protocol == '%2:') {
        history.scrollRestoration = 'manual';
    }
    if (window == top) {
        tell('');
    }
})())"_L1;

} // namespace

PageWatch::PageWatch() : m_key(QUuid::createUuid().toString(QUuid::WithoutBraces) + u' ') {}

QWebEngineScript PageWatch::script() const
{
    QWebEngineScript script;
    script.setName(u"PageWatch"_s);
    script.setWorldId(QWebEngineScript::ApplicationWorld);
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setRunsOnSubFrames(true);
    script.setSourceCode(QString(source).arg(m_key, QLatin1StringView(DocumentScheme::name())));
    return script;
}

PageWatch::News PageWatch::hear(const QString& line)
{
    if (!line.startsWith(m_key)) {
        return News::None;
    }
    m_clickedLink = QUrl(line.sliced(m_key.size()));
    return m_clickedLink.isEmpty() ? News::NewDocument : News::Click;
}
