#pragma once

#include <QPointer>
#include <QRect>
#include <QScreen>

#include "web/OvraWindow.h"

class RestTimer;

// A rest screen on one monitor: it covers the monitor while a rest runs and
// shows the time left. Strict rests hide the way out until the time is up;
// with keyboard blocking they also swallow keys and refuse to close.
//
// The base is a page window; the Lite kind draws itself with native widgets
// and leaves that side unused.
class IRestScreen : public OvraWindow
{
    Q_OBJECT

public:
    IRestScreen(const QString& window, const QString& page, RestTimer* timer, QScreen* screen,
                bool primary, QObject* parent = nullptr);

    QScreen* screen() const { return on_screen; }
    // Once a second.
    virtual void update_ui() = 0;
    // Takes the screen away; the object itself goes later.
    virtual void close_screen() { close_page(); }
    // Unless the rest holds the user, a screen closes when asked; the rest
    // goes on.
    void page_close_requested() override;
    // The way out is there: the time is up, or the rest is not Strict.
    bool offers_way_out() const;

public slots:
    virtual void skip_rest();
    virtual void set_continue_button();

protected:
    // Keys and close requests of a native screen, by the strictness rule.
    bool eventFilter(QObject* watched, QEvent* event) override;
    WindowOptions screen_options(const QString& title) const;
    bool is_strict() const;

    RestTimer* timer;
    QPointer<QScreen> on_screen;
    // The monitor's rectangle when the rest began.
    QRect geometry;
    bool primary;
    bool use_continue_button = false;
};
