// The colour values, their switches and curve settings on the controller:
// which keys a slot writes (plain or per monitor, with the shadow), when the
// display is written, and what the page is told.
#include <gtest/gtest.h>

#include "ControllerFixture.h"

namespace {

using namespace controller_test;

class Values : public ControllerTest
{
protected:
    int number(const char* key) const { return stored(key).toInt(); }
};

// One change from the page: made twice, the second time changes nothing.
struct SlotCase
{
    std::function<void(MainWindow&)> change;
    QStringList keys; // "Key=value" as the map holds them afterwards
    const char* signal;
    const char* shown;
    bool applied;        // the display is written at once, before the page hears
    bool reported;       // the day's times go to the page again
    int shows_temperature = 0;
};

const SlotCase SLOT_CASES[] = {
    // With the curve in charge at noon the new day value is on the display.
    {[](MainWindow& w) {
         w.settings["UseManualColorSettings"] = false;
         w.day_temperature_changed(4000, 0);
     },
     {"DayTemperature=4000", "AdvancedDayTemperature=4000"},
     "set_day_temperature_slider_value_ui", "4000", true, false, 4000},
    {[](MainWindow& w) { w.night_temperature_changed(2900, 0); },
     {"NightTemperature=2900", "AdvancedNightTemperature=2900"},
     "set_night_temperature_slider_value_ui", "2900", true, false, 2900},
    // The page's sleep slider at 100 sends 100 * 65.
    {[](MainWindow& w) { w.sleep_light_changed(6500, 0); }, {"SleepLight=6500", "AdvancedSleepLight=6500"},
     "set_sleep_light_slider_value_ui", "6500", true, false},
    {[](MainWindow& w) { w.day_brightness_changed(90, 0); },
     {"DayBrightness=90", "AdvancedDayBrightness=90"}, "set_day_brightness_slider_value_ui", "90", true, false},
    {[](MainWindow& w) { w.night_brightness_changed(70, 0); },
     {"NightBrightness=70", "AdvancedNightBrightness=70"}, "set_night_brightness_slider_value_ui", "70", true,
     false},
    {[](MainWindow& w) { w.sleep_brightness_changed(60, 0); },
     {"SleepBrightness=60", "AdvancedSleepBrightness=60"}, "set_sleep_brightness_slider_value_ui", "60", true,
     false},
    {[](MainWindow& w) { w.use_manual_color_settings_changed(false); },
     {"UseManualColorSettings=false", "AdvancedUseManualColorSettings=false"},
     "set_use_manual_color_settings", "false", true, false},
    {[](MainWindow& w) { w.use_manual_brightness_changed(false); },
     {"UseManualBrightness=false", "AdvancedUseManualBrightness=false"}, "set_use_manual_brightness", "false",
     true, false},
    {[](MainWindow& w) { w.use_sleep_light_changed(false); },
     {"UseSleepLight=false", "AdvancedUseSleepLight=false"}, "set_use_sleep_light", "false", true, false},
    // The page's ranges only.
    {[](MainWindow& w) { w.temperature_extended_values_changed(true); }, {"UseTemperatureExtendedValues=true"},
     "set_temperature_extended_values", "true", false, false},
    {[](MainWindow& w) { w.brightness_extended_values_changed(true); }, {"UseBrightnessExtendedValues=true"},
     "set_brightness_extended_values", "true", false, false},
    // The curve's times: the next tick picks them up, the report at once.
    {[](MainWindow& w) { w.day_transition_duration_changed(1800); }, {"DayTransitionDuration=1800"},
     "set_day_transition_duration_value", "1800", false, true},
    {[](MainWindow& w) { w.night_transition_duration_changed(600); }, {"NightTransitionDuration=600"},
     "set_night_transition_duration_value", "600", false, true},
    {[](MainWindow& w) { w.sleep_transition_duration_changed(0); }, {"SleepTransitionDuration=0"},
     "set_sleep_transition_duration_value", "0", false, true},
    {[](MainWindow& w) { w.time_zone_offset_changed(2); }, {"TimeZoneOffset=2"}, "set_time_zone_offset_value",
     "2", false, true},
    {[](MainWindow& w) { w.new_moon_offset_changed(60); }, {"NewMoonOffset=60"}, "set_new_moon_offset_value",
     "60", false, true},
    {[](MainWindow& w) { w.full_moon_offset_changed(120); }, {"FullMoonOffset=120"},
     "set_full_moon_offset_value", "120", false, true},
    {[](MainWindow& w) { w.night_start_time_changed(20, 45); },
     {"NightStartTimeHours=20", "NightStartTimeMinutes=45"}, "set_night_start_time_value", "20:45", false, true},
    {[](MainWindow& w) { w.night_end_time_changed(6, 30); }, {"NightEndTimeHours=6", "NightEndTimeMinutes=30"},
     "set_night_end_time_value", "6:30", false, true},
    {[](MainWindow& w) { w.bedtime_changed(23, 15); }, {"BedtimeHours=23", "BedtimeMinutes=15"},
     "set_bedtime_value", "23:15", false, true},
    {[](MainWindow& w) { w.wake_time_changed(7, 5); }, {"WakeTimeHours=7", "WakeTimeMinutes=5"},
     "set_wake_time_value", "7:5", false, true},
};

TEST_F(Values, EachSlotStoresAppliesAndTellsThePageOnce)
{
    for (const SlotCase& row : SLOT_CASES) {
        SCOPED_TRACE(row.signal);
        store_values["NightStartTimeHours"] = 20;
        store_values["NightStartTimeMinutes"] = 0;
        start_settled();
        PageLog page(window.get(), {row.signal});
        PageLog reports(window.get(), {"set_transition_times_info", "set_moon_phases_info"});
        size_t writes_when_shown = 99;
        page.on_entry = [&] { writes_when_shown = writes().size(); };

        row.change(*window);
        row.change(*window);
        EXPECT_EQ(page.entries, QStringList(QString(row.signal) + '=' + row.shown));
        for (const QString& pair : row.keys)
            EXPECT_EQ(stored(qPrintable(pair.section('=', 0, 0))).toString(), pair.section('=', 1)) << qPrintable(pair);
        EXPECT_EQ(writes().size(), row.applied ? 1u : 0u);
        EXPECT_EQ(writes_when_shown, writes().size()) << "the display first, then the page";
        EXPECT_EQ(reports.entries.size(), row.reported ? 2 : 0);
        if (row.shows_temperature) {
            EXPECT_EQ(writes().back().temperature, row.shows_temperature);
        }
        TearDown();
        SetUp();
    }
}

TEST_F(Values, AMonitorsValueLivesUnderItsOwnKeys)
{
    store_values["DayTemperature"] = 5000;
    store_values["AdvancedDayTemperature"] = 5000;
    start_settled();
    window->day_temperature_changed(4100, 2);
    EXPECT_EQ(number("DayTemperature2"), 4100);
    EXPECT_EQ(number("AdvancedDayTemperature2"), 4100);
    EXPECT_EQ(number("DayTemperature"), 5000);
    EXPECT_EQ(number("AdvancedDayTemperature"), 5000);

    window->night_brightness_changed(65, 1);
    EXPECT_EQ(number("NightBrightness1"), 65);
    EXPECT_EQ(number("AdvancedNightBrightness1"), 65);
    EXPECT_EQ(number("NightBrightness"), 80);

    EXPECT_EQ(window->get_day_temperature(2), 4100);
    EXPECT_EQ(window->get_day_temperature(0), 5000);
    EXPECT_EQ(window->get_night_brightness(1), 65);
}

// A monitor plugged in later has no values of its own: it takes the shared
// ones, never 0 K and 0 %.
TEST_F(Values, AMonitorWithoutValuesTakesTheSharedOnes)
{
    store_values["SleepLight"] = 3000;
    store_values["UsePerMonitorSettings"] = true;
    start_settled();
    EXPECT_EQ(window->get_day_temperature(7), window->get_day_temperature(0));
    EXPECT_EQ(window->get_night_temperature(7), window->get_night_temperature(0));
    EXPECT_EQ(window->get_sleep_temperature(7), 3000);
    EXPECT_EQ(window->get_day_brightness(7), window->get_day_brightness(0));
    EXPECT_EQ(window->get_night_brightness(7), window->get_night_brightness(0));
    EXPECT_EQ(window->get_sleep_brightness(7), window->get_sleep_brightness(0));
    EXPECT_GT(window->get_interpolated_color_temperature(7), 1000.0f);
    EXPECT_GT(window->get_interpolated_brightness(7), 10.0f);
}

TEST_F(Values, AutoBrightnessSetsDayAndNightAndLeavesSleep)
{
    store_values["DayBrightness"] = 90;
    store_values["NightBrightness"] = 80;
    store_values["SleepBrightness"] = 70;
    start_settled();
    PageLog page(window.get(), {"set_day_brightness_slider_value_ui", "set_night_brightness_slider_value_ui",
                                "set_day_brightness_slider_value", "set_night_brightness_slider_value"});

    // Equal to the day value only: the day slot returns at once.
    window->auto_brightness_changed(90);
    EXPECT_EQ(number("DayBrightness"), 90);
    EXPECT_EQ(number("NightBrightness"), 90);
    EXPECT_EQ(number("SleepBrightness"), 70);
    EXPECT_EQ(page.entries, QStringList({"set_night_brightness_slider_value_ui=90",
                                         "set_day_brightness_slider_value=90",
                                         "set_night_brightness_slider_value=90"}));

    page.entries.clear();
    factory.calls.clear();
    window->auto_brightness_changed(90);
    EXPECT_TRUE(page.entries.isEmpty());
    EXPECT_TRUE(factory.calls.empty());
}

TEST_F(Values, PerMonitorSwitchWritesEachMonitorFromItsOwnKeys)
{
    store_values["NightTemperature1"] = 4500;
    store_values["NightBrightness1"] = 90;
    MainWindow::screen_count_override = 1;
    start_settled();
    PageLog page(window.get(), {"set_use_per_monitor_settings"});
    window->use_per_monitor_settings_changed(true);
    EXPECT_TRUE(stored("UsePerMonitorSettings").toBool());
    EXPECT_FALSE(stored("AdvancedUsePerMonitorSettings").isValid());
    ASSERT_EQ(writes().size(), 1u);
    EXPECT_EQ(writes()[0].monitor, 1);
    EXPECT_EQ(writes()[0].temperature, 4500);
    EXPECT_EQ(page.entries, QStringList({"set_use_per_monitor_settings=true"}));
}

TEST_F(Values, TheActiveMonitorsValuesThenTheSharedStateGoToThePage)
{
    const std::pair<const char*, const char*> shown[] = {
        {"DayTemperature2", "set_day_temperature_slider_value=4200"},
        {"NightTemperature2", "set_night_temperature_slider_value=3300"},
        {"SleepLight2", "set_sleep_light_slider_value=2500"},
        {"DayBrightness2", "set_day_brightness_slider_value=95"},
        {"NightBrightness2", "set_night_brightness_slider_value=85"},
        {"SleepBrightness2", "set_sleep_brightness_slider_value=75"},
        {"UseManualColorSettings", "set_use_manual_color_settings=true"},
        {"UseManualBrightness", "set_use_manual_brightness=true"},
        {"UseSleepLight", "set_use_sleep_light=false"},
        {"UseColorEffects", "set_use_color_effects=true"},
        {"ColorEffect", "set_color_effect_dropdown_value=3"},
        {"UseOverlayScreen", "set_use_overlay_screen=true"},
        {"DayOpacity", "set_day_opacity_slider_value=6"},
        {"NightOpacity", "set_night_opacity_slider_value=41"},
        {"DayDim", "set_day_dim_slider_value=2"},
        {"NightDim", "set_night_dim_slider_value=11"},
        {"UseLightnessScreen", "set_use_lightness_screen=false"},
        {"LightnessScreenOpacity", "set_lightness_screen_opacity_slider_value=31"},
        {"LightnessScreenRadius", "set_lightness_screen_radius_slider_value=32"},
        {"LightnessScreenXPosition", "set_lightness_screen_x_position_slider_value=51"},
        {"LightnessScreenYPosition", "set_lightness_screen_y_position_slider_value=52"},
    };
    QStringList expected;
    for (const auto& [key, entry] : shown) {
        store_values[key] = QString(entry).section('=', 1);
        expected << entry;
    }
    store_values["DayTemperature"] = 6100;
    MainWindow::screen_count_override = 2;
    start_settled();
    PageLog page(window.get());

    window->current_active_monitor_changed(2);
    EXPECT_EQ(window->current_monitor, 2);
    EXPECT_EQ(page.entries, expected);

    page.entries.clear();
    window->current_active_monitor_changed(0);
    ASSERT_FALSE(page.entries.isEmpty());
    EXPECT_EQ(page.entries[0], "set_day_temperature_slider_value=6100");
}

// The repairs themselves are the store's; the controller must let it see
// every monitor.
TEST_F(Values, OutOfRangeValuesAreRepairedForEveryMonitor)
{
    store_values["NightTemperature"] = 10001;
    store_values["NightTemperature1"] = 10001;
    MainWindow::screen_count_override = 1;
    start();
    EXPECT_EQ(number("NightTemperature"), 4400);
    EXPECT_EQ(number("NightTemperature1"), 4400);
}

} // namespace
