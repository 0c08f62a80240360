#include "color/ColorFades.h"

#include "base/TickPath.h"

#include "settings/SaveKeys.h"

namespace {
const float NEUTRAL_TEMPERATURE = 6500.0f;
const float NEUTRAL_BRIGHTNESS = 100.0f;
const float DARK_TEMPERATURE = 100.0f;
const float DARK_BRIGHTNESS = 10.0f;
const float SWITCH_TICKS = 20.0f;
const float MOVE_TICKS = 40.0f;
const int FADE_TICK_MS = 25;

// Moves one channel by its step; the step drops to 0 once the value has
// passed the target. A value exactly on the target keeps its step, so the
// fade ends one tick later.
void advance_channel(float& value, float& step, float target)
{
    value += step;
    if ((step > 0.0f && value > target) || (step < 0.0f && value < target))
        step = 0.0f;
}

// Steps that take a fade from `from` to `to` in `ticks` ticks.
void set_steps(FadeRecord& fade, float from_temperature, float from_brightness, float to_temperature,
               float to_brightness, float ticks)
{
    fade.temperature_step = (to_temperature - from_temperature) / ticks;
    fade.brightness_step = (to_brightness - from_brightness) / ticks;
}
} // namespace

bool FadeRecord::advance()
{
    advance_channel(temperature, temperature_step, target_temperature);
    advance_channel(brightness, brightness_step, target_brightness);
    return temperature_step == 0.0f && brightness_step == 0.0f;
}

void FadeRecord::stop()
{
    if (timer)
        timer->stop();
    active = false;
    temperature_step = 0.0f;
    brightness_step = 0.0f;
}

void FadeRecord::take_over(float& from_temperature, float& from_brightness)
{
    if (timer)
        timer->stop();
    if (active) {
        from_temperature = temperature;
        from_brightness = brightness;
    }
    stop();
}

void FadeRecord::begin(float from_temperature, float from_brightness, float to_temperature,
                       float to_brightness)
{
    temperature = from_temperature;
    brightness = from_brightness;
    target_temperature = to_temperature;
    target_brightness = to_brightness;
    active = true;
    if (timer)
        timer->start();
}

ColorFades::ColorFades(SettingsMap& settings, int& current_temperature, int& current_brightness,
                       FadeHooks hooks, QObject* parent)
    : QObject(parent)
    , settings(settings)
    , current_temperature(current_temperature)
    , current_brightness(current_brightness)
    , hooks(std::move(hooks))
{
    for (FadeRecord& fade : fades) {
        fade.timer = new QTimer(this);
        fade.timer->setInterval(FADE_TICK_MS);
    }
    connect(fades[RESTORE].timer, &QTimer::timeout, this, &ColorFades::restore_colors_timeout);
    connect(fades[RETURN].timer, &QTimer::timeout, this, &ColorFades::return_colors_timeout);
    connect(fades[SWITCH].timer, &QTimer::timeout, this, &ColorFades::switch_state_timeout);
    connect(fades[SWITCH_RETURN].timer, &QTimer::timeout, this,
            &ColorFades::switch_state_return_timeout);
}

OVRA_TICK bool ColorFades::active() const
{
    return fades[RESTORE].active || fades[RETURN].active || fades[SWITCH].active
           || fades[SWITCH_RETURN].active;
}

const FadeRecord& ColorFades::record(Which which) const
{
    return fades[which];
}

bool ColorFades::setting(const char* key) const
{
    const auto found = settings.find(QString::fromLatin1(key));
    return found != settings.end() && found->second.toBool();
}

int ColorFades::pause_fade_ticks() const
{
    const auto found = settings.find(QString::fromLatin1(SaveKeys::PAUSE_TRANSITION_DURATION));
    return found == settings.end() ? 0 : found->second.toInt() / FADE_TICK_MS;
}

