#include "policy/OvraTypes.h"

#include "settings/SaveKeys.h"

namespace OvraTypes {

namespace {

TypeStep write(const char* key, const QVariant& value)
{
    return {TypeStep::Kind::Write, key, value};
}

TypeStep revert()
{
    return {TypeStep::Kind::RevertColors, nullptr, QVariant()};
}

TypeStep invert()
{
    return {TypeStep::Kind::InvertColors, nullptr, QVariant()};
}

TypeStep overlay(bool on)
{
    return {TypeStep::Kind::OverlayScreen, SaveKeys::USE_OVERLAY_SCREEN, on};
}

TypeStep lightness(bool on)
{
    return {TypeStep::Kind::LightnessScreen, SaveKeys::USE_LIGHTNESS_SCREEN, on};
}

TypeStep color_effects(bool on)
{
    return write(SaveKeys::USE_COLOR_EFFECTS, on);
}

// The three temperatures at the lowest row of the white-point table: as
// little blue as the table allows.
void add_zero_temperatures(std::vector<TypeStep>& steps)
{
    steps.push_back(write(SaveKeys::DAY_TEMPERATURE, 0));
    steps.push_back(write(SaveKeys::NIGHT_TEMPERATURE, 0));
    steps.push_back(write(SaveKeys::SLEEP_LIGHT, 0));
}

void add_values(std::vector<TypeStep>& steps, int day_temperature, int night_temperature,
                int day_brightness, int night_brightness, int sleep_light, int sleep_brightness)
{
    steps.push_back(write(SaveKeys::DAY_TEMPERATURE, day_temperature));
    steps.push_back(write(SaveKeys::NIGHT_TEMPERATURE, night_temperature));
    steps.push_back(write(SaveKeys::DAY_BRIGHTNESS, day_brightness));
    steps.push_back(write(SaveKeys::NIGHT_BRIGHTNESS, night_brightness));
    steps.push_back(write(SaveKeys::SLEEP_LIGHT, sleep_light));
    steps.push_back(write(SaveKeys::SLEEP_BRIGHTNESS, sleep_brightness));
}

} // namespace

const std::vector<KeyValue>& base_values()
{
    static const std::vector<KeyValue> values = {
        {SaveKeys::DAY_TEMPERATURE, 5000}, {SaveKeys::NIGHT_TEMPERATURE, 3400},
        {SaveKeys::DAY_BRIGHTNESS, 100},   {SaveKeys::NIGHT_BRIGHTNESS, 80},
        {SaveKeys::SLEEP_LIGHT, 2700},     {SaveKeys::SLEEP_BRIGHTNESS, 75},
    };
    return values;
}

// The rows differ in where revert_colors stands against UseColorEffects;
// each row keeps the order it has always had.
std::vector<TypeStep> steps(int type)
{
    std::vector<TypeStep> s;
    switch (type) {
    case HEALTH:
        s = {revert(), color_effects(false), overlay(false), lightness(false)};
        break;
    case SLEEP:
        add_zero_temperatures(s);
        s.insert(s.end(), {color_effects(false), revert(), overlay(false), lightness(false)});
        break;
    case READING:
        s = {revert(), color_effects(true), write(SaveKeys::COLOR_EFFECT, 2), overlay(false),
             lightness(false)};
        break;
    case PROGRAMMING:
        s = {color_effects(false), invert(), overlay(false), lightness(false)};
        break;
    case BIOHACKER:
        add_zero_temperatures(s);
        s.insert(s.end(), {color_effects(false), invert(), overlay(false), lightness(false)});
        break;
    case SUNGLASSES:
        add_values(s, 6500, 6500, 100, 75, 6500, 65);
        s.insert(s.end(), {revert(), color_effects(false), overlay(false), lightness(false)});
        break;
    case DARK:
        s = {write(SaveKeys::LIGHTNESS_SCREEN_OPACITY, 30), write(SaveKeys::LIGHTNESS_SCREEN_RADIUS, 30),
             write(SaveKeys::LIGHTNESS_SCREEN_X_POSITION, 50),
             write(SaveKeys::LIGHTNESS_SCREEN_Y_POSITION, 50), revert(), color_effects(false),
             overlay(false), lightness(true)};
        break;
    case MOVIE:
        add_values(s, 6500, 6500, 120, 120, 6500, 120);
        s.insert(s.end(), {color_effects(false), revert(), overlay(false), lightness(false)});
        break;
    case OVERLAY:
        add_values(s, 6500, 6500, 100, 100, 6500, 100);
        s.insert(s.end(), {write(SaveKeys::DAY_OPACITY, 5), write(SaveKeys::NIGHT_OPACITY, 40),
                           write(SaveKeys::DAY_DIM, 0), write(SaveKeys::NIGHT_DIM, 10),
                           color_effects(false), revert(), overlay(true), lightness(false)});
        break;
    default:
        break;
    }
    return s;
}

QString describe(const TypeStep& step)
{
    const QString value = step.value.typeId() == QMetaType::Bool
                              ? QString::fromLatin1(step.value.toBool() ? "true" : "false")
                              : step.value.toString();
    switch (step.kind) {
    case TypeStep::Kind::Write:
        return QString::fromLatin1(step.key) + '=' + value;
    case TypeStep::Kind::RevertColors:
        return QStringLiteral("revert_colors");
    case TypeStep::Kind::InvertColors:
        return QStringLiteral("invert_colors");
    case TypeStep::Kind::OverlayScreen:
        return QStringLiteral("overlay=") + value;
    case TypeStep::Kind::LightnessScreen:
        return QStringLiteral("lightness=") + value;
    }
    return QString();
}

} // namespace OvraTypes
