#pragma once

#include <QPointer>
#include <QWebChannelAbstractTransport>

class BridgeSocket;

// Carries a web channel's messages over one WebSocket, one JSON object per
// text frame. The socket stays its owner's; a message for a socket that has
// gone is dropped.
class WebSocketTransport : public QWebChannelAbstractTransport
{
    Q_OBJECT

public:
    explicit WebSocketTransport(BridgeSocket* socket, QObject* parent = nullptr);

    void sendMessage(const QJsonObject& message) override;

private slots:
    void text_received(const QString& text);

private:
    QPointer<BridgeSocket> socket;
};
