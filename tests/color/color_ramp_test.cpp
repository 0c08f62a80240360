#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "color/ColorRamp.h"

// Expected values below are worked out from the rows of the white-point
// tables (written here as literals) and from the arithmetic of the fill:
// entry = truncate(float(x / 65535 * brightness * w) * 65535).

namespace {

ColorSettings settings_of(int temperature, float brightness = 1.0f)
{
    ColorSettings s;
    s.temperature = temperature;
    s.brightness = brightness;
    return s;
}

std::vector<float> white_point(ColorRamp& ramp, int temperature)
{
    std::vector<float> w(3);
    ramp.white_point(temperature, w.data());
    return w;
}

void expect_white_point(ColorRamp& ramp, int temperature, float r, float g, float b)
{
    const std::vector<float> w = white_point(ramp, temperature);
    EXPECT_NEAR(w[0], r, 1e-7) << temperature << " K, red";
    EXPECT_NEAR(w[1], g, 1e-7) << temperature << " K, green";
    EXPECT_NEAR(w[2], b, 1e-7) << temperature << " K, blue";
}

// One entry of 65535 in each ramp, so the result is truncate(w * 65535).
void fill_full(ColorRamp& ramp, int temperature, unsigned short out[3], float brightness = 1.0f)
{
    unsigned short r = 65535, g = 65535, b = 65535;
    ColorSettings s = settings_of(temperature, brightness);
    ramp.color_ramp_fill(&r, &g, &b, 1, &s);
    out[0] = r;
    out[1] = g;
    out[2] = b;
}

} // namespace

TEST(ColorRamp, RowOf3400KScalesEachChannel)
{
    ColorRamp ramp;
    unsigned short out[3];
    fill_full(ramp, 3400, out);
    // 1.0, .76888303, .52427322 times 65535 = 65535, 50388.75, 34358.75
    EXPECT_EQ(out[0], 65535);
    EXPECT_EQ(out[1], 50388);
    EXPECT_EQ(out[2], 34358);
}

TEST(ColorRamp, BrightnessMultipliesTheWhitePoint)
{
    ColorRamp ramp;
    const int size = 256;
    std::vector<unsigned short> r(size), g(size), b(size);
    for (int j = 0; j < size; ++j)
        r[j] = g[j] = b[j] = static_cast<unsigned short>(j * 257);
    ColorSettings s = settings_of(3400, 0.8f);
    ramp.color_ramp_fill(r.data(), g.data(), b.data(), size, &s);
    // Top entry: 0.8 * 0.76888303 * 65535 = 40311.0 (float rounding may land
    // just below), 0.8 * 0.52427322 * 65535 = 27487.0.
    EXPECT_EQ(r[255], 52428); // 0.8 * 65535 = 52428.0
    EXPECT_NEAR(g[255], 40311, 1);
    EXPECT_NEAR(b[255], 27487, 1);
    EXPECT_EQ(r[0], 0);
    // Entry 128 holds 32896: 32896 * 0.8 = 26316.8, times the green factor
    // 20234.0..., times the blue factor 13797.1...
    EXPECT_EQ(r[128], 26316);
    EXPECT_NEAR(g[128], 20234, 1);
    EXPECT_NEAR(b[128], 13797, 1);
}

TEST(ColorRamp, NeutralPointLeavesRampsAlone)
{
    ColorRamp ramp;
    std::vector<unsigned short> r(65536), g(65536), b(65536);
    for (int j = 0; j < 65536; ++j)
        r[j] = g[j] = b[j] = static_cast<unsigned short>(j);
    ColorSettings s = settings_of(6500);
    ramp.color_ramp_fill(r.data(), g.data(), b.data(), 65536, &s);
    int changed = 0;
    for (int j = 0; j < 65536; ++j) {
        ASSERT_LE(std::abs(r[j] - j), 1) << j;
        ASSERT_EQ(r[j], g[j]);
        ASSERT_EQ(r[j], b[j]);
        changed += r[j] != j;
    }
    EXPECT_EQ(r[65535], 65535);
    EXPECT_EQ(r[0], 0);
    // Only the last bit of rounding may differ, and not on most entries.
    EXPECT_LT(changed, 65536 / 2);
}

TEST(ColorRamp, WhitePointKeepsItsFloatSteps)
{
    // The fraction of the row is held as a float and the second row's share
    // is a float product, the rest is double: the results below, worked out
    // apart from this code with that rounding, differ in the last bit from
    // an all-double computation.
    struct Case
    {
        int temperature;
        int scheme;
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
        const std::vector<float> w = white_point(ramp, c.temperature);
        for (int k = 0; k < 3; ++k)
            EXPECT_EQ(w[k], c.w[k]) << c.temperature << " K, scheme " << c.scheme << ", channel " << k;
    }
}

