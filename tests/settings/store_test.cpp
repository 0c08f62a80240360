#include <QPoint>
#include <QTextStream>
#include <QVariantList>

#include "settings/SaveKeys.h"
#include "store_fixture.h"

namespace {

const QByteArray version_only = "[General]\nSaveVersion=3\n";

struct DefaultRow
{
    QString key, type, value, scope;
};

// tests/data/setting_defaults.tsv: key, type, default, scope.
std::vector<DefaultRow> default_rows()
{
    std::vector<DefaultRow> rows;
    QFile file(qEnvironmentVariable("OVRA_TEST_DATA") + "/setting_defaults.tsv");
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return rows;
    QTextStream stream(&file);
    while (!stream.atEnd()) {
        const QStringList fields = stream.readLine().split('\t');
        if (fields.size() == 4 && !fields[0].startsWith('#'))
            rows.push_back({fields[0], fields[1], QString(fields[2]).replace("\\n", "\n"), fields[3]});
    }
    return rows;
}

QVariant expected_value(const DefaultRow& row)
{
    if (row.type == "int")
        return row.value.toInt();
    if (row.type == "bool")
        return row.value == "true";
    if (row.type == "point")
        return QPoint(row.value.section(',', 0, 0).toInt(), row.value.section(',', 1, 1).toInt());
    if (row.type == "list")
        return QVariantList();
    if (row.type == "double")
        return row.value.toDouble();
    return row.value;
}

} // namespace

using StoreTest = StoreFixture;

TEST_F(StoreTest, StoreWithOnlyTheVersionYieldsTheDefaults)
{
    const std::vector<DefaultRow> rows = default_rows();
    ASSERT_GT(rows.size(), 150u) << "tests/data/setting_defaults.tsv not found or short";
    screens = 2;
    write_store(version_only);
    open().restore_settings();

    size_t expected_entries = 0;
    for (const DefaultRow& row : rows) {
        const QStringList keys = row.scope == "direct"    ? QStringList()
                                 : row.scope == "monitor" ? QStringList{row.key, row.key + "1", row.key + "2"}
                                                          : QStringList{row.key};
        EXPECT_EQ(settings.count(row.key), keys.isEmpty() ? 0u : 1u) << row.key.toStdString();
        for (const QString& key : keys) {
            ++expected_entries;
            ASSERT_EQ(settings.count(key), 1u) << key.toStdString() << " missing from the map";
            EXPECT_EQ(settings[key], expected_value(row)) << key.toStdString() << " is "
                                                          << settings[key].toString().toStdString();
            EXPECT_EQ(settings[key].metaType(), expected_value(row).metaType()) << key.toStdString();
        }
    }
    EXPECT_EQ(settings.size(), expected_entries) << "the map holds keys the table does not name";
    EXPECT_EQ(latitude, -1.0);
    EXPECT_EQ(longitude, -1.0);
    EXPECT_TRUE(ignored_monitors.empty());
    EXPECT_EQ(reset_timer_calls, 3);

    // Reads past the map use the table's defaults, but for the brightness.
    SaveManager& store = *manager;
    EXPECT_EQ(store.get_brightness(), 85);
    EXPECT_EQ(store.getUpdatesInterval(), 1);
    EXPECT_EQ((std::vector<bool>{store.check_for_updates(), store.auto_save_settings(), store.hideTaskbarIcon(),
                                 store.use_software_cursor(), store.useMouseInactivity(), store.use_keyboard_blocking(),
                                 store.are_websites_blocked(), store.areApplicationsBlocked(),
                                 store.is_ovra_calibrated(), store.is_gdipp_enabled()}),
              (std::vector<bool>{false, true, true, false, false, false, false, false, false, false}));
    EXPECT_EQ(store.get_api_arguments() + store.get_asana_access_token(), QString());
}

