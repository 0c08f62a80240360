#include "web/BridgeHttpServer.h"

#include <QHttpServerRequest>
#include <QHttpServerResponder>
#include <QMetaEnum>
#include <QUrlQuery>
#include <cstdio>

namespace {

QByteArray method_name(QHttpServerRequest::Method method)
{
    if (method == QHttpServerRequest::Method::Get)
        return "GET";
    const char* key = QMetaEnum::fromType<QHttpServerRequest::Method>().valueToKey(int(method));
    return key ? QByteArray(key).toUpper() : QByteArray("UNKNOWN");
}

QByteArray reason_phrase(int status)
{
    switch (status) {
    case 200: return "OK";
    case 302: return "Found";
    case 400: return "Bad Request";
    case 403: return "Forbidden";
    case 404: return "Not Found";
    case 405: return "Method Not Allowed";
    default: return "Error";
    }
}

} // namespace

BridgeHttpServer::BridgeHttpServer(const BridgeGate& gate, const PageFiles& files,
                                   WindowCheck window_exists, QObject* parent)
    : QAbstractHttpServer(parent)
    , gate(gate)
    , files(files)
    , window_exists(std::move(window_exists))
{
}

BridgeRequest BridgeHttpServer::describe(const QHttpServerRequest& request)
{
    BridgeRequest facts;
    facts.method = method_name(request.method());
    facts.host = request.value("Host");
    for (const auto& header : request.headers()) {
        if (header.first.compare("Origin", Qt::CaseInsensitive) == 0) {
            facts.origin = header.second;
            facts.has_origin = true;
        }
    }
    facts.path = request.url().path(QUrl::FullyEncoded).toUtf8();
    const QUrlQuery query = request.query();
    facts.has_query_token = query.hasQueryItem(QStringLiteral("token"));
    facts.query_token = query.queryItemValue(QStringLiteral("token"), QUrl::FullyDecoded).toUtf8();
    facts.upgrade = request.value("Upgrade").compare("websocket", Qt::CaseInsensitive) == 0;
    return facts;
}

void BridgeHttpServer::report_refusal(quint16 port, const QString& what, const QString& reason)
{
    std::fprintf(stderr, "Ovra web bridge on port %u refused %s: %s\n", unsigned(port),
                 what.toUtf8().constData(), reason.toUtf8().constData());
}

bool BridgeHttpServer::handleRequest(const QHttpServerRequest& request, QTcpSocket* socket)
{
    const BridgeRequest facts = describe(request);
    BridgeVerdict verdict = gate.admit(facts);
    if (verdict.kind == BridgeVerdict::Kind::Channel && !window_exists(verdict.window)) {
        verdict.kind = BridgeVerdict::Kind::Refuse;
        verdict.status = 404;
        verdict.reason = QStringLiteral("no window \"%1\" here").arg(verdict.window);
    }

    if (facts.upgrade) {
        // Returning true lets Qt finish the handshake; returning false makes
        // it answer through missingHandler() and close the connection.
        if (verdict.kind == BridgeVerdict::Kind::Channel)
            return true;
        if (verdict.kind != BridgeVerdict::Kind::Refuse) {
            verdict.status = 404;
            verdict.reason = QStringLiteral("WebSocket on a path that is no channel");
        }
        report_refusal(gate.port(), QStringLiteral("a WebSocket"), verdict.reason);
        refused_upgrade_status = verdict.status;
        return false;
    }

    QHttpServerResponder responder = makeResponder(request, socket);
    answer(responder, verdict, facts);
    return true;
}

void BridgeHttpServer::missingHandler(const QHttpServerRequest& request, QTcpSocket* socket)
{
    QHttpServerResponder responder = makeResponder(request, socket);
    send(responder, refused_upgrade_status, "text/plain; charset=utf-8", reason_phrase(refused_upgrade_status) + '\n');
    refused_upgrade_status = 404;
}

void BridgeHttpServer::answer(QHttpServerResponder& responder, const BridgeVerdict& verdict,
                              const BridgeRequest& facts)
{
    QByteArray content;
    switch (verdict.kind) {
    case BridgeVerdict::Kind::Redirect:
        send(responder, verdict.status, "text/plain; charset=utf-8", QByteArray(), verdict.location);
        return;
    case BridgeVerdict::Kind::ChannelScript:
        if (PageFiles::read_channel_script(&content)) {
            send(responder, 200, PageFiles::content_type(QStringLiteral("qwebchannel.js")), content);
            return;
        }
        report_refusal(gate.port(), QStringLiteral("a request"), QStringLiteral("Qt's qwebchannel.js is not in the resources"));
        send(responder, 404, "text/plain; charset=utf-8", reason_phrase(404) + '\n');
        return;
    case BridgeVerdict::Kind::PageFile:
        if (files.read(verdict.file, &content)) {
            send(responder, 200, PageFiles::content_type(verdict.file), content);
            return;
        }
        report_refusal(gate.port(), QStringLiteral("a request"), QStringLiteral("no page file \"%1\"").arg(BridgeGate::printable(verdict.file.toUtf8())));
        send(responder, 404, "text/plain; charset=utf-8", reason_phrase(404) + '\n');
        return;
    case BridgeVerdict::Kind::Channel:
    case BridgeVerdict::Kind::Refuse:
        break;
    }
    // A browser asks for the icon at the root on its own; that is no
    // intruder and not worth a line.
    if (!(facts.path == "/favicon.ico" && verdict.status == 403))
        report_refusal(gate.port(), QStringLiteral("a request"), verdict.reason);
    send(responder, verdict.status, "text/plain; charset=utf-8", reason_phrase(verdict.status) + '\n');
}

void BridgeHttpServer::send(QHttpServerResponder& responder, int status, const QByteArray& type,
                            const QByteArray& body, const QByteArray& location)
{
    responder.writeStatusLine(static_cast<QHttpServerResponder::StatusCode>(status));
    responder.writeHeader("Content-Type", type);
    responder.writeHeader("Content-Length", QByteArray::number(body.size()));
    responder.writeHeader("Referrer-Policy", "no-referrer");
    responder.writeHeader("Cache-Control", "no-store");
    responder.writeHeader("X-Content-Type-Options", "nosniff");
    if (status == 405)
        responder.writeHeader("Allow", "GET");
    if (!location.isEmpty())
        responder.writeHeader("Location", location);
    responder.writeBody(body);
}
