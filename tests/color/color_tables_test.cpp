#include <gtest/gtest.h>

#include <cmath>

#include "color/ColorTemp.h"
#include "color/ColorTemperatureTables.h"

namespace {

struct Table
{
    const char* name;
    const float* values;
    int rows;
};

const Table TABLES[] = {
    {"ovra", ovra_color_temperature, OVRA_COLOR_TEMPERATURE_ROWS},
    {"magmus", magmus_color_temperature, MAGMUS_COLOR_TEMPERATURE_ROWS},
    {"olaf", olaf_color_temperature, OLAF_COLOR_TEMPERATURE_ROWS},
    {"groot", groot_color_temperature, GROOT_COLOR_TEMPERATURE_ROWS},
};

void expect_row(const float* table, int kelvin, float r, float g, float b)
{
    const int n = kelvin / 100;
    EXPECT_FLOAT_EQ(table[3 * n], r) << kelvin << " K";
    EXPECT_FLOAT_EQ(table[3 * n + 1], g) << kelvin << " K";
    EXPECT_FLOAT_EQ(table[3 * n + 2], b) << kelvin << " K";
}

} // namespace

TEST(ColorTemperatureTables, RowCounts)
{
    EXPECT_EQ(OVRA_COLOR_TEMPERATURE_ROWS, 252);
    EXPECT_EQ(MAGMUS_COLOR_TEMPERATURE_ROWS, 101);
    EXPECT_EQ(OLAF_COLOR_TEMPERATURE_ROWS, 101);
    EXPECT_EQ(GROOT_COLOR_TEMPERATURE_ROWS, 252);
}

TEST(ColorTemperatureTables, Row65IsNeutralEverywhere)
{
    for (const Table& t : TABLES)
        expect_row(t.values, 6500, 1.0f, 1.0f, 1.0f);
}

TEST(ColorTemperatureTables, RedLeadsBelowAndBlueAbove)
{
    for (const Table& t : TABLES) {
        for (int n = 0; n < t.rows; ++n) {
            for (int c = 0; c < 3; ++c) {
                ASSERT_GE(t.values[3 * n + c], 0.0f) << t.name << " row " << n;
                ASSERT_LE(t.values[3 * n + c], 1.0f) << t.name << " row " << n;
            }
            if (n <= 65) {
                ASSERT_EQ(t.values[3 * n], 1.0f) << t.name << " row " << n;
            }
            if (n >= 65) {
                ASSERT_EQ(t.values[3 * n + 2], 1.0f) << t.name << " row " << n;
            }
        }
    }
}

TEST(ColorTemperatureTables, TellingRows)
{
    expect_row(ovra_color_temperature, 0, 1.0f, 0.0f, 0.0f);
    expect_row(ovra_color_temperature, 500, 1.0f, 0.09086358f, 0.0f);
    expect_row(ovra_color_temperature, 1000, 1.0f, 0.18172716f, 0.0f);
    expect_row(ovra_color_temperature, 2000, 1.0f, 0.54360078f, 0.08679949f);
    expect_row(ovra_color_temperature, 3400, 1.0f, 0.76888303f, 0.52427322f);
    expect_row(ovra_color_temperature, 6400, 1.0f, 0.99448139f, 0.98899179f);
    expect_row(ovra_color_temperature, 6600, 0.98947904f, 0.99348723f, 1.0f);
    expect_row(ovra_color_temperature, 15000, 0.69119138f, 0.79761446f, 1.0f);
    expect_row(ovra_color_temperature, 25100, 0.62740336f, 0.75282962f, 1.0f);

    expect_row(olaf_color_temperature, 1000, 1.0f, 0.5470f, 0.2132f);
    expect_row(olaf_color_temperature, 6600, 0.9867f, 0.9923f, 1.0f);
    expect_row(olaf_color_temperature, 10000, 0.6989f, 0.8133f, 1.0f);

    expect_row(magmus_color_temperature, 1000, 1.0f, 0.0425f, 0.0f);
    expect_row(magmus_color_temperature, 2000, 1.0f, 0.2630f, 0.0062f);
    expect_row(magmus_color_temperature, 10000, 0.5944f, 0.7414f, 1.0f);

    expect_row(groot_color_temperature, 0, 1.0f, 1.0f, 0.0f);
    expect_row(groot_color_temperature, 1000, 1.0f, 1.0f, 0.18172716f);
}

TEST(ColorTemperatureTables, LowRowsAreStraightLines)
{
    // 0 K to 1000 K: green rises by a tenth of its 1000 K value per row.
    const float* ovra = ovra_color_temperature;
    const float* olaf = olaf_color_temperature;
    const float* magmus = magmus_color_temperature;
    for (int n = 0; n <= 10; ++n) {
        EXPECT_NEAR(ovra[3 * n + 1], 0.18172716 * n / 10, 1e-7) << n;
        EXPECT_NEAR(olaf[3 * n + 1], 0.5470 * n / 10, 1e-4) << n;
        EXPECT_NEAR(olaf[3 * n + 2], 0.2132 * n / 10, 2e-4) << n; // rounded to four places
        EXPECT_NEAR(magmus[3 * n + 1], 0.0425 * n / 10, 1e-4) << n;
    }
}

TEST(ColorTemperatureTables, GrootFollowsOvraByItsRule)
{
    for (int n = 0; n < GROOT_COLOR_TEMPERATURE_ROWS; ++n) {
        const float* g = groot_color_temperature + 3 * n;
        const float* o = ovra_color_temperature + 3 * n;
        if (n < 65) {
            ASSERT_EQ(g[0], 1.0f) << n;
            ASSERT_EQ(g[1], 1.0f) << n;
            ASSERT_EQ(g[2], o[1]) << n;
        } else {
            ASSERT_EQ(g[0], o[0]) << n;
            ASSERT_EQ(g[1], o[1]) << n;
            ASSERT_EQ(g[2], o[2]) << n;
        }
    }
}

