// The tables of the colour policy: what each type writes and does, in order;
// the mode cycle; the view's shadow keys; the loop that gives way towards
// neutral when the display refuses a pair.
#include <gtest/gtest.h>

#include <QStringList>

#include <vector>

#include "policy/AdvancedShadows.h"
#include "policy/OvraModes.h"
#include "policy/OvraTypes.h"
#include "policy/ValueGiveWay.h"

namespace {

QStringList described(int type)
{
    QStringList lines;
    for (const TypeStep& step : OvraTypes::steps(type))
        lines << OvraTypes::describe(step);
    return lines;
}

TEST(OvraTypes, BaseValuesAreHealthsInTheirWritingOrder)
{
    QStringList lines;
    for (const OvraTypes::KeyValue& kv : OvraTypes::base_values())
        lines << QString::fromLatin1(kv.key) + '=' + QString::number(kv.value);
    EXPECT_EQ(lines, QStringList({"DayTemperature=5000", "NightTemperature=3400",
                                  "DayBrightness=100", "NightBrightness=80", "SleepLight=2700",
                                  "SleepBrightness=75"}));
}

TEST(OvraTypes, EachTypeRunsItsStepsInTheOrderOfItsRow)
{
    const std::vector<std::pair<int, QStringList>> rows = {
        {1, {"revert_colors", "UseColorEffects=false", "overlay=false", "lightness=false"}},
        {2, {"DayTemperature=0", "NightTemperature=0", "SleepLight=0", "UseColorEffects=false", "revert_colors",
             "overlay=false", "lightness=false"}},
        {3, {"revert_colors", "UseColorEffects=true", "ColorEffect=2", "overlay=false", "lightness=false"}},
        {4, {"UseColorEffects=false", "invert_colors", "overlay=false", "lightness=false"}},
        {5, {"DayTemperature=0", "NightTemperature=0", "SleepLight=0", "UseColorEffects=false", "invert_colors",
             "overlay=false", "lightness=false"}},
        {6, {"DayTemperature=6500", "NightTemperature=6500", "DayBrightness=100", "NightBrightness=75",
             "SleepLight=6500", "SleepBrightness=65", "revert_colors", "UseColorEffects=false", "overlay=false",
             "lightness=false"}},
        {7, {"LightnessScreenOpacity=30", "LightnessScreenRadius=30", "LightnessScreenXPosition=50",
             "LightnessScreenYPosition=50", "revert_colors", "UseColorEffects=false", "overlay=false",
             "lightness=true"}},
        {8, {"DayTemperature=6500", "NightTemperature=6500", "DayBrightness=120", "NightBrightness=120",
             "SleepLight=6500", "SleepBrightness=120", "UseColorEffects=false", "revert_colors", "overlay=false",
             "lightness=false"}},
        {9, {"DayTemperature=6500", "NightTemperature=6500", "DayBrightness=100", "NightBrightness=100",
             "SleepLight=6500", "SleepBrightness=100", "DayOpacity=5", "NightOpacity=40", "DayDim=0", "NightDim=10",
             "UseColorEffects=false", "revert_colors", "overlay=true", "lightness=false"}},
        // Custom and unknown numbers do nothing beyond the base.
        {0, {}}, {10, {}}, {11, {}}, {100, {}}, {-1, {}},
    };
    for (const auto& [type, expected] : rows)
        EXPECT_EQ(described(type), expected) << "type " << type;
}

TEST(OvraModes, CycleRunsAutomaticManualPausedAndBack)
{
    // Anything outside the cycle comes back to Automatic too.
    for (const auto& [mode, next] : {std::pair{1, 2}, {2, 3}, {3, 1}, {0, 1}, {7, 1}})
        EXPECT_EQ(OvraModes::next_mode(mode), next) << mode;
}

TEST(AdvancedShadows, TheViewCopiesTwentyOneKeysInTableOrder)
{
    const std::vector<std::pair<QString, QString>> expected = {
        {"AdvancedDayTemperature", "DayTemperature"}, {"AdvancedNightTemperature", "NightTemperature"},
        {"AdvancedDayBrightness", "DayBrightness"}, {"AdvancedNightBrightness", "NightBrightness"},
        {"AdvancedSleepLight", "SleepLight"}, {"AdvancedSleepBrightness", "SleepBrightness"},
        {"AdvancedColorEffect", "ColorEffect"}, {"AdvancedUseManualColorSettings", "UseManualColorSettings"},
        {"AdvancedUseColorEffects", "UseColorEffects"}, {"AdvancedUseManualBrightness", "UseManualBrightness"},
        {"AdvancedUseSleepLight", "UseSleepLight"}, {"AdvancedUseOverlayScreen", "UseOverlayScreen"},
        {"AdvancedDayOpacity", "DayOpacity"}, {"AdvancedNightOpacity", "NightOpacity"},
        {"AdvancedDayDim", "DayDim"}, {"AdvancedNightDim", "NightDim"},
        {"AdvancedUseLightnessScreen", "UseLightnessScreen"},
        {"AdvancedLightnessScreenOpacity", "LightnessScreenOpacity"},
        {"AdvancedLightnessScreenRadius", "LightnessScreenRadius"},
        {"AdvancedLightnessScreenXposition", "LightnessScreenXPosition"},
        {"AdvancedLightnessScreenYPosition", "LightnessScreenYPosition"},
    };
    const auto& pairs = AdvancedShadows::view_pairs();
    ASSERT_EQ(pairs.size(), expected.size());
    for (size_t i = 0; i < pairs.size(); ++i) {
        EXPECT_EQ(QString::fromLatin1(pairs[i].source), expected[i].first) << i;
        EXPECT_EQ(QString::fromLatin1(pairs[i].target), expected[i].second) << i;
    }

    SettingsMap map;
    map["AdvancedNightTemperature"] = 2300;
    map["AdvancedLightnessScreenXposition"] = 17;
    map["NightTemperature"] = 3400;
    map["LightnessScreenXPosition"] = 50;
    map["DayTemperature"] = 5000;
    AdvancedShadows::copy_into_view(map);
    EXPECT_EQ(map["NightTemperature"].toInt(), 2300);
    EXPECT_EQ(map["LightnessScreenXPosition"].toInt(), 17);
    EXPECT_EQ(map["AdvancedNightTemperature"].toInt(), 2300);
    // A shadow that was never written empties its target.
    EXPECT_EQ(map["DayTemperature"].toInt(), 0);
    // Per monitor, the number goes behind.
    EXPECT_EQ(AdvancedShadows::shadow_key("DayTemperature", 0), "AdvancedDayTemperature");
    EXPECT_EQ(AdvancedShadows::shadow_key("SleepBrightness", 12), "AdvancedSleepBrightness12");
}

// A display that refuses a number of times, and what the loop showed.
struct RefusingDisplay
{
    int refusals = 0;
    int calls = 0;
    std::vector<std::pair<char, int>> shown;

