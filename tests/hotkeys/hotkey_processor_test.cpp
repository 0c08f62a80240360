// The hotkeys' actions against a recording controller: which phase a step
// moves and how far, the toggles, and the page's shortcut editing.
#include <QStringList>
#include <gtest/gtest.h>

#include "hotkeys/HotkeyProcessor.h"
#include "hotkeys/IHotkeyActions.h"
#include "hotkeys/QHotkey.h"
#include "settings/SaveKeys.h"

namespace {

QString tf(bool value)
{
    return value ? "true" : "false";
}

// Every call as "name" or "name(args)", in order.
class RecordingActions : public IHotkeyActions
{
public:
    explicit RecordingActions(QStringList* log) : log(log) {}
    float interpolated_temperature() override { return current; }
    float interpolated_brightness() override { return current; }
    int transition_type() override { return phase_in_force; }
    void change_temperature(int p, int v) override { add(QString("temperature(%1,%2)").arg(p).arg(v)); }
    void change_brightness(int p, int v) override { add(QString("brightness(%1,%2)").arg(p).arg(v)); }
    void show_temperature(int p) override { add(QString("show_temperature(%1)").arg(p)); }
    void show_brightness(int p) override { add(QString("show_brightness(%1)").arg(p)); }
    void use_advanced_view() override { add("advanced"); }
    void refresh_colors() override { add("refresh"); }
    void update_gamma() override { add("gamma"); }
    void show_use_color_effects(bool v) override { add(QString("show_effects(%1)").arg(tf(v))); }
    void pause_ovra(bool v) override { add(QString("pause_ovra(%1)").arg(tf(v))); }
    void pause_rest_timer(bool v) override { add(QString("pause_timer(%1)").arg(tf(v))); }
    void timer_type_changed(int t) override { add(QString("timer_type(%1)").arg(t)); }
    void use_manual_color_settings_changed(bool v) override { add(QString("manual_colors(%1)").arg(tf(v))); }
    void use_manual_brightness_changed(bool v) override { add(QString("manual_brightness(%1)").arg(tf(v))); }
    void ovra_mode_changed_force(int m, bool f) override { add(QString("mode(%1,%2)").arg(m).arg(tf(f))); }
    bool has_overlay_screens() override { return overlay_open; }
    void use_overlay_screen_changed(bool v) override { add(QString("overlay(%1)").arg(tf(v))); }
    void select_overlay_screen_area() override { add("select_area"); }
    void start_rest() override { add("start_rest"); }
    void quit() override { add("quit"); }

