#include "publish/dialog/PhpServer.h"

#include <QDir>
#include <QFile>
#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

quint16 freePort()
{
    QTcpServer server;
    return server.listen(QHostAddress::LocalHost) ? server.serverPort() : quint16{0};
}

bool answers(quint16 port)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
    return socket.waitForConnected(200);
}

} // namespace

PhpServer::PhpServer()
{
    makeFolders();
}

void PhpServer::makeFolders()
{
    const QDir store(m_store.path());
    store.mkdir(u"pictures"_s);
    store.mkdir(u"templates"_s);
}

void PhpServer::empty()
{
    QDir(path(u"pictures"_s)).removeRecursively();
    QDir(path(u"templates"_s)).removeRecursively();
    QFile::remove(path(u"shop.xml"_s));
    makeFolders();
}

PhpServer::~PhpServer()
{
    m_process.kill();
    m_process.waitForFinished();
    // Done here, since Qt cannot remove files whose names are not UTF-8.
    std::error_code failure;
    std::filesystem::remove_all(m_store.path().toStdString(), failure);
}

bool PhpServer::start()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TARNWICK_STORE"_s, m_store.path());
    m_process.setProcessEnvironment(environment);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(QProcess::nullDevice());
    for (int attempt = 0; attempt < 5; ++attempt) { // another program may take the port first
        m_port = freePort();
        m_process.start(u"php"_s,
                        {u"-n"_s, u"-d"_s, u"upload_max_filesize=400M"_s, u"-d"_s, u"post_max_size=400M"_s, u"-d"_s,
                         "upload_tmp_dir="_L1 + m_store.path(), u"-S"_s, u"127.0.0.1:%1"_s.arg(m_port), u"-t"_s,
                         QStringLiteral(TARNWICK_SOURCE_DIR "/tests/data/upload/server")});
        for (int i = 0; i < 100 && m_process.state() != QProcess::NotRunning; ++i) {
            if (answers(m_port)) {
                return true;
            }
            QThread::msleep(50);
        }
        m_process.kill();
        m_process.waitForFinished();
    }
    return false;
}

QString PhpServer::address() const
{
    return u"http://127.0.0.1:%1/"_s.arg(m_port);
}

std::vector<PhpServer::Received> PhpServer::takeRequests()
{
    std::vector<Received> all;
    QFile log(path(u"requests.log"_s));
    if (log.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : log.readAll().trimmed().split('\n')) {
            const QJsonObject row = QJsonDocument::fromJson(line).object();
            all.push_back({row[u"page"_s].toString(), row[u"version"_s].toString(), row[u"sentName"_s].toString(),
                           row[u"name"_s].toString(), row[u"type"_s].toString()});
        }
        log.remove();
    }
    return all;
}
