#pragma once

#include <cstdint>

#include "color/ColorSettings.h"

class ColorRamp;

// The part of writing one CRTC that needs no display: checks the request,
// picks the base curve (the kept ramps, the linear curve or the falling one)
// and lets the colour ramp scale it. Works on one block of 3 * size entries,
// red, then green, then blue.
class CrtcRampBuilder
{
public:
    // Lower than this brightness the screen would go black for good.
    static constexpr float MIN_BRIGHTNESS = 0.05f;

    // False for a negative temperature or a brightness below 0.05: such a
    // request must leave the display unchanged.
    static bool reaches_display(const ColorSettings* settings);

    // Entry j = truncate(j / size * 65535.0); the top entry stays below 65535.
    static void fill_linear(uint16_t* ramp, unsigned int size);
    // Entry j = truncate((1.0 - j / size) * 65535.0), so entry 0 is 65535.
    static void fill_inverted(uint16_t* ramp, unsigned int size);

    // Base curve into `block`, then temperature and brightness on top.
    static void build(ColorRamp* color_ramp, const ColorSettings* settings, bool preserve, bool inverted,
                      const uint16_t* saved_ramps, unsigned int size, uint16_t* block);
};
