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

WindowOptions IRestScreen::screen_options(const QString& title) const
{
    WindowOptions options;
    options.rect = geometry;
    options.title = title;
    options.frameless = true;
    options.tooltip = true;
    options.stays_on_top = true;
    const bool blocking = timer->blocks_keyboard();
    options.refuse_close = blocking;
    options.swallow_keys = blocking;
    options.grab_keyboard = blocking;
    return options;
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
