// Pause, resume and the colour fades of the controller. Four fades, each on
// its own 25 ms timer; while one runs, the tick stands aside and the fade
// alone writes to the display.
#include <iostream>

#include "app/MainWindow.h"
#include "color/ColorSettings.h"
#include "color/GammaFactory.h"
#include "color/IGamma.h"
#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"

namespace {
const float NEUTRAL_TEMPERATURE = 6500.0f;
const float NEUTRAL_BRIGHTNESS = 100.0f;
const float DARK_TEMPERATURE = 100.0f;
const float DARK_BRIGHTNESS = 10.0f;
const float SWITCH_TICKS = 20.0f;
const float MOVE_TICKS = 40.0f;
const int FADE_TICK_MS = 25;

// Moves one channel by its step; the step drops to 0 once the value has
// passed the target. A value exactly on the target keeps its step, so the
// fade ends one tick later.
void advance_channel(float& value, float& step, float target)
{
    value += step;
    if ((step > 0.0f && value > target) || (step < 0.0f && value < target))
        step = 0.0f;
}
}

bool FadeRecord::advance()
{
    advance_channel(temperature, temperature_step, target_temperature);
    advance_channel(brightness, brightness_step, target_brightness);
    return temperature_step == 0.0f && brightness_step == 0.0f;
}

void FadeRecord::stop()
{
    if (timer)
        timer->stop();
    active = false;
    temperature_step = 0.0f;
    brightness_step = 0.0f;
}

void FadeRecord::take_over(float& from_temperature, float& from_brightness)
{
    if (timer)
        timer->stop();
    if (active) {
        from_temperature = temperature;
        from_brightness = brightness;
    }
    stop();
}

void FadeRecord::begin(float from_temperature, float from_brightness, float to_temperature,
                       float to_brightness)
{
    temperature = from_temperature;
    brightness = from_brightness;
    target_temperature = to_temperature;
    target_brightness = to_brightness;
    active = true;
    if (timer)
        timer->start();
}

int MainWindow::pause_fade_ticks()
{
    return settings[SaveKeys::PAUSE_TRANSITION_DURATION].toInt() / FADE_TICK_MS;
}

bool MainWindow::is_fade_active() const
{
    return restore_fade.active || return_fade.active || switch_fade.active
           || switch_return_fade.active;
}

void MainWindow::write_fade_values(const FadeRecord& fade)
{
    ColorSettings color_settings;
    color_settings.temperature = static_cast<int>(fade.temperature);
    current_temperature = color_settings.temperature;
    color_settings.brightness = fade.brightness / 100.0f;
    current_brightness = static_cast<int>(color_settings.brightness * 100.0f);
    set_temperature(&color_settings, 0);
}

bool MainWindow::is_gamma_paused()
{
    return settings[SaveKeys::IS_COLOR_CHANGES_PAUSED].toBool() || color_changes_auto_paused
           || settings[SaveKeys::IS_OVRA_PAUSED].toBool();
}

bool MainWindow::is_ovra_paused()
{
    return settings[SaveKeys::IS_OVRA_PAUSED].toBool();
}

bool MainWindow::is_color_changes_paused()
{
    return settings[SaveKeys::IS_COLOR_CHANGES_PAUSED].toBool();
}

bool MainWindow::use_inverted_colors()
{
    return settings[SaveKeys::USE_INVERTED_COLORS].toBool();
}

// ---------------------------------------------------------------- pause

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
    if (paused && !color_changes_auto_paused) {
        color_changes_auto_paused = true;
        applied_color_trigger.clear();
        process_restore_colors();
    } else if (!paused && color_changes_auto_paused) {
        color_changes_auto_paused = false;
        applied_color_trigger.clear();
        process_return_colors();
    }
    refresh_high_level_colors();
}

void MainWindow::process_restore_colors()
{
    if (use_inverted_colors())
        restore_colors_with_switch_state();
    else
        restore_colors();
}

void MainWindow::process_return_colors()
{
    if (use_inverted_colors())
        return_colors_with_switch_state();
    else
        return_colors();
}

