#pragma once

#include "time/TransitionType.h"

// The shape shared by the solar and the clock day curve: a sleep window with
// its two ramps, and a night with its two ramps. The functions only decide;
// the curve that calls them owns the transition type and applies what they
// ask for, in the order it calls them.
namespace day_curve {

// A set time of day in seconds since midnight.
double time_of_day_seconds(int hours, int minutes);

// A set time minus a transition, taken back into the day when it falls
// before midnight.
double start_of_ramp(int hours, int minutes, int duration);

struct Step
{
    double factor = 0.0;       // 0: the outer value; 1: the inner value
    bool full = false;         // sleep only: the sleep value holds, stop here
    bool sets_type = false;    // whether the curve should set `type`
    TransitionType type = TRANSITION_DAY;
};

// The sleep window in seconds of the day, each ramp ending at its set time.
// A ramp that would start before midnight moves both of its ends a day on.
struct SleepWindow
{
    double bed_start = 0.0;
    double bed_end = 0.0;
    double wake_start = 0.0;
    double wake_end = 0.0;
};

SleepWindow sleep_window(int bedtime_hours, int bedtime_minutes, int wake_time_hours,
                         int wake_time_minutes, int sleep_transition_duration);

// Sleep factor at now (seconds since the epoch), with midnight the start of
// today. day_after_wake: after the wake ramp the curve asks for
// TRANSITION_DAY (the clock curve does, the solar curve leaves it).
Step sleep_factor(double now, double midnight, const SleepWindow& window, bool day_after_wake);

// Night factor at now. a..b is the morning ramp, c..d the evening ramp, all
// in seconds since the epoch. usual_order: the night starts after the day
// ends in the day's numbering; otherwise both ramps run backwards.
Step night_factor(double now, double a, double b, double c, double d, bool usual_order);

// The day value mixed with the night value by nf, then with the sleep value
// by sf, narrowed to float as the curves return it.
float mix(float day_value, float night_value, float sleep_value, double nf, double sf);

} // namespace day_curve
