#include "publish/dialog/RawServer.h"

#include <QHostAddress>

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

QByteArray RawServer::Request::header(const QByteArray& name) const
{
    for (const QByteArray& row : headers.split('\n')) {
        const qsizetype colon = row.indexOf(':');
        if (row.first(std::max<qsizetype>(colon, 0)).compare(name, Qt::CaseInsensitive) == 0) {
            return row.mid(colon + 1).trimmed();
        }
    }
    return {};
}

RawServer::RawServer() : handler(shopWithFiles({}))
{
    EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            QObject::connect(socket, &QTcpSocket::readyRead, &m_server, [this, socket] { read(socket); });
        }
    });
}

QString RawServer::address() const
{
    return u"http://127.0.0.1:%1/"_s.arg(port());
}

void RawServer::read(QTcpSocket* socket)
{
    QByteArray& received = m_received[socket];
    startedRequests += received.isEmpty() ? 1 : 0;
    received += socket->readAll();
    if (dropAfter > 0 && received.size() >= dropAfter) {
        socket->abort();
        return;
    }
    const qsizetype headEnd = received.indexOf("\r\n\r\n");
    if (headEnd < 0) {
        return;
    }
    const qsizetype lineEnd = received.indexOf("\r\n");
    Request request{received.first(lineEnd), received.sliced(lineEnd + 2, headEnd - lineEnd), {}};
    const qsizetype size = request.header("Content-Length").toLongLong();
    if (received.size() < headEnd + 4 + size) {
        return;
    }
    request.body = received.sliced(headEnd + 4);
    received = "answered";
    requests.push_back(request);
    handler(*socket, requests.back());
}

void sendAnswer(QTcpSocket& socket, int status, const QByteArray& body, const QByteArray& moreHeaders)
{
    socket.write("HTTP/1.1 " + QByteArray::number(status) + " Status\r\nConnection: close\r\n" + moreHeaders +
                 "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
    socket.disconnectFromHost();
}

RawServer::Handler shopWithFiles(const QByteArray& lines)
{
    return [lines](QTcpSocket& socket, const RawServer::Request& request) {
        sendAnswer(socket, 200, request.isForList() ? "1.2.0|" + lines : QByteArray("ok"));
    };
}
