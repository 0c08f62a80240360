// Types, modes and the advanced view on the controller, with a recording
// display: what each writes into the map, what reaches the display at the
// end of its fade, and what the page is told.
#include <gtest/gtest.h>

#include <QSettings>
#include <QStringList>

#include "ControllerFixture.h"

namespace {

using namespace controller_test;

// One row of the type table: the six values, inversion and the screen keys.
struct TypeRow
{
    int type;
    int day_temperature, night_temperature, sleep_light;
    int day_brightness, night_brightness, sleep_brightness;
    bool inverted;
    bool color_effects;
    bool overlay;
    bool lightness;
};

const TypeRow TYPE_TABLE[] = {
    {1, 5000, 3400, 2700, 100, 80, 75, false, false, false, false},
    {2, 0, 0, 0, 100, 80, 75, false, false, false, false},
    {3, 5000, 3400, 2700, 100, 80, 75, false, true, false, false},
    {4, 5000, 3400, 2700, 100, 80, 75, true, false, false, false},
    {5, 0, 0, 0, 100, 80, 75, true, false, false, false},
    {6, 6500, 6500, 6500, 100, 75, 65, false, false, false, false},
    {7, 5000, 3400, 2700, 100, 80, 75, false, false, false, true},
    {8, 6500, 6500, 6500, 120, 120, 120, false, false, false, false},
    {9, 6500, 6500, 6500, 100, 100, 100, false, false, true, false},
    // Custom and unknown numbers write the base values and leave effects,
    // screens and inversion as they were.
    {0, 5000, 3400, 2700, 100, 80, 75, true, true, true, true},
    {10, 5000, 3400, 2700, 100, 80, 75, true, true, true, true},
    {42, 5000, 3400, 2700, 100, 80, 75, true, true, true, true},
};

class Types : public ControllerTest
{
protected:
    // Starts with values no type has, every screen, effect and the inversion
    // on, and colour changes paused, so that a type has something to change.
    void start_custom()
    {
        store_values["DayTemperature"] = 4100;
        store_values["NightTemperature"] = 2300;
        store_values["SleepLight"] = 1900;
        store_values["DayBrightness"] = 90;
        store_values["NightBrightness"] = 60;
        store_values["SleepBrightness"] = 50;
        store_values["UseColorEffects"] = true;
        store_values["ColorEffect"] = 5;
        store_values["UseOverlayScreen"] = true;
        store_values["UseLightnessScreen"] = true;
        store_values["UseInvertedColors"] = true;
        store_values["ColorChangesPaused"] = true;
        store_values["LightnessScreenOpacity"] = 70;
        store_values["DayOpacity"] = 20;
        store_values["OvraType"] = 0;
        start();
        connect_page();
    }

    void connect_page()
    {
        page = std::make_unique<PageLog>(
            window.get(), QStringList{"set_ovra_type_dropdown_value_ui", "set_ovra_mode_dropdown_value_ui",
                                      "set_use_advanced_settings", "set_timer_type_dropdown_value",
                                      "set_strictness_value"});
    }

    QStringList told() const { return page->entries; }

    // The page answers the plain dropdown signals by calling the _force
    // slots with force true.
    void connect_answering_page()
    {
        QObject::connect(window.get(), &MainWindow::set_ovra_type_dropdown_value,
                         [this](int v) { window->ovra_type_changed_force(v, true); });
        QObject::connect(window.get(), &MainWindow::set_ovra_mode_dropdown_value,
                         [this](int v) { window->ovra_mode_changed_force(v, true); });
    }

    int number(const char* key) const { return stored(key).toInt(); }
    bool flag(const char* key) const { return stored(key).toBool(); }

