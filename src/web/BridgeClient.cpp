#include "web/BridgeClient.h"

#include "web/PageCallLog.h"
#include "web/WebSocketTransport.h"

#include <QJsonObject>
#include <QTimer>
#include <QWebChannel>
#include <QWebSocket>

namespace {

// A page's messages are settings and short commands; anything near this
// size is no page of ours.
const qint64 MAX_MESSAGE_BYTES = 16 * 1024 * 1024;
// A peer that does not answer a close in this time is cut off.
const int CLOSE_GRACE_MS = 3000;

} // namespace

BridgeClient::BridgeClient(std::unique_ptr<QWebSocket> owned_socket, const QString& window,
                           QObject* native_object, QObject* parent)
    : QObject(parent)
    , window_name(window)
    , socket(owned_socket.release())
{
    socket->setParent(this);
    socket->setMaxAllowedIncomingMessageSize(MAX_MESSAGE_BYTES);
    socket->setMaxAllowedIncomingFrameSize(MAX_MESSAGE_BYTES);
    transport = new WebSocketTransport(socket, this);
    if (page_calls().isDebugEnabled()) {
        const QMetaObject* meta = native_object->metaObject();
        connect(transport, &QWebChannelAbstractTransport::messageReceived, this,
                [meta](const QJsonObject& message) { PageCallLog::note(message, meta); });
    }
    channel = new QWebChannel(this);
    channel->registerObject(QStringLiteral("native_object"), native_object);
    channel->connectTo(transport);

    connect(socket, &QWebSocket::disconnected, this, [this] { emit gone(this); });
    connect(native_object, &QObject::destroyed, this,
            [this] { close(QWebSocketProtocol::CloseCodeGoingAway, QStringLiteral("window closed")); });
}

void BridgeClient::close(int code, const QString& reason)
{
    channel->disconnectFrom(transport);
    if (socket->state() == QAbstractSocket::UnconnectedState)
        return;
    socket->close(static_cast<QWebSocketProtocol::CloseCode>(code), reason);
    QTimer::singleShot(CLOSE_GRACE_MS, socket, &QWebSocket::abort);
}
