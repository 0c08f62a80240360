#include <QByteArrayList>
#include <cmath>
#include <random>

#include "store_fixture.h"

// Randomly damaged store files, from a fixed seed so that a failure repeats:
// each must load without a crash, and whatever it loads must survive a save
// and a second load unchanged (but for the temperatures, which the save puts
// on whole hundreds).
namespace {

const char* const base_store =
    "[General]\n"
    "SaveVersion=3\n"
    "IsFirstStart=false\n"
    "Language=de\n"
    "OvraMode=2\n"
    "OvraType=4\n"
    "DayTemperature=5055\n"
    "DayTemperature1=6100\n"
    "DayTemperature2=4321\n"
    "NightTemperature=2950\n"
    "NightTemperature2=3333\n"
    "SleepLight=2705\n"
    "DayBrightness=95\n"
    "NightBrightness1=70\n"
    "SleepBrightness2=60\n"
    "WorkTime=45\n"
    "RestTime=300\n"
    "PostponeTime=5\n"
    "TimerType=3\n"
    "UseSounds=false\n"
    "UseManualColorSettings=true\n"
    "AdvancedView=true\n"
    "ColorPausers=gimp\\nkrita\n"
    "ColorTriggers=\"vlc = 6500 120\"\n"
    "UnusedPages=Effects, Breaks\n"
    "OverlayScreenStartMousePosition=@Point(10 20)\n"
    "OverlayScreenEndMousePosition=@Point(300 400)\n"
    "IncreaseTemperatureHotkey=Ctrl+Shift+Up\n"
    "ZoomInHotkey=Ctrl+Alt++\n"
    "AdvancedLightnessScreenXposition=40\n"
    "Latitude=52.52\n"
    "Longitude=13.405\n"
    "IgnoreMonitors=1:3:\n"
    "LastCheckedDailyUsageOn=2024-01-01\n"
    "FutureKey=kept\n"
    "[Window]\n"
    "Geometry=@ByteArray(abc)\n";

const char* const odd_values[] = {
    "",      "abc",     "-1",          "99999999999", "@Point(1 2)", "@Invalid()",
    "true",  "1.5",     "@Variant(\\0\\0\\0\\x1)", "\\x41", "a, b, c", "\"quoted\"",
    "nan",   "1e400",   "@ByteArray(x)", "0",       "10001",       "@Rect(1 2 3 4)",
    "\\n\\n", "é",      "@@x",          "=",
};

QByteArray mutate(const QByteArray& original, std::mt19937& random)
{
    QByteArray data = original;
    const int kind = static_cast<int>(random() % 6);
    switch (kind) {
    case 0: // truncated, as by a torn write
        data.truncate(static_cast<int>(random() % (data.size() + 1)));
        break;
    case 1: { // flipped bytes
        const int flips = 1 + static_cast<int>(random() % 10);
        for (int i = 0; i < flips; ++i)
            data[static_cast<int>(random() % data.size())] = static_cast<char>(random() % 256);
        break;
    }
    case 2: { // values of the wrong type or out of range
        QByteArrayList lines = data.split('\n');
        const int changes = 1 + static_cast<int>(random() % 8);
        for (int i = 0; i < changes; ++i) {
            QByteArray& line = lines[static_cast<int>(random() % lines.size())];
            const int equals = line.indexOf('=');
            if (equals > 0 && !line.startsWith("SaveVersion"))
                line = line.left(equals + 1) +
                       odd_values[random() % (sizeof(odd_values) / sizeof(odd_values[0]))];
        }
        data = lines.join('\n');
        break;
    }
    case 3: { // lines lost
        QByteArrayList lines = data.split('\n');
        const int removals = 1 + static_cast<int>(random() % 10);
        for (int i = 0; i < removals && !lines.isEmpty(); ++i)
            lines.removeAt(static_cast<int>(random() % lines.size()));
        data = lines.join('\n');
        break;
    }
    case 4: { // lines repeated and shuffled
        QByteArrayList lines = data.split('\n');
        for (int i = 0; i < 5; ++i)
            lines.append(lines[static_cast<int>(random() % lines.size())]);
        std::shuffle(lines.begin(), lines.end(), random);
        data = lines.join('\n');
        break;
    }
    default: { // noise inserted
        const int position = static_cast<int>(random() % (data.size() + 1));
        QByteArray noise;
        const int length = 1 + static_cast<int>(random() % 40);
        for (int i = 0; i < length; ++i)
            noise.append(static_cast<char>(random() % 256));
        data.insert(position, noise);
        break;
    }
    }
    return data;
}

bool same_double(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) || a == b;
}

// What a save followed by a load gives back for a map: the same, with the
// two temperatures of each pass rounded down to whole hundreds.
SettingsMap saved_form(SettingsMap settings, int screens)
{
    for (int monitor = 0; monitor <= screens; ++monitor) {
        const QString suffix = monitor == 0 ? QString() : QString::number(monitor);
        for (const char* key : {"DayTemperature", "NightTemperature"}) {
            QVariant& value = settings[key + suffix];
            value = value.toInt() / 100 * 100;
        }
    }
    return settings;
}

} // namespace

using StoreFuzzTest = StoreFixture;

TEST_F(StoreFuzzTest, DamagedFilesLoadAndSurviveASaveUnchanged)
{
    screens = 2;
    std::mt19937 random(20240611);
    int rounds_past_the_version_check = 0;
    for (int round = 0; round < 300; ++round) {
        const QByteArray damaged = mutate(base_store, random);
        SCOPED_TRACE("round " + std::to_string(round) + ", file:\n" + damaged.toStdString());

        settings.clear();
        latitude = longitude = 777.0;
        ignored_monitors = {99};
        write_store(damaged);
        open().restore_settings();
        const SettingsMap loaded = settings;
        if (loaded.at("WorkTime").toInt() == 45)
            ++rounds_past_the_version_check;
        const double loaded_latitude = latitude;
        const double loaded_longitude = longitude;
        const std::vector<int> loaded_ignored = ignored_monitors;
        manager->save_settings();
        close();

        settings.clear();
        latitude = longitude = 777.0;
        ignored_monitors = {99};
        open().restore_settings();
        close();

        const SettingsMap expected = saved_form(loaded, screens);
        ASSERT_EQ(settings.size(), expected.size());
        for (const auto& [key, value] : expected) {
            ASSERT_EQ(settings.count(key), 1u) << key.toStdString();
            EXPECT_EQ(settings.at(key), value)
                << key.toStdString() << ": " << settings.at(key).toString().toStdString()
                << " after the save, " << value.toString().toStdString() << " before";
        }
        EXPECT_TRUE(same_double(latitude, loaded_latitude)) << latitude << " " << loaded_latitude;
        EXPECT_TRUE(same_double(longitude, loaded_longitude));
        EXPECT_EQ(ignored_monitors, loaded_ignored);
        if (HasFailure())
            break;
    }
    // Most damaged files must still be read, not wiped, or the test would
    // only ever see defaults.
    EXPECT_GT(rounds_past_the_version_check, 150);
}
