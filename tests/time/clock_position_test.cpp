// The clock day curve: the night of 21:00 to 07:00 hour by hour, a night
// inside one calendar day, the sleep window and its wrap past midnight, the
// manual path, the latch of the sleep type, and the strings. Expected values
// are worked out by hand from the set times and ramp lengths.

#include "TimeTestSupport.h"

#include "time/ClockPosition.h"

using namespace time_test;

namespace {
constexpr float day_v = 6500.0f;
constexpr float night_v = 3400.0f;
constexpr float sleep_v = 2000.0f;

// A fraction f of the way from the day value to the night value.
float towards_night(double f)
{
    return float(day_v + (night_v - day_v) * f);
}

class ClockCurve : public testing::Test
{
protected:
    ClockCurve() : zone("Europe/Berlin") {}

    // 21:00 to 07:00 with ramps of 1800 s, no sleep window.
    static ClockInterpolationValues evening_night()
    {
        ClockInterpolationValues v;
        v.night_start_hours = 21;
        v.night_end_hours = 7;
        v.bedtime_hours = 23;
        v.wake_time_hours = 7;
        v.day_value = day_v;
        v.night_value = night_v;
        v.sleep_value = sleep_v;
        v.day_transition_duration = 1800;
        v.night_transition_duration = 1800;
        v.sleep_transition_duration = 1800;
        return v;
    }

    float at(const ClockInterpolationValues& v, int h, int m, int s = 0, int ms = 0)
    {
        clock.at_local(2025, 6, 10, h, m, s, ms);
        return curve.get_interpolated_value(v);
    }

    ScopedTimeZone zone;
    ScopedClock clock;
    ClockPosition curve;
};
} // namespace

// --- The usual night across midnight ---------------------------------------

TEST_F(ClockCurve, EveningNightHourByHour)
{
    const ClockInterpolationValues v = evening_night();
    // Half a minute past each hour: night until 06:00, day from 07:00 to
    // 20:00, night again from 21:00.
    for (int h = 0; h < 24; ++h) {
        const float expected = (h >= 7 && h <= 20) ? day_v : night_v;
        const TransitionType type = (h >= 7 && h <= 20) ? TRANSITION_DAY : TRANSITION_NIGHT;
        EXPECT_FLOAT_EQ(at(v, h, 0, 30), expected) << h << ":00:30";
        EXPECT_EQ(curve.get_transition_type(), type) << h << ":00:30";
    }
}

TEST_F(ClockCurve, EveningRampFallsLinearlyToTheNightAt2100)
{
    const ClockInterpolationValues v = evening_night();
    EXPECT_FLOAT_EQ(at(v, 20, 30, 0), day_v);
    EXPECT_FLOAT_EQ(at(v, 20, 36, 0), towards_night(0.2));
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_NIGHT);
    EXPECT_FLOAT_EQ(at(v, 20, 45, 0), towards_night(0.5));
    EXPECT_FLOAT_EQ(at(v, 20, 54, 0), towards_night(0.8));
    EXPECT_FLOAT_EQ(at(v, 21, 0, 1), night_v);
}

TEST_F(ClockCurve, MorningRampRisesLinearlyToTheDayAt0700)
{
    const ClockInterpolationValues v = evening_night();
    EXPECT_FLOAT_EQ(at(v, 6, 29, 59), night_v);
    EXPECT_FLOAT_EQ(at(v, 6, 36, 0), towards_night(0.8));
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_DAY);
    EXPECT_FLOAT_EQ(at(v, 6, 45, 0), towards_night(0.5));
    EXPECT_FLOAT_EQ(at(v, 6, 54, 0), towards_night(0.2));
    EXPECT_FLOAT_EQ(at(v, 7, 0, 1), day_v);
}

TEST_F(ClockCurve, InstantsExactlyAtTheSetTimesFollowTheStrictComparisons)
{
    const ClockInterpolationValues v = evening_night();
    // 21:00:00.000 is neither above 21:00 nor inside the ramp, but above
    // 07:00: the day value, for that one millisecond.
    EXPECT_FLOAT_EQ(at(v, 21, 0, 0), day_v);
    // 07:00:00.000 matches no rule: the night value, type unchanged.
    at(v, 12, 0);
    EXPECT_FLOAT_EQ(at(v, 7, 0, 0), night_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_DAY);
    EXPECT_FLOAT_EQ(at(v, 7, 0, 0, 1), day_v);
}

