#include "color/ColorTick.h"

#include "color/ColorCurve.h"
#include "color/ColorSettings.h"
#include "color/IGamma.h"
#include "settings/SaveKeys.h"

namespace {
struct TickKeys
{
    QString per_monitor = QString::fromLatin1(SaveKeys::USE_PER_MONITOR_SETTINGS);
    QString pwm_continuously = QString::fromLatin1(SaveKeys::PWM_UPDATE_CONTINUOUSLY);
    QString low_level = QString::fromLatin1(SaveKeys::USE_LOW_LEVEL_COLOR_API);
    QString color_effect = QString::fromLatin1(SaveKeys::COLOR_EFFECT);
};

const TickKeys& keys()
{
    static const TickKeys k;
    return k;
}
} // namespace

ColorTick::ColorTick(SettingsMap& settings, const ColorCurve& curve, IGamma* const& gamma,
                     const std::vector<int>& ignored_monitors, int& current_temperature,
                     int& current_brightness, TickHooks hooks)
    : settings(settings)
    , curve(curve)
    , gamma(gamma)
    , ignored_monitors(ignored_monitors)
    , current_temperature(current_temperature)
    , current_brightness(current_brightness)
    , hooks(std::move(hooks))
{
}

bool ColorTick::setting(const QString& key) const
{
    const auto found = settings.find(key);
    return found != settings.end() && found->second.toBool();
}

float ColorTick::brightness(int monitor) const
{
    // The modifier counts in every call, so fades that read the target take
    // it in too.
    return curve.brightness(monitor) + hooks.brightness_modifier();
}

int ColorTick::update()
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
    if (setting(keys().per_monitor)) {
        const int count = hooks.screen_count();
        for (int monitor = 1; monitor <= count; ++monitor)
            result = update_monitor(monitor);
    } else {
        result = update_monitor(0);
    }
    if (setting(keys().pwm_continuously))
        hooks.after_update();
    return result;
}

int ColorTick::update_monitor(int monitor)
{
    ColorSettings color_settings;
    color_settings.temperature = static_cast<int>(curve.temperature(monitor));
    color_settings.brightness = brightness(monitor) / 100.0f;
    current_temperature = color_settings.temperature;
    current_brightness = static_cast<int>(color_settings.brightness * 100.0f);
    return write(&color_settings, monitor);
}

int ColorTick::write(ColorSettings* color_settings, int monitor)
{
    color_settings->gamma[0] = color_settings->gamma[1] = color_settings->gamma[2] = 1.0f;
    const auto effect = settings.find(keys().color_effect);
    int result = 0;
    if (setting(keys().low_level) && gamma) {
        result = gamma->set_temperature(color_settings, ignored_monitors, monitor);
        if (result < 0)
            result = 0;
    }
    last_brightness_value = color_settings->brightness;
    last_color_effect = effect == settings.end() ? 0 : effect->second.toInt();
    last_temperature_value = color_settings->temperature;
    return result;
}

void ColorTick::forget_last_values()
{
    last_temperature_value = -1;
    last_brightness_value = -1.0f;
}
