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

// A fraction f of the way from `from` to the sleep value.
float towards_sleep(float from, double f)
{
    return float(from * (1 - f) + sleep_v * f);
}

// One local instant of 2025-06-10, the value expected then and, unless -1,
// the transition type.
struct At
{
    int h, m, s, ms;
    float expected;
    int type = -1;
    float tolerance = 0.002f; // a few units of the float, as at 6500
};

class ClockCurve : public testing::Test
{
protected:
    ClockCurve() : zone("Europe/Berlin") {}

    // 21:00 to 07:00 with ramps of 1800 s, bedtime 23:00, no sleep window.
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

    void expect_curve(const ClockInterpolationValues& v, const std::vector<At>& instants)
    {
        for (const At& i : instants) {
            const QString when = QTime(i.h, i.m, i.s, i.ms).toString("hh:mm:ss.zzz");
            EXPECT_NEAR(at(v, i.h, i.m, i.s, i.ms), i.expected, i.tolerance) << when.toStdString();
            if (i.type >= 0) {
                EXPECT_EQ(curve.get_transition_type(), i.type) << when.toStdString();
            }
        }
    }

    ScopedTimeZone zone;
    ScopedClock clock;
    ClockPosition curve;
};
} // namespace

TEST_F(ClockCurve, EveningNightHourByHour)
{
    // Half a minute past each hour: night until 06:00, day from 07:00 to
    // 20:00, night again from 21:00.
    std::vector<At> instants;
    for (int h = 0; h < 24; ++h) {
        const bool day = h >= 7 && h <= 20;
        instants.push_back({h, 0, 30, 0, day ? day_v : night_v, day ? TRANSITION_DAY : TRANSITION_NIGHT});
    }
    expect_curve(evening_night(), instants);
}

TEST_F(ClockCurve, RampsRunLinearlyAndTheSetTimesFollowStrictComparisons)
{
    // 21:00:00.000 is neither above 21:00 nor inside the ramp, but above
    // 07:00: the day value, for that one millisecond. 07:00:00.000 matches no
    // rule: the night value, the type unchanged.
    expect_curve(evening_night(), {{20, 30, 0, 0, day_v}, {20, 36, 0, 0, towards_night(0.2), TRANSITION_NIGHT},
                                   {20, 45, 0, 0, towards_night(0.5)}, {20, 54, 0, 0, towards_night(0.8)},
                                   {21, 0, 1, 0, night_v}, {6, 29, 59, 0, night_v},
                                   {6, 36, 0, 0, towards_night(0.8), TRANSITION_DAY},
                                   {6, 45, 0, 0, towards_night(0.5)}, {6, 54, 0, 0, towards_night(0.2)},
                                   {7, 0, 1, 0, day_v}, {21, 0, 0, 0, day_v}, {12, 0, 0, 0, day_v, TRANSITION_DAY},
                                   {7, 0, 0, 0, night_v, TRANSITION_DAY}, {7, 0, 0, 1, day_v}});
}

