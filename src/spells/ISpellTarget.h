#pragma once

#include <QString>
#include <QVariant>

// What a spell may do to the program. Every setting goes through the change
// handler the page's control uses, so a spell has the same effect as the
// control; the controller implements this by calling its own slots.
class ISpellTarget
{
public:
    virtual ~ISpellTarget() = default;

    // The settings map's value, invalid for a missing key.
    virtual QVariant setting(const char* key) const = 0;
    // A message beside the tray icon; nothing without one.
    virtual void show_tray_icon_message(const QString& title, const QString& text) = 0;
    // Writes every setting to the store.
    virtual void save_settings() = 0;

    virtual void open_url(const QString& url) = 0;
    // The page listing every spell.
    virtual void open_spells_help() = 0;
    virtual void bring_to_front() = 0;

    // Colour values of the plain keys (monitor 0).
    virtual void day_temperature_changed(int value) = 0;
    virtual void night_temperature_changed(int value) = 0;
    virtual void day_brightness_changed(int value) = 0;
    virtual void night_brightness_changed(int value) = 0;
    virtual void night_start_time_changed(int hours) = 0;
    virtual void night_end_time_changed(int hours) = 0;

    virtual void use_manual_color_settings_changed(bool value) = 0;
    virtual void use_manual_brightness_changed(bool value) = 0;
    virtual void use_manual_night_duration_changed(bool value) = 0;
    virtual void use_manual_location_changed(bool value) = 0;
    virtual void latitude_changed(float value) = 0;
    virtual void longitude_changed(float value) = 0;
    virtual void preserve_gamma_changed(bool value) = 0;
    virtual void use_software_cursor_changed(bool value) = 0;
    virtual void use_gamma_fixer_changed(bool value) = 0;
    virtual void start_on_startup_changed(bool value) = 0;
    virtual void ignore_monitor_changed(int monitor, bool ignore) = 0;

    virtual void reset_colors() = 0;
    virtual void toggle_inverted_gamma() = 0;
    // Empties the store but leaves the running values; the spell's closing
    // save writes them back.
    virtual void reset_settings_in_store() = 0;

    // Settings that only spells reach.
    virtual void use_hidden_features_notifications_changed(bool value) = 0;
    virtual void use_spinning_tray_icon_changed(bool value) = 0;
    virtual void use_ghost_icon_changed(bool value) = 0;
    virtual void allow_multiple_instances_changed(bool value) = 0;
    virtual void use_keyboard_hook_changed(bool value) = 0;
    virtual void enable_conflicting_applications_changed(bool value) = 0;
    virtual void ui_scale_changed(int value) = 0;
    // Shows or hides a page of the advanced menu.
    virtual void enable_page(bool enable, const QString& page) = 0;

    // The exchange format: the file dialogs, and the one-word form.
    virtual void import_settings() = 0;
    virtual void import_settings_from_string(const QString& text) = 0;
    virtual void export_settings() = 0;
    virtual void export_settings_as_string() = 0;
};
