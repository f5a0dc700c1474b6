// The HTTP client over the network. All but the question for the system's proxies is made anew for each request, so
// that nothing lasts from one to the next: no cookies, no cache, no credentials, no connection that the server may have
// closed meanwhile. Redirects are not followed, and no request is ever sent twice. The upload dialog owns it.
#pragma once

#include "base/Guarded.h"
#include "publish/HttpClient.h"

#include <QObject>

#include <memory>

class NetworkHttpClient : public QObject, public HttpClient
{
    Q_OBJECT

public:
    // The longest answer that is taken, in bytes; a longer one is a failure.
    static constexpr qint64 longestAnswer = qint64{64} * 1024 * 1024;

    // The handler, which takes what done raises, outlives the client.
    explicit NetworkHttpClient(FatalErrorHandler& errors, QObject* parent = nullptr);
    ~NetworkHttpClient() override;

    void post(const QString& url, const QByteArray& contentType, const QByteArray& body, const Done& done) override;
    void cancel() override;

private:
    struct Proxies;
    struct Request;

    void finish(const HttpAnswer& answer);

    FatalErrorHandler& m_errors;
    std::unique_ptr<Proxies> m_proxies;
    std::unique_ptr<Request> m_request; // the one under way
};
