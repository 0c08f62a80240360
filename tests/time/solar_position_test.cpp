// The solar day curve at Kampala (no daylight saving time, and the whole
// local day from 03:00 on within one UTC date), with sunrise and sunset taken
// from PyEphem's table: transitions centred on the sun events, the moon
// offset moving both, the sleep window, the manual path and the strings.

#include "TimeTestSupport.h"

#include "time/SolarPosition.h"

#include <QRegularExpression>

#include <cmath>

using namespace time_test;

namespace {
constexpr float day_v = 6500.0f;
constexpr float night_v = 2700.0f;
constexpr float sleep_v = 1900.0f;
constexpr float middle = (day_v + night_v) / 2;
// Two hour ramps: the calculator's two minutes against the reference move
// the value by at most 3800 / 7200 per second, about 63 K.
constexpr int ramp = 7200;
constexpr float ramp_tolerance = 75.0f;
constexpr qint64 minute = 60000;
constexpr qint64 hour = 3600000;

// Plateau values are exact; values on a ramp carry the calculator's error.
float tolerance_for(float expected)
{
    return expected == day_v || expected == night_v ? 0.0f : ramp_tolerance;
}

class SolarCurve : public testing::Test
{
protected:
    SolarCurve() : zone("Africa/Kampala") {}

    void use_day(const QString& date)
    {
        static const std::vector<Row> rows = read_table("sun_reference.csv");
        for (const Row& row : rows)
            if (row.at("name") == "kampala_" + date + "_1200") {
                rise = row.at("expected_rise_ms").toLongLong();
                set = row.at("expected_set_ms").toLongLong();
                values.latitude = row.at("latitude").toFloat();
                values.longitude = row.at("longitude").toFloat();
                return;
            }
        ADD_FAILURE() << "no reference row for Kampala on " << date.toStdString();
    }

    void SetUp() override
    {
        values.bedtime_hours = 23;
        values.wake_time_hours = 5;
        values.day_value = day_v;
        values.night_value = night_v;
        values.sleep_value = sleep_v;
        values.day_transition_duration = ramp;
        values.night_transition_duration = ramp;
        values.sleep_transition_duration = 1800;
        values.time_zone_offset = 3;
        use_day("2025-03-20");
    }

    float at_msecs(qint64 msecs)
    {
        clock.at_msecs(msecs);
        return curve.get_interpolated_value(values);
    }

    float at_local(const QDate& date, int h, int m)
    {
        clock.at_local(date.year(), date.month(), date.day(), h, m);
        return curve.get_interpolated_value(values);
    }

    static int seconds_of(const QString& clock_time)
    {
        const QTime t = QTime::fromString(clock_time, "hh:mm:ss");
        EXPECT_TRUE(t.isValid()) << clock_time.toStdString();
        return t.msecsSinceStartOfDay() / 1000;
    }

    // "H hour M min S sec " back to seconds.
    static int seconds_in(const QString& text)
    {
        int total = 0;
        auto it = QRegularExpression("(\\d+) (hour|min|sec) ").globalMatch(text);
        while (it.hasNext()) {
            const auto match = it.next();
            const QString unit = match.captured(2);
            total += match.captured(1).toInt() * (unit == "hour" ? 3600 : unit == "min" ? 60 : 1);
        }
        return total;
    }

    ScopedTimeZone zone;
    ScopedClock clock;
    SolarPosition curve;
    SolarInterpolationValues values;
    qint64 rise = 0;
    qint64 set = 0;
};
} // namespace

TEST_F(SolarCurve, TransitionsAreCentredOnTheSunEvents)
{
    const float span = day_v - night_v;
    const struct
    {
        bool after_rise;
        qint64 offset;
        float expected;
        TransitionType type;
    } cases[] = {
        {true, -hour - 5 * minute, night_v, TRANSITION_NIGHT},
        {true, -30 * minute, night_v + 0.25f * span, TRANSITION_DAY},
        {true, 0, middle, TRANSITION_DAY},
        {true, 30 * minute, night_v + 0.75f * span, TRANSITION_DAY},
        {true, hour + 5 * minute, day_v, TRANSITION_DAY},
        {false, -hour - 5 * minute, day_v, TRANSITION_DAY},
        {false, -30 * minute, day_v - 0.25f * span, TRANSITION_NIGHT},
        {false, 0, middle, TRANSITION_NIGHT},
        {false, hour + 5 * minute, night_v, TRANSITION_NIGHT},
    };
    for (const auto& c : cases) {
        EXPECT_NEAR(at_msecs((c.after_rise ? rise : set) + c.offset), c.expected, tolerance_for(c.expected))
            << (c.after_rise ? "sunrise " : "sunset ") << c.offset / minute << " min";
        EXPECT_EQ(curve.get_transition_type(), c.type) << (c.after_rise ? "sunrise " : "sunset ") << c.offset / minute;
    }
    // Without a ramp the value changes in one step, here three minutes away
    // from the event, more than the calculator's error; the other ramp keeps
    // its own length.
    values.night_transition_duration = 0;
    EXPECT_FLOAT_EQ(at_msecs(set - 3 * minute), day_v);
    EXPECT_FLOAT_EQ(at_msecs(set + 3 * minute), night_v);
    EXPECT_NEAR(at_msecs(rise), middle, ramp_tolerance);
    values.day_transition_duration = 0;
    EXPECT_FLOAT_EQ(at_msecs(rise - 3 * minute), night_v);
    EXPECT_FLOAT_EQ(at_msecs(rise + 3 * minute), day_v);
}

