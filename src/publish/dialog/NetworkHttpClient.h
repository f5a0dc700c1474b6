// The HTTP client over the network. Every request goes over a connection of its own and leaves nothing behind: no
// cookies, no cache, no credentials, no connection that the server may have closed meanwhile. Redirects are not
// followed, and no request is ever sent twice. The upload dialog owns it.
#pragma once

#include "base/Guarded.h"
#include "publish/HttpClient.h"
#include "publish/dialog/SystemProxies.h"
#include "publish/dialog/TransferLoop.h"

#include <QObject>

#include <memory>

class NetworkHttpClient : public QObject, public HttpClient
{
    Q_OBJECT

public:
    // The longest answer that is taken, in bytes; a longer one is a failure.
    static constexpr qsizetype longestAnswer = qsizetype{64} * 1024 * 1024;

    // The handler, which takes what done raises, outlives the client.
    explicit NetworkHttpClient(FatalErrorHandler& errors, QObject* parent = nullptr);
    ~NetworkHttpClient() override;

    void post(const QString& url, const QByteArray& contentType, const QByteArray& body, const Done& done) override;
    void cancel() override;

private:
    struct Request;

    void finish(CURLcode result);

    FatalErrorHandler& m_errors;
    SystemProxies m_proxies;
    TransferLoop m_loop;
    std::unique_ptr<Request> m_request; // the one under way
};