void ColorFades::write(const FadeRecord& fade)
{
    const int temperature = static_cast<int>(fade.temperature);
    const float brightness = fade.brightness / 100.0f;
    current_temperature = temperature;
    current_brightness = static_cast<int>(brightness * 100.0f);
    hooks.write(temperature, brightness);
}

void ColorFades::process_restore_colors()
{
    if (setting(SaveKeys::USE_INVERTED_COLORS))
        restore_colors_with_switch_state();
    else
        restore_colors();
}

void ColorFades::process_return_colors()
{
    if (setting(SaveKeys::USE_INVERTED_COLORS))
        return_colors_with_switch_state();
    else
        return_colors();
}

// ---------------------------------------------------------------- plain fades

void ColorFades::restore_colors()
{
    if (setting(SaveKeys::USE_PER_MONITOR_SETTINGS)) {
        hooks.restore_display();
        return;
    }
    const int ticks = pause_fade_ticks();
    float temperature = static_cast<float>(current_temperature);
    float brightness = static_cast<float>(current_brightness);
    fades[RETURN].take_over(temperature, brightness);
    if (ticks <= 0) {
        // No time to fade in: end where the fade would end.
        fades[RESTORE].stop();
        current_temperature = static_cast<int>(NEUTRAL_TEMPERATURE);
        current_brightness = static_cast<int>(NEUTRAL_BRIGHTNESS);
        hooks.restore_display();
        return;
    }
    fades[RESTORE].begin(temperature, brightness, NEUTRAL_TEMPERATURE, NEUTRAL_BRIGHTNESS);
    set_steps(fades[RESTORE], temperature, brightness, NEUTRAL_TEMPERATURE, NEUTRAL_BRIGHTNESS,
              static_cast<float>(ticks));
}

void ColorFades::restore_colors_timeout()
{
    if (fades[RESTORE].advance()) {
        fades[RESTORE].stop();
        hooks.restore_display();
        return;
    }
    write(fades[RESTORE]);
}

void ColorFades::return_colors()
{
    if (setting(SaveKeys::USE_PER_MONITOR_SETTINGS)) {
        hooks.update_display();
        return;
    }
    const int ticks = pause_fade_ticks();
    float temperature = NEUTRAL_TEMPERATURE;
    float brightness = NEUTRAL_BRIGHTNESS;
    fades[RESTORE].take_over(temperature, brightness);
    if (ticks <= 0) {
        fades[RETURN].stop();
        hooks.update_display();
        return;
    }
    const float target_temperature = hooks.target_temperature();
    const float target_brightness = hooks.target_brightness();
    fades[RETURN].begin(temperature, brightness, target_temperature, target_brightness);
    // Steps count from neutral even when an interrupted fade starts elsewhere.
    set_steps(fades[RETURN], NEUTRAL_TEMPERATURE, NEUTRAL_BRIGHTNESS, target_temperature,
              target_brightness, static_cast<float>(ticks));
}

void ColorFades::return_colors_timeout()
{
    if (fades[RETURN].advance()) {
        fades[RETURN].stop();
        hooks.update_display();
        return;
    }
    write(fades[RETURN]);
}

void ColorFades::move_to(int temperature, int brightness)
{
    if (fades[SWITCH].active || fades[SWITCH_RETURN].active || hooks.paused())
        return;
    if (setting(SaveKeys::USE_PER_MONITOR_SETTINGS)) {
        hooks.update_display();
        return;
    }
    float from_temperature = static_cast<float>(current_temperature);
    float from_brightness = static_cast<float>(current_brightness);
    fades[RESTORE].take_over(from_temperature, from_brightness);
    fades[RETURN].begin(from_temperature, from_brightness, static_cast<float>(temperature),
                        static_cast<float>(brightness));
    set_steps(fades[RETURN], from_temperature, from_brightness, static_cast<float>(temperature),
              static_cast<float>(brightness), MOVE_TICKS);
}

// ---------------------------------------------------------------- inversion fades

