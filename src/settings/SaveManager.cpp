#include "settings/SaveManager.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <iostream>
#include <unistd.h>

#include "settings/Defines.h"
#include "settings/SaveKeys.h"

namespace {

// The controller, or a failed soft assertion when there is none.
bool host_missing(const SettingsHost& host)
{
    const bool main_window = host.valid();
    if (slap_custom_assert_function(main_window, "main_window", "REQUIRE", __LINE__, __FILE__)) {
        break_debugger();
        return true;
    }
    return false;
}

// A missing map entry reads as an invalid value, without adding the entry.
QVariant lookup(const SettingsMap& settings, const QString& key)
{
    const auto found = settings.find(key);
    return found == settings.end() ? QVariant() : found->second;
}

void clamp_low(SettingsMap& settings, const char* key, int lowest)
{
    if (lookup(settings, key).toInt() <= 0)
        settings[key] = lowest;
}

void clamp_high(SettingsMap& settings, const char* key, int highest)
{
    if (lookup(settings, key).toInt() > highest)
        settings[key] = highest;
}

} // namespace

SaveManager::SaveManager()
{
    m_store = new QSettings(store_organization_name(), store_application_name());
    if (!m_store->isWritable())
        std::cout << "Settings not writable" << std::endl;

    if (m_store->value(SaveKeys::SAVE_VERSION, Defines::DEFAULT_SAVE_VERSION).toString() !=
        QLatin1String(save_version))
        reset_settings_to_default();
}

SaveManager::~SaveManager()
{
    m_store->sync();
    delete m_store;
}

QString SaveManager::store_organization_name()
{
    return QString::fromUtf8(SaveKeys::ORGANIZATION);
}

QString SaveManager::store_application_name()
{
    QString application = QString::fromUtf8(SaveKeys::APPLICATION);
    if (getuid() == 0)
        application += "-root";
    return application;
}

int SaveManager::pass_count() const
{
    const SettingsHost host = settings_host();
    if (host.screen_count)
        return host.screen_count();
    return static_cast<int>(QGuiApplication::screens().size());
}

void SaveManager::reset_settings_to_default()
{
    const bool first_start = m_store->value(SaveKeys::IS_FIRST_START, true).toBool();
    const QString language =
        m_store->value(SaveKeys::LANGUAGE, Defines::DEFAULT_LANGUAGE).toString();
    m_store->clear();
    m_store->setValue(SaveKeys::IS_FIRST_START, first_start);
    m_store->setValue(SaveKeys::LANGUAGE, language);
    m_store->setValue(SaveKeys::SAVE_VERSION, QString::fromLatin1(save_version));
    m_store->sync();
}

// ---------------------------------------------------------------- restore

void SaveManager::basic_restore()
{
    const SettingsHost host = settings_host();
    if (host_missing(host))
        return;
    SettingsMap& settings = *host.settings;
    for (const SettingEntry& entry : SettingsTable::basic_keys())
        settings[entry.key] =
            SettingsTable::convert(m_store->value(entry.key, entry.default_value), entry.type);
}

void SaveManager::restore_settings()
{
    const int passes = pass_count();
    for (int monitor = 0; monitor <= passes; ++monitor)
        restore_settings(monitor);
}

void SaveManager::restore_settings(int monitor)
{
    const SettingsHost host = settings_host();
    if (host_missing(host))
        return;
    SettingsMap& settings = *host.settings;
    const QString suffix = SettingsTable::monitor_suffix(monitor);

    basic_restore();

    for (const MonitorSettingEntry& entry : SettingsTable::monitor_keys()) {
        const QString key = entry.key + suffix;
        settings[key] = m_store->value(key, entry.default_value).toInt();
    }
    for (const SettingEntry& entry : SettingsTable::pass_keys())
        settings[entry.key] =
            SettingsTable::convert(m_store->value(entry.key, entry.default_value), entry.type);

    validate_work_time(settings);
    validate_rest_time(settings);
    validate_postpone_time(settings);
    validate_strictness(settings);
    validate_temperature(settings, monitor);
    validate_brightness(settings, monitor);

    if (host.reset_timer)
        host.reset_timer();
    restore_location_data();
    restore_ignored_monitors();
}

void SaveManager::validate_work_time(SettingsMap& settings)
{
    clamp_low(settings, SaveKeys::WORK_TIME, 1);
    clamp_high(settings, SaveKeys::WORK_TIME, 1440);
}

