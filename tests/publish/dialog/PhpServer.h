// PHP's own server on loopback with the two pages of tests/data/upload/server: what a hosted shop does with an upload,
// and what it has received.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <vector>

class PhpServer
{
public:
    PhpServer();
    PhpServer(const PhpServer&) = delete;
    PhpServer& operator=(const PhpServer&) = delete;
    ~PhpServer();

    // False when the server cannot be started; `why` gets the reason.
    bool start();
    QString why() const { return m_process.errorString(); }

    QString address() const; // "http://127.0.0.1:port/"
    // A file that the server keeps.
    QString path(const QString& relative) const { return m_store.filePath(relative); }

    struct Received
    {
        QString page; // "list" or "upload"
        QString version;
        QString sentName; // as the program told it
        QString name;     // as PHP cuts it
        QString type;
    };
    // Forgets all files.
    void empty();
    // All requests since the last call.
    std::vector<Received> takeRequests();

private:
    void makeFolders();

    QTemporaryDir m_store;
    QProcess m_process;
    quint16 m_port = 0;
};