// ---------------------------------------------------------------- plain fades

void MainWindow::restore_colors()
{
    if (settings[SaveKeys::USE_PER_MONITOR_SETTINGS].toBool()) {
        restore_gamma();
        return;
    }
    const int ticks = pause_fade_ticks();
    float temperature = static_cast<float>(current_temperature);
    float brightness = static_cast<float>(current_brightness);
    return_fade.take_over(temperature, brightness);
    if (ticks <= 0) {
        // No time to fade in: end where the fade would end.
        restore_fade.stop();
        current_temperature = static_cast<int>(NEUTRAL_TEMPERATURE);
        current_brightness = static_cast<int>(NEUTRAL_BRIGHTNESS);
        restore_gamma();
        return;
    }
    restore_fade.begin(temperature, brightness, NEUTRAL_TEMPERATURE, NEUTRAL_BRIGHTNESS);
    const float n = static_cast<float>(ticks);
    restore_fade.temperature_step = (NEUTRAL_TEMPERATURE - temperature) / n;
    restore_fade.brightness_step = (NEUTRAL_BRIGHTNESS - brightness) / n;
}

void MainWindow::restore_colors_timeout()
{
    if (restore_fade.advance()) {
        restore_fade.stop();
        restore_gamma();
        return;
    }
    write_fade_values(restore_fade);
}

void MainWindow::return_colors()
{
    if (settings[SaveKeys::USE_PER_MONITOR_SETTINGS].toBool()) {
        update_gamma();
        return;
    }
    const int ticks = pause_fade_ticks();
    float temperature = NEUTRAL_TEMPERATURE;
    float brightness = NEUTRAL_BRIGHTNESS;
    restore_fade.take_over(temperature, brightness);
    if (ticks <= 0) {
        return_fade.stop();
        update_gamma();
        return;
    }
    const float target_temperature = get_interpolated_color_temperature(0);
    const float target_brightness = get_interpolated_brightness(0);
    return_fade.begin(temperature, brightness, target_temperature, target_brightness);
    // Steps count from neutral even when an interrupted fade starts elsewhere.
    const float n = static_cast<float>(ticks);
    return_fade.temperature_step = (target_temperature - NEUTRAL_TEMPERATURE) / n;
    return_fade.brightness_step = (target_brightness - NEUTRAL_BRIGHTNESS) / n;
}

void MainWindow::return_colors_timeout()
{
    if (return_fade.advance()) {
        return_fade.stop();
        update_gamma();
        return;
    }
    write_fade_values(return_fade);
}

void MainWindow::move_to(int temperature, int brightness)
{
    if (switch_fade.active || switch_return_fade.active || is_gamma_paused())
        return;
    if (settings[SaveKeys::USE_PER_MONITOR_SETTINGS].toBool()) {
        update_gamma();
        return;
    }
    float from_temperature = static_cast<float>(current_temperature);
    float from_brightness = static_cast<float>(current_brightness);
    restore_fade.take_over(from_temperature, from_brightness);
    return_fade.begin(from_temperature, from_brightness, static_cast<float>(temperature),
                      static_cast<float>(brightness));
    return_fade.temperature_step = (temperature - from_temperature) / MOVE_TICKS;
    return_fade.brightness_step = (brightness - from_brightness) / MOVE_TICKS;
}

// ---------------------------------------------------------------- inversion fades

void MainWindow::start_switch_fade(float from_temperature, float from_brightness)
{
    switch_fade.begin(from_temperature, from_brightness, DARK_TEMPERATURE, DARK_BRIGHTNESS);
    switch_fade.temperature_step = (DARK_TEMPERATURE - from_temperature) / SWITCH_TICKS;
    switch_fade.brightness_step = (DARK_BRIGHTNESS - from_brightness) / SWITCH_TICKS;
}

void MainWindow::switch_state()
{
    if (switch_fade.active)
        return;
    if (is_gamma_paused()) {
        refresh_color_inversion();
        return;
    }
    float temperature = static_cast<float>(current_temperature);
    float brightness = static_cast<float>(current_brightness);
    switch_return_fade.take_over(temperature, brightness);
    start_switch_fade(temperature, brightness);
}