void SaveManager::validate_rest_time(SettingsMap& settings)
{
    clamp_low(settings, SaveKeys::REST_TIME, 1);
    clamp_high(settings, SaveKeys::REST_TIME, 86400);
}

void SaveManager::validate_postpone_time(SettingsMap& settings)
{
    clamp_low(settings, SaveKeys::POSTPONE_TIME, 1);
}

void SaveManager::validate_strictness(SettingsMap& settings)
{
    // 0 names no timer type, yet it has always been let through.
    if (lookup(settings, SaveKeys::TIMER_TYPE).toInt() < 0)
        settings[SaveKeys::TIMER_TYPE] = 1;
}

void SaveManager::validate_temperature(SettingsMap& settings, int monitor)
{
    const QString suffix = SettingsTable::monitor_suffix(monitor);
    for (const MonitorSettingEntry& entry : SettingsTable::monitor_keys()) {
        if (entry.maximum != 10000)
            continue;
        const QString key = entry.key + suffix;
        const int value = lookup(settings, key).toInt();
        if (value < entry.minimum || value > entry.maximum)
            settings[key] = entry.reset_value;
    }
}

void SaveManager::validate_brightness(SettingsMap& settings, int monitor)
{
    const QString suffix = SettingsTable::monitor_suffix(monitor);
    for (const MonitorSettingEntry& entry : SettingsTable::monitor_keys()) {
        if (entry.maximum == 10000)
            continue;
        const QString key = entry.key + suffix;
        const int value = lookup(settings, key).toInt();
        if (value < entry.minimum || value > entry.maximum)
            settings[key] = entry.reset_value;
    }
}

// ------------------------------------------------------------------- save

void SaveManager::write_from_map(const SettingsMap& settings, const char* key, SettingType type)
{
    m_store->setValue(key, SettingsTable::convert(lookup(settings, key), type));
}

void SaveManager::save_settings()
{
    const int passes = pass_count();
    for (int monitor = 0; monitor <= passes; ++monitor)
        save_settings(monitor);
    // Written now rather than at the next idle moment, so that a quit or a
    // crash right after a save cannot lose it.
    m_store->sync();
}

void SaveManager::save_settings(int monitor)
{
    const SettingsHost host = settings_host();
    if (host_missing(host))
        return;
    const SettingsMap& settings = *host.settings;
    const QString suffix = SettingsTable::monitor_suffix(monitor);

    // Only the two temperatures are kept on whole hundreds.
    const int day_temperature =
        lookup(settings, SaveKeys::DAY_TEMPERATURE + suffix).toInt() / 100 * 100;
    const int night_temperature =
        lookup(settings, SaveKeys::NIGHT_TEMPERATURE + suffix).toInt() / 100 * 100;

    for (const SettingEntry& entry : SettingsTable::basic_keys())
        write_from_map(settings, entry.key, entry.type);

    for (const MonitorSettingEntry& entry : SettingsTable::monitor_keys()) {
        const QString key = entry.key + suffix;
        int value = lookup(settings, key).toInt();
        if (key == SaveKeys::DAY_TEMPERATURE + suffix)
            value = day_temperature;
        else if (key == SaveKeys::NIGHT_TEMPERATURE + suffix)
            value = night_temperature;
        m_store->setValue(key, value);
    }

    for (const SettingEntry& entry : SettingsTable::pass_keys())
        if (entry.saved)
            write_from_map(settings, entry.key, entry.type);
    if (host.unused_pages)
        m_store->setValue(SaveKeys::UNUSED_PAGES, host.unused_pages());

    save_location_data(*host.latitude, *host.longitude);
    save_ignored_monitors();
}

