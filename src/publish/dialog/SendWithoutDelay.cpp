#include "publish/dialog/SendWithoutDelay.h"

#include <QDirIterator>
#include <QString>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

using namespace Qt::StringLiterals;

void SendWithoutDelay()
{
    QDirIterator open(u"/proc/self/fd"_s, QDir::Files | QDir::System | QDir::NoDotAndDotDot);
    while (open.hasNext()) {
        open.next();
        bool isNumber = false;
        const int descriptor = open.fileName().toInt(&isNumber);
        const int on = 1;
        if (isNumber) {
            // Fails, and changes nothing, on all that is no TCP connection.
            ::setsockopt(descriptor, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        }
    }
}