TEST_F(SolarCurve, MoonOffsetMovesBothTransitions)
{
    // Full moon on 2025-03-14 at 06:55 UTC, three hours after sunrise; new
    // moon on 2025-03-29 at 10:58 UTC. A positive offset moves the ramps
    // earlier, so that they end at the sun events.
    const struct
    {
        const char* date;
        int new_moon, full_moon;
        bool after_rise;
        qint64 offset;
        float expected;
    } cases[] = {
        {"2025-03-20", 3600, 3600, true, -hour, middle},     {"2025-03-20", 3600, 3600, false, -hour, middle},
        {"2025-03-20", 3600, 3600, true, 5 * minute, day_v}, {"2025-03-20", 3600, 3600, false, 5 * minute, night_v},
        {"2025-03-20", -1800, -1800, true, 30 * minute, middle},
        {"2025-03-20", -1800, -1800, false, 30 * minute, middle},
        {"2025-03-14", 0, 3600, true, -hour, middle},        {"2025-03-14", 0, 3600, false, -hour, middle},
        {"2025-03-29", 0, 3600, true, 0, middle},            {"2025-03-29", 3600, 0, false, -hour, middle},
    };
    for (const auto& c : cases) {
        use_day(c.date);
        values.new_moon_offset = c.new_moon;
        values.full_moon_offset = c.full_moon;
        EXPECT_NEAR(at_msecs((c.after_rise ? rise : set) + c.offset), c.expected, tolerance_for(c.expected))
            << c.date << " " << c.new_moon << "/" << c.full_moon << (c.after_rise ? " sunrise " : " sunset ")
            << c.offset / minute << " min";
    }
}

TEST_F(SolarCurve, MorningRampExactWithAMixedMoonOffset)
{
    // Worked out apart from this code from the sunrise equation, the moon
    // theory and the curve, with the mixed moon offset held as a float and
    // the mix in double: kept in double, the offset moves these values by
    // one unit of the float.
    values.new_moon_offset = 1234;
    values.full_moon_offset = 3617;
    EXPECT_EQ(at_msecs(Q_INT64_C(1742437627322)), 3373.58643f);
    EXPECT_EQ(at_msecs(Q_INT64_C(1742439076499)), 4136.62646f);
    EXPECT_EQ(at_msecs(Q_INT64_C(1742440723651)), 5003.90234f);
}

TEST_F(SolarCurve, SleepWindowLatchesItsTypeUntilTheManualPath)
{
    // Bedtime 23:00 and wake time 05:00 lie in the night; ramps of 1800 s
    // end at them.
    values.use_sleep_light = true;
    const QDate today(2025, 3, 20);
    EXPECT_FLOAT_EQ(at_local(today, 22, 15), night_v);
    EXPECT_FLOAT_EQ(at_local(today, 22, 45), float(night_v * 0.5 + sleep_v * 0.5));
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_SLEEP);
    EXPECT_FLOAT_EQ(at_local(today, 23, 30), sleep_v);
    EXPECT_FLOAT_EQ(at_local(today, 3, 0), sleep_v);
    EXPECT_FLOAT_EQ(at_local(today, 4, 36), float(night_v * 0.2 + sleep_v * 0.8));
    EXPECT_FLOAT_EQ(at_local(today, 5, 15), night_v);
    EXPECT_FLOAT_EQ(at_local(today, 12, 0), day_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_SLEEP);

    SolarInterpolationValues manual = values;
    manual.use_manual_value = true;
    EXPECT_FLOAT_EQ(curve.get_interpolated_value(manual), night_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_NIGHT);
    EXPECT_FLOAT_EQ(curve.get_interpolated_brightness(values), day_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_DAY);
    EXPECT_FLOAT_EQ(curve.get_interpolated_color_temperature(manual), night_v);
    // Seconds are compared with milliseconds: neither mode is ever in force.
    EXPECT_FALSE(curve.is_day_mode(values));
    EXPECT_FALSE(curve.is_night_mode(values));
    EXPECT_EQ(Singleton<SolarPosition>::s_instance, &curve);
}

