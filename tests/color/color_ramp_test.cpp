#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "color/ColorRamp.h"

// Expected values below are worked out from the rows of the white-point
// tables (written here as literals) and from the arithmetic of the fill:
// entry = truncate(float(x / 65535 * brightness * w) * 65535).

TEST(ColorRamp, WhitePointsOfShiftedReadsUnknownSchemesAndTableEnds)
{
    struct Case
    {
        int scheme, leading, temperature;
        float w[3];
    };
    const Case cases[] = {
        // Leading colour 2: red reads green, green blue, blue red of the next
        // row, so 6500 K is no longer neutral; 3 reads two places on. Both
        // interpolate between the shifted reads.
        {1, 2, 3400, {0.76888303f, 0.52427322f, 1.0f}},
        {1, 2, 6500, {1.0f, 1.0f, 0.98947904f}},
        {1, 2, 6550, {0.996743615f, 1.0f, 0.98444176f}},
        {1, 3, 3400, {0.52427322f, 1.0f, 0.77987699f}},
        // Groot takes only blue away below neutral; unknown schemes select
        // the first table.
        {4, 1, 3400, {1.0f, 1.0f, 0.76888303f}},
        {7, 1, 3400, {1.0f, 0.76888303f, 0.52427322f}},
        {0, 1, 3400, {1.0f, 0.76888303f, 0.52427322f}},
        // The last rows read exactly; beyond them the last full row holds,
        // for the shifted reads too.
        {1, 1, 25100, {0.62740336f, 0.75282962f, 1.0f}},
        {1, 1, 25150, {0.62740336f, 0.75282962f, 1.0f}},
        {2, 1, 9950, {(0.6000f + 0.5944f) / 2, (0.7453f + 0.7414f) / 2, 1.0f}},
        {2, 1, 10050, {0.5944f, 0.7414f, 1.0f}},
        {3, 1, 12000, {0.6989f, 0.8133f, 1.0f}},
        {1, 2, 25100, {0.75282962f, 1.0f, 0.62740336f}},
        {1, 3, 25100, {1.0f, 0.62740336f, 0.75282962f}},
        {2, 3, 10099, {1.0f, 0.5944f, 0.7414f}},
    };
    for (const Case& c : cases) {
        ColorRamp ramp;
        ramp.set_color_scheme(2); // a scheme left over must not stick
        ramp.set_color_scheme(c.scheme);
        ramp.set_leading_color(c.leading);
        float w[3];
        ramp.white_point(c.temperature, w);
        for (int k = 0; k < 3; ++k)
            EXPECT_NEAR(w[k], c.w[k], 1e-7) << c.temperature << " K, scheme " << c.scheme << ", leading "
                                            << c.leading << ", channel " << k;
    }
}

TEST(ColorRamp, WhitePointKeepsItsFloatSteps)
{
    // One row in each scheme, between table rows. The fraction of the row is
    // held as a float and the second row's share is a float product, the
    // rest is double: the results below, worked out apart from this code with
    // that rounding, differ in the last bit from an all-double computation.
    struct Case
    {
        int temperature, scheme;
        float w[3];
    };
    const Case cases[] = {
        {1017, 1, {1.0f, 0.194189772f, 0.0f}},
        {5389, 2, {1.0f, 0.875914037f, 0.726606011f}},
        {2345, 3, {1.0f, 0.687265038f, 0.395480007f}},
        {7777, 4, {0.893026829f, 0.932574928f, 1.0f}},
        {12345, 1, {0.730948508f, 0.825022757f, 1.0f}},
    };
    for (const Case& c : cases) {
        ColorRamp ramp;
        ramp.set_color_scheme(c.scheme);
        float w[3];
        ramp.white_point(c.temperature, w);
        for (int k = 0; k < 3; ++k)
            EXPECT_EQ(w[k], c.w[k]) << c.temperature << " K, scheme " << c.scheme << ", channel " << k;
    }
}