TEST(ColorRamp, EntriesKeepTheirFloatAndDoubleSteps)
{
    // One entry through the whole fill: the scale in double, the power held
    // as a float, the product with 65535 in float, then truncated. Each row
    // was picked, apart from this code, where moving one of these steps to
    // the other precision changes the result by one.
    struct Case
    {
        int temperature;
        int scheme;
        int leading;
        float brightness;
        unsigned short entry;
        unsigned short expected[3];
    };
    const Case cases[] = {
        {13068, 1, 3, 0.90f, 22260, {20033, 14353, 16329}},
        {2676, 3, 1, 0.75f, 44892, {33669, 24193, 14928}},
        {24953, 4, 3, 0.75f, 54120, {40590, 25472, 30561}},
        {9862, 3, 1, 0.60f, 48821, {20691, 23970, 29292}},
        {15355, 4, 1, 0.90f, 58422, {36130, 41790, 52579}},
        {7573, 4, 1, 1.00f, 23582, {21384, 22200, 23582}},
        {5389, 2, 1, 0.60f, 43772, {26263, 23004, 19083}},
        {1812, 3, 1, 0.90f, 17890, {16100, 10211, 5156}},
        {6868, 1, 1, 0.90f, 17850, {15477, 15699, 16065}},
    };
    for (const Case& c : cases) {
        ColorRamp ramp;
        ramp.set_color_scheme(c.scheme);
        ramp.set_leading_color(c.leading);
        unsigned short r = c.entry, g = c.entry, b = c.entry;
        ColorSettings s = settings_of(c.temperature, c.brightness);
        ramp.color_ramp_fill(&r, &g, &b, 1, &s);
        EXPECT_EQ(r, c.expected[0]) << c.temperature << " K";
        EXPECT_EQ(g, c.expected[1]) << c.temperature << " K";
        EXPECT_EQ(b, c.expected[2]) << c.temperature << " K";
    }
}

TEST(ColorRamp, InterpolatesBetweenRows)
{
    ColorRamp ramp;
    // Halfway between 6500 K (1, 1, 1) and 6600 K (.98947904, .99348723, 1).
    expect_white_point(ramp, 6550, 0.99473952f, 0.996743615f, 1.0f);
    // Halfway between 3400 K and 3500 K (.77987699, .54642268).
    expect_white_point(ramp, 3450, 1.0f, 0.77438001f, 0.53534795f);
    // A quarter of the way from 2000 K (.54360078, .08679949) to 2100 K
    // (.56618736, .14065513).
    expect_white_point(ramp, 2025, 1.0f, 0.54924743f, 0.10026340f);
}

TEST(ColorRamp, LeadingColourTwoReadsIntoTheNextRow)
{
    ColorRamp ramp;
    ramp.set_leading_color(2);
    // Red reads green, green reads blue, blue reads red of the next row.
    expect_white_point(ramp, 3400, 0.76888303f, 0.52427322f, 1.0f);
    // 6500 K is no longer neutral: blue gets red of 6600 K.
    expect_white_point(ramp, 6500, 1.0f, 1.0f, 0.98947904f);
    unsigned short out[3];
    fill_full(ramp, 6500, out);
    EXPECT_EQ(out[2], 64845); // .98947904 * 65535 = 64845.5
    // Interpolation works on the shifted reads too: 6550 K mixes
    // (1, 1, .98947904) with 6600 K shifted (.99348723, 1, .97940448).
    expect_white_point(ramp, 6550, 0.996743615f, 1.0f, 0.98444176f);
}

TEST(ColorRamp, LeadingColourThreeReadsTwoPlacesIntoTheNextRow)
{
    ColorRamp ramp;
    ramp.set_leading_color(3);
    // Red reads blue of the row, green and blue read red and green of 3500 K.
    expect_white_point(ramp, 3400, 0.52427322f, 1.0f, 0.77987699f);
    unsigned short out[3];
    fill_full(ramp, 3400, out);
    EXPECT_EQ(out[0], 34358);
    EXPECT_EQ(out[1], 65535);
    EXPECT_EQ(out[2], 51109); // .77987699 * 65535 = 51109.24
}

