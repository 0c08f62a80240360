#include "web/BridgeServer.h"

#include "web/BridgeClient.h"
#include "web/BridgeGate.h"
#include "web/BridgeHttpServer.h"
#include "web/BridgeSocket.h"
#include "web/BridgeToken.h"
#include "web/PageFiles.h"

#include <QTcpServer>
#include <QTimer>
#include <QUrl>
#include <cstdio>

const char* const BridgeServer::TAKEN_OVER_REASON = "opened elsewhere";

namespace {

const int REFUSED_CLOSE_GRACE_MS = 3000;

} // namespace

BridgeServer::BridgeServer(QObject* parent, const QString& page_root)
    : QObject(parent)
    , secret(BridgeToken::generate())
    , files(std::make_unique<PageFiles>(page_root))
    , request_timeout_ms(BridgeHttpServer::REQUEST_TIMEOUT_MS)
{
}

BridgeServer::~BridgeServer()
{
    // Sockets closing now must not call back into a server half taken down,
    // and the HTTP server must go before the gate and files it refers to.
    for (BridgeClient* client : findChildren<BridgeClient*>(Qt::FindDirectChildrenOnly)) {
        client->disconnect(this);
        delete client;
    }
    delete http;
}

bool BridgeServer::listen(quint16 requested_port)
{
    if (http) {
        std::fprintf(stderr, "Ovra web bridge: already listening on port %u\n", unsigned(bound_port));
        return false;
    }
    auto* tcp = new QTcpServer;
    if (!tcp->listen(QHostAddress::LocalHost, requested_port)) {
        std::fprintf(stderr, "Ovra web bridge: cannot listen on 127.0.0.1 port %u: %s\n",
                     unsigned(requested_port), tcp->errorString().toUtf8().constData());
        delete tcp;
        return false;
    }
    bound_port = tcp->serverPort();
    gate = std::make_unique<BridgeGate>(bound_port, secret);
    http = new BridgeHttpServer(*gate, *files, [this](const QString& window) { return resolve(window) != nullptr; },
                                this);
    http->set_request_timeout(request_timeout_ms);
    http->serve(tcp);
    connect(http, &BridgeHttpServer::newWebSocketConnection, this, &BridgeServer::take_sockets);
    return true;
}

void BridgeServer::set_window_resolver(WindowResolver window_resolver)
{
    resolver = std::move(window_resolver);
}

void BridgeServer::set_request_timeout(int ms)
{
    request_timeout_ms = ms;
    if (http)
        http->set_request_timeout(ms);
}

void BridgeServer::set_single_window(const QString& window, bool single)
{
    if (single)
        single_windows.insert(window);
    else
        single_windows.remove(window);
}

int BridgeServer::client_count(const QString& window) const
{
    int count = 0;
    for (const BridgeClient* client : clients)
        if (client->window() == window)
            ++count;
    return count;
}

QString BridgeServer::page_url(const QString& page, const QString& window) const
{
    return QStringLiteral("http://127.0.0.1:%1/%2/%3?window=%4")
        .arg(QString::number(bound_port), secret, QString::fromLatin1(QUrl::toPercentEncoding(page, "/")),
             QString::fromLatin1(QUrl::toPercentEncoding(window)));
}

QString BridgeServer::channel_url(const QString& window) const
{
    return QStringLiteral("ws://127.0.0.1:%1/%2/channel/%3")
        .arg(QString::number(bound_port), secret, QString::fromLatin1(QUrl::toPercentEncoding(window)));
}

void BridgeServer::share_single_windows(BridgeServer* a, BridgeServer* b)
{
    auto link = [](BridgeServer* from, BridgeServer* to) {
        connect(from, &BridgeServer::client_connected, to, [from, to](const QString& window) {
            if (from->is_single_window(window))
                to->drop_clients(window, TAKEN_OVER_CODE, QString::fromLatin1(TAKEN_OVER_REASON));
        });
    };
    link(a, b);
    link(b, a);
}

void BridgeServer::drop_clients(const QString& window, int code, const QString& reason)
{
    QList<BridgeClient*> dropped;
    for (BridgeClient* client : clients)
        if (client->window() == window)
            dropped.append(client);
    for (BridgeClient* client : dropped) {
        clients.removeOne(client);
        client->close(code, reason);
    }
    for (int i = 0; i < dropped.size(); ++i)
        emit client_disconnected(window);
}

void BridgeServer::take_sockets()
{
    while (http->hasPendingWebSocketConnections())
        accept(http->nextPendingWebSocketConnection());
}

void BridgeServer::accept(std::unique_ptr<BridgeSocket> socket)
{
    if (!socket)
        return;
    // The HTTP side has checked the upgrade already; the socket is checked
    // again as it stands, so that no road to an object skips the gate.
    const BridgeVerdict verdict = gate->admit(socket->request());
    QObject* object = verdict.kind == BridgeVerdict::Kind::Channel ? resolve(verdict.window) : nullptr;
    if (!object) {
        BridgeHttpServer::report_refusal(bound_port, QStringLiteral("a WebSocket"),
                                         verdict.kind == BridgeVerdict::Kind::Refuse
                                             ? verdict.reason
                                             : QStringLiteral("no window \"%1\" here").arg(verdict.window));
        BridgeSocket* refused = socket.release();
        refused->setParent(this);
        connect(refused, &BridgeSocket::disconnected, refused, &QObject::deleteLater);
        QTimer::singleShot(REFUSED_CLOSE_GRACE_MS, refused, &QObject::deleteLater);
        refused->close(BridgeSocket::POLICY_VIOLATED, QStringLiteral("refused"));
        return;
    }
    if (!socket->is_open())
        return;

    const QString window = verdict.window;
    if (single_windows.contains(window))
        drop_clients(window, TAKEN_OVER_CODE, QString::fromLatin1(TAKEN_OVER_REASON));
    auto* client = new BridgeClient(std::move(socket), window, object, this);
    connect(client, &BridgeClient::gone, this, &BridgeServer::client_gone);
    clients.append(client);
    emit client_connected(window);
}

void BridgeServer::client_gone(BridgeClient* client)
{
    client->deleteLater();
    if (clients.removeOne(client))
        emit client_disconnected(client->window());
}

QObject* BridgeServer::resolve(const QString& window) const
{
    return resolver ? resolver(window) : nullptr;
}
