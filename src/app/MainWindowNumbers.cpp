// The settings of one number: break lengths, hardware dimming, the screen
// effect and the overlay and lightness screens. The screens' values are kept
// in their Advanced shadows too, as the values of the colour pages are.
#include "app/MainWindow.h"
#include "breaks/IRestTimer.h"
#include "settings/ChangeRule.h"
#include "settings/SaveKeys.h"

using namespace SaveKeys;

// ---------------------------------------------------------------- breaks

void MainWindow::work_time_changed(int value)
{
    store_setting(WORK_TIME, value, &MainWindow::set_work_time_value, [this] { reset_timer(); });
}

void MainWindow::rest_time_changed(int value)
{
    store_setting(REST_TIME, value, &MainWindow::set_rest_time_value, [this] { reset_timer(); });
}

// Takes effect with the next change of a length, which hands all three over.
void MainWindow::postpone_time_changed(int value)
{
    store_setting(POSTPONE_TIME, value, &MainWindow::set_postpone_time_value);
}

void MainWindow::rest_screen_type_changed(int value)
{
    store_setting(REST_SCREEN_TYPE, value, &MainWindow::set_rest_screen_type_dropdown_value,
                  [this] { refresh_rest_screen_type(); });
}

// The automatic clicker reads it when it starts.
void MainWindow::mouse_click_interval_changed(int value)
{
    store_setting(MOUSE_CLICK_INTERVAL, value, &MainWindow::set_mouse_click_interval);
}

// ---------------------------------------------------------------- program

// The page's control is a switch, so it is told whether checks run at all.
void MainWindow::updates_interval_changed(int value)
{
    change_setting(settings, QString::fromLatin1(UPDATES_INTERVAL), value, nullptr,
                   [this](const QVariant& stored) {
                       emit set_updates_interval_value(stored.toInt() != 0);
                   });
}

// Font rendering is the desktop's business here: stored and shown only.
void MainWindow::font_type_changed(int value)
{
    store_setting(FONT_TYPE, value, &MainWindow::set_font_type_value);
}

// ---------------------------------------------------------------- hardware dimming

void MainWindow::pwm_frequency_changed(int value)
{
    store_setting(PWM_FREQUENCY, value, &MainWindow::set_pwm_frequency_slider_value_ui,
                  [this] { update_pwm_control_status(); });
}

void MainWindow::pwm_max_frequency_changed(int value)
{
    store_setting(PWM_MAX_FREQUENCY, value, &MainWindow::set_pwm_max_frequency_value);
}

// ---------------------------------------------------------------- screen effect

void MainWindow::color_effect_changed(int value)
{
    store_setting(COLOR_EFFECT, value, &MainWindow::set_color_effect_dropdown_value, [this] {
        keep_in_shadow(COLOR_EFFECT, ADVANCED_COLOR_EFFECT);
        refresh_high_level_colors();
    });
}

// ---------------------------------------------------------------- overlay screen

void MainWindow::overlay_color_changed(int value)
{
    store_setting(OVERLAY_SCREEN_COLOR, value, &MainWindow::set_overlay_color_dropdown_value,
                  [this] {
                      refresh_overlay_screens(false);
                      update_gamma();
                  });
}

// The overlay's four values and the lightness screen's four share one shape:
// the screens take the new value at once, and the advanced view keeps it.
void MainWindow::store_overlay_value(const char* key, const char* shadow, int value,
                                     ValueSignal signal)
{
    store_setting(key, value, signal, [=] {
        refresh_overlay_screens(false);
        keep_in_shadow(key, shadow);
    });
}

void MainWindow::day_opacity_changed(int value)
{
    store_overlay_value(DAY_OPACITY, ADVANCED_DAY_OPACITY, value,
                        &MainWindow::set_day_opacity_slider_value);
}

void MainWindow::night_opacity_changed(int value)
{
    store_overlay_value(NIGHT_OPACITY, ADVANCED_NIGHT_OPACITY, value,
                        &MainWindow::set_night_opacity_slider_value);
}

void MainWindow::day_dim_changed(int value)
{
    store_overlay_value(DAY_DIM, ADVANCED_DAY_DIM, value, &MainWindow::set_day_dim_slider_value);
}

void MainWindow::night_dim_changed(int value)
{
    store_overlay_value(NIGHT_DIM, ADVANCED_NIGHT_DIM, value,
                        &MainWindow::set_night_dim_slider_value);
}

// ---------------------------------------------------------------- lightness screen

void MainWindow::store_lightness_value(const char* key, const char* shadow, int value,
                                       ValueSignal signal)
{
    store_setting(key, value, signal, [=] {
        refresh_lightness_screens(false);
        keep_in_shadow(key, shadow);
    });
}

void MainWindow::lightness_screen_opacity_changed(int value)
{
    store_lightness_value(LIGHTNESS_SCREEN_OPACITY, ADVANCED_LIGHTNESS_SCREEN_OPACITY, value,
                          &MainWindow::set_lightness_screen_opacity_slider_value);
}

void MainWindow::lightness_screen_radius_changed(int value)
{
    store_lightness_value(LIGHTNESS_SCREEN_RADIUS, ADVANCED_LIGHTNESS_SCREEN_RADIUS, value,
                          &MainWindow::set_lightness_screen_radius_slider_value);
}

void MainWindow::lightness_screen_x_position_changed(int value)
{
    store_lightness_value(LIGHTNESS_SCREEN_X_POSITION, ADVANCED_LIGHTNESS_SCREEN_X_POSITION, value,
                          &MainWindow::set_lightness_screen_x_position_slider_value);
}

void MainWindow::lightness_screen_y_position_changed(int value)
{
    store_lightness_value(LIGHTNESS_SCREEN_Y_POSITION, ADVANCED_LIGHTNESS_SCREEN_Y_POSITION, value,
                          &MainWindow::set_lightness_screen_y_position_slider_value);
}
