#include "services/GeolocationRequest.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

QString GeolocationRequest::base_url()
{
    QString base = qEnvironmentVariable(BASE_URL_VARIABLE);
    if (base.isEmpty())
        base = QString::fromLatin1(DEFAULT_BASE_URL);
    while (base.endsWith(QLatin1Char('/')))
        base.chop(1);
    return base;
}

QUrl GeolocationRequest::service_url()
{
    return QUrl(base_url() + QString::fromLatin1(PATH));
}

QNetworkRequest GeolocationRequest::make_request(int timeout_ms)
{
    QNetworkRequest request(service_url());
    request.setTransferTimeout(timeout_ms);
    return request;
}

QNetworkReply* GeolocationRequest::send(QNetworkAccessManager* manager, int timeout_ms)
{
    return manager->get(make_request(timeout_ms));
}
