#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <map>
#include <vector>

// How each stored value is read back, and what a store without it yields.
enum class SettingType { Int, Bool, String, Point, List };

struct SettingEntry
{
    const char* key;
    SettingType type;
    QVariant default_value;
    // False for the values the save pass leaves alone: the run state, which
    // save_tray_icon writes, and the lists whose text the page sends back.
    bool saved;
};

// One value that exists for the whole display and once per monitor.
struct MonitorSettingEntry
{
    const char* key;
    int default_value;
    // What validation writes when the stored value is out of range.
    int reset_value;
    int minimum;
    int maximum;
};

namespace SettingsTable {

// DayTemperature, NightTemperature, SleepLight, DayBrightness,
// NightBrightness, SleepBrightness.
const std::vector<MonitorSettingEntry>& monitor_keys();

// IsFirstStart, Language, OvraMode, OvraType: read by basic_restore.
const std::vector<SettingEntry>& basic_keys();

// Every other key that a pass reads, in the order the save pass writes them:
// UiScale first, the hotkeys near the end, the Advanced keys last.
const std::vector<SettingEntry>& pass_keys();

// The fourteen hotkey keys in the order of the hotkey table.
const QStringList& hotkey_keys();

// The page's list of combinations: position 0 empty, so that a position
// equals the hotkey's index, then each hotkey's stored text.
QVariantList shortcut_values(const std::map<QString, QVariant>& settings);

// The key of a hotkey by the page's index, which counts from 1; an empty
// text outside 1 to 14.
QString hotkey_key(int index);

// The stored text or variant converted to the key's type.
QVariant convert(const QVariant& stored, SettingType type);

// Monitor 0 is the shared value and has no suffix.
QString monitor_suffix(int monitor);

} // namespace SettingsTable

namespace SettingsTable {
// The key of one monitor's value: the bare key for monitor 0.
inline QString monitor_key(const char* key, int monitor)
{
    return QString::fromLatin1(key) + monitor_suffix(monitor);
}
} // namespace SettingsTable
