#pragma once

#include "WindowPolicy.h"

#include <QTimer>
#include <QWidget>

class HostPage;
class QWebEngineProfile;
class QWebEngineView;

// One top-level window around one page. It keeps the policies ovra gave it
// (close refusal, keyboard grab, staying raised) and reports what the user
// or the window manager did; it never closes itself.
class HostWindow : public QWidget
{
    Q_OBJECT

public:
    HostWindow(const QString& id, QWebEngineProfile* profile, const WindowPolicy& policy);
    ~HostWindow() override;

    const QString& id() const { return m_id; }
    const WindowPolicy& policy() const { return m_policy; }
    bool holds_grab() const { return m_grabbed; }

    void load(const QUrl& url);
    void place(const QRect& rect);
    void set_size(const QSize& size);
    void set_policy(const WindowPolicy& policy);
    // `user_time` is the X time of the user's event that asked for the
    // window, or 0 when there was none.
    void show_in(ShowState state, quint32 user_time);
    void bring_forward(quint32 user_time);
    void evaluate(const QString& script);
    // The X grab belongs to the client, not the window: when one window
    // lets go, the others that want a grab take it again.
    void regrab();

signals:
    void loaded(bool ok);
    void mapped(quint32 xid);
    void close_requested();
    void state_changed(ShowState state);
    void grab_released();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void apply_state(ShowState state);
    void apply_window_flags();
    // The X id of the native window as it is now.
    quint32 xid();
    void activate_when_mapped(quint32 user_time);
    void activate(quint32 user_time);
    void on_exposed();
    void try_grab();
    void release_grab();

    const QString m_id;
    WindowPolicy m_policy;
    QWebEngineView* m_view;
    HostPage* m_page;
    ShowState m_state = ShowState::Hidden;
    QTimer m_raise_timer;
    QTimer m_grab_retry;
    bool m_exposed = false;
    bool m_grabbed = false;
    bool m_grab_failure_told = false;
    bool m_activate_on_map = false;
    quint32 m_pending_time = 0;
};
