#pragma once

#include <QObject>
#include <QRect>
#include <QSize>
#include <QString>

#include "web/WebHost.h"

class PageWindows;

// Base of every window that shows a page. The window itself lives in the
// window host (ovra-web); this object is its native side: the page reaches
// it as `native_object` over the channel, and it tells the host what to
// show. Everything the window shows comes from here, so the page and even
// the host can come and go without losing anything.
class OvraWindow : public QObject
{
    Q_OBJECT

public:
    // `window` names the window on the channel and in the host; `page` is
    // the page under the pages' root, e.g. "main_screen.html".
    OvraWindow(const QString& window, const QString& page, QObject* parent = nullptr);
    ~OvraWindow() override;

    const QString& window_name() const { return name; }
    const QString& page_path() const { return page; }

    // Opens the window on its page in the host, which starts if need be.
    // False when it cannot be shown (no host); the next call tries again.
    // Opening and showing carry the time of the user's input at hand
    // (UserTime), so that a window the user asked for takes the focus.
    bool open_page(const WindowOptions& options, ShowState state);
    bool is_page_open() const;
    bool is_page_loaded() const { return loaded; }
    bool is_page_visible() const { return visible; }
    void show_page(ShowState state, quint32 user_time = 0);
    void hide_page();
    void close_page();
    void resize_page(const QSize& size);
    // Moves and sizes the open window.
    void place_page(const QRect& rect);
    // Runs a line of script in the window's page.
    void evaluate_JavaScript(const QString& script);

    // The host reports, routed here by PageWindows.
    virtual void page_loaded(bool ok);
    virtual void page_close_requested() {}
    virtual void page_escape_pressed() {}
    virtual void page_state_changed(ShowState state);
    // The window is gone: closed, or the host died.
    virtual void page_gone();
    // Windows that the program's state says exist (a running rest, an
    // overlay) come back after the host died; the settings window waits to
    // be asked for again.
    virtual bool reopens_after_host_died() const { return false; }
    // Opens the window again as it was last opened.
    bool reopen_page();

    // A page connected to this object over the channel: the host's, or a
    // browser's.
    virtual void page_connected(bool in_host) { Q_UNUSED(in_host); }

public slots:
    bool is_debug_mode() { return false; }
    // Pages reach native code over the channel, never a synchronous bridge.
    bool use_webkit_bridge() { return false; }
    void log(QString message);

protected:
    PageWindows* windows() const;

private:
    QString name;
    QString page;
    bool loaded = false;
    bool visible = false;
    WindowOptions last_options;
    ShowState last_state = ShowState::Hidden;
};
