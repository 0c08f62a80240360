// The six colour values of the day, the night and the sleep window, per
// monitor, with the switches, durations, offsets and times beside them.
// Every slot follows the change rule; the value slots add the give-way loop
// that moves the other value of the period towards neutral while the
// display refuses the pair.
#include <QDebug>

#include "app/MainWindow.h"
#include "policy/AdvancedShadows.h"
#include "policy/ValueGiveWay.h"
#include "settings/ChangeRule.h"
#include "settings/SaveKeys.h"
#include "settings/SettingsTable.h"

namespace {
QString key_of(const char* key)
{
    return QString::fromLatin1(key);
}
} // namespace

// ---------------------------------------------------------------- values

void MainWindow::change_temperature_value(const char* temperature_key,
                                          const char* brightness_key, int value, int monitor,
                                          ValueSignal temperature_ui, ValueSignal brightness_ui)
{
    const ValueGiveWay::PeriodKeys keys{SettingsTable::monitor_key(temperature_key, monitor),
                                        SettingsTable::monitor_key(brightness_key, monitor)};
    change_setting(
        settings, keys.temperature, value,
        [&] {
            ValueGiveWay::after_temperature_change(
                settings, keys,
                {[this] { return update_gamma(); },
                 [&](int t) { emit(this->*temperature_ui)(t); },
                 [&](int b) { emit(this->*brightness_ui)(b); }});
            settings[AdvancedShadows::shadow_key(temperature_key, monitor)] =
                settings[keys.temperature];
            update_ovra_status();
        },
        [&](const QVariant& stored) { emit(this->*temperature_ui)(stored.toInt()); });
}

void MainWindow::change_brightness_value(const char* temperature_key, const char* brightness_key,
                                         int value, int monitor, ValueSignal temperature_ui,
                                         ValueSignal brightness_ui)
{
    const ValueGiveWay::PeriodKeys keys{SettingsTable::monitor_key(temperature_key, monitor),
                                        SettingsTable::monitor_key(brightness_key, monitor)};
    change_setting(
        settings, keys.brightness, value,
        [&] {
            ValueGiveWay::after_brightness_change(
                settings, keys,
                {[this] { return update_gamma(); },
                 [&](int t) { emit(this->*temperature_ui)(t); },
                 [&](int b) { emit(this->*brightness_ui)(b); }});
            settings[AdvancedShadows::shadow_key(brightness_key, monitor)] =
                settings[keys.brightness];
            update_ovra_status();
        },
        [&](const QVariant& stored) { emit(this->*brightness_ui)(stored.toInt()); });
}

void MainWindow::day_temperature_changed(int value, int monitor)
{
    change_temperature_value(SaveKeys::DAY_TEMPERATURE, SaveKeys::DAY_BRIGHTNESS, value, monitor,
                             &MainWindow::set_day_temperature_slider_value_ui,
                             &MainWindow::set_day_brightness_slider_value_ui);
}

void MainWindow::night_temperature_changed(int value, int monitor)
{
    change_temperature_value(SaveKeys::NIGHT_TEMPERATURE, SaveKeys::NIGHT_BRIGHTNESS, value,
                             monitor, &MainWindow::set_night_temperature_slider_value_ui,
                             &MainWindow::set_night_brightness_slider_value_ui);
}

void MainWindow::sleep_light_changed(int value, int monitor)
{
    change_temperature_value(SaveKeys::SLEEP_LIGHT, SaveKeys::SLEEP_BRIGHTNESS, value, monitor,
                             &MainWindow::set_sleep_light_slider_value_ui,
                             &MainWindow::set_sleep_brightness_slider_value_ui);
}

void MainWindow::day_brightness_changed(int value, int monitor)
{
    qDebug() << "day brigtness: " << value;
    change_brightness_value(SaveKeys::DAY_TEMPERATURE, SaveKeys::DAY_BRIGHTNESS, value, monitor,
                            &MainWindow::set_day_temperature_slider_value_ui,
                            &MainWindow::set_day_brightness_slider_value_ui);
}

void MainWindow::night_brightness_changed(int value, int monitor)
{
    qDebug() << "night brigtness: " << value;
    change_brightness_value(SaveKeys::NIGHT_TEMPERATURE, SaveKeys::NIGHT_BRIGHTNESS, value,
                            monitor, &MainWindow::set_night_temperature_slider_value_ui,
                            &MainWindow::set_night_brightness_slider_value_ui);
}

void MainWindow::sleep_brightness_changed(int value, int monitor)
{
    qDebug() << "sleep brightness: " << value;
    change_brightness_value(SaveKeys::SLEEP_LIGHT, SaveKeys::SLEEP_BRIGHTNESS, value, monitor,
                            &MainWindow::set_sleep_light_slider_value_ui,
                            &MainWindow::set_sleep_brightness_slider_value_ui);
}

