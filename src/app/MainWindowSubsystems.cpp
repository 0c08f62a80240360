// Where the controller calls the subsystems that own breaks, the tray, the
// overlays and the watched applications. Each is null until it exists, and
// the controller then behaves as the program does without it.
#include "app/MainWindow.h"

#include "base/TickPath.h"
#include "breaks/IRestTimer.h"
#include "breaks/IdleTime.h"
#include "overlays/IScreenOverlays.h"
#include "settings/ChangeRule.h"
#include "settings/SaveKeys.h"
#include "tray/ITrayIcon.h"

void MainWindow::refresh_pause_dependents()
{
    if (tray_icon)
        tray_icon->refresh_tray_icon_actions();
    refresh_overlay_screens(false);
}

// ---------------------------------------------------------------- breaks

void MainWindow::reset_timer()
{
    if (rest_timer)
        rest_timer->reset_rest_timer(settings[SaveKeys::WORK_TIME].toInt(),
                                     settings[SaveKeys::REST_TIME].toInt(),
                                     settings[SaveKeys::POSTPONE_TIME].toInt());
}

void MainWindow::start_rest_timer()
{
    if (rest_timer && !settings[SaveKeys::IS_TIMER_PAUSED].toBool())
        rest_timer->start_rest_timer();
}

void MainWindow::stop_rest_timer()
{
    if (rest_timer)
        rest_timer->stop_rest_timer();
}

OVRA_TICK void MainWindow::update_idle_time()
{
    if (timer_paused_setting.to_bool())
        return;
    if (!use_mouse_inactivity_setting.to_bool() && !use_keyboard_inactivity_setting.to_bool()) {
        if (idle_paused) {
            idle_paused = false;
            start_rest_timer();
        }
        return;
    }
    // The X server counts the time since the last input of either kind;
    // any input resets the count.
    if (!idle_time)
        idle_time = new IdleTime();
    const long idle_msecs = idle_time->idle_msecs();
    idle_seconds = idle_msecs < 0 ? 0 : int(idle_msecs / 1000);
    if (idle_seconds > IdleTime::threshold_seconds()) {
        if (rest_timer && !rest_timer->is_rest_started() && !idle_paused) {
            idle_paused = true;
            stop_rest_timer();
        }
    } else if (idle_paused) {
        idle_paused = false;
        start_rest_timer();
    }
}

// ---------------------------------------------------------------- overlays

OVRA_TICK void MainWindow::update_overlay_screen()
{
    if (overlays)
        overlays->update();
}

void MainWindow::refresh_overlay_screens(bool force)
{
    if (overlays)
        overlays->refresh_overlay_screens(force);
}

void MainWindow::refresh_lightness_screens(bool force)
{
    if (overlays)
        overlays->refresh_lightness_screens(force);
}

void MainWindow::use_overlay_screen_changed(bool value)
{
    change_setting(settings, QString::fromLatin1(SaveKeys::USE_OVERLAY_SCREEN), value,
                   [this] { refresh_overlay_screens(false); },
                   [this](const QVariant& stored) { emit set_use_overlay_screen(stored.toBool()); });
}

void MainWindow::use_lightness_screen_changed(bool value)
{
    change_setting(settings, QString::fromLatin1(SaveKeys::USE_LIGHTNESS_SCREEN), value,
                   [this] { refresh_lightness_screens(false); },
                   [this](const QVariant& stored) { emit set_use_lightness_screen(stored.toBool()); });
}
