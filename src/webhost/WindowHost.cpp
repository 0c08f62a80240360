#include "WindowHost.h"

#include "EventWriter.h"
#include "HostWindow.h"

#include <QApplication>
#include <QJsonArray>
#include <QKeyEvent>
#include <QUrl>
#include <QWebEngineProfile>
#include <QWindow>
#include <cstdio>

namespace {

bool to_rect(const QJsonValue& value, QRect* rect)
{
    const QJsonArray a = value.toArray();
    if (a.size() != 4)
        return false;
    *rect = QRect(a[0].toInt(), a[1].toInt(), a[2].toInt(), a[3].toInt());
    return rect->width() > 0 && rect->height() > 0;
}

bool to_size(const QJsonValue& value, QSize* size)
{
    const QJsonArray a = value.toArray();
    if (a.size() != 2)
        return false;
    *size = QSize(a[0].toInt(), a[1].toInt());
    return size->width() > 0 && size->height() > 0;
}

quint32 to_time(const QJsonValue& value)
{
    return quint32(value.toDouble(0));
}

bool is_key_event(QEvent::Type type)
{
    return type == QEvent::KeyPress || type == QEvent::KeyRelease
        || type == QEvent::ShortcutOverride || type == QEvent::InputMethod;
}

} // namespace

WindowHost::WindowHost(EventWriter* events, QObject* parent)
    : QObject(parent)
    , m_events(events)
    // No storage name: an off-the-record profile that writes nothing to disk.
    , m_profile(new QWebEngineProfile(this))
{
    m_profile->setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
    m_profile->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    qApp->installEventFilter(this);
}

WindowHost::~WindowHost()
{
    qApp->removeEventFilter(this);
    for (auto& entry : m_windows)
        delete entry.second;
    m_windows.clear();
}

void WindowHost::send(const char* event, const QString& id, QJsonObject fields)
{
    fields.insert("event", QLatin1String(event));
    fields.insert("id", id);
    m_events->send(fields);
}

HostWindow* WindowHost::window_for(const QJsonObject& command) const
{
    const QString id = command.value("id").toString();
    const auto it = m_windows.find(id);
    if (it != m_windows.end())
        return it->second;
    fprintf(stderr, "ovra-web: %s: no window \"%s\"\n",
            qPrintable(command.value("cmd").toString()), qPrintable(id));
    return nullptr;
}

void WindowHost::handle(const QJsonObject& command)
{
    const QString cmd = command.value("cmd").toString();
    if (cmd == QLatin1String("open")) {
        open(command);
        return;
    }
    if (cmd == QLatin1String("quit")) {
        shut_down();
        return;
    }
    static const QStringList k_window_commands = {"show", "hide", "raise", "close", "resize",
                                                  "geometry", "policy", "eval"};
    if (!k_window_commands.contains(cmd)) {
        fprintf(stderr, "ovra-web: unknown command \"%s\"\n", qPrintable(cmd));
        return;
    }
    HostWindow* window = window_for(command);
    if (!window)
        return;
    if (cmd == QLatin1String("show")) {
        ShowState state = ShowState::Normal;
        if (command.contains("state") && !host_states::from_name(command.value("state").toString(), &state))
            fprintf(stderr, "ovra-web: show: unknown state, showing normal\n");
        window->show_in(state, to_time(command.value("time")));
    } else if (cmd == QLatin1String("hide")) {
        window->show_in(ShowState::Hidden, 0);
    } else if (cmd == QLatin1String("raise")) {
        window->bring_forward(to_time(command.value("time")));
    } else if (cmd == QLatin1String("close")) {
        close(window->id());
    } else if (cmd == QLatin1String("resize")) {
        QSize size;
        if (to_size(command.value("size"), &size))
            window->set_size(size);
        else
            fprintf(stderr, "ovra-web: resize: size must be [w,h] above zero\n");
    } else if (cmd == QLatin1String("geometry")) {
        QRect rect;
        if (to_rect(command.value("rect"), &rect))
            window->place(rect);
        else
            fprintf(stderr, "ovra-web: geometry: rect must be [x,y,w,h] with a size\n");
    } else if (cmd == QLatin1String("policy")) {
        window->set_policy(WindowPolicy::from_json(command.value("flags").toObject()));
    } else if (cmd == QLatin1String("eval")) {
        window->evaluate(command.value("script").toString());
    }
}

