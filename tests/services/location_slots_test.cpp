// The controller's location slots, with a recording backend in place of the
// display and a local stand-in for the location service.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSettings>
#include <QTcpServer>
#include <QTcpSocket>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

#include "app/MainWindow.h"
#include "color/GammaFactory.h"
#include "color/IGamma.h"
#include "settings/SaveManager.h"
#include "time/Clock.h"
#include "time/ClockPosition.h"
#include "time/SolarPosition.h"

namespace {

class SilentGamma : public IGamma
{
public:
    int start() override { return 0; }
    int restore() override { return 0; }
    int get_screen_count() override { return 1; }
    int set_temperature(const ColorSettings*, std::vector<int>, int) override { return 0; }
};

class SilentFactory : public GammaFactory
{
public:
    IGamma* get_gamma() override { return new SilentGamma(); }
};

// Holds every request until the test lets the answer go.
class HeldService : public QObject
{
public:
    HeldService()
    {
        server.listen(QHostAddress::LocalHost);
        connect(&server, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = server.nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                if (socket->readAll().startsWith("GET /json/"))
                    waiting.push_back(socket);
            });
        });
    }

    QByteArray base() const { return "http://127.0.0.1:" + QByteArray::number(server.serverPort()); }

    void answer_all(const QByteArray& body)
    {
        for (QTcpSocket* socket : waiting) {
            socket->write("HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nContent-Length: "
                          + QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body);
            socket->flush();
            socket->disconnectFromHost();
        }
        answered += int(waiting.size());
        waiting.clear();
    }

    QTcpServer server;
    std::vector<QTcpSocket*> waiting;
    int answered = 0;
};

bool run_until(const std::function<bool()>& done, int limit_ms = 10000)
{
    QElapsedTimer timer;
    timer.start();
    while (!done() && timer.elapsed() < limit_ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    return done();
}

// Lets queued work (the start-up restore push, replies) run for a moment.
void settle(int ms = 300)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

class LocationSlots : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Clock::set_instance(&clock);
        MainWindow::gamma_factory_override = &factory;
        qputenv("OVRA_GEOLOCATION_URL", service.base());
        // The program takes the desktop's proxy; the local service must be
        // reached directly.
        for (const char* name : {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY",
                                 "HTTPS_PROXY", "ALL_PROXY"})
            qunsetenv(name);
        store_values = {
            {"SaveVersion", "3"},
            {"UseManualColorSettings", true},
            {"UseManualBrightness", true},
            {"Latitude", 10.5},
            {"Longitude", 20.25},
        };
    }

    void TearDown() override
    {
        window.reset();
        delete save_manager;
        delete clock_position;
        delete solar_position;
        Clock::set_instance(nullptr);
        MainWindow::gamma_factory_override = nullptr;
        qunsetenv("OVRA_GEOLOCATION_URL");
        store().clear();
    }

    static QSettings store()
    {
        return QSettings(QCoreApplication::organizationName(), SaveManager::store_application_name());
    }

    void start()
    {
        QCoreApplication::setOrganizationName("Morvenik");
        QCoreApplication::setApplicationName("Ovra");
        {
            QSettings settings = store();
            settings.clear();
            for (const auto& [key, value] : store_values)
                settings.setValue(key, value);
        }
        save_manager = new SaveManager();
        solar_position = new SolarPosition();
        clock_position = new ClockPosition();
        window = std::make_unique<MainWindow>(nullptr);
    }

    double stored(const char* key) { return store().value(key).toDouble(); }

    FixedClock clock{QDateTime(QDate(2026, 6, 21), QTime(12, 0))};
    SilentFactory factory;
    HeldService service;
    std::map<QString, QVariant> store_values;
    SaveManager* save_manager = nullptr;
    SolarPosition* solar_position = nullptr;
    ClockPosition* clock_position = nullptr;
    std::unique_ptr<MainWindow> window;
};

TEST_F(LocationSlots, StartAsksTheServiceAndTheReplyIsStored)
{
    start();
    ASSERT_TRUE(run_until([this] { return !service.waiting.empty(); })) << "no request at start";
    EXPECT_DOUBLE_EQ(window->get_latitude(), 10.5);
    EXPECT_DOUBLE_EQ(window->get_longitude(), 20.25);

    service.answer_all(R"({"latitude": 42.6977, "country_name": "Bulgaria"})");
    ASSERT_TRUE(run_until([this] { return window->get_latitude() != 10.5; }));
    EXPECT_DOUBLE_EQ(window->get_latitude(), 42.6977);
    EXPECT_DOUBLE_EQ(window->get_longitude(), 20.25);
    // The pair is written as the page's floats give it.
    EXPECT_DOUBLE_EQ(stored("Latitude"), double(42.6977f));
    EXPECT_DOUBLE_EQ(stored("Longitude"), 20.25);
}

