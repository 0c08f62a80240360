#pragma once

#include <functional>
#include <vector>

#include "settings/SettingRef.h"
#include "settings/SettingsHost.h"

class ColorCurve;
class IGamma;
struct ColorSettings;

// What the tick needs of the program around it.
struct TickHooks
{
    // Colour triggers in charge or a fade running: the tick writes nothing.
    std::function<bool()> stands_aside;
    std::function<bool()> paused;
    // The first update fades in from neutral instead of jumping.
    std::function<void()> fade_in;
    std::function<void()> refresh_effects;
    std::function<void()> refresh_fixer;
    std::function<int()> screen_count;
    // Added to the curve's brightness (screen-content brightness).
    std::function<int()> brightness_modifier;
    // After a write, for what follows the tick (hardware PWM).
    std::function<void()> after_update;
};

// The once-a-second colour update: from the curve of the shared settings, or
// of each monitor, to the display. Nothing is compared with the last second;
// every output is written again, which also repairs ramps that someone else
// changed in between (the backend keeps the built ramps, so this is cheap).
class ColorTick
{
public:
    ColorTick(const SettingsMap& settings, const ColorCurve& curve, IGamma* const& gamma,
              const std::vector<int>& ignored_monitors, int& current_temperature,
              int& current_brightness, TickHooks hooks);

    // update_gamma: 0 or what the last write returned.
    int update();
    // set_temperature: one record to the display, unless the low-level path
    // is off. Monitor 0 writes every output.
    int write(ColorSettings* color_settings, int monitor);
    // The curve's brightness with the modifier, as fades and the tick use it.
    float brightness(int monitor) const;

    bool first_update_done() const { return first_update; }
    int last_temperature() const { return last_temperature_value; }
    float last_brightness() const { return last_brightness_value; }
    // Forgets what was written last, so the next update counts as new.
    void forget_last_values();

private:
    int update_monitor(int monitor);

    SettingRef per_monitor;
    SettingRef pwm_continuously;
    SettingRef low_level;
    SettingRef color_effect;
    const ColorCurve& curve;
    IGamma* const& gamma;
    const std::vector<int>& ignored_monitors;
    int& current_temperature;
    int& current_brightness;
    TickHooks hooks;

    bool first_update = false;
    int last_temperature_value = -1;
    float last_brightness_value = -1.0f;
    int last_color_effect = -1;
};
