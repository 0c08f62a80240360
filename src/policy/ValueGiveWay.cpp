#include "policy/ValueGiveWay.h"

#include <algorithm>

namespace ValueGiveWay {

namespace {

// Moves the temperature one step towards neutral; false when it is there.
bool warm_up(SettingsMap& settings, const PeriodKeys& keys, const Callbacks& callbacks)
{
    const int t = settings[keys.temperature].toInt();
    if (t >= NEUTRAL_TEMPERATURE)
        return false;
    settings[keys.temperature] = std::min(t + TEMPERATURE_STEP, NEUTRAL_TEMPERATURE);
    callbacks.show_temperature(settings[keys.temperature].toInt());
    return true;
}

void brighten(SettingsMap& settings, const PeriodKeys& keys, const Callbacks& callbacks)
{
    const int b = settings[keys.brightness].toInt();
    settings[keys.brightness] = std::min(b + BRIGHTNESS_STEP, NEUTRAL_BRIGHTNESS);
    callbacks.show_brightness(settings[keys.brightness].toInt());
}

} // namespace

void after_temperature_change(SettingsMap& settings, const PeriodKeys& keys,
                              const Callbacks& callbacks)
{
    int result = callbacks.update_gamma();
    while (result < 0) {
        if (settings[keys.brightness].toInt() > 99) {
            warm_up(settings, keys, callbacks);
        } else {
            brighten(settings, keys, callbacks);
        }
        result = callbacks.update_gamma();
    }
}

void after_brightness_change(SettingsMap& settings, const PeriodKeys& keys,
                             const Callbacks& callbacks)
{
    int result = callbacks.update_gamma();
    while (result < 0) {
        if (!warm_up(settings, keys, callbacks) && settings[keys.brightness].toInt() <= 99)
            brighten(settings, keys, callbacks);
        result = callbacks.update_gamma();
    }
}

} // namespace ValueGiveWay
