// Change handlers of the colour engine's own settings: scheme, leading
// colour, preserved calibration and the length of the pause fades.
#include "app/MainWindow.h"
#include "settings/ChangeRule.h"
#include "settings/SaveKeys.h"

void MainWindow::color_scheme_changed(int value)
{
    change_setting(settings, SaveKeys::COLOR_SCHEME, value, [this] { refresh_color_scheme(); },
                   [this](const QVariant& v) { emit set_color_scheme_dropdown_value(v.toInt()); });
}

void MainWindow::leading_color_changed(int value)
{
    change_setting(settings, SaveKeys::LEADING_COLOR, value, [this] { refresh_leading_color(); },
                   [this](const QVariant& v) { emit set_leading_color_dropdown_value(v.toInt()); });
}

void MainWindow::preserve_gamma_changed(bool value)
{
    // Turning it back on keeps the linear curve until the next start: the
    // calibration that was under the tint is gone by then.
    change_setting(settings, SaveKeys::PRESERVE_GAMMA, value, [this] { refresh_preserve_gamma(); },
                   [this](const QVariant& v) { emit set_preserve_gamma(v.toBool()); });
}

void MainWindow::pause_transition_duration_changed(int value)
{
    // Only stored: a fade reads the length when it starts.
    change_setting(settings, SaveKeys::PAUSE_TRANSITION_DURATION, value, nullptr,
                   [this](const QVariant& v) { emit set_pause_transition_duration_value(v.toInt()); });
}
