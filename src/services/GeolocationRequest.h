#pragma once

#include <QNetworkRequest>
#include <QString>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;

// The GET that asks the IP location service where this machine is. The
// service is reached at OVRA_GEOLOCATION_URL when that is set (a base such
// as "http://127.0.0.1:8080"), otherwise at the public default.
class GeolocationRequest
{
public:
    static constexpr const char DEFAULT_BASE_URL[] = "https://reallyfreegeoip.org";
    static constexpr const char PATH[] = "/json/";
    static constexpr const char BASE_URL_VARIABLE[] = "OVRA_GEOLOCATION_URL";
    // A service that hasn't answered by then has failed: the reply finishes
    // with an error, and the stored location stays.
    static constexpr int TIMEOUT_MS = 10000;

    static QString base_url();
    static QUrl service_url();
    static QNetworkRequest make_request(int timeout_ms = TIMEOUT_MS);
    // Starts the request; the answer arrives on the manager's finished().
    static QNetworkReply* send(QNetworkAccessManager* manager, int timeout_ms = TIMEOUT_MS);
};
