#pragma once

#include "base/Singleton.h"
#include "time/SolarInterpolationValues.h"
#include "time/TransitionType.h"

#include <QObject>
#include <QString>

class Moon;
class Sun;

// The day curve by the sun: turns the present moment into one value between
// the day, night and sleep values of a record, with the transitions centred
// on sunrise and sunset and moved by the moon. Also prints the times and
// lengths that the status report shows.
class SolarPosition : public QObject, public Singleton<SolarPosition>
{
    Q_OBJECT

public:
    SolarPosition();
    ~SolarPosition() override;

    float get_interpolated_value(SolarInterpolationValues values);
    float get_interpolated_brightness(SolarInterpolationValues values);
    float get_interpolated_color_temperature(SolarInterpolationValues values);

    TransitionType get_transition_type();
    // Refused while the stored type is TRANSITION_SLEEP.
    void set_transition_type(TransitionType type);

    bool is_day_mode(SolarInterpolationValues values);
    bool is_night_mode(SolarInterpolationValues values);

    QString sunrise_time_string(SolarInterpolationValues values);
    QString sunset_time_string(SolarInterpolationValues values);
    QString day_start_time_string(SolarInterpolationValues values);
    QString day_transition_start_time_string(SolarInterpolationValues values);
    QString day_transition_end_time_string(SolarInterpolationValues values);
    QString night_start_time_string(SolarInterpolationValues values);
    QString night_transition_start_time_string(SolarInterpolationValues values);
    QString night_transition_end_time_string(SolarInterpolationValues values);
    QString bedtime_start_time_string(SolarInterpolationValues values);
    QString bedtime_transition_start_time_string(SolarInterpolationValues values);
    QString wake_time_start_time_string(SolarInterpolationValues values);
    QString wake_time_transition_start_time_string(SolarInterpolationValues values);
    QString day_duration_string(SolarInterpolationValues values);
    QString night_duration_string(SolarInterpolationValues values);
    QString sleep_duration_string(SolarInterpolationValues values);

    QString seconds_to_time_string(int seconds);
    QString transition_duration_string(int seconds);
    QString new_moon_offset_string(int seconds);
    QString full_moon_offset_string(int seconds);
    QString current_moon_offset_string(int new_moon_offset, int full_moon_offset);
    QString number_to_hour_string(int number);
    QString time_zone_offset_string(int hours);

private:
    // Places the sun for the record and the present moment.
    void prepare_sun(const SolarInterpolationValues& values);
    // The mix of the two moon offsets for the moment, in seconds.
    float moon_offset(double now_seconds, int new_moon_offset, int full_moon_offset);
    double sunrise_msecs(const SolarInterpolationValues& values);
    double sunset_msecs(const SolarInterpolationValues& values);
    QString sun_time_string(double msecs);
    // A sun event moved by part of its transition and by the moon offset of
    // this moment, as the curve itself moves it.
    QString moved_sun_time_string(double event_msecs, double transition_msecs,
                                  const SolarInterpolationValues& v);
    QString duration_string(double seconds);

    Sun* sun;
    Moon* moon;
    qint64 moon_minute = -1;
    double moon_phase = 0.0;
    TransitionType transition_type = TRANSITION_DAY;
};
