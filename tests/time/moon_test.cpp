// The moon: the lit fraction against PyEphem's full and new moons and lit
// fractions (tests/data/moon_reference.csv), the date conversions and the
// month table.

#include "TimeTestSupport.h"

#include "time/Moon.h"

#include <QTimeZone>

#include <cmath>
#include <string>

using namespace time_test;

TEST(MoonPhase, FullMoonsOf2024To2027AreNearOneAndNewMoonsNearZero)
{
    Moon moon;
    int full = 0;
    int fresh = 0;
    for (const Row& row : read_table("moon_reference.csv")) {
        const double seconds = row.at("utc_ms").toDouble() / 1000.0;
        if (row.at("kind") == "full") {
            EXPECT_GT(moon.moon_phase(seconds), 0.995) << row.at("utc_ms").toStdString();
            ++full;
        } else if (row.at("kind") == "new") {
            EXPECT_LT(moon.moon_phase(seconds), 0.005) << row.at("utc_ms").toStdString();
            ++fresh;
        }
    }
    // Twelve or thirteen of each a year.
    EXPECT_GE(full, 48);
    EXPECT_GE(fresh, 48);
}

TEST(MoonPhase, LitFractionFollowsEphemThroughAYear)
{
    Moon moon;
    int checked = 0;
    for (const Row& row : read_table("moon_reference.csv")) {
        if (row.at("kind") != "lit")
            continue;
        const double seconds = row.at("utc_ms").toDouble() / 1000.0;
        EXPECT_NEAR(moon.moon_phase(seconds), row.at("lit").toDouble(), 0.02) << row.at("utc_ms").toStdString();
        ++checked;
    }
    EXPECT_GT(checked, 150);
}

TEST(MoonPhase, StaysWithinZeroAndOne)
{
    Moon moon;
    // Hourly over three synodic months, and far from the epoch both ways.
    double lowest = 1.0;
    double highest = 0.0;
    for (double s = 1.7e9; s < 1.7e9 + 90 * 86400.0; s += 3600.0) {
        const double p = moon.moon_phase(s);
        ASSERT_GE(p, 0.0);
        ASSERT_LE(p, 1.0);
        lowest = std::min(lowest, p);
        highest = std::max(highest, p);
    }
    EXPECT_LT(lowest, 0.001);
    EXPECT_GT(highest, 0.999);
    for (double s : {-3.0e9, -1.0, 0.0, 4.1e9, 3.0e10}) {
        const double p = moon.moon_phase(s);
        EXPECT_GE(p, 0.0);
        EXPECT_LE(p, 1.0);
    }
}

TEST(MoonPhase, OneCycleTakesAboutTwentyNineAndAHalfDays)
{
    Moon moon;
    // From the full moon of 2025-03-14 06:55 UTC: new about 14.8 days later,
    // full again about 29.5 days later.
    const double full = 1741935300.0;
    EXPECT_GT(moon.moon_phase(full), 0.995);
    EXPECT_LT(moon.moon_phase(full + 14.77 * 86400), 0.01);
    EXPECT_GT(moon.moon_phase(full + 29.53 * 86400), 0.99);
    // First quarter: half lit, growing.
    EXPECT_NEAR(moon.moon_phase(full - 7.4 * 86400), 0.5, 0.1);
}

TEST(MoonPhase, FollowsTheLowPrecisionTheoryExactly)
{
    // Reference values from a separate implementation of the same theory
    // (Python, double precision). The ephemeris comparisons above allow
    // a few hundredths, which would hide a slip in one of the small
    // correction terms; these do not.
    Moon moon;
    const double phases[][2] = {
        {0.0, 0.49346172417872053},
        {946684800.0, 0.27143010217549945},
        {1741935300.0, 0.9999999976802374},
        {1743245880.0, 6.6573111467960189e-09},
        {1767225600.5, 0.91543591764282328},
        {-315619200.0, 0.069507667069347412},
    };
    for (const auto& p : phases)
        EXPECT_NEAR(moon.moon_phase(p[0]), p[1], 1e-12) << p[0];

    // Days after the 1980 epoch: the sun's longitude, then the moon's for it.
    const double positions[][3] = {
        {0.00, 278.70514029138985, 69.850582391220598},
        {16500.25, 343.93176831388246, 41.896064248138941},
        {-7300.75, 282.8780815526386, 354.84367860146483},
    };
    for (const auto& p : positions) {
        const double sun = moon.sun_position(p[0]);
        EXPECT_NEAR(sun, p[1], 1e-10) << p[0];
        EXPECT_NEAR(moon.moon_position(p[0], sun), p[2], 1e-10) << p[0];
    }
}

TEST(MoonPhase, DatedFormGivesTheSameFractionAndTheSegment)
{
    Moon moon;
    int segment = -1;
    // 2025-03-14 07:00 UTC, full moon: fourth segment.
    const double p = moon.moon_phase(2025, 3, 14, 7.0, &segment);
    EXPECT_NEAR(p, moon.moon_phase(1741935600.0), 1e-9);
    EXPECT_EQ(segment, 4);
    // 2025-03-29 11:00 UTC, new moon: segment 0.
    moon.moon_phase(2025, 3, 29, 11.0, &segment);
    EXPECT_EQ(segment, 0);
    // 2025-03-22 11:29 UTC is last quarter (elongation 270 degrees):
    // segment 6. On 2025-04-01 12:00 UTC the elongation is 43 degrees:
    // segment 1.
    moon.moon_phase(2025, 3, 22, 11.5, &segment);
    EXPECT_EQ(segment, 6);
    moon.moon_phase(2025, 4, 1, 12.0, &segment);
    EXPECT_EQ(segment, 1);
}