TEST_F(ClockCurve, OtherNightsAndSleepWindows)
{
    struct Case
    {
        const char* what;
        int night_start_h, night_start_m, night_end_h, ramp, bed_h, bed_m, wake_h, sleep_ramp;
        bool sleep;
        std::vector<At> instants;
    };
    const Case cases[] = {
        {"no ramps: one step", 21, 0, 7, 0, 23, 0, 7, 1800, false,
         {{20, 59, 59, 999, day_v}, {21, 0, 0, 1, night_v}, {6, 59, 59, 999, night_v}, {7, 0, 0, 1, day_v}}},
        // The ramp runs from 23:40 today to 00:10 of tomorrow; the minutes
        // after today's midnight are plain night.
        {"night from 00:10", 0, 10, 7, 1800, 23, 0, 7, 1800, false,
         {{0, 5, 0, 0, night_v}, {0, 20, 0, 0, night_v}, {23, 30, 0, 0, day_v},
          {23, 55, 0, 0, towards_night(0.5), TRANSITION_NIGHT}}},
        // Ramps 00:30 to 01:00 and 05:30 to 06:00: each jumps to the far
        // value at its start and runs back towards the near one.
        {"night from 01:00 to 06:00", 1, 0, 6, 1800, 23, 0, 7, 1800, false,
         {{0, 15, 0, 0, day_v, TRANSITION_DAY}, {0, 29, 59, 0, day_v}, {0, 30, 1, 0, night_v, -1, 2.0f},
          {0, 35, 0, 0, towards_night(25.0 / 30.0), TRANSITION_NIGHT}, {0, 45, 0, 0, towards_night(0.5)},
          {0, 59, 59, 0, day_v, -1, 2.0f}, {1, 0, 1, 0, night_v}, {3, 0, 0, 0, night_v}, {5, 29, 59, 0, night_v},
          {5, 30, 1, 0, day_v, -1, 2.0f}, {5, 35, 0, 0, towards_night(5.0 / 30.0), TRANSITION_DAY},
          {5, 59, 59, 0, night_v, -1, 2.0f}, {6, 0, 1, 0, day_v}, {12, 0, 0, 0, day_v}, {23, 0, 0, 0, day_v}}},
        // Ramps of 1800 s end at bedtime and wake time; the instant of
        // bedtime itself is outside the window. At 06:45 the curve is half
        // way out of sleep and half way into the day.
        {"sleep from 23:00 to 07:00", 21, 0, 7, 1800, 23, 0, 7, 1800, true,
         {{22, 29, 0, 0, night_v, TRANSITION_NIGHT}, {22, 45, 0, 0, towards_sleep(night_v, 0.5), TRANSITION_SLEEP},
          {23, 0, 0, 0, night_v}, {23, 0, 0, 1, sleep_v}, {0, 0, 1, 0, sleep_v}, {3, 0, 0, 0, sleep_v},
          {6, 30, 0, 0, sleep_v}, {6, 45, 0, 0, towards_sleep(towards_night(0.5), 0.5)}, {7, 0, 1, 0, day_v}}},
        {"sleep ramps in the day", 21, 0, 7, 1800, 19, 0, 9, 1800, true,
         {{18, 36, 0, 0, towards_sleep(day_v, 0.2)}, {8, 36, 0, 0, towards_sleep(day_v, 0.8)},
          {8, 54, 0, 0, towards_sleep(day_v, 0.2)}}},
        // The bed ramp runs from 23:50 to 24:10 of today; in the first ten
        // minutes after midnight no ramp is active, the window is in force.
        {"bedtime 00:10", 21, 0, 7, 1800, 0, 10, 7, 1200, true,
         {{23, 45, 0, 0, night_v}, {23, 55, 0, 0, towards_sleep(night_v, 0.25)}, {0, 5, 0, 0, sleep_v},
          {0, 15, 0, 0, sleep_v}, {6, 0, 0, 0, sleep_v}}},
        {"bedtime 01:00, wake 09:00", 21, 0, 7, 1800, 1, 0, 9, 1800, true,
         {{0, 15, 0, 0, night_v}, {0, 45, 0, 0, towards_sleep(night_v, 0.5)}, {4, 0, 0, 0, sleep_v},
          {8, 45, 0, 0, towards_sleep(day_v, 0.5)}, {12, 0, 0, 0, day_v}, {23, 30, 0, 0, night_v}}},
    };
    for (const Case& c : cases) {
        ClockInterpolationValues v = evening_night();
        v.night_start_hours = c.night_start_h;
        v.night_start_minutes = c.night_start_m;
        v.night_end_hours = c.night_end_h;
        v.day_transition_duration = v.night_transition_duration = c.ramp;
        v.bedtime_hours = c.bed_h;
        v.bedtime_minutes = c.bed_m;
        v.wake_time_hours = c.wake_h;
        v.sleep_transition_duration = c.sleep_ramp;
        v.use_sleep_light = c.sleep;
        SCOPED_TRACE(c.what);
        expect_curve(v, c.instants);
    }
}

