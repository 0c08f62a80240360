// The break timer's life in the controller: made from the settings, fed
// the controller's second, stopped and started by the user's pause, by
// watched applications and by inactivity; the exercises and the prompt of
// a new version.
#include "app/MainWindow.h"
#include "breaks/NewVersionNotification.h"
#include "breaks/NotificationScreen.h"
#include "breaks/RestTimer.h"
#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"
#include "tray/ITrayIcon.h"

using namespace SaveKeys;

void MainWindow::create_new_rest_timer()
{
    if (rest_timer)
        return;
    auto* timer = new RestTimer(this);
    rest_timer = timer;
    connect(this, &MainWindow::translate, timer, &RestTimer::translate);
    // The postpone length follows from the settings at the next reset.
    timer->reset_rest_timer(settings[WORK_TIME].toInt(), settings[REST_TIME].toInt(), 3);
    timer->set_automatically_close_rest_screen(settings[AUTOMATICALLY_CLOSE_REST_SCREEN].toBool());
    timer->set_use_keyboard_blocking(settings[USE_KEYBOARD_BLOCKING].toBool());
    timer->set_timer_type(settings[TIMER_TYPE].toInt());
    timer->set_use_sounds(settings[USE_SOUNDS].toBool());
    refresh_rest_screen_type();
    start_rest_timer();
}

// The screens and the widget close with the timer.
void MainWindow::delete_rest_timer()
{
    delete static_cast<RestTimer*>(rest_timer);
    rest_timer = nullptr;
}

void MainWindow::refresh_rest_screen_type()
{
    if (rest_timer)
        rest_timer->set_rest_screen_type(settings[REST_SCREEN_TYPE].toInt());
}

void MainWindow::toggle_rest_timer(bool stop)
{
    if (stop)
        stop_rest_timer();
    else
        start_rest_timer();
}

bool MainWindow::is_timer_paused()
{
    return settings[IS_TIMER_PAUSED].toBool();
}

// The user's pause, from the tray and the hotkey.
void MainWindow::pause_rest_timer(bool checked)
{
    settings[IS_TIMER_PAUSED] = checked;
    toggle_rest_timer(checked);
    if (tray_icon)
        tray_icon->refresh_tray_icon_actions();
    if (SaveManager::s_instance)
        SaveManager::s_instance->save_tray_icon();
}

// A watched application in front stops the timer; the user's own pause
// stands above it.
void MainWindow::automatic_timer_pause(bool checked)
{
    if (is_timer_paused())
        return;
    if (checked && !timer_auto_paused) {
        timer_auto_paused = true;
        stop_rest_timer();
    } else if (!checked && timer_auto_paused) {
        timer_auto_paused = false;
        start_rest_timer();
    }
}

// ---------------------------------------------------------------- exercises

// Each notification owns itself and goes when its chain ends.
void MainWindow::start_eye_exercises()
{
    new NotificationScreen(QStringLiteral("eye_exercises"));
}

void MainWindow::start_neck_exercises()
{
    new NotificationScreen(QStringLiteral("neck_exercises"));
}

void MainWindow::start_back_exercises()
{
    new NotificationScreen(QStringLiteral("back_exercises"));
}

// ---------------------------------------------------------------- new version

void MainWindow::new_version_available(QString version)
{
    if (new_version_notification)
        return;
    new_version_notification = new NewVersionNotification(version);
    // Until the updater downloads by itself, the button leads to the page
    // where the version is.
    connect(new_version_notification, &NewVersionNotification::install_requested, this,
            &MainWindow::open_version_link);
    connect(new_version_notification, &NewVersionNotification::closed, this,
            &MainWindow::delete_new_version_notification);
}

void MainWindow::delete_new_version_notification()
{
    new_version_notification = nullptr;
}
