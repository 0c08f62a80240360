#pragma once

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "settings/SaveManager.h"
#include "settings/SettingsHost.h"

// A controller stand-in that owns the map and the location fields, and a
// store file under the private XDG_CONFIG_HOME of the test run.
class StoreFixture : public ::testing::Test
{
protected:
    SettingsMap settings;
    double latitude = -1.0;
    double longitude = -1.0;
    std::vector<int> ignored_monitors;
    int screens = 1;
    int reset_timer_calls = 0;
    RunState run_state;
    bool has_run_state = false;

    void SetUp() override
    {
        set_settings_host_source([this] {
            SettingsHost host;
            host.settings = &settings;
            host.latitude = &latitude;
            host.longitude = &longitude;
            host.ignored_monitors = &ignored_monitors;
            host.screen_count = [this] { return screens; };
            host.reset_timer = [this] { ++reset_timer_calls; };
            if (has_run_state)
                host.run_state = [this] { return run_state; };
            return host;
        });
        QFile::remove(store_path());
    }

    void TearDown() override
    {
        manager.reset();
        set_settings_host_source({});
    }

    static QString store_path()
    {
        QSettings probe(SaveManager::store_organization_name(),
                        SaveManager::store_application_name());
        return probe.fileName();
    }

    // Writes the file as another program would. Each write gets a distinct
    // modification time so that QSettings never mistakes it for the copy it
    // read before.
    static void write_store(const QByteArray& content)
    {
        static int generation = 0;
        const QString path = store_path();
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        // Flushed first: a later flush would stamp the time of the write.
        file.flush();
        file.setFileTime(QDateTime::fromSecsSinceEpoch(1600000000 + 10 * ++generation),
                         QFileDevice::FileModificationTime);
        file.close();
    }

    static QByteArray read_store()
    {
        QFile file(store_path());
        if (!file.open(QIODevice::ReadOnly))
            return QByteArray();
        return file.readAll();
    }

    // The raw lines of the [General] group as key -> text.
    static std::map<QString, QString> stored_lines()
    {
        std::map<QString, QString> lines;
        for (const QByteArray& raw : read_store().split('\n')) {
            const QString line = QString::fromUtf8(raw);
            const int equals = line.indexOf('=');
            if (equals > 0)
                lines[line.left(equals)] = line.mid(equals + 1);
        }
        return lines;
    }

    SaveManager& open()
    {
        manager = std::make_unique<SaveManager>();
        return *manager;
    }

    void close()
    {
        manager.reset();
    }

    std::unique_ptr<SaveManager> manager;
};
