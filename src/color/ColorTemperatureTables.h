#pragma once

// White-point tables: one row of red, green, blue factors per 100 K starting
// at 0 K, so channel c of the row for T = 100 n sits at index 3 n + c. The
// 6500 K row (row 65) is neutral in every table.

constexpr int OVRA_COLOR_TEMPERATURE_ROWS = 252;   // 0 K .. 25100 K
constexpr int MAGMUS_COLOR_TEMPERATURE_ROWS = 101; // 0 K .. 10000 K
constexpr int OLAF_COLOR_TEMPERATURE_ROWS = 101;   // 0 K .. 10000 K
constexpr int GROOT_COLOR_TEMPERATURE_ROWS = 252;  // 0 K .. 25100 K

extern const float (&ovra_color_temperature)[OVRA_COLOR_TEMPERATURE_ROWS * 3];
extern const float magmus_color_temperature[MAGMUS_COLOR_TEMPERATURE_ROWS * 3];
extern const float olaf_color_temperature[OLAF_COLOR_TEMPERATURE_ROWS * 3];
extern const float (&groot_color_temperature)[GROOT_COLOR_TEMPERATURE_ROWS * 3];
