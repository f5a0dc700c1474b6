#include "publish/dialog/TransferLoop.h"

#include <QSocketNotifier>

#include <chrono>
#include <new>

namespace {

// One socket that the library waits for. Qt wants a notifier for each direction.
class SocketWatch : public QObject
{
public:
    SocketWatch(curl_socket_t socket, QObject* parent)
        : QObject(parent),
          readable(static_cast<qintptr>(socket), QSocketNotifier::Read),
          writable(static_cast<qintptr>(socket), QSocketNotifier::Write)
    {
    }

    void waitFor(int what)
    {
        readable.setEnabled((what & CURL_POLL_IN) != 0);
        writable.setEnabled((what & CURL_POLL_OUT) != 0);
    }

    QSocketNotifier readable;
    QSocketNotifier writable;
};

} // namespace

TransferLoop::TransferLoop(QObject* parent) : QObject(parent)
{
    // The sockets alone: nothing here is encrypted.
    if (curl_global_init(CURL_GLOBAL_WIN32) != CURLE_OK) {
        throw std::bad_alloc();
    }
    m_transfers = curl_multi_init();
    if (!m_transfers) {
        curl_global_cleanup();
        throw std::bad_alloc();
    }
    curl_multi_setopt(m_transfers, CURLMOPT_SOCKETFUNCTION, &TransferLoop::socketCallback);
    curl_multi_setopt(m_transfers, CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(m_transfers, CURLMOPT_TIMERFUNCTION, &TransferLoop::timerCallback);
    curl_multi_setopt(m_transfers, CURLMOPT_TIMERDATA, this);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { act(CURL_SOCKET_TIMEOUT, 0); });
}

TransferLoop::~TransferLoop()
{
    curl_multi_cleanup(m_transfers);
    curl_global_cleanup(); // the library counts
}

void TransferLoop::start(CURL* transfer)
{
    if (curl_multi_add_handle(m_transfers, transfer) != CURLM_OK) {
        throw std::bad_alloc(); // all that can go wrong with a transfer that is in no loop yet
    }
}

void TransferLoop::remove(CURL* transfer)
{
    curl_multi_remove_handle(m_transfers, transfer);
}

int TransferLoop::socketCallback(CURL* /*transfer*/, curl_socket_t socket, int what, void* self, void* known)
{
    auto* loop = static_cast<TransferLoop*>(self);
    auto* watch = static_cast<SocketWatch*>(known);
    if (what == CURL_POLL_REMOVE) {
        if (watch) {
            watch->waitFor(CURL_POLL_NONE);
            watch->deleteLater(); // deferred: this may run in a signal of one of its notifiers
        }
        return 0;
    }
    if (!watch) {
        watch = new SocketWatch(socket, loop);
        connect(&watch->readable, &QSocketNotifier::activated, loop,
                [loop, socket] { loop->act(socket, CURL_CSELECT_IN); });
        connect(&watch->writable, &QSocketNotifier::activated, loop,
                [loop, socket] { loop->act(socket, CURL_CSELECT_OUT); });
        curl_multi_assign(loop->m_transfers, socket, watch);
    }
    watch->waitFor(what);
    return 0;
}

int TransferLoop::timerCallback(CURLM* /*transfers*/, long milliseconds, void* self)
{
    QTimer& timer = static_cast<TransferLoop*>(self)->m_timer;
    if (milliseconds < 0) {
        timer.stop();
    } else {
        timer.start(std::chrono::milliseconds(milliseconds));
    }
    return 0;
}

void TransferLoop::act(curl_socket_t socket, int events)
{
    int running = 0;
    curl_multi_socket_action(m_transfers, socket, events, &running);
    int waiting = 0;
    const CURLMsg* message = curl_multi_info_read(m_transfers, &waiting);
    if (message && message->msg == CURLMSG_DONE) {
        Q_EMIT ended(message->data.result); // comes last: it may delete this object
    }
}
