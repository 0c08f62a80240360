#include "breaks/BreakWindows.h"

#include "base/TickPath.h"

#include <QGuiApplication>
#include <QScreen>

#include "breaks/PostponeBreak.h"
#include "breaks/ProductiveScreen.h"
#include "breaks/RestScreenLite.h"
#include "breaks/RestScreenSimple.h"
#include "breaks/RestTimer.h"

namespace {
// A window whose own slot may be on the stack (a click on its page) goes
// once that call has returned.
template <typename Window>
void close_later(Window*& window)
{
    if (!window)
        return;
    window->close_page();
    window->deleteLater();
    window = nullptr;
}
} // namespace

BreakWindows::BreakWindows(RestTimer* timer) : timer(timer)
{
    if (qGuiApp)
        screen_watch = QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, timer,
                                        [this](QScreen* screen) { screen_removed(screen); });
}

BreakWindows::~BreakWindows()
{
    QObject::disconnect(screen_watch);
    qDeleteAll(rest_screens);
    delete postpone_break;
    delete productive_screen;
}

// ---------------------------------------------------------------- rest screens

IRestScreen* BreakWindows::make_screen(int rest_screen_type, QScreen* screen, bool primary)
{
    switch (rest_screen_type) {
    case 1:
        return new RestScreenLite(timer, screen, primary);
    case 2:
        return new RestScreenSimple(timer, screen, primary);
    case 3:
        return new RestScreenStandard(timer, screen, primary);
    default:
        return nullptr;
    }
}

void BreakWindows::open_rest_screens(int rest_screen_type)
{
    if (!qGuiApp)
        return;
    const QScreen* primary = QGuiApplication::primaryScreen();
    for (QScreen* screen : QGuiApplication::screens()) {
        if (IRestScreen* rest_screen = make_screen(rest_screen_type, screen, screen == primary))
            rest_screens.append(rest_screen);
    }
}

void BreakWindows::close_rest_screens()
{
    for (IRestScreen* screen : rest_screens) {
        screen->close_screen();
        screen->deleteLater();
    }
    rest_screens.clear();
}

void BreakWindows::show_continue_button()
{
    for (IRestScreen* screen : rest_screens)
        screen->set_continue_button();
}

void BreakWindows::screen_removed(QScreen* screen)
{
    for (int i = rest_screens.size() - 1; i >= 0; --i) {
        IRestScreen* rest_screen = rest_screens[i];
        if (rest_screen->screen() && rest_screen->screen() != screen)
            continue;
        rest_screen->close_screen();
        rest_screen->deleteLater();
        rest_screens.removeAt(i);
    }
}

// ---------------------------------------------------------------- prompt and widget

void BreakWindows::open_postpone()
{
    if (!postpone_break)
        postpone_break = new PostponeBreak(timer);
}

void BreakWindows::close_postpone()
{
    close_later(postpone_break);
}

void BreakWindows::open_productive(bool resting)
{
    if (!productive_screen)
        productive_screen = new ProductiveScreen(timer);
    productive_screen->set_resting(resting);
}

void BreakWindows::close_productive()
{
    close_later(productive_screen);
}

void BreakWindows::set_productive_resting(bool resting)
{
    if (productive_screen)
        productive_screen->set_resting(resting);
}

OVRA_TICK void BreakWindows::update()
{
    for (IRestScreen* screen : std::as_const(rest_screens))
        screen->update_ui();
    if (postpone_break)
        postpone_break->update_ui();
    if (productive_screen)
        productive_screen->update_ui();
}

void BreakWindows::translate()
{
    if (productive_screen)
        productive_screen->translate();
}
