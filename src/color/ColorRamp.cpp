#include "color/ColorRamp.h"

#include <cmath>

#include "color/ColorTemperatureTables.h"

ColorRamp::ColorRamp()
    : color_temperature(ovra_color_temperature)
    , color_temperature_rows(OVRA_COLOR_TEMPERATURE_ROWS)
{
}

ColorRamp::~ColorRamp() = default;

void ColorRamp::set_color_scheme(int scheme)
{
    switch (scheme) {
    case 2:
        color_temperature = magmus_color_temperature;
        color_temperature_rows = MAGMUS_COLOR_TEMPERATURE_ROWS;
        break;
    case 3:
        color_temperature = olaf_color_temperature;
        color_temperature_rows = OLAF_COLOR_TEMPERATURE_ROWS;
        break;
    case 4:
        color_temperature = groot_color_temperature;
        color_temperature_rows = GROOT_COLOR_TEMPERATURE_ROWS;
        break;
    default:
        color_temperature = ovra_color_temperature;
        color_temperature_rows = OVRA_COLOR_TEMPERATURE_ROWS;
        break;
    }
}

// The leading colour turns a row read into a read across the flat array, so
// reads may run past a row on purpose. Anything past the end of the table
// holds at its last full row, in the same column; anything before the start
// holds at the first row.
float ColorRamp::table_value(long long position) const
{
    const long long size = color_temperature_rows * 3;
    if (position >= size)
        position = size - 3 + position % 3;
    else if (position < 0)
        position = ((position % 3) + 3) % 3;
    return color_temperature[position];
}

void ColorRamp::interpolate_color(float alpha, const float* first, const float* second, float* result)
{
    for (int k = 0; k < 3; ++k)
        result[k] = static_cast<float>(first[k] * (1.0 - alpha) + second[k] * alpha);
}

void ColorRamp::white_point(int temperature, float* result)
{
    if (temperature < 0)
        temperature = 0;
    // The leading colour comes from settings unchecked; wide arithmetic keeps
    // an absurd value a bounded read instead of an overflow.
    const long long index = (temperature / 100) * 3 + static_cast<long long>(leading_color) - 1;
    const float alpha = static_cast<float>((temperature % 100) / 100.0);
    float first[3];
    float second[3];
    for (int k = 0; k < 3; ++k) {
        first[k] = table_value(index + k);
        second[k] = table_value(index + 3 + k);
    }
    interpolate_color(alpha, first, second, result);
}

void ColorRamp::color_ramp_fill(unsigned short* red, unsigned short* green, unsigned short* blue,
                                int size, const ColorSettings* settings)
{
    float w[3];
    white_point(settings->temperature, w);
    unsigned short* ramps[3] = {red, green, blue};
    for (int i = 0; i < size; ++i) {
        for (int c = 0; c < 3; ++c) {
            unsigned short& entry = ramps[c][i];
            const double v = entry / 65535.0 * settings->brightness * w[c];
            const float p = static_cast<float>(std::pow(v, 1.0 / settings->gamma[c]));
            if (p > 1.0)
                entry = 65535;
            else if (p >= 0.0f)
                entry = static_cast<unsigned short>(static_cast<int>(p * 65535.0f));
            else
                entry = 0; // NaN from a degenerate exponent
        }
    }
}

void ColorRamp::color_ramp_fill_float(float* red, float* green, float* blue, int size,
                                      const ColorSettings* settings)
{
    float w[3];
    white_point(settings->temperature, w);
    float* ramps[3] = {red, green, blue};
    for (int i = 0; i < size; ++i)
        for (int c = 0; c < 3; ++c)
            ramps[c][i] = static_cast<float>(
                std::pow(settings->brightness * ramps[c][i] * w[c], 1.0 / settings->gamma[c]));
}

void xformrgb(float (*matrix)[5], float r, float g, float b, float* out_r, float* out_g, float* out_b)
{
    *out_r = r * matrix[0][0] + g * matrix[1][0] + b * matrix[2][0] + matrix[3][0];
    *out_g = r * matrix[0][1] + g * matrix[1][1] + b * matrix[2][1] + matrix[3][1];
    *out_b = r * matrix[0][2] + g * matrix[1][2] + b * matrix[2][2] + matrix[3][2];
}
