#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "color/ColorRamp.h"
#include "color/CrtcRampBuilder.h"

TEST(CrtcRampBuilder, BrightnessBelowFivePercentNeverReachesTheDisplay)
{
    const struct
    {
        int temperature;
        float brightness;
        bool reaches;
    } cases[] = {{3400, 0.049f, false}, {3400, 0.05f, true}, {3400, 0.0f, false}, {-1, 1.0f, false}, {0, 1.0f, true}};
    for (const auto& c : cases) {
        const ColorSettings s{c.temperature, {1, 1, 1}, c.brightness};
        EXPECT_EQ(CrtcRampBuilder::reaches_display(&s), c.reaches) << c.temperature << " K, " << c.brightness;
    }
}

TEST(CrtcRampBuilder, LinearAndInvertedCurvesDivideBySize)
{
    // 65535 * 255 / 256 = 65279.004: the linear curve stays below 65535.
    const auto linear = CrtcRampBuilder::fill_linear;
    const auto inverted = CrtcRampBuilder::fill_inverted;
    const struct
    {
        void (*fill)(uint16_t*, unsigned int);
        unsigned int size, index;
        uint16_t expected;
    } cases[] = {{linear, 256, 0, 0},         {linear, 256, 1, 255},     {linear, 256, 128, 32767},
                 {linear, 256, 255, 65279},   {inverted, 256, 0, 65535}, {inverted, 256, 1, 65279},
                 {inverted, 256, 128, 32767}, {inverted, 256, 255, 255}, {linear, 3, 1, 21845},
                 {linear, 3, 2, 43690}};
    for (const auto& c : cases) {
        std::vector<uint16_t> ramp(c.size);
        c.fill(ramp.data(), c.size);
        EXPECT_EQ(ramp[c.index], c.expected) << (c.fill == linear ? "linear " : "inverted ") << c.index << "/" << c.size;
    }
}

TEST(CrtcRampBuilder, PreservedRampsCarryTheTint)
{
    ColorRamp color_ramp;
    // A calibration another tool loaded: different curves per channel.
    const uint16_t saved[12] = {0, 20000, 40000, 65535, 0, 10000, 30000, 60000, 1000, 2000, 3000, 65535};
    uint16_t block[12];
    ColorSettings s{3400, {1, 1, 1}, 1.0f};
    CrtcRampBuilder::build(&color_ramp, &s, true, false, saved, 4, block);
    // Red keeps full strength; green 30000 and 60000 * .76888303 = 23066.5
    // and 46132.98; blue 65535 * .52427322 = 34358.75.
    EXPECT_NEAR(block[1], 20000, 1);
    EXPECT_EQ(block[3], 65535);
    EXPECT_NEAR(block[6], 23066, 1);
    EXPECT_NEAR(block[7], 46132, 1);
    EXPECT_EQ(block[11], 34358);
}

TEST(CrtcRampBuilder, LinearOrInvertedBaseReplacesTheSavedRamps)
{
    ColorRamp color_ramp;
    const unsigned size = 256;
    std::vector<uint16_t> block(3 * size);
    // Without preserve: half of the linear curve's 65279 and 32767.
    const std::vector<uint16_t> saved(3 * size, 12345);
    ColorSettings s{6500, {1, 1, 1}, 0.5f};
    CrtcRampBuilder::build(&color_ramp, &s, false, false, saved.data(), size, block.data());
    EXPECT_NEAR(block[255], 32639, 1);
    EXPECT_NEAR(block[size + 255], 32639, 1);
    EXPECT_NEAR(block[2 * size + 128], 16383, 1);
    // Inversion replaces even preserved ramps; the tint acts on top of it.
    s = {3400, {1, 1, 1}, 1.0f};
    CrtcRampBuilder::build(&color_ramp, &s, true, true, saved.data(), size, block.data());
    EXPECT_EQ(block[0], 65535);
    EXPECT_EQ(block[size], 50388);     // .76888303 * 65535
    EXPECT_EQ(block[2 * size], 34358); // .52427322 * 65535
    for (int c = 0; c < 3; ++c)
        EXPECT_LE(block[c * size + 255], 256) << c;
}
