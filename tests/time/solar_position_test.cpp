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

class SolarCurve : public testing::Test
{
protected:
    SolarCurve() : zone("Africa/Kampala") {}

    void use_day(const char* row_name)
    {
        static const std::vector<Row> rows = read_table("sun_reference.csv");
        const Row* row = find_row(rows, row_name);
        ASSERT_NE(row, nullptr) << row_name;
        rise = row->at("expected_rise_ms").toLongLong();
        set = row->at("expected_set_ms").toLongLong();
        values.latitude = row->at("latitude").toFloat();
        values.longitude = row->at("longitude").toFloat();
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
        use_day("kampala_2025-03-20_1200");
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

    static int local_seconds(qint64 msecs)
    {
        return QDateTime::fromMSecsSinceEpoch(msecs).time().msecsSinceStartOfDay() / 1000;
    }

    // "H hour M min S sec " back to seconds.
    static int seconds_in(const QString& text)
    {
        int total = 0;
        const QRegularExpression part("(\\d+) (hour|min|sec) ");
        auto it = part.globalMatch(text);
        while (it.hasNext()) {
            const auto match = it.next();
            const int n = match.captured(1).toInt();
            total += match.captured(2) == "hour" ? n * 3600 : match.captured(2) == "min" ? n * 60 : n;
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

constexpr qint64 minute = 60000;
constexpr qint64 hour = 3600000;
} // namespace

// --- Transitions centred on the sun events ---------------------------------

TEST_F(SolarCurve, MorningTransitionIsCentredOnSunrise)
{
    EXPECT_FLOAT_EQ(at_msecs(rise - hour - 5 * minute), night_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_NIGHT);
    EXPECT_NEAR(at_msecs(rise - 30 * minute), night_v + 0.25f * (day_v - night_v), ramp_tolerance);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_DAY);
    EXPECT_NEAR(at_msecs(rise), middle, ramp_tolerance);
    EXPECT_NEAR(at_msecs(rise + 30 * minute), night_v + 0.75f * (day_v - night_v), ramp_tolerance);
    EXPECT_FLOAT_EQ(at_msecs(rise + hour + 5 * minute), day_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_DAY);
}

TEST_F(SolarCurve, EveningTransitionIsCentredOnSunset)
{
    EXPECT_FLOAT_EQ(at_msecs(set - hour - 5 * minute), day_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_DAY);
    EXPECT_NEAR(at_msecs(set - 30 * minute), day_v - 0.25f * (day_v - night_v), ramp_tolerance);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_NIGHT);
    EXPECT_NEAR(at_msecs(set), middle, ramp_tolerance);
    EXPECT_FLOAT_EQ(at_msecs(set + hour + 5 * minute), night_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_NIGHT);
}

TEST_F(SolarCurve, ZeroTransitionChangesInOneStep)
{
    values.day_transition_duration = 0;
    values.night_transition_duration = 0;
    // Away from the events by more than the calculator's error.
    EXPECT_FLOAT_EQ(at_msecs(rise - 3 * minute), night_v);
    EXPECT_FLOAT_EQ(at_msecs(rise + 3 * minute), day_v);
    EXPECT_FLOAT_EQ(at_msecs(set - 3 * minute), day_v);
    EXPECT_FLOAT_EQ(at_msecs(set + 3 * minute), night_v);
}

// --- The moon ------------------------------------------------------------

TEST_F(SolarCurve, MoonOffsetMovesBothTransitionsEarlier)
{
    // The same offset at new and full moon: one hour whatever the phase.
    values.new_moon_offset = 3600;
    values.full_moon_offset = 3600;
    EXPECT_NEAR(at_msecs(rise - hour), middle, ramp_tolerance);
    EXPECT_NEAR(at_msecs(set - hour), middle, ramp_tolerance);
    // The morning ramp now ends at sunrise, the evening ramp at sunset.
    EXPECT_FLOAT_EQ(at_msecs(rise + 5 * minute), day_v);
    EXPECT_FLOAT_EQ(at_msecs(set + 5 * minute), night_v);
}

TEST_F(SolarCurve, NegativeMoonOffsetMovesThemLater)
{
    values.new_moon_offset = -1800;
    values.full_moon_offset = -1800;
    EXPECT_NEAR(at_msecs(rise + 30 * minute), middle, ramp_tolerance);
    EXPECT_NEAR(at_msecs(set + 30 * minute), middle, ramp_tolerance);
}

TEST_F(SolarCurve, FullMoonOffsetAppliesAtFullMoon)
{
    // Full moon on 2025-03-14 at 06:55 UTC, three hours after sunrise.
    use_day("kampala_2025-03-14_1200");
    values.new_moon_offset = 0;
    values.full_moon_offset = 3600;
    EXPECT_NEAR(at_msecs(rise - hour), middle, ramp_tolerance);
    EXPECT_NEAR(at_msecs(set - hour), middle, ramp_tolerance);
}

TEST_F(SolarCurve, NewMoonOffsetAppliesAtNewMoon)
{
    // New moon on 2025-03-29 at 10:58 UTC.
    use_day("kampala_2025-03-29_1200");
    values.new_moon_offset = 0;
    values.full_moon_offset = 3600;
    EXPECT_NEAR(at_msecs(rise), middle, ramp_tolerance);
    values.new_moon_offset = 3600;
    values.full_moon_offset = 0;
    EXPECT_NEAR(at_msecs(set - hour), middle, ramp_tolerance);
}

TEST_F(SolarCurve, MorningRampExactWithAMixedMoonOffset)
{
    // Worked out apart from this code from the sunrise equation, the moon
    // theory and the curve, with the mixed moon offset held as a float and
    // the mix in double: kept in double, the offset moves these values by
    // one unit of the float.
    values.new_moon_offset = 1234;
    values.full_moon_offset = 3617;
    const struct
    {
        qint64 msecs;
        float expected;
    } instants[] = {
        {Q_INT64_C(1742437627322), 3373.58643f},
        {Q_INT64_C(1742439076499), 4136.62646f},
        {Q_INT64_C(1742440723651), 5003.90234f},
    };
    for (const auto& i : instants)
        EXPECT_EQ(at_msecs(i.msecs), i.expected) << i.msecs;
}

// --- Sleep, manual path, latch ---------------------------------------------

TEST_F(SolarCurve, SleepWindowAndItsRamps)
{
    values.use_sleep_light = true;
    const QDate today(2025, 3, 20);
    // Bedtime 23:00 and wake time 05:00 lie in the night; ramps of 1800 s
    // end at them.
    EXPECT_FLOAT_EQ(at_local(today, 22, 15), night_v);
    EXPECT_FLOAT_EQ(at_local(today, 22, 45), float(night_v * 0.5 + sleep_v * 0.5));
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_SLEEP);
    EXPECT_FLOAT_EQ(at_local(today, 23, 30), sleep_v);
    EXPECT_FLOAT_EQ(at_local(today, 3, 0), sleep_v);
    EXPECT_FLOAT_EQ(at_local(today, 4, 36), float(night_v * 0.2 + sleep_v * 0.8));
    EXPECT_FLOAT_EQ(at_local(today, 5, 15), night_v);
}

