// The controller's colour road with a recording backend in place of the
// display: what reaches the "display", in which order, with which values.
#include <gtest/gtest.h>

#include "ControllerFixture.h"

namespace {

using namespace controller_test;

using Tick = ControllerTest;

TEST_F(Tick, PausedFromTheStartWritesNothing)
{
    store_values["OvraPaused"] = true;
    start();
    window->update_gamma();
    window->update_gamma();
    EXPECT_TRUE(factory.calls.empty());
    EXPECT_FALSE(window->fade_state(RETURN).active);
}

TEST_F(Tick, FirstUpdateFadesInFromNeutralThenTheTickWrites)
{
    start();
    ASSERT_TRUE(window->fade_state(RETURN).active);
    EXPECT_TRUE(writes().empty()) << "the fade alone writes, from its timer";
    const int ticks = finish_fade(RETURN, &MainWindow::return_colors_timeout);
    // 40 steps of -77.5 K; one more tick notices the target was passed.
    EXPECT_EQ(ticks, 41);
    const auto w = writes();
    ASSERT_GE(w.size(), 40u);
    EXPECT_EQ(w[0].temperature, 6422);
    EXPECT_FLOAT_EQ(w[0].brightness, 0.995f);
    EXPECT_EQ(w.back().temperature, 3400);
    EXPECT_NEAR(w.back().brightness, 0.80f, 1e-6);
}

TEST_F(Tick, PauseFadeTakesFortyStepsAndEndsOnTheSavedRamps)
{
    start();
    finish_fade(RETURN, &MainWindow::return_colors_timeout);
    factory.calls.clear();

    window->pause_ovra(true);
    ASSERT_TRUE(window->fade_state(RESTORE).active);
    EXPECT_FLOAT_EQ(window->fade_state(RESTORE).temperature_step, 77.5f);
    EXPECT_FLOAT_EQ(window->fade_state(RESTORE).brightness_step, 0.5f);
    const int ticks = finish_fade(RESTORE, &MainWindow::restore_colors_timeout);
    EXPECT_EQ(ticks, 41);
    const auto w = writes();
    ASSERT_EQ(w.size(), 40u);
    for (size_t k = 0; k < w.size(); ++k) {
        EXPECT_EQ(w[k].temperature, static_cast<int>(3400 + 77.5 * (k + 1))) << k;
        EXPECT_NEAR(w[k].brightness, (80 + 0.5 * (k + 1)) / 100.0, 1e-5) << k;
    }
    ASSERT_FALSE(factory.calls.empty());
    EXPECT_EQ(factory.calls.back().what, "restore");

    // Pausing twice changes nothing; the tick stays away while paused.
    factory.calls.clear();
    window->pause_ovra(true);
    window->update_gamma();
    EXPECT_TRUE(factory.calls.empty());
    EXPECT_FALSE(window->fade_state(RESTORE).active);
}

TEST_F(Tick, ResumeDuringAPauseTurnsRoundWhereItStands)
{
    start();
    finish_fade(RETURN, &MainWindow::return_colors_timeout);
    window->pause_ovra(true);
    for (int i = 0; i < 10; ++i)
        window->restore_colors_timeout();
    factory.calls.clear();

    window->pause_ovra(false);
    EXPECT_FALSE(window->fade_state(RESTORE).active);
    ASSERT_TRUE(window->fade_state(RETURN).active);
    // It starts at 3400 + 10 * 77.5 = 4175 K and 85 %, with steps counted
    // from neutral: (3400 - 6500) / 40 and (80 - 100) / 40.
    EXPECT_FLOAT_EQ(window->fade_state(RETURN).temperature, 4175.0f);
    EXPECT_FLOAT_EQ(window->fade_state(RETURN).temperature_step, -77.5f);
    EXPECT_FLOAT_EQ(window->fade_state(RETURN).brightness_step, -0.5f);
    window->return_colors_timeout();
    const auto w = writes();
    ASSERT_EQ(w.size(), 1u);
    EXPECT_EQ(w[0].temperature, 4097);
    EXPECT_NEAR(w[0].brightness, 0.845f, 1e-5);
    // Steps of a full fade from a start ten steps short of neutral: the
    // target is reached after ten of them, and one more tick ends the fade.
    EXPECT_EQ(finish_fade(RETURN, &MainWindow::return_colors_timeout), 10);
    EXPECT_EQ(writes().back().temperature, 3400);
}

TEST_F(Tick, ASettingChangedDuringAFadeWaitsForItsEnd)
{
    start();
    window->settings["NightTemperature"] = 2000;
    window->update_gamma();
    EXPECT_TRUE(writes().empty());
    finish_fade(RETURN, &MainWindow::return_colors_timeout);
    factory.calls.clear();
    window->update_gamma();
    ASSERT_EQ(writes().size(), 1u);
    EXPECT_EQ(writes()[0].temperature, 2000);
}

TEST_F(Tick, WithoutALocationTheClockDecides)
{
    store_values["UseManualColorSettings"] = false;
    store_values["UseManualBrightness"] = false;
    store_values["DayTemperature"] = 6000;
    store_values["DayBrightness"] = 95;
    store_values["NightStartTimeHours"] = 21;
    store_values["NightStartTimeMinutes"] = 0;
    store_values["NightEndTimeHours"] = 7;
    store_values["NightEndTimeMinutes"] = 0;
    store_values["UseManualNightDuration"] = false;
    store_values["UseSleepLight"] = false;
    start();
    ASSERT_EQ(window->latitude, -1.0);
    finish_fade(RETURN, &MainWindow::return_colors_timeout);
    factory.calls.clear();

    window->update_gamma();
    clock.set(QDateTime(QDate(2026, 6, 21), QTime(23, 30), Qt::UTC));
    window->update_gamma();
    const auto w = writes();
    ASSERT_EQ(w.size(), 2u);
    EXPECT_EQ(w[0].temperature, 6000);
    EXPECT_NEAR(w[0].brightness, 0.95f, 1e-6);
    EXPECT_EQ(w[1].temperature, 3400);
    EXPECT_NEAR(w[1].brightness, 0.80f, 1e-6);
}

TEST_F(Tick, PerMonitorModeWritesEachMonitorAndTheLastDecides)
{
    store_values["UsePerMonitorSettings"] = true;
    store_values["NightTemperature1"] = 5000;
    store_values["NightBrightness1"] = 90;
    store_values["NightTemperature2"] = 4000;
    store_values["NightBrightness2"] = 70;
    MainWindow::screen_count_override = 2;
    start();
    factory.calls.clear();
    window->update_gamma();
    MainWindow::screen_count_override = -1;
    const auto w = writes();
    ASSERT_EQ(w.size(), 2u);
    EXPECT_EQ(w[0].monitor, 1);
    EXPECT_EQ(w[0].temperature, 5000);
    EXPECT_EQ(w[1].monitor, 2);
    EXPECT_EQ(w[1].temperature, 4000);
    EXPECT_NEAR(w[1].brightness, 0.70f, 1e-6);
    EXPECT_EQ(window->current_temperature, 4000);
}

TEST_F(Tick, InversionDarkensFlipsAndComesBack)
{
    start();
    finish_fade(RETURN, &MainWindow::return_colors_timeout);
    factory.calls.clear();

    window->invert_colors();
    ASSERT_TRUE(window->fade_state(SWITCH).active);
    const int down = finish_fade(SWITCH, &MainWindow::switch_state_timeout);
    EXPECT_EQ(down, 21);
    auto w = writes();
    ASSERT_EQ(w.size(), 20u);
    EXPECT_EQ(w.back().temperature, 100);
    EXPECT_NEAR(w.back().brightness, 0.10f, 1e-5);
    for (const Call& c : w)
        EXPECT_FALSE(c.inverted) << "the flip happens at the dark point only";

    ASSERT_TRUE(window->fade_state(SWITCH_RETURN).active);
    factory.calls.clear();
    finish_fade(SWITCH_RETURN, &MainWindow::switch_state_return_timeout);
    w = writes();
    ASSERT_GE(w.size(), 20u);
    for (const Call& c : w)
        EXPECT_TRUE(c.inverted);
    EXPECT_EQ(w.back().temperature, 3400);
    EXPECT_TRUE(window->settings["UseInvertedColors"].toBool());

    // Reverting goes the same way back to plain colours.
    window->revert_colors();
    finish_fade(SWITCH, &MainWindow::switch_state_timeout);
    finish_fade(SWITCH_RETURN, &MainWindow::switch_state_return_timeout);
    EXPECT_FALSE(factory.calls.back().inverted);
    EXPECT_FALSE(window->settings["UseInvertedColors"].toBool());
}

TEST_F(Tick, ZeroDurationPauseEndsAtOnce)
{
    store_values["PauseTransitionDuration"] = 10;
    start();
    // The first update had no time to fade either: the tick wrote at once.
    EXPECT_FALSE(window->fade_state(RETURN).active);
    factory.calls.clear();
    window->pause_ovra(true);
    EXPECT_FALSE(window->fade_state(RESTORE).active);
    ASSERT_EQ(factory.calls.size(), 1u);
    EXPECT_EQ(factory.calls[0].what, "restore");
}

}  // namespace
