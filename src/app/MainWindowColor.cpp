// The colour slots of the controller: the tick, pause and resume, the fades
// and the display backend. Each is a call into the colour engine's classes
// (ColorCurve, ColorTick, ColorFades) or the backend; the arithmetic lives
// there.
#include <QGuiApplication>

#include "base/TickPath.h"
#include <QScreen>

#include "app/MainWindow.h"
#include "color/ColorCurve.h"
#include "color/ColorSettings.h"
#include "color/ColorTick.h"
#include "color/GammaFactory.h"
#include "color/IGamma.h"
#include "policy/IColorTriggers.h"
#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"
#include "time/Clock.h"

void MainWindow::setup_color_engine()
{
    curve = new ColorCurve(settings, latitude, longitude);

    FadeHooks fade_hooks;
    fade_hooks.write = [this](int temperature, float brightness) {
        ColorSettings color_settings;
        color_settings.temperature = temperature;
        color_settings.brightness = brightness;
        set_temperature(&color_settings, 0);
    };
    fade_hooks.target_temperature = [this] { return get_interpolated_color_temperature(0); };
    fade_hooks.target_brightness = [this] { return get_interpolated_brightness(0); };
    fade_hooks.restore_display = [this] { restore_gamma(); };
    fade_hooks.update_display = [this] { update_gamma(); };
    fade_hooks.set_display_inverted = [this](bool inverted) {
        if (gamma)
            gamma->set_use_inverted_gamma(inverted);
    };
    fade_hooks.refresh_inversion = [this] { refresh_color_inversion(); };
    fade_hooks.refresh_effects = [this] { refresh_color_effects(); };
    fade_hooks.paused = [this] { return is_gamma_paused(); };
    fades = new ColorFades(settings, current_temperature, current_brightness,
                           std::move(fade_hooks), this);

    TickHooks tick_hooks;
    tick_hooks.stands_aside = [this] {
        return (color_triggers && color_triggers->in_charge()) || fades->active();
    };
    tick_hooks.paused = [this] { return is_gamma_paused(); };
    tick_hooks.fade_in = [this] { process_return_colors(); };
    tick_hooks.refresh_effects = [this] { refresh_color_effects(); };
    tick_hooks.refresh_fixer = [this] { refresh_color_fixer(); };
    tick_hooks.screen_count = [this] { return get_screen_count(); };
    tick_hooks.brightness_modifier = [this] { return smart_brightness_modifier(); };
    tick_hooks.after_update = [this] { update_pwm_control_status(); };
    tick = new ColorTick(settings, *curve, gamma, ignored_monitors, current_temperature,
                         current_brightness, std::move(tick_hooks));
}

const FadeRecord& MainWindow::fade_state(int which) const
{
    return fades->record(static_cast<ColorFades::Which>(which));
}

// ---------------------------------------------------------------- the tick

OVRA_TICK int MainWindow::update_gamma()
{
    return tick->update();
}

int MainWindow::set_temperature(ColorSettings* color_settings, int monitor)
{
    return tick->write(color_settings, monitor);
}

bool MainWindow::uses_solar_curve()
{
    return curve->uses_solar_curve();
}

float MainWindow::get_interpolated_color_temperature(int monitor)
{
    return curve->temperature(monitor);
}

float MainWindow::get_interpolated_brightness(int monitor)
{
    return tick->brightness(monitor);
}

void MainWindow::fill_solar_interpolation_values(SolarInterpolationValues* values)
{
    curve->fill(values);
}

void MainWindow::fill_clock_interpolation_values(ClockInterpolationValues* values)
{
    curve->fill(values);
}

int MainWindow::get_transition_type()
{
    return curve->transition_type();
}

OVRA_TICK void MainWindow::fix_gamma()
{
    fix_gamma_requested = true;
}

OVRA_TICK void MainWindow::refresh_color_fixer()
{
    // The fixer keeps its place in the road but has no effect of its own:
    // the write of every second already repairs a ramp that something changed.
    fix_gamma_requested = false;
    if (gamma)
        gamma->set_gamma_fixer(0);
}

OVRA_TICK void MainWindow::refresh_color_effects() {}

void MainWindow::refresh_high_level_colors()
{
    tick->forget_last_values();
    update_gamma();
}

bool MainWindow::is_day()
{
    const int hour = Clock::instance()->now().time().hour();
    return hour >= 6 && hour < 18;
}

OVRA_TICK int MainWindow::get_screen_count()
{
    if (screen_count_override >= 0)
        return screen_count_override;
    return static_cast<int>(QGuiApplication::screens().size());
}

int MainWindow::get_day_temperature(int monitor)
{
    return curve->monitor_value(SaveKeys::DAY_TEMPERATURE, monitor);
}

int MainWindow::get_night_temperature(int monitor)
{
    return curve->monitor_value(SaveKeys::NIGHT_TEMPERATURE, monitor);
}

int MainWindow::get_sleep_temperature(int monitor)
{
    return curve->monitor_value(SaveKeys::SLEEP_LIGHT, monitor);
}

int MainWindow::get_day_brightness(int monitor)
{
    return curve->monitor_value(SaveKeys::DAY_BRIGHTNESS, monitor);
}