void SaveManager::save_tray_icon()
{
    const SettingsHost host = settings_host();
    if (host_missing(host))
        return;
    const SettingsMap& settings = *host.settings;
    RunState state;
    if (host.run_state) {
        state = host.run_state();
    } else {
        state.color_changes_paused = lookup(settings, SaveKeys::IS_COLOR_CHANGES_PAUSED).toBool();
        state.ovra_paused = lookup(settings, SaveKeys::IS_OVRA_PAUSED).toBool();
        state.timer_paused = lookup(settings, SaveKeys::IS_TIMER_PAUSED).toBool();
        state.camera_active = lookup(settings, SaveKeys::IS_CAMERA_ACTIVE).toBool();
    }
    m_store->setValue(SaveKeys::IS_COLOR_CHANGES_PAUSED, state.color_changes_paused);
    m_store->setValue(SaveKeys::IS_OVRA_PAUSED, state.ovra_paused);
    m_store->setValue(SaveKeys::IS_TIMER_PAUSED, state.timer_paused);
    m_store->setValue(SaveKeys::IS_CAMERA_ACTIVE, state.camera_active);
    write_from_map(settings, SaveKeys::OVRA_MODE, SettingType::Int);
    write_from_map(settings, SaveKeys::OVRA_TYPE, SettingType::Int);
}

void SaveManager::save_temperature()
{
    const SettingsHost host = settings_host();
    if (host_missing(host))
        return;
    write_from_map(*host.settings, SaveKeys::DAY_TEMPERATURE, SettingType::Int);
    write_from_map(*host.settings, SaveKeys::NIGHT_TEMPERATURE, SettingType::Int);
    write_from_map(*host.settings, SaveKeys::SLEEP_LIGHT, SettingType::Int);
}

void SaveManager::save_brightness()
{
    const SettingsHost host = settings_host();
    if (host_missing(host))
        return;
    write_from_map(*host.settings, SaveKeys::DAY_BRIGHTNESS, SettingType::Int);
    write_from_map(*host.settings, SaveKeys::NIGHT_BRIGHTNESS, SettingType::Int);
    write_from_map(*host.settings, SaveKeys::SLEEP_BRIGHTNESS, SettingType::Int);
}

void SaveManager::save_language()
{
    const SettingsHost host = settings_host();
    if (host_missing(host))
        return;
    write_from_map(*host.settings, SaveKeys::LANGUAGE, SettingType::String);
}

void SaveManager::save_current_view()
{
    const SettingsHost host = settings_host();
    if (host_missing(host))
        return;
    write_from_map(*host.settings, SaveKeys::USE_ADVANCED_SETTINGS, SettingType::Bool);
}

void SaveManager::save_use_inverted_colors()
{
    const SettingsHost host = settings_host();
    if (host_missing(host))
        return;
    // Stored as 0 or 1; it reads back as a boolean all the same.
    m_store->setValue(SaveKeys::USE_INVERTED_COLORS,
                      lookup(*host.settings, SaveKeys::USE_INVERTED_COLORS).toInt());
}

void SaveManager::save_use_color_effects()
{
    const SettingsHost host = settings_host();
    if (host_missing(host))
        return;
    write_from_map(*host.settings, SaveKeys::USE_COLOR_EFFECTS, SettingType::Bool);
}

// ------------------------------------------------------- direct writes

void SaveManager::save_color_pausers(const QString& text)
{
    m_store->setValue(SaveKeys::COLOR_PAUSERS, text);
}

void SaveManager::save_timer_pausers(const QString& text)
{
    m_store->setValue(SaveKeys::TIMER_PAUSERS, text);
}

void SaveManager::save_mouse_pausers(const QString& text)
{
    m_store->setValue(SaveKeys::MOUSE_PAUSERS, text);
}

void SaveManager::save_color_triggers(const QString& text)
{
    m_store->setValue(SaveKeys::COLOR_TRIGGERS, text);
}

void SaveManager::save_websites_for_blocking(const QString& text)
{
    m_store->setValue(SaveKeys::WEBSITES_FOR_BLOCKING, text);
}

void SaveManager::save_applications_for_blocking(const QString& text)
{
    m_store->setValue(SaveKeys::APPLICATIONS_FOR_BLOCKING, text);
}

QString SaveManager::get_websites_for_blocking()
{
    return m_store->value(SaveKeys::WEBSITES_FOR_BLOCKING).toString();
}

QString SaveManager::get_applications_for_blocking()
{
    return m_store->value(SaveKeys::APPLICATIONS_FOR_BLOCKING).toString();
}

void SaveManager::save_are_websites_blocked(bool blocked)
{
    m_store->setValue(SaveKeys::ARE_WEBSITES_BLOCKED, blocked);
}

bool SaveManager::are_websites_blocked()
{
    return m_store->value(SaveKeys::ARE_WEBSITES_BLOCKED, false).toBool();
}

