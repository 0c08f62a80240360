#include <QPoint>
#include <QTextStream>
#include <QVariantList>

#include "settings/SaveKeys.h"
#include "store_fixture.h"

namespace {

struct DefaultRow
{
    QString key;
    QString type;
    QString value;
    QString scope;
};

std::vector<DefaultRow> default_rows()
{
    std::vector<DefaultRow> rows;
    QFile file(qEnvironmentVariable("OVRA_TEST_DATA") + "/setting_defaults.tsv");
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return rows;
    QTextStream stream(&file);
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const QStringList fields = line.split('\t');
        if (fields.size() != 4)
            continue;
        QString value = fields[2];
        value.replace("\\n", "\n");
        rows.push_back({fields[0], fields[1], value, fields[3]});
    }
    return rows;
}

QVariant expected_value(const DefaultRow& row)
{
    if (row.type == "int")
        return row.value.toInt();
    if (row.type == "bool")
        return row.value == "true";
    if (row.type == "point") {
        const QStringList xy = row.value.split(',');
        return QPoint(xy[0].toInt(), xy[1].toInt());
    }
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
    write_store("[General]\nSaveVersion=3\n");
    open().restore_settings();

    size_t expected_entries = 0;
    for (const DefaultRow& row : rows) {
        const QVariant expected = expected_value(row);
        if (row.scope == "direct") {
            EXPECT_EQ(settings.count(row.key), 0u) << row.key.toStdString();
            continue;
        }
        const QStringList keys = row.scope == "monitor"
                                     ? QStringList{row.key, row.key + "1", row.key + "2"}
                                     : QStringList{row.key};
        for (const QString& key : keys) {
            ++expected_entries;
            ASSERT_EQ(settings.count(key), 1u) << key.toStdString() << " missing from the map";
            EXPECT_EQ(settings[key], expected)
                << key.toStdString() << " is " << settings[key].toString().toStdString();
            EXPECT_EQ(settings[key].metaType(), expected.metaType()) << key.toStdString();
        }
    }
    EXPECT_EQ(settings.size(), expected_entries) << "the map holds keys the table does not name";
    EXPECT_EQ(latitude, -1.0);
    EXPECT_EQ(longitude, -1.0);
    EXPECT_TRUE(ignored_monitors.empty());
    EXPECT_EQ(reset_timer_calls, 3);
}

TEST_F(StoreTest, DirectReadsUseTheTableDefaults)
{
    write_store("[General]\nSaveVersion=3\n");
    SaveManager& store = open();
    EXPECT_FALSE(store.check_for_updates());
    EXPECT_TRUE(store.auto_save_settings());
    EXPECT_TRUE(store.hideTaskbarIcon());
    EXPECT_FALSE(store.use_software_cursor());
    EXPECT_FALSE(store.useMouseInactivity());
    EXPECT_FALSE(store.use_keyboard_blocking());
    EXPECT_EQ(store.getUpdatesInterval(), 1);
    // The one direct read whose default is not the table's.
    EXPECT_EQ(store.get_brightness(), 85);
    EXPECT_EQ(store.get_api_arguments(), QString());
    EXPECT_FALSE(store.are_websites_blocked());
    EXPECT_FALSE(store.areApplicationsBlocked());
    EXPECT_FALSE(store.is_ovra_calibrated());
    EXPECT_FALSE(store.is_gdipp_enabled());
    EXPECT_EQ(store.get_asana_access_token(), QString());
}

TEST_F(StoreTest, VersionMismatchKeepsOnlyFirstStartAndLanguage)
{
    write_store("[General]\nSaveVersion=2\nIsFirstStart=false\nLanguage=de\n"
                "DayTemperature=4000\nUnknownKey=kept?\n[Other]\nThing=1\n");
    open();
    manager->get_settings()->sync();
    close();

    const std::map<QString, QString> lines = stored_lines();
    EXPECT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines.at("SaveVersion"), "3");
    EXPECT_EQ(lines.at("IsFirstStart"), "false");
    EXPECT_EQ(lines.at("Language"), "de");
    EXPECT_FALSE(read_store().contains("[Other]"));

    open().restore_settings();
    EXPECT_EQ(settings["DayTemperature"].toInt(), 5000);
    EXPECT_FALSE(settings["IsFirstStart"].toBool());
    EXPECT_EQ(settings["Language"].toString(), "de");
}