TEST_F(StoreTest, FirstRunAndVersionMismatchKeepOnlyFirstStartAndLanguage)
{
    open().restore_settings();
    EXPECT_TRUE(settings["IsFirstStart"].toBool());
    EXPECT_EQ(settings["Language"].toString(), "en");
    manager->get_settings()->sync();
    EXPECT_EQ(stored_lines().at("SaveVersion"), "3");

    write_store("[General]\nSaveVersion=2\nIsFirstStart=false\nLanguage=de\n"
                "DayTemperature=4000\nUnknownKey=kept?\n[Other]\nThing=1\n");
    open();
    manager->get_settings()->sync();
    close();
    EXPECT_EQ(stored_lines(),
              (std::map<QString, QString>{{"SaveVersion", "3"}, {"IsFirstStart", "false"}, {"Language", "de"}}));
    EXPECT_FALSE(read_store().contains("[Other]"));
    open().restore_settings();
    EXPECT_EQ(settings["DayTemperature"].toInt(), 5000);
    EXPECT_FALSE(settings["IsFirstStart"].toBool());
    EXPECT_EQ(settings["Language"].toString(), "de");

    // A reset to the defaults keeps the same two.
    write_store("[General]\nSaveVersion=3\nIsFirstStart=false\nLanguage=fr\nWorkTime=45\n");
    open().reset_settings_to_default();
    EXPECT_EQ(stored_lines(),
              (std::map<QString, QString>{{"SaveVersion", "3"}, {"IsFirstStart", "false"}, {"Language", "fr"}}));
    manager->restore_settings();
    EXPECT_EQ(settings["WorkTime"].toInt(), 20);
}

TEST_F(StoreTest, TwoMonitorsGiveThreePassesAndKeys)
{
    screens = 2;
    write_store("[General]\nSaveVersion=3\nDayTemperature=4000\nDayTemperature1=4100\n"
                "DayTemperature2=4200\nDayTemperature3=4300\nNightBrightness2=60\n");
    open().restore_settings();
    EXPECT_EQ(reset_timer_calls, 3);
    EXPECT_EQ(settings["DayTemperature"].toInt(), 4000);
    EXPECT_EQ(settings["DayTemperature1"].toInt(), 4100);
    EXPECT_EQ(settings["DayTemperature2"].toInt(), 4200);
    EXPECT_EQ(settings.count("DayTemperature3"), 0u);
    EXPECT_EQ(settings["NightBrightness2"].toInt(), 60);
    EXPECT_EQ(settings["NightBrightness1"].toInt(), 80);

    settings["DayTemperature1"] = 3900;
    manager->save_settings();
    const std::map<QString, QString> lines = stored_lines();
    EXPECT_EQ(lines.at("DayTemperature"), "4000");
    EXPECT_EQ(lines.at("DayTemperature1"), "3900");
    EXPECT_EQ(lines.at("DayTemperature2"), "4200");
    EXPECT_EQ(lines.at("DayTemperature3"), "4300") << "a key of a monitor not present stays";
    EXPECT_EQ(lines.at("NightBrightness2"), "60");
    EXPECT_EQ(lines.count("SleepLight3"), 0u);
}

TEST_F(StoreTest, TemperaturesSaveOnWholeHundredsAndRepairsWaitForASave)
{
    write_store("[General]\nSaveVersion=3\nDayTemperature=5055\nNightTemperature=3499\n"
                "SleepLight=2755\nDayTemperature1=6199\nWorkTime=2000\n");
    open().restore_settings();
    EXPECT_EQ(settings["DayTemperature"].toInt(), 5055);
    EXPECT_EQ(settings["WorkTime"].toInt(), 1440);
    manager->get_settings()->sync();
    EXPECT_EQ(stored_lines().at("WorkTime"), "2000");

    manager->save_settings();
    const std::map<QString, QString> lines = stored_lines();
    EXPECT_EQ(lines.at("DayTemperature"), "5000");
    EXPECT_EQ(lines.at("NightTemperature"), "3400");
    EXPECT_EQ(lines.at("SleepLight"), "2755");
    EXPECT_EQ(lines.at("DayTemperature1"), "6100");
    EXPECT_EQ(lines.at("WorkTime"), "1440");
    // The map keeps what the user set.
    EXPECT_EQ(settings["DayTemperature"].toInt(), 5055);
}

TEST_F(StoreTest, ValidationRepairsOutOfRangeValues)
{
    const struct
    {
        const char* stored;
        const char* key;
        int expected;
    } repairs[] = {
        {"WorkTime=0", "WorkTime", 1},           {"WorkTime=-7", "WorkTime", 1},
        {"WorkTime=1440", "WorkTime", 1440},     {"WorkTime=1", "WorkTime", 1},
        {"WorkTime=abc", "WorkTime", 1},         {"RestTime=0", "RestTime", 1},
        {"RestTime=86401", "RestTime", 86400},   {"RestTime=86400", "RestTime", 86400},
        {"PostponeTime=0", "PostponeTime", 1},   {"PostponeTime=100000", "PostponeTime", 100000},
        {"TimerType=0", "TimerType", 0},         {"TimerType=-3", "TimerType", 1},
        {"DayTemperature=10001", "DayTemperature", 6000}, {"DayTemperature=-1", "DayTemperature", 6000},
        {"DayTemperature=10000", "DayTemperature", 10000}, {"DayTemperature=0", "DayTemperature", 0},
        {"DayTemperature=abc", "DayTemperature", 0},       {"NightTemperature=20000", "NightTemperature", 4400},
        {"NightTemperature1=-2", "NightTemperature1", 4400}, {"SleepLight=-50", "SleepLight", 3700},
        {"DayBrightness=9", "DayBrightness", 100},         {"DayBrightness=10", "DayBrightness", 10},
        {"NightBrightness=151", "NightBrightness", 85},    {"NightBrightness=150", "NightBrightness", 150},
        {"SleepBrightness=0", "SleepBrightness", 80},      {"SleepBrightness1=200", "SleepBrightness1", 80},
    };
    for (const auto& repair : repairs) {
        settings.clear();
        write_store(version_only + repair.stored + "\n");
        open().restore_settings();
        EXPECT_EQ(settings[repair.key].toInt(), repair.expected) << repair.stored;
    }
}

