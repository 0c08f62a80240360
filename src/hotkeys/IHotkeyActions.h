#pragma once

// What the hotkeys ask of the controller. Each call is the controller's own
// slot, so a hotkey changes a setting the same way the page does.
class IHotkeyActions
{
public:
    virtual ~IHotkeyActions() = default;

    // The colour the display shows now, for monitor 0.
    virtual float interpolated_temperature() = 0;
    virtual float interpolated_brightness() = 0;
    // The phase in force now: 0 day, 1 night, 2 sleep.
    virtual int transition_type() = 0;

    // The change handler of one phase's value, for monitor 0.
    virtual void change_temperature(int phase, int value) = 0;
    virtual void change_brightness(int phase, int value) = 0;
    // The page's slider of that phase, moved to the stored value.
    virtual void show_temperature(int phase) = 0;
    virtual void show_brightness(int phase) = 0;
    // The interface switches to the advanced view.
    virtual void use_advanced_view() = 0;
    // The display and the status follow the stored values at once.
    virtual void refresh_colors() = 0;

    virtual void update_gamma() = 0;
    virtual void show_use_color_effects(bool value) = 0;
    virtual void pause_ovra(bool paused) = 0;
    virtual void pause_rest_timer(bool paused) = 0;
    virtual void timer_type_changed(int type) = 0;
    virtual void use_manual_color_settings_changed(bool value) = 0;
    virtual void use_manual_brightness_changed(bool value) = 0;
    virtual void ovra_mode_changed_force(int mode, bool force) = 0;

    // Whether overlay windows are on the screens now.
    virtual bool has_overlay_screens() = 0;
    virtual void use_overlay_screen_changed(bool value) = 0;
    virtual void select_overlay_screen_area() = 0;

    virtual void start_rest() = 0;
    virtual void quit() = 0;
};
