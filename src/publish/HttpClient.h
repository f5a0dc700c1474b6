// What publishing needs of an HTTP client: one POST at a time, told when it is over, with the event loop turning
// meanwhile. publish/dialog has the one over the network; tests have one that answers as they like.
#pragma once

#include "publish/TransferFailure.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

struct HttpAnswer
{
    int status = 0;
    QByteArray body;
    // Set when there was no whole answer: status and body then say nothing.
    std::optional<TransferFailure> failure;
};

class HttpClient
{
public:
    using Done = std::function<void(const HttpAnswer& answer)>;

    virtual ~HttpClient() = default;

    // Sends the body as it stands, exactly once, and calls done once from the event loop, never before this returns.
    // There is no time limit. Only when no other request is under way; done may start the next one.
    virtual void post(const QString& url, const QByteArray& contentType, const QByteArray& body, const Done& done) = 0;
    // Breaks off the request under way, if there is one; its done is then never called.
    virtual void cancel() = 0;
};
