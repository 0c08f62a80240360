// The pause and inversion fades that the tick tests leave out: pausing and
// resuming with inverted colours, the pause by watched applications, the
// fade to given values, the flip without a fade, and the window's own fade.
#include <gtest/gtest.h>

#include <QCoreApplication>

#include "ControllerFixture.h"
#include "app/SingleApplication.h"

using namespace controller_test;

namespace {

class PauseFades : public ControllerTest
{
protected:
    // Started, first fade done, backend log empty: 3400 K at 80 %.
    void start_settled()
    {
        start();
        finish_all_fades();
        factory.calls.clear();
    }
};

TEST_F(PauseFades, InvertedPauseDarkensFlipsOffAndComesUpToNeutral)
{
    store_values["UseInvertedColors"] = true;
    start_settled();
    ASSERT_TRUE(window->gamma_backend()->is_gamma_inverted());

    window->pause_ovra(true);
    EXPECT_FALSE(window->fade_state(RESTORE).active) << "the inverted form replaces the plain fade";
    ASSERT_TRUE(window->fade_state(SWITCH).active);
    // (100 - 3400) / 20 and (10 - 80) / 20.
    EXPECT_FLOAT_EQ(window->fade_state(SWITCH).temperature_step, -165.0f);
    EXPECT_FLOAT_EQ(window->fade_state(SWITCH).brightness_step, -3.5f);
    EXPECT_EQ(finish_fade(SWITCH, &MainWindow::switch_state_timeout), 21);
    auto w = writes();
    ASSERT_EQ(w.size(), 20u);
    for (size_t k = 0; k < w.size(); ++k) {
        EXPECT_EQ(w[k].temperature, 3400 - 165 * static_cast<int>(k + 1)) << k;
        EXPECT_TRUE(w[k].inverted) << "darkening happens with the inversion on";
    }

    ASSERT_TRUE(window->fade_state(SWITCH_RETURN).active);
    // The fixed steps towards neutral: (6500 - 100) / 20 and (100 - 10) / 20.
    EXPECT_FLOAT_EQ(window->fade_state(SWITCH_RETURN).temperature_step, 320.0f);
    EXPECT_FLOAT_EQ(window->fade_state(SWITCH_RETURN).brightness_step, 4.5f);
    factory.calls.clear();
    EXPECT_EQ(finish_fade(SWITCH_RETURN, &MainWindow::switch_state_return_timeout), 21);
    w = writes();
    ASSERT_EQ(w.size(), 20u);
    for (size_t k = 0; k < w.size(); ++k) {
        EXPECT_EQ(w[k].temperature, 100 + 320 * static_cast<int>(k + 1)) << k;
        EXPECT_NEAR(w[k].brightness, (10 + 4.5 * (k + 1)) / 100.0, 1e-5) << k;
        EXPECT_FALSE(w[k].inverted) << "the flip at the dark point turned it off";
    }
    // It rests on the saved ramps, as a plain pause does.
    EXPECT_EQ(factory.calls.back().what, "restore");
    // The stored choice is still inverted, and the backend flag follows it.
    EXPECT_TRUE(window->settings["UseInvertedColors"].toBool());
    EXPECT_TRUE(window->gamma_backend()->is_gamma_inverted());

    // Paused: the tick writes nothing.
    factory.calls.clear();
    window->update_gamma();
    EXPECT_TRUE(writes().empty());
}

TEST_F(PauseFades, InvertedPauseWithoutTheLowLevelApiKeepsTheInversionChoice)
{
    store_values["UseLowLevelColorApi"] = false;
    store_values["UseInvertedColors"] = true;
    start_settled();
    window->pause_ovra(true);
    finish_all_fades();
    EXPECT_TRUE(window->settings["UseInvertedColors"].toBool())
        << "pausing must not switch the user's inversion off";
    window->pause_ovra(false);
    EXPECT_TRUE(window->fade_state(SWITCH).active) << "the resume goes through the dark point";
}

TEST_F(PauseFades, InvertedResumeDarkensPlainAndComesUpInvertedToTheCurve)
{
    store_values["UseInvertedColors"] = true;
    store_values["OvraPaused"] = true;
    start_settled();

    window->pause_ovra(false);
    ASSERT_TRUE(window->fade_state(SWITCH).active);
    // From neutral: (100 - 6500) / 20 and (10 - 100) / 20.
    EXPECT_FLOAT_EQ(window->fade_state(SWITCH).temperature_step, -320.0f);
    EXPECT_FLOAT_EQ(window->fade_state(SWITCH).brightness_step, -4.5f);
    finish_fade(SWITCH, &MainWindow::switch_state_timeout);
    auto w = writes();
    ASSERT_EQ(w.size(), 20u);
    EXPECT_EQ(w[0].temperature, 6180);
    for (const Call& c : w)
        EXPECT_FALSE(c.inverted);

    // Up again towards 3400 K and 80 %: (3400 - 100) / 20 and (80 - 10) / 20.
    EXPECT_FLOAT_EQ(window->fade_state(SWITCH_RETURN).temperature_step, 165.0f);
    EXPECT_FLOAT_EQ(window->fade_state(SWITCH_RETURN).brightness_step, 3.5f);
    factory.calls.clear();
    finish_fade(SWITCH_RETURN, &MainWindow::switch_state_return_timeout);
    w = writes();
    ASSERT_EQ(w.size(), 21u) << "twenty fade steps, then the tick takes over";
    for (const Call& c : w)
        EXPECT_TRUE(c.inverted);
    EXPECT_EQ(w[0].temperature, 265);
    EXPECT_EQ(w.back().temperature, 3400);
    EXPECT_NEAR(w.back().brightness, 0.80f, 1e-6);
}

TEST_F(PauseFades, InvertingWhilePausedOnlyStoresAndSetsTheFlag)
{
    store_values["OvraPaused"] = true;
    start_settled();
    window->invert_colors();
    EXPECT_TRUE(window->settings["UseInvertedColors"].toBool());
    EXPECT_TRUE(window->gamma_backend()->is_gamma_inverted());
    EXPECT_FALSE(window->fade_state(SWITCH).active);
    EXPECT_TRUE(factory.calls.empty());
}

TEST_F(PauseFades, ToggleFlipsAtOnceWithoutAFade)
{
    start_settled();
    window->toggle_inverted_gamma();
    EXPECT_TRUE(window->settings["UseInvertedColors"].toBool());
    EXPECT_FALSE(window->fade_state(SWITCH).active);
    const auto w = writes();
    ASSERT_EQ(w.size(), 1u);
    EXPECT_TRUE(w[0].inverted);
    EXPECT_EQ(w[0].temperature, 3400);
}

TEST_F(PauseFades, WatchedApplicationPauseFadesAndTheUsersPauseWins)
{
    start_settled();
    window->pause_color_changes(true);
    ASSERT_TRUE(window->fade_state(RESTORE).active);
    EXPECT_TRUE(window->is_gamma_paused());
    finish_fade(RESTORE, &MainWindow::restore_colors_timeout);
    EXPECT_EQ(factory.calls.back().what, "restore");

    window->pause_color_changes(false);
    ASSERT_TRUE(window->fade_state(RETURN).active);
    EXPECT_FALSE(window->is_gamma_paused());
    finish_fade(RETURN, &MainWindow::return_colors_timeout);

    // With the user's own freeze set, the watcher neither pauses nor resumes.
    window->settings["ColorChangesPaused"] = true;
    factory.calls.clear();
    window->pause_color_changes(true);
    window->pause_color_changes(false);
    EXPECT_FALSE(window->fade_state(RESTORE).active);
    EXPECT_FALSE(window->fade_state(RETURN).active);
    EXPECT_TRUE(factory.calls.empty());
}

TEST_F(PauseFades, MoveToTakesFortyStepsToTheGivenValues)
{
    start_settled();
    window->move_to(5000, 90);
    ASSERT_TRUE(window->fade_state(RETURN).active);
    // (5000 - 3400) / 40 and (90 - 80) / 40.
    EXPECT_FLOAT_EQ(window->fade_state(RETURN).temperature_step, 40.0f);
    EXPECT_FLOAT_EQ(window->fade_state(RETURN).brightness_step, 0.25f);
    for (int i = 0; i < 40; ++i)
        window->return_colors_timeout();
    const auto w = writes();
    ASSERT_EQ(w.size(), 40u);
    EXPECT_EQ(w.back().temperature, 5000);
    EXPECT_NEAR(w.back().brightness, 0.90f, 1e-6);

    // Refused while paused.
    finish_fade(RETURN, &MainWindow::return_colors_timeout);
    window->pause_ovra(true);
    finish_fade(RESTORE, &MainWindow::restore_colors_timeout);
    window->move_to(5000, 90);
    EXPECT_FALSE(window->fade_state(RETURN).active);
}

TEST_F(PauseFades, PerMonitorPauseRestoresAtOnce)
{
    store_values["UsePerMonitorSettings"] = true;
    MainWindow::screen_count_override = 1;
    start_settled();
    window->pause_ovra(true);
    EXPECT_FALSE(window->fade_state(RESTORE).active);
    ASSERT_EQ(factory.calls.size(), 1u);
    EXPECT_EQ(factory.calls[0].what, "restore");
}

TEST_F(PauseFades, NoScreensInPerMonitorModeWritesNothing)
{
    store_values["UsePerMonitorSettings"] = true;
    MainWindow::screen_count_override = 0;
    start_settled();
    EXPECT_EQ(window->update_gamma(), 0);
    EXPECT_TRUE(writes().empty());
}

TEST_F(PauseFades, DayIsSixToEighteenOnTheClock)
{
    start_settled();
    clock.set(QDateTime(QDate(2026, 1, 5), QTime(5, 59), Qt::UTC));
    EXPECT_FALSE(window->is_day());
    clock.set(QDateTime(QDate(2026, 1, 5), QTime(6, 0), Qt::UTC));
    EXPECT_TRUE(window->is_day());
    clock.set(QDateTime(QDate(2026, 1, 5), QTime(17, 59), Qt::UTC));
    EXPECT_TRUE(window->is_day());
    clock.set(QDateTime(QDate(2026, 1, 5), QTime(18, 0), Qt::UTC));
    EXPECT_FALSE(window->is_day());
}

using ClosingDeathTest = PauseFades;

// Closing from the window needs the store; without it the program stops
// and says which object was missing.
TEST_F(ClosingDeathTest, WithoutTheStoreAborts)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    start_settled();
    delete save_manager;
    save_manager = nullptr;
    EXPECT_DEATH(window->close_clicked(), "Assertion failed: save_manager, file MainWindow");
    EXPECT_DEATH(window->save_and_close_clicked(), "Assertion failed: saveManager, file MainWindow");
}

TEST(LaunchWords, AreRewrittenAsALinkWouldSendThem)
{
    EXPECT_EQ(SingleApplication::rewrite_arguments({"/usr/bin/ovra", "ovra:some%20words-here"}),
              QStringList({"some words here"}));
    EXPECT_EQ(SingleApplication::rewrite_arguments({"/usr/bin/ovra", "--show_ui"}),
              QStringList({"  show_ui"}));
    // An empty first word is dropped before the first word is picked, and
    // only the first word is rewritten.
    EXPECT_EQ(SingleApplication::rewrite_arguments({"/usr/bin/ovra", "", "a-b", "c-d"}),
              QStringList({"a b", "c-d"}));
    EXPECT_EQ(SingleApplication::rewrite_arguments({"/usr/bin/ovra"}), QStringList());
    EXPECT_EQ(SingleApplication::rewrite_arguments({}), QStringList());
}

} // namespace
