#include "color/ColorCurve.h"

#include "base/TickPath.h"

#include "settings/SaveKeys.h"
#include "settings/SettingsTable.h"
#include "time/ClockInterpolationValues.h"
#include "time/ClockPosition.h"
#include "time/SolarInterpolationValues.h"
#include "time/SolarPosition.h"

// Every setting the curves read, found once: the curve runs every second,
// and during a fade forty times a second.
struct ColorCurve::Inputs
{
    explicit Inputs(const SettingsMap& s)
        : manual_night_duration(s, SaveKeys::USE_MANUAL_NIGHT_DURATION)
        , use_sleep_light(s, SaveKeys::USE_SLEEP_LIGHT)
        , day_transition(s, SaveKeys::DAY_TRANSITION_DURATION)
        , night_transition(s, SaveKeys::NIGHT_TRANSITION_DURATION)
        , sleep_transition(s, SaveKeys::SLEEP_TRANSITION_DURATION)
        , bedtime_hours(s, SaveKeys::BEDTIME_HOURS)
        , bedtime_minutes(s, SaveKeys::BEDTIME_MINUTES)
        , wake_hours(s, SaveKeys::WAKE_TIME_HOURS)
        , wake_minutes(s, SaveKeys::WAKE_TIME_MINUTES)
        , time_zone_offset(s, SaveKeys::TIME_ZONE_OFFSET)
        , new_moon_offset(s, SaveKeys::NEW_MOON_OFFSET)
        , full_moon_offset(s, SaveKeys::FULL_MOON_OFFSET)
        , night_start_hours(s, SaveKeys::NIGHT_START_TIME_HOURS)
        , night_start_minutes(s, SaveKeys::NIGHT_START_TIME_MINUTES)
        , night_end_hours(s, SaveKeys::NIGHT_END_TIME_HOURS)
        , night_end_minutes(s, SaveKeys::NIGHT_END_TIME_MINUTES)
    {
    }
    SettingRef manual_night_duration, use_sleep_light, day_transition, night_transition,
        sleep_transition, bedtime_hours, bedtime_minutes, wake_hours, wake_minutes,
        time_zone_offset, new_moon_offset, full_moon_offset, night_start_hours,
        night_start_minutes, night_end_hours, night_end_minutes;
};

// The keys of one quantity the curves interpolate.
struct ColorCurve::Quantity
{
    SettingRef manual;
    const char* day;
    const char* night;
    const char* sleep;
    bool brightness;
};

ColorCurve::ColorCurve(const SettingsMap& settings, const double& latitude, const double& longitude)
    : settings(settings)
    , latitude(latitude)
    , longitude(longitude)
    , inputs(new Inputs(settings))
    , temperature_keys(new Quantity{{settings, SaveKeys::USE_MANUAL_COLOR_SETTINGS},
                                    SaveKeys::DAY_TEMPERATURE,
                                    SaveKeys::NIGHT_TEMPERATURE,
                                    SaveKeys::SLEEP_LIGHT,
                                    false})
    , brightness_keys(new Quantity{{settings, SaveKeys::USE_MANUAL_BRIGHTNESS},
                                   SaveKeys::DAY_BRIGHTNESS,
                                   SaveKeys::NIGHT_BRIGHTNESS,
                                   SaveKeys::SLEEP_BRIGHTNESS,
                                   true})
{
}

ColorCurve::~ColorCurve() = default;

OVRA_TICK const SettingRef& ColorCurve::ref(const char* key, int monitor) const
{
    const auto place = std::make_pair(key, monitor);
    auto found = monitor_refs.find(place);
    if (found == monitor_refs.end())
        found = monitor_refs.emplace(place, SettingRef(settings, SettingsTable::monitor_key(key, monitor)))
                    .first;
    return found->second;
}

OVRA_TICK int ColorCurve::monitor_value(const char* key, int monitor) const
{
    if (monitor != 0) {
        const QVariant& own = ref(key, monitor).value();
        if (own.isValid())
            return own.toInt();
    }
    return ref(key, 0).to_int();
}

OVRA_TICK bool ColorCurve::uses_solar_curve() const
{
    return !inputs->manual_night_duration.to_bool() && latitude != -1.0 && longitude != -1.0;
}

OVRA_TICK float ColorCurve::evaluate(const Quantity& q, int monitor) const
{
    const bool manual = q.manual.to_bool();
    const float day = monitor_value(q.day, monitor);
    const float night = monitor_value(q.night, monitor);
    const float sleep = monitor_value(q.sleep, monitor);
    auto put_values = [&](auto& values) {
        values.use_manual_value = manual;
        values.day_value = day;
        values.night_value = night;
        values.sleep_value = sleep;
    };
    if (uses_solar_curve()) {
        SolarInterpolationValues values;
        fill(&values);
        put_values(values);
        SolarPosition* sun = SolarPosition::s_instance;
        return q.brightness ? sun->get_interpolated_brightness(values)
                            : sun->get_interpolated_color_temperature(values);
    }
    ClockInterpolationValues values;
    fill(&values);
    put_values(values);
    ClockPosition* clock = ClockPosition::s_instance;
    return q.brightness ? clock->get_interpolated_brightness(values)
                        : clock->get_interpolated_color_temperature(values);
}

OVRA_TICK float ColorCurve::temperature(int monitor) const
{
    return evaluate(*temperature_keys, monitor);
}

OVRA_TICK float ColorCurve::brightness(int monitor) const
{
    return evaluate(*brightness_keys, monitor);
}

TransitionType ColorCurve::transition_type() const
{
    if (uses_solar_curve())
        return SolarPosition::s_instance->get_transition_type();
    return ClockPosition::s_instance->get_transition_type();
}

OVRA_TICK void ColorCurve::fill(SolarInterpolationValues* values) const
{
    const Inputs& in = *inputs;
    values->latitude = static_cast<float>(latitude);
    values->longitude = static_cast<float>(longitude);
    values->use_sleep_light = in.use_sleep_light.to_bool();
    values->day_transition_duration = in.day_transition.to_int();
    values->night_transition_duration = in.night_transition.to_int();
    values->sleep_transition_duration = in.sleep_transition.to_int();
    values->bedtime_hours = in.bedtime_hours.to_int();
    values->bedtime_minutes = in.bedtime_minutes.to_int();
    values->wake_time_hours = in.wake_hours.to_int();
    values->wake_time_minutes = in.wake_minutes.to_int();
    values->time_zone_offset = in.time_zone_offset.to_int();
    values->new_moon_offset = in.new_moon_offset.to_int();
    values->full_moon_offset = in.full_moon_offset.to_int();
}

OVRA_TICK void ColorCurve::fill(ClockInterpolationValues* values) const
{
    const Inputs& in = *inputs;
    values->use_sleep_light = in.use_sleep_light.to_bool();
    values->day_transition_duration = in.day_transition.to_int();
    values->night_transition_duration = in.night_transition.to_int();
    values->sleep_transition_duration = in.sleep_transition.to_int();
    values->night_start_hours = in.night_start_hours.to_int();
    values->night_start_minutes = in.night_start_minutes.to_int();
    values->night_end_hours = in.night_end_hours.to_int();
    values->night_end_minutes = in.night_end_minutes.to_int();
    values->bedtime_hours = in.bedtime_hours.to_int();
    values->bedtime_minutes = in.bedtime_minutes.to_int();
    values->wake_time_hours = in.wake_hours.to_int();
    values->wake_time_minutes = in.wake_minutes.to_int();
}
