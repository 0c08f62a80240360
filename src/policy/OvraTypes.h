#pragma once

#include <QString>
#include <QVariant>

#include <vector>

// One thing a type does when it is chosen. The order of the steps of a type
// is part of its behaviour: inversion fades and the colour-effect switch
// interact, so a type's list is run exactly as given.
struct TypeStep
{
    enum class Kind {
        Write,           // store value under key
        RevertColors,    // plain colours (with the inversion fade if needed)
        InvertColors,    // inverted colours
        OverlayScreen,   // store UseOverlayScreen, then tell the overlays
        LightnessScreen, // store UseLightnessScreen, then tell the lightness screen
    };

    Kind kind;
    const char* key = nullptr;
    QVariant value;
};

// A named bundle of colour values and effects, chosen in one click.
namespace OvraTypes {

enum Type {
    CUSTOM = 0,
    HEALTH = 1,
    SLEEP = 2,
    READING = 3,
    PROGRAMMING = 4,
    BIOHACKER = 5,
    SUNGLASSES = 6,
    DARK = 7,
    MOVIE = 8,
    OVERLAY = 9,
};

struct KeyValue
{
    const char* key;
    int value;
};

// What every type writes first, whatever it is, also an unknown one.
const std::vector<KeyValue>& base_values();

// What the type does after the base values, in order; nothing for Custom and
// for numbers that name no type.
std::vector<TypeStep> steps(int type);

// The step as one short line, for logs and tests: "DayTemperature=6500",
// "revert_colors", "invert_colors", "overlay=false", "lightness=true".
QString describe(const TypeStep& step);

} // namespace OvraTypes