    float current = 0;
    int phase_in_force = 0;
    bool overlay_open = false;

private:
    void add(const QString& call) { log->append(call); }
    QStringList* log;
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

TEST(HotkeySteps, ClosestValueTiesGoToTheEarlierOne)
{
    EXPECT_EQ(HotkeyProcessor::find_closest(5000, 3400, 2700, 3500), 3400);
    EXPECT_EQ(HotkeyProcessor::find_closest(3000, 4000, 5000, 3500), 3000);
    EXPECT_EQ(HotkeyProcessor::find_closest(6500, 3000, 4000, 3500), 3000);
    EXPECT_EQ(HotkeyProcessor::find_closest(1, 2, 3, 3), 3);
    EXPECT_TRUE(HotkeyProcessor::has_conflicts(3400, 2700, 3400, 3400));
    EXPECT_FALSE(HotkeyProcessor::has_conflicts(3400, 2700, 3500, 3400));
}

TEST_F(Hotkeys, AStepMovesThePhaseNearestToTheScreenWithinItsRange)
{
    const struct
    {
        bool temperature;
        int day, night, sleep, current, phase_in_force, step;
        QStringList expected;
    } rows[] = {
        {true, 5000, 3400, 2700, 3500, 0, 500, {"temperature(1,3900)", "advanced", "show_temperature(1)", "refresh"}},
        {true, 3400, 3400, 2700, 3400, 0, 500, {"temperature(0,3900)", "advanced", "show_temperature(0)", "refresh"}},
        {true, 3400, 3400, 2700, 3400, 1, -500, {"temperature(1,2900)", "advanced", "show_temperature(1)", "refresh"}},
        {true, 6100, 3400, 2700, 6000, 0, 500, {"temperature(0,6500)", "advanced", "show_temperature(0)", "refresh"}},
        {true, 6500, 3400, 2700, 6500, 0, 500, {}},
        {true, 6500, 3400, 0, 0, 2, -500, {}},
        {true, 6500, 3400, 300, 300, 0, -500, {"temperature(2,0)", "advanced", "show_temperature(2)", "refresh"}},
        {false, 95, 70, 50, 95, 0, 10, {"brightness(0,100)", "advanced", "show_brightness(0)", "refresh"}},
        {false, 100, 70, 50, 100, 0, 10, {}},
        {false, 100, 70, 14, 14, 0, -10, {"brightness(2,5)", "advanced", "show_brightness(2)", "refresh"}},
        {false, 100, 70, 5, 5, 0, -10, {}},
        {false, 100, 70, 50, 71, 1, 0, {}},
    };
    for (const auto& row : rows) {
        log.clear();
        set(row.temperature ? SaveKeys::DAY_TEMPERATURE : SaveKeys::DAY_BRIGHTNESS, row.day);
        set(row.temperature ? SaveKeys::NIGHT_TEMPERATURE : SaveKeys::NIGHT_BRIGHTNESS, row.night);
        set(row.temperature ? SaveKeys::SLEEP_LIGHT : SaveKeys::SLEEP_BRIGHTNESS, row.sleep);
        actions->current = float(row.current);
        actions->phase_in_force = row.phase_in_force;
        if (row.temperature)
            processor->update_temperature_by_hotkey(row.step);
        else
            processor->update_brightness_by_hotkey(row.step);
        EXPECT_EQ(log, row.expected) << row.day << " " << row.night << " " << row.sleep << " "
                                     << row.current << " " << row.step;
    }
}

TEST_F(Hotkeys, TogglesReadTheStoredStateAndCallTheController)
{
    using Press = void (HotkeyProcessor::*)();
    const struct
    {
        std::vector<std::pair<const char*, QVariant>> stored;
        Press press;
        QStringList expected;
    } rows[] = {
        {{{SaveKeys::IS_OVRA_PAUSED, true}}, &HotkeyProcessor::pause_ovra_toggle_hotkey_pressed, {"pause_ovra(false)"}},
        {{{SaveKeys::IS_OVRA_PAUSED, false}}, &HotkeyProcessor::pause_ovra_toggle_hotkey_pressed, {"pause_ovra(true)"}},
        {{{SaveKeys::USE_COLOR_EFFECTS, false}}, &HotkeyProcessor::use_color_effects_hotkey_pressed, {"gamma", "show_effects(true)"}},
        {{{SaveKeys::IS_TIMER_PAUSED, false}}, &HotkeyProcessor::pause_timer_toogle_hotkey_pressed, {"pause_timer(true)", "timer_type(1)"}},
        {{{SaveKeys::IS_TIMER_PAUSED, true}}, &HotkeyProcessor::pause_timer_toogle_hotkey_pressed, {"pause_timer(false)", "timer_type(2)"}},
        {{{SaveKeys::USE_ADVANCED_SETTINGS, true}, {SaveKeys::USE_MANUAL_BRIGHTNESS, false}},
         &HotkeyProcessor::manual_automatic_toggle_hotkey_pressed, {"manual_colors(true)", "manual_brightness(true)"}},
        {{{SaveKeys::USE_ADVANCED_SETTINGS, true}, {SaveKeys::USE_MANUAL_BRIGHTNESS, true}},
         &HotkeyProcessor::manual_automatic_toggle_hotkey_pressed, {"manual_colors(false)", "manual_brightness(false)"}},
        {{{SaveKeys::USE_ADVANCED_SETTINGS, false}, {SaveKeys::OVRA_MODE, 1}}, &HotkeyProcessor::manual_automatic_toggle_hotkey_pressed, {"mode(2,false)"}},
        {{{SaveKeys::USE_ADVANCED_SETTINGS, false}, {SaveKeys::OVRA_MODE, 3}}, &HotkeyProcessor::manual_automatic_toggle_hotkey_pressed, {"mode(1,false)"}},
        {{}, &HotkeyProcessor::start_overlay_screen_hotkey_pressed, {"overlay(true)"}},
        {{}, &HotkeyProcessor::end_overlay_screen_hotkey_pressed, {"overlay(false)"}},
        {{}, &HotkeyProcessor::start_rest_hotkey_pressed, {"start_rest"}},
        {{}, &HotkeyProcessor::quit_ovra_hotkey_pressed, {"quit"}},
        {{}, &HotkeyProcessor::zoom_in_hotkey_pressed, {}},
    };
    for (const auto& row : rows) {
        log.clear();
        for (const auto& [key, value] : row.stored)
            set(key, value);
        (processor.get()->*row.press)();
        EXPECT_EQ(log, row.expected) << log.join(' ').toStdString();
    }
    EXPECT_TRUE(settings[SaveKeys::USE_COLOR_EFFECTS].toBool());
    EXPECT_FALSE(settings[SaveKeys::IS_TIMER_PAUSED].toBool());

    log.clear();
    actions->overlay_open = true;
    processor->start_overlay_screen_hotkey_pressed();
    EXPECT_EQ(log, QStringList{"select_area"});
}

TEST_F(Hotkeys, ThePageEditsTheCombinationOfAnIndex)
{
    set(SaveKeys::INCREASE_BRIGHTNESS_HOTKEY, "Ctrl+Alt+PgUp");
    processor->shortcut_changed(3, "Ctrl+Shift+B");
    EXPECT_EQ(settings[SaveKeys::INCREASE_BRIGHTNESS_HOTKEY].toString(), "Ctrl+Shift+B");
    EXPECT_EQ(processor->hotkey(3)->shortcut(), QKeySequence("Ctrl+Shift+B"));
    const QVariantList values = processor->get_shortcuts_values();
    ASSERT_EQ(values.size(), 15);
    EXPECT_EQ(values[0].toString(), "");
    EXPECT_EQ(values[3].toString(), "Ctrl+Shift+B");

    // A modifier alone, as the recorder sends it, silences the hotkey.
    processor->shortcut_changed(3, "Ctrl+");
    EXPECT_TRUE(processor->hotkey(3)->shortcut().isEmpty());

    const size_t keys = settings.size();
    processor->shortcut_changed(0, "Ctrl+Q");
    processor->shortcut_changed(15, "Ctrl+Q");
    EXPECT_EQ(settings.size(), keys);
}

} // namespace