TEST_F(ClockCurve, UsesLocalMidnightOfTheZoneInForce)
{
    // 19:30 UTC is 21:30 in Berlin in summer: night; in New York 15:30: day.
    const ClockInterpolationValues v = evening_night();
    clock.clock.set(QDateTime(QDate(2025, 6, 10), QTime(19, 30), QTimeZone::utc()));
    EXPECT_FLOAT_EQ(curve.get_interpolated_value(v), night_v);
    ScopedTimeZone new_york("America/New_York");
    EXPECT_FLOAT_EQ(curve.get_interpolated_value(v), day_v);
}

TEST_F(ClockCurve, MixesInDoubleAndNarrowsOnce)
{
    // The factors and both mixes are double, narrowed to float only at the
    // end of each mix. These values were worked out apart from this code
    // with that rounding; mixing in float lands half a unit lower or higher.
    ClockInterpolationValues v = evening_night();
    EXPECT_EQ(at(v, 20, 40, 6, 85), 5456.18701f);
    EXPECT_EQ(at(v, 20, 46, 49, 259), 4761.83154f);
    EXPECT_EQ(at(v, 20, 54, 19, 31), 3987.22437f);
    // Into the sleep window, from the full night value.
    v.use_sleep_light = true;
    EXPECT_EQ(at(v, 22, 30, 1, 20), 3399.20679f);
    EXPECT_EQ(at(v, 22, 38, 36, 619), 2998.1853f);
    EXPECT_EQ(at(v, 22, 48, 6, 704), 2554.78589f);
}

TEST_F(ClockCurve, SleepTypeLatchesUntilTheManualPath)
{
    ClockInterpolationValues v = evening_night();
    v.use_sleep_light = true;
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_DAY);
    // Midday after a night in the window: the value is the day's again, the
    // type stays sleep, whoever asks.
    expect_curve(v, {{3, 0, 0, 0, sleep_v, TRANSITION_SLEEP}, {12, 0, 0, 0, day_v, TRANSITION_SLEEP}});
    curve.set_transition_type(TRANSITION_NIGHT);
    EXPECT_EQ(curve.get_transition_type(), TRANSITION_SLEEP);

    // The manual value is the night value at any hour, and it releases the
    // latch: the curve sets the type again.
    ClockInterpolationValues manual = v;
    manual.use_manual_value = true;
    for (int h = 0; h < 24; h += 3)
        expect_curve(manual, {{h, 0, 0, 0, night_v, TRANSITION_NIGHT}});
    EXPECT_FLOAT_EQ(curve.get_interpolated_brightness(manual), night_v);
    EXPECT_FLOAT_EQ(curve.get_interpolated_color_temperature(manual), night_v);
    expect_curve(v, {{12, 0, 0, 0, day_v, TRANSITION_DAY}});
    EXPECT_EQ(Singleton<ClockPosition>::s_instance, &curve);
}

TEST_F(ClockCurve, DayAndNightModeAreTheSameTest)
{
    const ClockInterpolationValues v = evening_night();
    for (const auto& [h, day] : {std::pair{12, true}, {22, false}, {7, false}}) {
        clock.at_local(2025, 6, 10, h, 0);
        EXPECT_EQ(curve.is_day_mode(v), day) << h;
        EXPECT_EQ(curve.is_night_mode(v), day) << h;
    }
}

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
    // Unlike the solar curve's, these leave out what is zero.
    EXPECT_EQ(curve.transition_duration_string(0), "0 sec");
    EXPECT_EQ(curve.transition_duration_string(90), "1 min 30 sec ");
    EXPECT_EQ(curve.transition_duration_string(60), "1 min ");
    EXPECT_EQ(curve.transition_duration_string(3600), "1 hour ");
    EXPECT_EQ(curve.transition_duration_string(3661), "1 hour 1 min 1 sec ");
    EXPECT_EQ(curve.transition_duration_string(7245), "2 hour 45 sec ");
}
