#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <gtest/gtest.h>

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

// A one-connection HTTP stand-in: it records the request head and either
// answers with a fixed reply or keeps silent.
class FakeService : public QObject
{
public:
    explicit FakeService(QByteArray reply) : reply(std::move(reply))
    {
        server.listen(QHostAddress::LocalHost);
        connect(&server, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = server.nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                request += socket->readAll();
                if (!request.contains("\r\n\r\n") || this->reply.isEmpty())
                    return;
                socket->write(this->reply);
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

QByteArray http_ok(const QByteArray& body)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nContent-Length: "
           + QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
}

// Runs the event loop until the reply is finished or a generous guard ends.
bool wait_for_finish(QNetworkReply* reply)
{
    if (reply->isFinished())
        return true;
    QEventLoop loop;
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, &loop, &QEventLoop::quit);
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    guard.start(30000);
    loop.exec();
    return reply->isFinished();
}

TEST(GeolocationRequest, PublicServiceByDefault)
{
    qunsetenv("OVRA_GEOLOCATION_URL");
    EXPECT_EQ(GeolocationRequest::service_url(), QUrl(QStringLiteral("https://reallyfreegeoip.org/json/")));
}

TEST(GeolocationRequest, EnvironmentNamesAnotherBase)
{
    {
        ServiceAddress address("http://127.0.0.1:8123");
        EXPECT_EQ(GeolocationRequest::service_url(), QUrl(QStringLiteral("http://127.0.0.1:8123/json/")));
    }
    {
        ServiceAddress address("http://127.0.0.1:8123/");
        EXPECT_EQ(GeolocationRequest::service_url(), QUrl(QStringLiteral("http://127.0.0.1:8123/json/")));
    }
}

TEST(GeolocationRequest, RequestGivesUpAfterTenSeconds)
{
    EXPECT_EQ(GeolocationRequest::make_request().transferTimeout(), 10000);
}

TEST(GeolocationRequest, SendsAGetOfTheJsonPath)
{
    FakeService service(http_ok(R"({"latitude": 42.6977, "longitude": 23.3219})"));
    ServiceAddress address(service.base());
    QNetworkAccessManager manager;
    QNetworkReply* reply = GeolocationRequest::send(&manager);
    ASSERT_TRUE(wait_for_finish(reply));
    EXPECT_EQ(reply->error(), QNetworkReply::NoError);
    EXPECT_TRUE(service.request.startsWith("GET /json/ HTTP/1.1\r\n")) << service.request.toStdString();

    double latitude = -1.0;
    double longitude = -1.0;
    EXPECT_TRUE(LocationParser::read_location(reply->readAll(), &latitude, &longitude));
    EXPECT_DOUBLE_EQ(latitude, 42.6977);
    EXPECT_DOUBLE_EQ(longitude, 23.3219);
    reply->deleteLater();
}

TEST(GeolocationRequest, SilentServiceEndsInAnError)
{
    FakeService service{QByteArray()};
    ServiceAddress address(service.base());
    QNetworkAccessManager manager;
    QNetworkReply* reply = GeolocationRequest::send(&manager, 300);
    ASSERT_TRUE(wait_for_finish(reply));
    EXPECT_NE(reply->error(), QNetworkReply::NoError);
    EXPECT_TRUE(service.request.startsWith("GET /json/"));
    reply->deleteLater();
}

TEST(GeolocationRequest, ClosedPortEndsInAnError)
{
    // A port that was just free: nothing listens there any more.
    QTcpServer probe;
    ASSERT_TRUE(probe.listen(QHostAddress::LocalHost));
    const QByteArray base = "http://127.0.0.1:" + QByteArray::number(probe.serverPort());
    probe.close();
    ServiceAddress address(base);
    QNetworkAccessManager manager;
    QNetworkReply* reply = GeolocationRequest::send(&manager);
    ASSERT_TRUE(wait_for_finish(reply));
    EXPECT_EQ(reply->error(), QNetworkReply::ConnectionRefusedError);
    reply->deleteLater();
}

}