TEST_F(StoreTest, BadFilesStartWithRepairedDefaults)
{
    const QByteArray bad_files[] = {
        "",
        "\x00\x01\x02\xff\xfe garbage \n\n==\n[[[\n",
        "[General]\nSaveVersion=3\nDayTemperature=@Variant(\\0\\0\\0\\x7f)\nWorkTime=@Point(1 2)\n"
        "UseSounds=maybe\nUnusedPages=@Invalid()\nOverlayScreenStartMousePosition=12\n",
        "[General]\nSaveVersion=3\nDayBrightness",
        "SaveVersion=3\nWorkTime=5\n",
    };
    for (const QByteArray& content : bad_files) {
        settings.clear();
        write_store(content);
        open().restore_settings();
        EXPECT_GE(settings["WorkTime"].toInt(), 1);
        EXPECT_LE(settings["WorkTime"].toInt(), 1440);
        const int day = settings["DayTemperature"].toInt();
        EXPECT_TRUE(day >= 0 && day <= 10000) << day;
        const int brightness = settings["DayBrightness"].toInt();
        EXPECT_TRUE(brightness >= 10 && brightness <= 150) << brightness;
        manager->save_settings();
    }
    // Nor does a store that is a directory stop the program.
    close();
    QFile::remove(store_path());
    QDir().mkpath(store_path());
    open().restore_settings();
    EXPECT_EQ(settings["WorkTime"].toInt(), 20);
    manager->save_settings();
    close();
    QDir(store_path()).removeRecursively();
}

TEST_F(StoreTest, IgnoredMonitorsAndLocationRoundTrip)
{
    write_store("[General]\nSaveVersion=3\nIgnoreMonitors=1:3:\nLatitude=52.52\nLongitude=13.405\n");
    open().restore_settings();
    EXPECT_EQ(ignored_monitors, (std::vector<int>{1, 3}));
    EXPECT_DOUBLE_EQ(latitude, 52.52);
    EXPECT_DOUBLE_EQ(longitude, 13.405);
    latitude = -33.5;
    manager->save_settings();
    EXPECT_EQ(stored_lines().at("IgnoreMonitors"), "1:3:");
    manager->restore_location_data();
    EXPECT_DOUBLE_EQ(latitude, -33.5);
    EXPECT_DOUBLE_EQ(longitude, 13.405);
    ignored_monitors = {2};
    manager->save_ignored_monitors();
    manager->restore_ignored_monitors();
    EXPECT_EQ(ignored_monitors, (std::vector<int>{2}));

    for (const auto& [stored, expected] : {std::pair<QByteArray, std::vector<int>>{"", {}}, {"x:2::7", {2, 7}}}) {
        write_store(version_only + "IgnoreMonitors=" + stored + "\n");
        ignored_monitors = {5};
        open().restore_settings();
        EXPECT_EQ(ignored_monitors, expected) << stored.constData();
    }
}

TEST_F(StoreTest, SaveKeepsWhatItDoesNotOwn)
{
    // Unknown keys and groups, and the run state, which has a save of its
    // own; hand-written text with commas stays text. The lists are written
    // from the map, as the page last sent them: a save never waits for a page.
    write_store("[General]\nSaveVersion=3\nFutureKey=hello\nDayTemperature5=4000\nColorPausers=gimp, krita\n"
                "TimerPaused=false\n[Window]\nGeometry=1\n");
    open().restore_settings();
    EXPECT_EQ(settings["ColorPausers"].toString(), "gimp, krita");
    EXPECT_FALSE(settings["TimerPaused"].toBool());
    settings["ColorPausers"] = "krita";
    settings["TimerPaused"] = true;
    manager->save_settings();
    close();
    const std::map<QString, QString> lines = stored_lines();
    EXPECT_EQ(lines.at("FutureKey"), "hello");
    EXPECT_EQ(lines.at("DayTemperature5"), "4000");
    EXPECT_EQ(lines.at("Geometry"), "1");
    EXPECT_TRUE(read_store().contains("[Window]"));
    EXPECT_EQ(lines.at("ColorPausers"), "krita");
    EXPECT_EQ(lines.at("TimerPaused"), "false");
    EXPECT_EQ(lines.count("ColorChangesPaused"), 0u);

    open().save_color_pausers("krita\nblender");
    manager->get_settings()->sync();
    manager->restore_settings();
    EXPECT_EQ(settings["ColorPausers"].toString(), "krita\nblender");
}

