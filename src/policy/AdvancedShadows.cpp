#include "policy/AdvancedShadows.h"

#include "settings/SaveKeys.h"
#include "settings/SettingsTable.h"

namespace AdvancedShadows {

const std::vector<Pair>& view_pairs()
{
    using namespace SaveKeys;
    static const std::vector<Pair> pairs = {
        {ADVANCED_DAY_TEMPERATURE, DAY_TEMPERATURE},
        {ADVANCED_NIGHT_TEMPERATURE, NIGHT_TEMPERATURE},
        {ADVANCED_DAY_BRIGHTNESS, DAY_BRIGHTNESS},
        {ADVANCED_NIGHT_BRIGHTNESS, NIGHT_BRIGHTNESS},
        {ADVANCED_SLEEP_LIGHT, SLEEP_LIGHT},
        {ADVANCED_SLEEP_BRIGHTNESS, SLEEP_BRIGHTNESS},
        {ADVANCED_COLOR_EFFECT, COLOR_EFFECT},
        {ADVANCED_USE_MANUAL_COLOR_SETTINGS, USE_MANUAL_COLOR_SETTINGS},
        {ADVANCED_USE_COLOR_EFFECTS, USE_COLOR_EFFECTS},
        {ADVANCED_USE_MANUAL_BRIGHTNESS, USE_MANUAL_BRIGHTNESS},
        {ADVANCED_USE_SLEEP_LIGHT, USE_SLEEP_LIGHT},
        {ADVANCED_USE_OVERLAY_SCREEN, USE_OVERLAY_SCREEN},
        {ADVANCED_DAY_OPACITY, DAY_OPACITY},
        {ADVANCED_NIGHT_OPACITY, NIGHT_OPACITY},
        {ADVANCED_DAY_DIM, DAY_DIM},
        {ADVANCED_NIGHT_DIM, NIGHT_DIM},
        {ADVANCED_USE_LIGHTNESS_SCREEN, USE_LIGHTNESS_SCREEN},
        {ADVANCED_LIGHTNESS_SCREEN_OPACITY, LIGHTNESS_SCREEN_OPACITY},
        {ADVANCED_LIGHTNESS_SCREEN_RADIUS, LIGHTNESS_SCREEN_RADIUS},
        {ADVANCED_LIGHTNESS_SCREEN_X_POSITION, LIGHTNESS_SCREEN_X_POSITION},
        {ADVANCED_LIGHTNESS_SCREEN_Y_POSITION, LIGHTNESS_SCREEN_Y_POSITION},
    };
    return pairs;
}

void copy_into_view(SettingsMap& settings)
{
    for (const Pair& pair : view_pairs()) {
        // A shadow never written reads as an empty value, like any other key.
        const QVariant value = settings[QString::fromLatin1(pair.source)];
        settings[QString::fromLatin1(pair.target)] = value;
    }
}

QString shadow_key(const char* key, int monitor)
{
    return QStringLiteral("Advanced") + SettingsTable::monitor_key(key, monitor);
}

} // namespace AdvancedShadows
