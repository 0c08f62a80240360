#include "time/SolarPosition.h"

#include "base/TickPath.h"

#include "time/Clock.h"
#include "time/DayCurve.h"
#include "time/Moon.h"
#include "time/Sun.h"
#include "time/TimeStrings.h"

#include <cmath>

namespace {
double now_seconds()
{
    return Clock::instance()->now_msecs_since_epoch() / 1000.0;
}

double midnight_seconds()
{
    return Clock::instance()->today_midnight_msecs() / 1000.0;
}

using day_curve::start_of_ramp;
using day_curve::time_of_day_seconds;
} // namespace

SolarPosition::SolarPosition() : sun(new Sun()), moon(new Moon()) {}

SolarPosition::~SolarPosition()
{
    delete sun;
    delete moon;
}

OVRA_TICK float SolarPosition::get_interpolated_value(SolarInterpolationValues v)
{
    if (v.use_manual_value) {
        // The manual value of the whole system is the night value; this path
        // also clears a latched sleep type.
        transition_type = TRANSITION_NIGHT;
        return v.night_value;
    }

    sun->setPosition(v.latitude, v.longitude, v.time_zone_offset);
    const double now = now_seconds();
    sun->setCurrentTime(now);

    const float offset = moon_offset(now, v.new_moon_offset, v.full_moon_offset);

    const double rise = sun->calc_day_start_time_V2() / 1000.0;
    const double set = sun->calc_day_end_time_V2() / 1000.0;

    const float hd = float(v.day_transition_duration) * 0.5f;
    const float hn = float(v.night_transition_duration) * 0.5f;
    const double a = rise - hd - offset;
    const double b = rise + hd - offset;
    const double c = set - hn - offset;
    const double d = set + hn - offset;

    const double m = midnight_seconds();
    const day_curve::SleepWindow window =
        day_curve::sleep_window(v.bedtime_hours, v.bedtime_minutes, v.wake_time_hours,
                                v.wake_time_minutes, v.sleep_transition_duration);

    set_transition_type(TRANSITION_DAY);

    double sf = 0.0;
    if (v.use_sleep_light) {
        const day_curve::Step sleep = day_curve::sleep_factor(now, m, window, false);
        if (sleep.sets_type)
            set_transition_type(sleep.type);
        if (sleep.full)
            return v.sleep_value;
        sf = sleep.factor;
    }

    const day_curve::Step night = day_curve::night_factor(now, a, b, c, d, set > rise);
    if (night.sets_type)
        set_transition_type(night.type);

    return day_curve::mix(v.day_value, v.night_value, v.sleep_value, night.factor, sf);
}

OVRA_TICK float SolarPosition::get_interpolated_brightness(SolarInterpolationValues values)
{
    return get_interpolated_value(values);
}

OVRA_TICK float SolarPosition::get_interpolated_color_temperature(SolarInterpolationValues values)
{
    return get_interpolated_value(values);
}

TransitionType SolarPosition::get_transition_type()
{
    return transition_type;
}

OVRA_TICK void SolarPosition::set_transition_type(TransitionType type)
{
    if (transition_type == TRANSITION_SLEEP)
        return;
    transition_type = type;
}

bool SolarPosition::is_day_mode(SolarInterpolationValues values)
{
    prepare_sun(values);
    // Seconds against milliseconds: kept as the report has always had it.
    const double now = now_seconds();
    return now > sun->calc_day_start_time_V2() && now < sun->calc_day_end_time_V2();
}

bool SolarPosition::is_night_mode(SolarInterpolationValues values)
{
    return is_day_mode(values);
}

OVRA_TICK void SolarPosition::prepare_sun(const SolarInterpolationValues& v)
{
    sun->setPosition(v.latitude, v.longitude, v.time_zone_offset);
    sun->setCurrentTime(now_seconds());
}

OVRA_TICK float SolarPosition::moon_offset(double now, int new_moon_offset, int full_moon_offset)
{
    // The phase takes a month to go round: worked out once a minute, it
    // moves an offset of hours by a fraction of a second.
    const qint64 minute = static_cast<qint64>(std::floor(now / 60.0));
    if (minute != moon_minute) {
        moon_minute = minute;
        moon_phase = moon->moon_phase(now);
    }
    const double p = moon_phase;
    return static_cast<float>(p * full_moon_offset + (1.0 - p) * new_moon_offset);
}

double SolarPosition::sunrise_msecs(const SolarInterpolationValues& values)
{
    prepare_sun(values);
    return sun->calc_day_start_time_V2();
}

double SolarPosition::sunset_msecs(const SolarInterpolationValues& values)
{
    prepare_sun(values);
    return sun->calc_day_end_time_V2();
}

QString SolarPosition::sun_time_string(double msecs)
{
    return time_strings::msecs_since_epoch(msecs, solar_date_time_format);
}

QString SolarPosition::duration_string(double seconds)
{
    return time_strings::duration(seconds, tr("hour"), tr("min"), tr("sec"));
}

QString SolarPosition::sunrise_time_string(SolarInterpolationValues values)
{
    return sun_time_string(sunrise_msecs(values));
}

