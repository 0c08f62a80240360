#include "breaks/PostponeBreak.h"

#include "breaks/RestTimer.h"
#include "breaks/SmallWindows.h"

PostponeBreak::PostponeBreak(RestTimer* timer, QObject* parent)
    : OvraWindow(SmallWindows::unique_name(QStringLiteral("postpone_break")),
                 QStringLiteral("notifications/postpone_screen.html"), parent)
    , timer(timer)
{
    open_page(SmallWindows::notification_options(QStringLiteral("Incoming break"), QSize(360, 120)),
              ShowState::Normal);
}

void PostponeBreak::page_loaded(bool ok)
{
    OvraWindow::page_loaded(ok);
    if (ok)
        load_finished();
}

void PostponeBreak::load_finished()
{
    update_ui();
}

void PostponeBreak::update_ui()
{
    if (is_page_loaded())
        evaluate_JavaScript(QStringLiteral("set_remaining_work(%1);")
                                .arg(qMax(0, timer->get_remaining_work_int() / 1000)));
}

void PostponeBreak::setScreenSize(int width, int height)
{
    if (width > 0 && height > 0)
        place_page(SmallWindows::bottom_right(QSize(width, height)));
}

void PostponeBreak::postpone_clicked()
{
    timer->postpone_work_timer();
}

void PostponeBreak::close_postpone()
{
    timer->delete_postpone();
}
