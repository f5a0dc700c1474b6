// What only the inside of a page can tell or ask for: that a new document has begun, which link the visitor clicked
// with his own hand, and that a page of the shop is shown from its top. A script of the program's own runs in every
// document, in a world that the page's scripts cannot reach, and tells by lines on the console that begin with a word
// which the page cannot know. The engine's page owns the one.
#pragma once

#include <QString>
#include <QUrl>
#include <QWebEngineScript>

class PageWatch
{
public:
    PageWatch();

    // To be put among the page's scripts.
    QWebEngineScript script() const;
    enum class News { None, NewDocument, Click };
    // Takes a line from the page's console. None when the script did not write it.
    News hear(const QString& line);

    // The address of the link that was clicked last, in whatever frame. Empty when none was in this document.
    const QUrl& clickedLink() const { return m_clickedLink; }

private:
    QString m_key;
    QUrl m_clickedLink;
};