TEST(ColorRamp, OneThousandKelvinTakesBlueAway)
{
    ColorRamp ramp;
    const int size = 64;
    std::vector<unsigned short> r(size), g(size), b(size);
    for (int j = 0; j < size; ++j)
        r[j] = g[j] = b[j] = static_cast<unsigned short>(j * 1040);
    ColorSettings s = settings_of(1000);
    ramp.color_ramp_fill(r.data(), g.data(), b.data(), size, &s);
    for (int j = 0; j < size; ++j)
        ASSERT_EQ(b[j], 0) << j;
    expect_white_point(ramp, 1000, 1.0f, 0.18172716f, 0.0f);
    // 63 * 1040 = 65520; times .18172716 = 11906.8
    EXPECT_NEAR(g[63], 11906, 1);
}

TEST(ColorRamp, LimitAt65535)
{
    ColorRamp ramp;
    unsigned short out[3];
    fill_full(ramp, 6500, out);
    EXPECT_EQ(out[0], 65535);
    EXPECT_EQ(out[1], 65535);
    EXPECT_EQ(out[2], 65535);
    // A brightness above 1 pushes p over 1.0: the entry holds at 65535
    // instead of wrapping round.
    fill_full(ramp, 6500, out, 1.5f);
    EXPECT_EQ(out[0], 65535);
    unsigned short r = 50000, g = 50000, b = 20000;
    ColorSettings s = settings_of(6500, 1.5f);
    ramp.color_ramp_fill(&r, &g, &b, 1, &s);
    EXPECT_EQ(r, 65535);
    EXPECT_EQ(g, 65535);
    EXPECT_EQ(b, 30000); // 20000 * 1.5, below the limit
}

TEST(ColorRamp, SchemesSelectTheirTables)
{
    ColorRamp ramp;
    ramp.set_color_scheme(2); // Magmus
    expect_white_point(ramp, 3400, 1.0f, 0.5650f, 0.2335f);
    expect_white_point(ramp, 9000, 0.6595f, 0.7867f, 1.0f);
    ramp.set_color_scheme(3); // Olaf
    expect_white_point(ramp, 3400, 1.0f, 0.7826f, 0.5503f);
    expect_white_point(ramp, 100, 1.0f, 0.0547f, 0.0212f);
    ramp.set_color_scheme(4); // Groot: only blue is taken away
    expect_white_point(ramp, 3400, 1.0f, 1.0f, 0.76888303f);
    expect_white_point(ramp, 1000, 1.0f, 1.0f, 0.18172716f);
    expect_white_point(ramp, 7000, 0.95160805f, 0.96983355f, 1.0f);
    ramp.set_color_scheme(1);
    expect_white_point(ramp, 3400, 1.0f, 0.76888303f, 0.52427322f);
}

TEST(ColorRamp, UnknownSchemeSelectsTheFirstTable)
{
    ColorRamp ramp;
    ramp.set_color_scheme(2);
    ramp.set_color_scheme(7);
    expect_white_point(ramp, 3400, 1.0f, 0.76888303f, 0.52427322f);
    ramp.set_color_scheme(2);
    ramp.set_color_scheme(0);
    expect_white_point(ramp, 3400, 1.0f, 0.76888303f, 0.52427322f);
    ramp.set_color_scheme(2);
    ramp.set_color_scheme(-1);
    expect_white_point(ramp, 3400, 1.0f, 0.76888303f, 0.52427322f);
}

TEST(ColorRamp, LastRowsOfEachTableReadExactly)
{
    ColorRamp ramp;
    expect_white_point(ramp, 25100, 0.62740336f, 0.75282962f, 1.0f);
    expect_white_point(ramp, 25000, 0.62774186f, 0.75306977f, 1.0f);
    ramp.set_color_scheme(2);
    expect_white_point(ramp, 10000, 0.5944f, 0.7414f, 1.0f);
    expect_white_point(ramp, 9950, (0.6000f + 0.5944f) / 2, (0.7453f + 0.7414f) / 2, 1.0f);
    ramp.set_color_scheme(3);
    expect_white_point(ramp, 10000, 0.6989f, 0.8133f, 1.0f);
}

TEST(ColorRamp, BeyondTheEndHoldsAtTheLastFullRow)
{
    ColorRamp ramp;
    expect_white_point(ramp, 25150, 0.62740336f, 0.75282962f, 1.0f);
    expect_white_point(ramp, 40000, 0.62740336f, 0.75282962f, 1.0f);
    ramp.set_color_scheme(2); // Magmus ends at 10000 K
    expect_white_point(ramp, 10050, 0.5944f, 0.7414f, 1.0f);
    expect_white_point(ramp, 25000, 0.5944f, 0.7414f, 1.0f);
    ramp.set_color_scheme(3); // Olaf ends at 10000 K
    expect_white_point(ramp, 12000, 0.6989f, 0.8133f, 1.0f);
    unsigned short out[3];
    fill_full(ramp, 12000, out);
    EXPECT_EQ(out[0], 45802); // .6989 * 65535 = 45802.4
    EXPECT_EQ(out[2], 65535);
}