    std::unique_ptr<PageLog> page;
};

TEST_F(Types, EachTypeWritesItsRowClearsThePauseAndFadesToItsNightValues)
{
    for (const TypeRow& row : TYPE_TABLE) {
        SCOPED_TRACE(row.type);
        start_custom();
        ASSERT_TRUE(flag("ColorChangesPaused"));
        factory.calls.clear();

        window->ovra_type_changed(row.type);

        EXPECT_EQ(number("OvraType"), row.type);
        EXPECT_FALSE(flag("ColorChangesPaused"));
        EXPECT_EQ(number("DayTemperature"), row.day_temperature);
        EXPECT_EQ(number("NightTemperature"), row.night_temperature);
        EXPECT_EQ(number("SleepLight"), row.sleep_light);
        EXPECT_EQ(number("DayBrightness"), row.day_brightness);
        EXPECT_EQ(number("NightBrightness"), row.night_brightness);
        EXPECT_EQ(number("SleepBrightness"), row.sleep_brightness);
        EXPECT_EQ(flag("UseColorEffects"), row.color_effects);
        EXPECT_EQ(flag("UseOverlayScreen"), row.overlay);
        EXPECT_EQ(flag("UseLightnessScreen"), row.lightness);
        EXPECT_EQ(flag("UseInvertedColors"), row.inverted);
        EXPECT_EQ(told().last(), QString("set_ovra_type_dropdown_value_ui=%1").arg(row.type));

        finish_all_fades();
        const auto w = writes();
        ASSERT_FALSE(w.empty());
        // Manual values at noon: the night column is on the display.
        EXPECT_EQ(w.back().temperature, row.night_temperature);
        EXPECT_NEAR(w.back().brightness, row.night_brightness / 100.0, 1e-5);
        EXPECT_EQ(w.back().inverted, row.inverted);

        TearDown();
        SetUp();
    }
}

TEST_F(Types, AChosenTypeFadesInFortyStepsFromWhereTheDisplayStands)
{
    start_settled();
    window->ovra_type_changed(6);
    ASSERT_TRUE(window->fade_state(RETURN).active);
    EXPECT_TRUE(writes().empty()) << "the fade writes, from its timer";
    EXPECT_EQ(finish_fade(RETURN, &MainWindow::return_colors_timeout), 41);
    // From 3400 K and 80 % to Sunglasses' 6500 K and 75 %.
    expect_fade(writes(), 40, 3400, 77.5f, 80, -0.125f);
}

TEST_F(Types, TheStoredTypeFromThePageDoesNothingTheTrayReapplies)
{
    store_values["OvraType"] = 6;
    start();
    connect_page();
    window->settings["NightTemperature"] = 2000;

    window->ovra_type_changed_force(6, false);
    EXPECT_EQ(number("NightTemperature"), 2000);
    EXPECT_TRUE(told().isEmpty());

    window->ovra_type_changed_force(6, true);
    EXPECT_EQ(number("NightTemperature"), 6500);

    window->settings["NightTemperature"] = 2000;
    window->ovra_type_changed(6);
    EXPECT_EQ(number("NightTemperature"), 6500);

    window->ovra_type_changed_force(1, false);
    EXPECT_EQ(number("NightTemperature"), 3400);
    EXPECT_EQ(told(), QStringList({"set_ovra_type_dropdown_value_ui=6", "set_ovra_type_dropdown_value_ui=6",
                                   "set_ovra_type_dropdown_value_ui=1"}));
}

TEST_F(Types, HealthAfterProgrammingSwitchesInversionOff)
{
    start();
    finish_all_fades();
    window->ovra_type_changed(4);
    finish_all_fades();
    ASSERT_TRUE(flag("UseInvertedColors"));
    ASSERT_TRUE(writes().back().inverted);

    window->ovra_type_changed(1);
    finish_all_fades();
    EXPECT_FALSE(flag("UseInvertedColors"));
    EXPECT_FALSE(writes().back().inverted);
    EXPECT_EQ(writes().back().temperature, 3400);
    EXPECT_EQ(number("DayTemperature"), 5000);
    EXPECT_EQ(number("NightBrightness"), 80);
}

// ---------------------------------------------------------------- modes

using Modes = Types;

TEST_F(Modes, ChangeModeCyclesManualPausedAutomaticAndTheDisplayFollows)
{
    store_values["UseManualColorSettings"] = false;
    store_values["UseManualBrightness"] = false;
    store_values["OvraMode"] = 1;
    store_values["DayTemperature"] = 6000;
    store_values["DayBrightness"] = 95;
    store_values["NightTemperature"] = 2700;
    store_values["NightBrightness"] = 70;
    store_values["UseSleepLight"] = false;
    start();
    connect_page();
    finish_all_fades();
    ASSERT_EQ(writes().back().temperature, 6000) << "noon on the clock curve is day";

    // Manual holds the night values at noon; Paused keeps the switches and
    // rests on the saved ramps; Automatic gives the curve back.
    const struct
    {
        int mode;
        bool manual, paused;
        int temperature, brightness;
    } steps[] = {{2, true, false, 2700, 70}, {3, true, true, 0, 0}, {1, false, false, 6000, 95}};
    for (const auto& step : steps) {
        SCOPED_TRACE(step.mode);
        window->change_mode();
        EXPECT_EQ(number("OvraMode"), step.mode);
        EXPECT_EQ(flag("UseManualColorSettings"), step.manual);
        EXPECT_EQ(flag("UseManualBrightness"), step.manual);
        EXPECT_EQ(flag("OvraPaused"), step.paused);
        finish_all_fades();
        if (step.paused) {
            EXPECT_EQ(factory.calls.back().what, "restore");
        } else {
            EXPECT_EQ(writes().back().temperature, step.temperature);
            EXPECT_NEAR(writes().back().brightness, step.brightness / 100.0, 1e-5);
        }
    }
    EXPECT_EQ(told(), QStringList({"set_ovra_mode_dropdown_value_ui=2", "set_ovra_mode_dropdown_value_ui=3",
                                   "set_ovra_mode_dropdown_value_ui=1"}));
}

TEST_F(Modes, CustomCyclesToAutomaticAnUnknownModeStoresOnlyItsNumber)
{
    store_values["OvraMode"] = 0;
    start();
    window->change_mode();
    EXPECT_EQ(number("OvraMode"), 1);
    EXPECT_FALSE(flag("UseManualColorSettings"));

    window->settings["UseManualColorSettings"] = true;
    window->ovra_mode_changed(7);
    EXPECT_EQ(number("OvraMode"), 7);
    EXPECT_TRUE(flag("UseManualColorSettings"));
    EXPECT_FALSE(flag("UseManualBrightness"));
    EXPECT_FALSE(flag("OvraPaused"));

    // The stored mode from the page does nothing.
    window->settings["UseManualBrightness"] = true;
    window->ovra_mode_changed_force(7, false);
    EXPECT_TRUE(flag("UseManualBrightness"));
}

// ---------------------------------------------------------------- views

using AdvancedView = Types;

TEST_F(AdvancedView, EnteringCopiesTheShadowsAndTellsThePage)
{
    store_values["AdvancedNightTemperature"] = 2300;
    store_values["AdvancedNightBrightness"] = 55;
    store_values["AdvancedUseColorEffects"] = true;
    store_values["AdvancedLightnessScreenXposition"] = 12;
    store_values["ColorChangesPaused"] = true;
    start();
    connect_page();
    PageLog sliders(window.get(), {"set_night_temperature_slider_value"});

    window->use_advanced_settings_changed(true, 0, 0);
    EXPECT_TRUE(flag("AdvancedView"));
    EXPECT_FALSE(flag("ColorChangesPaused"));
    EXPECT_EQ(number("NightTemperature"), 2300);
    EXPECT_EQ(number("NightBrightness"), 55);
    EXPECT_TRUE(flag("UseColorEffects"));
    EXPECT_EQ(number("LightnessScreenXPosition"), 12);
    EXPECT_EQ(sliders.entries, QStringList({"set_night_temperature_slider_value=2300"}));
    EXPECT_EQ(told(), QStringList({"set_use_advanced_settings=true"}));
    // The view is written to the store at once.
    EXPECT_TRUE(save_manager->store()->value("AdvancedView").toBool());

    // The same view again applies again but does not echo.
    window->use_advanced_settings_changed(true);
    EXPECT_EQ(sliders.entries.size(), 2);
    EXPECT_EQ(told(), QStringList({"set_use_advanced_settings=true"}));
}

TEST_F(AdvancedView, LeavingReappliesTheTypeAndTheShadowsKeepTheUsersValues)
{
    store_values["OvraType"] = 6;
    store_values["OvraMode"] = 2;
    start();
    connect_page();
    connect_answering_page();

    window->use_advanced_settings_changed(true, 0, 0);
    window->night_temperature_changed(2300, 0);
    window->night_brightness_changed(55, 0);
    EXPECT_EQ(number("AdvancedNightTemperature"), 2300);
    EXPECT_EQ(number("AdvancedNightBrightness"), 55);

    window->use_advanced_settings_changed(false, 0, 0);
    EXPECT_FALSE(flag("AdvancedView"));
    EXPECT_EQ(number("NightTemperature"), 6500);
    EXPECT_EQ(number("NightBrightness"), 75);
    EXPECT_EQ(number("AdvancedNightTemperature"), 2300);
    EXPECT_EQ(number("AdvancedNightBrightness"), 55);
    EXPECT_TRUE(told().contains("set_ovra_type_dropdown_value_ui=6"));
    EXPECT_TRUE(told().contains("set_ovra_mode_dropdown_value_ui=2"));
    EXPECT_EQ(told().last(), "set_use_advanced_settings=false");

    window->use_advanced_settings_changed(true, 0, 0);
    EXPECT_EQ(number("NightTemperature"), 2300);
    EXPECT_EQ(number("NightBrightness"), 55);
}

TEST_F(AdvancedView, ASizeIsTakenOnlyWhenBothSidesArePositive)
{
    start();
    const QSize before = window->settings_window_size();
    window->use_advanced_settings_changed(true, 700);
    EXPECT_EQ(window->settings_window_size(), before);
    window->use_advanced_settings_changed(true, 700, 600);
    EXPECT_EQ(window->settings_window_size(), QSize(700, 600));
}

// ---------------------------------------------------------------- timer type

using TimerType = Types;

TEST_F(TimerType, AChangeStoresPausesForOffAndTellsThePageTwice)
{
    store_values["TimerType"] = 2;
    store_values["TimerPaused"] = false;
    start();
    connect_page();

    window->timer_type_changed(2);
    EXPECT_TRUE(told().isEmpty());

    window->timer_type_changed(1);
    EXPECT_EQ(number("TimerType"), 1);
    EXPECT_TRUE(flag("TimerPaused"));
    EXPECT_TRUE(save_manager->store()->value("TimerPaused").toBool());

    window->timer_type_changed(3);
    EXPECT_FALSE(flag("TimerPaused"));
    EXPECT_EQ(told(), QStringList({"set_timer_type_dropdown_value=1", "set_strictness_value=1",
                                   "set_timer_type_dropdown_value=3", "set_strictness_value=3"}));
}

} // namespace
