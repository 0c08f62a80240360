#pragma once

#include "web/BridgeGate.h"

#include <QByteArray>
#include <QObject>

struct HttpRequestHead;
class QTcpSocket;

// The server's end of one page's WebSocket (RFC 6455), on a connection whose
// upgrade the HTTP side has admitted and answered. Text messages only, as a
// web channel sends them; no extensions, no TLS. Qt's own WebSocket class
// is not used here because building one from a server socket sets up TLS,
// which would load the TLS libraries into the resident program for good.
class BridgeSocket : public QObject
{
    Q_OBJECT

public:
    // The close codes this bridge sends (RFC 6455, 7.4.1).
    enum CloseCode
    {
        NORMAL = 1000,
        GOING_AWAY = 1001,
        PROTOCOL_ERROR = 1002,
        UNSUPPORTED_DATA = 1003,
        NO_STATUS = 1005,
        INVALID_TEXT = 1007,
        POLICY_VIOLATED = 1008,
        TOO_BIG = 1009,
    };

    // Messages past this size are no page of ours; the socket closes.
    static const qint64 MAX_MESSAGE_BYTES = 16 * 1024 * 1024;

    // The 101 answer to a well-formed upgrade request, or empty when the
    // request lacks what a WebSocket handshake needs.
    static QByteArray handshake_reply(const HttpRequestHead& head);

    // Takes the connection over, after the 101 answer has been written.
    BridgeSocket(QTcpSocket* connection, const BridgeRequest& request, QObject* parent = nullptr);

    // The upgrade request as the gate saw it.
    const BridgeRequest& request() const { return upgrade_request; }
    bool is_open() const;
    void send_text(const QString& text);
    // Sends a close frame; the peer's answer, or `abort()`, ends the socket.
    void close(int code, const QString& reason);
    void abort();
    int close_code() const { return peer_close_code; }

signals:
    void text_received(const QString& text);
    // Once, when the connection is gone.
    void disconnected();

private:
    void read_frames();
    // False when the buffer holds no whole frame yet, or the socket failed.
    bool take_frame();
    void message_done();
    void fail(int code);
    void send_frame(int opcode, const QByteArray& payload);
    void connection_gone();

    QTcpSocket* connection;
    BridgeRequest upgrade_request;
    QByteArray buffer;
    QByteArray message;
    bool in_message = false;
    bool close_sent = false;
    bool gone = false;
    int peer_close_code = 0;
};
