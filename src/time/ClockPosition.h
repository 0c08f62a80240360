#pragma once

#include "base/Singleton.h"
#include "time/ClockInterpolationValues.h"
#include "time/TransitionType.h"

#include <QObject>
#include <QString>

// The day curve by clock times the user sets: the same shape as the solar
// curve, with ramps that end at the set times. Used when the location is
// unknown or the user fixes the night by the clock. Also prints the times
// and lengths that the status report shows.
class ClockPosition : public QObject, public Singleton<ClockPosition>
{
    Q_OBJECT

public:
    ClockPosition();
    ~ClockPosition() override;

    float get_interpolated_value(ClockInterpolationValues values);
    float get_interpolated_brightness(ClockInterpolationValues values);
    float get_interpolated_color_temperature(ClockInterpolationValues values);
    double calculate_interpolation_value_from_time(ClockInterpolationValues values);

    TransitionType get_transition_type();
    // Refused while the stored type is TRANSITION_SLEEP.
    void set_transition_type(TransitionType type);

    bool is_day_mode(ClockInterpolationValues values);
    bool is_night_mode(ClockInterpolationValues values);

    QString day_start_time_string(ClockInterpolationValues values);
    QString day_transition_start_time_string(ClockInterpolationValues values);
    QString night_start_time_string(ClockInterpolationValues values);
    QString night_transition_start_time_string(ClockInterpolationValues values);
    QString bedtime_start_time_string(ClockInterpolationValues values);
    QString bedtime_transition_start_time_string(ClockInterpolationValues values);
    QString wake_time_start_time_string(ClockInterpolationValues values);
    QString wake_time_transition_start_time_string(ClockInterpolationValues values);
    QString night_duration_string(ClockInterpolationValues values);
    // The length of the night, as the report shows for the day.
    QString day_duration_string(ClockInterpolationValues values);
    QString sleep_duration_string(ClockInterpolationValues values);

    QString transition_duration_string(int seconds);

private:
    QString duration_string(double seconds);

    TransitionType transition_type = TRANSITION_DAY;
};
