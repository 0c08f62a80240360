#include "web/WebSocketTransport.h"

#include "web/BridgeSocket.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>

WebSocketTransport::WebSocketTransport(BridgeSocket* socket, QObject* parent)
    : QWebChannelAbstractTransport(parent)
    , socket(socket)
{
    connect(socket, &BridgeSocket::text_received, this, &WebSocketTransport::text_received);
}

void WebSocketTransport::sendMessage(const QJsonObject& message)
{
    if (!socket || !socket->is_open())
        return;
    socket->send_text(QString::fromUtf8(QJsonDocument(message).toJson(QJsonDocument::Compact)));
}

void WebSocketTransport::text_received(const QString& text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        std::fprintf(stderr, "Ovra web bridge: a page sent a message that is no JSON object\n");
        return;
    }
    emit messageReceived(document.object(), this);
}