int MainWindow::get_night_brightness(int monitor)
{
    return curve->monitor_value(SaveKeys::NIGHT_BRIGHTNESS, monitor);
}

int MainWindow::get_sleep_brightness(int monitor)
{
    return curve->monitor_value(SaveKeys::SLEEP_BRIGHTNESS, monitor);
}

// ---------------------------------------------------------------- pause

OVRA_TICK bool MainWindow::is_gamma_paused()
{
    return color_changes_paused_setting.to_bool() || color_changes_auto_paused
           || ovra_paused_setting.to_bool();
}

OVRA_TICK bool MainWindow::is_ovra_paused()
{
    return ovra_paused_setting.to_bool();
}

bool MainWindow::is_color_changes_paused()
{
    return color_changes_paused_setting.to_bool();
}

bool MainWindow::use_inverted_colors()
{
    return settings[SaveKeys::USE_INVERTED_COLORS].toBool();
}

void MainWindow::pause_ovra(bool paused)
{
    if (settings[SaveKeys::IS_OVRA_PAUSED].toBool() == paused)
        return;
    settings[SaveKeys::IS_OVRA_PAUSED] = paused;
    if (paused)
        process_restore_colors();
    else
        process_return_colors();
    refresh_high_level_colors();
    refresh_taskbar_button();
    update_ui();
    refresh_pause_dependents();
    if (SaveManager::s_instance)
        SaveManager::s_instance->save_tray_icon();
}

void MainWindow::toggle_pause()
{
    pause_ovra(!is_ovra_paused());
}

void MainWindow::pause_color_changes(bool paused)
{
    if (is_ovra_paused() || is_color_changes_paused())
        return;
    if (paused != color_changes_auto_paused) {
        color_changes_auto_paused = paused;
        applied_color_trigger.clear();
        if (paused)
            process_restore_colors();
        else
            process_return_colors();
    }
    refresh_high_level_colors();
}

// ---------------------------------------------------------------- fades

void MainWindow::process_restore_colors()
{
    fades->process_restore_colors();
}

void MainWindow::process_return_colors()
{
    fades->process_return_colors();
}

void MainWindow::restore_colors()
{
    fades->restore_colors();
}

void MainWindow::return_colors()
{
    fades->return_colors();
}

void MainWindow::restore_colors_timeout()
{
    fades->restore_colors_timeout();
}

void MainWindow::return_colors_timeout()
{
    fades->return_colors_timeout();
}

void MainWindow::move_to(int temperature, int brightness)
{
    fades->move_to(temperature, brightness);
}

void MainWindow::switch_state()
{
    fades->switch_state();
}

void MainWindow::switch_state_timeout()
{
    fades->switch_state_timeout();
}

void MainWindow::switch_state_return()
{
    fades->switch_state_return();
}

void MainWindow::switch_state_return_timeout()
{
    fades->switch_state_return_timeout();
}

void MainWindow::restore_colors_with_switch_state()
{
    fades->restore_colors_with_switch_state();
}

void MainWindow::return_colors_with_switch_state()
{
    fades->return_colors_with_switch_state();
}

void MainWindow::invert_colors()
{
    fades->set_inversion(true);
}

void MainWindow::revert_colors()
{
    fades->set_inversion(false);
}

void MainWindow::toggle_inverted_gamma()
{
    settings[SaveKeys::USE_INVERTED_COLORS] = !settings[SaveKeys::USE_INVERTED_COLORS].toBool();
    refresh_color_inversion();
    refresh_high_level_colors();
}

void MainWindow::refresh_color_inversion()
{
    if (gamma)
        gamma->set_use_inverted_gamma(settings[SaveKeys::USE_INVERTED_COLORS].toBool());
}

// ---------------------------------------------------------------- backend

void MainWindow::create_new_gamma()
{
    if (gamma)
        return;
    GammaFactory default_factory;
    GammaFactory* factory = gamma_factory_override ? gamma_factory_override : &default_factory;
    gamma = factory->get_gamma();
    gamma->init();
    gamma->start();
}

void MainWindow::restore_gamma()
{
    if (settings[SaveKeys::USE_LOW_LEVEL_COLOR_API].toBool()) {
        create_new_gamma();
        gamma->restore();
    } else {
        revert_colors();
    }
}

void MainWindow::reset_gamma()
{
    if (gamma && gamma->reset() != -1)
        return;
    delete gamma;
    gamma = nullptr;
    create_new_gamma();
    gamma->reset();
}

void MainWindow::reset_colors()
{
    if (!settings[SaveKeys::USE_LOW_LEVEL_COLOR_API].toBool())
        revert_colors();
    reset_gamma();
}

void MainWindow::refresh_preserve_gamma()
{
    const bool preserve = settings[SaveKeys::PRESERVE_GAMMA].toBool();
    if (!preserve)
        reset_colors();
    if (gamma)
        gamma->set_preserve_gamma(preserve);
    refresh_high_level_colors();
}

void MainWindow::refresh_color_scheme()
{
    if (gamma)
        gamma->set_color_scheme(settings[SaveKeys::COLOR_SCHEME].toInt());
    refresh_high_level_colors();
}

void MainWindow::refresh_leading_color()
{
    if (gamma)
        gamma->set_leading_color(settings[SaveKeys::LEADING_COLOR].toInt());
    refresh_high_level_colors();
}