TEST(ColorRamp, OneEntryThroughTheFill)
{
    // `tolerance` 0 rows were picked, apart from this code, where moving one
    // step of the fill (scale in double, power held as a float, product with
    // 65535 in float, truncation) to the other precision changes the result.
    struct Case
    {
        int temperature, scheme, leading;
        float brightness;
        float gamma[3];
        unsigned short in[3], out[3];
        int tolerance;
    };
    const Case cases[] = {
        {3400, 1, 1, 1.0f, {1, 1, 1}, {65535, 65535, 65535}, {65535, 50388, 34358}, 0},
        {3400, 1, 1, 0.8f, {1, 1, 1}, {65535, 65535, 65535}, {52428, 40311, 27487}, 1},
        {3400, 1, 1, 0.8f, {1, 1, 1}, {32896, 32896, 32896}, {26316, 20234, 13797}, 1},
        {1000, 1, 1, 1.0f, {1, 1, 1}, {65520, 65520, 65520}, {65520, 11906, 0}, 1},
        {6500, 1, 2, 1.0f, {1, 1, 1}, {65535, 65535, 65535}, {65535, 65535, 64845}, 0},
        {3400, 1, 3, 1.0f, {1, 1, 1}, {65535, 65535, 65535}, {34358, 65535, 51109}, 0},
        {12000, 3, 1, 1.0f, {1, 1, 1}, {65535, 65535, 65535}, {45802, 53299, 65535}, 0},
        // Above full brightness the entry holds at 65535 instead of wrapping.
        {6500, 1, 1, 1.5f, {1, 1, 1}, {50000, 65535, 20000}, {65535, 65535, 30000}, 0},
        // Exponents 2 (square root) and .5 (square) stay in the path.
        {6500, 1, 1, 0.25f, {2, 1, 0.5f}, {65535, 65535, 65535}, {32767, 16383, 4095}, 0},
        {13068, 1, 3, 0.90f, {1, 1, 1}, {22260, 22260, 22260}, {20033, 14353, 16329}, 0},
        {2676, 3, 1, 0.75f, {1, 1, 1}, {44892, 44892, 44892}, {33669, 24193, 14928}, 0},
        {24953, 4, 3, 0.75f, {1, 1, 1}, {54120, 54120, 54120}, {40590, 25472, 30561}, 0},
        {9862, 3, 1, 0.60f, {1, 1, 1}, {48821, 48821, 48821}, {20691, 23970, 29292}, 0},
        {15355, 4, 1, 0.90f, {1, 1, 1}, {58422, 58422, 58422}, {36130, 41790, 52579}, 0},
        {7573, 4, 1, 1.00f, {1, 1, 1}, {23582, 23582, 23582}, {21384, 22200, 23582}, 0},
        {5389, 2, 1, 0.60f, {1, 1, 1}, {43772, 43772, 43772}, {26263, 23004, 19083}, 0},
        {1812, 3, 1, 0.90f, {1, 1, 1}, {17890, 17890, 17890}, {16100, 10211, 5156}, 0},
        {6868, 1, 1, 0.90f, {1, 1, 1}, {17850, 17850, 17850}, {15477, 15699, 16065}, 0},
    };
    for (const Case& c : cases) {
        ColorRamp ramp;
        ramp.set_color_scheme(c.scheme);
        ramp.set_leading_color(c.leading);
        ColorSettings s{c.temperature, {c.gamma[0], c.gamma[1], c.gamma[2]}, c.brightness};
        unsigned short e[3] = {c.in[0], c.in[1], c.in[2]};
        ramp.color_ramp_fill(&e[0], &e[1], &e[2], 1, &s);
        for (int k = 0; k < 3; ++k)
            EXPECT_NEAR(e[k], c.out[k], c.tolerance) << c.temperature << " K, channel " << k;
    }
}

TEST(ColorRamp, NeutralPointLeavesRampsAlone)
{
    ColorRamp ramp;
    std::vector<unsigned short> r(65536), g(65536), b(65536);
    for (int j = 0; j < 65536; ++j)
        r[j] = g[j] = b[j] = static_cast<unsigned short>(j);
    ColorSettings s{6500};
    ramp.color_ramp_fill(r.data(), g.data(), b.data(), 65536, &s);
    int changed = 0;
    for (int j = 0; j < 65536; ++j) {
        ASSERT_LE(std::abs(r[j] - j), 1) << j;
        ASSERT_TRUE(r[j] == g[j] && r[j] == b[j]) << j;
        changed += r[j] != j;
    }
    EXPECT_EQ(r[65535], 65535);
    // Only the last bit of rounding may differ, and not on most entries.
    EXPECT_LT(changed, 65536 / 2);
}

TEST(ColorRamp, FloatRampsHaveNoLimitAndNoScale)
{
    ColorRamp ramp;
    float r = 1.0f, g = 1.0f, b = 0.5f;
    ColorSettings s{3400, {1, 1, 1}, 0.5f};
    ramp.color_ramp_fill_float(&r, &g, &b, 1, &s);
    EXPECT_NEAR(r, 0.5f, 1e-7);
    EXPECT_NEAR(g, 0.5f * 0.76888303f, 1e-7);
    EXPECT_NEAR(b, 0.25f * 0.52427322f, 1e-7);
    r = 1.0f;
    s = {6500, {1, 1, 1}, 2.0f};
    ramp.color_ramp_fill_float(&r, &g, &b, 1, &s);
    EXPECT_FLOAT_EQ(r, 2.0f);
}

TEST(ColorRamp, XformrgbUsesTheUpperFourRows)
{
    float m[5][5] = {{1, 2, 3, 100, 100}, {4, 5, 6, 100, 100}, {7, 8, 9, 100, 100}, {10, 20, 30, 100, 100},
                     {100, 100, 100, 100, 100}};
    float r = 0, g = 0, b = 0;
    xformrgb(m, 1.0f, 0.5f, 0.25f, &r, &g, &b);
    EXPECT_FLOAT_EQ(r, 1 + 2 + 1.75f + 10);
    EXPECT_FLOAT_EQ(g, 2 + 2.5f + 2 + 20);
    EXPECT_FLOAT_EQ(b, 3 + 3 + 2.25f + 30);
}

TEST(ColorRamp, AnAbsurdLeadingColourStaysInsideTheTable)
{
    // Far past either end, every read holds at a row of the table.
    for (int leading : {2147483647, -2147483647}) {
        ColorRamp ramp;
        ramp.set_leading_color(leading);
        float w[3];
        ramp.white_point(3400, w);
        for (float v : w) {
            EXPECT_GE(v, leading > 0 ? 0.62740336f : 0.0f) << leading;
            EXPECT_LE(v, 1.0f) << leading;
        }
    }
}
