#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>

// Pushes the whole restored configuration to the interface: one set_* signal
// per control, in a fixed order. The page applies each value as it arrives
// and its change handlers run back into the controller, so the order is part
// of the behaviour: booleans before the values that depend on them, the list
// texts last. With no page the signals go nowhere and the settings act
// natively all the same.
class Settings : public QObject
{
    Q_OBJECT

public:
    explicit Settings(QObject* parent = nullptr);
    ~Settings() override;

    void restore();
    void restore_settings();

signals:
    void set_language_dropdown_value(QString value);
    void set_strictness_value(int value);
    void set_timer_type_dropdown_value(int value);

    void set_automatically_close_rest_screen_value(bool value);
    void set_use_sounds(bool value);
    void set_use_manual_color_settings(bool value);
    void set_use_manual_brightness(bool value);
    void set_use_sleep_light(bool value);
    void set_use_color_effects(bool value);
    void set_use_manual_location(bool value);
    void set_use_manual_night_duration(bool value);
    void set_use_automatic_brightness(bool value);
    void set_match_brightness_to_lighting(bool value);
    void set_use_smart_brightness(bool value);
    void set_use_smart_inversion(bool value);
    void set_use_blink_detection(bool value);
    void set_check_for_updates(bool value);
    void set_hide_taskbar_icon(bool value);
    void set_use_mouse_inactivity(bool value);
    void set_use_keyboard_inactivity(bool value);
    void set_use_keyboard_blocking(bool value);
    void set_use_software_cursor(bool value);
    void set_auto_save_settings(bool value);
    void set_use_gamma_fixer(bool value);
    void set_optimize_ui_creation(bool value);
    void set_use_keyboard_shortcuts(bool value);
    void set_destroy_ui_on_close(bool value);
    void set_use_low_level_color_api(bool value);
    void set_start_on_startup(bool value);
    void set_temperature_extended_values(bool value);
    void set_brightness_extended_values(bool value);
    void set_use_inverted_colors(bool value);
    void set_use_camera(bool value);
    void set_use_blink_screen(bool value);

    void set_postpone_time_value(int value);
    void set_work_time_value(int value);
    void set_rest_time_value(int value);
    void set_day_transition_duration_value(int value);
    void set_night_transition_duration_value(int value);
    void set_sleep_transition_duration_value(int value);
    void set_pause_transition_duration_value(int value);

    void set_latitude_value(QString value);
    void set_longitude_value(QString value);

    void set_night_start_time_value(int hours, int minutes);
    void set_night_end_time_value(int hours, int minutes);
    void set_bedtime_value(int hours, int minutes);
    void set_wake_time_value(int hours, int minutes);

    // Declared with a bool and sent "interval != 0": the page's box for it
    // is never loaded, and the narrowing is kept as the page expects it.
    void set_updates_interval_value(bool value);
    void set_use_advanced_settings(bool value);
    void set_use_color_pausers(bool value);
    void set_use_timer_pausers(bool value);
    void set_use_mouse_pausers(bool value);
    void set_use_color_triggers(bool value);
    void set_time_zone_offset_value(int value);
    void set_new_moon_offset_value(int value);
    void set_full_moon_offset_value(int value);
    void set_color_pausers_pause_on_fullscreen_apps(bool value);
    void set_timer_pausers_pause_on_fullscreen_apps(bool value);
    void set_mouse_pausers_pause_on_fullscreen_apps(bool value);

    void set_shortcuts_values(QVariantList value);

    void set_current_application_name(QString value);
    void set_current_version(QString value);
    void set_current_publisher_name(QString value);
    void set_current_website(QString value);

    void set_day_opacity_slider_value(int value);
    void set_night_opacity_slider_value(int value);
    void set_day_dim_slider_value(int value);
    void set_night_dim_slider_value(int value);
    void set_lightness_screen_opacity_slider_value(int value);
    void set_lightness_screen_radius_slider_value(int value);
    void set_lightness_screen_x_position_slider_value(int value);
    void set_lightness_screen_y_position_slider_value(int value);
    void set_color_effect_dropdown_value(int value);
    void set_color_scheme_dropdown_value(int value);
    void set_leading_color_dropdown_value(int value);
    void set_overlay_color_dropdown_value(int value);
    void set_mouse_click_interval(int value);
    void set_font_type_value(int value);
    void set_use_overlay_screen(bool value);
    void set_use_lightness_screen(bool value);
    void set_rest_screen_type_dropdown_value(int value);

    void set_active_features(QVariantList value);

    void set_pwm_frequency_slider_value_ui(int value);
    void set_pwm_max_frequency_value(int value);
    void set_pwm_control_update_continuously(bool value);
    void set_use_pwm_control(bool value);
    void set_use_per_monitor_settings(bool value);

    void set_view(bool value);

    void set_color_pausers_list(QString value);
    void set_timer_pausers_list(QString value);
    void set_mouse_pausers_list(QString value);
    void set_color_triggers_list(QString value);
    void set_websites_for_blocking(QString value);
    void set_applications_for_blocking(QString value);

    // The last of every push: the page may show its window after the first.
    void settings_restored();
};
