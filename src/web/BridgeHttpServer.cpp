#include "web/BridgeHttpServer.h"

#include "web/BridgeSocket.h"
#include "web/HttpRequestHead.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrlQuery>
#include <cstdio>

namespace {

// Enough for a request head and its limit; Qt stops reading from the
// network once this much waits unread, so a flood cannot grow it.
const qint64 READ_BUFFER_BYTES = 64 * 1024;
// A client that does not read its replies gets no more until it has.
const qint64 MAX_UNSENT_BYTES = 1024 * 1024;

QByteArray reason_phrase(int status)
{
    switch (status) {
    case 200: return "OK";
    case 302: return "Found";
    case 400: return "Bad Request";
    case 403: return "Forbidden";
    case 404: return "Not Found";
    case 405: return "Method Not Allowed";
    case 431: return "Request Header Fields Too Large";
    case 503: return "Service Unavailable";
    case 505: return "HTTP Version Not Supported";
    default: return "Error";
    }
}

const QByteArray TEXT_TYPE = "text/plain; charset=utf-8";

} // namespace

BridgeHttpServer::BridgeHttpServer(const BridgeGate& gate, const PageFiles& files,
                                   WindowCheck window_exists, QObject* parent)
    : QObject(parent)
    , gate(gate)
    , files(files)
    , window_exists(std::move(window_exists))
{
}

BridgeHttpServer::~BridgeHttpServer()
{
    // The sockets are the listening server's children and go with it; none
    // may call back into a server half taken down.
    for (QTcpSocket* socket : connections.keys())
        socket->disconnect(this);
}

void BridgeHttpServer::serve(QTcpServer* server)
{
    tcp = server;
    tcp->setParent(this);
    connect(tcp, &QTcpServer::newConnection, this, &BridgeHttpServer::take_connections);
}

bool BridgeHttpServer::hasPendingWebSocketConnections() const
{
    return !upgraded.isEmpty();
}

std::unique_ptr<BridgeSocket> BridgeHttpServer::nextPendingWebSocketConnection()
{
    if (upgraded.isEmpty())
        return nullptr;
    BridgeSocket* socket = upgraded.takeFirst();
    socket->setParent(nullptr);
    return std::unique_ptr<BridgeSocket>(socket);
}

BridgeRequest BridgeHttpServer::describe(const HttpRequestHead& head)
{
    BridgeRequest facts;
    facts.method = head.method;
    facts.host = head.value("Host");
    facts.has_origin = head.has_field("Origin");
    facts.origin = head.value("Origin");
    facts.path = head.path();
    const QUrlQuery query(QString::fromUtf8(head.query()));
    facts.has_query_token = query.hasQueryItem(QStringLiteral("token"));
    facts.query_token = query.queryItemValue(QStringLiteral("token"), QUrl::FullyDecoded).toUtf8();
    facts.upgrade = head.value("Upgrade").compare("websocket", Qt::CaseInsensitive) == 0;
    return facts;
}

void BridgeHttpServer::report_refusal(quint16 port, const QString& what, const QString& reason)
{
    std::fprintf(stderr, "Ovra web bridge on port %u refused %s: %s\n", unsigned(port),
                 what.toUtf8().constData(), reason.toUtf8().constData());
}

void BridgeHttpServer::take_connections()
{
    while (QTcpSocket* socket = tcp->nextPendingConnection()) {
        if (connections.size() >= MAX_CONNECTIONS) {
            report_refusal(gate.port(), QStringLiteral("a connection"), QStringLiteral("too many open connections"));
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            send_refusal(socket, 503, true);
            // Gone for good even if the client never reads its answer.
            QTimer::singleShot(request_timeout_ms, socket, [socket] { socket->abort(); socket->deleteLater(); });
            continue;
        }
        socket->setReadBufferSize(READ_BUFFER_BYTES);
        auto* deadline = new QTimer(socket);
        deadline->setSingleShot(true);
        deadline->setInterval(request_timeout_ms);
        connect(deadline, &QTimer::timeout, this, [this, socket] { deadline_passed(socket); });
        deadline->start();
        connections.insert(socket, deadline);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read_requests(socket); });
        connect(socket, &QTcpSocket::bytesWritten, this, [this, socket] { read_requests(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] { drop(socket); });
        read_requests(socket);
    }
}

void BridgeHttpServer::read_requests(QTcpSocket* socket)
{
    // Requests may come pipelined; each is answered in turn. The head is read
    // inside a transaction and put back, and skipped only once answered:
    // an answer may bring this back here for the next one.
    while (connections.contains(socket) && socket->state() == QAbstractSocket::ConnectedState
           && socket->bytesAvailable() > 0 && socket->bytesToWrite() < MAX_UNSENT_BYTES) {
        socket->startTransaction();
        const QByteArray data = socket->readAll();
        socket->rollbackTransaction();
        const HttpRequestParser::Result result = HttpRequestParser::parse(data);
        if (result.state == HttpRequestParser::State::Incomplete)
            return;
        if (result.state == HttpRequestParser::State::Bad) {
            report_refusal(gate.port(), QStringLiteral("a request"), QString::fromLatin1(result.reason));
            send_refusal(socket, result.status, true);
            return;
        }
        if (!answer_request(socket, result.head, result.consumed))
            return;
    }
}

