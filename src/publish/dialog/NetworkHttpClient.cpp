#include "publish/dialog/NetworkHttpClient.h"

#include "publish/dialog/SendWithoutDelay.h"

#include <QElapsedTimer>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

#include <algorithm>
#include <cstring>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// A body that can be read once. The network library would send a request again whose connection drops; it cannot when
// there is no way back to the body's start.
class BodyReadOnce : public QIODevice
{
public:
    explicit BodyReadOnce(const QByteArray& body) : m_body(body) { open(ReadOnly | Unbuffered); }

    bool isSequential() const override { return true; }
    bool seek(qint64 /*position*/) override { return false; }
    bool reset() override { return false; }
    qint64 bytesAvailable() const override { return m_body.size() - m_read; }

    // Gives the body's memory back; nothing is left to read.
    void drop()
    {
        m_body.clear();
        m_read = 0;
    }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        if (m_read == 0) {
            SendWithoutDelay(); // the library asks for data as soon as it is connected
        }
        const qsizetype size = std::min<qsizetype>(maxSize, m_body.size() - m_read);
        if (size > 0) {
            std::memcpy(data, m_body.constData() + m_read, static_cast<std::size_t>(size));
            m_read += size;
        }
        return size > 0 ? size : -1;
    }
    qint64 writeData(const char* /*data*/, qint64 /*maxSize*/) override { return -1; }

private:
    QByteArray m_body;
    qsizetype m_read = 0;
};

constexpr qint64 proxiesCountFor = 60'000; // milliseconds

QNetworkRequest requestFor(const QString& url, const QByteArray& contentType, qsizetype size)
{
    QNetworkRequest request{QUrl(url)};
    request.setRawHeader("Content-Type", contentType);
    request.setRawHeader("Accept-Encoding", "identity"); // what arrives is as long as it says
    request.setHeader(QNetworkRequest::ContentLengthHeader, size);
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    for (const auto attribute :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute}) {
        request.setAttribute(attribute, QNetworkRequest::Manual);
    }
    return request;
}

// The library wanted to go back to the body's start, and could not. It wants that also where it need not: for a
// redirect that nobody follows, and when a connection closes behind a quick answer without a length, which is that
// answer's end.
bool isWholeInSpiteOfResend(const QNetworkReply& reply, int status, qsizetype size)
{
    if (reply.hasRawHeader("Content-Length")) {
        return reply.rawHeader("Content-Length").toLongLong() == size;
    }
    return !reply.hasRawHeader("Transfer-Encoding") || status == 307 || status == 308;
}

// A refusal by status is an answer like any other; a connection that broke, even behind the status, is none.
bool isWholeAnswer(const QNetworkReply& reply, int status, qsizetype size)
{
    const QNetworkReply::NetworkError error = reply.error();
    if (status == 0 || error == QNetworkReply::NoError) {
        return status != 0;
    }
    if (error == QNetworkReply::ContentReSendError) {
        return isWholeInSpiteOfResend(reply, status, size);
    }
    return status >= 400 && error > QNetworkReply::UnknownNetworkError && error != QNetworkReply::ProtocolFailure;
}

HttpAnswer answerOf(QNetworkReply& reply)
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QByteArray body = reply.readAll();
    if (!isWholeAnswer(reply, status, body.size())) {
        return {0, {}, TransferFailure{reply.errorString(), static_cast<int>(reply.error())}};
    }
    return {status, body, std::nullopt};
}

} // namespace

// The proxies that the user's system is set to, and no others. Asking the system takes longer than sending a small
// file, so an answer counts for a minute.
struct NetworkHttpClient::Proxies
{
    QList<QNetworkProxy> forQuery(const QNetworkProxyQuery& query)
    {
        if (!m_age.isValid() || m_age.hasExpired(proxiesCountFor) || !(m_query == query)) {
            m_query = query;
            m_answer = QNetworkProxyFactory::systemProxyForQuery(query);
            m_age.start();
        }
        return m_answer;
    }

    // What a network manager asks, and owns.
    class Factory : public QNetworkProxyFactory
    {
    public:
        explicit Factory(Proxies& proxies) : m_proxies(proxies) {}
        QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override { return m_proxies.forQuery(query); }

    private:
        Proxies& m_proxies;
    };

private:
    QNetworkProxyQuery m_query;
    QList<QNetworkProxy> m_answer;
    QElapsedTimer m_age;
};

struct NetworkHttpClient::Request
{
    Request(QNetworkAccessManager* requestManager, BodyReadOnce* requestBody, const Done& whenDone)
        : manager(requestManager), body(requestBody), done(whenDone)
    {
    }
    Request(const Request&) = delete;
    Request& operator=(const Request&) = delete;
    ~Request()
    {
        body->drop();           // ahead of the next request's body
        manager->deleteLater(); // later: the library may still be inside of one of its signals
    }

    QNetworkAccessManager* manager; // owns reply and body
    BodyReadOnce* body;
    Done done;
};

NetworkHttpClient::NetworkHttpClient(FatalErrorHandler& errors, QObject* parent)
    : QObject(parent), m_errors(errors), m_proxies(std::make_unique<Proxies>())
{
}

NetworkHttpClient::~NetworkHttpClient()
{
    NetworkHttpClient::cancel();
}

void NetworkHttpClient::post(const QString& url, const QByteArray& contentType, const QByteArray& body,
                             const Done& done)
{
    auto* manager = new QNetworkAccessManager(this);
    manager->setProxyFactory(new Proxies::Factory(*m_proxies));
    auto* device = new BodyReadOnce(body);
    device->setParent(manager);
    m_request = std::make_unique<Request>(manager, device, done);

    QNetworkReply* reply = manager->post(requestFor(url, contentType, body.size()), device);
    connect(reply, &QNetworkReply::readyRead, this, [this, reply] {
        if (reply->bytesAvailable() > longestAnswer) {
            finish({0, {}, TransferFailure{tr("The answer is too long"), QNetworkReply::UnknownContentError}});
        }
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply] { finish(answerOf(*reply)); });
}

void NetworkHttpClient::cancel()
{
    if (m_request) {
        // Deleting the manager ends its requests; what they still tell is not for anybody.
        for (QNetworkReply* reply : m_request->manager->findChildren<QNetworkReply*>()) {
            reply->disconnect(this);
            reply->abort();
        }
        m_request.reset();
    }
}

void NetworkHttpClient::finish(const HttpAnswer& answer)
{
    const Done done = std::exchange(m_request->done, nullptr);
    cancel();
    guarded(m_errors, [&] { done(answer); });
}
