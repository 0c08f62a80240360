#include "web/BridgeGate.h"

#include "web/BridgeToken.h"

#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

const char* const BridgeGate::DEFAULT_PAGE = "main_screen.html";

namespace {

BridgeVerdict refuse(int status, const QString& reason)
{
    BridgeVerdict verdict;
    verdict.kind = BridgeVerdict::Kind::Refuse;
    verdict.status = status;
    verdict.reason = reason;
    return verdict;
}

BridgeVerdict redirect(const QByteArray& location)
{
    BridgeVerdict verdict;
    verdict.kind = BridgeVerdict::Kind::Redirect;
    verdict.status = 302;
    verdict.location = location;
    return verdict;
}

// Splits an absolute, percent-encoded path into decoded segments. Segments
// are decoded one by one, so an encoded slash cannot join two of them, and a
// segment that could step out of its folder on any file system (".", "..",
// a backslash, a NUL) makes the whole path unusable. A trailing slash leaves
// no empty segment behind.
bool split_path(const QByteArray& encoded, QStringList* segments)
{
    if (!encoded.startsWith('/'))
        return false;
    const QList<QByteArray> parts = encoded.mid(1).split('/');
    for (int i = 0; i < parts.size(); ++i) {
        const QString segment = QUrl::fromPercentEncoding(parts[i]);
        if (segment.isEmpty()) {
            if (i == parts.size() - 1)
                break;
            return false;
        }
        if (segment == QLatin1String(".") || segment == QLatin1String("..")
            || segment.contains(QLatin1Char('/')) || segment.contains(QLatin1Char('\\'))
            || segment.contains(QChar(0)))
            return false;
        segments->append(segment);
    }
    return true;
}

bool window_name_valid(const QString& window)
{
    static const QRegularExpression shape(QStringLiteral("^[A-Za-z0-9_-]{1,64}$"));
    return shape.match(window).hasMatch();
}

} // namespace

BridgeGate::BridgeGate(quint16 port, const QString& token)
    : listening_port(port)
    , token(token.toLatin1())
    , loopback_host("127.0.0.1:" + QByteArray::number(port))
    , localhost_host("localhost:" + QByteArray::number(port))
    , loopback_origin("http://" + loopback_host)
    , localhost_origin("http://" + localhost_host)
{
}

QString BridgeGate::printable(const QByteArray& text)
{
    QString out;
    for (qsizetype i = 0; i < text.size() && i < 80; ++i) {
        const char c = text[i];
        out += (c >= 0x20 && c < 0x7f) ? QLatin1Char(c) : QLatin1Char('?');
    }
    if (text.size() > 80)
        out += QStringLiteral("...");
    return out;
}

bool BridgeGate::host_allowed(const QByteArray& host) const
{
    return host == loopback_host || host == localhost_host;
}

bool BridgeGate::origin_allowed(const QByteArray& origin) const
{
    return origin == loopback_origin || origin == localhost_origin;
}

bool BridgeGate::token_matches(const QByteArray& candidate) const
{
    return BridgeToken::matches(token, candidate);
}

BridgeVerdict BridgeGate::admit(const BridgeRequest& request) const
{
    if (request.host.isEmpty())
        return refuse(403, QStringLiteral("no Host header"));
    if (!host_allowed(request.host))
        return refuse(403, QStringLiteral("Host \"%1\" is not this server").arg(printable(request.host)));
    if (request.upgrade) {
        // Only this server's own pages may open a socket: a page from any
        // other origin could otherwise drive the native object if it ever
        // learnt the token.
        if (!request.has_origin)
            return refuse(403, QStringLiteral("WebSocket without an Origin"));
        if (!origin_allowed(request.origin))
            return refuse(403, QStringLiteral("WebSocket from Origin \"%1\"").arg(printable(request.origin)));
    }
    if (request.method != "GET")
        return refuse(405, QStringLiteral("method %1").arg(printable(request.method)));

    QStringList segments;
    if (!split_path(request.path, &segments))
        return refuse(404, QStringLiteral("path leaves the page folder or is malformed"));

    if (segments.isEmpty()) {
        if (!request.has_query_token)
            return refuse(403, QStringLiteral("no token"));
        if (request.upgrade)
            return refuse(404, QStringLiteral("WebSocket on a path that is no channel"));
        if (!token_matches(request.query_token))
            return refuse(403, QStringLiteral("wrong token"));
        return redirect('/' + token + '/');
    }
    if (!token_matches(segments.first().toUtf8()))
        return refuse(403, QStringLiteral("missing or wrong token"));
    return admit_below_token(segments.mid(1), request);
}

BridgeVerdict BridgeGate::admit_below_token(const QStringList& rest, const BridgeRequest& request) const
{
    const bool channel = !rest.isEmpty() && rest.first() == QLatin1String("channel");
    if (request.upgrade) {
        if (!channel || rest.size() != 2)
            return refuse(404, QStringLiteral("WebSocket on a path that is no channel"));
        if (!window_name_valid(rest[1]))
            return refuse(404, QStringLiteral("malformed window name \"%1\"").arg(printable(rest[1].toUtf8())));
        BridgeVerdict verdict;
        verdict.kind = BridgeVerdict::Kind::Channel;
        verdict.status = 101;
        verdict.window = rest[1];
        return verdict;
    }
    if (channel)
        return refuse(400, QStringLiteral("channel asked for without a WebSocket upgrade"));
    if (rest.isEmpty())
        return redirect('/' + token + '/' + DEFAULT_PAGE);

    BridgeVerdict verdict;
    verdict.status = 200;
    if (rest.size() == 2 && rest[0] == QLatin1String("js") && rest[1] == QLatin1String("qwebchannel.js")) {
        verdict.kind = BridgeVerdict::Kind::ChannelScript;
        return verdict;
    }
    verdict.kind = BridgeVerdict::Kind::PageFile;
    verdict.file = rest.join(QLatin1Char('/'));
    return verdict;
}
