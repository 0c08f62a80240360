#pragma once

#include <QObject>
#include <QHash>
#include <QRect>
#include <QSet>
#include <QSize>
#include <QString>
#include <QUrl>

#include "web/HostStates.h"
#include "web/WindowFlags.h"

class QJsonObject;
class QProcess;

// How a page window looks and what the host enforces for it.
// Where a page window opens and what it is kept to.
struct WindowOptions : WindowFlags
{
    QRect rect; // where on the screen; a null rect leaves placement to the WM
    QSize size; // used when rect is null
    QString title;
};


// The client of the window host `ovra-web`, the only program that links the
// web engine. It starts the host when a window is opened, and ends it when
// the last window is closed: stdin closed, then a kill if it has not left
// within a second. Idle, it runs no timer.
//
// The host is `$OVRA_WEB_HOST` or `ovra-web` beside this program. The
// channel is one JSON object per line: commands on the host's stdin, events
// on its stdout; its stderr is ours. OVRA_WEB_PARENT in its environment
// names this process, which it checks after asking to die with it.
//
// Commands ("cmd" and the fields each takes):
//   open      id, url, title, rect [x,y,w,h] | size [w,h], flags {...}, state,
//             time (X time of the user's event, optional)
//   show      id, state ("hidden" "normal" "minimized" "maximized"
//             "fullscreen"), time (X time of the user's event, optional)
//   hide      id
//   raise     id, time (optional)
//   close     id
//   resize    id, size [w,h]
//   geometry  id, rect [x,y,w,h]
//   policy    id, flags {...}
//   eval      id, script
//   quit
//   flags: frameless stays_on_top tool tooltip translucent refuse_close
//          swallow_keys grab_keyboard keep_raised click_through no_focus
//          start_offscreen, each a bool, absent meaning false.
// Events ("event" and its fields):
//   ready                     the host is up
//   loaded          id, ok    a page load finished
//   mapped          id, xid   the window became viewable; xid is its X id
//   close_requested id        the user or the WM asked to close; the host
//                             never closes a window by itself
//   escape          id        Escape was pressed in the window
//   state           id, state the user or the WM changed the window's state
//   gone            id        the window is closed and destroyed
class WebHost : public QObject
{
    Q_OBJECT

public:
    explicit WebHost(QObject* parent = nullptr);
    ~WebHost() override;

    // Starts the host if needed. False, with one line on stderr, when the
    // host cannot be started or the id is already open; the next call tries
    // again.
    bool open(const QString& id, const QUrl& url, const WindowOptions& options, ShowState state,
              quint32 user_time = 0);
    // `user_time` is the X server time of the user's event that asked for
    // the window (0: none): it lets the window pass focus-stealing checks.
    // These return false when no window has that id.
    bool show(const QString& id, ShowState state, quint32 user_time = 0);
    bool raise(const QString& id, quint32 user_time = 0);
    bool hide(const QString& id);
    bool close(const QString& id);
    bool resize(const QString& id, const QSize& size);
    bool set_geometry(const QString& id, const QRect& rect);
    bool set_policy(const QString& id, const WindowOptions& options);
    bool evaluate(const QString& id, const QString& script);

    bool has_window(const QString& id) const { return m_windows.contains(id); }
    bool is_running() const { return m_process != nullptr; }
    qint64 pid() const;

    static QString host_path();
    // A variable this program set for itself only: the host starts without it.
    static void keep_from_host(const QString& name);

signals:
    void loaded(const QString& id, bool ok);
    void mapped(const QString& id, quint32 xid);
    void close_requested(const QString& id);
    void escape_pressed(const QString& id);
    void state_changed(const QString& id, ShowState state);
    // A window ended that close() did not end: the host died.
    void window_gone(const QString& id);
    void host_died();

private:
    bool start();
    void end_host();
    void send(const QJsonObject& command);
    bool send_to(const QString& id, QJsonObject command);
    void read_events();
    void dispatch(const QJsonObject& event);
    void on_finished();

    QProcess* m_process = nullptr;
    QByteArray m_buffer;
    QSet<QString> m_windows;
    // Closes sent whose "gone" has not come back yet, by id: a window
    // reopened under the same id must not take the old one's report.
    QHash<QString, int> m_closing;
};
