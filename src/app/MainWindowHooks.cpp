// The places where subsystems that are not built yet plug into the
// controller. Each answers as the program behaves without that subsystem.
#include "app/MainWindow.h"

// Colour triggers (watched applications) never take charge yet.
bool MainWindow::color_triggers_in_charge()
{
    return false;
}

// Screen-content brightness adds nothing yet.
int MainWindow::smart_brightness_modifier()
{
    return 0;
}

// Hardware PWM follows the tick once its helpers are driven.
void MainWindow::update_pwm_control_status() {}

// The break timer: nothing to stop or start before it exists.
bool MainWindow::rest_timer_exists()
{
    return false;
}

bool MainWindow::is_rest_started()
{
    return false;
}

void MainWindow::start_rest_timer() {}

void MainWindow::stop_rest_timer() {}

// The tray's actions and the overlays follow a pause once they exist.
void MainWindow::refresh_pause_dependents() {}

// The status line of the page and the tray's icon follow the values once the
// tray and the status report exist.
void MainWindow::update_ovra_status() {}

// The overlay and lightness screens: nothing to show or refresh before they
// exist. A type still writes their keys, so they start as the type left them.
void MainWindow::refresh_overlay_screens(bool) {}

void MainWindow::refresh_lightness_screens(bool) {}

void MainWindow::use_overlay_screen_changed(bool) {}

void MainWindow::use_lightness_screen_changed(bool) {}

// The break timer takes its lengths and type from the map once it exists.
void MainWindow::reset_timer() {}

void MainWindow::rest_timer_set_timer_type(int) {}

// The tray marks the chosen type and mode and rebuilds its actions once it
// exists.
void MainWindow::tray_refresh_selected_type() {}

void MainWindow::tray_refresh_selected_mode() {}

void MainWindow::tray_refresh_tray_icon_actions() {}
