#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

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

    // Applies the brightness file at the given hour; returns how often the
    // display was asked to update.
    int apply_brightness(const BrightnessConfigManager& manager, int hour, int minute = 0)
    {
        clock.set(at_hour(hour, minute));
        int updates = 0;
        manager.process_brightness_config(settings, [&updates] { ++updates; });
        return updates;
    }

    int apply_temperature(const TemperatureConfigManager& manager, int hour, int minute = 0)
    {
        clock.set(at_hour(hour, minute));
        int updates = 0;
        manager.process_temperature_config(settings, [&updates] { ++updates; });
        return updates;
    }

    QTemporaryDir directory;
    QString previous_directory;
    FixedClock clock{at_hour(12)};
    std::map<QString, QVariant> settings;
};

TEST_F(CurveConfigTest, NoFileMeansTheFeatureIsUnused)
{
    BrightnessConfigManager brightness;
    TemperatureConfigManager temperature;
    brightness.read_brightness_config();
    temperature.read_temperature_config();
    EXPECT_FALSE(brightness.is_config_used());
    EXPECT_FALSE(temperature.is_config_used());
}

TEST_F(CurveConfigTest, WholeDayEntryHoldsNightBrightnessAllDay)
{
    write("brightnessConfig.txt", "0 24 50\n");
    BrightnessConfigManager manager;
    manager.read_brightness_config();
    ASSERT_TRUE(manager.is_config_used());
    for (int hour : {0, 6, 12, 23}) {
        settings[QStringLiteral("NightBrightness")] = 80;
        EXPECT_EQ(apply_brightness(manager, hour, 59), 1) << "hour " << hour;
        EXPECT_EQ(settings[QStringLiteral("NightBrightness")].toInt(), 50) << "hour " << hour;
    }
}

TEST_F(CurveConfigTest, OnlyThePlainKeyIsWritten)
{
    write("brightnessConfig.txt", "0 24 50");
    write("temperatureConfig.txt", "0 24 2700");
    BrightnessConfigManager brightness;
    TemperatureConfigManager temperature;
    brightness.read_brightness_config();
    temperature.read_temperature_config();
    apply_brightness(brightness, 9);
    apply_temperature(temperature, 9);
    EXPECT_EQ(settings.size(), 2u);
    EXPECT_EQ(settings[QStringLiteral("NightBrightness")].toInt(), 50);
    EXPECT_EQ(settings[QStringLiteral("NightTemperature")].toInt(), 2700);
}

TEST_F(CurveConfigTest, BrightnessIsClampedToFiveToHundred)
{
    write("brightnessConfig.txt", "0 12 200 12 24 1");
    BrightnessConfigManager manager;
    manager.read_brightness_config();
    apply_brightness(manager, 3);
    EXPECT_EQ(settings[QStringLiteral("NightBrightness")].toInt(), 100);
    apply_brightness(manager, 15);
    EXPECT_EQ(settings[QStringLiteral("NightBrightness")].toInt(), 5);
}

TEST_F(CurveConfigTest, TemperatureIsClampedToThousandToThirteenThousand)
{
    write("temperatureConfig.txt", "0 12 500 12 24 20000");
    TemperatureConfigManager manager;
    manager.read_temperature_config();
    apply_temperature(manager, 3);
    EXPECT_EQ(settings[QStringLiteral("NightTemperature")].toInt(), 1000);
    apply_temperature(manager, 15);
    EXPECT_EQ(settings[QStringLiteral("NightTemperature")].toInt(), 13000);
}

TEST_F(CurveConfigTest, ClampBoundsAreKept)
{
    EXPECT_EQ(BrightnessConfigManager::clamp_brightness_config_value(5), 5);
    EXPECT_EQ(BrightnessConfigManager::clamp_brightness_config_value(4), 5);
    EXPECT_EQ(BrightnessConfigManager::clamp_brightness_config_value(100), 100);
    EXPECT_EQ(BrightnessConfigManager::clamp_brightness_config_value(101), 100);
    EXPECT_EQ(BrightnessConfigManager::clamp_brightness_config_value(-7), 5);
    EXPECT_EQ(TemperatureConfigManager::clamp_temperature_config_value(1000), 1000);
    EXPECT_EQ(TemperatureConfigManager::clamp_temperature_config_value(999), 1000);
    EXPECT_EQ(TemperatureConfigManager::clamp_temperature_config_value(13000), 13000);
    EXPECT_EQ(TemperatureConfigManager::clamp_temperature_config_value(13001), 13000);
    EXPECT_EQ(TemperatureConfigManager::clamp_temperature_config_value(4500), 4500);
}