// One value for day and night together; the sleep brightness stays.
void MainWindow::auto_brightness_changed(int value)
{
    if (settings[key_of(SaveKeys::NIGHT_BRIGHTNESS)].toInt() == value
        && settings[key_of(SaveKeys::DAY_BRIGHTNESS)].toInt() == value)
        return;
    day_brightness_changed(value, 0);
    night_brightness_changed(value, 0);
    emit set_day_brightness_slider_value(settings[key_of(SaveKeys::DAY_BRIGHTNESS)].toInt());
    emit set_night_brightness_slider_value(settings[key_of(SaveKeys::NIGHT_BRIGHTNESS)].toInt());
}

// ---------------------------------------------------------------- switches

void MainWindow::change_switch(const char* key, const char* shadow, bool value, bool update,
                               SwitchSignal signal)
{
    change_setting(
        settings, key_of(key), value,
        [&] {
            if (shadow)
                settings[key_of(shadow)] = settings[key_of(key)];
            if (update)
                update_gamma();
        },
        [&](const QVariant& stored) { emit(this->*signal)(stored.toBool()); });
}

void MainWindow::use_manual_color_settings_changed(bool value)
{
    change_switch(SaveKeys::USE_MANUAL_COLOR_SETTINGS, SaveKeys::ADVANCED_USE_MANUAL_COLOR_SETTINGS,
                  value, true, &MainWindow::set_use_manual_color_settings);
}

void MainWindow::use_manual_brightness_changed(bool value)
{
    change_switch(SaveKeys::USE_MANUAL_BRIGHTNESS, SaveKeys::ADVANCED_USE_MANUAL_BRIGHTNESS, value,
                  true, &MainWindow::set_use_manual_brightness);
}

void MainWindow::use_sleep_light_changed(bool value)
{
    change_switch(SaveKeys::USE_SLEEP_LIGHT, SaveKeys::ADVANCED_USE_SLEEP_LIGHT, value, true,
                  &MainWindow::set_use_sleep_light);
}

void MainWindow::use_per_monitor_settings_changed(bool value)
{
    change_switch(SaveKeys::USE_PER_MONITOR_SETTINGS, nullptr, value, true,
                  &MainWindow::set_use_per_monitor_settings);
}

// The wider slider ranges concern the page alone.
void MainWindow::temperature_extended_values_changed(bool value)
{
    change_switch(SaveKeys::USE_TEMPERATURE_EXTENDED_VALUES, nullptr, value, false,
                  &MainWindow::set_temperature_extended_values);
}

void MainWindow::brightness_extended_values_changed(bool value)
{
    change_switch(SaveKeys::USE_BRIGHTNESS_EXTENDED_VALUES, nullptr, value, false,
                  &MainWindow::set_brightness_extended_values);
}

// ---------------------------------------------------------------- the curve

// Durations and offsets move the times of the curve: the report changes at
// once, the display at the next tick.
void MainWindow::change_curve_number(const char* key, int value, ValueSignal signal)
{
    change_setting(
        settings, key_of(key), value, [&] { update_times_info(); },
        [&](const QVariant& stored) { emit(this->*signal)(stored.toInt()); });
}

void MainWindow::day_transition_duration_changed(int value)
{
    change_curve_number(SaveKeys::DAY_TRANSITION_DURATION, value,
                        &MainWindow::set_day_transition_duration_value);
}

void MainWindow::night_transition_duration_changed(int value)
{
    change_curve_number(SaveKeys::NIGHT_TRANSITION_DURATION, value,
                        &MainWindow::set_night_transition_duration_value);
}

void MainWindow::sleep_transition_duration_changed(int value)
{
    change_curve_number(SaveKeys::SLEEP_TRANSITION_DURATION, value,
                        &MainWindow::set_sleep_transition_duration_value);
}

void MainWindow::time_zone_offset_changed(int value)
{
    change_curve_number(SaveKeys::TIME_ZONE_OFFSET, value, &MainWindow::set_time_zone_offset_value);
}

void MainWindow::new_moon_offset_changed(int value)
{
    change_curve_number(SaveKeys::NEW_MOON_OFFSET, value, &MainWindow::set_new_moon_offset_value);
}

void MainWindow::full_moon_offset_changed(int value)
{
    change_curve_number(SaveKeys::FULL_MOON_OFFSET, value, &MainWindow::set_full_moon_offset_value);
}