void WindowHost::open(const QJsonObject& command)
{
    const QString id = command.value("id").toString();
    const QUrl url(command.value("url").toString());
    if (id.isEmpty() || !url.isValid() || url.isRelative()) {
        fprintf(stderr, "ovra-web: open needs an id and an absolute url\n");
        return;
    }
    if (m_windows.count(id)) {
        fprintf(stderr, "ovra-web: open: window \"%s\" is already open\n", qPrintable(id));
        return;
    }
    ShowState state = ShowState::Normal;
    if (command.contains("state") && !host_states::from_name(command.value("state").toString(), &state))
        fprintf(stderr, "ovra-web: open: unknown state, showing normal\n");

    auto* window = new HostWindow(id, m_profile,
                                  WindowPolicy::from_json(command.value("flags").toObject()));
    m_windows[id] = window;
    connect_window(window);
    window->setWindowTitle(command.value("title").toString());
    QSize size;
    if (to_size(command.value("size"), &size))
        window->set_size(size);
    QRect rect;
    if (to_rect(command.value("rect"), &rect))
        window->place(rect);
    window->load(url);
    window->show_in(state, to_time(command.value("time")));
}

void WindowHost::connect_window(HostWindow* window)
{
    const QString id = window->id();
    connect(window, &HostWindow::loaded, this,
            [this, id](bool ok) { send("loaded", id, {{"ok", ok}}); });
    connect(window, &HostWindow::mapped, this,
            [this, id](quint32 xid) { send("mapped", id, {{"xid", double(xid)}}); });
    connect(window, &HostWindow::close_requested, this, [this, id] { send("close_requested", id); });
    connect(window, &HostWindow::state_changed, this, [this, id](ShowState state) {
        send("state", id, {{"state", host_states::name_of(state)}});
    });
    connect(window, &HostWindow::grab_released, this, [this, window] {
        for (auto& entry : m_windows) {
            if (entry.second != window && entry.second->policy().grab_keyboard)
                entry.second->regrab();
        }
    });
}

void WindowHost::close(const QString& id)
{
    const auto it = m_windows.find(id);
    if (it == m_windows.end())
        return;
    HostWindow* window = it->second;
    m_windows.erase(it);
    delete window;
    send("gone", id);
}

void WindowHost::shut_down()
{
    while (!m_windows.empty()) {
        const QString id = m_windows.begin()->first;
        close(id);
    }
    qApp->quit();
}

HostWindow* WindowHost::window_of(QObject* receiver) const
{
    for (const auto& entry : m_windows) {
        HostWindow* w = entry.second;
        if (receiver == w->windowHandle())
            return w;
        if (receiver->isWidgetType() && static_cast<QWidget*>(receiver)->window() == w)
            return w;
    }
    return nullptr;
}

bool WindowHost::any_grab() const
{
    for (const auto& entry : m_windows) {
        if (entry.second->holds_grab())
            return true;
    }
    return false;
}

bool WindowHost::eventFilter(QObject* watched, QEvent* event)
{
    if (!is_key_event(event->type()))
        return false;
    HostWindow* window = window_of(watched);
    if (!window)
        return false;
    // A key enters through the top-level QWindow exactly once; what the
    // widgets see afterwards is the same key passed along.
    const bool at_entry = watched == window->windowHandle();
    if (at_entry && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Escape && !key->isAutoRepeat())
            send("escape", window->id());
    }
    return window->policy().swallow_keys || any_grab();
}
