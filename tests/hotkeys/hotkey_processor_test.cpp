// The hotkeys' actions against a recording controller: which phase a step
// moves and how far, the toggles, and the page's shortcut editing.
#include <QStringList>
#include <gtest/gtest.h>

#include "hotkeys/HotkeyProcessor.h"
#include "hotkeys/IHotkeyActions.h"
#include "hotkeys/QHotkey.h"
#include "settings/SaveKeys.h"
#include "web/UserTime.h"

#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>

namespace {

QString tf(bool value)
{
    return value ? "true" : "false";
}

// Every call as "name" or "name(args)", in order.
class RecordingActions : public IHotkeyActions
{
public:
    explicit RecordingActions(QStringList* log) : log(*log) {}
    float interpolated_temperature() override { return current; }
    float interpolated_brightness() override { return current; }
    int transition_type() override { return phase_in_force; }
    void change_temperature(int p, int v) override { log << QString("temperature(%1,%2)").arg(p).arg(v); }
    void change_brightness(int p, int v) override { log << QString("brightness(%1,%2)").arg(p).arg(v); }
    void show_temperature(int p) override { log << QString("show_temperature(%1)").arg(p); }
    void show_brightness(int p) override { log << QString("show_brightness(%1)").arg(p); }
    void use_advanced_view() override { log << "advanced"; }
    void refresh_colors() override { log << "refresh"; }
    void update_gamma() override { log << "gamma"; }
    void show_use_color_effects(bool v) override { log << "show_effects(" + tf(v) + ")"; }
    void pause_ovra(bool v) override { log << "pause_ovra(" + tf(v) + ")"; }
    void pause_rest_timer(bool v) override { log << "pause_timer(" + tf(v) + ")"; }
    void timer_type_changed(int t) override { log << QString("timer_type(%1)").arg(t); }
    void use_manual_color_settings_changed(bool v) override { log << "manual_colors(" + tf(v) + ")"; }
    void use_manual_brightness_changed(bool v) override { log << "manual_brightness(" + tf(v) + ")"; }
    void ovra_mode_changed_force(int m, bool f) override { log << QString("mode(%1,%2)").arg(m).arg(tf(f)); }
    bool has_overlay_screens() override { return overlay_open; }
    void use_overlay_screen_changed(bool v) override { log << "overlay(" + tf(v) + ")"; }
    void select_overlay_screen_area() override { log << "select_area"; }
    // With the user time a window that the rest opens would carry.
    void start_rest() override { log << QString("start_rest(%1)").arg(UserTime::current()); }
    void quit() override { log << "quit"; }

    float current = 0;
    int phase_in_force = 0;
    bool overlay_open = false;

private:
    QStringList& log;
};

class Hotkeys : public ::testing::Test
{
protected:
    Hotkeys()
    {
        auto owned = std::make_unique<RecordingActions>(&log);
        actions = owned.get();
        processor = std::make_unique<HotkeyProcessor>(settings, std::move(owned));
    }
    void set(const char* key, const QVariant& value) { settings[QString::fromLatin1(key)] = value; }

