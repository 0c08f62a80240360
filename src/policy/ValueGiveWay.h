#pragma once

#include <QString>

#include <functional>

#include "settings/SettingsHost.h"

// When the display refuses a new colour value, the other value of the same
// period moves towards neutral (6500 K, 100 %) in small steps until the
// display accepts the pair. A temperature change gives way on brightness
// first, a brightness change on temperature first.
namespace ValueGiveWay {

// The two keys of one period (day, night or sleep) of one monitor.
struct PeriodKeys
{
    QString temperature;
    QString brightness;
};

struct Callbacks
{
    // Applies the map to the display; negative when the display refused.
    std::function<int()> update_gamma;
    // Show a value that the loop moved.
    std::function<void(int)> show_temperature;
    std::function<void(int)> show_brightness;
};

const int NEUTRAL_TEMPERATURE = 6500;
const int NEUTRAL_BRIGHTNESS = 100;
const int TEMPERATURE_STEP = 100;
const int BRIGHTNESS_STEP = 5;

// Both run update_gamma once and then loop while it fails. There is no other
// way out of the loop: once both values are neutral and the display still
// refuses, it keeps on trying.
void after_temperature_change(SettingsMap& settings, const PeriodKeys& keys,
                              const Callbacks& callbacks);
void after_brightness_change(SettingsMap& settings, const PeriodKeys& keys,
                             const Callbacks& callbacks);

} // namespace ValueGiveWay
