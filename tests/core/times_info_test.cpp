// The report of the day's times, line by line, for one fixed instant and
// place: New York at noon on 15 January 2025, and the clock curve.
#include <gtest/gtest.h>

#include <QDateTime>
#include <QRegularExpression>
#include <QStringList>
#include <QTime>

#include <ctime>
#include <iterator>

#include "ControllerFixture.h"

namespace {

using namespace controller_test;

class TimesInfo : public ControllerTest
{
protected:
    void SetUp() override
    {
        ControllerTest::SetUp();
        const std::pair<const char*, int> values[] = {
            {"NightStartTimeHours", 21}, {"NightStartTimeMinutes", 30}, {"NightEndTimeHours", 6},
            {"NightEndTimeMinutes", 45}, {"BedtimeHours", 0},           {"BedtimeMinutes", 10},
            {"WakeTimeHours", 7},        {"WakeTimeMinutes", 0},        {"DayTransitionDuration", 1800},
            {"NightTransitionDuration", 5400}, {"SleepTransitionDuration", 900},
            {"TimeZoneOffset", -5},      {"NewMoonOffset", 300},        {"FullMoonOffset", 300},
        };
        for (const auto& [key, value] : values)
            store_values[key] = value;
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

// Seconds of the day of a clock text, or of a local time in milliseconds.
int seconds_of(const QString& clock_text)
{
    const QTime t = QTime::fromString(clock_text, "hh:mm:ss");
    EXPECT_TRUE(t.isValid()) << clock_text.toStdString();
    return t.msecsSinceStartOfDay() / 1000;
}

int seconds_of(double msecs)
{
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(msecs)).time().msecsSinceStartOfDay() / 1000;
}

// "9 hour 34 min 21 sec " back into seconds.
int length_of(const QString& text)
{
    static const QRegularExpression part("(\\d+) (hour|min|sec) ");
    int seconds = 0;
    for (auto it = part.globalMatch(text); it.hasNext();) {
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

    // Sunrise and sunset of that day by an independent ephemeris, less the
    // five minutes of both moon offsets, and how far the curve's own
    // calculation may stray from them at this latitude.
    const double rise = 1736943492313.0, set = 1736977953400.0, moon = 300000.0;
    const int tolerance = 180;
    enum Kind { TEXT, SUN, LENGTH };
    const struct
    {
        const char* label;
        Kind kind;
        double value; // milliseconds since the epoch, or a length in seconds
        const char* text;
    } expected[] = {
        {"Day start time", SUN, rise - moon, nullptr},
        {"Day transition start time", SUN, rise - 900000.0 - moon, nullptr},
        {"Day transition end time", SUN, rise + 900000.0 - moon, nullptr},
        {"Day end time", SUN, set - moon, nullptr},
        {nullptr, TEXT, 0, ""},
        {"Night start time", SUN, set - moon, nullptr},
        {"Night transition start time", SUN, set - 2700000.0 - moon, nullptr},
        {"Night transition end time", SUN, set + 2700000.0 - moon, nullptr},
        {"Night end time", SUN, rise - moon, nullptr},
        {nullptr, TEXT, 0, ""},
        {"Bedtime", TEXT, 0, "00:10:00"},
        {"Bedtime transition start time", TEXT, 0, "23:55:00"},
        {"Bedtime transition end time", TEXT, 0, "00:10:00"},
        {"Bedtime end time", TEXT, 0, "07:00:00"},
        {nullptr, TEXT, 0, ""},
        {"Wake time", TEXT, 0, "07:00:00"},
        {"Wake time transition start time", TEXT, 0, "06:45:00"},
        {"Wake time transition end time", TEXT, 0, "07:00:00"},
        {"Wake time end time", TEXT, 0, "00:10:00"},
        {nullptr, TEXT, 0, ""},
        {"Day duration", LENGTH, (set - rise) / 1000.0, nullptr},
        // The sun's lengths always name their seconds, also when there are none.
        {"Day transition duration", TEXT, 0, "30 min 0 sec"},
        {"Night duration", LENGTH, 86400.0 - (set - rise) / 1000.0, nullptr},
        {"Night transition duration", TEXT, 0, "1 hour 30 min 0 sec"},
        {"Sleep duration", TEXT, 0, "6 hour 50 min "},
        {"Sleep transition duration", TEXT, 0, "15 min 0 sec"},
        {nullptr, TEXT, 0, ""},
        {"Time zone", TEXT, 0, "EST"},
        {"Custom Time zone offset", TEXT, 0, "-5 hours"},
        {nullptr, TEXT, 0, ""},
        {"Sunrise time", SUN, rise, nullptr},
        {"Sunset time", SUN, set, nullptr},
        {nullptr, TEXT, 0, ""},
        {"New moon offset", TEXT, 0, "5 min 0 sec"},
        {"Full moon offset", TEXT, 0, "5 min 0 sec"},
        {"Current moon offset", TEXT, 0, "5 min 0 sec"},
        {nullptr, TEXT, 0, ""},
    };
    const QStringList lines = lines_of(window->get_transition_times_info_string());
    ASSERT_EQ(lines.size(), int(std::size(expected)));
    for (int i = 0; i < lines.size(); ++i) {
        const auto& e = expected[i];
        const QString head = e.label ? ' ' + QString(e.label) + " - " : QString();
        ASSERT_TRUE(lines[i].startsWith(head)) << i << ": " << lines[i].toStdString();
        const QString value = lines[i].mid(head.size());
        if (e.kind == TEXT)
            EXPECT_EQ(value, e.text) << i;
        else if (e.kind == SUN)
            EXPECT_NEAR(seconds_of(value), seconds_of(e.value), tolerance) << e.label;
        else
            EXPECT_NEAR(length_of(value), e.value, 2 * tolerance) << e.label;
    }
    // The ramps keep their width exactly.
    EXPECT_EQ(seconds_of(lines[2].section(" - ", 1)) - seconds_of(lines[1].section(" - ", 1)), 1800);
}

TEST_F(TimesInfo, BothSignalsCarryTheSameReport)
{
    start_in_new_york();
    PageLog page(window.get(), {"set_transition_times_info", "set_moon_phases_info"});
    window->update_times_info();
    const QString report = window->get_transition_times_info_string();
    EXPECT_EQ(page.entries, QStringList({"set_transition_times_info=" + report, "set_moon_phases_info=" + report}));

    // A curve setting sends it again with the new times.
    window->night_start_time_changed(22, 0);
    ASSERT_EQ(page.entries.size(), 4);
    EXPECT_TRUE(page.entries[2].contains(" Night start time - 22:00:00\n"));
}

TEST_F(TimesInfo, ThePageGetsTheReportOnceItHasLoaded)
{
    start_in_new_york();
    int reports = 0;
    QObject::connect(window.get(), &MainWindow::set_transition_times_info,
                     [&](const QString&) { ++reports; });
    window->load_finished();
    const int after_load = reports;
    EXPECT_EQ(after_load, 1);
    // Only the first load counts.
    window->load_finished();
    EXPECT_EQ(reports, after_load);
}

} // namespace
