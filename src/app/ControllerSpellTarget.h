#pragma once

#include "spells/ISpellTarget.h"

class MainWindow;

// The spells' road into the controller: each call is one of its slots, so a
// spell changes a setting exactly as the page's control does.
class ControllerSpellTarget : public ISpellTarget
{
public:
    explicit ControllerSpellTarget(MainWindow* window) : window(window) {}

    QVariant setting(const char* key) const override;
    void show_tray_icon_message(const QString& title, const QString& text) override;
    void save_settings() override;
    void open_url(const QString& url) override;
    void open_spells_help() override;
    void bring_to_front() override;

    void day_temperature_changed(int value) override;
    void night_temperature_changed(int value) override;
    void day_brightness_changed(int value) override;
    void night_brightness_changed(int value) override;
    void night_start_time_changed(int hours) override;
    void night_end_time_changed(int hours) override;

    void use_manual_color_settings_changed(bool value) override;
    void use_manual_brightness_changed(bool value) override;
    void use_manual_night_duration_changed(bool value) override;
    void use_manual_location_changed(bool value) override;
    void latitude_changed(float value) override;
    void longitude_changed(float value) override;
    void preserve_gamma_changed(bool value) override;
    void use_software_cursor_changed(bool value) override;
    void use_gamma_fixer_changed(bool value) override;
    void start_on_startup_changed(bool value) override;
    void ignore_monitor_changed(int monitor, bool ignore) override;

    void reset_colors() override;
    void toggle_inverted_gamma() override;
    void reset_settings_in_store() override;

    void use_hidden_features_notifications_changed(bool value) override;
    void use_spinning_tray_icon_changed(bool value) override;
    void use_ghost_icon_changed(bool value) override;
    void allow_multiple_instances_changed(bool value) override;
    void use_keyboard_hook_changed(bool value) override;
    void enable_conflicting_applications_changed(bool value) override;
    void ui_scale_changed(int value) override;
    void enable_page(bool enable, const QString& page) override;

    void import_settings() override;
    void import_settings_from_string(const QString& text) override;
    void export_settings() override;
    void export_settings_as_string() override;

private:
    MainWindow* window;
};