// A file that is half right is not used: its missing numbers would read as
// 0 and hold the night at the lowest brightness all day.
TEST_F(CurveConfigTest, AFileCutShortOrWithOtherTextIsNotUsed)
{
    const char* contents[] = {"0 24 50\n0 24", "6 18 5000 7", "8 10 60\n# dim evenings\n18 24 30\n",
                              "8 10 sixty\n"};
    for (const char* text : contents) {
        write("brightnessConfig.txt", text);
        BrightnessConfigManager manager;
        manager.read_brightness_config();
        EXPECT_TRUE(manager.get_entries().isEmpty()) << text;
        EXPECT_EQ(apply_brightness(manager, 10), 0) << text;
    }
}

TEST_F(CurveConfigTest, RangeOverMidnightNeverMatches)
{
    write("temperatureConfig.txt", "22 6 3000");
    TemperatureConfigManager manager;
    manager.read_temperature_config();
    ASSERT_TRUE(manager.is_config_used());
    for (int hour : {22, 23, 0, 3, 5, 6, 12}) {
        settings[QStringLiteral("NightTemperature")] = 4500;
        EXPECT_EQ(apply_temperature(manager, hour), 0) << "hour " << hour;
        EXPECT_EQ(settings[QStringLiteral("NightTemperature")].toInt(), 4500) << "hour " << hour;
    }
}

TEST_F(CurveConfigTest, LastMatchWinsAndEachMatchUpdates)
{
    write("brightnessConfig.txt", "0 24 40\n18 20 70\n19 20 90\n");
    BrightnessConfigManager manager;
    manager.read_brightness_config();
    struct Case { int hour; int minute; int updates; int value; };
    const Case cases[] = {
        {17, 59, 1, 40}, {18, 0, 2, 70}, {18, 59, 2, 70}, {19, 0, 3, 90}, {19, 59, 3, 90}, {20, 0, 1, 40},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(apply_brightness(manager, c.hour, c.minute), c.updates) << c.hour << ":" << c.minute;
        EXPECT_EQ(settings[QStringLiteral("NightBrightness")].toInt(), c.value) << c.hour << ":" << c.minute;
    }
}

TEST_F(CurveConfigTest, UncoveredHourLeavesTheStoredValue)
{
    write("brightnessConfig.txt", "8 10 60");
    BrightnessConfigManager manager;
    manager.read_brightness_config();
    settings[QStringLiteral("NightBrightness")] = 75;
    EXPECT_EQ(apply_brightness(manager, 7, 59), 0);
    EXPECT_EQ(settings[QStringLiteral("NightBrightness")].toInt(), 75);
    EXPECT_EQ(apply_brightness(manager, 10), 0);
    EXPECT_EQ(settings[QStringLiteral("NightBrightness")].toInt(), 75);
    EXPECT_EQ(apply_brightness(manager, 9), 1);
    EXPECT_EQ(settings[QStringLiteral("NightBrightness")].toInt(), 60);
}

TEST_F(CurveConfigTest, LineBreaksHaveNoMeaning)
{
    write("temperatureConfig.txt", "0\n\n12   3200 12\t24\n\n\n5600\n");
    TemperatureConfigManager manager;
    manager.read_temperature_config();
    ASSERT_EQ(manager.get_entries().size(), 2);
    apply_temperature(manager, 11);
    EXPECT_EQ(settings[QStringLiteral("NightTemperature")].toInt(), 3200);
    apply_temperature(manager, 12);
    EXPECT_EQ(settings[QStringLiteral("NightTemperature")].toInt(), 5600);
}

TEST_F(CurveConfigTest, FileIsLookedForInTheWorkingDirectoryOnly)
{
    QTemporaryDir elsewhere;
    ASSERT_TRUE(elsewhere.isValid());
    write("brightnessConfig.txt", "0 24 50", elsewhere.path());
    BrightnessConfigManager manager;
    manager.read_brightness_config();
    EXPECT_FALSE(manager.is_config_used());

    ASSERT_TRUE(QDir::setCurrent(elsewhere.path()));
    manager.read_brightness_config();
    EXPECT_TRUE(manager.is_config_used());
}

TEST_F(CurveConfigTest, FileIsReadOnceAndLaterEditsWaitForTheNextRead)
{
    write("brightnessConfig.txt", "0 24 50");
    BrightnessConfigManager manager;
    manager.read_brightness_config();
    write("brightnessConfig.txt", "0 24 90");
    apply_brightness(manager, 12);
    EXPECT_EQ(settings[QStringLiteral("NightBrightness")].toInt(), 50);
}

}