QString SolarPosition::sunset_time_string(SolarInterpolationValues values)
{
    return sun_time_string(sunset_msecs(values));
}

QString SolarPosition::moved_sun_time_string(double event_msecs, double transition_msecs,
                                             const SolarInterpolationValues& v)
{
    const double offset = moon_offset(now_seconds(), v.new_moon_offset, v.full_moon_offset);
    return sun_time_string(event_msecs + transition_msecs - offset * 1000.0);
}

QString SolarPosition::day_start_time_string(SolarInterpolationValues v)
{
    return moved_sun_time_string(sunrise_msecs(v), 0.0, v);
}

QString SolarPosition::day_transition_start_time_string(SolarInterpolationValues v)
{
    return moved_sun_time_string(sunrise_msecs(v), -v.day_transition_duration * 500.0, v);
}

QString SolarPosition::day_transition_end_time_string(SolarInterpolationValues v)
{
    return moved_sun_time_string(sunrise_msecs(v), v.day_transition_duration * 500.0, v);
}

QString SolarPosition::night_start_time_string(SolarInterpolationValues v)
{
    return moved_sun_time_string(sunset_msecs(v), 0.0, v);
}

QString SolarPosition::night_transition_start_time_string(SolarInterpolationValues v)
{
    return moved_sun_time_string(sunset_msecs(v), -v.night_transition_duration * 500.0, v);
}

QString SolarPosition::night_transition_end_time_string(SolarInterpolationValues v)
{
    return moved_sun_time_string(sunset_msecs(v), v.night_transition_duration * 500.0, v);
}

QString SolarPosition::bedtime_start_time_string(SolarInterpolationValues v)
{
    return time_strings::seconds_of_day(time_of_day_seconds(v.bedtime_hours, v.bedtime_minutes),
                                        solar_date_time_format);
}

QString SolarPosition::bedtime_transition_start_time_string(SolarInterpolationValues v)
{
    return time_strings::seconds_of_day(
        start_of_ramp(v.bedtime_hours, v.bedtime_minutes, v.sleep_transition_duration),
        solar_date_time_format);
}

QString SolarPosition::wake_time_start_time_string(SolarInterpolationValues v)
{
    return time_strings::seconds_of_day(time_of_day_seconds(v.wake_time_hours, v.wake_time_minutes),
                                        solar_date_time_format);
}

QString SolarPosition::wake_time_transition_start_time_string(SolarInterpolationValues v)
{
    return time_strings::seconds_of_day(
        start_of_ramp(v.wake_time_hours, v.wake_time_minutes, v.sleep_transition_duration),
        solar_date_time_format);
}

QString SolarPosition::day_duration_string(SolarInterpolationValues v)
{
    const double rise = sunrise_msecs(v);
    double set = sunset_msecs(v);
    if (rise > set)
        set += 86400000.0;
    return duration_string((set - rise) / 1000.0);
}

QString SolarPosition::night_duration_string(SolarInterpolationValues v)
{
    const double set = sunset_msecs(v);
    double rise = sunrise_msecs(v);
    if (set > rise)
        rise += 86400000.0;
    return duration_string((rise - set) / 1000.0);
}

QString SolarPosition::sleep_duration_string(SolarInterpolationValues v)
{
    const double bedtime = time_of_day_seconds(v.bedtime_hours, v.bedtime_minutes);
    double wake_time = time_of_day_seconds(v.wake_time_hours, v.wake_time_minutes);
    if (bedtime > wake_time)
        wake_time += 86400.0;
    return duration_string(wake_time - bedtime);
}

QString SolarPosition::seconds_to_time_string(int seconds)
{
    const int hours = seconds / 3600;
    const int minutes = seconds / 60 % 60;
    const int secs = seconds % 60;

    QString text;
    if (hours != 0)
        text += QString::number(hours) + ' ' + tr("hour") + ' ';
    if (minutes != 0)
        text += QString::number(minutes) + ' ' + tr("min") + ' ';
    // Whole minutes and hours still name their seconds, as "1 hour 0 sec".
    if (secs != 0)
        text += QString::number(secs) + ' ' + tr("sec") + ' ';
    else
        text += QStringLiteral("0 ") + tr("sec");
    return text;
}

QString SolarPosition::transition_duration_string(int seconds)
{
    return seconds_to_time_string(seconds);
}

QString SolarPosition::new_moon_offset_string(int seconds)
{
    return seconds_to_time_string(seconds);
}

QString SolarPosition::full_moon_offset_string(int seconds)
{
    return seconds_to_time_string(seconds);
}

QString SolarPosition::current_moon_offset_string(int new_moon_offset, int full_moon_offset)
{
    const float offset = moon_offset(now_seconds(), new_moon_offset, full_moon_offset);
    return seconds_to_time_string(static_cast<int>(offset));
}

QString SolarPosition::number_to_hour_string(int number)
{
    if (number == 1)
        return QString::number(number) + ' ' + tr("hour");
    return QString::number(number) + ' ' + tr("hours");
}

QString SolarPosition::time_zone_offset_string(int hours)
{
    return number_to_hour_string(hours);
}
