#include <gtest/gtest.h>

#include "color/ColorTemp.h"
#include "color/ColorTemperatureTables.h"

TEST(ColorTemperatureTables, EveryValueMatchesThePublishedTables)
{
    // Per column: the plain sum and the sum weighted by row number (1, 2,
    // ...), both in double over the float values in row order. They were
    // worked out from the published tables, apart from this code, so that
    // any changed digit, lost row or swapped row shows.
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
                sum += e.values[3 * n + c];
                weighted += (n + 1) * double(e.values[3 * n + c]);
            }
            EXPECT_DOUBLE_EQ(sum, e.sum[c]) << "table with " << e.rows << " rows, column " << c;
            EXPECT_DOUBLE_EQ(weighted, e.weighted[c]) << "table with " << e.rows << " rows, column " << c;
        }
    }
}

TEST(ColorTemp, FirstSeriesRowsInEightBitSrgbAndNothingElse)
{
    // 8-bit values through the sRGB curve, rounded: 2000 K green .2647
    // encodes to 140.6 -> 0x8d, blue .0033 lies on the linear part -> 0x0b.
    struct Row
    {
        int k;
        double g, b;
        const char* hex;
    };
    const Row rows[] = {{1000, 0.0337, 0.0, "#ff3300"},    {2000, 0.2647, 0.0033, "#ff8d0b"},
                        {3000, 0.4870, 0.1411, "#ffb969"}, {4000, 0.6636, 0.3583, "#ffd5a1"},
                        {5000, 0.7992, 0.6045, "#ffe7cc"}, {6500, 0.9436, 0.9621, "#fff9fb"},
                        {1050, 0, 0, ""}, {999, 0, 0, ""}, {6600, 0, 0, ""}, {0, 0, 0, ""}, {-100, 0, 0, ""}};
    ColorTemp table;
    for (const Row& row : rows) {
        const ColorTempValue v = table.getTempValueByTemp(row.k);
        EXPECT_EQ(v.temperature, *row.hex ? row.k : 0) << row.k;
        EXPECT_DOUBLE_EQ(v.r, *row.hex ? 1.0 : 0.0) << row.k;
        EXPECT_DOUBLE_EQ(v.g, row.g) << row.k;
        EXPECT_DOUBLE_EQ(v.b, row.b) << row.k;
        EXPECT_EQ(v.hex, row.hex) << row.k;
    }
}
