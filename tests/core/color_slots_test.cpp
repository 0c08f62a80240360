// The change handlers of scheme, leading colour, preserved calibration and
// pause length: what they store, what reaches the backend, what they report.
#include <gtest/gtest.h>

#include "ControllerFixture.h"
#include "color/ColorRamp.h"

using namespace controller_test;

namespace {

using ColorSlots = ControllerTest;

// Both choose how the white point is read, and show at once, not at the
// next tick.
TEST_F(ColorSlots, SchemeAndLeadingColourChangeTheWhitePointAtOnce)
{
    const struct
    {
        void (MainWindow::*change)(int);
        const char* key;
        const char* signal;
        int kelvin;
        float white[3];
    } cases[] = {
        // The second table's row of 3400 K.
        {&MainWindow::color_scheme_changed, "ColorScheme", "set_color_scheme_dropdown_value", 3400,
         {1.0f, .5650f, .2335f}},
        // With blue leading, blue reads the red of the next row: 6600 K's.
        {&MainWindow::leading_color_changed, "LeadingColor", "set_leading_color_dropdown_value", 6500,
         {1.0f, 1.0f, .98947904f}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.key);
        start_settled();
        PageLog page(window.get(), {c.signal});
        (window.get()->*c.change)(2);
        (window.get()->*c.change)(2);
        EXPECT_EQ(stored(c.key).toInt(), 2);
        EXPECT_EQ(page.entries, QStringList(QString(c.signal) + "=2"));
        EXPECT_EQ(writes().size(), 1u);
        float w[3] = {0, 0, 0};
        window->gamma_backend()->get_color_ramp()->white_point(c.kelvin, w);
        for (int i = 0; i < 3; ++i)
            EXPECT_NEAR(w[i], c.white[i], 1e-6) << i;
        TearDown();
        SetUp();
    }
}

TEST_F(ColorSlots, TurningPreserveOffDropsTheCalibrationInTheBackend)
{
    start_settled();
    ASSERT_TRUE(window->gamma_backend()->is_gamma_preserved());
    PageLog page(window.get(), {"set_preserve_gamma"});

    window->preserve_gamma_changed(false);
    EXPECT_FALSE(stored("PreserveGamma").toBool());
    EXPECT_EQ(page.entries, QStringList("set_preserve_gamma=false"));
    EXPECT_FALSE(window->gamma_backend()->is_gamma_preserved());
    ASSERT_FALSE(factory.calls.empty());
    EXPECT_EQ(factory.calls.front().what, "reset");
    EXPECT_EQ(factory.calls.back().what, "write");

    // Back on: stored and passed on, but nothing to reset.
    factory.calls.clear();
    window->preserve_gamma_changed(true);
    EXPECT_TRUE(window->gamma_backend()->is_gamma_preserved());
    for (const Call& c : factory.calls)
        EXPECT_NE(c.what, "reset");
}

TEST_F(ColorSlots, PauseLengthIsOnlyStoredAndTakesEffectAtTheNextFade)
{
    start_settled();
    window->pause_transition_duration_changed(500);
    EXPECT_EQ(stored("PauseTransitionDuration").toInt(), 500);
    EXPECT_TRUE(factory.calls.empty());

    window->pause_ovra(true);
    // 500 ms at 25 ms a step: 20 steps, one more tick to notice the end.
    EXPECT_EQ(finish_fade(RESTORE, &MainWindow::restore_colors_timeout), 21);
    EXPECT_EQ(writes().size(), 20u);
    expect_fade(writes(), 20, 3400, 155, 80, 1);
    EXPECT_EQ(factory.calls.back().what, "restore");
}

} // namespace