TEST_F(ClockCurve, NightStartShortlyAfterMidnightWrapsItsRamp)
{
    ClockInterpolationValues v = evening_night();
    v.night_start_hours = 0;
    v.night_start_minutes = 10;
    // The ramp runs from 23:40 today to 00:10 of tomorrow; the minutes after
    // today's midnight are plain night.
    EXPECT_FLOAT_EQ(at(v, 0, 5), night_v);
    EXPECT_FLOAT_EQ(at(v, 0, 20), night_v);
    EXPECT_FLOAT_EQ(at(v, 23, 30), day_v);
    EXPECT_FLOAT_EQ(at(v, 23, 55), towards_night(0.5));
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_NIGHT);
}

TEST_F(ClockCurve, ZeroTransitionChangesInOneStep)
{
    ClockInterpolationValues v = evening_night();
    v.day_transition_duration = 0;
    v.night_transition_duration = 0;
    EXPECT_FLOAT_EQ(at(v, 20, 59, 59, 999), day_v);
    EXPECT_FLOAT_EQ(at(v, 21, 0, 0, 1), night_v);
    EXPECT_FLOAT_EQ(at(v, 6, 59, 59, 999), night_v);
    EXPECT_FLOAT_EQ(at(v, 7, 0, 0, 1), day_v);
}

TEST_F(ClockCurve, UsesLocalMidnightOfTheZoneInForce)
{
    const ClockInterpolationValues v = evening_night();
    // 19:30 UTC is 21:30 in Berlin in summer: night; in New York 15:30: day.
    clock.clock.set(QDateTime(QDate(2025, 6, 10), QTime(19, 30), QTimeZone::utc()));
    EXPECT_FLOAT_EQ(curve.get_interpolated_value(v), night_v);
    ScopedTimeZone new_york("America/New_York");
    EXPECT_FLOAT_EQ(curve.get_interpolated_value(v), day_v);
}

// --- A night inside one calendar day ------------------------------------

TEST_F(ClockCurve, NightWithinOneDayRunsItsRampsBackwardsAndJumps)
{
    ClockInterpolationValues v = evening_night();
    v.night_start_hours = 1;
    v.night_end_hours = 6;
    // Evening ramp 00:30 to 01:00, morning ramp 05:30 to 06:00.
    EXPECT_FLOAT_EQ(at(v, 0, 15), day_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_DAY);
    EXPECT_FLOAT_EQ(at(v, 0, 29, 59), day_v);
    // Jump to night at 00:30, then back towards the day.
    EXPECT_NEAR(at(v, 0, 30, 1), night_v, 2.0f);
    EXPECT_FLOAT_EQ(at(v, 0, 35), towards_night(25.0 / 30.0));
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_NIGHT);
    EXPECT_FLOAT_EQ(at(v, 0, 45), towards_night(0.5));
    EXPECT_NEAR(at(v, 0, 59, 59), day_v, 2.0f);
    // Jump to night at 01:00.
    EXPECT_FLOAT_EQ(at(v, 1, 0, 1), night_v);
    EXPECT_FLOAT_EQ(at(v, 3, 0), night_v);
    EXPECT_FLOAT_EQ(at(v, 5, 29, 59), night_v);
    // Jump to day at 05:30, then back towards the night.
    EXPECT_NEAR(at(v, 5, 30, 1), day_v, 2.0f);
    EXPECT_FLOAT_EQ(at(v, 5, 35), towards_night(5.0 / 30.0));
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_DAY);
    EXPECT_NEAR(at(v, 5, 59, 59), night_v, 2.0f);
    // Jump to day at 06:00.
    EXPECT_FLOAT_EQ(at(v, 6, 0, 1), day_v);
    EXPECT_FLOAT_EQ(at(v, 12, 0), day_v);
    EXPECT_FLOAT_EQ(at(v, 23, 0), day_v);
}

// --- The sleep window ----------------------------------------------------

TEST_F(ClockCurve, SleepWindowFromBedtimeToWakeRamp)
{
    ClockInterpolationValues v = evening_night();
    v.use_sleep_light = true;
    // Bedtime 23:00, wake 07:00, ramps of 1800 s ending at the set times.
    EXPECT_FLOAT_EQ(at(v, 22, 29), night_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_NIGHT);
    EXPECT_FLOAT_EQ(at(v, 22, 45), float(night_v * 0.5 + sleep_v * 0.5));
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_SLEEP);
    EXPECT_FLOAT_EQ(at(v, 23, 0, 1), sleep_v);
    EXPECT_FLOAT_EQ(at(v, 0, 0, 1), sleep_v);
    EXPECT_FLOAT_EQ(at(v, 3, 0), sleep_v);
    EXPECT_FLOAT_EQ(at(v, 6, 30, 0), sleep_v);
    // 06:45: half way out of sleep, and half way into the day.
    EXPECT_FLOAT_EQ(at(v, 6, 45), float(towards_night(0.5) * 0.5 + sleep_v * 0.5));
    EXPECT_FLOAT_EQ(at(v, 7, 0, 1), day_v);
}

