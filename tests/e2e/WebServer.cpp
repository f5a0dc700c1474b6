#include "e2e/WebServer.h"

#include <QHostAddress>
#include <QTcpSocket>

using namespace Qt::StringLiterals;

WebServer::WebServer()
{
    m_server.listen(QHostAddress::LocalHost);
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
        QTcpSocket* socket = m_server.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            requests << QString::fromUtf8(socket->readAll()).section(u' ', 1, 1);
            socket->write(m_answer);
            socket->disconnectFromHost();
        });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    });
}

QString WebServer::address() const
{
    return u"http://127.0.0.1:%1/"_s.arg(m_server.serverPort());
}

void WebServer::servePage(const QByteArray& html)
{
    m_answer = "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\nContent-Length: "_ba +
               QByteArray::number(html.size()) + "\r\n\r\n" + html;
}

void WebServer::redirectTo(const QByteArray& url)
{
    m_answer = "HTTP/1.1 302 Found\r\nConnection: close\r\nContent-Length: 0\r\nLocation: "_ba + url + "\r\n\r\n";
}
