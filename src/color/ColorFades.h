#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

#include "settings/SettingsHost.h"

// One of the four colour fades: a timer, where the fade stands and where it
// goes.
struct FadeRecord
{
    QTimer* timer = nullptr;
    bool active = false;
    float temperature = 6500.0f;
    float brightness = 100.0f;
    float target_temperature = 6500.0f;
    float target_brightness = 100.0f;
    float temperature_step = 0.0f;
    float brightness_step = 0.0f;

    // Sets the start and the target, raises the flag and starts the timer.
    void begin(float from_temperature, float from_brightness, float to_temperature,
               float to_brightness);
    // Moves both values one step; true once both have passed their targets.
    bool advance();
    // Stops the timer, lowers the flag and clears the steps.
    void stop();
    // Ends this fade so that another can turn round where it stood: the
    // values it had reached replace the given start when it was running.
    void take_over(float& from_temperature, float& from_brightness);
};

// What the fades need of the program around them.
struct FadeHooks
{
    // One step of a fade, to every output: kelvin, and brightness as a
    // fraction of full.
    std::function<void(int temperature, float brightness)> write;
    // Where a fade back to the tint ends: the curve's values of this moment.
    std::function<float()> target_temperature;
    std::function<float()> target_brightness;
    // The user's own ramps, or the tick's values, back on the display.
    std::function<void()> restore_display;
    std::function<void()> update_display;
    std::function<void(bool inverted)> set_display_inverted;
    std::function<void()> refresh_inversion;
    std::function<void()> refresh_effects;
    std::function<bool()> paused;
};

// The four colour fades and how they hand over to one another: to neutral
// and back for a pause (restore and return), towards a value (move_to), and
// through a dark point where the inversion flips (switch and switch back).
// Each runs on its own 25 ms timer; while one runs, the tick stands aside.
class ColorFades : public QObject
{
    Q_OBJECT

public:
    enum Which { RESTORE = 0, RETURN = 1, SWITCH = 2, SWITCH_RETURN = 3 };

    ColorFades(SettingsMap& settings, int& current_temperature, int& current_brightness,
               FadeHooks hooks, QObject* parent = nullptr);

    bool active() const;
    const FadeRecord& record(Which which) const;

    void restore_colors();
    void return_colors();
    void move_to(int temperature, int brightness);
    void process_restore_colors();
    void process_return_colors();
    void restore_colors_with_switch_state();
    void return_colors_with_switch_state();
    void switch_state();
    void switch_state_return();
    // Turns the inversion on or off, through the dark point when that is a
    // change and the outputs share their values.
    void set_inversion(bool inverted);

public slots:
    void restore_colors_timeout();
    void return_colors_timeout();
    void switch_state_timeout();
    void switch_state_return_timeout();

private:
    int pause_fade_ticks() const;
    bool setting(const char* key) const;
    void write(const FadeRecord& fade);
    void start_switch_fade(float from_temperature, float from_brightness);

    SettingsMap& settings;
    int& current_temperature;
    int& current_brightness;
    FadeHooks hooks;

    FadeRecord fades[4];
    bool inversion_target = false;
    bool pending_return_fade = false;
    bool pending_restore_fade = false;
};