TEST_F(ClockCurve, SleepRampsMixWithTheDayValue)
{
    ClockInterpolationValues v = evening_night();
    v.use_sleep_light = true;
    v.bedtime_hours = 19;
    v.wake_time_hours = 9;
    // Bed ramp 18:30 to 19:00 and wake ramp 08:30 to 09:00 lie in the day.
    EXPECT_FLOAT_EQ(at(v, 18, 36), float(day_v * 0.8 + sleep_v * 0.2));
    EXPECT_FLOAT_EQ(at(v, 8, 36), float(day_v * 0.2 + sleep_v * 0.8));
    EXPECT_FLOAT_EQ(at(v, 8, 54), float(day_v * 0.8 + sleep_v * 0.2));
}

TEST_F(ClockCurve, MixesInDoubleAndNarrowsOnce)
{
    // The factors and both mixes are double, narrowed to float only at the
    // end of each mix. These values were worked out apart from this code
    // with that rounding; mixing in float lands half a unit lower or higher.
    struct Instant
    {
        int h, m, s, ms;
        float expected;
    };
    ClockInterpolationValues v = evening_night();
    const Instant evening[] = {
        {20, 40, 6, 85, 5456.18701f},
        {20, 46, 49, 259, 4761.83154f},
        {20, 54, 19, 31, 3987.22437f},
    };
    for (const Instant& i : evening)
        EXPECT_EQ(at(v, i.h, i.m, i.s, i.ms), i.expected) << i.h << ":" << i.m << ":" << i.s;

    // Into the sleep window, from the full night value.
    v.use_sleep_light = true;
    const Instant bed[] = {
        {22, 30, 1, 20, 3399.20679f},
        {22, 38, 36, 619, 2998.1853f},
        {22, 48, 6, 704, 2554.78589f},
    };
    for (const Instant& i : bed)
        EXPECT_EQ(at(v, i.h, i.m, i.s, i.ms), i.expected) << i.h << ":" << i.m << ":" << i.s;
}

TEST_F(ClockCurve, InstantOfBedtimeItselfIsOutsideTheWindow)
{
    ClockInterpolationValues v = evening_night();
    v.use_sleep_light = true;
    EXPECT_FLOAT_EQ(at(v, 23, 0, 0), night_v);
    EXPECT_FLOAT_EQ(at(v, 23, 0, 0, 1), sleep_v);
}

TEST_F(ClockCurve, BedtimeShortlyAfterMidnightWraps)
{
    ClockInterpolationValues v = evening_night();
    v.use_sleep_light = true;
    v.bedtime_hours = 0;
    v.bedtime_minutes = 10;
    v.sleep_transition_duration = 1200;
    // The bed ramp runs from 23:50 to 24:10 of today; in the first ten
    // minutes after midnight no ramp is active, the window is in force.
    EXPECT_FLOAT_EQ(at(v, 23, 45), night_v);
    EXPECT_FLOAT_EQ(at(v, 23, 55), float(night_v * 0.75 + sleep_v * 0.25));
    EXPECT_FLOAT_EQ(at(v, 0, 5), sleep_v);
    EXPECT_FLOAT_EQ(at(v, 0, 15), sleep_v);
    EXPECT_FLOAT_EQ(at(v, 6, 0), sleep_v);
}

TEST_F(ClockCurve, BedtimeAfterMidnightBeforeWaking)
{
    ClockInterpolationValues v = evening_night();
    v.use_sleep_light = true;
    v.bedtime_hours = 1;
    v.wake_time_hours = 9;
    // Bed ramp 00:30 to 01:00, window to 08:30, wake ramp to 09:00.
    EXPECT_FLOAT_EQ(at(v, 0, 15), night_v);
    EXPECT_FLOAT_EQ(at(v, 0, 45), float(night_v * 0.5 + sleep_v * 0.5));
    EXPECT_FLOAT_EQ(at(v, 4, 0), sleep_v);
    EXPECT_FLOAT_EQ(at(v, 8, 45), float(day_v * 0.5 + sleep_v * 0.5));
    EXPECT_FLOAT_EQ(at(v, 12, 0), day_v);
    EXPECT_FLOAT_EQ(at(v, 23, 30), night_v);
}

TEST_F(ClockCurve, SleepWindowOffWhenNotInUse)
{
    const ClockInterpolationValues v = evening_night();
    EXPECT_FLOAT_EQ(at(v, 3, 0), night_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_NIGHT);
}

// --- Manual path and latch -------------------------------------------------

