#include "web/PageWindows.h"

#include <QCoreApplication>
#include <QTimer>
#include <QUrl>

#include "web/BridgeServer.h"
#include "web/BrowserBridgeNotice.h"
#include "web/OvraWindow.h"

const QString PageWindows::SETTINGS_WINDOW = QStringLiteral("main");

PageWindows* PageWindows::instance()
{
    // Made on first use and owned by the application object, so that it
    // outlives every window and goes before the event loop's machinery.
    static PageWindows* windows = nullptr;
    if (!windows) {
        windows = new PageWindows(QCoreApplication::instance());
        QObject::connect(windows, &QObject::destroyed, [] { windows = nullptr; });
    }
    return windows;
}

PageWindows::PageWindows(QObject* parent) : QObject(parent), web_host(new WebHost(this))
{
    connect_host();
}

PageWindows::~PageWindows() = default;

void PageWindows::add(OvraWindow* window)
{
    registry.insert(window->window_name(), window);
}

void PageWindows::remove(OvraWindow* window)
{
    if (registry.value(window->window_name()) == window)
        registry.remove(window->window_name());
    if (web_host->has_window(window->window_name()))
        web_host->close(window->window_name());
}

void PageWindows::connect_host()
{
    connect(web_host, &WebHost::loaded, this, [this](const QString& id, bool ok) {
        if (OvraWindow* w = registry.value(id))
            w->page_loaded(ok);
    });
    connect(web_host, &WebHost::close_requested, this, [this](const QString& id) {
        if (OvraWindow* w = registry.value(id))
            w->page_close_requested();
    });
    connect(web_host, &WebHost::escape_pressed, this, [this](const QString& id) {
        if (OvraWindow* w = registry.value(id))
            w->page_escape_pressed();
    });
    connect(web_host, &WebHost::state_changed, this, [this](const QString& id, ShowState state) {
        if (OvraWindow* w = registry.value(id))
            w->page_state_changed(state);
    });
    connect(web_host, &WebHost::window_gone, this, [this](const QString& id) {
        if (OvraWindow* w = registry.value(id))
            w->page_gone();
    });
    // A host that dies at once again is not started again and again: the
    // windows that must exist come back a few seconds after each death.
    connect(web_host, &WebHost::host_died, this, [this] {
        QTimer::singleShot(REOPEN_DELAY_MSECS, this, &PageWindows::reopen_lost_windows);
    });
}

void PageWindows::reopen_lost_windows()
{
    for (OvraWindow* window : registry) {
        if (window->reopens_after_host_died() && !window->is_page_open())
            window->reopen_page();
    }
}

BridgeServer* PageWindows::host_bridge()
{
    if (hosted)
        return hosted;
    hosted = new BridgeServer(this);
    hosted->set_window_resolver([this](const QString& name) -> QObject* { return registry.value(name); });
    hosted->set_single_window(SETTINGS_WINDOW);
    connect(hosted, &BridgeServer::client_connected, this,
            [this](const QString& name) { route_client(name, true); });
    if (!hosted->listen(0)) {
        delete hosted;
        hosted = nullptr;
        return nullptr;
    }
    if (browsers)
        BridgeServer::share_single_windows(hosted, browsers);
    return hosted;
}

bool PageWindows::open(OvraWindow* window, const WindowOptions& options, ShowState state,
                       quint32 user_time)
{
    BridgeServer* bridge = host_bridge();
    if (!bridge)
        return false;
    const QUrl url(bridge->page_url(window->page_path(), window->window_name()));
    return web_host->open(window->window_name(), url, options, state, user_time);
}

bool PageWindows::offer_to_browsers(quint16 port)
{
    if (browsers)
        return true;
    browsers = new BridgeServer(this);
    // A browser reaches the settings window and nothing else: never a rest
    // screen's skip button.
    browsers->set_window_resolver([this](const QString& name) -> QObject* {
        return name == SETTINGS_WINDOW ? registry.value(name) : nullptr;
    });
    browsers->set_single_window(SETTINGS_WINDOW);
    connect(browsers, &BridgeServer::client_connected, this,
            [this](const QString& name) { route_client(name, false); });
    if (!browsers->listen(port)) {
        delete browsers;
        browsers = nullptr;
        return false;
    }
    if (hosted)
        BridgeServer::share_single_windows(hosted, browsers);
    notice = std::make_unique<BrowserBridgeNotice>();
    notice->publish(browsers->port(), browsers->token());
    return true;
}

void PageWindows::route_client(const QString& name, bool in_host)
{
    if (OvraWindow* window = registry.value(name))
        window->page_connected(in_host);
}