TEST(MoonDates, JulianDatesOfKnownDays)
{
    Moon moon;
    EXPECT_DOUBLE_EQ(moon.julian_date(2000, 1, 1.5), 2451545.0);
    EXPECT_DOUBLE_EQ(moon.julian_date(1980, 1, 0.0), 2444238.5);
    EXPECT_DOUBLE_EQ(moon.julian_date(2024, 2, 29.0), 2460369.5);
    EXPECT_DOUBLE_EQ(moon.julian_date(1582, 10, 16.0), 2299161.5);
    EXPECT_DOUBLE_EQ(moon.calc_jd_from_epoch(0.0), 2440587.5);
}

TEST(MoonDates, DateFromJulianDateRoundTrips)
{
    Moon moon;
    // Every day from 1900 to 2100 through the month and year rules.
    QDate date(1900, 1, 1);
    const QDate end(2100, 12, 31);
    while (date <= end) {
        TimePlace place{0, 0, 0, 0.0};
        moon.julian_date_to_date(&place, moon.julian_date(date.year(), date.month(), date.day() + 0.75));
        ASSERT_EQ(place.year, date.year()) << date.toString(Qt::ISODate).toStdString();
        ASSERT_EQ(place.month, date.month()) << date.toString(Qt::ISODate).toStdString();
        ASSERT_EQ(place.day, date.day()) << date.toString(Qt::ISODate).toStdString();
        ASSERT_NEAR(place.hour, 18.0, 1e-6);
        date = date.addDays(1);
    }
}

TEST(MoonDates, NextDayCrossesMonthsAndYears)
{
    Moon moon;
    int y = 2024, m = 2, d = 28;
    moon.next_day(&y, &m, &d, 1);
    EXPECT_EQ(QDate(y, m, d), QDate(2024, 2, 29));
    moon.next_day(&y, &m, &d, 1);
    EXPECT_EQ(QDate(y, m, d), QDate(2024, 3, 1));
    y = 2025, m = 12, d = 31;
    moon.next_day(&y, &m, &d, 1);
    EXPECT_EQ(QDate(y, m, d), QDate(2026, 1, 1));
    moon.next_day(&y, &m, &d, -1);
    EXPECT_EQ(QDate(y, m, d), QDate(2025, 12, 31));
    moon.next_day(&y, &m, &d, 60);
    EXPECT_EQ(QDate(y, m, d), QDate(2026, 3, 1));
}

TEST(MoonTable, AugustTwentySeventeen)
{
    Moon moon;
    testing::internal::CaptureStdout();
    moon.print_info();
    const std::string out = testing::internal::GetCapturedStdout();

    EXPECT_EQ(out.rfind("tabulation of the phase of the moon for one month\n\n\nDate       Time   Phase Segment\n", 0),
              0u);
    // One line at 16:00 for each of the 31 days.
    int afternoons = 0;
    for (size_t at = out.find(" 16:00 "); at != std::string::npos; at = out.find(" 16:00 ", at + 1))
        ++afternoons;
    EXPECT_EQ(afternoons, 31);
    EXPECT_NE(out.find("2017/08/01 16:00 "), std::string::npos);
    EXPECT_NE(out.find("2017/08/31 16:00 "), std::string::npos);
    EXPECT_EQ(out.find("2017/09/"), std::string::npos);

    // Full moon 2017-08-07 18:11 UTC, new moon 2017-08-21 18:30 UTC (the
    // total eclipse): each marked once, within two hours.
    const size_t fullest = out.find("(fullest)");
    const size_t newest = out.find("(newest)");
    ASSERT_NE(fullest, std::string::npos);
    ASSERT_NE(newest, std::string::npos);
    EXPECT_EQ(out.find("(fullest)", fullest + 1), std::string::npos);
    EXPECT_EQ(out.find("(newest)", newest + 1), std::string::npos);
    const std::string full_line = out.substr(out.rfind('\n', fullest) + 1, 16);
    const std::string new_line = out.substr(out.rfind('\n', newest) + 1, 16);
    EXPECT_EQ(full_line.substr(0, 11), "2017/08/07 ");
    EXPECT_EQ(new_line.substr(0, 11), "2017/08/21 ");
    EXPECT_NEAR(std::stoi(full_line.substr(11, 2)), 18, 2);
    EXPECT_NEAR(std::stoi(new_line.substr(11, 2)), 18, 2);

    // On the day of the full moon the afternoon line reads close to 100%
    // in segment 4; on the day of the new moon close to 0% in segment 0.
    const size_t full_afternoon = out.find("2017/08/07 16:00 ");
    ASSERT_NE(full_afternoon, std::string::npos);
    EXPECT_EQ(out.substr(full_afternoon, 30), "2017/08/07 16:00 100.0%   (4)\n");
    const size_t new_afternoon = out.find("2017/08/21 16:00 ");
    ASSERT_NE(new_afternoon, std::string::npos);
    EXPECT_EQ(out.substr(new_afternoon, 30), "2017/08/21 16:00   0.0%   (0)\n");
}
