#include "web/BridgeClient.h"

#include "web/BridgeSocket.h"
#include "web/PageCallLog.h"
#include "web/WebSocketTransport.h"

#include <QJsonObject>
#include <QTimer>
#include <QWebChannel>

namespace {

// A peer that does not answer a close in this time is cut off.
const int CLOSE_GRACE_MS = 3000;

} // namespace

BridgeClient::BridgeClient(std::unique_ptr<BridgeSocket> owned_socket, const QString& window,
                           QObject* native_object, QObject* parent)
    : QObject(parent)
    , window_name(window)
    , socket(owned_socket.release())
{
    socket->setParent(this);
    transport = new WebSocketTransport(socket, this);
    if (page_calls().isDebugEnabled()) {
        const QMetaObject* meta = native_object->metaObject();
        connect(transport, &QWebChannelAbstractTransport::messageReceived, this,
                [meta](const QJsonObject& message) { PageCallLog::note(message, meta); });
    }
    channel = new QWebChannel(this);
    channel->registerObject(QStringLiteral("native_object"), native_object);
    channel->connectTo(transport);

    connect(socket, &BridgeSocket::disconnected, this, [this] { emit gone(this); });
    connect(native_object, &QObject::destroyed, this,
            [this] { close(BridgeSocket::GOING_AWAY, QStringLiteral("window closed")); });
}

void BridgeClient::close(int code, const QString& reason)
{
    channel->disconnectFrom(transport);
    if (!socket->is_open())
        return;
    socket->close(code, reason);
    QTimer::singleShot(CLOSE_GRACE_MS, socket, &BridgeSocket::abort);
}
