#pragma once

#include "color/ColorSettings.h"

// Scales gamma ramps in place by the white point of a temperature and by a
// brightness. The colour scheme picks the white-point table; the leading
// colour shifts where in a row the three channels are read.
class ColorRamp
{
public:
    ColorRamp();
    virtual ~ColorRamp();

    // Ramps of 16-bit entries, `size` entries each, rewritten in place.
    // Allocates nothing.
    void color_ramp_fill(unsigned short* red, unsigned short* green, unsigned short* blue, int size,
                         const ColorSettings* settings);
    // The same for ramps of floats between 0 and 1, without the limit at 1.
    void color_ramp_fill_float(float* red, float* green, float* blue, int size,
                               const ColorSettings* settings);
    void interpolate_color(float alpha, const float* first, const float* second, float* result);

    // 1 Ovra, 2 Magmus, 3 Olaf, 4 Groot; anything else selects Ovra.
    void set_color_scheme(int scheme);
    // 1 reads a row as red, green, blue; 2 and 3 shift the reads one and two
    // places further, into the next row.
    void set_leading_color(int leading) { leading_color = leading; }
    int get_leading_color() const { return leading_color; }
    const float* get_color_temperature() const { return color_temperature; }

    // The white point that the fill multiplies with, for temperature T.
    void white_point(int temperature, float* result);

private:
    float table_value(long long position) const;

    const float* color_temperature;
    int leading_color = 1;
    int color_temperature_rows;
};

// Row vector (r, g, b, 1) times the upper four rows of a 5x5 colour matrix.
void xformrgb(float (*matrix)[5], float r, float g, float b, float* out_r, float* out_g, float* out_b);
