#include "settings/Settings.h"

#include <QCoreApplication>

#include "base/Singleton.h"
#include "settings/Defines.h"
#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"
#include "settings/SettingsHost.h"
#include "settings/SettingsTable.h"

namespace {

// A missing entry reads as an invalid value, without adding it to the map.
QVariant read(const SettingsMap& settings, const char* key)
{
    const auto found = settings.find(QString::fromLatin1(key));
    return found == settings.end() ? QVariant() : found->second;
}

int integer(const SettingsMap& settings, const char* key)
{
    return read(settings, key).toInt();
}

bool boolean(const SettingsMap& settings, const char* key)
{
    return read(settings, key).toBool();
}

QString text(const SettingsMap& settings, const char* key)
{
    return read(settings, key).toString();
}

QStringList default_about_texts()
{
    return {QString::fromUtf8(Defines::APPLICATION_NAME), QCoreApplication::applicationVersion(),
            QString::fromUtf8(SaveKeys::ORGANIZATION), QString()};
}

} // namespace

Settings::Settings(QObject* parent) : QObject(parent) {}

Settings::~Settings() = default;

void Settings::restore()
{
    restore_settings();
}

void Settings::restore_settings()
{
    const SettingsHost host = settings_host();
    const bool main_window = host.valid();
    if (slap_custom_assert_function(main_window, "main_window", "REQUIRE", __LINE__, __FILE__)) {
        break_debugger();
        return;
    }
    const SettingsMap& s = *host.settings;
    SaveManager* save_manager = SaveManager::s_instance;

    if (save_manager)
        save_manager->basic_restore();
    emit set_language_dropdown_value(text(s, SaveKeys::LANGUAGE));
    if (host.restore_saved_settings)
        host.restore_saved_settings();
    else if (save_manager)
        save_manager->restore_settings();

    emit set_strictness_value(integer(s, SaveKeys::TIMER_TYPE));
    emit set_timer_type_dropdown_value(integer(s, SaveKeys::TIMER_TYPE));

    emit set_automatically_close_rest_screen_value(
        boolean(s, SaveKeys::AUTOMATICALLY_CLOSE_REST_SCREEN));
    emit set_use_sounds(boolean(s, SaveKeys::USE_SOUNDS));
    emit set_use_manual_color_settings(boolean(s, SaveKeys::USE_MANUAL_COLOR_SETTINGS));
    emit set_use_manual_brightness(boolean(s, SaveKeys::USE_MANUAL_BRIGHTNESS));
    emit set_use_sleep_light(boolean(s, SaveKeys::USE_SLEEP_LIGHT));
    emit set_use_color_effects(boolean(s, SaveKeys::USE_COLOR_EFFECTS));
    emit set_use_manual_location(boolean(s, SaveKeys::USE_MANUAL_LOCATION));
    emit set_use_manual_night_duration(boolean(s, SaveKeys::USE_MANUAL_NIGHT_DURATION));
    emit set_use_automatic_brightness(boolean(s, SaveKeys::USE_AUTOMATIC_BRIGHTNESS));
    emit set_match_brightness_to_lighting(boolean(s, SaveKeys::MATCH_BRIGHTNESS_TO_LIGHTING));
    emit set_use_smart_brightness(boolean(s, SaveKeys::USE_SMART_BRIGHTNESS));
    emit set_use_smart_inversion(boolean(s, SaveKeys::USE_SMART_INVERSION));
    emit set_use_blink_detection(boolean(s, SaveKeys::USE_BLINK_DETECTION));
    emit set_check_for_updates(boolean(s, SaveKeys::CHECK_FOR_UPDATES));
    emit set_hide_taskbar_icon(boolean(s, SaveKeys::HIDE_TASKBAR_ICON));
    emit set_use_mouse_inactivity(boolean(s, SaveKeys::USE_MOUSE_INACTIVITY));
    emit set_use_keyboard_inactivity(boolean(s, SaveKeys::USE_KEYBOARD_INACTIVITY));
    emit set_use_keyboard_blocking(boolean(s, SaveKeys::USE_KEYBOARD_BLOCKING));
    emit set_use_software_cursor(boolean(s, SaveKeys::USE_SOFTWARE_CURSOR));
    emit set_auto_save_settings(boolean(s, SaveKeys::AUTO_SAVE_SETTINGS));
    emit set_use_gamma_fixer(boolean(s, SaveKeys::USE_GAMMA_FIXER));
    emit set_optimize_ui_creation(boolean(s, SaveKeys::OPTIMIZE_UI_CREATION));
    emit set_use_keyboard_shortcuts(boolean(s, SaveKeys::USE_KEYBOARD_SHORTCUTS));
    emit set_destroy_ui_on_close(boolean(s, SaveKeys::DESTROY_UI_ON_CLOSE));
    emit set_use_low_level_color_api(boolean(s, SaveKeys::USE_LOW_LEVEL_COLOR_API));
    emit set_start_on_startup(boolean(s, SaveKeys::START_ON_STARTUP));
    emit set_temperature_extended_values(boolean(s, SaveKeys::USE_TEMPERATURE_EXTENDED_VALUES));
    emit set_brightness_extended_values(boolean(s, SaveKeys::USE_BRIGHTNESS_EXTENDED_VALUES));
    emit set_use_inverted_colors(boolean(s, SaveKeys::USE_INVERTED_COLORS));
    emit set_use_camera(boolean(s, SaveKeys::IS_CAMERA_ACTIVE));
    emit set_use_blink_screen(boolean(s, SaveKeys::USE_BLINK_SCREEN));

    emit set_postpone_time_value(integer(s, SaveKeys::POSTPONE_TIME));
    emit set_work_time_value(integer(s, SaveKeys::WORK_TIME));
    emit set_rest_time_value(integer(s, SaveKeys::REST_TIME));
    emit set_day_transition_duration_value(integer(s, SaveKeys::DAY_TRANSITION_DURATION));
    emit set_night_transition_duration_value(integer(s, SaveKeys::NIGHT_TRANSITION_DURATION));
    emit set_sleep_transition_duration_value(integer(s, SaveKeys::SLEEP_TRANSITION_DURATION));
    emit set_pause_transition_duration_value(integer(s, SaveKeys::PAUSE_TRANSITION_DURATION));

    emit set_latitude_value(QString::number(*host.latitude, 'g', 6));
    emit set_longitude_value(QString::number(*host.longitude, 'g', 6));

    emit set_night_start_time_value(integer(s, SaveKeys::NIGHT_START_TIME_HOURS),
                                    integer(s, SaveKeys::NIGHT_START_TIME_MINUTES));
    emit set_night_end_time_value(integer(s, SaveKeys::NIGHT_END_TIME_HOURS),
                                  integer(s, SaveKeys::NIGHT_END_TIME_MINUTES));
    emit set_bedtime_value(integer(s, SaveKeys::BEDTIME_HOURS),
                           integer(s, SaveKeys::BEDTIME_MINUTES));
    emit set_wake_time_value(integer(s, SaveKeys::WAKE_TIME_HOURS),
                             integer(s, SaveKeys::WAKE_TIME_MINUTES));

    emit set_updates_interval_value(integer(s, SaveKeys::UPDATES_INTERVAL) != 0);
    emit set_use_advanced_settings(boolean(s, SaveKeys::USE_ADVANCED_SETTINGS));
    emit set_use_color_pausers(boolean(s, SaveKeys::USE_COLOR_PAUSERS));
    emit set_use_timer_pausers(boolean(s, SaveKeys::USE_TIMER_PAUSERS));
    emit set_use_mouse_pausers(boolean(s, SaveKeys::USE_MOUSE_PAUSERS));
    emit set_use_color_triggers(boolean(s, SaveKeys::USE_COLOR_TRIGGERS));
    emit set_time_zone_offset_value(integer(s, SaveKeys::TIME_ZONE_OFFSET));
    emit set_new_moon_offset_value(integer(s, SaveKeys::NEW_MOON_OFFSET));
    emit set_full_moon_offset_value(integer(s, SaveKeys::FULL_MOON_OFFSET));
    emit set_color_pausers_pause_on_fullscreen_apps(
        boolean(s, SaveKeys::COLOR_PAUSERS_PAUSE_ON_FULLSCREEN_APPS));
    emit set_timer_pausers_pause_on_fullscreen_apps(
        boolean(s, SaveKeys::TIMER_PAUSERS_PAUSE_ON_FULLSCREEN_APPS));
    emit set_mouse_pausers_pause_on_fullscreen_apps(
        boolean(s, SaveKeys::MOUSE_PAUSERS_PAUSE_ON_FULLSCREEN_APPS));

    emit set_shortcuts_values(host.shortcuts_values ? host.shortcuts_values()
                                                    : SettingsTable::shortcut_values(s));

    QStringList about = host.about_texts ? host.about_texts() : default_about_texts();
    while (about.size() < 4)
        about.append(QString());
    emit set_current_application_name(about.at(0));
    emit set_current_version(about.at(1));
    emit set_current_publisher_name(about.at(2));
    emit set_current_website(about.at(3));

    emit set_day_opacity_slider_value(integer(s, SaveKeys::DAY_OPACITY));
    emit set_night_opacity_slider_value(integer(s, SaveKeys::NIGHT_OPACITY));
    emit set_day_dim_slider_value(integer(s, SaveKeys::DAY_DIM));
    emit set_night_dim_slider_value(integer(s, SaveKeys::NIGHT_DIM));
    emit set_lightness_screen_opacity_slider_value(integer(s, SaveKeys::LIGHTNESS_SCREEN_OPACITY));
    emit set_lightness_screen_radius_slider_value(integer(s, SaveKeys::LIGHTNESS_SCREEN_RADIUS));
    emit set_lightness_screen_x_position_slider_value(
        integer(s, SaveKeys::LIGHTNESS_SCREEN_X_POSITION));
    emit set_lightness_screen_y_position_slider_value(
        integer(s, SaveKeys::LIGHTNESS_SCREEN_Y_POSITION));
    emit set_color_effect_dropdown_value(integer(s, SaveKeys::COLOR_EFFECT));
    emit set_color_scheme_dropdown_value(integer(s, SaveKeys::COLOR_SCHEME));
    emit set_leading_color_dropdown_value(integer(s, SaveKeys::LEADING_COLOR));
    emit set_overlay_color_dropdown_value(integer(s, SaveKeys::OVERLAY_SCREEN_COLOR));
    emit set_mouse_click_interval(integer(s, SaveKeys::MOUSE_CLICK_INTERVAL));
    emit set_font_type_value(integer(s, SaveKeys::FONT_TYPE));
    emit set_use_overlay_screen(boolean(s, SaveKeys::USE_OVERLAY_SCREEN));
    emit set_use_lightness_screen(boolean(s, SaveKeys::USE_LIGHTNESS_SCREEN));
    emit set_rest_screen_type_dropdown_value(integer(s, SaveKeys::REST_SCREEN_TYPE));

    emit set_active_features(host.unused_pages ? host.unused_pages()
                                               : read(s, SaveKeys::UNUSED_PAGES).toList());

    emit set_pwm_frequency_slider_value_ui(integer(s, SaveKeys::PWM_FREQUENCY));
    emit set_pwm_max_frequency_value(integer(s, SaveKeys::PWM_MAX_FREQUENCY));
    emit set_pwm_control_update_continuously(boolean(s, SaveKeys::PWM_UPDATE_CONTINUOUSLY));
    emit set_use_pwm_control(boolean(s, SaveKeys::USE_PWM_CONTROL));
    emit set_use_per_monitor_settings(boolean(s, SaveKeys::USE_PER_MONITOR_SETTINGS));

    if (host.restore_manage_monitors)
        host.restore_manage_monitors();
    emit set_view(boolean(s, SaveKeys::USE_ADVANCED_SETTINGS));

    if (host.refresh_after_restore)
        host.refresh_after_restore();

    // The lists come last: the pausers need the switches above them.
    emit set_color_pausers_list(text(s, SaveKeys::COLOR_PAUSERS));
    emit set_timer_pausers_list(text(s, SaveKeys::TIMER_PAUSERS));
    emit set_mouse_pausers_list(text(s, SaveKeys::MOUSE_PAUSERS));
    emit set_color_triggers_list(text(s, SaveKeys::COLOR_TRIGGERS));
    emit set_websites_for_blocking(text(s, SaveKeys::WEBSITES_FOR_BLOCKING));
    emit set_applications_for_blocking(text(s, SaveKeys::APPLICATIONS_FOR_BLOCKING));

    if (host.refresh_after_lists)
        host.refresh_after_lists();
    emit settings_restored();
}