TEST(ColorTemperatureTables, CurvesFallMonotonicallyAwayFromNeutral)
{
    // Green falls towards both ends, so a warm setting never turns brighter
    // than a less warm one; a transcription slip would break this.
    for (const Table& t : TABLES) {
        for (int n = 1; n <= 65; ++n)
            ASSERT_LE(t.values[3 * (n - 1) + 1], t.values[3 * n + 1]) << t.name << " row " << n;
        for (int n = 66; n < t.rows; ++n)
            ASSERT_LE(t.values[3 * n + 1], t.values[3 * (n - 1) + 1]) << t.name << " row " << n;
    }
}

TEST(ColorTemperatureTables, EveryValueMatchesThePublishedTables)
{
    // Per column: the plain sum and the sum weighted by row number (1, 2,
    // ...), both in double over the float values in row order. They were
    // worked out from the published tables, apart from this code, so that
    // any changed digit or swapped row shows; the spot checks above only
    // cover a few rows.
    struct Sums
    {
        const float* values;
        int rows;
        double sum[3];
        double weighted[3];
    };
    const Sums expected[] = {
        {ovra_color_temperature, OVRA_COLOR_TEMPERATURE_ROWS,
         {198.95427191257477, 193.81855268590152, 215.78754325211048},
         {22616.527905225754, 25369.066220354289, 31116.299925401807}},
        {magmus_color_temperature, MAGMUS_COLOR_TEMPERATURE_ROWS,
         {92.008899986743927, 62.564800080377609, 56.018800042103976},
         {4357.1980990171432, 3973.6996070453897, 4042.492701865267}},
        {olaf_color_temperature, OLAF_COLOR_TEMPERATURE_ROWS,
         {94.759200036525726, 78.377600077539682, 69.743000106886029},
         {4597.0783030390739, 4461.8687018305063, 4460.3529026657343}},
        {groot_color_temperature, GROOT_COLOR_TEMPERATURE_ROWS,
         {198.95427191257477, 217.20950424671173, 228.60904843918979},
         {22616.527905225754, 25785.273792266846, 31461.792428087443}},
    };
    for (const Sums& e : expected) {
        for (int c = 0; c < 3; ++c) {
            double sum = 0.0;
            double weighted = 0.0;
            for (int n = 0; n < e.rows; ++n) {
                const double v = e.values[3 * n + c];
                sum += v;
                weighted += (n + 1) * v;
            }
            EXPECT_DOUBLE_EQ(sum, e.sum[c]) << "table with " << e.rows << " rows, column " << c;
            EXPECT_DOUBLE_EQ(weighted, e.weighted[c]) << "table with " << e.rows << " rows, column " << c;
        }
    }
}

TEST(ColorTemp, FirstSeriesWins)
{
    ColorTemp table;
    const ColorTempValue v = table.getTempValueByTemp(1000);
    EXPECT_EQ(v.temperature, 1000);
    EXPECT_DOUBLE_EQ(v.r, 1.0);
    EXPECT_DOUBLE_EQ(v.g, 0.0337);
    EXPECT_DOUBLE_EQ(v.b, 0.0);
    EXPECT_EQ(v.R, 255);
    EXPECT_EQ(v.G, 51);
    EXPECT_EQ(v.B, 0);
    EXPECT_EQ(v.hex, "#ff3300");
}

TEST(ColorTemp, TellingRowsOfTheFirstSeries)
{
    ColorTemp table;
    struct Row
    {
        int k;
        double g;
        double b;
    };
    const Row rows[] = {{2000, 0.2647, 0.0033}, {3000, 0.4870, 0.1411}, {4000, 0.6636, 0.3583},
                        {5000, 0.7992, 0.6045}, {6500, 0.9436, 0.9621}};
    for (const Row& row : rows) {
        const ColorTempValue v = table.getTempValueByTemp(row.k);
        EXPECT_EQ(v.temperature, row.k);
        EXPECT_DOUBLE_EQ(v.g, row.g) << row.k;
        EXPECT_DOUBLE_EQ(v.b, row.b) << row.k;
    }
}

TEST(ColorTemp, EightBitValuesFollowTheSrgbCurve)
{
    ColorTemp table;
    // 2000 K: green .2647 -> 0.5514 encoded -> 140.6 -> 141 (0x8d);
    // blue .0033 is on the linear part: 12.92 * .0033 * 255 = 10.9 -> 11.
    ColorTempValue v = table.getTempValueByTemp(2000);
    EXPECT_EQ(v.G, 141);
    EXPECT_EQ(v.B, 11);
    EXPECT_EQ(v.hex, "#ff8d0b");
    // 6500 K: .9436 -> 248.6 -> 249; .9621 -> 250.7 -> 251.
    v = table.getTempValueByTemp(6500);
    EXPECT_EQ(v.hex, "#fff9fb");
}

TEST(ColorTemp, AnythingElseIsTheZeroRow)
{
    ColorTemp table;
    for (int k : {1050, 999, 6600, 0, -100, 100000}) {
        const ColorTempValue v = table.getTempValueByTemp(k);
        EXPECT_EQ(v.temperature, 0) << k;
        EXPECT_EQ(v.r, 0.0) << k;
        EXPECT_EQ(v.g, 0.0) << k;
        EXPECT_EQ(v.R, 0) << k;
        EXPECT_TRUE(v.hex.empty()) << k;
    }
}
