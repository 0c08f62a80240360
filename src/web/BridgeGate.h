#pragma once

#include <QByteArray>
#include <QString>

// What the gate needs to know of one HTTP request or WebSocket upgrade.
struct BridgeRequest
{
    QByteArray method;      // "GET", "POST", ...
    QByteArray host;        // the Host header as sent, empty when missing
    QByteArray origin;      // the Origin header as sent
    bool has_origin = false;
    QByteArray path;        // percent-encoded, as in the request line
    QByteArray query_token; // the token= query item, percent-decoded
    bool has_query_token = false;
    bool upgrade = false;   // asks for a WebSocket
};

// What to do with it.
struct BridgeVerdict
{
    enum class Kind { Refuse, Redirect, PageFile, ChannelScript, Channel };
    Kind kind = Kind::Refuse;
    int status = 403;     // Refuse: the HTTP status to answer with
    QString reason;       // Refuse: what was wrong, for the one log line
    QByteArray location;  // Redirect: the absolute path to go to
    QString file;         // PageFile: the path below the page folder
    QString window;       // Channel: the window the socket is for
};

// The checks every request to a bridge server passes: the Host names this
// server, a socket comes from one of this server's own pages, the first path
// segment is the token, and nothing in the path climbs out of the page folder.
// It decides; it answers nothing and holds no state beyond port and token.
class BridgeGate
{
public:
    BridgeGate(quint16 port, const QString& token);

    BridgeVerdict admit(const BridgeRequest& request) const;
    quint16 port() const { return listening_port; }

    // Makes text from a request safe for one log line.
    static QString printable(const QByteArray& text);

    static const char* const DEFAULT_PAGE;

private:
    bool host_allowed(const QByteArray& host) const;
    bool origin_allowed(const QByteArray& origin) const;
    bool token_matches(const QByteArray& candidate) const;
    BridgeVerdict admit_below_token(const QStringList& rest, const BridgeRequest& request) const;

    quint16 listening_port;
    QByteArray token;
    QByteArray loopback_host;
    QByteArray localhost_host;
    QByteArray loopback_origin;
    QByteArray localhost_origin;
};
