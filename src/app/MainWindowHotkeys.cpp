// The global hotkeys: the processor that owns them, whether they are live,
// and the controller's slots their actions call.
#include "app/MainWindow.h"
#include "breaks/IRestTimer.h"
#include "hotkeys/HotkeyProcessor.h"
#include "hotkeys/IHotkeyActions.h"
#include "overlays/IScreenOverlays.h"
#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"
#include "tray/ITrayIcon.h"

namespace {

using ValueChange = void (MainWindow::*)(int value, int monitor);
using SliderSignal = void (MainWindow::*)(int value);

// One phase's value: its key, its change handler and its slider's signal.
struct PhaseValue
{
    const char* key;
    ValueChange change;
    SliderSignal slider;
};

// Day, night, sleep.
const PhaseValue TEMPERATURES[3] = {
    {SaveKeys::DAY_TEMPERATURE, &MainWindow::day_temperature_changed,
     &MainWindow::set_day_temperature_slider_value},
    {SaveKeys::NIGHT_TEMPERATURE, &MainWindow::night_temperature_changed,
     &MainWindow::set_night_temperature_slider_value},
    {SaveKeys::SLEEP_LIGHT, &MainWindow::sleep_light_changed,
     &MainWindow::set_sleep_light_slider_value},
};

const PhaseValue BRIGHTNESSES[3] = {
    {SaveKeys::DAY_BRIGHTNESS, &MainWindow::day_brightness_changed,
     &MainWindow::set_day_brightness_slider_value},
    {SaveKeys::NIGHT_BRIGHTNESS, &MainWindow::night_brightness_changed,
     &MainWindow::set_night_brightness_slider_value},
    {SaveKeys::SLEEP_BRIGHTNESS, &MainWindow::sleep_brightness_changed,
     &MainWindow::set_sleep_brightness_slider_value},
};

class ControllerHotkeyActions : public IHotkeyActions
{
public:
    explicit ControllerHotkeyActions(MainWindow* window) : window(window) {}

    float interpolated_temperature() override
    {
        return window->get_interpolated_color_temperature(0);
    }
    float interpolated_brightness() override { return window->get_interpolated_brightness(0); }
    int transition_type() override { return window->get_transition_type(); }

    void change_temperature(int phase, int value) override
    {
        (window->*TEMPERATURES[phase].change)(value, 0);
    }
    void change_brightness(int phase, int value) override
    {
        (window->*BRIGHTNESSES[phase].change)(value, 0);
    }
    void show_temperature(int phase) override { show(TEMPERATURES[phase]); }
    void show_brightness(int phase) override { show(BRIGHTNESSES[phase]); }
    void use_advanced_view() override { window->use_advanced_settings_changed(true, -1, -1); }
    void refresh_colors() override
    {
        window->force_refresh();
        window->update_gamma();
        window->update_ui();
    }

    void update_gamma() override { window->update_gamma(); }
    void show_use_color_effects(bool value) override { emit window->set_use_color_effects(value); }
    void pause_ovra(bool paused) override { window->pause_ovra(paused); }

    void pause_rest_timer(bool paused) override { window->pause_rest_timer(paused); }
    void timer_type_changed(int type) override { window->timer_type_changed(type); }
    void use_manual_color_settings_changed(bool value) override
    {
        window->use_manual_color_settings_changed(value);
    }
    void use_manual_brightness_changed(bool value) override
    {
        window->use_manual_brightness_changed(value);
    }
    void ovra_mode_changed_force(int mode, bool force) override
    {
        window->ovra_mode_changed_force(mode, force);
    }

    bool has_overlay_screens() override
    {
        return window->overlays && window->overlays->has_overlay_screens();
    }
    void use_overlay_screen_changed(bool value) override
    {
        window->use_overlay_screen_changed(value);
    }
    void select_overlay_screen_area() override { window->select_overlay_screen_area(); }

    void start_rest() override { window->start_rest(); }
    void quit() override { window->quit(); }

private:
    void show(const PhaseValue& phase)
    {
        emit(window->*phase.slider)(window->settings[QString::fromLatin1(phase.key)].toInt());
    }

    MainWindow* window;
};

} // namespace

void MainWindow::setup_hotkeys()
{
    hotkey_processor =
        new HotkeyProcessor(settings, std::make_unique<ControllerHotkeyActions>(this));
    hotkey_processor->refresh_shortcuts();
    reconnect_keyboard_hook();
}

// The keyboard hook of other systems has no counterpart here: only the
// hotkeys follow this.
void MainWindow::reconnect_keyboard_hook()
{
    if (hotkey_processor)
        hotkey_processor->set_connected(settings[SaveKeys::USE_KEYBOARD_SHORTCUTS].toBool(), false);
}
