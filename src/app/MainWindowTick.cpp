// The once-a-second colour tick: from the settings and the day curve to every
// CRTC. Nothing is compared with the last second; the whole road runs and
// every output is written again, which also repairs ramps that someone else
// changed in between.
#include <QGuiApplication>
#include <QScreen>
#include <cstdlib>
#include <ctime>

#include "app/MainWindow.h"
#include "color/ColorSettings.h"
#include "color/IGamma.h"
#include "settings/SaveKeys.h"
#include "time/Clock.h"
#include "time/ClockPosition.h"
#include "time/SolarPosition.h"

namespace {
QString monitor_key(const char* key, int monitor)
{
    return monitor == 0 ? QString::fromLatin1(key)
                        : QString::fromLatin1(key) + QString::number(monitor);
}
}

int MainWindow::update_gamma()
{
    if (!gamma)
        return 0;
    if (color_triggers_in_charge())
        return 0;
    if (is_fade_active())
        return 0;
    if (is_gamma_paused()) {
        if (!first_update_done) {
            first_update_done = true;
            return 0;
        }
        refresh_color_effects();
        return 0;
    }
    if (!first_update_done) {
        // The first update fades in from neutral instead of jumping.
        first_update_done = true;
        process_return_colors();
        return 0;
    }
    refresh_color_effects();
    refresh_color_fixer();

    int result = 0;
    if (settings[SaveKeys::USE_PER_MONITOR_SETTINGS].toBool()) {
        const int count = get_screen_count();
        for (int monitor = 1; monitor <= count; ++monitor)
            result = update_gamma_for_monitor(monitor);
    } else {
        result = update_gamma_for_monitor(0);
    }
    if (settings[SaveKeys::PWM_UPDATE_CONTINUOUSLY].toBool())
        update_pwm_control_status();
    return result;
}

int MainWindow::update_gamma_for_monitor(int monitor)
{
    ColorSettings color_settings;
    color_settings.temperature = static_cast<int>(get_interpolated_color_temperature(monitor));
    color_settings.brightness = get_interpolated_brightness(monitor) / 100.0f;
    current_temperature = color_settings.temperature;
    current_brightness = static_cast<int>(color_settings.brightness * 100.0f);
    return set_temperature(&color_settings, monitor);
}

int MainWindow::set_temperature(ColorSettings* color_settings, int monitor)
{
    color_settings->gamma[0] = color_settings->gamma[1] = color_settings->gamma[2] = 1.0f;
    const int effect = settings[SaveKeys::COLOR_EFFECT].toInt();
    int result = 0;
    if (settings[SaveKeys::USE_LOW_LEVEL_COLOR_API].toBool() && gamma) {
        result = gamma->set_temperature(color_settings, ignored_monitors, monitor);
        if (result < 0)
            result = 0;
    }
    last_brightness = color_settings->brightness;
    last_color_effect = effect;
    last_temperature = color_settings->temperature;
    return result;
}

bool MainWindow::uses_solar_curve()
{
    return !settings[SaveKeys::USE_MANUAL_NIGHT_DURATION].toBool() && latitude != -1.0
           && longitude != -1.0;
}

// Puts the three values of one quantity into the record of the curve in
// use and asks that curve for this moment's value.
float MainWindow::interpolate_curve(const CurveKeys& keys, int monitor, bool brightness)
{
    const bool manual = settings[keys.manual].toBool();
    const float day = settings[monitor_key(keys.day, monitor)].toInt();
    const float night = settings[monitor_key(keys.night, monitor)].toInt();
    const float sleep = settings[monitor_key(keys.sleep, monitor)].toInt();
    auto put_values = [&](auto& values) {
        values.use_manual_value = manual;
        values.day_value = day;
        values.night_value = night;
        values.sleep_value = sleep;
    };
    if (uses_solar_curve()) {
        SolarInterpolationValues values;
        fill_solar_interpolation_values(&values);
        put_values(values);
        SolarPosition* sun = SolarPosition::s_instance;
        return brightness ? sun->get_interpolated_brightness(values)
                          : sun->get_interpolated_color_temperature(values);
    }
    ClockInterpolationValues values;
    fill_clock_interpolation_values(&values);
    put_values(values);
    ClockPosition* clock = ClockPosition::s_instance;
    return brightness ? clock->get_interpolated_brightness(values)
                      : clock->get_interpolated_color_temperature(values);
}

float MainWindow::get_interpolated_color_temperature(int monitor)
{
    static const CurveKeys keys{SaveKeys::USE_MANUAL_COLOR_SETTINGS, SaveKeys::DAY_TEMPERATURE,
                                SaveKeys::NIGHT_TEMPERATURE, SaveKeys::SLEEP_LIGHT};
    return interpolate_curve(keys, monitor, false);
}

float MainWindow::get_interpolated_brightness(int monitor)
{
    static const CurveKeys keys{SaveKeys::USE_MANUAL_BRIGHTNESS, SaveKeys::DAY_BRIGHTNESS,
                                SaveKeys::NIGHT_BRIGHTNESS, SaveKeys::SLEEP_BRIGHTNESS};
    // The smart modifier counts in every call, so fades that read the target
    // take it in too.
    return interpolate_curve(keys, monitor, true) + smart_brightness_modifier();
}

