// The store and the restore push as the program wires them: the controller's
// own map, location fields, monitor count and break-timer step, and the save
// moments of closing the window.
#include <gtest/gtest.h>

#include <QFile>

#include "ControllerFixture.h"
#include "settings/SettingsHost.h"

namespace {

using namespace controller_test;

class ControllerStore : public ControllerTest
{
protected:
    static QString store_path()
    {
        return QSettings(QCoreApplication::organizationName(),
                         SaveManager::store_application_name())
            .fileName();
    }

    // The raw lines of the file as key -> text, as another program sees it.
    static std::map<QString, QString> stored_lines()
    {
        std::map<QString, QString> lines;
        QFile file(store_path());
        if (!file.open(QIODevice::ReadOnly))
            return lines;
        for (const QByteArray& raw : file.readAll().split('\n')) {
            const QString line = QString::fromUtf8(raw);
            const int equals = line.indexOf('=');
            if (equals > 0)
                lines[line.left(equals)] = line.mid(equals + 1);
        }
        return lines;
    }
};

TEST_F(ControllerStore, TheStoreFillsTheControllersOwnFields)
{
    MainWindow::screen_count_override = 2;
    store_values["DayTemperature2"] = 4200;
    store_values["Latitude"] = 48.25;
    store_values["Longitude"] = 16.5;
    store_values["IgnoreMonitors"] = "2:";
    start();

    const SettingsHost host = settings_host();
    ASSERT_TRUE(host.valid());
    EXPECT_EQ(host.settings, &window->settings);
    EXPECT_EQ(window->settings.at("DayTemperature2").toInt(), 4200);
    // Two monitors: passes 0, 1 and 2, and no third.
    EXPECT_EQ(window->settings.at("DayTemperature1").toInt(), 5000);
    EXPECT_EQ(window->settings.count("DayTemperature3"), 0u);
    EXPECT_DOUBLE_EQ(window->latitude, 48.25);
    EXPECT_DOUBLE_EQ(window->longitude, 16.5);
    EXPECT_EQ(window->ignored_monitors, std::vector<int>{2});
    // Every restore pass ends by handing the break lengths to the timer.
    EXPECT_TRUE(static_cast<bool>(host.reset_timer));
}

TEST_F(ControllerStore, ClosingWithAutosaveWritesEveryKeyEvenUnchanged)
{
    start();
    ASSERT_EQ(stored_lines().count("WorkTime"), 0u);

    window->close_clicked();

    const std::map<QString, QString> lines = stored_lines();
    for (const char* key : {"WorkTime", "UiScale", "AdvancedView", "ZoomOutHotkey",
                            "AdvancedLightnessScreenXposition", "DayTemperature1",
                            "Latitude", "IgnoreMonitors", "UnusedPages"})
        EXPECT_EQ(lines.count(key), 1u) << key;
    EXPECT_EQ(lines.at("WorkTime"), "20");
    EXPECT_EQ(lines.at("NightTemperature"), "3400");
}

TEST_F(ControllerStore, ClosingWithoutAutosaveDropsUnsavedChanges)
{
    store_values["AutosaveSettings"] = false;
    store_values["WorkTime"] = 45;
    start();
    window->settings["WorkTime"] = 50;

    window->close_clicked();

    EXPECT_EQ(window->settings.at("WorkTime").toInt(), 45);
    EXPECT_EQ(stored_lines().at("WorkTime"), "45");
}

TEST_F(ControllerStore, SaveAndCloseSavesEvenWithoutAutosave)
{
    store_values["AutosaveSettings"] = false;
    store_values["NightTemperature"] = 3455;
    start();
    window->settings["WorkTime"] = 50;

    window->save_and_close_clicked();

    const std::map<QString, QString> lines = stored_lines();
    EXPECT_EQ(lines.at("WorkTime"), "50");
    EXPECT_EQ(lines.at("NightTemperature"), "3400");
}

} // namespace
