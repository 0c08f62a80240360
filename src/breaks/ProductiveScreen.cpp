#include "breaks/ProductiveScreen.h"

#include <QCoreApplication>

#include "breaks/RestTimer.h"
#include "breaks/SmallWindows.h"

namespace {
WindowOptions productive_options()
{
    WindowOptions options = SmallWindows::notification_options(QStringLiteral("Productive screen"),
                                                      QSize(400, 300));
    options.refuse_close = true;
    options.swallow_keys = true;
    return options;
}
} // namespace

ProductiveScreen::ProductiveScreen(RestTimer* timer, QObject* parent)
    : OvraWindow(SmallWindows::unique_name(QStringLiteral("productive_screen")),
                 QStringLiteral("notifications/productive_screen.html"), parent)
    , timer(timer)
{
    open_page(productive_options(), ShowState::Normal);
}

void ProductiveScreen::page_loaded(bool ok)
{
    OvraWindow::page_loaded(ok);
    shown_time.clear();
    if (ok)
        load_finished();
}

void ProductiveScreen::load_finished()
{
    set_resting(resting);
    update_ui();
}

void ProductiveScreen::update_ui()
{
    if (!is_page_loaded())
        return;
    const QString time = timer->get_remaining_work_int() < 1 ? timer->get_remaining_rest_productive()
                                                             : timer->get_remaining_work_productive();
    if (time == shown_time)
        return;
    shown_time = time;
    evaluate_JavaScript(QStringLiteral("set_remaining_work('%1');").arg(time));
}

void ProductiveScreen::translate()
{
    evaluate_JavaScript(QStringLiteral("translate();"));
}

void ProductiveScreen::setScreenSize(int width, int height)
{
    if (width <= 0 || height <= 0)
        return;
    const QSize size(width, height);
    placed = placed.isNull() ? SmallWindows::bottom_right(size)
                             : SmallWindows::kept_on_desktop(QRect(placed.topLeft(), size));
    place_page(placed);
}

void ProductiveScreen::move_window(int x, int y)
{
    if (placed.isNull())
        return;
    placed = SmallWindows::kept_on_desktop(QRect(QPoint(x, y), placed.size()));
    place_page(placed);
}

void ProductiveScreen::set_resting(bool value)
{
    resting = value;
    if (!is_page_loaded())
        return;
    evaluate_JavaScript(resting ? QStringLiteral("set_rest_state();")
                                : QStringLiteral("set_work_state();"));
    update_ui();
}

void ProductiveScreen::set_work_state()
{
    set_resting(false);
}

void ProductiveScreen::set_rest_state()
{
    set_resting(true);
}

// In a rest the button goes back to work; at work it starts a rest.
void ProductiveScreen::have_a_rest_button_clicked()
{
    if (timer->get_remaining_work_int() < 1)
        timer->end_rest();
    else
        timer->start_rest();
    update_ui();
}

QString ProductiveScreen::GET_STRING(QString translation_string)
{
    return QCoreApplication::translate("Translator", translation_string.toLatin1().constData());
}
