#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "color/ColorRamp.h"
#include "color/CrtcRampBuilder.h"

namespace {

ColorSettings settings_of(int temperature, float brightness)
{
    ColorSettings s;
    s.temperature = temperature;
    s.brightness = brightness;
    return s;
}

} // namespace

TEST(CrtcRampBuilder, BrightnessBelowFivePercentNeverReachesTheDisplay)
{
    ColorSettings s = settings_of(3400, 0.049f);
    EXPECT_FALSE(CrtcRampBuilder::reaches_display(&s));
    s.brightness = 0.05f;
    EXPECT_TRUE(CrtcRampBuilder::reaches_display(&s));
    s.brightness = 0.0f;
    EXPECT_FALSE(CrtcRampBuilder::reaches_display(&s));
    s = settings_of(-1, 1.0f);
    EXPECT_FALSE(CrtcRampBuilder::reaches_display(&s));
    s = settings_of(0, 1.0f);
    EXPECT_TRUE(CrtcRampBuilder::reaches_display(&s));
}

TEST(CrtcRampBuilder, LinearCurveDividesBySize)
{
    std::vector<uint16_t> ramp(256);
    CrtcRampBuilder::fill_linear(ramp.data(), 256);
    EXPECT_EQ(ramp[0], 0);
    EXPECT_EQ(ramp[1], 255);     // 65535 / 256 = 255.996
    EXPECT_EQ(ramp[128], 32767); // 65535 / 2 = 32767.5
    EXPECT_EQ(ramp[255], 65279); // 65535 * 255 / 256 = 65279.004: stays below 65535

    std::vector<uint16_t> small(3);
    CrtcRampBuilder::fill_linear(small.data(), 3);
    EXPECT_EQ(small[1], 21845); // 65535 / 3
    EXPECT_EQ(small[2], 43690);
}

TEST(CrtcRampBuilder, InvertedCurveStartsAtTheTop)
{
    std::vector<uint16_t> ramp(256);
    CrtcRampBuilder::fill_inverted(ramp.data(), 256);
    EXPECT_EQ(ramp[0], 65535);
    EXPECT_EQ(ramp[1], 65279);
    EXPECT_EQ(ramp[128], 32767);
    EXPECT_EQ(ramp[255], 255);
}

TEST(CrtcRampBuilder, PreservedRampsCarryTheTint)
{
    ColorRamp color_ramp;
    const unsigned size = 4;
    // A calibration another tool loaded: different curves per channel.
    const uint16_t saved[12] = {0, 20000, 40000, 65535, 0, 10000, 30000, 60000, 1000, 2000, 3000, 65535};
    uint16_t block[12];
    ColorSettings s = settings_of(3400, 1.0f);
    CrtcRampBuilder::build(&color_ramp, &s, true, false, saved, size, block);
    // Red keeps full strength: the saved red comes back (within the last bit).
    EXPECT_NEAR(block[1], 20000, 1);
    EXPECT_EQ(block[3], 65535);
    // Green: 30000 * .76888303 = 23066.5; 60000 * .76888303 = 46132.98
    EXPECT_NEAR(block[6], 23066, 1);
    EXPECT_NEAR(block[7], 46132, 1);
    // Blue: 65535 * .52427322 = 34358.75
    EXPECT_EQ(block[11], 34358);
}

TEST(CrtcRampBuilder, WithoutPreserveTheLinearCurveIsTheBase)
{
    ColorRamp color_ramp;
    const unsigned size = 256;
    std::vector<uint16_t> saved(3 * size, 12345);
    std::vector<uint16_t> block(3 * size);
    ColorSettings s = settings_of(6500, 0.5f);
    CrtcRampBuilder::build(&color_ramp, &s, false, false, saved.data(), size, block.data());
    // Entry 255 of the linear curve is 65279; half of it is 32639.5.
    EXPECT_NEAR(block[255], 32639, 1);
    EXPECT_NEAR(block[size + 255], 32639, 1);
    EXPECT_NEAR(block[2 * size + 128], 16383, 1); // half of 32767
}

TEST(CrtcRampBuilder, InversionReplacesEvenPreservedRamps)
{
    ColorRamp color_ramp;
    const unsigned size = 256;
    std::vector<uint16_t> saved(3 * size, 1000);
    std::vector<uint16_t> block(3 * size);
    ColorSettings neutral = settings_of(6500, 1.0f);
    CrtcRampBuilder::build(&color_ramp, &neutral, true, true, saved.data(), size, block.data());
    for (int c = 0; c < 3; ++c) {
        EXPECT_EQ(block[c * size], 65535) << c;
        EXPECT_NEAR(block[c * size + 255], 255, 1) << c;
    }
    // Temperature and brightness act on top of the inversion.
    ColorSettings warm = settings_of(3400, 1.0f);
    CrtcRampBuilder::build(&color_ramp, &warm, true, true, saved.data(), size, block.data());
    EXPECT_EQ(block[0], 65535);
    EXPECT_EQ(block[size], 50388);     // .76888303 * 65535
    EXPECT_EQ(block[2 * size], 34358); // .52427322 * 65535
}
