// Another host for the browser: a server on this machine that answers every request with one page, or sends it on.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTcpServer>

class WebServer
{
public:
    WebServer();

    QString address() const;
    // Answers with this page from now on.
    void servePage(const QByteArray& html);
    // Answers with a redirection from now on.
    void redirectTo(const QByteArray& url);

    QStringList requests; // the paths that were asked for

private:
    QTcpServer m_server;
    QByteArray m_answer;
};
