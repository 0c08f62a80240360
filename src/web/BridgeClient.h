#pragma once

#include <QObject>
#include <QString>
#include <memory>

class BridgeSocket;
class QWebChannel;
class WebSocketTransport;

// One page's connection: its socket, the transport over it, and a web channel
// of its own that offers the window's object as `native_object`. Everything
// here lives and dies with the socket.
class BridgeClient : public QObject
{
    Q_OBJECT

public:
    BridgeClient(std::unique_ptr<BridgeSocket> socket, const QString& window, QObject* native_object,
                 QObject* parent = nullptr);

    const QString& window() const { return window_name; }

    // Cuts the page off its object at once, then closes the socket with
    // `code` and `reason` for the page to show.
    void close(int code, const QString& reason);

signals:
    // The socket is closed; the client may be deleted.
    void gone(BridgeClient* client);

private:
    QString window_name;
    BridgeSocket* socket = nullptr;
    WebSocketTransport* transport = nullptr;
    QWebChannel* channel = nullptr;
};
