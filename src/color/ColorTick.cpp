#include "color/ColorTick.h"

#include "base/TickPath.h"

#include "color/ColorCurve.h"
#include "color/ColorSettings.h"
#include "color/IGamma.h"
#include "settings/SaveKeys.h"


ColorTick::ColorTick(const SettingsMap& settings, const ColorCurve& curve, IGamma* const& gamma,
                     const std::vector<int>& ignored_monitors, int& current_temperature,
                     int& current_brightness, TickHooks hooks)
    : per_monitor(settings, SaveKeys::USE_PER_MONITOR_SETTINGS)
    , pwm_continuously(settings, SaveKeys::PWM_UPDATE_CONTINUOUSLY)
    , low_level(settings, SaveKeys::USE_LOW_LEVEL_COLOR_API)
    , color_effect(settings, SaveKeys::COLOR_EFFECT)
    , curve(curve)
    , gamma(gamma)
    , ignored_monitors(ignored_monitors)
    , current_temperature(current_temperature)
    , current_brightness(current_brightness)
    , hooks(std::move(hooks))
{
}

OVRA_TICK float ColorTick::brightness(int monitor) const
{
    // The modifier counts in every call, so fades that read the target take
    // it in too.
    return curve.brightness(monitor) + hooks.brightness_modifier();
}

OVRA_TICK int ColorTick::update()
{
    if (!gamma || hooks.stands_aside())
        return 0;
    if (hooks.paused()) {
        if (!first_update) {
            first_update = true;
            return 0;
        }
        hooks.refresh_effects();
        return 0;
    }
    if (!first_update) {
        first_update = true;
        hooks.fade_in();
        return 0;
    }
    hooks.refresh_effects();
    hooks.refresh_fixer();

    int result = 0;
    if (per_monitor.to_bool()) {
        const int count = hooks.screen_count();
        for (int monitor = 1; monitor <= count; ++monitor)
            result = update_monitor(monitor);
    } else {
        result = update_monitor(0);
    }
    if (pwm_continuously.to_bool())
        hooks.after_update();
    return result;
}

OVRA_TICK int ColorTick::update_monitor(int monitor)
{
    ColorSettings color_settings;
    color_settings.temperature = static_cast<int>(curve.temperature(monitor));
    color_settings.brightness = brightness(monitor) / 100.0f;
    current_temperature = color_settings.temperature;
    current_brightness = static_cast<int>(color_settings.brightness * 100.0f);
    return write(&color_settings, monitor);
}

OVRA_TICK int ColorTick::write(ColorSettings* color_settings, int monitor)
{
    color_settings->gamma[0] = color_settings->gamma[1] = color_settings->gamma[2] = 1.0f;
    int result = 0;
    if (low_level.to_bool() && gamma) {
        result = gamma->set_temperature(color_settings, ignored_monitors, monitor);
        if (result < 0)
            result = 0;
    }
    last_brightness_value = color_settings->brightness;
    last_color_effect = color_effect.to_int();
    last_temperature_value = color_settings->temperature;
    return result;
}

void ColorTick::forget_last_values()
{
    last_temperature_value = -1;
    last_brightness_value = -1.0f;
}
