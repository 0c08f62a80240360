#include "services/SystemProxy.h"

#include <QNetworkProxy>
#include <QNetworkProxyFactory>
#include <QNetworkProxyQuery>
#include <QUrl>

#include "services/GeolocationRequest.h"

namespace SystemProxy {

void apply()
{
    const QNetworkProxyQuery query(QUrl(QString::fromLatin1(GeolocationRequest::DEFAULT_BASE_URL)),
                                   QNetworkProxyQuery::UrlRequest);
    const QList<QNetworkProxy> proxies = QNetworkProxyFactory::systemProxyForQuery(query);
    if (!proxies.isEmpty())
        QNetworkProxy::setApplicationProxy(proxies.first());
}

}
