// The colour values, their switches and curve settings on the controller:
// which keys a slot writes (plain or per monitor, with the shadow), when the
// display is written, and what the page is told.
#include <gtest/gtest.h>

#include <QStringList>

#include "ControllerFixture.h"

namespace {

using namespace controller_test;

QString text_of(int value)
{
    return QString::number(value);
}

QString text_of(bool value)
{
    return QString::fromLatin1(value ? "true" : "false");
}

class Values : public ControllerTest
{
protected:
    void start_quiet()
    {
        start();
        finish_all_fades();
        factory.calls.clear();
    }

    template <class Signal>
    void record(Signal signal, const char* name)
    {
        QObject::connect(window.get(), signal, [this, name](auto v) {
            page << QString("%1=%2").arg(QLatin1String(name), text_of(v));
        });
    }

    void record_pair(void (MainWindow::*signal)(int, int), const char* name)
    {
        QObject::connect(window.get(), signal, [this, name](int h, int m) {
            page << QString("%1=%2:%3").arg(QLatin1String(name)).arg(h).arg(m);
        });
    }

    int number(const char* key) const { return stored(key).toInt(); }
    bool flag(const char* key) const { return stored(key).toBool(); }

    QStringList page;
};

TEST_F(Values, TheSameTemperatureTwiceRunsTheDisplayOnce)
{
    start_quiet();
    record(&MainWindow::set_day_temperature_slider_value_ui, "day_t_ui");
    window->settings["UseManualColorSettings"] = false;
    window->day_temperature_changed(4000, 0);
    window->day_temperature_changed(4000, 0);
    EXPECT_EQ(writes().size(), 1u);
    EXPECT_EQ(number("DayTemperature"), 4000);
    EXPECT_EQ(number("AdvancedDayTemperature"), 4000);
    EXPECT_EQ(page, QStringList({"day_t_ui=4000"}));
    // Noon on the clock curve with the curve in charge: the new day value.
    EXPECT_EQ(writes().back().temperature, 4000);
}

TEST_F(Values, AMonitorsValueLivesUnderItsOwnKeys)
{
    store_values["DayTemperature"] = 5000;
    store_values["AdvancedDayTemperature"] = 5000;
    start_quiet();
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
    start_quiet();
    EXPECT_EQ(window->get_day_temperature(7), window->get_day_temperature(0));
    EXPECT_EQ(window->get_night_temperature(7), window->get_night_temperature(0));
    EXPECT_EQ(window->get_sleep_temperature(7), 3000);
    EXPECT_EQ(window->get_day_brightness(7), window->get_day_brightness(0));
    EXPECT_EQ(window->get_night_brightness(7), window->get_night_brightness(0));
    EXPECT_EQ(window->get_sleep_brightness(7), window->get_sleep_brightness(0));
    EXPECT_GT(window->get_interpolated_color_temperature(7), 1000.0f);
    EXPECT_GT(window->get_interpolated_brightness(7), 10.0f);
}

TEST_F(Values, EachValueSlotWritesItsKeyAndShadowAndShowsIt)
{
    start_quiet();
    record(&MainWindow::set_night_temperature_slider_value_ui, "night_t_ui");
    record(&MainWindow::set_sleep_light_slider_value_ui, "sleep_t_ui");
    record(&MainWindow::set_day_brightness_slider_value_ui, "day_b_ui");
    record(&MainWindow::set_night_brightness_slider_value_ui, "night_b_ui");
    record(&MainWindow::set_sleep_brightness_slider_value_ui, "sleep_b_ui");

    window->night_temperature_changed(2900, 0);
    // The page's sleep slider at 100 sends 100 * 65.
    window->sleep_light_changed(6500, 0);
    window->day_brightness_changed(90, 0);
    window->night_brightness_changed(70, 0);
    window->sleep_brightness_changed(60, 0);

    EXPECT_EQ(page, QStringList({"night_t_ui=2900", "sleep_t_ui=6500", "day_b_ui=90",
                                 "night_b_ui=70", "sleep_b_ui=60"}));
    EXPECT_EQ(number("AdvancedNightTemperature"), 2900);
    EXPECT_EQ(number("SleepLight"), 6500);
    EXPECT_EQ(number("AdvancedSleepLight"), 6500);
    EXPECT_EQ(number("AdvancedDayBrightness"), 90);
    EXPECT_EQ(number("AdvancedNightBrightness"), 70);
    EXPECT_EQ(number("AdvancedSleepBrightness"), 60);
    // Manual values: the night pair is what the display shows.
    EXPECT_EQ(writes().back().temperature, 2900);
    EXPECT_NEAR(writes().back().brightness, 0.70, 1e-5);
}

TEST_F(Values, AutoBrightnessSetsDayAndNightAndLeavesSleep)
{
    store_values["DayBrightness"] = 90;
    store_values["NightBrightness"] = 80;
    store_values["SleepBrightness"] = 70;
    start_quiet();
    record(&MainWindow::set_day_brightness_slider_value_ui, "day_b_ui");
    record(&MainWindow::set_night_brightness_slider_value_ui, "night_b_ui");
    record(&MainWindow::set_day_brightness_slider_value, "day_b");
    record(&MainWindow::set_night_brightness_slider_value, "night_b");

    // Equal to the day value only: the day slot returns at once.
    window->auto_brightness_changed(90);
    EXPECT_EQ(number("DayBrightness"), 90);
    EXPECT_EQ(number("NightBrightness"), 90);
    EXPECT_EQ(number("SleepBrightness"), 70);
    EXPECT_EQ(page, QStringList({"night_b_ui=90", "day_b=90", "night_b=90"}));

    page.clear();
    factory.calls.clear();
    window->auto_brightness_changed(90);
    EXPECT_TRUE(page.isEmpty());
    EXPECT_TRUE(factory.calls.empty());
}

TEST_F(Values, ManualSwitchesCopyToTheirShadowAndWriteTheDisplayBeforeTheSignal)
{
    start_quiet();
    size_t writes_at_signal = 0;
    QObject::connect(window.get(), &MainWindow::set_use_manual_color_settings,
                     [&](bool) { writes_at_signal = writes().size(); });
    record(&MainWindow::set_use_manual_color_settings, "manual_t");
    record(&MainWindow::set_use_manual_brightness, "manual_b");
    record(&MainWindow::set_use_sleep_light, "sleep");

    window->use_manual_color_settings_changed(true);
    EXPECT_TRUE(page.isEmpty()) << "already true in the store";

    window->use_manual_color_settings_changed(false);
    EXPECT_EQ(writes_at_signal, 1u);
    EXPECT_FALSE(flag("UseManualColorSettings"));
    EXPECT_FALSE(flag("AdvancedUseManualColorSettings"));
    window->use_manual_brightness_changed(false);
    EXPECT_FALSE(flag("AdvancedUseManualBrightness"));
    window->use_sleep_light_changed(false);
    EXPECT_FALSE(flag("UseSleepLight"));
    EXPECT_FALSE(flag("AdvancedUseSleepLight"));
    EXPECT_EQ(page, QStringList({"manual_t=false", "manual_b=false", "sleep=false"}));
    EXPECT_EQ(writes().size(), 3u);
}

TEST_F(Values, PerMonitorSwitchWritesEachMonitorFromItsOwnKeys)
{
    store_values["NightTemperature1"] = 4500;
    store_values["NightBrightness1"] = 90;
    MainWindow::screen_count_override = 1;
    start_quiet();
    record(&MainWindow::set_use_per_monitor_settings, "per_monitor");
    window->use_per_monitor_settings_changed(true);
    EXPECT_TRUE(flag("UsePerMonitorSettings"));
    EXPECT_FALSE(stored("AdvancedUsePerMonitorSettings").isValid());
    ASSERT_EQ(writes().size(), 1u);
    EXPECT_EQ(writes()[0].monitor, 1);
    EXPECT_EQ(writes()[0].temperature, 4500);
    EXPECT_EQ(page, QStringList({"per_monitor=true"}));
}

TEST_F(Values, ExtendedRangesConcernThePageOnly)
{
    start_quiet();
    record(&MainWindow::set_temperature_extended_values, "t_ext");
    record(&MainWindow::set_brightness_extended_values, "b_ext");
    window->temperature_extended_values_changed(true);
    window->brightness_extended_values_changed(true);
    window->brightness_extended_values_changed(true);
    EXPECT_TRUE(flag("UseTemperatureExtendedValues"));
    EXPECT_TRUE(flag("UseBrightnessExtendedValues"));
    EXPECT_EQ(page, QStringList({"t_ext=true", "b_ext=true"}));
    EXPECT_TRUE(factory.calls.empty());
}

TEST_F(Values, DurationsAndOffsetsRefreshTheTimesReportNotTheDisplay)
{
    start_quiet();
    record(&MainWindow::set_day_transition_duration_value, "day_d");
    record(&MainWindow::set_night_transition_duration_value, "night_d");
    record(&MainWindow::set_sleep_transition_duration_value, "sleep_d");
    record(&MainWindow::set_time_zone_offset_value, "tz");
    record(&MainWindow::set_new_moon_offset_value, "new_moon");
    record(&MainWindow::set_full_moon_offset_value, "full_moon");
    QStringList reports;
    QObject::connect(window.get(), &MainWindow::set_transition_times_info,
                     [&](const QString& text) { reports << text; });
    int moon_reports = 0;
    QObject::connect(window.get(), &MainWindow::set_moon_phases_info,
                     [&](const QString&) { ++moon_reports; });

    window->day_transition_duration_changed(1800);
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports[0].contains(" Day transition duration - 30 min \n")) << reports[0].toStdString();
    window->day_transition_duration_changed(1800);
    window->night_transition_duration_changed(600);
    window->sleep_transition_duration_changed(0);
    window->time_zone_offset_changed(2);
    window->new_moon_offset_changed(60);
    window->full_moon_offset_changed(120);
    EXPECT_EQ(page, QStringList({"day_d=1800", "night_d=600", "sleep_d=0", "tz=2",
                                 "new_moon=60", "full_moon=120"}));
    EXPECT_EQ(number("DayTransitionDuration"), 1800);
    EXPECT_EQ(number("NightTransitionDuration"), 600);
    EXPECT_EQ(number("SleepTransitionDuration"), 0);
    EXPECT_EQ(number("TimeZoneOffset"), 2);
    EXPECT_EQ(number("NewMoonOffset"), 60);
    EXPECT_EQ(number("FullMoonOffset"), 120);
    EXPECT_EQ(reports.size(), 6);
    EXPECT_EQ(moon_reports, 6);
    EXPECT_TRUE(factory.calls.empty());
}

