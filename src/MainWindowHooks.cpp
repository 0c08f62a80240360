// The places where subsystems that are not built yet plug into the
// controller. Each answers as the program behaves without that subsystem.
#include "MainWindow.h"

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
