// Runs a transfer of the HTTP library from Qt's event loop: the library says which sockets and which time it waits for,
// and is told when something happens there. NetworkHttpClient owns it.
#pragma once

#include <QObject>
#include <QTimer>

#include <curl/curl.h>

class TransferLoop : public QObject
{
    Q_OBJECT

public:
    // Raises std::bad_alloc.
    explicit TransferLoop(QObject* parent = nullptr);
    ~TransferLoop() override;

    // Starts a transfer, which stays the caller's. Nothing happens before the event loop turns. One at a time.
    void start(CURL* transfer);
    // Breaks the transfer off, or takes it back when it has ended. Never from inside one of the library's callbacks.
    void remove(CURL* transfer);

Q_SIGNALS:
    // Not from inside the library: whoever hears it may remove the transfer, start the next one or delete this loop.
    void ended(CURLcode result);

private:
    static int socketCallback(CURL* transfer, curl_socket_t socket, int what, void* self, void* watch);
    static int timerCallback(CURLM* transfers, long milliseconds, void* self);

    void act(curl_socket_t socket, int events);

    CURLM* m_transfers = nullptr;
    QTimer m_timer;
};