TEST_F(Values, TimePairsStoreBothNumbersAndTellThePage)
{
    store_values["NightStartTimeHours"] = 20;
    store_values["NightStartTimeMinutes"] = 0;
    start_quiet();
    record_pair(&MainWindow::set_night_start_time_value, "night_start");
    record_pair(&MainWindow::set_night_end_time_value, "night_end");
    record_pair(&MainWindow::set_bedtime_value, "bedtime");
    record_pair(&MainWindow::set_wake_time_value, "wake");
    int reports = 0;
    QObject::connect(window.get(), &MainWindow::set_transition_times_info,
                     [&](const QString&) { ++reports; });

    window->night_start_time_changed(20, 0);
    EXPECT_TRUE(page.isEmpty());
    window->night_start_time_changed(20, 45);
    window->night_end_time_changed(6, 30);
    window->bedtime_changed(23, 15);
    window->wake_time_changed(7, 5);
    EXPECT_EQ(page, QStringList({"night_start=20:45", "night_end=6:30", "bedtime=23:15",
                                 "wake=7:5"}));
    EXPECT_EQ(number("NightStartTimeMinutes"), 45);
    EXPECT_EQ(number("NightEndTimeHours"), 6);
    EXPECT_EQ(number("NightEndTimeMinutes"), 30);
    EXPECT_EQ(number("BedtimeHours"), 23);
    EXPECT_EQ(number("BedtimeMinutes"), 15);
    EXPECT_EQ(number("WakeTimeHours"), 7);
    EXPECT_EQ(number("WakeTimeMinutes"), 5);
    EXPECT_EQ(reports, 4);
    EXPECT_TRUE(factory.calls.empty()) << "the next tick picks the curve up";
}

