// The report of the day's times, line by line, for one fixed instant and
// place: New York at noon on 15 January 2025, and the clock curve.
#include <gtest/gtest.h>

#include <QDateTime>
#include <QRegularExpression>
#include <QStringList>
#include <QTime>

#include <cmath>
#include <cstdlib>
#include <ctime>

#include "ControllerFixture.h"

namespace {

using namespace controller_test;

class TimesInfo : public ControllerTest
{
protected:
    void SetUp() override
    {
        ControllerTest::SetUp();
        store_values["NightStartTimeHours"] = 21;
        store_values["NightStartTimeMinutes"] = 30;
        store_values["NightEndTimeHours"] = 6;
        store_values["NightEndTimeMinutes"] = 45;
        store_values["BedtimeHours"] = 0;
        store_values["BedtimeMinutes"] = 10;
        store_values["WakeTimeHours"] = 7;
        store_values["WakeTimeMinutes"] = 0;
        store_values["DayTransitionDuration"] = 1800;
        store_values["NightTransitionDuration"] = 5400;
        store_values["SleepTransitionDuration"] = 900;
        store_values["TimeZoneOffset"] = -5;
        store_values["NewMoonOffset"] = 300;
        store_values["FullMoonOffset"] = 300;
        store_values["UseManualLocation"] = true;
    }

    void TearDown() override
    {
        ControllerTest::TearDown();
        qputenv("TZ", "UTC");
        tzset();
    }

    void start_in_new_york()
    {
        qputenv("TZ", "America/New_York");
        tzset();
        // 12:00 EST.
        clock.set(QDateTime::fromMSecsSinceEpoch(1736960400000LL));
        start();
    }

    // The text split into its lines, without the newline that ends it.
    static QStringList lines_of(const QString& text)
    {
        EXPECT_TRUE(text.endsWith('\n'));
        QStringList lines = text.split('\n');
        lines.removeLast();
        return lines;
    }
};

TEST_F(TimesInfo, TheClockFormHasFiveGroupsOfSetTimesAndLengths)
{
    start_in_new_york();
    ASSERT_EQ(window->latitude, -1.0);
    const QStringList expected = {
        " Day start time - 06:45:00",
        " Day transition start time - 06:15:00",
        " Day transition end time - 06:45:00",
        " Day end time - 21:30:00",
        "",
        " Night start time - 21:30:00",
        " Night transition start time - 20:00:00",
        " Night transition end time - 21:30:00",
        " Night end time - 06:45:00",
        "",
        " Bedtime - 00:10:00",
        " Bedtime transition start time - 23:55:00",
        " Bedtime transition end time - 00:10:00",
        " Bedtime end time - 07:00:00",
        "",
        " Wake time - 07:00:00",
        " Wake time transition start time - 06:45:00",
        " Wake time transition end time - 07:00:00",
        " Wake time end time - 00:10:00",
        "",
        // The day's length is the night's, as the clock curve has always
        // reported it.
        " Day duration - 9 hour 15 min ",
        " Day transition duration - 30 min ",
        " Night duration - 9 hour 15 min ",
        " Night transition duration - 1 hour 30 min ",
        " Sleep duration - 6 hour 50 min ",
        " Sleep transition duration - 15 min ",
        "",
    };
    EXPECT_EQ(lines_of(window->get_transition_times_info_string()), expected);
}

TEST_F(TimesInfo, AManualNightDurationChoosesTheClockFormEvenWithALocation)
{
    store_values["UseManualNightDuration"] = true;
    start_in_new_york();
    window->latitude = 40.7128;
    window->longitude = -74.006;
    const QStringList lines = lines_of(window->get_transition_times_info_string());
    ASSERT_EQ(lines.size(), 27);
    EXPECT_EQ(lines[0], " Day start time - 06:45:00");
}

// Seconds of the day of a local time given in milliseconds since the epoch.
int local_seconds(double msecs)
{
    const QTime t = QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(msecs)).time();
    return t.msecsSinceStartOfDay() / 1000;
}

int seconds_of(const QString& clock_text)
{
    const QTime t = QTime::fromString(clock_text, "hh:mm:ss");
    EXPECT_TRUE(t.isValid()) << clock_text.toStdString();
    return t.msecsSinceStartOfDay() / 1000;
}

// "9 hour 34 min 21 sec " back into seconds.
int length_of(const QString& text)
{
    static const QRegularExpression part("(\\d+) (hour|min|sec) ");
    int seconds = 0;
    auto it = part.globalMatch(text);
    while (it.hasNext()) {
        const auto m = it.next();
        const int n = m.captured(1).toInt();
        seconds += m.captured(2) == "hour" ? n * 3600 : m.captured(2) == "min" ? n * 60 : n;
    }
    return seconds;
}

