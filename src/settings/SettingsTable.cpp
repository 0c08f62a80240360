#include "settings/SettingsTable.h"

#include <QPoint>

#include "settings/Defines.h"
#include "settings/SaveKeys.h"

namespace SettingsTable {

namespace {

SettingEntry integer(const char* key, int value)
{
    return {key, SettingType::Int, QVariant(value), true};
}

SettingEntry boolean(const char* key, bool value)
{
    return {key, SettingType::Bool, QVariant(value), true};
}

SettingEntry text(const char* key, const char* value)
{
    return {key, SettingType::String, QVariant(QString::fromUtf8(value)), true};
}

SettingEntry not_saved(SettingEntry entry)
{
    entry.saved = false;
    return entry;
}

std::vector<SettingEntry> make_pass_keys()
{
    using namespace SaveKeys;
    return {
        integer(UI_SCALE, 0),
        integer(PWM_FREQUENCY, -1),
        integer(PWM_MAX_FREQUENCY, 2000),
        boolean(PWM_UPDATE_CONTINUOUSLY, true),
        boolean(USE_PWM_CONTROL, false),
        boolean(USE_PER_MONITOR_SETTINGS, false),
        integer(COLOR_EFFECT, 1),
        // Timer.
        integer(WORK_TIME, 20),
        integer(REST_TIME, 20),
        integer(POSTPONE_TIME, 3),
        integer(TIMER_TYPE, 1),
        boolean(AUTOMATICALLY_CLOSE_REST_SCREEN, true),
        // The on/off switches.
        boolean(USE_SOUNDS, true),
        boolean(USE_MANUAL_COLOR_SETTINGS, false),
        boolean(USE_MANUAL_BRIGHTNESS, false),
        boolean(USE_SLEEP_LIGHT, true),
        boolean(USE_MANUAL_LOCATION, false),
        boolean(USE_MANUAL_NIGHT_DURATION, false),
        boolean(USE_AUTOMATIC_BRIGHTNESS, false),
        boolean(MATCH_BRIGHTNESS_TO_LIGHTING, false),
        boolean(USE_SMART_BRIGHTNESS, false),
        boolean(USE_SMART_INVERSION, false),
        boolean(USE_MOUSE_INACTIVITY, false),
        boolean(USE_KEYBOARD_INACTIVITY, false),
        boolean(USE_KEYBOARD_BLOCKING, false),
        boolean(USE_SOFTWARE_CURSOR, false),
        boolean(USE_BLINK_DETECTION, false),
        boolean(HIDE_TASKBAR_ICON, true),
        boolean(USE_COLOR_PAUSERS, false),
        boolean(USE_TIMER_PAUSERS, false),
        boolean(USE_MOUSE_PAUSERS, false),
        boolean(USE_COLOR_TRIGGERS, false),
        boolean(USE_ADVANCED_SETTINGS, false),
        // Screens.
        boolean(USE_OVERLAY_SCREEN, false),
        boolean(USE_LIGHTNESS_SCREEN, false),
        integer(DAY_OPACITY, 5),
        integer(NIGHT_OPACITY, 40),
        integer(DAY_DIM, 0),
        integer(NIGHT_DIM, 10),
        integer(LIGHTNESS_SCREEN_OPACITY, 30),
        integer(LIGHTNESS_SCREEN_RADIUS, 30),
        integer(LIGHTNESS_SCREEN_X_POSITION, 50),
        integer(LIGHTNESS_SCREEN_Y_POSITION, 50),
        // Time pairs.
        integer(NIGHT_START_TIME_HOURS, 20),
        integer(NIGHT_START_TIME_MINUTES, 0),
        integer(NIGHT_END_TIME_HOURS, 6),
        integer(NIGHT_END_TIME_MINUTES, 0),
        integer(BEDTIME_HOURS, 0),
        integer(BEDTIME_MINUTES, 0),
        integer(WAKE_TIME_HOURS, 4),
        integer(WAKE_TIME_MINUTES, 0),
        integer(UPDATES_INTERVAL, 1),
        integer(MOUSE_CLICK_INTERVAL, 1000),
        boolean(USE_LOW_LEVEL_COLOR_API, true),
        text(LAST_CHECKED_DAILY_USAGE_ON, Defines::DEFAULT_LAST_CHECKED_DAILY_USAGE_ON),
        boolean(USE_TEMPERATURE_EXTENDED_VALUES, false),
        boolean(USE_BRIGHTNESS_EXTENDED_VALUES, false),
        boolean(USE_COLOR_EFFECTS, false),
        boolean(CHECK_FOR_UPDATES, false),
        boolean(AUTO_SAVE_SETTINGS, true),
        boolean(USE_KEYBOARD_SHORTCUTS, false),
        boolean(DESTROY_UI_ON_CLOSE, false),
        boolean(START_ON_STARTUP, true),
        boolean(USE_INVERTED_COLORS, false),
        boolean(USE_BLINK_SCREEN, false),
        integer(FONT_TYPE, 3),
        // Hardware.
        boolean(USE_HARDWARE_BRIGHTNESS, false),
        integer(HARDWARE_BRIGHTNESS_LIMIT, 100),
        // Overlay.
        integer(OVERLAY_SCREEN_COLOR, 9),
        {OVERLAY_SCREEN_START_MOUSE_POSITION, SettingType::Point, QVariant(QPoint(0, 0)), true},
        {OVERLAY_SCREEN_END_MOUSE_POSITION, SettingType::Point, QVariant(QPoint(0, 0)), true},
        integer(COLOR_SCHEME, 1),
        integer(LEADING_COLOR, 1),
        boolean(USE_HIDDEN_FEATURES_NOTIFICATIONS, true),
        boolean(USE_GAMMA_FIXER, true),
        boolean(OPTIMIZE_UI_CREATION, true),
        boolean(USE_SPINNING_TRAY_ICON, true),
        boolean(PRESERVE_GAMMA, true),
        boolean(ENABLE_CONFLICTING_APPLICATIONS, false),
        {UNUSED_PAGES, SettingType::List, QVariant(QVariantList()), true},
        integer(DAY_TRANSITION_DURATION, 3600),
        integer(NIGHT_TRANSITION_DURATION, 3600),
        integer(SLEEP_TRANSITION_DURATION, 3600),
        integer(PAUSE_TRANSITION_DURATION, 1000),
        boolean(USE_GHOST_ICON, false),
        integer(TIME_ZONE_OFFSET, 0),
        integer(NEW_MOON_OFFSET, 300),
        integer(FULL_MOON_OFFSET, 1200),
        integer(REST_SCREEN_TYPE, 2),
        boolean(ALLOW_MULTIPLE_INSTANCES, false),
        boolean(USE_KEYBOARD_HOOK, true),
        boolean(COLOR_PAUSERS_PAUSE_ON_FULLSCREEN_APPS, false),
        boolean(TIMER_PAUSERS_PAUSE_ON_FULLSCREEN_APPS, true),
        boolean(MOUSE_PAUSERS_PAUSE_ON_FULLSCREEN_APPS, true),
        // Restored but written elsewhere: the run state by save_tray_icon.
        not_saved(boolean(IS_CAMERA_ACTIVE, false)),
        not_saved(boolean(IS_COLOR_CHANGES_PAUSED, false)),
        not_saved(boolean(IS_TIMER_PAUSED, true)),
        not_saved(boolean(IS_OVRA_PAUSED, false)),
        // The lists, as the user last edited them on the page.
        text(COLOR_PAUSERS, Defines::DEFAULT_COLOR_PAUSERS),
        text(TIMER_PAUSERS, Defines::DEFAULT_TIMER_PAUSERS),
        text(MOUSE_PAUSERS, Defines::DEFAULT_MOUSE_PAUSERS),
        text(COLOR_TRIGGERS, Defines::DEFAULT_COLOR_TRIGGERS),
        text(WEBSITES_FOR_BLOCKING, ""),
        text(APPLICATIONS_FOR_BLOCKING, ""),
        // Hotkeys.
        text(INCREASE_TEMPERATURE_HOTKEY, Defines::DEFAULT_INCREASE_TEMPERATURE_HOTKEY),
        text(DECREASE_TEMPERATURE_HOTKEY, Defines::DEFAULT_DECREASE_TEMPERATURE_HOTKEY),
        text(INCREASE_BRIGHTNESS_HOTKEY, Defines::DEFAULT_INCREASE_BRIGHTNESS_HOTKEY),
        text(DECREASE_BRIGHTNESS_HOTKEY, Defines::DEFAULT_DECREASE_BRIGHTNESS_HOTKEY),
        text(START_OVERLAY_SCREEN_HOTKEY, Defines::DEFAULT_START_OVERLAY_SCREEN_HOTKEY),
        text(END_OVERLAY_SCREEN_HOTKEY, Defines::DEFAULT_END_OVERLAY_SCREEN_HOTKEY),
        text(USE_COLOR_EFFECTS_HOTKEY, Defines::DEFAULT_USE_COLOR_EFFECTS_HOTKEY),
        text(PAUSE_RESUME_OVRA_HOTKEY, Defines::DEFAULT_PAUSE_RESUME_OVRA_HOTKEY),
        text(MANUAL_AUTOMATIC_TOGGLE_HOTKEY, Defines::DEFAULT_MANUAL_AUTOMATIC_TOGGLE_HOTKEY),
        text(START_REST_HOTKEY, Defines::DEFAULT_START_REST_HOTKEY),
        text(PAUSE_RESUME_TIMER_HOTKEY, Defines::DEFAULT_PAUSE_RESUME_TIMER_HOTKEY),
        text(QUIT_OVRA_HOTKEY, Defines::DEFAULT_QUIT_OVRA_HOTKEY),
        text(ZOOM_IN_HOTKEY, Defines::DEFAULT_ZOOM_IN_HOTKEY),
        text(ZOOM_OUT_HOTKEY, Defines::DEFAULT_ZOOM_OUT_HOTKEY),
        // Advanced view.
        integer(ADVANCED_DAY_TEMPERATURE, 5000),
        integer(ADVANCED_NIGHT_TEMPERATURE, 3400),
        integer(ADVANCED_DAY_BRIGHTNESS, 100),
        integer(ADVANCED_NIGHT_BRIGHTNESS, 80),
        integer(ADVANCED_SLEEP_LIGHT, 2700),
        integer(ADVANCED_SLEEP_BRIGHTNESS, 75),
        integer(ADVANCED_COLOR_EFFECT, 1),
        boolean(ADVANCED_USE_MANUAL_COLOR_SETTINGS, false),
        boolean(ADVANCED_USE_COLOR_EFFECTS, false),
        boolean(ADVANCED_USE_MANUAL_BRIGHTNESS, false),
        boolean(ADVANCED_USE_SLEEP_LIGHT, true),
        boolean(ADVANCED_USE_OVERLAY_SCREEN, false),
        integer(ADVANCED_DAY_OPACITY, 5),
        integer(ADVANCED_NIGHT_OPACITY, 40),
        integer(ADVANCED_DAY_DIM, 0),
        integer(ADVANCED_NIGHT_DIM, 10),
        boolean(ADVANCED_USE_LIGHTNESS_SCREEN, false),
        integer(ADVANCED_LIGHTNESS_SCREEN_OPACITY, 30),
        integer(ADVANCED_LIGHTNESS_SCREEN_RADIUS, 30),
        integer(ADVANCED_LIGHTNESS_SCREEN_X_POSITION, 50),
        integer(ADVANCED_LIGHTNESS_SCREEN_Y_POSITION, 50),
    };
}

} // namespace

const std::vector<MonitorSettingEntry>& monitor_keys()
{
    static const std::vector<MonitorSettingEntry> keys = {
        {SaveKeys::DAY_TEMPERATURE, 5000, 6000, 0, 10000},
        {SaveKeys::NIGHT_TEMPERATURE, 3400, 4400, 0, 10000},
        {SaveKeys::SLEEP_LIGHT, 2700, 3700, 0, 10000},
        {SaveKeys::DAY_BRIGHTNESS, 100, 100, 10, 150},
        {SaveKeys::NIGHT_BRIGHTNESS, 80, 85, 10, 150},
        {SaveKeys::SLEEP_BRIGHTNESS, 75, 80, 10, 150},
    };
    return keys;
}

const std::vector<SettingEntry>& basic_keys()
{
    static const std::vector<SettingEntry> keys = {
        boolean(SaveKeys::IS_FIRST_START, true),
        text(SaveKeys::LANGUAGE, Defines::DEFAULT_LANGUAGE),
        integer(SaveKeys::OVRA_MODE, 1),
        integer(SaveKeys::OVRA_TYPE, 1),
    };
    return keys;
}

const std::vector<SettingEntry>& pass_keys()
{
    static const std::vector<SettingEntry> keys = make_pass_keys();
    return keys;
}

const QStringList& hotkey_keys()
{
    static const QStringList keys = {
        SaveKeys::INCREASE_TEMPERATURE_HOTKEY, SaveKeys::DECREASE_TEMPERATURE_HOTKEY,
        SaveKeys::INCREASE_BRIGHTNESS_HOTKEY,  SaveKeys::DECREASE_BRIGHTNESS_HOTKEY,
        SaveKeys::START_OVERLAY_SCREEN_HOTKEY, SaveKeys::END_OVERLAY_SCREEN_HOTKEY,
        SaveKeys::USE_COLOR_EFFECTS_HOTKEY,    SaveKeys::PAUSE_RESUME_OVRA_HOTKEY,
        SaveKeys::MANUAL_AUTOMATIC_TOGGLE_HOTKEY, SaveKeys::START_REST_HOTKEY,
        SaveKeys::PAUSE_RESUME_TIMER_HOTKEY,   SaveKeys::QUIT_OVRA_HOTKEY,
        SaveKeys::ZOOM_IN_HOTKEY,              SaveKeys::ZOOM_OUT_HOTKEY,
    };
    return keys;
}

QString hotkey_key(int index)
{
    return hotkey_keys().value(index - 1);
}

QVariantList shortcut_values(const std::map<QString, QVariant>& settings)
{
    QVariantList values{QString()};
    for (const QString& key : hotkey_keys()) {
        const auto found = settings.find(key);
        values << (found == settings.end() ? QString() : found->second.toString());
    }
    return values;
}

QVariant convert(const QVariant& stored, SettingType type)
{
    switch (type) {
    case SettingType::Int:
        return QVariant(stored.toInt());
    case SettingType::Bool:
        return QVariant(stored.toBool());
    case SettingType::String:
        // An unquoted text with commas in a hand-edited file reads back as a
        // list; joined again it is the text that was written.
        if (stored.metaType() == QMetaType::fromType<QStringList>())
            return QVariant(stored.toStringList().join(QStringLiteral(", ")));
        return QVariant(stored.toString());
    case SettingType::Point:
        return QVariant(stored.toPoint());
    case SettingType::List: {
        // A list of one text reads back from the file as that text; taken
        // as a sequence, it would fall apart into characters.
        if (stored.metaType() == QMetaType::fromType<QString>()) {
            const QString text = stored.toString();
            return QVariant(text.isEmpty() ? QVariantList() : QVariantList{text});
        }
        QVariantList items;
        for (const QString& item : stored.toStringList())
            items.append(item);
        return QVariant(items);
    }
    }
    return stored;
}

QString monitor_suffix(int monitor)
{
    return monitor == 0 ? QString() : QString::number(monitor);
}

} // namespace SettingsTable