    SettingsMap settings;
    QStringList log;
    RecordingActions* actions = nullptr;
    std::unique_ptr<HotkeyProcessor> processor;
};

TEST_F(Hotkeys, AStepMovesThePhaseNearestToTheScreenWithinItsRange)
{
    const char* const temperatures[] = {SaveKeys::DAY_TEMPERATURE, SaveKeys::NIGHT_TEMPERATURE,
                                        SaveKeys::SLEEP_LIGHT};
    const char* const brightnesses[] = {SaveKeys::DAY_BRIGHTNESS, SaveKeys::NIGHT_BRIGHTNESS,
                                        SaveKeys::SLEEP_BRIGHTNESS};
    const struct
    {
        bool temperature;
        int day, night, sleep, current, phase_in_force, step;
        const char* calls;
    } rows[] = {
        {true, 5000, 3400, 2700, 3500, 0, 500, "temperature(1,3900) advanced show_temperature(1) refresh"},
        {true, 3400, 3400, 2700, 3400, 0, 500, "temperature(0,3900) advanced show_temperature(0) refresh"},
        {true, 3400, 3400, 2700, 3400, 1, -500, "temperature(1,2900) advanced show_temperature(1) refresh"},
        {true, 6100, 3400, 2700, 6000, 0, 500, "temperature(0,6500) advanced show_temperature(0) refresh"},
        {true, 6500, 3400, 300, 300, 0, -500, "temperature(2,0) advanced show_temperature(2) refresh"},
        {true, 6500, 3400, 2700, 6500, 0, 500, ""},
        {true, 6500, 3400, 0, 0, 2, -500, ""},
        {false, 95, 70, 50, 95, 0, 10, "brightness(0,100) advanced show_brightness(0) refresh"},
        {false, 100, 70, 14, 14, 0, -10, "brightness(2,5) advanced show_brightness(2) refresh"},
        {false, 100, 70, 50, 100, 0, 10, ""},
        {false, 100, 70, 5, 5, 0, -10, ""},
        {false, 100, 70, 50, 71, 1, 0, ""},
    };
    for (const auto& row : rows) {
        log.clear();
        const int values[] = {row.day, row.night, row.sleep};
        for (int phase = 0; phase < 3; ++phase)
            set((row.temperature ? temperatures : brightnesses)[phase], values[phase]);
        actions->current = float(row.current);
        actions->phase_in_force = row.phase_in_force;
        if (row.temperature)
            processor->update_temperature_by_hotkey(row.step);
        else
            processor->update_brightness_by_hotkey(row.step);
        EXPECT_EQ(log.join(' ').toStdString(), row.calls) << row.current;
    }
}

TEST_F(Hotkeys, TogglesReadTheStoredStateAndCallTheController)
{
    const struct
    {
        const char* key;
        QVariant value;
        void (HotkeyProcessor::*press)();
        const char* calls;
    } rows[] = {
        {SaveKeys::IS_OVRA_PAUSED, true, &HotkeyProcessor::pause_ovra_toggle_hotkey_pressed, "pause_ovra(false)"},
        {SaveKeys::USE_COLOR_EFFECTS, false, &HotkeyProcessor::use_color_effects_hotkey_pressed, "gamma show_effects(true)"},
        {SaveKeys::IS_TIMER_PAUSED, false, &HotkeyProcessor::pause_timer_toogle_hotkey_pressed, "pause_timer(true) timer_type(1)"},
        {SaveKeys::IS_TIMER_PAUSED, true, &HotkeyProcessor::pause_timer_toogle_hotkey_pressed, "pause_timer(false) timer_type(2)"},
        {SaveKeys::OVRA_MODE, 1, &HotkeyProcessor::manual_automatic_toggle_hotkey_pressed, "mode(2,false)"},
        {SaveKeys::OVRA_MODE, 3, &HotkeyProcessor::manual_automatic_toggle_hotkey_pressed, "mode(1,false)"},
        {SaveKeys::USE_ADVANCED_SETTINGS, true, &HotkeyProcessor::manual_automatic_toggle_hotkey_pressed, "manual_colors(true) manual_brightness(true)"},
        {SaveKeys::USE_MANUAL_BRIGHTNESS, true, &HotkeyProcessor::manual_automatic_toggle_hotkey_pressed, "manual_colors(false) manual_brightness(false)"},
        {nullptr, {}, &HotkeyProcessor::start_overlay_screen_hotkey_pressed, "overlay(true)"},
        {nullptr, {}, &HotkeyProcessor::start_rest_hotkey_pressed, "start_rest(0)"},
    };
    for (const auto& row : rows) {
        log.clear();
        if (row.key)
            set(row.key, row.value);
        (processor.get()->*row.press)();
        EXPECT_EQ(log.join(' ').toStdString(), row.calls);
    }
    EXPECT_TRUE(settings[SaveKeys::USE_COLOR_EFFECTS].toBool());
    EXPECT_FALSE(settings[SaveKeys::IS_TIMER_PAUSED].toBool());
    log.clear();
    actions->overlay_open = true;
    processor->start_overlay_screen_hotkey_pressed();
    EXPECT_EQ(log, QStringList{"select_area"});
}

// On an X server, live only while connected, and in the key press's time.
TEST_F(Hotkeys, AnActionRunsInTheTimeOfItsKeyPress)
{
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || !x11->display())
        GTEST_SKIP() << "needs an X display";
    set(SaveKeys::START_REST_HOTKEY, "Ctrl+Shift+F10");
    processor->refresh_shortcuts();
    EXPECT_FALSE(processor->hotkey(10)->isRegistered());
    processor->set_connected(true, false);
    QSignalSpy fired(processor->hotkey(10), &QHotkey::activated);
    ASSERT_EQ(QProcess::execute("xdotool", {"key", "ctrl+shift+F10"}), 0);
    ASSERT_TRUE(fired.wait(3000));
    EXPECT_EQ(log, QStringList{QString("start_rest(%1)").arg(QHotkey::lastActivationTime())});
    EXPECT_NE(QHotkey::lastActivationTime(), 0u);
    EXPECT_EQ(UserTime::current(), 0u);
}

} // namespace