TEST_F(StoreTest, FirstRunWithoutFileStartsAsFirstStart)
{
    open().restore_settings();
    EXPECT_TRUE(settings["IsFirstStart"].toBool());
    EXPECT_EQ(settings["Language"].toString(), "en");
    manager->get_settings()->sync();
    EXPECT_EQ(stored_lines().at("SaveVersion"), "3");
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

TEST_F(StoreTest, TemperaturesSaveOnWholeHundreds)
{
    screens = 1;
    write_store("[General]\nSaveVersion=3\nDayTemperature=5055\nNightTemperature=3499\n"
                "SleepLight=2755\nDayTemperature1=6199\n");
    open().restore_settings();
    EXPECT_EQ(settings["DayTemperature"].toInt(), 5055);
    EXPECT_EQ(settings["NightTemperature"].toInt(), 3499);
    EXPECT_EQ(settings["DayTemperature1"].toInt(), 6199);

    manager->save_settings();
    const std::map<QString, QString> lines = stored_lines();
    EXPECT_EQ(lines.at("DayTemperature"), "5000");
    EXPECT_EQ(lines.at("NightTemperature"), "3400");
    EXPECT_EQ(lines.at("SleepLight"), "2755");
    EXPECT_EQ(lines.at("DayTemperature1"), "6100");
    // The map keeps what the user set.
    EXPECT_EQ(settings["DayTemperature"].toInt(), 5055);
}

TEST_F(StoreTest, RepairsStayInTheMapUntilASave)
{
    write_store("[General]\nSaveVersion=3\nWorkTime=2000\n");
    open().restore_settings();
    EXPECT_EQ(settings["WorkTime"].toInt(), 1440);
    manager->get_settings()->sync();
    EXPECT_EQ(stored_lines().at("WorkTime"), "2000");

    manager->save_settings();
    EXPECT_EQ(stored_lines().at("WorkTime"), "1440");
}

TEST_F(StoreTest, TimerTypeZeroSurvivesAndNegativeIsRepaired)
{
    write_store("[General]\nSaveVersion=3\nTimerType=0\n");
    open().restore_settings();
    EXPECT_EQ(settings["TimerType"].toInt(), 0);
    close();

    write_store("[General]\nSaveVersion=3\nTimerType=-3\n");
    open().restore_settings();
    EXPECT_EQ(settings["TimerType"].toInt(), 1);
}

struct Repair
{
    const char* stored;
    const char* key;
    int expected;
};

TEST_F(StoreTest, ValidationRepairsOutOfRangeValues)
{
    const Repair repairs[] = {
        {"WorkTime=0", "WorkTime", 1},
        {"WorkTime=-7", "WorkTime", 1},
        {"WorkTime=1440", "WorkTime", 1440},
        {"WorkTime=1", "WorkTime", 1},
        {"RestTime=0", "RestTime", 1},
        {"RestTime=86401", "RestTime", 86400},
        {"RestTime=86400", "RestTime", 86400},
        {"PostponeTime=0", "PostponeTime", 1},
        {"PostponeTime=100000", "PostponeTime", 100000},
        {"DayTemperature=10001", "DayTemperature", 6000},
        {"DayTemperature=-1", "DayTemperature", 6000},
        {"DayTemperature=10000", "DayTemperature", 10000},
        {"DayTemperature=0", "DayTemperature", 0},
        {"NightTemperature=20000", "NightTemperature", 4400},
        {"SleepLight=-50", "SleepLight", 3700},
        {"DayBrightness=9", "DayBrightness", 100},
        {"DayBrightness=10", "DayBrightness", 10},
        {"NightBrightness=151", "NightBrightness", 85},
        {"NightBrightness=150", "NightBrightness", 150},
        {"SleepBrightness=0", "SleepBrightness", 80},
        {"SleepBrightness1=200", "SleepBrightness1", 80},
        {"NightTemperature1=-2", "NightTemperature1", 4400},
        {"DayTemperature=abc", "DayTemperature", 0},
        {"WorkTime=abc", "WorkTime", 1},
    };
    for (const Repair& repair : repairs) {
        settings.clear();
        write_store(QByteArray("[General]\nSaveVersion=3\n") + repair.stored + "\n");
        open().restore_settings();
        EXPECT_EQ(settings[repair.key].toInt(), repair.expected) << repair.stored;
        close();
    }
}

TEST_F(StoreTest, IgnoredMonitorsRoundTrip)
{
    write_store("[General]\nSaveVersion=3\nIgnoreMonitors=1:3:\n");
    open().restore_settings();
    EXPECT_EQ(ignored_monitors, (std::vector<int>{1, 3}));
    manager->save_settings();
    EXPECT_EQ(stored_lines().at("IgnoreMonitors"), "1:3:");

    ignored_monitors = {2};
    manager->save_ignored_monitors();
    manager->restore_ignored_monitors();
    EXPECT_EQ(ignored_monitors, (std::vector<int>{2}));
    close();

    write_store("[General]\nSaveVersion=3\nIgnoreMonitors=\n");
    ignored_monitors = {5};
    open().restore_settings();
    EXPECT_TRUE(ignored_monitors.empty());
    close();

    write_store("[General]\nSaveVersion=3\nIgnoreMonitors=x:2::7\n");
    open().restore_settings();
    EXPECT_EQ(ignored_monitors, (std::vector<int>{2, 7}));
}

TEST_F(StoreTest, LocationRoundTrips)
{
    write_store("[General]\nSaveVersion=3\nLatitude=52.52\nLongitude=13.405\n");
    open().restore_settings();
    EXPECT_DOUBLE_EQ(latitude, 52.52);
    EXPECT_DOUBLE_EQ(longitude, 13.405);
    latitude = -33.5;
    manager->save_settings();
    manager->restore_location_data();
    EXPECT_DOUBLE_EQ(latitude, -33.5);
    EXPECT_DOUBLE_EQ(longitude, 13.405);
}

TEST_F(StoreTest, UnknownKeysAndGroupsSurviveASave)
{
    write_store("[General]\nSaveVersion=3\nFutureKey=hello\nDayTemperature5=4000\n"
                "[Window]\nGeometry=1\n");
    open().restore_settings();
    manager->save_settings();
    close();
    const QByteArray stored = read_store();
    EXPECT_TRUE(stored.contains("FutureKey=hello"));
    EXPECT_TRUE(stored.contains("DayTemperature5=4000"));
    EXPECT_TRUE(stored.contains("[Window]"));
    EXPECT_TRUE(stored.contains("Geometry=1"));
}

// The lists are written from the map, as the page last sent them: a save
// never waits for a page. The run state has a save of its own.
TEST_F(StoreTest, SavePassWritesListsAndLeavesRunStateAlone)
{
    write_store("[General]\nSaveVersion=3\nColorPausers=gimp\nTimerPaused=false\n");
    open().restore_settings();
    EXPECT_EQ(settings["ColorPausers"].toString(), "gimp");
    EXPECT_FALSE(settings["TimerPaused"].toBool());
    settings["ColorPausers"] = "krita";
    settings["TimerPaused"] = true;
    manager->save_settings();
    const std::map<QString, QString> lines = stored_lines();
    EXPECT_EQ(lines.at("ColorPausers"), "krita");
    EXPECT_EQ(lines.at("TimerPaused"), "false");
    EXPECT_EQ(lines.count("ColorChangesPaused"), 0u);

    manager->save_color_pausers("krita\nblender");
    manager->get_settings()->sync();
    manager->restore_settings();
    EXPECT_EQ(settings["ColorPausers"].toString(), "krita\nblender");
}

TEST_F(StoreTest, SaveWritesEveryKeyOfTheSaveList)
{
    write_store("[General]\nSaveVersion=3\n");
    open().restore_settings();
    manager->save_settings();
    const std::map<QString, QString> lines = stored_lines();
    for (const char* key : {"UiScale", "PWMFrequency", "WorkTime", "UseSounds", "AdvancedView",
                            "DayOpacity", "WakeTimeMinutes", "UpdatesInterval", "FontType",
                            "UseHardwareBrightness", "HardwareBrightnessLimit",
                            "OverlayScreenStartMousePosition", "UnusedPages", "UseGhostIcon",
                            "FullMoonOffset", "AllowMultipleInstances", "UseKeyboardHook",
                            "MousePausersPauseOnFullscreenApps", "ZoomOutHotkey",
                            "AdvancedLightnessScreenXposition", "HideTaskbarIcon",
                            "IsFirstStart", "Language", "OvraMode", "OvraType", "Latitude",
                            "Longitude", "IgnoreMonitors", "SleepBrightness"})
        EXPECT_EQ(lines.count(key), 1u) << key;
    EXPECT_EQ(lines.at("OverlayScreenStartMousePosition"), "@Point(0 0)");
    EXPECT_EQ(lines.at("UseSounds"), "true");
    EXPECT_EQ(lines.at("ZoomInHotkey"), "Ctrl+Alt++");
    EXPECT_EQ(lines.count("AdvancedLightnessScreenXPosition"), 0u);
    EXPECT_EQ(lines.count("LightnessScreenXposition"), 0u);
}

TEST_F(StoreTest, TrayIconSaveWritesTheRunState)
{
    write_store("[General]\nSaveVersion=3\n");
    open().restore_settings();
    has_run_state = true;
    run_state = {true, true, false, true};
    settings["OvraMode"] = 2;
    settings["OvraType"] = 7;
    manager->save_tray_icon();
    manager->get_settings()->sync();
    const std::map<QString, QString> lines = stored_lines();
    EXPECT_EQ(lines.at("ColorChangesPaused"), "true");
    EXPECT_EQ(lines.at("OvraPaused"), "true");
    EXPECT_EQ(lines.at("TimerPaused"), "false");
    EXPECT_EQ(lines.at("CameraActive"), "true");
    EXPECT_EQ(lines.at("OvraMode"), "2");
    EXPECT_EQ(lines.at("OvraType"), "7");
    EXPECT_EQ(lines.count("DayTemperature"), 0u);
}

TEST_F(StoreTest, ResetToDefaultKeepsFirstStartAndLanguage)
{
    write_store("[General]\nSaveVersion=3\nIsFirstStart=false\nLanguage=fr\nWorkTime=45\n");
    open().reset_settings_to_default();
    const std::map<QString, QString> lines = stored_lines();
    EXPECT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines.at("Language"), "fr");
    EXPECT_EQ(lines.at("IsFirstStart"), "false");
    manager->restore_settings();
    EXPECT_EQ(settings["WorkTime"].toInt(), 20);
}

