#pragma once

#include "web/BridgeGate.h"
#include "web/PageFiles.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <functional>
#include <memory>

struct HttpRequestHead;
class BridgeSocket;
class QTcpServer;
class QTcpSocket;
class QTimer;

// The HTTP side of a bridge server: a small HTTP/1.1 server for bodiless GET
// requests on loopback that answers page requests after the gate's checks,
// keeps connections alive for a page's many files, and passes on only the
// WebSocket upgrades the gate admits for a window that exists. The upgraded
// sockets come out of nextPendingWebSocketConnection() for whoever owns this
// server. Plain HTTP only: nothing here needs or loads TLS.
class BridgeHttpServer : public QObject
{
    Q_OBJECT

public:
    using WindowCheck = std::function<bool(const QString& window)>;

    // A connection must finish each request head within this time, counted
    // from its opening or its last reply; one that does not is dropped.
    static const int REQUEST_TIMEOUT_MS = 10000;
    // Connections past this many are answered 503 and closed at once.
    static const int MAX_CONNECTIONS = 128;

    BridgeHttpServer(const BridgeGate& gate, const PageFiles& files, WindowCheck window_exists,
                     QObject* parent = nullptr);
    ~BridgeHttpServer() override;

    // Takes over a listening server and answers its connections.
    void serve(QTcpServer* server);
    // For connections opened from now on.
    void set_request_timeout(int ms) { request_timeout_ms = ms; }

    bool hasPendingWebSocketConnections() const;
    std::unique_ptr<BridgeSocket> nextPendingWebSocketConnection();

    // What the gate needs to know of a request.
    static BridgeRequest describe(const HttpRequestHead& head);

    // Writes the one log line of a refused request or socket.
    static void report_refusal(quint16 port, const QString& what, const QString& reason);

signals:
    void newWebSocketConnection();

private:
    void take_connections();
    void read_requests(QTcpSocket* socket);
    // False once the socket is closing or no longer this server's.
    bool answer_request(QTcpSocket* socket, const HttpRequestHead& head, qsizetype head_bytes);
    void answer_verdict(QTcpSocket* socket, const BridgeVerdict& verdict, const BridgeRequest& facts, bool close);
    void upgrade(QTcpSocket* socket, const HttpRequestHead& head, qsizetype head_bytes, const BridgeRequest& facts);
    void send(QTcpSocket* socket, int status, const QByteArray& type, const QByteArray& body,
              const QByteArray& location, bool close);
    void send_refusal(QTcpSocket* socket, int status, bool close);
    void deadline_passed(QTcpSocket* socket);
    void drop(QTcpSocket* socket);

    const BridgeGate& gate;
    const PageFiles& files;
    WindowCheck window_exists;
    int request_timeout_ms = REQUEST_TIMEOUT_MS;
    QTcpServer* tcp = nullptr;
    QList<BridgeSocket*> upgraded;
    // Each open connection and the deadline of its next request.
    QHash<QTcpSocket*, QTimer*> connections;
};
