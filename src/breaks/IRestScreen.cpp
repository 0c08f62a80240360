#include "breaks/IRestScreen.h"

#include <QEvent>

#include "breaks/RestTimer.h"

namespace {
const int TYPE_STRICT = 3;
}

IRestScreen::IRestScreen(const QString& window, const QString& page, RestTimer* timer,
                         QScreen* screen, bool primary, QObject* parent)
    : OvraWindow(window, page, parent)
    , timer(timer)
    , on_screen(screen)
    , geometry(screen ? screen->geometry() : QRect())
    , primary(primary)
{
}

bool IRestScreen::is_strict() const
{
    return timer->get_timer_type() == TYPE_STRICT;
}

bool IRestScreen::offers_way_out() const
{
    return use_continue_button || !is_strict();
}

// The page hides the button of a Strict screen; the native side holds to
// that whatever a page asks.
void IRestScreen::skip_rest()
{
    if (offers_way_out())
        timer->end_rest();
}

void IRestScreen::page_close_requested()
{
    if (!timer->blocks_keyboard())
        close_screen();
}

void IRestScreen::set_continue_button()
{
    use_continue_button = true;
}

WindowSpec IRestScreen::screen_spec(const QString& title) const
{
    WindowSpec spec;
    spec.rect = geometry;
    spec.title = title;
    spec.frameless = true;
    spec.tooltip = true;
    spec.stays_on_top = true;
    const bool blocking = timer->blocks_keyboard();
    spec.refuse_close = blocking;
    spec.swallow_keys = blocking;
    spec.grab_keyboard = blocking;
    return spec;
}

bool IRestScreen::eventFilter(QObject* watched, QEvent* event)
{
    if (!timer->blocks_keyboard())
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        return true;
    case QEvent::Close:
        event->ignore();
        return true;
    default:
        return OvraWindow::eventFilter(watched, event);
    }
}