void MainWindow::switch_state_timeout()
{
    if (!switch_fade.advance()) {
        write_fade_values(switch_fade);
        return;
    }
    switch_fade.stop();
    switch_return_fade.active = true;
    if (gamma)
        gamma->set_use_inverted_gamma(inversion_target);
    refresh_color_effects();
    switch_state_return();
}

void MainWindow::switch_state_return()
{
    float temperature = DARK_TEMPERATURE;
    float brightness = DARK_BRIGHTNESS;
    switch_fade.take_over(temperature, brightness);
    if (pending_restore_fade) {
        switch_return_fade.begin(temperature, brightness, NEUTRAL_TEMPERATURE, NEUTRAL_BRIGHTNESS);
        switch_return_fade.temperature_step = (NEUTRAL_TEMPERATURE - DARK_TEMPERATURE) / SWITCH_TICKS;
        switch_return_fade.brightness_step = (NEUTRAL_BRIGHTNESS - DARK_BRIGHTNESS) / SWITCH_TICKS;
        return;
    }
    const float target_temperature = get_interpolated_color_temperature(0);
    const float target_brightness = get_interpolated_brightness(0);
    switch_return_fade.begin(temperature, brightness, target_temperature, target_brightness);
    switch_return_fade.temperature_step = (target_temperature - DARK_TEMPERATURE) / SWITCH_TICKS;
    switch_return_fade.brightness_step = (target_brightness - DARK_BRIGHTNESS) / SWITCH_TICKS;
}

void MainWindow::switch_state_return_timeout()
{
    if (!switch_return_fade.advance()) {
        write_fade_values(switch_return_fade);
        return;
    }
    switch_return_fade.stop();
    switch_fade.stop();
    pending_return_fade = false;
    const bool was_restoring = pending_restore_fade;
    pending_restore_fade = false;
    update_gamma();
    refresh_color_inversion();
    // A pause that went through the dark point ends resting on the saved
    // ramps, like a plain pause does. Without the low-level path there are
    // no ramps to give back, and restore_gamma would revert the inversion
    // the user chose.
    if (was_restoring && is_gamma_paused() && settings[SaveKeys::USE_LOW_LEVEL_COLOR_API].toBool())
        restore_gamma();
}

void MainWindow::restore_colors_with_switch_state()
{
    if (switch_fade.active)
        return;
    pending_restore_fade = true;
    inversion_target = false;
    if (gamma)
        gamma->set_use_inverted_gamma(true);
    float temperature = static_cast<float>(current_temperature);
    float brightness = static_cast<float>(current_brightness);
    switch_return_fade.take_over(temperature, brightness);
    start_switch_fade(temperature, brightness);
}

void MainWindow::return_colors_with_switch_state()
{
    if (switch_fade.active)
        return;
    if (is_gamma_paused()) {
        refresh_color_inversion();
        return;
    }
    pending_return_fade = true;
    inversion_target = true;
    if (gamma)
        gamma->set_use_inverted_gamma(false);
    float temperature = NEUTRAL_TEMPERATURE;
    float brightness = NEUTRAL_BRIGHTNESS;
    switch_return_fade.take_over(temperature, brightness);
    start_switch_fade(temperature, brightness);
}

void MainWindow::invert_colors()
{
    set_inversion(true);
}

void MainWindow::revert_colors()
{
    set_inversion(false);
}

void MainWindow::set_inversion(bool inverted)
{
    if (settings[SaveKeys::USE_PER_MONITOR_SETTINGS].toBool()) {
        settings[SaveKeys::USE_INVERTED_COLORS] = inverted;
        refresh_color_inversion();
        return;
    }
    inversion_target = inverted;
    if (settings[SaveKeys::USE_INVERTED_COLORS].toBool() != inverted) {
        settings[SaveKeys::USE_INVERTED_COLORS] = inverted;
        switch_state();
    }
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