TEST_F(SolarCurve, SleepTypeLatchesUntilTheManualPath)
{
    values.use_sleep_light = true;
    const QDate today(2025, 3, 20);
    at_local(today, 23, 30);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_SLEEP);
    EXPECT_FLOAT_EQ(at_local(today, 12, 0), day_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_SLEEP);

    SolarInterpolationValues manual = values;
    manual.use_manual_value = true;
    clock.at_local(2025, 3, 20, 12, 0);
    EXPECT_FLOAT_EQ(curve.get_interpolated_value(manual), night_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_NIGHT);
    EXPECT_FLOAT_EQ(curve.get_interpolated_brightness(values), day_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_DAY);
    EXPECT_FLOAT_EQ(curve.get_interpolated_color_temperature(manual), night_v);
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

TEST_F(SolarCurve, DayModeComparesSecondsWithMillisecondsAndIsNeverTrue)
{
    clock.at_local(2025, 3, 20, 12, 0);
    EXPECT_FALSE(curve.is_day_mode(values));
    EXPECT_FALSE(curve.is_night_mode(values));
}

TEST_F(SolarCurve, RegistersAsTheSingleInstance)
{
    EXPECT_EQ(Singleton<SolarPosition>::s_instance, &curve);
}

// --- Strings ---------------------------------------------------------------

