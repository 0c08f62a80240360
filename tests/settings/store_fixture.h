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
    std::unique_ptr<SaveManager> manager;

    // The host the store sees; a test adds the hooks it records.
    virtual SettingsHost make_host()
    {
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
    }

    void SetUp() override
    {
        set_settings_host_source([this] { return make_host(); });
        QFile::remove(store_path());
    }

    void TearDown() override
    {
        manager.reset();
        set_settings_host_source({});
    }

    static QString store_path()
    {
        return QSettings(SaveManager::store_organization_name(), SaveManager::store_application_name()).fileName();
    }

    // Writes the file as another program would. Each write gets a distinct
    // modification time so that QSettings never mistakes it for the copy it
    // read before.
    static void write_store(const QByteArray& content)
    {
        static int generation = 0;
        QDir().mkpath(QFileInfo(store_path()).absolutePath());
        QFile file(store_path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        // Flushed first: a later flush would stamp the time of the write.
        file.flush();
        file.setFileTime(QDateTime::fromSecsSinceEpoch(1600000000 + 10 * ++generation),
                         QFileDevice::FileModificationTime);
    }

    static QByteArray read_store()
    {
        QFile file(store_path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // The raw lines of the file as key -> text.
    static std::map<QString, QString> stored_lines()
    {
        std::map<QString, QString> lines;
        for (const QByteArray& raw : read_store().split('\n')) {
            const int equals = raw.indexOf('=');
            if (equals > 0)
                lines[QString::fromUtf8(raw.left(equals))] = QString::fromUtf8(raw.mid(equals + 1));
        }
        return lines;
    }

    // One store at a time: the old one goes first.
    SaveManager& open()
    {
        manager.reset();
        manager = std::make_unique<SaveManager>();
        return *manager;
    }

    void close() { manager.reset(); }
};