void SaveManager::save_applications_blocked(bool blocked)
{
    m_store->setValue(SaveKeys::ARE_APPLICATIONS_BLOCKED, blocked);
}

bool SaveManager::areApplicationsBlocked()
{
    return m_store->value(SaveKeys::ARE_APPLICATIONS_BLOCKED, false).toBool();
}

void SaveManager::save_location_data(double latitude, double longitude)
{
    m_store->setValue(SaveKeys::LATITUDE, latitude);
    m_store->setValue(SaveKeys::LONGITUDE, longitude);
}

void SaveManager::restore_location_data()
{
    const SettingsHost host = settings_host();
    if (host_missing(host))
        return;
    *host.latitude = m_store->value(SaveKeys::LATITUDE, -1.0).toDouble();
    *host.longitude = m_store->value(SaveKeys::LONGITUDE, -1.0).toDouble();
}

void SaveManager::save_ignored_monitors()
{
    const SettingsHost host = settings_host();
    if (host_missing(host))
        return;
    QString text;
    for (int monitor : *host.ignored_monitors)
        text += QString::number(monitor) + ":";
    m_store->setValue(SaveKeys::IGNORE_MONITORS, text);
}

void SaveManager::restore_ignored_monitors()
{
    const SettingsHost host = settings_host();
    if (host_missing(host))
        return;
    std::vector<int>& ignored = *host.ignored_monitors;
    ignored.clear();
    const QString text =
        m_store->value(SaveKeys::IGNORE_MONITORS, Defines::DEFAULT_IGNORE_MONITORS).toString();
    // The trailing empty part after the last ":" does not convert.
    for (const QString& part : text.split(':', Qt::KeepEmptyParts)) {
        bool ok = false;
        const int monitor = part.toInt(&ok);
        if (ok)
            ignored.push_back(monitor);
    }
}

void SaveManager::first_start_finished()
{
    m_store->setValue(SaveKeys::IS_FIRST_START, false);
}

// -------------------------------------------------------- direct reads

bool SaveManager::check_for_updates()
{
    return m_store->value(SaveKeys::CHECK_FOR_UPDATES, false).toBool();
}

bool SaveManager::use_software_cursor()
{
    return m_store->value(SaveKeys::USE_SOFTWARE_CURSOR, false).toBool();
}

bool SaveManager::auto_save_settings()
{
    return m_store->value(SaveKeys::AUTO_SAVE_SETTINGS, true).toBool();
}

bool SaveManager::hideTaskbarIcon()
{
    return m_store->value(SaveKeys::HIDE_TASKBAR_ICON, true).toBool();
}

bool SaveManager::useMouseInactivity()
{
    return m_store->value(SaveKeys::USE_MOUSE_INACTIVITY, false).toBool();
}

bool SaveManager::use_keyboard_blocking()
{
    return m_store->value(SaveKeys::USE_KEYBOARD_BLOCKING, false).toBool();
}

int SaveManager::getUpdatesInterval()
{
    return m_store->value(SaveKeys::UPDATES_INTERVAL, 1).toInt();
}

int SaveManager::get_brightness()
{
    return m_store->value(SaveKeys::NIGHT_BRIGHTNESS, 85).toInt();
}

QString SaveManager::get_api_arguments()
{
    // Another launch wrote them into the file a moment ago.
    m_store->sync();
    return m_store->value(SaveKeys::API_KEY, QString()).toString();
}

QString SaveManager::get_asana_access_token()
{
    return m_store->value(SaveKeys::ASANA_ACCESS_TOKEN, QString()).toString();
}

void SaveManager::save_asana_access_token(const QString& token)
{
    m_store->setValue(SaveKeys::ASANA_ACCESS_TOKEN, token);
}

bool SaveManager::is_ovra_calibrated()
{
    return m_store->value(SaveKeys::IS_OVRA_CALIBRATED, false).toBool();
}

void SaveManager::save_ovra_calibrated(bool calibrated)
{
    m_store->setValue(SaveKeys::IS_OVRA_CALIBRATED, calibrated);
}

bool SaveManager::is_gdipp_enabled()
{
    return m_store->value(SaveKeys::GDIPP_ENABLED, false).toBool();
}

void SaveManager::save_gdipp_enabled(bool enabled)
{
    m_store->setValue(SaveKeys::GDIPP_ENABLED, enabled);
}