TEST_F(LocationSlots, AutomaticRequestTellsThePageToAskToo)
{
    start();
    settle();
    int page_requests = 0;
    QObject::connect(window.get(), &MainWindow::find_geolocation, [&page_requests] { ++page_requests; });
    const int before = int(service.waiting.size());
    window->get_geolocation_data();
    EXPECT_EQ(page_requests, 1);
    ASSERT_TRUE(run_until([&] { return int(service.waiting.size()) == before + 1; }));
}

TEST_F(LocationSlots, LateReplyAfterManualLocationWasChosenChangesNothing)
{
    start();
    ASSERT_TRUE(run_until([this] { return !service.waiting.empty(); }));
    window->use_manual_location_changed(true);
    service.answer_all(R"({"latitude": 42.6977, "longitude": 23.3219})");
    settle(500);
    EXPECT_EQ(service.answered, 1);
    EXPECT_DOUBLE_EQ(window->get_latitude(), 10.5);
    EXPECT_DOUBLE_EQ(window->get_longitude(), 20.25);
    EXPECT_DOUBLE_EQ(stored("Latitude"), 10.5);
    EXPECT_DOUBLE_EQ(stored("Longitude"), 20.25);
}

TEST_F(LocationSlots, ManualLocationShowsTheStoredPairAndSendsNothing)
{
    store_values["UseManualLocation"] = true;
    store_values["Latitude"] = 42.69771;
    store_values["Longitude"] = 23.32191;
    start();
    settle();
    QStringList shown;
    int page_requests = 0;
    QObject::connect(window.get(), &MainWindow::set_geolocation_string,
                     [&shown](const QString& text) { shown << text; });
    QObject::connect(window.get(), &MainWindow::find_geolocation, [&page_requests] { ++page_requests; });
    window->get_geolocation_data();
    settle();
    EXPECT_EQ(shown, QStringList{QStringLiteral("42.6977, 23.3219")});
    EXPECT_EQ(page_requests, 0);
    EXPECT_TRUE(service.waiting.empty());
}

TEST_F(LocationSlots, TypedCoordinatesShowWithSixDigitsAndEqualOnesStop)
{
    start();
    settle();
    QStringList latitudes;
    QStringList longitudes;
    QObject::connect(window.get(), &MainWindow::set_latitude_value,
                     [&latitudes](const QString& text) { latitudes << text; });
    QObject::connect(window.get(), &MainWindow::set_longitude_value,
                     [&longitudes](const QString& text) { longitudes << text; });
    window->latitude_changed(42.69771f);
    window->latitude_changed(42.69771f);
    window->longitude_changed(20.25f);  // what the store held
    window->longitude_changed(-122.41942f);
    EXPECT_EQ(latitudes, QStringList{QStringLiteral("42.6977")});
    EXPECT_EQ(longitudes, QStringList{QStringLiteral("-122.419")});
    EXPECT_DOUBLE_EQ(window->get_latitude(), double(42.69771f));
    EXPECT_DOUBLE_EQ(window->get_longitude(), double(-122.41942f));
}

TEST_F(LocationSlots, ManualSwitchStoresEmitsOnceAndShowsThePair)
{
    start();
    settle();
    std::vector<bool> switches;
    QStringList shown;
    QObject::connect(window.get(), &MainWindow::set_use_manual_location,
                     [&switches](bool value) { switches.push_back(value); });
    QObject::connect(window.get(), &MainWindow::set_geolocation_string,
                     [&shown](const QString& text) { shown << text; });
    window->use_manual_location_changed(true);
    window->use_manual_location_changed(true);
    EXPECT_EQ(switches, std::vector<bool>{true});
    EXPECT_TRUE(window->settings[QStringLiteral("UseManualLocation")].toBool());
    EXPECT_EQ(shown, QStringList{QStringLiteral("10.5, 20.25")});
}

TEST_F(LocationSlots, SavedPairIsNotWrittenWithManualLocationOn)
{
    start();
    settle();
    window->save_location_data(1.5f, 2.5f);
    EXPECT_DOUBLE_EQ(stored("Latitude"), 1.5);
    EXPECT_DOUBLE_EQ(stored("Longitude"), 2.5);
    window->use_manual_location_changed(true);
    window->save_location_data(3.5f, 4.5f);
    EXPECT_DOUBLE_EQ(stored("Latitude"), 1.5);
    EXPECT_DOUBLE_EQ(stored("Longitude"), 2.5);
}

}