TEST_F(SolarCurve, PolarDayIsDayAndPolarNightIsNight)
{
    ScopedTimeZone arctic("Arctic/Longyearbyen");
    values.latitude = 78.2232f;
    values.longitude = 15.6267f;
    EXPECT_FLOAT_EQ(at_local(QDate(2025, 6, 21), 12, 0), day_v);
    EXPECT_FLOAT_EQ(at_local(QDate(2025, 6, 21), 23, 0), day_v);
    EXPECT_FLOAT_EQ(at_local(QDate(2025, 12, 21), 12, 0), night_v);
    EXPECT_FLOAT_EQ(at_local(QDate(2025, 12, 21), 3, 0), night_v);
}

TEST_F(SolarCurve, SunTimeStringsAndLengths)
{
    // Within the calculator's two minutes of the reference, the transition
    // times moved by the moon offset of an hour.
    clock.at_local(2025, 3, 20, 12, 0);
    values.new_moon_offset = 3600;
    values.full_moon_offset = 3600;
    const int r = QDateTime::fromMSecsSinceEpoch(rise).time().msecsSinceStartOfDay() / 1000;
    const int s = QDateTime::fromMSecsSinceEpoch(set).time().msecsSinceStartOfDay() / 1000;
    const struct
    {
        QString (SolarPosition::*text)(SolarInterpolationValues);
        int expected;
    } cases[] = {
        {&SolarPosition::sunrise_time_string, r},
        {&SolarPosition::sunset_time_string, s},
        {&SolarPosition::day_start_time_string, r - 3600},
        {&SolarPosition::day_transition_start_time_string, r - 7200},
        {&SolarPosition::day_transition_end_time_string, r},
        {&SolarPosition::night_start_time_string, s - 3600},
        {&SolarPosition::night_transition_start_time_string, s - 7200},
        {&SolarPosition::night_transition_end_time_string, s},
    };
    for (const auto& c : cases)
        EXPECT_NEAR(seconds_of((curve.*c.text)(values)), c.expected, 120) << (curve.*c.text)(values).toStdString();
    // Exactly one hour apart, whatever the calculator's error.
    EXPECT_EQ(seconds_of(curve.sunrise_time_string(values)) - seconds_of(curve.day_start_time_string(values)), 3600);

    const int day_length = int((set - rise) / 1000);
    EXPECT_NEAR(seconds_in(curve.day_duration_string(values)), day_length, 240);
    EXPECT_NEAR(seconds_in(curve.night_duration_string(values)), 86400 - day_length, 240);
    EXPECT_TRUE(curve.day_duration_string(values).startsWith("12 hour "));
    EXPECT_TRUE(curve.night_duration_string(values).startsWith("11 hour "));
}

TEST_F(SolarCurve, SleepDurationAndOffsetStrings)
{
    values.bedtime_hours = 0;
    values.bedtime_minutes = 10;
    values.wake_time_hours = 7;
    values.sleep_transition_duration = 1200;
    EXPECT_EQ(curve.bedtime_start_time_string(values), "00:10:00");
    EXPECT_EQ(curve.bedtime_transition_start_time_string(values), "23:50:00");
    EXPECT_EQ(curve.wake_time_start_time_string(values), "07:00:00");
    EXPECT_EQ(curve.wake_time_transition_start_time_string(values), "06:40:00");
    EXPECT_EQ(curve.sleep_duration_string(values), "6 hour 50 min ");
    values.bedtime_hours = 23;
    values.bedtime_minutes = 0;
    EXPECT_EQ(curve.sleep_duration_string(values), "8 hour ");

    // Unlike the clock curve's, these always name their seconds.
    EXPECT_EQ(curve.seconds_to_time_string(0), "0 sec");
    EXPECT_EQ(curve.seconds_to_time_string(60), "1 min 0 sec");
    EXPECT_EQ(curve.seconds_to_time_string(90), "1 min 30 sec ");
    EXPECT_EQ(curve.seconds_to_time_string(3661), "1 hour 1 min 1 sec ");
    EXPECT_EQ(curve.transition_duration_string(3600), "1 hour 0 sec");
    EXPECT_EQ(curve.new_moon_offset_string(1800), "30 min 0 sec");
    EXPECT_EQ(curve.full_moon_offset_string(45), "45 sec ");
    EXPECT_EQ(curve.number_to_hour_string(1), "1 hour");
    EXPECT_EQ(curve.number_to_hour_string(0), "0 hours");
    EXPECT_EQ(curve.time_zone_offset_string(-5), "-5 hours");
    // At the new moon of 2025-03-29 10:58 UTC the new moon offset applies,
    // at the full moon of 2025-03-14 06:55 UTC the full moon offset.
    clock.at_msecs(Q_INT64_C(1743245880000));
    EXPECT_EQ(curve.current_moon_offset_string(1800, 1810), "30 min 0 sec");
    EXPECT_EQ(curve.current_moon_offset_string(0, 90), "0 sec");
    clock.at_msecs(Q_INT64_C(1741935300000));
    EXPECT_EQ(curve.current_moon_offset_string(1810, 1800), "30 min 0 sec");
    EXPECT_EQ(curve.current_moon_offset_string(90, 0), "0 sec");
}
