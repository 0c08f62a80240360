// The on/off settings of the page, the tray, the hotkeys and the spells.
// Most are read where they act (the tick, the idle count, the rest screens,
// the store), so storing them is the whole change; the others name what the
// change sets off.
#include "app/MainWindow.h"
#include "breaks/IRestTimer.h"
#include "settings/SaveKeys.h"
#include "tray/ITrayIcon.h"

using namespace SaveKeys;

// ---------------------------------------------------------------- hardware dimming

void MainWindow::pwm_control_update_continuously_changed(bool value)
{
    store_setting(PWM_UPDATE_CONTINUOUSLY, value, &MainWindow::set_pwm_control_update_continuously);
}

void MainWindow::use_pwm_control_changed(bool value)
{
    store_setting(USE_PWM_CONTROL, value, &MainWindow::set_use_pwm_control,
                  [this] { update_pwm_control_status(); });
}

// ---------------------------------------------------------------- breaks

void MainWindow::automatically_close_rest_screen_changed(bool value)
{
    store_setting(AUTOMATICALLY_CLOSE_REST_SCREEN, value,
                  &MainWindow::set_automatically_close_rest_screen_value, [this] {
                      if (rest_timer)
                          rest_timer->set_automatically_close_rest_screen(
                              settings[AUTOMATICALLY_CLOSE_REST_SCREEN].toBool());
                  });
}

void MainWindow::use_sounds_changed(bool value)
{
    store_setting(USE_SOUNDS, value, &MainWindow::set_use_sounds, [this] {
        if (rest_timer)
            rest_timer->set_use_sounds(settings[USE_SOUNDS].toBool());
    });
}

// Takes effect with the next rest's screens.
void MainWindow::use_keyboard_blocking_changed(bool value)
{
    store_setting(USE_KEYBOARD_BLOCKING, value, &MainWindow::set_use_keyboard_blocking, [this] {
        if (rest_timer)
            rest_timer->set_use_keyboard_blocking(settings[USE_KEYBOARD_BLOCKING].toBool());
    });
}

// The idle count reads both every second.
void MainWindow::use_mouse_inactivity_changed(bool value)
{
    store_setting(USE_MOUSE_INACTIVITY, value, &MainWindow::set_use_mouse_inactivity);
}

void MainWindow::use_keyboard_inactivity_changed(bool value)
{
    store_setting(USE_KEYBOARD_INACTIVITY, value, &MainWindow::set_use_keyboard_inactivity);
}

// ---------------------------------------------------------------- camera

// The camera service starts and stops with this; blink detection and the
// blink screen wait for it.
void MainWindow::use_camera_changed(bool value)
{
    store_setting(IS_CAMERA_ACTIVE, value, &MainWindow::set_use_camera);
}

void MainWindow::use_blink_detection_changed(bool value)
{
    store_setting(USE_BLINK_DETECTION, value, &MainWindow::set_use_blink_detection);
}

// ---------------------------------------------------------------- watched applications

// The tray's menu shows the pausers; the process watcher reads the
// switches on its next pass.
void MainWindow::refresh_pausers()
{
    if (!tray_icon)
        return;
    tray_icon->refresh_tray_icon_menu();
    tray_icon->refresh_pausers_actions();
}

void MainWindow::use_color_pausers_changed(bool checked)
{
    store_setting(USE_COLOR_PAUSERS, checked, &MainWindow::set_use_color_pausers,
                  [this] { refresh_pausers(); });
}

void MainWindow::use_timer_pausers_changed(bool checked)
{
    store_setting(USE_TIMER_PAUSERS, checked, &MainWindow::set_use_timer_pausers,
                  [this] { refresh_pausers(); });
}

void MainWindow::use_mouse_pausers_changed(bool checked)
{
    store_setting(USE_MOUSE_PAUSERS, checked, &MainWindow::set_use_mouse_pausers,
                  [this] { refresh_pausers(); });
}

void MainWindow::use_color_triggers_changed(bool checked)
{
    store_setting(USE_COLOR_TRIGGERS, checked, &MainWindow::set_use_color_triggers,
                  [this] { refresh_pausers(); });
}

// Nothing else reads the three full-screen switches on this platform.
void MainWindow::color_pausers_pause_on_fullscreen_apps_changed(bool value)
{
    store_setting(COLOR_PAUSERS_PAUSE_ON_FULLSCREEN_APPS, value,
                  &MainWindow::set_color_pausers_pause_on_fullscreen_apps);
}

