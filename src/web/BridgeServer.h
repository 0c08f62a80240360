#pragma once

#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <functional>
#include <memory>

class BridgeClient;
class BridgeGate;
class BridgeHttpServer;
class BridgeSocket;
class PageFiles;

// Serves the pages on 127.0.0.1 and lets each page reach its window's native
// object through a web channel over a WebSocket. Every address carries this
// server's own token as its first path segment:
//   http://127.0.0.1:PORT/TOKEN/main_screen.html?window=main   a page
//   ws://127.0.0.1:PORT/TOKEN/channel/main                     its channel
// Each socket names its window; the resolver gives the object for a name, or
// null to refuse it. A window marked single has one page at a time: a new
// connection closes the older one with TAKEN_OVER_CODE.
class BridgeServer : public QObject
{
    Q_OBJECT

public:
    using WindowResolver = std::function<QObject*(const QString& window)>;

    static const int TAKEN_OVER_CODE = 4001;
    static const char* const TAKEN_OVER_REASON;

    // `page_root` is the folder the pages are served from; the program's
    // resources unless a test gives its own.
    explicit BridgeServer(QObject* parent = nullptr, const QString& page_root = QStringLiteral(":/html"));
    ~BridgeServer() override;

    // Binds 127.0.0.1 only; 0 lets the system pick. False, with one line on
    // standard error, when the port is taken or the server already listens.
    bool listen(quint16 port);
    quint16 port() const { return bound_port; }
    const QString& token() const { return secret; }

    void set_window_resolver(WindowResolver resolver);
    // How long a connection may take to send a whole request head.
    void set_request_timeout(int ms);
    void set_single_window(const QString& window, bool single = true);
    bool is_single_window(const QString& window) const { return single_windows.contains(window); }
    int client_count(const QString& window) const;

    // http://127.0.0.1:PORT/TOKEN/<page>?window=<window>
    QString page_url(const QString& page, const QString& window) const;
    // ws://127.0.0.1:PORT/TOKEN/channel/<window>
    QString channel_url(const QString& window) const;

    // A single window's rule spans servers: a page of `a` that connects
    // drops the same single window's page of `b`, and the other way round.
    static void share_single_windows(BridgeServer* a, BridgeServer* b);

public slots:
    // Closes every connection of `window` with this WebSocket close code.
    void drop_clients(const QString& window, int code, const QString& reason);

signals:
    void client_connected(const QString& window);
    void client_disconnected(const QString& window);

private:
    void take_sockets();
    void accept(std::unique_ptr<BridgeSocket> socket);
    void client_gone(BridgeClient* client);
    QObject* resolve(const QString& window) const;

    QString secret;
    quint16 bound_port = 0;
    std::unique_ptr<PageFiles> files;
    std::unique_ptr<BridgeGate> gate;
    BridgeHttpServer* http = nullptr;
    int request_timeout_ms;
    WindowResolver resolver;
    QSet<QString> single_windows;
    QList<BridgeClient*> clients;
};