void MainWindow::fill_solar_interpolation_values(SolarInterpolationValues* values)
{
    values->latitude = static_cast<float>(latitude);
    values->longitude = static_cast<float>(longitude);
    values->use_sleep_light = settings[SaveKeys::USE_SLEEP_LIGHT].toBool();
    values->day_transition_duration = settings[SaveKeys::DAY_TRANSITION_DURATION].toInt();
    values->night_transition_duration = settings[SaveKeys::NIGHT_TRANSITION_DURATION].toInt();
    values->sleep_transition_duration = settings[SaveKeys::SLEEP_TRANSITION_DURATION].toInt();
    values->bedtime_hours = settings[SaveKeys::BEDTIME_HOURS].toInt();
    values->bedtime_minutes = settings[SaveKeys::BEDTIME_MINUTES].toInt();
    values->wake_time_hours = settings[SaveKeys::WAKE_TIME_HOURS].toInt();
    values->wake_time_minutes = settings[SaveKeys::WAKE_TIME_MINUTES].toInt();
    values->time_zone_offset = settings[SaveKeys::TIME_ZONE_OFFSET].toInt();
    values->new_moon_offset = settings[SaveKeys::NEW_MOON_OFFSET].toInt();
    values->full_moon_offset = settings[SaveKeys::FULL_MOON_OFFSET].toInt();
}

void MainWindow::fill_clock_interpolation_values(ClockInterpolationValues* values)
{
    values->use_sleep_light = settings[SaveKeys::USE_SLEEP_LIGHT].toBool();
    values->day_transition_duration = settings[SaveKeys::DAY_TRANSITION_DURATION].toInt();
    values->night_transition_duration = settings[SaveKeys::NIGHT_TRANSITION_DURATION].toInt();
    values->sleep_transition_duration = settings[SaveKeys::SLEEP_TRANSITION_DURATION].toInt();
    values->night_start_hours = settings[SaveKeys::NIGHT_START_TIME_HOURS].toInt();
    values->night_start_minutes = settings[SaveKeys::NIGHT_START_TIME_MINUTES].toInt();
    values->night_end_hours = settings[SaveKeys::NIGHT_END_TIME_HOURS].toInt();
    values->night_end_minutes = settings[SaveKeys::NIGHT_END_TIME_MINUTES].toInt();
    values->bedtime_hours = settings[SaveKeys::BEDTIME_HOURS].toInt();
    values->bedtime_minutes = settings[SaveKeys::BEDTIME_MINUTES].toInt();
    values->wake_time_hours = settings[SaveKeys::WAKE_TIME_HOURS].toInt();
    values->wake_time_minutes = settings[SaveKeys::WAKE_TIME_MINUTES].toInt();
}

int MainWindow::get_transition_type()
{
    if (uses_solar_curve())
        return SolarPosition::s_instance->get_transition_type();
    return ClockPosition::s_instance->get_transition_type();
}

void MainWindow::fix_gamma()
{
    fix_gamma_requested = true;
}

void MainWindow::refresh_color_fixer()
{
    // The fixer keeps its place in the road but has no numeric effect: the
    // write of every second already repairs a ramp that something changed.
    std::srand(static_cast<unsigned>(std::time(nullptr)));
    if (fix_gamma_requested) {
        (void)std::rand();
        fix_gamma_requested = false;
    }
    if (gamma)
        gamma->set_gamma_fixer(0);
}

void MainWindow::refresh_color_effects() {}

void MainWindow::refresh_high_level_colors()
{
    last_temperature = -1;
    last_brightness = -1.0f;
    update_gamma();
}

void MainWindow::update_idle_time()
{
    if (settings[SaveKeys::IS_TIMER_PAUSED].toBool())
        return;
    if (!settings[SaveKeys::USE_MOUSE_INACTIVITY].toBool()
        && !settings[SaveKeys::USE_KEYBOARD_INACTIVITY].toBool()) {
        if (idle_paused) {
            idle_paused = false;
            start_rest_timer();
        }
        return;
    }
    ++idle_seconds;
    if (idle_seconds > 120) {
        if (rest_timer_exists() && !is_rest_started() && !idle_paused) {
            idle_paused = true;
            stop_rest_timer();
        }
    } else if (idle_paused) {
        idle_paused = false;
        start_rest_timer();
    }
}

bool MainWindow::is_day()
{
    const int hour = Clock::instance()->now().time().hour();
    return hour >= 6 && hour < 18;
}

int MainWindow::get_screen_count()
{
    if (screen_count_override >= 0)
        return screen_count_override;
    return static_cast<int>(QGuiApplication::screens().size());
}

int MainWindow::get_monitor_value(const char* key, int monitor)
{
    int value = settings[QString::fromLatin1(key)].toInt();
    if (monitor != 0)
        value = settings[monitor_key(key, monitor)].toInt();
    return value;
}

int MainWindow::get_day_temperature(int monitor)
{
    return get_monitor_value(SaveKeys::DAY_TEMPERATURE, monitor);
}

int MainWindow::get_night_temperature(int monitor)
{
    return get_monitor_value(SaveKeys::NIGHT_TEMPERATURE, monitor);
}

int MainWindow::get_sleep_temperature(int monitor)
{
    return get_monitor_value(SaveKeys::SLEEP_LIGHT, monitor);
}

int MainWindow::get_day_brightness(int monitor)
{
    return get_monitor_value(SaveKeys::DAY_BRIGHTNESS, monitor);
}

int MainWindow::get_night_brightness(int monitor)
{
    return get_monitor_value(SaveKeys::NIGHT_BRIGHTNESS, monitor);
}

int MainWindow::get_sleep_brightness(int monitor)
{
    return get_monitor_value(SaveKeys::SLEEP_BRIGHTNESS, monitor);
}
