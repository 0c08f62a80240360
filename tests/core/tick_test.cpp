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
    // 40 steps of -77.5 K; one more tick notices the target was passed.
    EXPECT_EQ(finish_fade(RETURN, &MainWindow::return_colors_timeout), 41);
    expect_fade(writes(), 40, 6500, -77.5f, 100, -0.5f);
}

TEST_F(Tick, PauseFadeTakesFortyStepsAndEndsOnTheSavedRamps)
{
    start_settled();
    window->pause_ovra(true);
    ASSERT_TRUE(window->fade_state(RESTORE).active);
    EXPECT_EQ(finish_fade(RESTORE, &MainWindow::restore_colors_timeout), 41);
    ASSERT_EQ(writes().size(), 40u);
    expect_fade(writes(), 40, 3400, 77.5f, 80, 0.5f);
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
    start_settled();
    window->pause_ovra(true);
    for (int i = 0; i < 10; ++i)
        window->restore_colors_timeout();
    factory.calls.clear();

    window->pause_ovra(false);
    EXPECT_FALSE(window->fade_state(RESTORE).active);
    ASSERT_TRUE(window->fade_state(RETURN).active);
    // It starts at 3400 + 10 * 77.5 = 4175 K and 85 %, with the steps of a
    // full fade from neutral: the target is reached after ten of them, and
    // one more tick ends the fade.
    EXPECT_EQ(finish_fade(RETURN, &MainWindow::return_colors_timeout), 11);
    expect_fade(writes(), 10, 4175, -77.5f, 85, -0.5f);
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
    store_values["NightEndTimeHours"] = 7;
    store_values["UseSleepLight"] = false;
    start_settled();
    ASSERT_EQ(window->latitude, -1.0);

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
    start_settled();
    window->invert_colors();
    ASSERT_TRUE(window->fade_state(SWITCH).active);
    EXPECT_EQ(finish_fade(SWITCH, &MainWindow::switch_state_timeout), 21);
    ASSERT_EQ(writes().size(), 20u);
    expect_fade(writes(), 20, 3400, -165, 80, -3.5f);
    for (const Call& c : writes())
        EXPECT_FALSE(c.inverted) << "the flip happens at the dark point only";

    ASSERT_TRUE(window->fade_state(SWITCH_RETURN).active);
    factory.calls.clear();
    finish_fade(SWITCH_RETURN, &MainWindow::switch_state_return_timeout);
    expect_fade(writes(), 20, 100, 165, 10, 3.5f);
    for (const Call& c : writes())
        EXPECT_TRUE(c.inverted);
    EXPECT_TRUE(window->settings["UseInvertedColors"].toBool());

    // Reverting goes the same way back to plain colours.
    window->revert_colors();
    finish_fade(SWITCH, &MainWindow::switch_state_timeout);
    finish_fade(SWITCH_RETURN, &MainWindow::switch_state_return_timeout);
    EXPECT_FALSE(factory.calls.back().inverted);
    EXPECT_FALSE(window->settings["UseInvertedColors"].toBool());
}

// Pauses that have no time to fade, or several screens to fade apart, go
// straight to the saved ramps.
TEST_F(Tick, PausesWithoutAFadeRestoreAtOnce)
{
    const struct
    {
        const char* what;
        int duration, screens;
        bool per_monitor;
        size_t writes;
    } cases[] = {
        {"ten milliseconds", 10, -1, false, 1},
        {"per monitor", 1000, 1, true, 1},
        {"per monitor without screens", 1000, 0, true, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        store_values["PauseTransitionDuration"] = c.duration;
        store_values["UsePerMonitorSettings"] = c.per_monitor;
        MainWindow::screen_count_override = c.screens;
        start();
        if (c.duration < 25) {
            EXPECT_FALSE(window->fade_state(RETURN).active) << "no time to fade in either";
        }
        finish_all_fades();
        factory.calls.clear();
        EXPECT_EQ(window->update_gamma(), 0);
        EXPECT_EQ(writes().size(), c.writes) << "one a screen";
        factory.calls.clear();
        window->pause_ovra(true);
        EXPECT_FALSE(window->fade_state(RESTORE).active);
        ASSERT_EQ(factory.calls.size(), 1u);
        EXPECT_EQ(factory.calls[0].what, "restore");
        TearDown();
        SetUp();
    }
}

} // namespace