TEST_F(SolarCurve, SunTimeStrings)
{
    clock.at_local(2025, 3, 20, 12, 0);
    values.new_moon_offset = 3600;
    values.full_moon_offset = 3600;
    const int r = local_seconds(rise);
    const int s = local_seconds(set);
    const int tolerance = 120;
    EXPECT_NEAR(seconds_of(curve.sunrise_time_string(values)), r, tolerance);
    EXPECT_NEAR(seconds_of(curve.sunset_time_string(values)), s, tolerance);
    EXPECT_NEAR(seconds_of(curve.day_start_time_string(values)), r - 3600, tolerance);
    EXPECT_NEAR(seconds_of(curve.day_transition_start_time_string(values)), r - 3600 - 3600, tolerance);
    EXPECT_NEAR(seconds_of(curve.day_transition_end_time_string(values)), r + 3600 - 3600, tolerance);
    EXPECT_NEAR(seconds_of(curve.night_start_time_string(values)), s - 3600, tolerance);
    EXPECT_NEAR(seconds_of(curve.night_transition_start_time_string(values)), s - 3600 - 3600, tolerance);
    EXPECT_NEAR(seconds_of(curve.night_transition_end_time_string(values)), s + 3600 - 3600, tolerance);
    // Exactly one hour apart, whatever the calculator's error.
    EXPECT_EQ(seconds_of(curve.sunrise_time_string(values)) - seconds_of(curve.day_start_time_string(values)),
              3600);
}

TEST_F(SolarCurve, DayAndNightLengths)
{
    clock.at_local(2025, 3, 20, 12, 0);
    const int day_length = int((set - rise) / 1000);
    EXPECT_NEAR(seconds_in(curve.day_duration_string(values)), day_length, 240);
    EXPECT_NEAR(seconds_in(curve.night_duration_string(values)), 86400 - day_length, 240);
    EXPECT_TRUE(curve.day_duration_string(values).startsWith("12 hour "));
    EXPECT_TRUE(curve.night_duration_string(values).startsWith("11 hour "));
}

TEST_F(SolarCurve, SleepStrings)
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
}

TEST_F(SolarCurve, SecondsAlwaysNameTheirSeconds)
{
    EXPECT_EQ(curve.seconds_to_time_string(0), "0 sec");
    EXPECT_EQ(curve.seconds_to_time_string(60), "1 min 0 sec");
    EXPECT_EQ(curve.seconds_to_time_string(3600), "1 hour 0 sec");
    EXPECT_EQ(curve.seconds_to_time_string(90), "1 min 30 sec ");
    EXPECT_EQ(curve.seconds_to_time_string(3661), "1 hour 1 min 1 sec ");
    EXPECT_EQ(curve.transition_duration_string(3600), "1 hour 0 sec");
    EXPECT_EQ(curve.new_moon_offset_string(1800), "30 min 0 sec");
    EXPECT_EQ(curve.full_moon_offset_string(45), "45 sec ");
}

TEST_F(SolarCurve, HoursAndMoonOffsetStrings)
{
    EXPECT_EQ(curve.number_to_hour_string(1), "1 hour");
    EXPECT_EQ(curve.number_to_hour_string(3), "3 hours");
    EXPECT_EQ(curve.number_to_hour_string(0), "0 hours");
    EXPECT_EQ(curve.time_zone_offset_string(-5), "-5 hours");
    // At the new moon of 2025-03-29 10:58 UTC the new moon offset applies.
    clock.at_msecs(Q_INT64_C(1743245880000));
    EXPECT_EQ(curve.current_moon_offset_string(1800, 1810), "30 min 0 sec");
    EXPECT_EQ(curve.current_moon_offset_string(0, 90), "0 sec");
    EXPECT_EQ(curve.current_moon_offset_string(3600, 3600), "1 hour 0 sec");
    // At the full moon of 2025-03-14 06:55 UTC the full moon offset.
    clock.at_msecs(Q_INT64_C(1741935300000));
    EXPECT_EQ(curve.current_moon_offset_string(1810, 1800), "30 min 0 sec");
    EXPECT_EQ(curve.current_moon_offset_string(90, 0), "0 sec");
}