TEST_F(StoreTest, InvertedColorsAreSavedAsANumberAndReadBackAsABoolean)
{
    write_store("[General]\nSaveVersion=3\n");
    open().restore_settings();
    settings["UseInvertedColors"] = true;
    manager->save_use_inverted_colors();
    manager->get_settings()->sync();
    EXPECT_EQ(stored_lines().at("UseInvertedColors"), "1");
    manager->restore_settings();
    EXPECT_EQ(settings["UseInvertedColors"], QVariant(true));
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
        close();
    }
}

TEST_F(StoreTest, StoreThatIsADirectoryDoesNotStopTheProgram)
{
    QDir().mkpath(store_path());
    open().restore_settings();
    EXPECT_EQ(settings["WorkTime"].toInt(), 20);
    manager->save_settings();
    close();
    QDir(store_path()).removeRecursively();
}

TEST_F(StoreTest, MissingControllerIsASoftAssertion)
{
    set_settings_host_source([] { return SettingsHost(); });
    write_store("[General]\nSaveVersion=3\n");
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
    struct Case
    {
        const char* stored;
        QStringList expected;
    };
    const Case cases[] = {
        {"UnusedPages=Effects", {"Effects"}},
        {"UnusedPages=Effects, Breaks", {"Effects", "Breaks"}},
        {"UnusedPages=", {}},
        {"UnusedPages=@Invalid()", {}},
    };
    for (const Case& c : cases) {
        write_store(QByteArray("[General]\nSaveVersion=3\n") + c.stored + "\n");
        open().restore_settings();
        const QVariant pages = settings["UnusedPages"];
        EXPECT_EQ(pages.metaType(), QMetaType::fromType<QVariantList>()) << c.stored;
        EXPECT_EQ(pages.toStringList(), c.expected) << c.stored;
        manager->save_settings();
        manager->restore_settings();
        EXPECT_EQ(settings["UnusedPages"].toStringList(), c.expected) << c.stored << " after a save";
        close();
    }
}

TEST_F(StoreTest, HandWrittenTextWithCommasKeepsItsText)
{
    write_store("[General]\nSaveVersion=3\nColorPausers=gimp, krita\nLanguage=de\n");
    open().restore_settings();
    EXPECT_EQ(settings["ColorPausers"].toString(), "gimp, krita");
    EXPECT_EQ(settings["Language"].toString(), "de");
}
