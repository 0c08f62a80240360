// The change handlers of scheme, leading colour, preserved calibration and
// pause length: what they store, what reaches the backend, what they report.
#include <gtest/gtest.h>

#include "ControllerFixture.h"
#include "color/ColorRamp.h"

using namespace controller_test;

namespace {

class ColorSlots : public ControllerTest
{
protected:
    void start_settled()
    {
        start();
        finish_all_fades();
        factory.calls.clear();
    }

    std::vector<float> white_point(int kelvin)
    {
        float w[3] = {0, 0, 0};
        window->gamma_backend()->get_color_ramp()->white_point(kelvin, w);
        return {w[0], w[1], w[2]};
    }
};

TEST_F(ColorSlots, SchemeIsStoredAppliedAtOnceAndReportedOnce)
{
    start_settled();
    std::vector<int> reported;
    QObject::connect(window.get(), &MainWindow::set_color_scheme_dropdown_value,
                     [&](int v) { reported.push_back(v); });

    window->color_scheme_changed(2);
    EXPECT_EQ(stored("ColorScheme").toInt(), 2);
    // The second table's row of 3400 K: red 1, green .5650, blue .2335.
    const auto w = white_point(3400);
    EXPECT_FLOAT_EQ(w[0], 1.0f);
    EXPECT_NEAR(w[1], .5650f, 1e-6);
    EXPECT_NEAR(w[2], .2335f, 1e-6);
    ASSERT_EQ(writes().size(), 1u) << "the new scheme shows at once, not at the next tick";

    window->color_scheme_changed(2);
    EXPECT_EQ(reported, std::vector<int>({2}));
    EXPECT_EQ(writes().size(), 1u);
}

TEST_F(ColorSlots, LeadingColourShiftsWhereTheChannelsRead)
{
    start_settled();
    window->leading_color_changed(2);
    EXPECT_EQ(stored("LeadingColor").toInt(), 2);
    // With blue leading, blue reads the red of the next row: 6600 K's red.
    const auto w = white_point(6500);
    EXPECT_FLOAT_EQ(w[0], 1.0f);
    EXPECT_FLOAT_EQ(w[1], 1.0f);
    EXPECT_NEAR(w[2], .98947904f, 1e-6);
    EXPECT_EQ(writes().size(), 1u);
}

TEST_F(ColorSlots, TurningPreserveOffDropsTheCalibrationInTheBackend)
{
    start_settled();
    ASSERT_TRUE(window->gamma_backend()->is_gamma_preserved());
    bool reported = true;
    QObject::connect(window.get(), &MainWindow::set_preserve_gamma,
                     [&](bool v) { reported = v; });

    window->preserve_gamma_changed(false);
    EXPECT_FALSE(stored("PreserveGamma").toBool());
    EXPECT_FALSE(reported);
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
    EXPECT_EQ(factory.calls.back().what, "restore");
}

} // namespace
