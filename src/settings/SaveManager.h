#pragma once

#include <QSettings>
#include <QString>

#include "base/Singleton.h"
#include "settings/SettingsHost.h"
#include "settings/SettingsTable.h"

// The one owner of the persistent store (~/.config/Morvenik/Ovra.conf, or
// Ovra-root.conf for root). Reads the store into the controller's settings
// map, repairs what is out of range, and writes the map back. QSettings
// saves through a temporary file renamed over the old one, so a process
// killed in the middle of a save leaves the old file or the new one.
class SaveManager : public Singleton<SaveManager>
{
public:
    SaveManager();
    ~SaveManager() override;

    // IsFirstStart, Language, OvraMode, OvraType into the map.
    void basic_restore();
    // Passes 0 up to and including the monitor count.
    void restore_settings();
    void restore_settings(int monitor);
    void save_settings();
    void save_settings(int monitor);

    // The run state: ColorChangesPaused, OvraPaused, TimerPaused,
    // CameraActive from the live state, then OvraMode and OvraType.
    void save_tray_icon();
    void save_temperature();
    void save_brightness();
    void save_language();
    void save_current_view();
    void save_use_inverted_colors();
    void save_use_color_effects();

    // The list texts as the page shows them, straight to the file.
    void save_color_pausers(const QString& text);
    void save_timer_pausers(const QString& text);
    void save_mouse_pausers(const QString& text);
    void save_color_triggers(const QString& text);
    void save_websites_for_blocking(const QString& text);
    void save_applications_for_blocking(const QString& text);
    QString get_websites_for_blocking();
    QString get_applications_for_blocking();

    void save_are_websites_blocked(bool blocked);
    bool are_websites_blocked();
    void save_applications_blocked(bool blocked);
    bool areApplicationsBlocked();

    void save_location_data(double latitude, double longitude);
    void restore_location_data();
    void save_ignored_monitors();
    void restore_ignored_monitors();

    void first_start_finished();

    // Direct reads from the file, not the map: a change is seen here only
    // after it was saved.
    bool check_for_updates();
    bool use_software_cursor();
    bool auto_save_settings();
    bool hideTaskbarIcon();
    bool useMouseInactivity();
    bool use_keyboard_blocking();
    int getUpdatesInterval();
    int get_brightness();
    QString get_api_arguments();

    QString get_asana_access_token();
    void save_asana_access_token(const QString& token);
    bool is_ovra_calibrated();
    void save_ovra_calibrated(bool calibrated);
    bool is_gdipp_enabled();
    void save_gdipp_enabled(bool enabled);

    QSettings* get_settings() { return m_store; }
    QSettings* store() { return m_store; }

    // Wipes the store but for IsFirstStart and Language, and stamps it
    // with the current version.
    void reset_settings_to_default();

    // The parts of the store's name. Root gets a store of its own so that it
    // never rewrites the user's file; every QSettings of the program that
    // reaches the store is built with these.
    static QString store_organization_name();
    static QString store_application_name();

    // Map repairs, in the order a restore pass runs them.
    static void validate_work_time(SettingsMap& settings);
    static void validate_rest_time(SettingsMap& settings);
    static void validate_postpone_time(SettingsMap& settings);
    static void validate_strictness(SettingsMap& settings);
    static void validate_temperature(SettingsMap& settings, int monitor);
    static void validate_brightness(SettingsMap& settings, int monitor);

private:
    int pass_count() const;
    void write_from_map(const SettingsMap& settings, const char* key, SettingType type);

    QSettings* m_store;
};
