#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <memory>

#include "web/WebHost.h"

class BridgeServer;
class BrowserBridgeNotice;
class OvraWindow;

// The page windows of the program and the two roads to them: the window
// host, which shows them, and the bridge servers their pages connect to for
// their native objects. Routes what the host reports to the window it is
// about. One per process; it lives as long as the application object.
class PageWindows : public QObject
{
    Q_OBJECT

public:
    static PageWindows* instance();

    void add(OvraWindow* window);
    void remove(OvraWindow* window);
    OvraWindow* window(const QString& name) const { return registry.value(name); }

    // Opens the window on its page, served by the host's bridge.
    bool open(OvraWindow* window, const WindowOptions& options, ShowState state, quint32 user_time = 0);
    WebHost* host() const { return web_host; }

    // Offers the settings page to any browser on this machine, on `port`,
    // with its own token: only the settings window's object, never a rest
    // screen's. False, with one line on standard error, when the port is taken.
    bool offer_to_browsers(quint16 port);

    // The name of the settings window: one page at a time, wherever it is.
    static const QString SETTINGS_WINDOW;

private:
    explicit PageWindows(QObject* parent);
    ~PageWindows() override;
    BridgeServer* host_bridge();
    void connect_host();
    void route_client(const QString& window, bool in_host);
    void reopen_lost_windows();
    static const int REOPEN_DELAY_MSECS = 3000;

    WebHost* web_host = nullptr;
    BridgeServer* hosted = nullptr;
    BridgeServer* browsers = nullptr;
    std::unique_ptr<BrowserBridgeNotice> notice;
    QHash<QString, OvraWindow*> registry;
};
