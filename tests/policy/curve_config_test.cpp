#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <type_traits>

#include "policy/BrightnessConfigManager.h"
#include "policy/TemperatureConfigManager.h"
#include "time/Clock.h"

namespace {

QDateTime at_hour(int hour, int minute = 0)
{
    return QDateTime(QDate(2026, 3, 14), QTime(hour, minute), Qt::LocalTime);
}

// Runs each test in a fresh working directory, with the clock in hand.
class CurveConfigTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(directory.isValid());
        previous_directory = QDir::currentPath();
        ASSERT_TRUE(QDir::setCurrent(directory.path()));
        Clock::set_instance(&clock);
    }

    void TearDown() override
    {
        Clock::set_instance(nullptr);
        QDir::setCurrent(previous_directory);
    }

    void write(const QString& name, const QByteArray& content, const QString& folder = QString())
    {
        QFile file((folder.isEmpty() ? directory.path() : folder) + QLatin1Char('/') + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    // Applies the file at the given time; returns how often the display was
    // asked to update.
    template <typename Manager>
    int apply(const Manager& manager, int hour, int minute = 0)
    {
        clock.set(at_hour(hour, minute));
        int updates = 0;
        if constexpr (std::is_same_v<Manager, BrightnessConfigManager>)
            manager.process_brightness_config(settings, [&updates] { ++updates; });
        else
            manager.process_temperature_config(settings, [&updates] { ++updates; });
        return updates;
    }

    QTemporaryDir directory;
    QString previous_directory;
    FixedClock clock{at_hour(12)};
    std::map<QString, QVariant> settings;
};

TEST_F(CurveConfigTest, EntriesApplyByTheHour)
{
    // The value stored before each row: what an hour no entry covers keeps.
    const int stored_brightness = 75;
    const int stored_temperature = 4500;
    const struct
    {
        bool brightness;
        const char* file;
        int hour, minute, updates, value;
    } cases[] = {
        {true, "0 24 50\n", 0, 59, 1, 50}, {true, "0 24 50\n", 12, 59, 1, 50}, {true, "0 24 50\n", 23, 59, 1, 50},
        // Values are clamped to 5..100 % and 1000..13000 K.
        {true, "0 12 200 12 24 1", 3, 0, 1, 100}, {true, "0 12 200 12 24 1", 15, 0, 1, 5},
        {true, "0 24 4", 1, 0, 1, 5}, {true, "0 24 101", 1, 0, 1, 100}, {true, "0 24 -7", 1, 0, 1, 5},
        {false, "0 12 500 12 24 20000", 3, 0, 1, 1000}, {false, "0 12 500 12 24 20000", 15, 0, 1, 13000},
        {false, "0 24 999", 1, 0, 1, 1000}, {false, "0 24 13001", 1, 0, 1, 13000}, {false, "0 24 4500", 1, 0, 1, 4500},
        // A file that is half right is not used: a missing number read as 0
        // would hold the night at the lowest brightness all day.
        {true, "0 24 50\n0 24", 10, 0, 0, stored_brightness},
        {false, "6 18 5000 7", 10, 0, 0, stored_temperature},
        {true, "8 10 sixty\n", 9, 0, 0, stored_brightness},
        // A range over midnight never matches.
        {false, "22 6 3000", 22, 0, 0, stored_temperature}, {false, "22 6 3000", 23, 0, 0, stored_temperature},
        {false, "22 6 3000", 0, 0, 0, stored_temperature}, {false, "22 6 3000", 5, 0, 0, stored_temperature},
        {false, "22 6 3000", 12, 0, 0, stored_temperature},
        // The last match wins, and each match updates the display.
        {true, "0 24 40\n18 20 70\n19 20 90\n", 17, 59, 1, 40}, {true, "0 24 40\n18 20 70\n19 20 90\n", 18, 0, 2, 70},
        {true, "0 24 40\n18 20 70\n19 20 90\n", 18, 59, 2, 70}, {true, "0 24 40\n18 20 70\n19 20 90\n", 19, 0, 3, 90},
        {true, "0 24 40\n18 20 70\n19 20 90\n", 19, 59, 3, 90}, {true, "0 24 40\n18 20 70\n19 20 90\n", 20, 0, 1, 40},
        {true, "8 10 60", 7, 59, 0, stored_brightness}, {true, "8 10 60", 10, 0, 0, stored_brightness},
        {true, "8 10 60", 9, 0, 1, 60},
        // Line breaks have no meaning; other text refuses the whole file.
        {false, "0\n\n12   3200 12\t24\n\n\n5600\n", 11, 0, 1, 3200},
        {false, "0\n\n12   3200 12\t24\n\n\n5600\n", 12, 0, 1, 5600},
        {true, "8 10 60\n# dim evenings\n18 24 30\n", 9, 0, 0, stored_brightness},
    };
    for (const auto& c : cases) {
        settings = {{"NightBrightness", stored_brightness}, {"NightTemperature", stored_temperature}};
        const char* key = c.brightness ? "NightBrightness" : "NightTemperature";
        int updates = 0;
        if (c.brightness) {
            write("brightnessConfig.txt", c.file);
            BrightnessConfigManager manager;
            manager.read_brightness_config();
            updates = apply(manager, c.hour, c.minute);
        } else {
            write("temperatureConfig.txt", c.file);
            TemperatureConfigManager manager;
            manager.read_temperature_config();
            updates = apply(manager, c.hour, c.minute);
        }
        const std::string what = std::string(c.file) + " at " + std::to_string(c.hour) + ":" + std::to_string(c.minute);
        EXPECT_EQ(updates, c.updates) << what;
        EXPECT_EQ(settings[key].toInt(), c.value) << what;
    }
}

TEST_F(CurveConfigTest, OnlyThePlainKeysAreWritten)
{
    write("brightnessConfig.txt", "0 24 50");
    write("temperatureConfig.txt", "0 24 2700");
    BrightnessConfigManager brightness;
    TemperatureConfigManager temperature;
    brightness.read_brightness_config();
    temperature.read_temperature_config();
    apply(brightness, 9);
    apply(temperature, 9);
    EXPECT_EQ(settings, (std::map<QString, QVariant>{{"NightBrightness", 50}, {"NightTemperature", 2700}}));
}

TEST_F(CurveConfigTest, FileIsReadOnceFromTheWorkingDirectoryOnly)
{
    BrightnessConfigManager brightness;
    TemperatureConfigManager temperature;
    temperature.read_temperature_config();
    EXPECT_FALSE(temperature.is_config_used());

    QTemporaryDir elsewhere;
    ASSERT_TRUE(elsewhere.isValid());
    write("brightnessConfig.txt", "0 24 50", elsewhere.path());
    brightness.read_brightness_config();
    EXPECT_FALSE(brightness.is_config_used());
    ASSERT_TRUE(QDir::setCurrent(elsewhere.path()));
    brightness.read_brightness_config();
    EXPECT_TRUE(brightness.is_config_used());

    // Later edits wait for the next read.
    write("brightnessConfig.txt", "0 24 90", elsewhere.path());
    apply(brightness, 12);
    EXPECT_EQ(settings["NightBrightness"].toInt(), 50);
}

}
