// A server on loopback that reads requests to the byte and answers whatever a test wants, also what no server should.
// It counts what arrives.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>

#include <functional>
#include <map>
#include <vector>

class RawServer
{
public:
    struct Request
    {
        QByteArray line;    // "POST /admin/list.php HTTP/1.1"
        QByteArray headers; // all others, as they came
        QByteArray body;

        QByteArray header(const QByteArray& name) const;
        bool isForList() const { return line.contains("/admin/list.php"); }
    };

    // Called for each whole request. What it writes is the answer; it may as well close the connection or do nothing.
    using Handler = std::function<void(QTcpSocket& socket, const Request& request)>;

    RawServer();

    QString address() const; // "http://127.0.0.1:port/"
    quint16 port() const { return m_server.serverPort(); }

    Handler handler; // a shop without pictures, at first
    // Closes each connection when this many bytes have come; 0 for never.
    qsizetype dropAfter = 0;

    std::vector<Request> requests; // that came whole
    int startedRequests = 0;       // connections on which anything came

private:
    void read(QTcpSocket* socket);

    std::map<QTcpSocket*, QByteArray> m_received;
    QTcpServer m_server; // gone first: its sockets may still tell something
};

// An answer that ends its connection.
void sendAnswer(QTcpSocket& socket, int status, const QByteArray& body, const QByteArray& moreHeaders = {});
// Answers like a shop that has these files.
RawServer::Handler shopWithFiles(const QByteArray& lines);
