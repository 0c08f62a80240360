#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <gtest/gtest.h>

#include <memory>

#include "services/GeolocationRequest.h"
#include "services/LocationParser.h"

namespace {

// Sets the service address for one test and takes it away after.
class ServiceAddress
{
public:
    explicit ServiceAddress(const QByteArray& base) { qputenv("OVRA_GEOLOCATION_URL", base); }
    ~ServiceAddress() { qunsetenv("OVRA_GEOLOCATION_URL"); }
};

// A one-connection HTTP stand-in: it records the request head and answers
// with a JSON body, or keeps silent when there is none.
class FakeService : public QObject
{
public:
    explicit FakeService(const QByteArray& body)
    {
        if (!body.isEmpty())
            reply = "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nContent-Length: " +
                    QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
        server.listen(QHostAddress::LocalHost);
        connect(&server, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = server.nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                request += socket->readAll();
                if (!request.contains("\r\n\r\n") || reply.isEmpty())
                    return;
                socket->write(reply);
                socket->flush();
                socket->disconnectFromHost();
            });
        });
    }

    QByteArray base() const { return "http://127.0.0.1:" + QByteArray::number(server.serverPort()); }

    QTcpServer server;
    QByteArray reply;
    QByteArray request;
};

// Runs the event loop until the reply is finished or a generous guard ends.
bool wait_for_finish(QNetworkReply* reply)
{
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(30000, &loop, &QEventLoop::quit);
    if (!reply->isFinished())
        loop.exec();
    return reply->isFinished();
}

TEST(GeolocationRequest, ServiceAddressAndTimeout)
{
    qunsetenv("OVRA_GEOLOCATION_URL");
    EXPECT_EQ(GeolocationRequest::service_url(), QUrl(QStringLiteral("https://reallyfreegeoip.org/json/")));
    for (const char* base : {"http://127.0.0.1:8123", "http://127.0.0.1:8123/"}) {
        ServiceAddress address(base);
        EXPECT_EQ(GeolocationRequest::service_url(), QUrl(QStringLiteral("http://127.0.0.1:8123/json/"))) << base;
    }
    // A service that hasn't answered after ten seconds has failed.
    EXPECT_EQ(GeolocationRequest::make_request().transferTimeout(), 10000);
}

TEST(GeolocationRequest, SendsAGetOfTheJsonPath)
{
    FakeService service(R"({"latitude": 42.6977, "longitude": 23.3219})");
    ServiceAddress address(service.base());
    QNetworkAccessManager manager;
    std::unique_ptr<QNetworkReply> reply(GeolocationRequest::send(&manager));
    ASSERT_TRUE(wait_for_finish(reply.get()));
    EXPECT_EQ(reply->error(), QNetworkReply::NoError);
    EXPECT_TRUE(service.request.startsWith("GET /json/ HTTP/1.1\r\n")) << service.request.toStdString();
    double latitude = -1.0, longitude = -1.0;
    EXPECT_TRUE(LocationParser::read_location(reply->readAll(), &latitude, &longitude));
    EXPECT_DOUBLE_EQ(latitude, 42.6977);
    EXPECT_DOUBLE_EQ(longitude, 23.3219);
}

TEST(GeolocationRequest, SilentServiceOrClosedPortEndsInAnError)
{
    QNetworkAccessManager manager;
    {
        FakeService silent{QByteArray()};
        ServiceAddress address(silent.base());
        std::unique_ptr<QNetworkReply> reply(GeolocationRequest::send(&manager, 300));
        ASSERT_TRUE(wait_for_finish(reply.get()));
        EXPECT_NE(reply->error(), QNetworkReply::NoError);
        EXPECT_TRUE(silent.request.startsWith("GET /json/"));
    }
    // A port that was just free: nothing listens there any more.
    QTcpServer probe;
    ASSERT_TRUE(probe.listen(QHostAddress::LocalHost));
    ServiceAddress address("http://127.0.0.1:" + QByteArray::number(probe.serverPort()));
    probe.close();
    std::unique_ptr<QNetworkReply> reply(GeolocationRequest::send(&manager));
    ASSERT_TRUE(wait_for_finish(reply.get()));
    EXPECT_EQ(reply->error(), QNetworkReply::ConnectionRefusedError);
}

}
