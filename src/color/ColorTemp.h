#pragma once

#include <string>
#include <vector>

// One reference blackbody colour.
struct ColorTempValue
{
    int temperature = 0;
    double r = 0.0;
    double g = 0.0;
    double b = 0.0;
    int R = 0;
    int G = 0;
    int B = 0;
    std::string hex;
};

// Reference blackbody colours from 1000 K to 6500 K in 100 K steps, two rows a
// temperature: CIE 1931 2-degree observer first, CIE 1964 10-degree second.
class ColorTemp
{
public:
    ColorTemp();

    // The first row whose temperature is exactly `temperature`, or an all-zero
    // row with an empty hex. No interpolation, no nearest match.
    ColorTempValue getTempValueByTemp(int temperature);

private:
    std::vector<ColorTempValue> values;
};