TEST_F(TimesInfo, TheSolarFormFollowsTheSunTheSetTimesAndTheMoon)
{
    start_in_new_york();
    window->latitude = 40.7128;
    window->longitude = -74.006;

    // Sunrise and sunset of that day by an independent ephemeris, and how
    // far the curve's own calculation may stray from them at this latitude.
    const double rise = 1736943492313.0;
    const double set = 1736977953400.0;
    const int tolerance = 180;
    const double moon = 300000.0; // both moon offsets are 5 minutes

    const QStringList lines = lines_of(window->get_transition_times_info_string());
    const QStringList labels = {
        "Day start time", "Day transition start time", "Day transition end time", "Day end time",
        "",
        "Night start time", "Night transition start time", "Night transition end time",
        "Night end time", "",
        "Bedtime", "Bedtime transition start time", "Bedtime transition end time",
        "Bedtime end time", "",
        "Wake time", "Wake time transition start time", "Wake time transition end time",
        "Wake time end time", "",
        "Day duration", "Day transition duration", "Night duration", "Night transition duration",
        "Sleep duration", "Sleep transition duration", "",
        "Time zone", "Custom Time zone offset", "",
        "Sunrise time", "Sunset time", "",
        "New moon offset", "Full moon offset", "Current moon offset", "",
    };
    ASSERT_EQ(lines.size(), labels.size());
    std::map<QString, QString> value;
    for (int i = 0; i < lines.size(); ++i) {
        if (labels[i].isEmpty()) {
            EXPECT_EQ(lines[i], "") << i;
            continue;
        }
        const QString head = ' ' + labels[i] + " - ";
        ASSERT_TRUE(lines[i].startsWith(head)) << lines[i].toStdString();
        value[labels[i]] = lines[i].mid(head.size());
    }

    auto near_sun = [&](const char* label, double msecs) {
        EXPECT_NEAR(seconds_of(value[label]), local_seconds(msecs), tolerance) << label;
    };
    near_sun("Day start time", rise - moon);
    near_sun("Day transition start time", rise - 900000.0 - moon);
    near_sun("Day transition end time", rise + 900000.0 - moon);
    near_sun("Day end time", set - moon);
    near_sun("Night start time", set - moon);
    near_sun("Night transition start time", set - 2700000.0 - moon);
    near_sun("Night transition end time", set + 2700000.0 - moon);
    near_sun("Night end time", rise - moon);
    near_sun("Sunrise time", rise);
    near_sun("Sunset time", set);
    // The ramps keep their width exactly.
    EXPECT_EQ(seconds_of(value["Day transition end time"])
                  - seconds_of(value["Day transition start time"]),
              1800);

    EXPECT_EQ(value["Bedtime"], "00:10:00");
    EXPECT_EQ(value["Bedtime transition start time"], "23:55:00");
    EXPECT_EQ(value["Bedtime transition end time"], "00:10:00");
    EXPECT_EQ(value["Bedtime end time"], "07:00:00");
    EXPECT_EQ(value["Wake time"], "07:00:00");
    EXPECT_EQ(value["Wake time transition start time"], "06:45:00");
    EXPECT_EQ(value["Wake time transition end time"], "07:00:00");
    EXPECT_EQ(value["Wake time end time"], "00:10:00");

    EXPECT_NEAR(length_of(value["Day duration"]), (set - rise) / 1000.0, 2 * tolerance);
    EXPECT_NEAR(length_of(value["Night duration"]), 86400.0 - (set - rise) / 1000.0,
                2 * tolerance);
    // The sun's lengths always name their seconds, also when there are none.
    EXPECT_EQ(value["Day transition duration"], "30 min 0 sec");
    EXPECT_EQ(value["Night transition duration"], "1 hour 30 min 0 sec");
    EXPECT_EQ(value["Sleep transition duration"], "15 min 0 sec");
    EXPECT_EQ(value["Sleep duration"], "6 hour 50 min ");

    EXPECT_EQ(value["Time zone"], "EST");
    EXPECT_EQ(value["Custom Time zone offset"], "-5 hours");
    EXPECT_EQ(value["New moon offset"], "5 min 0 sec");
    EXPECT_EQ(value["Full moon offset"], "5 min 0 sec");
    EXPECT_EQ(value["Current moon offset"], "5 min 0 sec");
}

TEST_F(TimesInfo, BothSignalsCarryTheSameReport)
{
    start_in_new_york();
    QStringList transition;
    QStringList moon;
    QObject::connect(window.get(), &MainWindow::set_transition_times_info,
                     [&](const QString& text) { transition << text; });
    QObject::connect(window.get(), &MainWindow::set_moon_phases_info,
                     [&](const QString& text) { moon << text; });
    window->update_times_info();
    ASSERT_EQ(transition.size(), 1);
    ASSERT_EQ(moon.size(), 1);
    EXPECT_EQ(transition[0], moon[0]);
    EXPECT_TRUE(transition[0].startsWith(" Day start time - 06:45:00\n"));

    // A curve setting sends it again with the new times.
    window->night_start_time_changed(22, 0);
    ASSERT_EQ(transition.size(), 2);
    EXPECT_TRUE(transition[1].contains(" Night start time - 22:00:00\n"));
}

TEST_F(TimesInfo, ThePageGetsTheReportOnceItHasLoaded)
{
    start_in_new_york();
    int reports = 0;
    QObject::connect(window.get(), &MainWindow::set_transition_times_info,
                     [&](const QString&) { ++reports; });
    window->load_finished();
    const int after_load = reports;
    EXPECT_GE(after_load, 1);
    // Only the first load counts.
    window->load_finished();
    EXPECT_EQ(reports, after_load);
}

} // namespace
