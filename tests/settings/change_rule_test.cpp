#include <QObject>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "settings/ChangeRule.h"

namespace {

// A controller slot of the usual shape, with a page that echoes every pushed
// value back into the same slot, as a checkbox module does.
struct FakeController
{
    SettingsMap settings;
    SettingChanger change_setting{settings};
    std::vector<std::string> events;
    bool page_echoes = true;

    void night_temperature_changed(int value)
    {
        change_setting(
            "NightTemperature", value, [&] { events.push_back("apply " + std::to_string(value)); },
            [&](const QVariant& stored) {
                events.push_back("emit " + std::to_string(stored.toInt()));
                if (page_echoes)
                    night_temperature_changed(stored.toInt());
            });
    }
};

} // namespace

TEST(ChangeRuleTest, EqualValueDoesNothing)
{
    SettingsMap settings{{"WorkTime", 20}};
    int applied = 0, emitted = 0;
    EXPECT_FALSE(change_setting(settings, "WorkTime", 20, [&] { ++applied; },
                                [&](const QVariant&) { ++emitted; }));
    EXPECT_EQ(applied, 0);
    EXPECT_EQ(emitted, 0);
    EXPECT_EQ(settings.at("WorkTime"), QVariant(20));
}

TEST(ChangeRuleTest, NewValueIsStoredThenAppliedThenEmitted)
{
    SettingsMap settings{{"WorkTime", 20}};
    std::vector<std::string> order;
    EXPECT_TRUE(change_setting(
        settings, "WorkTime", 45,
        [&] {
            // The map already holds the new value when it is applied.
            order.push_back("apply " + std::to_string(settings.at("WorkTime").toInt()));
        },
        [&](const QVariant& value) { order.push_back("emit " + std::to_string(value.toInt())); }));
    EXPECT_EQ(order, (std::vector<std::string>{"apply 45", "emit 45"}));
    EXPECT_EQ(settings.at("WorkTime"), QVariant(45));
}

TEST(ChangeRuleTest, EmitCarriesTheValueReadBackAfterApply)
{
    SettingsMap settings{{"WorkTime", 20}};
    int emitted = -1;
    change_setting(
        settings, "WorkTime", 5000, [&] { settings["WorkTime"] = 1440; },
        [&](const QVariant& value) { emitted = value.toInt(); });
    EXPECT_EQ(emitted, 1440);
}

TEST(ChangeRuleTest, PageEchoStopsAtTheComparison)
{
    FakeController controller;
    controller.settings["NightTemperature"] = 3400;
    controller.night_temperature_changed(2700);
    EXPECT_EQ(controller.events, (std::vector<std::string>{"apply 2700", "emit 2700"}));
    EXPECT_EQ(controller.settings.at("NightTemperature").toInt(), 2700);
}

TEST(ChangeRuleTest, MissingKeyReadsAsZeroFalseOrEmpty)
{
    SettingsMap settings;
    int emitted = 0;
    auto count = [&](const QVariant&) { ++emitted; };
    EXPECT_FALSE(change_setting(settings, "UiScale", 0, nullptr, count));
    EXPECT_FALSE(change_setting(settings, "UseSounds", false, nullptr, count));
    EXPECT_FALSE(change_setting(settings, "Language", QString(), nullptr, count));
    EXPECT_EQ(emitted, 0);
    EXPECT_TRUE(change_setting(settings, "UseSounds", true, nullptr, count));
    EXPECT_EQ(emitted, 1);
    EXPECT_EQ(settings.at("UseSounds"), QVariant(true));
}

TEST(ChangeRuleTest, ComparesInTheTypeOfTheNewValue)
{
    // As the store reads it before conversion: text.
    SettingsMap settings{{"UseSounds", QString("true")}, {"WorkTime", QString("20")}};
    int emitted = 0;
    auto count = [&](const QVariant&) { ++emitted; };
    EXPECT_FALSE(change_setting(settings, "UseSounds", true, nullptr, count));
    EXPECT_FALSE(change_setting(settings, "WorkTime", 20, nullptr, count));
    EXPECT_EQ(emitted, 0);
}

TEST(ChangeRuleTest, TextValuesAreStoredAsQString)
{
    SettingsMap settings{{"Language", QString("en")}};
    QString emitted;
    EXPECT_TRUE(change_setting(settings, "Language", "de", nullptr,
                               [&](const QVariant& value) { emitted = value.toString(); }));
    EXPECT_EQ(emitted, "de");
    EXPECT_EQ(settings.at("Language").metaType(), QMetaType::fromType<QString>());
}

TEST(ChangeRuleTest, ForceActsOnAnEqualValue)
{
    SettingsMap settings{{"Language", QString("en")}};
    SettingChanger change_setting{settings};
    int applied = 0, emitted = 0;
    EXPECT_TRUE(change_setting.force("Language", QString("en"), [&] { ++applied; },
                                     [&](const QVariant&) { ++emitted; }));
    EXPECT_EQ(applied, 1);
    EXPECT_EQ(emitted, 1);
    EXPECT_FALSE(change_setting("Language", QString("en"), [&] { ++applied; },
                                [&](const QVariant&) { ++emitted; }));
    EXPECT_EQ(applied, 1);
}

TEST(ChangeRuleTest, MonitorKeysAreSeparateEntries)
{
    SettingsMap settings{{"DayTemperature", 5000}, {"DayTemperature2", 5000}};
    SettingChanger change_setting{settings};
    EXPECT_TRUE(change_setting("DayTemperature2", 4000, nullptr, [](const QVariant&) {}));
    EXPECT_EQ(settings.at("DayTemperature").toInt(), 5000);
    EXPECT_EQ(settings.at("DayTemperature2").toInt(), 4000);
}
