#pragma once

// What the controller asks of the display at one moment: a white point in
// kelvin, per-channel exponents (always 1.0 today) and a brightness where 1.0
// is full.
struct ColorSettings
{
    int temperature = 6500;
    float gamma[3] = {1.0f, 1.0f, 1.0f};
    float brightness = 1.0f;
};