bool BridgeHttpServer::answer_request(QTcpSocket* socket, const HttpRequestHead& head, qsizetype head_bytes)
{
    const BridgeRequest facts = describe(head);
    BridgeVerdict verdict = gate.admit(facts);
    if (verdict.kind == BridgeVerdict::Kind::Channel && !window_exists(verdict.window)) {
        verdict.kind = BridgeVerdict::Kind::Refuse;
        verdict.status = 404;
        verdict.reason = QStringLiteral("no window \"%1\" here").arg(verdict.window);
    }
    // Only GET is served, and a GET carries nothing: a body is never read,
    // so the connection cannot go on after it.
    const bool body = head.has_body();
    if (body && verdict.kind != BridgeVerdict::Kind::Refuse) {
        verdict.kind = BridgeVerdict::Kind::Refuse;
        verdict.status = 400;
        verdict.reason = QStringLiteral("a request with a body");
    }

    if (facts.upgrade && verdict.kind == BridgeVerdict::Kind::Channel) {
        upgrade(socket, head, head_bytes, facts);
        return false;
    }
    socket->skip(head_bytes);
    if (facts.upgrade) {
        if (verdict.kind != BridgeVerdict::Kind::Refuse) {
            verdict.status = 404;
            verdict.reason = QStringLiteral("WebSocket on a path that is no channel");
        }
        report_refusal(gate.port(), QStringLiteral("a WebSocket"), verdict.reason);
        send_refusal(socket, verdict.status, true);
        return false;
    }
    const bool close = body || head.wants_close();
    answer_verdict(socket, verdict, facts, close);
    if (close)
        return false;
    if (QTimer* deadline = connections.value(socket))
        deadline->start();
    return true;
}

void BridgeHttpServer::answer_verdict(QTcpSocket* socket, const BridgeVerdict& verdict,
                                      const BridgeRequest& facts, bool close)
{
    QByteArray content;
    switch (verdict.kind) {
    case BridgeVerdict::Kind::Redirect:
        send(socket, verdict.status, TEXT_TYPE, QByteArray(), verdict.location, close);
        return;
    case BridgeVerdict::Kind::ChannelScript:
        if (PageFiles::read_channel_script(&content)) {
            send(socket, 200, PageFiles::content_type(QStringLiteral("qwebchannel.js")), content, {}, close);
            return;
        }
        report_refusal(gate.port(), QStringLiteral("a request"), QStringLiteral("Qt's qwebchannel.js is not in the resources"));
        send_refusal(socket, 404, close);
        return;
    case BridgeVerdict::Kind::PageFile:
        if (files.read(verdict.file, &content)) {
            send(socket, 200, PageFiles::content_type(verdict.file), content, {}, close);
            return;
        }
        report_refusal(gate.port(), QStringLiteral("a request"), QStringLiteral("no page file \"%1\"").arg(BridgeGate::printable(verdict.file.toUtf8())));
        send_refusal(socket, 404, close);
        return;
    case BridgeVerdict::Kind::Channel:
    case BridgeVerdict::Kind::Refuse:
        break;
    }
    // A browser asks for the icon at the root on its own; that is no
    // intruder and not worth a line.
    if (!(facts.path == "/favicon.ico" && verdict.status == 403))
        report_refusal(gate.port(), QStringLiteral("a request"), verdict.reason);
    send_refusal(socket, verdict.status, close);
}

void BridgeHttpServer::upgrade(QTcpSocket* socket, const HttpRequestHead& head, qsizetype head_bytes,
                               const BridgeRequest& facts)
{
    socket->skip(head_bytes);
    const QByteArray reply = BridgeSocket::handshake_reply(head);
    if (reply.isEmpty()) {
        report_refusal(gate.port(), QStringLiteral("a WebSocket"), QStringLiteral("malformed handshake"));
        send_refusal(socket, 400, true);
        return;
    }
    // From here on the connection is the WebSocket's.
    socket->disconnect(this);
    delete connections.take(socket);
    socket->setReadBufferSize(0);
    socket->write(reply);
    upgraded.append(new BridgeSocket(socket, facts, this));
    emit newWebSocketConnection();
}

void BridgeHttpServer::send(QTcpSocket* socket, int status, const QByteArray& type, const QByteArray& body,
                            const QByteArray& location, bool close)
{
    QByteArray head = "HTTP/1.1 " + QByteArray::number(status) + ' ' + reason_phrase(status) + "\r\n"
        "Content-Type: " + type + "\r\n"
        "Content-Length: " + QByteArray::number(body.size()) + "\r\n"
        "Referrer-Policy: no-referrer\r\n"
        "Cache-Control: no-store\r\n"
        "X-Content-Type-Options: nosniff\r\n";
    if (status == 405)
        head += "Allow: GET\r\n";
    if (!location.isEmpty())
        head += "Location: " + location + "\r\n";
    if (close)
        head += "Connection: close\r\n";
    socket->write(head + "\r\n" + body);
    if (close) {
        // Nothing more is read; the deadline still ends a client that never
        // takes its answer.
        if (QTimer* deadline = connections.value(socket))
            deadline->start();
        socket->disconnectFromHost();
    }
}

void BridgeHttpServer::send_refusal(QTcpSocket* socket, int status, bool close)
{
    send(socket, status, TEXT_TYPE, reason_phrase(status) + '\n', {}, close);
}

void BridgeHttpServer::deadline_passed(QTcpSocket* socket)
{
    // An idle connection is closed the polite way, so that a browser sees
    // an end rather than an error; one that still owes us reading is cut.
    if (socket->state() != QAbstractSocket::ConnectedState || socket->bytesToWrite() > 0) {
        drop(socket);
        return;
    }
    socket->disconnectFromHost();
    if (QTimer* deadline = connections.value(socket))
        deadline->start();
}

void BridgeHttpServer::drop(QTcpSocket* socket)
{
    QTimer* deadline = connections.take(socket);
    if (!deadline)
        return;
    socket->disconnect(this);
    socket->abort();
    socket->deleteLater();
}
