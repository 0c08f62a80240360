// The tables of the colour policy against the document's tables: what each
// type writes and does, in order; the mode cycle; the view's shadow keys;
// the loop that gives way towards neutral when the display refuses a pair.
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
        {2, {"DayTemperature=0", "NightTemperature=0", "SleepLight=0", "UseColorEffects=false",
             "revert_colors", "overlay=false", "lightness=false"}},
        {3, {"revert_colors", "UseColorEffects=true", "ColorEffect=2", "overlay=false",
             "lightness=false"}},
        {4, {"UseColorEffects=false", "invert_colors", "overlay=false", "lightness=false"}},
        {5, {"DayTemperature=0", "NightTemperature=0", "SleepLight=0", "UseColorEffects=false",
             "invert_colors", "overlay=false", "lightness=false"}},
        {6, {"DayTemperature=6500", "NightTemperature=6500", "DayBrightness=100",
             "NightBrightness=75", "SleepLight=6500", "SleepBrightness=65", "revert_colors",
             "UseColorEffects=false", "overlay=false", "lightness=false"}},
        {7, {"LightnessScreenOpacity=30", "LightnessScreenRadius=30",
             "LightnessScreenXPosition=50", "LightnessScreenYPosition=50", "revert_colors",
             "UseColorEffects=false", "overlay=false", "lightness=true"}},
        {8, {"DayTemperature=6500", "NightTemperature=6500", "DayBrightness=120",
             "NightBrightness=120", "SleepLight=6500", "SleepBrightness=120",
             "UseColorEffects=false", "revert_colors", "overlay=false", "lightness=false"}},
        {9, {"DayTemperature=6500", "NightTemperature=6500", "DayBrightness=100",
             "NightBrightness=100", "SleepLight=6500", "SleepBrightness=100", "DayOpacity=5",
             "NightOpacity=40", "DayDim=0", "NightDim=10", "UseColorEffects=false",
             "revert_colors", "overlay=true", "lightness=false"}},
    };
    for (const auto& [type, expected] : rows)
        EXPECT_EQ(described(type), expected) << "type " << type;
}

TEST(OvraTypes, CustomAndUnknownNumbersDoNothingBeyondTheBase)
{
    for (int type : {0, 10, 11, 100, -1})
        EXPECT_TRUE(OvraTypes::steps(type).empty()) << type;
}

TEST(OvraModes, CycleRunsAutomaticManualPausedAndBack)
{
    EXPECT_EQ(OvraModes::next_mode(1), 2);
    EXPECT_EQ(OvraModes::next_mode(2), 3);
    EXPECT_EQ(OvraModes::next_mode(3), 1);
    EXPECT_EQ(OvraModes::next_mode(0), 1);
    // Anything past the cycle comes back to Automatic too.
    EXPECT_EQ(OvraModes::next_mode(7), 1);
}

TEST(AdvancedShadows, TheViewCopiesTwentyOneKeysInTableOrder)
{
    const std::vector<std::pair<QString, QString>> expected = {
        {"AdvancedDayTemperature", "DayTemperature"},
        {"AdvancedNightTemperature", "NightTemperature"},
        {"AdvancedDayBrightness", "DayBrightness"},
        {"AdvancedNightBrightness", "NightBrightness"},
        {"AdvancedSleepLight", "SleepLight"},
        {"AdvancedSleepBrightness", "SleepBrightness"},
        {"AdvancedColorEffect", "ColorEffect"},
        {"AdvancedUseManualColorSettings", "UseManualColorSettings"},
        {"AdvancedUseColorEffects", "UseColorEffects"},
        {"AdvancedUseManualBrightness", "UseManualBrightness"},
        {"AdvancedUseSleepLight", "UseSleepLight"},
        {"AdvancedUseOverlayScreen", "UseOverlayScreen"},
        {"AdvancedDayOpacity", "DayOpacity"},
        {"AdvancedNightOpacity", "NightOpacity"},
        {"AdvancedDayDim", "DayDim"},
        {"AdvancedNightDim", "NightDim"},
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
}

TEST(AdvancedShadows, ShadowKeysCarryTheMonitorNumberBehind)
{
    EXPECT_EQ(AdvancedShadows::shadow_key("DayTemperature", 0), "AdvancedDayTemperature");
    EXPECT_EQ(AdvancedShadows::shadow_key("DayTemperature", 2), "AdvancedDayTemperature2");
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

TEST(ValueGiveWay, AnAcceptedValueRunsTheDisplayOnce)
{
    SettingsMap map{{"NightTemperature2", 1200}, {"NightBrightness2", 40}};
    RefusingDisplay display;
    ValueGiveWay::after_temperature_change(map, NIGHT, display.callbacks());
    EXPECT_EQ(display.calls, 1);
    EXPECT_TRUE(display.shown.empty());
    EXPECT_EQ(map["NightTemperature2"].toInt(), 1200);
    EXPECT_EQ(map["NightBrightness2"].toInt(), 40);
}

TEST(ValueGiveWay, ATemperatureGivesWayOnBrightnessFirstThenWarmsUp)
{
    // 88 % goes 93, 98, 100 (capped), then the temperature 6350 goes 6450, 6500.
    SettingsMap map{{"NightTemperature2", 6350}, {"NightBrightness2", 88}};
    RefusingDisplay display;
    display.refusals = 5;
    ValueGiveWay::after_temperature_change(map, NIGHT, display.callbacks());
    const std::vector<std::pair<char, int>> expected = {
        {'b', 93}, {'b', 98}, {'b', 100}, {'t', 6450}, {'t', 6500}};
    EXPECT_EQ(display.shown, expected);
    EXPECT_EQ(display.calls, 6);
    EXPECT_EQ(map["NightTemperature2"].toInt(), 6500);
    EXPECT_EQ(map["NightBrightness2"].toInt(), 100);
}

TEST(ValueGiveWay, ABrightnessGivesWayOnTemperatureFirstThenBrightens)
{
    // 6280 K goes 6380, 6480, 6500 (capped), then 91 % goes 96, 100.
    SettingsMap map{{"NightTemperature2", 6280}, {"NightBrightness2", 91}};
    RefusingDisplay display;
    display.refusals = 5;
    ValueGiveWay::after_brightness_change(map, NIGHT, display.callbacks());
    const std::vector<std::pair<char, int>> expected = {
        {'t', 6380}, {'t', 6480}, {'t', 6500}, {'b', 96}, {'b', 100}};
    EXPECT_EQ(display.shown, expected);
    EXPECT_EQ(display.calls, 6);
}

TEST(ValueGiveWay, AHighBrightnessIsNotPulledDownToNeutral)
{
    // Above 100 % the brightness is left as it is; only the temperature moves.
    SettingsMap map{{"NightTemperature2", 6300}, {"NightBrightness2", 120}};
    RefusingDisplay display;
    display.refusals = 2;
    ValueGiveWay::after_temperature_change(map, NIGHT, display.callbacks());
    const std::vector<std::pair<char, int>> expected = {{'t', 6400}, {'t', 6500}};
    EXPECT_EQ(display.shown, expected);
    EXPECT_EQ(map["NightBrightness2"].toInt(), 120);
}

} // namespace
