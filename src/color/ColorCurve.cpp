#include "color/ColorCurve.h"

#include "settings/SaveKeys.h"
#include "settings/SettingsTable.h"
#include "time/ClockInterpolationValues.h"
#include "time/ClockPosition.h"
#include "time/SolarInterpolationValues.h"
#include "time/SolarPosition.h"

namespace {
// Built once: the curve reads some twenty keys a second.
struct CurveKeys
{
    QString manual_night_duration = QString::fromLatin1(SaveKeys::USE_MANUAL_NIGHT_DURATION);
    QString use_sleep_light = QString::fromLatin1(SaveKeys::USE_SLEEP_LIGHT);
    QString day_transition = QString::fromLatin1(SaveKeys::DAY_TRANSITION_DURATION);
    QString night_transition = QString::fromLatin1(SaveKeys::NIGHT_TRANSITION_DURATION);
    QString sleep_transition = QString::fromLatin1(SaveKeys::SLEEP_TRANSITION_DURATION);
    QString bedtime_hours = QString::fromLatin1(SaveKeys::BEDTIME_HOURS);
    QString bedtime_minutes = QString::fromLatin1(SaveKeys::BEDTIME_MINUTES);
    QString wake_hours = QString::fromLatin1(SaveKeys::WAKE_TIME_HOURS);
    QString wake_minutes = QString::fromLatin1(SaveKeys::WAKE_TIME_MINUTES);
    QString time_zone_offset = QString::fromLatin1(SaveKeys::TIME_ZONE_OFFSET);
    QString new_moon_offset = QString::fromLatin1(SaveKeys::NEW_MOON_OFFSET);
    QString full_moon_offset = QString::fromLatin1(SaveKeys::FULL_MOON_OFFSET);
    QString night_start_hours = QString::fromLatin1(SaveKeys::NIGHT_START_TIME_HOURS);
    QString night_start_minutes = QString::fromLatin1(SaveKeys::NIGHT_START_TIME_MINUTES);
    QString night_end_hours = QString::fromLatin1(SaveKeys::NIGHT_END_TIME_HOURS);
    QString night_end_minutes = QString::fromLatin1(SaveKeys::NIGHT_END_TIME_MINUTES);
};

const CurveKeys& keys()
{
    static const CurveKeys k;
    return k;
}
} // namespace

// The keys of one quantity the curves interpolate.
struct ColorCurve::Keys
{
    QString manual;
    const char* day;
    const char* night;
    const char* sleep;
    bool brightness;
};

ColorCurve::ColorCurve(const SettingsMap& settings, const double& latitude, const double& longitude)
    : settings(settings), latitude(latitude), longitude(longitude)
{
}

QVariant ColorCurve::stored(const QString& key) const
{
    const auto found = settings.find(key);
    return found == settings.end() ? QVariant() : found->second;
}

int ColorCurve::monitor_value(const char* key, int monitor) const
{
    if (monitor != 0) {
        const QVariant own = stored(SettingsTable::monitor_key(key, monitor));
        if (own.isValid())
            return own.toInt();
    }
    return stored(QString::fromLatin1(key)).toInt();
}

bool ColorCurve::uses_solar_curve() const
{
    return !stored(keys().manual_night_duration).toBool() && latitude != -1.0 && longitude != -1.0;
}

float ColorCurve::evaluate(const Keys& k, int monitor) const
{
    const bool manual = stored(k.manual).toBool();
    const float day = monitor_value(k.day, monitor);
    const float night = monitor_value(k.night, monitor);
    const float sleep = monitor_value(k.sleep, monitor);
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
        return k.brightness ? sun->get_interpolated_brightness(values)
                            : sun->get_interpolated_color_temperature(values);
    }
    ClockInterpolationValues values;
    fill(&values);
    put_values(values);
    ClockPosition* clock = ClockPosition::s_instance;
    return k.brightness ? clock->get_interpolated_brightness(values)
                        : clock->get_interpolated_color_temperature(values);
}

float ColorCurve::temperature(int monitor) const
{
    static const Keys k{QString::fromLatin1(SaveKeys::USE_MANUAL_COLOR_SETTINGS),
                        SaveKeys::DAY_TEMPERATURE, SaveKeys::NIGHT_TEMPERATURE,
                        SaveKeys::SLEEP_LIGHT, false};
    return evaluate(k, monitor);
}

float ColorCurve::brightness(int monitor) const
{
    static const Keys k{QString::fromLatin1(SaveKeys::USE_MANUAL_BRIGHTNESS),
                        SaveKeys::DAY_BRIGHTNESS, SaveKeys::NIGHT_BRIGHTNESS,
                        SaveKeys::SLEEP_BRIGHTNESS, true};
    return evaluate(k, monitor);
}

TransitionType ColorCurve::transition_type() const
{
    if (uses_solar_curve())
        return SolarPosition::s_instance->get_transition_type();
    return ClockPosition::s_instance->get_transition_type();
}

void ColorCurve::fill(SolarInterpolationValues* values) const
{
    const CurveKeys& k = keys();
    values->latitude = static_cast<float>(latitude);
    values->longitude = static_cast<float>(longitude);
    values->use_sleep_light = stored(k.use_sleep_light).toBool();
    values->day_transition_duration = stored(k.day_transition).toInt();
    values->night_transition_duration = stored(k.night_transition).toInt();
    values->sleep_transition_duration = stored(k.sleep_transition).toInt();
    values->bedtime_hours = stored(k.bedtime_hours).toInt();
    values->bedtime_minutes = stored(k.bedtime_minutes).toInt();
    values->wake_time_hours = stored(k.wake_hours).toInt();
    values->wake_time_minutes = stored(k.wake_minutes).toInt();
    values->time_zone_offset = stored(k.time_zone_offset).toInt();
    values->new_moon_offset = stored(k.new_moon_offset).toInt();
    values->full_moon_offset = stored(k.full_moon_offset).toInt();
}

void ColorCurve::fill(ClockInterpolationValues* values) const
{
    const CurveKeys& k = keys();
    values->use_sleep_light = stored(k.use_sleep_light).toBool();
    values->day_transition_duration = stored(k.day_transition).toInt();
    values->night_transition_duration = stored(k.night_transition).toInt();
    values->sleep_transition_duration = stored(k.sleep_transition).toInt();
    values->night_start_hours = stored(k.night_start_hours).toInt();
    values->night_start_minutes = stored(k.night_start_minutes).toInt();
    values->night_end_hours = stored(k.night_end_hours).toInt();
    values->night_end_minutes = stored(k.night_end_minutes).toInt();
    values->bedtime_hours = stored(k.bedtime_hours).toInt();
    values->bedtime_minutes = stored(k.bedtime_minutes).toInt();
    values->wake_time_hours = stored(k.wake_hours).toInt();
    values->wake_time_minutes = stored(k.wake_minutes).toInt();
}