TEST_F(StoreTest, SaveWritesEveryKeyOfTheSaveList)
{
    write_store(version_only);
    open().restore_settings();
    manager->save_settings();
    const std::map<QString, QString> lines = stored_lines();
    for (const char* key : {"UiScale", "PWMFrequency", "WorkTime", "UseSounds", "AdvancedView", "DayOpacity",
                            "WakeTimeMinutes", "UpdatesInterval", "FontType", "UseHardwareBrightness",
                            "HardwareBrightnessLimit", "OverlayScreenStartMousePosition", "UnusedPages", "UseGhostIcon",
                            "FullMoonOffset", "AllowMultipleInstances", "UseKeyboardHook",
                            "MousePausersPauseOnFullscreenApps", "ZoomOutHotkey", "AdvancedLightnessScreenXposition",
                            "HideTaskbarIcon", "IsFirstStart", "Language", "OvraMode", "OvraType", "Latitude",
                            "Longitude", "IgnoreMonitors", "SleepBrightness"})
        EXPECT_EQ(lines.count(key), 1u) << key;
    EXPECT_EQ(lines.at("OverlayScreenStartMousePosition"), "@Point(0 0)");
    EXPECT_EQ(lines.at("UseSounds"), "true");
    EXPECT_EQ(lines.at("ZoomInHotkey"), "Ctrl+Alt++");
    EXPECT_EQ(lines.count("AdvancedLightnessScreenXPosition"), 0u);
    EXPECT_EQ(lines.count("LightnessScreenXposition"), 0u);
}

TEST_F(StoreTest, TrayIconAndInversionSavesWriteTheirKeysOnly)
{
    write_store(version_only);
    open().restore_settings();
    has_run_state = true;
    run_state = {true, true, false, true};
    settings["OvraMode"] = 2;
    settings["OvraType"] = 7;
    settings["UseInvertedColors"] = true;
    manager->save_tray_icon();
    manager->save_use_inverted_colors();
    manager->get_settings()->sync();
    EXPECT_EQ(stored_lines(), (std::map<QString, QString>{{"SaveVersion", "3"},
                                                          {"ColorChangesPaused", "true"},
                                                          {"OvraPaused", "true"},
                                                          {"TimerPaused", "false"},
                                                          {"CameraActive", "true"},
                                                          {"OvraMode", "2"},
                                                          {"OvraType", "7"},
                                                          {"UseInvertedColors", "1"}}));
    // A number in the file, a boolean in the map.
    manager->restore_settings();
    EXPECT_EQ(settings["UseInvertedColors"], QVariant(true));
}

TEST_F(StoreTest, MissingControllerIsASoftAssertion)
{
    set_settings_host_source([] { return SettingsHost(); });
    write_store(version_only);
    testing::internal::CaptureStdout();
    open().restore_settings();
    manager->save_settings();
    manager->save_tray_icon();
    const std::string output = testing::internal::GetCapturedStdout();
    EXPECT_NE(output.find("Condition failed: REQUIRE\nExpected:\tmain_window\n"), std::string::npos);
    EXPECT_TRUE(settings.empty());
}

TEST_F(StoreTest, UnusedPagesReadAsAListOfNames)
{
    const std::pair<const char*, QStringList> cases[] = {
        {"Effects", {"Effects"}}, {"Effects, Breaks", {"Effects", "Breaks"}}, {"", {}}, {"@Invalid()", {}}};
    for (const auto& [stored, expected] : cases) {
        write_store(version_only + "UnusedPages=" + stored + "\n");
        open().restore_settings();
        EXPECT_EQ(settings["UnusedPages"].metaType(), QMetaType::fromType<QVariantList>()) << stored;
        EXPECT_EQ(settings["UnusedPages"].toStringList(), expected) << stored;
        manager->save_settings();
        manager->restore_settings();
        EXPECT_EQ(settings["UnusedPages"].toStringList(), expected) << stored << " after a save";
    }
}
