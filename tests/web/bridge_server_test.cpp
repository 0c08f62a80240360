#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <QWebSocket>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "web/BridgeHttpServer.h"
#include "web/BridgeServer.h"
#include "web/BridgeToken.h"
#include "web/BrowserBridgeNotice.h"

namespace {

class TestWindow : public QObject
{
    Q_OBJECT
public:
    int calls = 0;
public slots:
    void ping(const QString& text) { ++calls, emit pong(text + QStringLiteral("!")); }
signals:
    void pong(const QString& text);
};

bool wait_until(const std::function<bool()>& done, int ms = 5000)
{
    QTimer tick;
    tick.start(5);
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return done();
}

struct Reply
{
    int status = 0;
    QByteArray head, body;
    QByteArray header(const QByteArray& name) const
    {
        for (const QByteArray& line : head.split('\n'))
            if (line.toLower().startsWith(name.toLower() + ':'))
                return line.mid(name.size() + 1).trimmed();
        return {};
    }
};

// One request as raw bytes, so that Host and Origin can be anything; the
// reply is read up to its Content-Length, or its head alone for an upgrade.
Reply raw_request(QTcpSocket* socket, quint16 port, const QByteArray& request)
{
    if (socket->state() == QAbstractSocket::UnconnectedState)
        socket->connectToHost(QHostAddress::LocalHost, port);
    wait_until([&] { return socket->state() == QAbstractSocket::ConnectedState; });
    socket->write(request);
    QByteArray data;
    Reply reply;
    wait_until([&] {
        data += socket->readAll();
        const qsizetype end = data.indexOf("\r\n\r\n");
        if (end < 0)
            return socket->state() != QAbstractSocket::ConnectedState;
        reply.head = data.left(end);
        reply.body = data.mid(end + 4);
        return reply.body.size() >= reply.header("Content-Length").toInt();
    });
    reply.status = reply.head.mid(9, 3).toInt();
    return reply;
}

// A frame as a page sends it: masked unless told, 16-bit length.
QByteArray client_frame(quint8 first, const QByteArray& payload, bool masked = true)
{
    QByteArray frame(1, char(first));
    frame.append(char((masked ? 0x80 : 0) | 126)).append(char(payload.size() >> 8)).append(char(payload.size() & 0xff));
    const char key[4] = {0x11, 0x22, 0x33, 0x44};
    if (masked)
        frame.append(key, 4);
    for (int i = 0; i < payload.size(); ++i)
        frame.append(char(payload[i] ^ (masked ? key[i % 4] : 0)));
    return frame;
}

QByteArray masked_text_frame(const QByteArray& payload)
{
    return client_frame(0x81, payload);
}

// A page's end of a channel: a real QWebSocket with the Origin a page has.
struct Page
{
    QWebSocket socket;
    QList<QJsonObject> received;
    bool closed = false;
    explicit Page(const QString& origin, const QString& url) : socket(origin)
    {
        QObject::connect(&socket, &QWebSocket::textMessageReceived,
                         [this](const QString& t) { received.append(QJsonDocument::fromJson(t.toUtf8()).object()); });
        QObject::connect(&socket, &QWebSocket::disconnected, [this] { closed = true; });
        socket.open(QUrl(url));
    }
};

class BridgeServerTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        for (const auto& [name, content] : {std::pair{"pages/main_screen.html", "<html>main</html>"},
                                            {"pages/js/app.js", "var app;"}, {"pages/img/dot.png", "\x89PNG"}, {"secret.txt", "secret"}})
            put(name, content);
        server = std::make_unique<BridgeServer>(nullptr, dir.path() + "/pages");
        server->set_window_resolver([this](const QString& w) { return w == "main" || w == "rest" ? &window : nullptr; });
        QObject::connect(server.get(), &BridgeServer::client_connected, [this] { ++connected; });
        ASSERT_TRUE(server->listen(0));
        port = QByteArray::number(server->port());
        origin = "http://127.0.0.1:" + QString::fromLatin1(port);
    }
    void put(const QString& name, const QByteArray& content)
    {
        QDir(dir.path()).mkpath(QFileInfo(dir.path() + "/" + name).path());
        QFile file(dir.path() + "/" + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    // {T}: the token, {W}: a wrong token of the same length, {P}: the port.
    QByteArray fill(QByteArray s) const
    {
        return s.replace("{T}", server->token().toLatin1()).replace("{W}", wrong.toLatin1()).replace("{P}", port);
    }
    // Host "" is this server's own, "-" none at all.
    Reply request(QTcpSocket* socket, const QByteArray& line, QByteArray host, const QByteArray& extra = {})
    {
        const QByteArray host_line = host == "-" ? QByteArray() : "Host: " + fill(host.isEmpty() ? "127.0.0.1:{P}" : host) + "\r\n";
        return raw_request(socket, server->port(), fill(line) + " HTTP/1.1\r\n" + host_line + fill(extra) + "\r\n");
    }

    QTemporaryDir dir;
    TestWindow window;
    std::unique_ptr<BridgeServer> server;
    QByteArray port;
    QString origin;
    QString wrong = BridgeToken::generate();
    int connected = 0;
};

TEST(BridgeToken, FreshLongAndComparedWhole)
{
    const QByteArray t = BridgeToken::generate().toLatin1();
    EXPECT_EQ(t.size(), 64);
    EXPECT_NE(t, BridgeToken::generate().toLatin1());
    EXPECT_TRUE(BridgeToken::matches(t, QByteArray(t.constData())));
    for (const QByteArray& other : {t.left(63), t + "0", QByteArray(t).replace(63, 1, t[63] == '0' ? "1" : "0"), QByteArray()})
        EXPECT_FALSE(BridgeToken::matches(t, other)) << other.constData();
    EXPECT_FALSE(BridgeToken::matches(QByteArray(), QByteArray()));
}

TEST_F(BridgeServerTest, ServesPagesWithTheTokenAndRefusesAllElse)
{
    QFile script(":/qtwebchannel/qwebchannel.js");
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    const QByteArray script_text = script.readAll();
    // Host "": this server's; 200: Content-Type and body; 302: Location.
    struct Case { QByteArray line, host; int status; QByteArray type_or_location = {}, body = {}; };
    const Case cases[] = {
        {"GET /{T}/main_screen.html?window=main", "", 200, "text/html; charset=utf-8", "<html>main</html>"},
        {"GET /{T}/js/app.js", "localhost:{P}", 200, "text/javascript; charset=utf-8", "var app;"},
        {"GET /{T}/img/dot.png", "", 200, "image/png", "\x89PNG"},
        {"GET /{T}/js/qwebchannel.js", "", 200, "text/javascript; charset=utf-8", script_text},
        {"GET /{T}/", "", 302, "/{T}/main_screen.html"},
        {"GET /{T}", "", 302, "/{T}/main_screen.html"},
        {"GET /?token={T}", "", 302, "/{T}/"},
        {"GET /{T}/js/", "", 404},
        {"GET /{T}/missing.html", "", 404},
        {"GET /main_screen.html", "", 403},
        {"GET /", "", 403},
        {"GET /?token={W}", "", 403},
        {"GET /{W}/main_screen.html", "", 403},
        {"GET /{T}/main_screen.html", "evil.example:{P}", 403},
        {"GET /{T}/main_screen.html", "127.0.0.1:1{P}", 403},
        {"GET /{T}/main_screen.html", "-", 403},
        {"GET /{T}/../secret.txt", "", 404},
        {"GET /{T}/%2e%2e/secret.txt", "", 404},
        {"GET /{T}/js/..%2f..%2fsecret.txt", "", 404},
        {"GET /{T}/js/..%5c..%5csecret.txt", "", 404},
        {"GET /{T}/channel/main", "", 400},
        {"POST /{T}/main_screen.html", "", 405},
    };
    for (const Case& c : cases) {
        QTcpSocket socket;
        const Reply reply = request(&socket, c.line, c.host);
        SCOPED_TRACE(c.line.toStdString() + " Host " + c.host.toStdString());
        EXPECT_EQ(reply.status, c.status);
        EXPECT_EQ(reply.header("Referrer-Policy"), "no-referrer");
        EXPECT_EQ(reply.header(c.status == 200 ? "Content-Type" : "Location"), fill(c.type_or_location));
        if (c.status == 200)
            EXPECT_EQ(reply.body, c.body);
        else
            EXPECT_FALSE(reply.body.contains("secret") || reply.body.contains("main"));
    }
    EXPECT_FALSE(script_text.isEmpty());
}

TEST_F(BridgeServerTest, RefusesSocketsThatFailAnyCheckAndInvokesNothing)
{
    const QByteArray upgrade = "Upgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
                               "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n";
    const int ping = TestWindow::staticMetaObject.indexOfMethod("ping(QString)");
    const QByteArray invoke = QStringLiteral(R"({"type":6,"object":"native_object","method":%1,"args":["x"],"id":2})").arg(ping).toUtf8();
    struct Case { QByteArray line, host, origin; int status; };
    const Case cases[] = {
        {"GET /channel/main", "", "Origin: http://127.0.0.1:{P}\r\n", 403},
        {"GET /{W}/channel/main", "", "Origin: http://127.0.0.1:{P}\r\n", 403},
        {"GET /{T}/channel/main", "", "Origin: http://evil.example\r\n", 403},
        {"GET /{T}/channel/main", "", "Origin: http://127.0.0.1:1{P}\r\n", 403},
        {"GET /{T}/channel/main", "", "Origin: null\r\n", 403},
        {"GET /{T}/channel/main", "", "", 403},
        {"GET /{T}/channel/main", "evil.example:{P}", "Origin: http://127.0.0.1:{P}\r\n", 403},
        {"GET /{T}/channel/../channel/main", "", "Origin: http://127.0.0.1:{P}\r\n", 404},
        {"GET /{T}/channel/other", "", "Origin: http://127.0.0.1:{P}\r\n", 404},
        {"GET /{T}/main_screen.html", "", "Origin: http://127.0.0.1:{P}\r\n", 404},
    };
    for (const Case& c : cases) {
        QTcpSocket socket;
        const Reply reply = request(&socket, c.line, c.host, upgrade + c.origin);
        EXPECT_EQ(reply.status, c.status) << c.line.constData() << " " << c.origin.constData();
        // Were the socket let through, these would reach the object.
        socket.write(masked_text_frame(R"({"type":3,"id":1})") + masked_text_frame(invoke));
        wait_until([&] { return socket.state() == QAbstractSocket::UnconnectedState; }, 300);
    }
    EXPECT_EQ(window.calls, 0);
    EXPECT_EQ(connected, 0);
}

TEST_F(BridgeServerTest, ChannelRoundTripReachesTheWindowsObject)
{
    QString disconnected;
    QObject::connect(server.get(), &BridgeServer::client_disconnected, [&](const QString& w) { disconnected = w; });
    Page page(origin, server->channel_url("main"));
    ASSERT_TRUE(wait_until([&] { return page.socket.state() == QAbstractSocket::ConnectedState; }));
    page.socket.sendTextMessage(R"({"type":3,"id":1})");
    ASSERT_TRUE(wait_until([&] { return !page.received.isEmpty(); }));
    // The channel names methods and signals by their index in the class.
    const QJsonObject object = page.received.takeFirst()["data"].toObject()["native_object"].toObject();
    const int ping = TestWindow::staticMetaObject.indexOfMethod("ping(QString)");
    const int pong = TestWindow::staticMetaObject.indexOfSignal("pong(QString)");
    ASSERT_TRUE(object["methods"].toArray().contains(QJsonArray{"ping", ping}));
    page.socket.sendTextMessage(QStringLiteral(R"({"type":7,"object":"native_object","signal":%1})").arg(pong));
    page.socket.sendTextMessage(
        QStringLiteral(R"({"type":6,"object":"native_object","method":%1,"args":["hi"],"id":2})").arg(ping));
    ASSERT_TRUE(wait_until([&] {
        return std::any_of(page.received.begin(), page.received.end(), [](const QJsonObject& m) {
            return m["type"].toInt() == 1 && m["args"].toArray() == QJsonArray{"hi!"};
        });
    }));
    EXPECT_EQ(window.calls, 1);
    EXPECT_EQ(server->client_count("main"), 1);
    page.socket.close();
    ASSERT_TRUE(wait_until([&] { return disconnected == "main"; }));
    EXPECT_EQ(server->client_count("main"), 0);
}

TEST_F(BridgeServerTest, SingleWindowIsTakenOverAcrossServers)
{
    BridgeServer other;
    other.set_window_resolver([this](const QString& w) { return w == "main" ? &window : nullptr; });
    ASSERT_TRUE(other.listen(0));
    server->set_single_window("main");
    other.set_single_window("main");
    BridgeServer::share_single_windows(server.get(), &other);

    Page first(origin, server->channel_url("main"));
    ASSERT_TRUE(wait_until([&] { return server->client_count("main") == 1; }));
    Page second(origin, server->channel_url("main"));
    ASSERT_TRUE(wait_until([&] { return first.closed; }));
    EXPECT_EQ(first.socket.closeCode(), 4001);
    EXPECT_EQ(first.socket.closeReason(), "opened elsewhere");
    Page third("http://127.0.0.1:" + QString::number(other.port()), other.channel_url("main"));
    ASSERT_TRUE(wait_until([&] { return second.closed; }));
    EXPECT_EQ(second.socket.closeCode(), 4001);
    EXPECT_EQ(server->client_count("main") + other.client_count("main"), 1);

    Page rest_a(origin, server->channel_url("rest")), rest_b(origin, server->channel_url("rest"));
    ASSERT_TRUE(wait_until([&] { return server->client_count("rest") == 2; }));
    EXPECT_FALSE(rest_a.closed || rest_b.closed || third.closed);
}

// What no browser sends: each is answered with its status on a connection
// that then closes, and the next client is served as before.
TEST_F(BridgeServerTest, RawRequestsGetTheirStatusAndTheServerStaysUp)
{
    const QByteArray host = "Host: 127.0.0.1:{P}\r\n";
    const QByteArray upgrade = "Upgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
                               "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\nOrigin: http://127.0.0.1:{P}\r\n";
    struct Case { const char* what; QByteArray bytes; int status; };
    const Case cases[] = {
        {"no request line", "GARBAGE\r\n\r\n", 400},
        {"two spaces", "GET  /{T}/ HTTP/1.1\r\n" + host + "\r\n", 400},
        {"absolute target", "GET http://127.0.0.1:{P}/{T}/ HTTP/1.1\r\n" + host + "\r\n", 400},
        {"version", "GET /{T}/ HTTP/2.0\r\n" + host + "\r\n", 505},
        {"no colon", "GET /{T}/ HTTP/1.1\r\n" + host + "Bad header\r\n\r\n", 400},
        {"folded", "GET /{T}/ HTTP/1.1\r\n" + host + "X-A: 1\r\n  2\r\n\r\n", 400},
        {"NUL", "GET /{T}/ HTTP/1.1\r\n" + host + QByteArray("X-A: \0\r\n\r\n", 10), 400},
        {"two Hosts", "GET /{T}/ HTTP/1.1\r\n" + host + host + "\r\n", 400},
        {"long line", "GET /" + QByteArray(20000, 'a') + " HTTP/1.1\r\n" + host + "\r\n", 400},
        {"long head", "GET /{T}/ HTTP/1.1\r\n" + host + "X-A: " + QByteArray(20000, 'a') + "\r\n\r\n", 431},
        {"body", "GET /{T}/js/app.js HTTP/1.1\r\n" + host + "Content-Length: 5\r\n\r\nhello", 400},
        {"chunked", "GET /{T}/js/app.js HTTP/1.1\r\n" + host + "Transfer-Encoding: chunked\r\n\r\n0\r\n\r\n", 400},
        {"upgrade without token", "GET /channel/main HTTP/1.1\r\n" + host + upgrade + "\r\n", 403},
    };
    for (const Case& c : cases) {
        QTcpSocket socket, next;
        const Reply reply = raw_request(&socket, server->port(), fill(c.bytes));
        EXPECT_EQ(reply.head.left(12), "HTTP/1.1 " + QByteArray::number(c.status)) << c.what;
        EXPECT_TRUE(wait_until([&] { return socket.state() == QAbstractSocket::UnconnectedState; }, 2000)) << c.what;
        EXPECT_EQ(request(&next, "GET /{T}/js/app.js", "").status, 200) << "after " << c.what;
    }
}

TEST_F(BridgeServerTest, KeepsAConnectionUntilCloseOrSilence)
{
    server->set_request_timeout(300);
    const QByteArray get = fill("GET /{T}/js/app.js HTTP/1.1\r\nHost: 127.0.0.1:{P}\r\n");
    QTcpSocket kept, closing, slow;
    for (int i = 0; i < 2; ++i) {
        const Reply reply = raw_request(&kept, server->port(), get + "\r\n");
        EXPECT_EQ(reply.body, "var app;");
        EXPECT_EQ(kept.state(), QAbstractSocket::ConnectedState);
    }
    EXPECT_EQ(raw_request(&closing, server->port(), get + "Connection: close\r\n\r\n").header("Connection"), "close");
    slow.connectToHost(QHostAddress::LocalHost, server->port());
    slow.write(get);
    for (QTcpSocket* socket : {&kept, &closing, &slow})
        EXPECT_TRUE(wait_until([&] { return socket->state() == QAbstractSocket::UnconnectedState; }, 3000));
}

TEST_F(BridgeServerTest, ACrowdOfConnectionsIsCappedAndTheServerStaysUp)
{
    const int extra = 20;
    std::vector<std::unique_ptr<QTcpSocket>> crowd;
    std::vector<QByteArray> got(BridgeHttpServer::MAX_CONNECTIONS + extra);
    // In batches well below the listen backlog, so that none waits on the
    // kernel's retries.
    for (size_t i = 0; i < got.size(); ++i) {
        crowd.push_back(std::make_unique<QTcpSocket>());
        crowd.back()->connectToHost(QHostAddress::LocalHost, server->port());
        if (crowd.size() % 20 == 0 || crowd.size() == got.size())
            wait_until([&] { return crowd.back()->state() == QAbstractSocket::ConnectedState; });
    }
    EXPECT_TRUE(wait_until([&] {
        int refused = 0;
        for (size_t i = 0; i < got.size(); ++i)
            refused += (got[i] += crowd[i]->readAll()).startsWith("HTTP/1.1 503");
        return refused == extra;
    }));
    crowd.clear();
    wait_until([] { return false; }, 200); // the server sees them go
    QTcpSocket next;
    EXPECT_EQ(request(&next, "GET /{T}/js/app.js", "").status, 200);
}

// The server's end of a socket, fed frames no page sends: it answers a
// ping, and closes with the code that names the fault.
TEST_F(BridgeServerTest, SocketAnswersPingAndClosesOnBadFrames)
{
    const QByteArray upgrade = "Upgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
                               "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\nOrigin: http://127.0.0.1:{P}\r\n";
    struct Case { const char* what; QByteArray frame, answer; };
    const Case cases[] = {
        {"ping", client_frame(0x89, "hi"), "\x8a\x02hi"},
        {"close", client_frame(0x88, "\x03\xe8"), "\x88\x02\x03\xe8"},
        {"unmasked", client_frame(0x81, "x", false), "\x88\x02\x03\xea"},
        {"binary", client_frame(0x82, "x"), "\x88\x02\x03\xeb"},
        {"not UTF-8", client_frame(0x81, "\xff"), "\x88\x02\x03\xef"},
        {"fragmented ping", client_frame(0x09, "x"), "\x88\x02\x03\xea"},
        {"stray continuation", client_frame(0x80, "x"), "\x88\x02\x03\xea"},
        {"huge", QByteArray("\x81\xff\x00\x00\x01\x00\x00\x00\x00\x00\x11\x22\x33\x44", 14), "\x88\x02\x03\xf1"},
    };
    for (const Case& c : cases) {
        QTcpSocket socket;
        ASSERT_EQ(request(&socket, "GET /{T}/channel/main", "", upgrade).status, 101) << c.what;
        socket.write(c.frame);
        QByteArray got;
        EXPECT_TRUE(wait_until([&] { return (got += socket.readAll()).size() >= c.answer.size(); })) << c.what;
        EXPECT_EQ(got, c.answer) << c.what;
        if (c.answer.startsWith('\x88')) {
            EXPECT_TRUE(wait_until([&] { return socket.state() == QAbstractSocket::UnconnectedState; }, 2000)) << c.what;
        }
    }
    EXPECT_EQ(window.calls, 0);
}

TEST_F(BridgeServerTest, BusyPortAndSecondListenReportFalse)
{
    QTcpServer squatter;
    ASSERT_TRUE(squatter.listen(QHostAddress::LocalHost));
    BridgeServer late;
    EXPECT_FALSE(late.listen(squatter.serverPort()));
    EXPECT_FALSE(server->listen(0));
    EXPECT_TRUE(late.listen(0));
}

TEST(BrowserBridgeNotice, PrintsTheAddressAndKeepsThePrivateTokenFileForItsLifetime)
{
    EXPECT_TRUE(BrowserBridgeNotice::default_path().startsWith(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/"));
    EXPECT_TRUE(BrowserBridgeNotice::default_path().contains("token"));
    QTemporaryDir dir;
    const QString path = dir.path() + "/ovra-web-bridge-token-test";
    QFile stale(path); // left by a run that died, readable by others
    ASSERT_TRUE(stale.open(QIODevice::WriteOnly) && stale.setPermissions(QFile::ReadOwner | QFile::ReadOther));
    stale.close();
    FILE* out = std::tmpfile();
    {
        BrowserBridgeNotice notice(path);
        ASSERT_EQ(notice.publish(12311, "abc123", out), 0);
        struct stat info;
        ASSERT_EQ(::stat(QFile::encodeName(path).constData(), &info), 0);
        EXPECT_EQ(info.st_mode & 0777, 0600u);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), "abc123\n");
    }
    EXPECT_FALSE(QFile::exists(path));
    char printed[128] = {};
    std::rewind(out);
    EXPECT_STREQ(std::fgets(printed, sizeof printed, out), "http://127.0.0.1:12311/abc123/\n");
    std::fclose(out);
}

} // namespace

#include "bridge_server_test.moc"
