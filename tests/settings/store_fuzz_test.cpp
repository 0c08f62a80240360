#include <QByteArrayList>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <random>

#include "store_fixture.h"

// Randomly damaged store files, from a fixed seed so that a failure repeats:
// each must load without a crash, and whatever it loads must survive a save
// and a second load unchanged (but for the temperatures, which the save puts
// on whole hundreds).
namespace {

const char* const base_store =
    "[General]\nSaveVersion=3\nIsFirstStart=false\nLanguage=de\nOvraMode=2\nOvraType=4\n"
    "DayTemperature=5055\nDayTemperature1=6100\nDayTemperature2=4321\nNightTemperature=2950\n"
    "NightTemperature2=3333\nSleepLight=2705\nDayBrightness=95\nNightBrightness1=70\nSleepBrightness2=60\n"
    "WorkTime=45\nRestTime=300\nPostponeTime=5\nTimerType=3\nUseSounds=false\nUseManualColorSettings=true\n"
    "AdvancedView=true\nColorPausers=gimp\\nkrita\nColorTriggers=\"vlc = 6500 120\"\n"
    "UnusedPages=Effects, Breaks\nOverlayScreenStartMousePosition=@Point(10 20)\n"
    "OverlayScreenEndMousePosition=@Point(300 400)\nIncreaseTemperatureHotkey=Ctrl+Shift+Up\n"
    "ZoomInHotkey=Ctrl+Alt++\nAdvancedLightnessScreenXposition=40\nLatitude=52.52\nLongitude=13.405\n"
    "IgnoreMonitors=1:3:\nLastCheckedDailyUsageOn=2024-01-01\nFutureKey=kept\n"
    "[Window]\nGeometry=@ByteArray(abc)\n";

const char* const odd_values[] = {
    "",     "abc", "-1",   "99999999999",   "@Point(1 2)", "@Invalid()", "true",           "1.5",
    "@Variant(\\0\\0\\0\\x1)", "\\x41", "a, b, c", "\"quoted\"", "nan", "1e400", "@ByteArray(x)", "0",
    "10001", "@Rect(1 2 3 4)", "\\n\\n", "é", "@@x", "=",
};

QByteArray mutate(const QByteArray& original, std::mt19937& random)
{
    const auto pick = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    QByteArray data = original;
    QByteArrayList lines = data.split('\n');
    switch (pick(6)) {
    case 0: // truncated, as by a torn write
        data.truncate(pick(data.size() + 1));
        return data;
    case 1: // flipped bytes
        for (int i = 1 + pick(10); i > 0; --i)
            data[pick(data.size())] = static_cast<char>(pick(256));
        return data;
    case 2: // values of the wrong type or out of range
        for (int i = 1 + pick(8); i > 0; --i) {
            QByteArray& line = lines[pick(lines.size())];
            if (line.indexOf('=') > 0 && !line.startsWith("SaveVersion"))
                line = line.left(line.indexOf('=') + 1) + odd_values[pick(std::size(odd_values))];
        }
        return lines.join('\n');
    case 3: // lines lost
        for (int i = 1 + pick(10); i > 0 && !lines.isEmpty(); --i)
            lines.removeAt(pick(lines.size()));
        return lines.join('\n');
    case 4: // lines repeated and shuffled
        for (int i = 0; i < 5; ++i)
            lines.append(lines[pick(lines.size())]);
        std::shuffle(lines.begin(), lines.end(), random);
        return lines.join('\n');
    default: { // noise inserted
        QByteArray noise;
        const int position = pick(data.size() + 1);
        for (int i = 1 + pick(40); i > 0; --i)
            noise.append(static_cast<char>(pick(256)));
        return data.insert(position, noise);
    }
    }
}

// What a save followed by a load gives back for a map: the same, with the
// two temperatures of each pass rounded down to whole hundreds.
SettingsMap saved_form(SettingsMap settings, int screens)
{
    for (int monitor = 0; monitor <= screens; ++monitor)
        for (const char* key : {"DayTemperature", "NightTemperature"}) {
            QVariant& value = settings[key + (monitor == 0 ? QString() : QString::number(monitor))];
            value = value.toInt() / 100 * 100;
        }
    return settings;
}

} // namespace

using StoreFuzzTest = StoreFixture;

TEST_F(StoreFuzzTest, DamagedFilesLoadAndSurviveASaveUnchanged)
{
    screens = 2;
    // Loads into fields that hold what no load would give.
    const auto load = [this] {
        settings.clear();
        latitude = longitude = 777.0;
        ignored_monitors = {99};
        open().restore_settings();
    };
    const auto same = [](double a, double b) { return (std::isnan(a) && std::isnan(b)) || a == b; };
    std::mt19937 random(20240611);
    int rounds_past_the_version_check = 0;
    for (int round = 0; round < 300 && !HasFailure(); ++round) {
        const QByteArray damaged = mutate(base_store, random);
        SCOPED_TRACE("round " + std::to_string(round) + ", file:\n" + damaged.toStdString());
        write_store(damaged);
        load();
        const SettingsMap expected = saved_form(settings, screens);
        rounds_past_the_version_check += settings.at("WorkTime").toInt() == 45;
        const double loaded_latitude = latitude, loaded_longitude = longitude;
        const std::vector<int> loaded_ignored = ignored_monitors;
        manager->save_settings();
        load();
        close();

        ASSERT_EQ(settings.size(), expected.size());
        for (const auto& [key, value] : expected) {
            ASSERT_EQ(settings.count(key), 1u) << key.toStdString();
            EXPECT_EQ(settings.at(key), value) << key.toStdString() << ": " << settings.at(key).toString().toStdString()
                                               << " after the save, " << value.toString().toStdString() << " before";
        }
        EXPECT_TRUE(same(latitude, loaded_latitude)) << latitude << " " << loaded_latitude;
        EXPECT_TRUE(same(longitude, loaded_longitude));
        EXPECT_EQ(ignored_monitors, loaded_ignored);
    }
    // Most damaged files must still be read, not wiped, or the test would
    // only ever see defaults.
    EXPECT_GT(rounds_past_the_version_check, 150);
}