TEST_F(Values, TheActiveMonitorsValuesThenTheSharedStateGoToThePage)
{
    store_values["DayTemperature2"] = 4200;
    store_values["NightTemperature2"] = 3300;
    store_values["SleepLight2"] = 2500;
    store_values["DayBrightness2"] = 95;
    store_values["NightBrightness2"] = 85;
    store_values["SleepBrightness2"] = 75;
    store_values["DayTemperature"] = 6100;
    store_values["UseSleepLight"] = false;
    store_values["UseColorEffects"] = true;
    store_values["ColorEffect"] = 3;
    store_values["UseOverlayScreen"] = true;
    store_values["DayOpacity"] = 6;
    store_values["NightOpacity"] = 41;
    store_values["DayDim"] = 2;
    store_values["NightDim"] = 11;
    store_values["UseLightnessScreen"] = false;
    store_values["LightnessScreenOpacity"] = 31;
    store_values["LightnessScreenRadius"] = 32;
    store_values["LightnessScreenXPosition"] = 51;
    store_values["LightnessScreenYPosition"] = 52;
    MainWindow::screen_count_override = 2;
    start_quiet();
    record(&MainWindow::set_day_temperature_slider_value, "day_t");
    record(&MainWindow::set_night_temperature_slider_value, "night_t");
    record(&MainWindow::set_sleep_light_slider_value, "sleep_t");
    record(&MainWindow::set_day_brightness_slider_value, "day_b");
    record(&MainWindow::set_night_brightness_slider_value, "night_b");
    record(&MainWindow::set_sleep_brightness_slider_value, "sleep_b");
    record(&MainWindow::set_use_manual_color_settings, "manual_t");
    record(&MainWindow::set_use_manual_brightness, "manual_b");
    record(&MainWindow::set_use_sleep_light, "sleep");
    record(&MainWindow::set_use_color_effects, "effects");
    record(&MainWindow::set_color_effect_dropdown_value, "effect");
    record(&MainWindow::set_use_overlay_screen, "overlay");
    record(&MainWindow::set_day_opacity_slider_value, "day_opacity");
    record(&MainWindow::set_night_opacity_slider_value, "night_opacity");
    record(&MainWindow::set_day_dim_slider_value, "day_dim");
    record(&MainWindow::set_night_dim_slider_value, "night_dim");
    record(&MainWindow::set_use_lightness_screen, "lightness");
    record(&MainWindow::set_lightness_screen_opacity_slider_value, "l_opacity");
    record(&MainWindow::set_lightness_screen_radius_slider_value, "l_radius");
    record(&MainWindow::set_lightness_screen_x_position_slider_value, "l_x");
    record(&MainWindow::set_lightness_screen_y_position_slider_value, "l_y");

    window->current_active_monitor_changed(2);
    EXPECT_EQ(window->current_monitor, 2);
    EXPECT_EQ(page, QStringList({"day_t=4200", "night_t=3300", "sleep_t=2500", "day_b=95",
                                 "night_b=85", "sleep_b=75", "manual_t=true", "manual_b=true",
                                 "sleep=false", "effects=true", "effect=3", "overlay=true",
                                 "day_opacity=6", "night_opacity=41", "day_dim=2",
                                 "night_dim=11", "lightness=false", "l_opacity=31",
                                 "l_radius=32", "l_x=51", "l_y=52"}));

    page.clear();
    window->current_active_monitor_changed(0);
    ASSERT_FALSE(page.isEmpty());
    EXPECT_EQ(page[0], "day_t=6100");
}

TEST_F(Values, OutOfRangeValuesAreResetOnLoadPerMonitor)
{
    store_values["SleepLight"] = 10001;
    store_values["DayBrightness"] = 9;
    store_values["NightBrightness"] = 10;
    store_values["SleepBrightness"] = 150;
    store_values["DayTemperature"] = -1;
    store_values["NightTemperature"] = 10000;
    store_values["NightTemperature1"] = 10001;
    store_values["DayBrightness1"] = 151;
    store_values["SleepBrightness1"] = 0;
    MainWindow::screen_count_override = 1;
    start();
    EXPECT_EQ(number("SleepLight"), 3700);
    EXPECT_EQ(number("DayBrightness"), 100);
    EXPECT_EQ(number("NightBrightness"), 10);
    EXPECT_EQ(number("SleepBrightness"), 150);
    EXPECT_EQ(number("DayTemperature"), 6000);
    EXPECT_EQ(number("NightTemperature"), 10000);
    EXPECT_EQ(number("NightTemperature1"), 4400);
    EXPECT_EQ(number("DayBrightness1"), 100);
    EXPECT_EQ(number("SleepBrightness1"), 80);
}

} // namespace
