#pragma once

#include <QMetaObject>
#include <QVector>

#include "breaks/IBreakWindows.h"

class IRestScreen;
class PostponeBreak;
class ProductiveScreen;
class QScreen;
class RestTimer;

// The real windows of the break timer. Rest screens cover each monitor
// there is when a rest begins; a monitor unplugged meanwhile takes its
// screen with it, and one plugged in gets its screen at the next rest.
class BreakWindows : public IBreakWindows
{
public:
    explicit BreakWindows(RestTimer* timer);
    ~BreakWindows() override;

    void open_rest_screens(int rest_screen_type) override;
    void close_rest_screens() override;
    bool has_rest_screens() const override { return !rest_screens.isEmpty(); }
    void show_continue_button() override;

    void open_postpone() override;
    void close_postpone() override;
    bool has_postpone() const override { return postpone_break != nullptr; }

    void open_productive(bool resting) override;
    void close_productive() override;
    bool has_productive() const override { return productive_screen != nullptr; }
    void set_productive_resting(bool resting) override;

    void update() override;
    void translate() override;

private:
    IRestScreen* make_screen(int rest_screen_type, QScreen* screen, bool primary);
    void screen_removed(QScreen* screen);

    RestTimer* timer;
    QVector<IRestScreen*> rest_screens;
    PostponeBreak* postpone_break = nullptr;
    ProductiveScreen* productive_screen = nullptr;
    QMetaObject::Connection screen_watch;
};