// A time of day is two keys. The rule compares one key, so the pair is
// compared here and both are then stored through the rule's force form.
void MainWindow::change_time_pair(const char* hours_key, const char* minutes_key, int hours,
                                  int minutes, PairSignal signal)
{
    if (settings[key_of(hours_key)].toInt() == hours
        && settings[key_of(minutes_key)].toInt() == minutes)
        return;
    change_setting_force(settings, key_of(hours_key), hours, nullptr, [](const QVariant&) {});
    change_setting_force(
        settings, key_of(minutes_key), minutes, nullptr, [&](const QVariant& stored) {
            emit(this->*signal)(settings[key_of(hours_key)].toInt(), stored.toInt());
        });
    update_times_info();
}

void MainWindow::night_start_time_changed(int hours, int minutes)
{
    change_time_pair(SaveKeys::NIGHT_START_TIME_HOURS, SaveKeys::NIGHT_START_TIME_MINUTES, hours,
                     minutes, &MainWindow::set_night_start_time_value);
}

void MainWindow::night_end_time_changed(int hours, int minutes)
{
    qDebug() << "night_end_time_changed: " << hours << ":" << minutes;
    change_time_pair(SaveKeys::NIGHT_END_TIME_HOURS, SaveKeys::NIGHT_END_TIME_MINUTES, hours,
                     minutes, &MainWindow::set_night_end_time_value);
}

void MainWindow::bedtime_changed(int hours, int minutes)
{
    qDebug() << "bedtime_changed: " << hours << ":" << minutes;
    change_time_pair(SaveKeys::BEDTIME_HOURS, SaveKeys::BEDTIME_MINUTES, hours, minutes,
                     &MainWindow::set_bedtime_value);
}

void MainWindow::wake_time_changed(int hours, int minutes)
{
    qDebug() << "wake_time_changed: " << hours << ":" << minutes;
    change_time_pair(SaveKeys::WAKE_TIME_HOURS, SaveKeys::WAKE_TIME_MINUTES, hours, minutes,
                     &MainWindow::set_wake_time_value);
}

// ---------------------------------------------------------------- monitors

void MainWindow::current_active_monitor_changed(int monitor)
{
    current_monitor = monitor;
    restore_advanced_settings_values();
}

// Tells the page the whole stored state of the values: the six of the
// monitor it edits, then the shared switches and screens.
// A page moved by the native side reports nothing back, so the values of
// the view come with every restore push instead of through the page's
// answer to set_use_advanced_settings.
void MainWindow::show_view_values()
{
    emit set_ovra_mode_dropdown_value_ui(settings[key_of(SaveKeys::OVRA_MODE)].toInt());
    emit set_ovra_type_dropdown_value_ui(settings[key_of(SaveKeys::OVRA_TYPE)].toInt());
    restore_advanced_settings_values();
}

void MainWindow::restore_advanced_settings_values()
{
    const int m = current_monitor;
    emit set_day_temperature_slider_value(get_day_temperature(m));
    emit set_night_temperature_slider_value(get_night_temperature(m));
    emit set_sleep_light_slider_value(get_sleep_temperature(m));
    emit set_day_brightness_slider_value(get_day_brightness(m));
    emit set_night_brightness_slider_value(get_night_brightness(m));
    emit set_sleep_brightness_slider_value(get_sleep_brightness(m));

    auto flag = [this](const char* key) { return settings[key_of(key)].toBool(); };
    auto number = [this](const char* key) { return settings[key_of(key)].toInt(); };
    emit set_use_manual_color_settings(flag(SaveKeys::USE_MANUAL_COLOR_SETTINGS));
    emit set_use_manual_brightness(flag(SaveKeys::USE_MANUAL_BRIGHTNESS));
    emit set_use_sleep_light(flag(SaveKeys::USE_SLEEP_LIGHT));
    emit set_use_color_effects(flag(SaveKeys::USE_COLOR_EFFECTS));
    emit set_color_effect_dropdown_value(number(SaveKeys::COLOR_EFFECT));
    emit set_use_overlay_screen(flag(SaveKeys::USE_OVERLAY_SCREEN));
    emit set_day_opacity_slider_value(number(SaveKeys::DAY_OPACITY));
    emit set_night_opacity_slider_value(number(SaveKeys::NIGHT_OPACITY));
    emit set_day_dim_slider_value(number(SaveKeys::DAY_DIM));
    emit set_night_dim_slider_value(number(SaveKeys::NIGHT_DIM));
    emit set_use_lightness_screen(flag(SaveKeys::USE_LIGHTNESS_SCREEN));
    emit set_lightness_screen_opacity_slider_value(number(SaveKeys::LIGHTNESS_SCREEN_OPACITY));
    emit set_lightness_screen_radius_slider_value(number(SaveKeys::LIGHTNESS_SCREEN_RADIUS));
    emit set_lightness_screen_x_position_slider_value(number(SaveKeys::LIGHTNESS_SCREEN_X_POSITION));
    emit set_lightness_screen_y_position_slider_value(number(SaveKeys::LIGHTNESS_SCREEN_Y_POSITION));
}
