#include <QObject>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "settings/ChangeRule.h"

namespace {

// Runs the rule once; returns how often it applied and emitted.
template <class T>
std::pair<int, int> acts(SettingsMap& settings, const char* key, const T& value)
{
    int applied = 0, emitted = 0;
    const bool changed = change_setting(settings, key, value, [&] { ++applied; }, [&](const QVariant&) { ++emitted; });
    EXPECT_EQ(changed, applied == 1) << key;
    return {applied, emitted};
}

// A controller slot of the usual shape, with a page that echoes every pushed
// value back into the same slot, as a checkbox module does.
struct FakeController
{
    SettingsMap settings{{"NightTemperature", 3400}};
    SettingChanger change_setting{settings};
    std::vector<std::string> events;

    void night_temperature_changed(int value)
    {
        change_setting(
            "NightTemperature", value, [&] { events.push_back("apply " + std::to_string(value)); },
            [&](const QVariant& stored) {
                events.push_back("emit " + std::to_string(stored.toInt()));
                night_temperature_changed(stored.toInt());
            });
    }
};

} // namespace

TEST(ChangeRuleTest, OnlyAValueThatDiffersInItsOwnTypeActs)
{
    // A missing key reads as 0, false or ""; stored text (as the store reads
    // it before conversion) compares in the type of the new value.
    SettingsMap settings{{"WorkTime", 20}, {"UseSounds", QString("true")}, {"RestTime", QString("20")}};
    const std::pair<int, int> nothing{0, 0}, both{1, 1};
    EXPECT_EQ(acts(settings, "WorkTime", 20), nothing);
    EXPECT_EQ(acts(settings, "UiScale", 0), nothing);
    EXPECT_EQ(acts(settings, "UseCamera", false), nothing);
    EXPECT_EQ(acts(settings, "Language", QString()), nothing);
    EXPECT_EQ(acts(settings, "UseSounds", true), nothing);
    EXPECT_EQ(acts(settings, "RestTime", 20), nothing);
    EXPECT_EQ(settings.count("UiScale"), 0u);
    EXPECT_EQ(acts(settings, "UseCamera", true), both);
    EXPECT_EQ(settings.at("UseCamera"), QVariant(true));
    // Text is stored as QString.
    EXPECT_EQ(acts(settings, "Language", "de"), both);
    EXPECT_EQ(settings.at("Language").metaType(), QMetaType::fromType<QString>());
    EXPECT_EQ(settings.at("Language").toString(), "de");
}

TEST(ChangeRuleTest, NewValueIsStoredThenAppliedThenEmittedAsReadBack)
{
    // The map already holds the new value when it is applied; the apply may
    // change it again, and the emission carries what the map then holds.
    SettingsMap settings{{"WorkTime", 20}};
    std::vector<std::string> order;
    EXPECT_TRUE(change_setting(
        settings, "WorkTime", 5000,
        [&] {
            order.push_back("apply " + std::to_string(settings.at("WorkTime").toInt()));
            settings["WorkTime"] = 1440;
        },
        [&](const QVariant& value) { order.push_back("emit " + std::to_string(value.toInt())); }));
    EXPECT_EQ(order, (std::vector<std::string>{"apply 5000", "emit 1440"}));
}

TEST(ChangeRuleTest, PageEchoStopsAtTheComparison)
{
    FakeController controller;
    controller.night_temperature_changed(2700);
    EXPECT_EQ(controller.events, (std::vector<std::string>{"apply 2700", "emit 2700"}));
    EXPECT_EQ(controller.settings.at("NightTemperature").toInt(), 2700);
}

TEST(ChangeRuleTest, ForceActsOnAnEqualValue)
{
    SettingsMap settings{{"Language", QString("en")}};
    SettingChanger change_setting{settings};
    int applied = 0, emitted = 0;
    const auto apply = [&] { ++applied; };
    const auto emit_value = [&](const QVariant&) { ++emitted; };
    EXPECT_TRUE(change_setting.force("Language", QString("en"), apply, emit_value));
    EXPECT_FALSE(change_setting("Language", QString("en"), apply, emit_value));
    EXPECT_EQ(applied, 1);
    EXPECT_EQ(emitted, 1);
}
