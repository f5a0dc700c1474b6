#include "publish/dialog/SystemProxies.h"

namespace {

constexpr qint64 answerCountsFor = 60'000; // milliseconds

} // namespace

QNetworkProxy SystemProxies::proxyFor(const QUrl& address)
{
    const QNetworkProxyQuery query(address);
    if (!m_age.isValid() || m_age.hasExpired(answerCountsFor) || !(m_query == query)) {
        const QList<QNetworkProxy> answer = QNetworkProxyFactory::systemProxyForQuery(query);
        m_proxy = answer.isEmpty() ? QNetworkProxy(QNetworkProxy::NoProxy) : answer.first();
        m_query = query;
        m_age.start();
    }
    return m_proxy;
}
