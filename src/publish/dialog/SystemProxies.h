// The proxy that the user's system is set to for an address. NetworkHttpClient owns it.
#pragma once

#include <QElapsedTimer>
#include <QNetworkProxy>
#include <QUrl>

class SystemProxies
{
public:
    // The first one that the system names, or QNetworkProxy::NoProxy. Asking the system takes longer than sending a
    // small file, so that an answer counts for a minute.
    QNetworkProxy proxyFor(const QUrl& address);

private:
    QNetworkProxyQuery m_query;
    QNetworkProxy m_proxy;
    QElapsedTimer m_age;
};