    ValueGiveWay::Callbacks callbacks()
    {
        return {[this] {
                    ++calls;
                    return calls <= refusals ? -1 : 0;
                },
                [this](int t) { shown.push_back({'t', t}); },
                [this](int b) { shown.push_back({'b', b}); }};
    }
};

const ValueGiveWay::PeriodKeys NIGHT{"NightTemperature2", "NightBrightness2"};

TEST(ValueGiveWay, ARefusedPairGivesWayTowardsNeutral)
{
    // A temperature change gives way on brightness first, then warms up; a
    // brightness change the other way round. Steps of 5 % and 100 K, capped
    // at 100 % and 6500 K; above 100 % the brightness is left as it is.
    using Shown = std::vector<std::pair<char, int>>;
    const struct
    {
        bool temperature_changed;
        int temperature, brightness, refusals;
        Shown shown;
        int final_temperature, final_brightness;
    } cases[] = {
        {true, 1200, 40, 0, {}, 1200, 40},
        {true, 6350, 88, 5, {{'b', 93}, {'b', 98}, {'b', 100}, {'t', 6450}, {'t', 6500}}, 6500, 100},
        {false, 6280, 91, 5, {{'t', 6380}, {'t', 6480}, {'t', 6500}, {'b', 96}, {'b', 100}}, 6500, 100},
        {true, 6300, 120, 2, {{'t', 6400}, {'t', 6500}}, 6500, 120},
    };
    for (const auto& c : cases) {
        SettingsMap map{{"NightTemperature2", c.temperature}, {"NightBrightness2", c.brightness}};
        int calls = 0;
        Shown shown;
        const ValueGiveWay::Callbacks display{[&] { return ++calls <= c.refusals ? -1 : 0; },
                                              [&](int t) { shown.push_back({'t', t}); },
                                              [&](int b) { shown.push_back({'b', b}); }};
        const ValueGiveWay::PeriodKeys night{"NightTemperature2", "NightBrightness2"};
        if (c.temperature_changed)
            ValueGiveWay::after_temperature_change(map, night, display);
        else
            ValueGiveWay::after_brightness_change(map, night, display);
        EXPECT_EQ(shown, c.shown) << c.temperature << " K, " << c.brightness << " %";
        EXPECT_EQ(calls, c.refusals + 1);
        EXPECT_EQ(map["NightTemperature2"].toInt(), c.final_temperature);
        EXPECT_EQ(map["NightBrightness2"].toInt(), c.final_brightness);
    }
}

} // namespace