void MainWindow::timer_pausers_pause_on_fullscreen_apps_changed(bool value)
{
    store_setting(TIMER_PAUSERS_PAUSE_ON_FULLSCREEN_APPS, value,
                  &MainWindow::set_timer_pausers_pause_on_fullscreen_apps);
}

void MainWindow::mouse_pausers_pause_on_fullscreen_apps_changed(bool value)
{
    store_setting(MOUSE_PAUSERS_PAUSE_ON_FULLSCREEN_APPS, value,
                  &MainWindow::set_mouse_pausers_pause_on_fullscreen_apps);
}

// ---------------------------------------------------------------- colour

void MainWindow::use_color_effects_changed(bool value)
{
    store_setting(USE_COLOR_EFFECTS, value, &MainWindow::set_use_color_effects, [this] {
        keep_in_shadow(USE_COLOR_EFFECTS, ADVANCED_USE_COLOR_EFFECTS);
        refresh_high_level_colors();
    });
}

// Switches between the solar and the clock curve: the times report and the
// display follow at once.
void MainWindow::use_manual_night_duration_changed(bool value)
{
    store_setting(USE_MANUAL_NIGHT_DURATION, value, &MainWindow::set_use_manual_night_duration,
                  [this] {
                      update_gamma();
                      update_times_info();
                  });
}

// Brightness from the room's light has no sensor to follow on this platform.
void MainWindow::use_automatic_brightness_changed(bool value)
{
    store_setting(USE_AUTOMATIC_BRIGHTNESS, value, &MainWindow::set_use_automatic_brightness);
}

void MainWindow::match_brightness_to_lighting_changed(bool value)
{
    store_setting(MATCH_BRIGHTNESS_TO_LIGHTING, value,
                  &MainWindow::set_match_brightness_to_lighting);
}

// The screen-content timer reads these two every second.
void MainWindow::use_smart_brightness_changed(bool value)
{
    store_setting(USE_SMART_BRIGHTNESS, value, &MainWindow::set_use_smart_brightness);
}

void MainWindow::use_smart_inversion_changed(bool value)
{
    store_setting(USE_SMART_INVERSION, value, &MainWindow::set_use_smart_inversion);
}

// The cursor is drawn by the X server and takes the ramps either way.
void MainWindow::use_software_cursor_changed(bool value)
{
    store_setting(USE_SOFTWARE_CURSOR, value, &MainWindow::set_use_software_cursor);
}

void MainWindow::use_gamma_fixer_changed(bool value)
{
    store_setting(USE_GAMMA_FIXER, value, &MainWindow::set_use_gamma_fixer,
                  [this] { refresh_color_fixer(); });
}

// The tick reads it before each write; turned off, the display keeps what
// it shows.
void MainWindow::use_low_level_color_api_changed(bool value)
{
    store_setting(USE_LOW_LEVEL_COLOR_API, value, &MainWindow::set_use_low_level_color_api);
}

// ---------------------------------------------------------------- program

// Read by the updater and the store at their moments.
void MainWindow::check_for_updates_changed(bool value)
{
    store_setting(CHECK_FOR_UPDATES, value, &MainWindow::set_check_for_updates);
}

void MainWindow::auto_save_settings_changed(bool value)
{
    store_setting(AUTO_SAVE_SETTINGS, value, &MainWindow::set_auto_save_settings);
}

void MainWindow::hide_taskbar_icon_changed(bool value)
{
    store_setting(HIDE_TASKBAR_ICON, value, &MainWindow::set_hide_taskbar_icon,
                  [this] { refresh_taskbar_button(); });
}

// Both concern the window's next life; the running one stays as it is.
void MainWindow::optimize_ui_creation_changed(bool value)
{
    store_setting(OPTIMIZE_UI_CREATION, value, &MainWindow::set_optimize_ui_creation);
}

void MainWindow::destroy_ui_on_close_changed(bool value)
{
    store_setting(DESTROY_UI_ON_CLOSE, value, &MainWindow::set_destroy_ui_on_close);
}

// The hotkeys grab or release their combinations.
void MainWindow::use_keyboard_shortcuts_changed(bool value)
{
    store_setting(USE_KEYBOARD_SHORTCUTS, value, &MainWindow::set_use_keyboard_shortcuts,
                  [this] { reconnect_keyboard_hook(); });
}

// The autostart service writes or removes its entries when it follows this.
void MainWindow::start_on_startup_changed(bool value)
{
    store_setting(START_ON_STARTUP, value, &MainWindow::set_start_on_startup);
}