void ColorFades::start_switch_fade(float from_temperature, float from_brightness)
{
    fades[SWITCH].begin(from_temperature, from_brightness, DARK_TEMPERATURE, DARK_BRIGHTNESS);
    set_steps(fades[SWITCH], from_temperature, from_brightness, DARK_TEMPERATURE, DARK_BRIGHTNESS,
              SWITCH_TICKS);
}

void ColorFades::switch_state()
{
    if (fades[SWITCH].active)
        return;
    if (hooks.paused()) {
        hooks.refresh_inversion();
        return;
    }
    float temperature = static_cast<float>(current_temperature);
    float brightness = static_cast<float>(current_brightness);
    fades[SWITCH_RETURN].take_over(temperature, brightness);
    start_switch_fade(temperature, brightness);
}

void ColorFades::switch_state_timeout()
{
    if (!fades[SWITCH].advance()) {
        write(fades[SWITCH]);
        return;
    }
    fades[SWITCH].stop();
    fades[SWITCH_RETURN].active = true;
    hooks.set_display_inverted(inversion_target);
    hooks.refresh_effects();
    switch_state_return();
}

void ColorFades::switch_state_return()
{
    float temperature = DARK_TEMPERATURE;
    float brightness = DARK_BRIGHTNESS;
    fades[SWITCH].take_over(temperature, brightness);
    const float target_temperature =
        pending_restore_fade ? NEUTRAL_TEMPERATURE : hooks.target_temperature();
    const float target_brightness =
        pending_restore_fade ? NEUTRAL_BRIGHTNESS : hooks.target_brightness();
    fades[SWITCH_RETURN].begin(temperature, brightness, target_temperature, target_brightness);
    set_steps(fades[SWITCH_RETURN], DARK_TEMPERATURE, DARK_BRIGHTNESS, target_temperature,
              target_brightness, SWITCH_TICKS);
}

void ColorFades::switch_state_return_timeout()
{
    if (!fades[SWITCH_RETURN].advance()) {
        write(fades[SWITCH_RETURN]);
        return;
    }
    fades[SWITCH_RETURN].stop();
    fades[SWITCH].stop();
    pending_return_fade = false;
    const bool was_restoring = pending_restore_fade;
    pending_restore_fade = false;
    hooks.update_display();
    hooks.refresh_inversion();
    // A pause that went through the dark point ends resting on the saved
    // ramps, like a plain pause does. Without the low-level path there are
    // no ramps to give back, and restoring would revert the inversion the
    // user chose.
    if (was_restoring && hooks.paused() && setting(SaveKeys::USE_LOW_LEVEL_COLOR_API))
        hooks.restore_display();
}

void ColorFades::restore_colors_with_switch_state()
{
    if (fades[SWITCH].active)
        return;
    pending_restore_fade = true;
    inversion_target = false;
    hooks.set_display_inverted(true);
    float temperature = static_cast<float>(current_temperature);
    float brightness = static_cast<float>(current_brightness);
    fades[SWITCH_RETURN].take_over(temperature, brightness);
    start_switch_fade(temperature, brightness);
}

void ColorFades::return_colors_with_switch_state()
{
    if (fades[SWITCH].active)
        return;
    if (hooks.paused()) {
        hooks.refresh_inversion();
        return;
    }
    pending_return_fade = true;
    inversion_target = true;
    hooks.set_display_inverted(false);
    float temperature = NEUTRAL_TEMPERATURE;
    float brightness = NEUTRAL_BRIGHTNESS;
    fades[SWITCH_RETURN].take_over(temperature, brightness);
    start_switch_fade(temperature, brightness);
}

void ColorFades::set_inversion(bool inverted)
{
    const QString key = QString::fromLatin1(SaveKeys::USE_INVERTED_COLORS);
    if (setting(SaveKeys::USE_PER_MONITOR_SETTINGS)) {
        settings[key] = inverted;
        hooks.refresh_inversion();
        return;
    }
    inversion_target = inverted;
    if (setting(SaveKeys::USE_INVERTED_COLORS) != inverted) {
        settings[key] = inverted;
        switch_state();
    }
}
