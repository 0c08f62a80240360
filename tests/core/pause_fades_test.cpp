// The pause and inversion fades that the tick tests leave out: pausing and
// resuming with inverted colours, the pause by watched applications, the
// fade to given values, the flip without a fade, and the window's own fade.
#include <gtest/gtest.h>

#include <QCoreApplication>

#include <tuple>

#include "ControllerFixture.h"
#include "app/SingleApplication.h"

using namespace controller_test;

namespace {

// Most start settled at 3400 K and 80 %.
using PauseFades = ControllerTest;

TEST_F(PauseFades, InvertedPauseDarkensFlipsOffAndComesUpToNeutral)
{
    store_values["UseInvertedColors"] = true;
    start_settled();
    ASSERT_TRUE(window->gamma_backend()->is_gamma_inverted());

    window->pause_ovra(true);
    EXPECT_FALSE(window->fade_state(RESTORE).active) << "the inverted form replaces the plain fade";
    ASSERT_TRUE(window->fade_state(SWITCH).active);
    EXPECT_EQ(finish_fade(SWITCH, &MainWindow::switch_state_timeout), 21);
    ASSERT_EQ(writes().size(), 20u);
    expect_fade(writes(), 20, 3400, -165, 80, -3.5f);
    for (const Call& c : writes())
        EXPECT_TRUE(c.inverted) << "darkening happens with the inversion on";

    // Up to neutral with the inversion off.
    factory.calls.clear();
    EXPECT_EQ(finish_fade(SWITCH_RETURN, &MainWindow::switch_state_return_timeout), 21);
    ASSERT_EQ(writes().size(), 20u);
    expect_fade(writes(), 20, 100, 320, 10, 4.5f);
    for (const Call& c : writes())
        EXPECT_FALSE(c.inverted) << "the flip at the dark point turned it off";
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
    finish_fade(SWITCH, &MainWindow::switch_state_timeout);
    ASSERT_EQ(writes().size(), 20u);
    expect_fade(writes(), 20, 6500, -320, 100, -4.5f);
    for (const Call& c : writes())
        EXPECT_FALSE(c.inverted);

    factory.calls.clear();
    finish_fade(SWITCH_RETURN, &MainWindow::switch_state_return_timeout);
    ASSERT_EQ(writes().size(), 21u) << "twenty fade steps, then the tick takes over";
    expect_fade(writes(), 20, 100, 165, 10, 3.5f);
    EXPECT_EQ(writes().back().temperature, 3400);
    for (const Call& c : writes())
        EXPECT_TRUE(c.inverted);
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
    for (int i = 0; i < 40; ++i)
        window->return_colors_timeout();
    ASSERT_EQ(writes().size(), 40u);
    expect_fade(writes(), 40, 3400, 40, 80, 0.25f);

    // Refused while paused.
    finish_fade(RETURN, &MainWindow::return_colors_timeout);
    window->pause_ovra(true);
    finish_fade(RESTORE, &MainWindow::restore_colors_timeout);
    window->move_to(5000, 90);
    EXPECT_FALSE(window->fade_state(RETURN).active);
}

TEST_F(PauseFades, DayIsSixToEighteenOnTheClock)
{
    start_settled();
    for (const auto& [hour, minute, day] : {std::tuple{5, 59, false}, {6, 0, true}, {17, 59, true}, {18, 0, false}}) {
        clock.set(QDateTime(QDate(2026, 1, 5), QTime(hour, minute), Qt::UTC));
        EXPECT_EQ(window->is_day(), day) << hour << ":" << minute;
    }
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
