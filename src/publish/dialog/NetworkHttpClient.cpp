#include "publish/dialog/NetworkHttpClient.h"

#include "base/ProgramVersion.h"

#include <array>
#include <new>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

struct Setting
{
    CURLoption option;
    long value;
};

// By itself the library repeats a request only over a connection that it kept and that turns out to be closed. So it
// keeps none.
constexpr std::array settings{
    Setting{CURLOPT_HTTP_VERSION, CURL_HTTP_VERSION_1_1},
    Setting{CURLOPT_POST, 1},
    Setting{CURLOPT_FOLLOWLOCATION, 0},              // a redirect is an answer like any other
    Setting{CURLOPT_FRESH_CONNECT, 1},               // over no connection of an earlier request
    Setting{CURLOPT_FORBID_REUSE, 1},                // nor for a later one
    Setting{CURLOPT_UPLOAD_BUFFERSIZE, 256L * 1024}, // bytes, for fewer turns of the event loop
    Setting{CURLOPT_CONNECTTIMEOUT, 2'000'000},      // seconds; without a number it has a limit of its own
    Setting{CURLOPT_NOSIGNAL, 1},                    // the program's signals are its own
    Setting{CURLOPT_QUICK_EXIT, 1},                  // closing the program does not wait for a name server
};

// An address that names no server fails like a server that cannot be found.
QByteArray addressForLibrary(const QUrl& url)
{
    if (!url.isValid() || url.host().isEmpty() || url.scheme() != "http"_L1) {
        return {};
    }
    return url.toEncoded(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
}

QByteArray proxyForLibrary(const QNetworkProxy& proxy)
{
    const char* scheme = nullptr;
    switch (proxy.type()) {
    case QNetworkProxy::HttpProxy:
    case QNetworkProxy::HttpCachingProxy:
        scheme = "http://";
        break;
    case QNetworkProxy::Socks5Proxy:
        scheme = "socks5h://"; // it looks up the server's name, too
        break;
    default:
        return ""; // none, not even one that stands in the environment
    }
    QByteArray host = proxy.hostName().toUtf8();
    if (host.contains(':')) { // an address of version 6, which comes without its brackets
        host = '[' + host + ']';
    }
    return scheme + host + ':' + QByteArray::number(proxy.port());
}

} // namespace

// A transfer and all that the library reads from or writes into while it runs.
struct NetworkHttpClient::Request
{
    Request(TransferLoop& transferLoop, const QByteArray& requestBody, Done whenDone)
        : loop(transferLoop), transfer(curl_easy_init()), body(requestBody), done(std::move(whenDone))
    {
        if (!transfer) {
            throw std::bad_alloc();
        }
    }
    Request(const Request&) = delete;
    Request& operator=(const Request&) = delete;
    ~Request()
    {
        loop.remove(transfer);
        curl_easy_cleanup(transfer);
        curl_slist_free_all(headers);
    }

    void addHeader(const QByteArray& header)
    {
        curl_slist* all = curl_slist_append(headers, header.constData());
        if (!all) {
            throw std::bad_alloc();
        }
        headers = all;
    }

    static std::size_t takeAnswer(const char* data, std::size_t /*one*/, std::size_t size, void* self)
    {
        auto* request = static_cast<Request*>(self);
        const auto length = static_cast<qsizetype>(size);
        request->isTooLong = length > longestAnswer - request->answer.size();
        if (request->isTooLong) {
            return 0; // ends the transfer
        }
        try {
            request->answer.append(data, length);
        } catch (const std::bad_alloc&) { // which the library's frames must not see
            return 0;
        }
        return size;
    }

    TransferLoop& loop;
    CURL* transfer;
    curl_slist* headers = nullptr;
    QByteArray body;
    QByteArray answer;
    bool isTooLong = false;
    std::array<char, CURL_ERROR_SIZE> errorText{};
    Done done;
};

NetworkHttpClient::NetworkHttpClient(FatalErrorHandler& errors, QObject* parent) : QObject(parent), m_errors(errors)
{
    connectGuarded(m_errors, &m_loop, &TransferLoop::ended, this, &NetworkHttpClient::finish);
}

NetworkHttpClient::~NetworkHttpClient() = default;

void NetworkHttpClient::post(const QString& url, const QByteArray& contentType, const QByteArray& body,
                             const Done& done)
{
    const QUrl address(url);
    const QNetworkProxy proxy = m_proxies.proxyFor(address);
    auto request = std::make_unique<Request>(m_loop, body, done);
    request->addHeader("Content-Type: " + contentType);
    request->addHeader("Accept-Encoding: identity"); // an answer is as long as it says
    request->addHeader("Expect:");                   // the body follows at once

    CURL* transfer = request->transfer;
    for (const Setting& setting : settings) {
        curl_easy_setopt(transfer, setting.option, setting.value);
    }
    curl_easy_setopt(transfer, CURLOPT_URL, addressForLibrary(address).constData());
    curl_easy_setopt(transfer, CURLOPT_PROXY, proxyForLibrary(proxy).constData());
    if (!proxy.user().isEmpty()) {
        curl_easy_setopt(transfer, CURLOPT_PROXYUSERNAME, proxy.user().toUtf8().constData());
        curl_easy_setopt(transfer, CURLOPT_PROXYPASSWORD, proxy.password().toUtf8().constData());
    }
    curl_easy_setopt(transfer, CURLOPT_NOPROXY, ""); // the system's answer takes the exceptions into account already
    curl_easy_setopt(transfer, CURLOPT_USERAGENT, ("Tarnwick/" + programVersion().toLatin1()).constData());
    curl_easy_setopt(transfer, CURLOPT_HTTPHEADER, request->headers);
    curl_easy_setopt(transfer, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request->body.size()));
    curl_easy_setopt(transfer, CURLOPT_POSTFIELDS, request->body.constData()); // not copied
    curl_easy_setopt(transfer, CURLOPT_WRITEFUNCTION, &Request::takeAnswer);
    curl_easy_setopt(transfer, CURLOPT_WRITEDATA, request.get());
    curl_easy_setopt(transfer, CURLOPT_ERRORBUFFER, request->errorText.data());

    m_request = std::move(request);
    m_loop.start(transfer);
}

void NetworkHttpClient::cancel()
{
    m_request.reset();
}

void NetworkHttpClient::finish(CURLcode result)
{
    HttpAnswer answer;
    if (result == CURLE_OK) {
        long status = 0;
        curl_easy_getinfo(m_request->transfer, CURLINFO_RESPONSE_CODE, &status);
        answer.status = static_cast<int>(status);
        answer.body = m_request->answer;
    } else {
        QString why = QString::fromLocal8Bit(m_request->errorText.data());
        if (m_request->isTooLong) {
            why = u"The answer is too long"_s;
        } else if (why.isEmpty()) {
            why = QString::fromLatin1(curl_easy_strerror(result));
        }
        answer.failure = TransferFailure{why, result};
    }
    const Done done = std::move(m_request->done);
    m_request.reset(); // frees its memory ahead of the next request
    done(answer);
}