TEST_F(ClockCurve, SleepTypeLatchesUntilTheManualPath)
{
    ClockInterpolationValues v = evening_night();
    v.use_sleep_light = true;
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_DAY);
    at(v, 3, 0);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_SLEEP);
    // Midday: the value is the day's again, the type stays sleep.
    EXPECT_FLOAT_EQ(at(v, 12, 0), day_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_SLEEP);
    curve.set_transition_type(TRANSITION_NIGHT);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_SLEEP);

    ClockInterpolationValues manual = v;
    manual.use_manual_value = true;
    EXPECT_FLOAT_EQ(at(manual, 12, 0), night_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_NIGHT);
    // Released: the curve sets the type again.
    EXPECT_FLOAT_EQ(at(v, 12, 0), day_v);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_DAY);
}

TEST_F(ClockCurve, ManualValueIsTheNightValueAtAnyHour)
{
    ClockInterpolationValues v = evening_night();
    v.use_manual_value = true;
    v.use_sleep_light = true;
    for (int h = 0; h < 24; h += 3) {
        EXPECT_FLOAT_EQ(at(v, h, 0), night_v);
        EXPECT_EQ(curve.get_transition_type(), TRANSITION_NIGHT);
    }
    EXPECT_FLOAT_EQ(curve.get_interpolated_brightness(v), night_v);
    EXPECT_FLOAT_EQ(curve.get_interpolated_color_temperature(v), night_v);
}

TEST_F(ClockCurve, DayAndNightModeAreTheSameTest)
{
    const ClockInterpolationValues v = evening_night();
    clock.at_local(2025, 6, 10, 12, 0);
    EXPECT_TRUE(curve.is_day_mode(v));
    EXPECT_TRUE(curve.is_night_mode(v));
    clock.at_local(2025, 6, 10, 22, 0);
    EXPECT_FALSE(curve.is_day_mode(v));
    EXPECT_FALSE(curve.is_night_mode(v));
    clock.at_local(2025, 6, 10, 7, 0);
    EXPECT_FALSE(curve.is_day_mode(v));
}

TEST_F(ClockCurve, RegistersAsTheSingleInstance)
{
    EXPECT_EQ(Singleton<ClockPosition>::s_instance, &curve);
}

// --- Strings ---------------------------------------------------------------

TEST_F(ClockCurve, ClockTimeStrings)
{
    ClockInterpolationValues v = evening_night();
    v.night_end_minutes = 15;
    v.night_start_hours = 0;
    v.night_start_minutes = 10;
    v.bedtime_minutes = 5;
    v.sleep_transition_duration = 1200;
    v.day_transition_duration = 2700;
    EXPECT_EQ(curve.day_start_time_string(v), "07:15:00");
    EXPECT_EQ(curve.day_transition_start_time_string(v), "06:30:00");
    EXPECT_EQ(curve.night_start_time_string(v), "00:10:00");
    EXPECT_EQ(curve.night_transition_start_time_string(v), "23:40:00");
    EXPECT_EQ(curve.bedtime_start_time_string(v), "23:05:00");
    EXPECT_EQ(curve.bedtime_transition_start_time_string(v), "22:45:00");
    EXPECT_EQ(curve.wake_time_start_time_string(v), "07:00:00");
    EXPECT_EQ(curve.wake_time_transition_start_time_string(v), "06:40:00");
    v.wake_time_hours = 0;
    v.wake_time_minutes = 5;
    EXPECT_EQ(curve.wake_time_transition_start_time_string(v), "23:45:00");
}

TEST_F(ClockCurve, DurationStrings)
{
    ClockInterpolationValues v = evening_night();
    EXPECT_EQ(curve.night_duration_string(v), "10 hour ");
    // The report's day length is the night's, on purpose.
    EXPECT_EQ(curve.day_duration_string(v), "10 hour ");
    EXPECT_EQ(curve.sleep_duration_string(v), "8 hour ");
    v.night_start_hours = 1;
    v.night_end_hours = 6;
    v.night_end_minutes = 45;
    EXPECT_EQ(curve.night_duration_string(v), "5 hour 45 min ");
    v.bedtime_minutes = 50;
    v.wake_time_hours = 23;
    v.wake_time_minutes = 50;
    EXPECT_EQ(curve.sleep_duration_string(v), "");
}

TEST_F(ClockCurve, TransitionDurationStrings)
{
    EXPECT_EQ(curve.transition_duration_string(0), "0 sec");
    EXPECT_EQ(curve.transition_duration_string(90), "1 min 30 sec ");
    EXPECT_EQ(curve.transition_duration_string(60), "1 min ");
    EXPECT_EQ(curve.transition_duration_string(3600), "1 hour ");
    EXPECT_EQ(curve.transition_duration_string(3661), "1 hour 1 min 1 sec ");
    EXPECT_EQ(curve.transition_duration_string(7245), "2 hour 45 sec ");
}
