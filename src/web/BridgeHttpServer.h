#pragma once

#include "web/BridgeGate.h"
#include "web/PageFiles.h"

#include <QAbstractHttpServer>
#include <functional>

class QHttpServerRequest;
class QHttpServerResponder;

// The HTTP side of a bridge server: answers page requests after the gate's
// checks and lets through only the WebSocket upgrades the gate admits for a
// window that exists. The sockets themselves come out of
// newWebSocketConnection() for whoever owns this server.
class BridgeHttpServer : public QAbstractHttpServer
{
public:
    using WindowCheck = std::function<bool(const QString& window)>;

    BridgeHttpServer(const BridgeGate& gate, const PageFiles& files, WindowCheck window_exists,
                     QObject* parent = nullptr);

    // What the gate needs to know of a request, as Qt parsed it.
    static BridgeRequest describe(const QHttpServerRequest& request);

    // Writes the one log line of a refused request or socket.
    static void report_refusal(quint16 port, const QString& what, const QString& reason);

protected:
    bool handleRequest(const QHttpServerRequest& request, QTcpSocket* socket) override;
    void missingHandler(const QHttpServerRequest& request, QTcpSocket* socket) override;

private:
    void answer(QHttpServerResponder& responder, const BridgeVerdict& verdict, const BridgeRequest& facts);
    static void send(QHttpServerResponder& responder, int status, const QByteArray& type,
                     const QByteArray& body, const QByteArray& location = QByteArray());

    const BridgeGate& gate;
    const PageFiles& files;
    WindowCheck window_exists;
    // Qt answers a refused upgrade through missingHandler() right after
    // handleRequest() returns false for it; this carries the status across.
    int refused_upgrade_status = 404;
};
