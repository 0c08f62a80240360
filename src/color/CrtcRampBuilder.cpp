#include "color/CrtcRampBuilder.h"

#include "base/TickPath.h"

#include <cstring>

#include "color/ColorRamp.h"

OVRA_TICK bool CrtcRampBuilder::reaches_display(const ColorSettings* settings)
{
    return settings->temperature >= 0 && !(settings->brightness < MIN_BRIGHTNESS);
}

void CrtcRampBuilder::fill_linear(uint16_t* ramp, unsigned int size)
{
    for (unsigned int j = 0; j < size; ++j)
        ramp[j] = static_cast<uint16_t>(static_cast<double>(j) / size * 65535.0);
}

void CrtcRampBuilder::fill_inverted(uint16_t* ramp, unsigned int size)
{
    for (unsigned int j = 0; j < size; ++j) {
        double value = (1.0 - static_cast<double>(j) / size) * 65535.0;
        if (value > 65535.0)
            value = 65535.0;
        ramp[j] = static_cast<uint16_t>(value);
    }
}

void CrtcRampBuilder::build(ColorRamp* color_ramp, const ColorSettings* settings, bool preserve,
                            bool inverted, const uint16_t* saved_ramps, unsigned int size, uint16_t* block)
{
    uint16_t* red = block;
    uint16_t* green = block + size;
    uint16_t* blue = block + 2 * size;
    if (preserve && saved_ramps) {
        std::memcpy(block, saved_ramps, 3 * size * sizeof(uint16_t));
    } else {
        fill_linear(red, size);
        fill_linear(green, size);
        fill_linear(blue, size);
    }
    // Inversion replaces whatever base curve was chosen, kept ramps included.
    if (inverted) {
        fill_inverted(red, size);
        fill_inverted(green, size);
        fill_inverted(blue, size);
    }
    color_ramp->color_ramp_fill(red, green, blue, static_cast<int>(size), settings);
}
