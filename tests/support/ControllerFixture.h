#pragma once

// A MainWindow for unit tests: the display replaced by a recording backend,
// a store written beforehand, a standing clock, and the fades driven by
// calling their timer slots by hand.

#include <QCoreApplication>
#include <QDateTime>
#include <QMetaMethod>
#include <QSettings>
#include <QStringList>
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "app/MainWindow.h"
#include "color/GammaFactory.h"
#include "color/IGamma.h"
#include "settings/SaveManager.h"
#include "time/Clock.h"
#include "time/ClockPosition.h"
#include "time/SolarPosition.h"

// Failures show texts as text.
inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

namespace controller_test {

struct Call
{
    std::string what; // "write" or "restore"
    int temperature = 0;
    float brightness = 0.0f;
    int monitor = 0;
    bool inverted = false;
};

class RecordingGamma : public IGamma
{
public:
    explicit RecordingGamma(std::vector<Call>* calls) : calls(calls) {}
    int start() override { return 0; }
    int restore() override
    {
        calls->push_back({"restore", 0, 0.0f, 0, use_inverted_gamma});
        return 0;
    }
    int reset() override
    {
        calls->push_back({"reset", 0, 0.0f, 0, use_inverted_gamma});
        return 0;
    }
    int get_screen_count() override { return 2; }
    int set_temperature(const ColorSettings* s, std::vector<int>, int monitor) override
    {
        calls->push_back({"write", s->temperature, s->brightness, monitor, use_inverted_gamma});
        return 0;
    }
    std::vector<Call>* calls;
};

class RecordingFactory : public GammaFactory
{
public:
    IGamma* get_gamma() override { return new RecordingGamma(&calls); }
    std::vector<Call> calls;
};

// What the page is told: the controller's set_* signals named (all of them
// when none are), in the order they come, as "name=value" with a second
// value after ':'. Connected by index as QSignalSpy does, so one object
// hears signals of any signature.
class PageLog : public QObject
{
public:
    explicit PageLog(QObject* window, const QStringList& only = {})
    {
        const QMetaObject* meta = window->metaObject();
        for (int i = 0; i < meta->methodCount(); ++i) {
            const QMetaMethod m = meta->method(i);
            const QString name = QString::fromLatin1(m.name());
            if (m.methodType() != QMetaMethod::Signal || !name.startsWith("set_")
                || !(only.isEmpty() || only.contains(name)))
                continue;
            QMetaObject::connect(window, i, this,
                                 QObject::staticMetaObject.methodCount() + int(heard.size()),
                                 Qt::DirectConnection);
            heard.push_back(m);
        }
    }

    int qt_metacall(QMetaObject::Call call, int id, void** args) override
    {
        id = QObject::qt_metacall(call, id, args);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        const QMetaMethod& m = heard[size_t(id)];
        QStringList values;
        for (int p = 0; p < m.parameterCount(); ++p)
            values << QVariant(m.parameterMetaType(p), args[p + 1]).toString();
        entries << QString::fromLatin1(m.name()) + '=' + values.join(':');
        if (on_entry)
            on_entry();
        return -1;
    }

    QStringList entries;
    std::function<void()> on_entry;

private:
    std::vector<QMetaMethod> heard;
};

// The four fades, as MainWindow::fade_state numbers them.
const int RESTORE = 0;
const int RETURN = 1;
const int SWITCH = 2;
const int SWITCH_RETURN = 3;

class ControllerTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("TZ", "UTC");
        tzset();
        clock.set(QDateTime(QDate(2026, 6, 21), QTime(12, 0), Qt::UTC));
        Clock::set_instance(&clock);
        MainWindow::gamma_factory_override = &factory;
        store_values = {
            {"SaveVersion", "3"},
            {"PauseTransitionDuration", 1000},
            {"UseManualColorSettings", true},
            {"UseManualBrightness", true},
            {"NightTemperature", 3400},
            {"NightBrightness", 80},
        };
    }

    void TearDown() override
    {
        window.reset();
        delete save_manager;
        delete clock_position;
        delete solar_position;
        save_manager = nullptr;
        clock_position = nullptr;
        solar_position = nullptr;
        Clock::set_instance(nullptr);
        MainWindow::gamma_factory_override = nullptr;
        MainWindow::screen_count_override = -1;
        QSettings(QCoreApplication::organizationName(), SaveManager::store_application_name()).clear();
    }

    // Writes store_values to the store and builds the managers and the
    // controller, as the application object would.
    void start()
    {
        QCoreApplication::setOrganizationName("Morvenik");
        QCoreApplication::setApplicationName("Ovra");
        {
            QSettings store(QCoreApplication::organizationName(),
                            SaveManager::store_application_name());
            store.clear();
            for (const auto& [key, value] : store_values)
                store.setValue(key, value);
        }
        save_manager = new SaveManager();
        solar_position = new SolarPosition();
        clock_position = new ClockPosition();
        window = std::make_unique<MainWindow>(nullptr);
    }

    // Started, the first fade over and the backend's log empty.
    void start_settled()
    {
        start();
        finish_all_fades();
        factory.calls.clear();
    }

    std::vector<Call> writes() const
    {
        std::vector<Call> result;
        for (const Call& c : factory.calls)
            if (c.what == "write")
                result.push_back(c);
        return result;
    }

    // Runs a fade's timer slot by hand until the fade ends.
    int finish_fade(int which, void (MainWindow::*timeout)(), int limit = 1000)
    {
        int ticks = 0;
        while (window->fade_state(which).active && ticks < limit) {
            (window.get()->*timeout)();
            ++ticks;
        }
        return ticks;
    }

    // Lets every running fade end, in the order they hand over to each other.
    void finish_all_fades()
    {
        finish_fade(SWITCH, &MainWindow::switch_state_timeout);
        finish_fade(SWITCH_RETURN, &MainWindow::switch_state_return_timeout);
        finish_fade(RESTORE, &MainWindow::restore_colors_timeout);
        finish_fade(RETURN, &MainWindow::return_colors_timeout);
    }

    // The first `count` writes are a fade's steps from (temperature,
    // brightness %) by the steps given, summed in float as the fade sums
    // them, the temperature cut to whole kelvin.
    static void expect_fade(const std::vector<Call>& w, size_t count, float temperature,
                            float temperature_step, float brightness, float brightness_step)
    {
        ASSERT_GE(w.size(), count);
        for (size_t k = 0; k < count; ++k) {
            temperature += temperature_step;
            brightness += brightness_step;
            EXPECT_EQ(w[k].temperature, static_cast<int>(temperature)) << "step " << k;
            EXPECT_NEAR(w[k].brightness, brightness / 100.0f, 1e-5) << "step " << k;
        }
    }

    // A map value, read without adding the key.
    QVariant stored(const char* key) const
    {
        const auto found = window->settings.find(QString::fromLatin1(key));
        return found == window->settings.end() ? QVariant() : found->second;
    }

    FixedClock clock;
    RecordingFactory factory;
    std::map<QString, QVariant> store_values;
    SaveManager* save_manager = nullptr;
    SolarPosition* solar_position = nullptr;
    ClockPosition* clock_position = nullptr;
    std::unique_ptr<MainWindow> window;
};

} // namespace controller_test
