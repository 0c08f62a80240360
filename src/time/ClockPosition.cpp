#include "time/ClockPosition.h"

#include "base/TickPath.h"

#include "time/Clock.h"
#include "time/DayCurve.h"
#include "time/TimeStrings.h"

namespace {
using day_curve::start_of_ramp;
using day_curve::time_of_day_seconds;

QString clock_time(double seconds)
{
    return time_strings::seconds_of_day(seconds, clock_date_time_format);
}
} // namespace

ClockPosition::ClockPosition() = default;

ClockPosition::~ClockPosition() = default;

OVRA_TICK float ClockPosition::get_interpolated_value(ClockInterpolationValues values)
{
    if (values.use_manual_value) {
        // The manual value of the whole system is the night value; this path
        // also clears a latched sleep type.
        transition_type = TRANSITION_NIGHT;
        return values.night_value;
    }
    return static_cast<float>(calculate_interpolation_value_from_time(values));
}

OVRA_TICK float ClockPosition::get_interpolated_brightness(ClockInterpolationValues values)
{
    return get_interpolated_value(values);
}

OVRA_TICK float ClockPosition::get_interpolated_color_temperature(ClockInterpolationValues values)
{
    return get_interpolated_value(values);
}

OVRA_TICK double ClockPosition::calculate_interpolation_value_from_time(ClockInterpolationValues v)
{
    const double now = Clock::instance()->now_msecs_since_epoch() / 1000.0;
    const double m = Clock::instance()->today_midnight_msecs() / 1000.0;

    double night_end = time_of_day_seconds(v.night_end_hours, v.night_end_minutes);
    double night_start = time_of_day_seconds(v.night_start_hours, v.night_start_minutes);

    double a = night_end - v.day_transition_duration;
    if (a < 0) {
        a += 86400.0;
        night_end += 86400.0;
    }
    double c = night_start - v.night_transition_duration;
    if (c < 0) {
        c += 86400.0;
        night_start += 86400.0;
    }
    const bool usual_order = night_start > night_end;

    const day_curve::SleepWindow window =
        day_curve::sleep_window(v.bedtime_hours, v.bedtime_minutes, v.wake_time_hours,
                                v.wake_time_minutes, v.sleep_transition_duration);

    set_transition_type(TRANSITION_DAY);

    a += m;
    const double b = night_end + m;
    c += m;
    const double d = night_start + m;

    double sf = 0.0;
    if (v.use_sleep_light) {
        const day_curve::Step sleep = day_curve::sleep_factor(now, m, window, true);
        if (sleep.sets_type)
            set_transition_type(sleep.type);
        if (sleep.full)
            return v.sleep_value;
        sf = sleep.factor;
    }

    const day_curve::Step night = day_curve::night_factor(now, a, b, c, d, usual_order);
    if (night.sets_type)
        set_transition_type(night.type);

    return day_curve::mix(v.day_value, v.night_value, v.sleep_value, night.factor, sf);
}

TransitionType ClockPosition::get_transition_type()
{
    return transition_type;
}

OVRA_TICK void ClockPosition::set_transition_type(TransitionType type)
{
    if (transition_type == TRANSITION_SLEEP)
        return;
    transition_type = type;
}

bool ClockPosition::is_day_mode(ClockInterpolationValues v)
{
    const double now = Clock::instance()->now_msecs_since_epoch() / 1000.0;
    const double m = Clock::instance()->today_midnight_msecs() / 1000.0;
    return now > m + time_of_day_seconds(v.night_end_hours, v.night_end_minutes) &&
           now < m + time_of_day_seconds(v.night_start_hours, v.night_start_minutes);
}

bool ClockPosition::is_night_mode(ClockInterpolationValues values)
{
    return is_day_mode(values);
}

QString ClockPosition::duration_string(double seconds)
{
    return time_strings::duration(seconds, tr("hour"), tr("min"), tr("sec"));
}

QString ClockPosition::day_start_time_string(ClockInterpolationValues v)
{
    return clock_time(time_of_day_seconds(v.night_end_hours, v.night_end_minutes));
}

QString ClockPosition::day_transition_start_time_string(ClockInterpolationValues v)
{
    return clock_time(start_of_ramp(v.night_end_hours, v.night_end_minutes, v.day_transition_duration));
}

QString ClockPosition::night_start_time_string(ClockInterpolationValues v)
{
    return clock_time(time_of_day_seconds(v.night_start_hours, v.night_start_minutes));
}

QString ClockPosition::night_transition_start_time_string(ClockInterpolationValues v)
{
    return clock_time(
        start_of_ramp(v.night_start_hours, v.night_start_minutes, v.night_transition_duration));
}

QString ClockPosition::bedtime_start_time_string(ClockInterpolationValues v)
{
    return clock_time(time_of_day_seconds(v.bedtime_hours, v.bedtime_minutes));
}

QString ClockPosition::bedtime_transition_start_time_string(ClockInterpolationValues v)
{
    return clock_time(start_of_ramp(v.bedtime_hours, v.bedtime_minutes, v.sleep_transition_duration));
}

QString ClockPosition::wake_time_start_time_string(ClockInterpolationValues v)
{
    return clock_time(time_of_day_seconds(v.wake_time_hours, v.wake_time_minutes));
}

QString ClockPosition::wake_time_transition_start_time_string(ClockInterpolationValues v)
{
    return clock_time(
        start_of_ramp(v.wake_time_hours, v.wake_time_minutes, v.sleep_transition_duration));
}

QString ClockPosition::night_duration_string(ClockInterpolationValues v)
{
    const double start = time_of_day_seconds(v.night_start_hours, v.night_start_minutes);
    double end = time_of_day_seconds(v.night_end_hours, v.night_end_minutes);
    if (start > end)
        end += 86400.0;
    return duration_string(end - start);
}

QString ClockPosition::day_duration_string(ClockInterpolationValues values)
{
    return night_duration_string(values);
}

QString ClockPosition::sleep_duration_string(ClockInterpolationValues v)
{
    const double bedtime = time_of_day_seconds(v.bedtime_hours, v.bedtime_minutes);
    double wake_time = time_of_day_seconds(v.wake_time_hours, v.wake_time_minutes);
    if (bedtime > wake_time)
        wake_time += 86400.0;
    return duration_string(wake_time - bedtime);
}

QString ClockPosition::transition_duration_string(int seconds)
{
    if (seconds == 0)
        return QStringLiteral("0 ") + tr("sec");
    return duration_string(seconds);
}