TEST(ColorRamp, ShiftedReadsPastTheEndHoldAtTheLastRow)
{
    ColorRamp ramp;
    ramp.set_leading_color(2);
    // At 25100 K blue reads red of a row that does not exist: it holds at red
    // of the last row.
    expect_white_point(ramp, 25100, 0.75282962f, 1.0f, 0.62740336f);
    ramp.set_leading_color(3);
    expect_white_point(ramp, 25100, 1.0f, 0.62740336f, 0.75282962f);
    ramp.set_color_scheme(2);
    expect_white_point(ramp, 10000, 1.0f, 0.5944f, 0.7414f);
    expect_white_point(ramp, 10099, 1.0f, 0.5944f, 0.7414f);
}

TEST(ColorRamp, ExponentStaysInThePath)
{
    ColorRamp ramp;
    unsigned short r = 65535, g = 65535, b = 65535;
    ColorSettings s = settings_of(6500, 0.25f);
    s.gamma[0] = 2.0f; // square root
    s.gamma[1] = 1.0f;
    s.gamma[2] = 0.5f; // square
    ramp.color_ramp_fill(&r, &g, &b, 1, &s);
    EXPECT_EQ(r, 32767); // 0.5 * 65535 = 32767.5
    EXPECT_EQ(g, 16383); // 0.25 * 65535 = 16383.75
    EXPECT_EQ(b, 4095);  // 0.0625 * 65535 = 4095.9
}

TEST(ColorRamp, FloatRampsHaveNoLimitAndNoScale)
{
    ColorRamp ramp;
    float r = 1.0f, g = 1.0f, b = 0.5f;
    ColorSettings s = settings_of(3400, 0.5f);
    ramp.color_ramp_fill_float(&r, &g, &b, 1, &s);
    EXPECT_NEAR(r, 0.5f, 1e-7);
    EXPECT_NEAR(g, 0.5f * 0.76888303f, 1e-7);
    EXPECT_NEAR(b, 0.25f * 0.52427322f, 1e-7);
    float over = 1.0f, dummy_g = 1.0f, dummy_b = 1.0f;
    s = settings_of(6500, 2.0f);
    ramp.color_ramp_fill_float(&over, &dummy_g, &dummy_b, 1, &s);
    EXPECT_FLOAT_EQ(over, 2.0f);
}

TEST(ColorRamp, InterpolateColourMixesTwoRows)
{
    ColorRamp ramp;
    const float first[3] = {1.0f, 0.5f, 0.0f};
    const float second[3] = {0.0f, 1.0f, 0.25f};
    float result[3];
    ramp.interpolate_color(0.25f, first, second, result);
    EXPECT_FLOAT_EQ(result[0], 0.75f);
    EXPECT_FLOAT_EQ(result[1], 0.625f);
    EXPECT_FLOAT_EQ(result[2], 0.0625f);
}

TEST(ColorRamp, XformrgbUsesTheUpperFourRows)
{
    float matrix[5][5] = {
        {1, 2, 3, 100, 100},
        {4, 5, 6, 100, 100},
        {7, 8, 9, 100, 100},
        {10, 20, 30, 100, 100},
        {100, 100, 100, 100, 100},
    };
    float r = 0, g = 0, b = 0;
    xformrgb(matrix, 1.0f, 0.5f, 0.25f, &r, &g, &b);
    EXPECT_FLOAT_EQ(r, 1 + 2 + 1.75f + 10);     // 1*1 + .5*4 + .25*7 + 10
    EXPECT_FLOAT_EQ(g, 2 + 2.5f + 2 + 20);      // 1*2 + .5*5 + .25*8 + 20
    EXPECT_FLOAT_EQ(b, 3 + 3 + 2.25f + 30);     // 1*3 + .5*6 + .25*9 + 30
}

TEST(ColorRamp, AnAbsurdLeadingColourStaysInsideTheTable)
{
    ColorRamp ramp;
    ramp.set_leading_color(2147483647);
    // Far past the end: every read holds at the last row, column by column.
    std::vector<float> w = white_point(ramp, 3400);
    for (float v : w) {
        EXPECT_GE(v, 0.62740336f);
        EXPECT_LE(v, 1.0f);
    }
    ramp.set_leading_color(-2147483647);
    w = white_point(ramp, 3400);
    for (float v : w) {
        EXPECT_GE(v, 0.0f);
        EXPECT_LE(v, 1.0f);
    }
}
