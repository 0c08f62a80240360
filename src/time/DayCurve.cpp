#include "time/DayCurve.h"

#include "base/TickPath.h"

#include <algorithm>

namespace day_curve {

OVRA_TICK double time_of_day_seconds(int hours, int minutes)
{
    return hours * 3600.0 + minutes * 60.0;
}

double start_of_ramp(int hours, int minutes, int duration)
{
    double start = time_of_day_seconds(hours, minutes) - duration;
    if (start < 0)
        start += 86400.0;
    return start;
}


namespace {
Step sleep_ramp(double factor)
{
    Step step;
    step.sets_type = true;
    step.type = TRANSITION_SLEEP;
    if (factor >= 1.0) {
        step.full = true;
        step.factor = 1.0;
    } else {
        step.factor = factor <= 0.0 ? 0.0 : factor;
    }
    return step;
}

Step full_sleep()
{
    Step step;
    step.factor = 1.0;
    step.full = true;
    step.sets_type = true;
    step.type = TRANSITION_SLEEP;
    return step;
}

Step awake(bool sets_day)
{
    Step step;
    step.sets_type = sets_day;
    step.type = TRANSITION_DAY;
    return step;
}

Step night_step(double factor, TransitionType type, bool from_ramp)
{
    Step step;
    step.factor = from_ramp ? std::clamp(factor, 0.0, 1.0) : factor;
    step.sets_type = true;
    step.type = type;
    return step;
}

// Neither a ramp nor a plain part of the day: an instant right at a ramp's
// end. The night value holds and the type stays.
Step undecided_night()
{
    Step step;
    step.factor = 1.0;
    return step;
}
} // namespace

OVRA_TICK SleepWindow sleep_window(int bedtime_hours, int bedtime_minutes, int wake_time_hours,
                         int wake_time_minutes, int sleep_transition_duration)
{
    SleepWindow w;
    w.bed_end = bedtime_hours * 3600.0 + bedtime_minutes * 60.0;
    w.wake_end = wake_time_hours * 3600.0 + wake_time_minutes * 60.0;
    w.bed_start = w.bed_end - sleep_transition_duration;
    if (w.bed_start < 0) {
        w.bed_start += 86400.0;
        w.bed_end += 86400.0;
    }
    w.wake_start = w.wake_end - sleep_transition_duration;
    if (w.wake_start < 0) {
        w.wake_start += 86400.0;
        w.wake_end += 86400.0;
    }
    return w;
}

OVRA_TICK Step sleep_factor(double n, double m, const SleepWindow& w, bool day_after_wake)
{
    const bool evening_bedtime = w.bed_end > w.wake_end;
    const double bed_start = w.bed_start + m;
    const double bed_end = w.bed_end + m;
    const double wake_start = w.wake_start + m;
    const double wake_end = w.wake_end + m;

    const auto rising = [&] { return sleep_ramp((bed_start - n) / (bed_start - bed_end)); };
    const auto falling = [&] { return sleep_ramp(1.0 - (wake_start - n) / (wake_start - wake_end)); };

    if (evening_bedtime) {
        if (n > bed_end)
            return full_sleep();
        if (n > bed_start && n < bed_end)
            return rising();
        if (n > wake_end)
            return awake(day_after_wake);
        if (n > wake_start && n < wake_end)
            return falling();
        if (n <= wake_start)
            return full_sleep();
        return awake(false);
    }

    if (n > bed_end && n < wake_start)
        return full_sleep();
    if (n > bed_start && n < bed_end)
        return rising();
    if (n > wake_end)
        return awake(day_after_wake);
    if (n > wake_start && n < wake_end)
        return falling();
    return awake(false);
}

OVRA_TICK Step night_factor(double n, double a, double b, double c, double d, bool usual_order)
{
    if (usual_order) {
        if (n > d)
            return night_step(1.0, TRANSITION_NIGHT, false);
        if (n > c && n < d)
            return night_step((c - n) / (c - d), TRANSITION_NIGHT, true);
        if (n > b)
            return night_step(0.0, TRANSITION_DAY, false);
        if (n > a && n < b)
            return night_step(1.0 - (a - n) / (a - b), TRANSITION_DAY, true);
        if (n < a)
            return night_step(1.0, TRANSITION_NIGHT, false);
        return undecided_night();
    }

    // A night inside one calendar day: the ramps run from the far value
    // towards the near one, and the value jumps at their ends.
    if (n > b)
        return night_step(0.0, TRANSITION_DAY, false);
    if (n > a && n < b)
        return night_step((a - n) / (a - b), TRANSITION_DAY, true);
    if (n > d)
        return night_step(1.0, TRANSITION_NIGHT, false);
    if (n > c && n < d)
        return night_step(1.0 - (c - n) / (c - d), TRANSITION_NIGHT, true);
    if (n < c)
        return night_step(0.0, TRANSITION_DAY, false);
    return undecided_night();
}

OVRA_TICK float mix(float day_value, float night_value, float sleep_value, double nf, double sf)
{
    float value = static_cast<float>(day_value * (1.0 - nf) + night_value * nf);
    if (sf != 0.0)
        value = static_cast<float>(value * (1.0 - sf) + sleep_value * sf);
    return value;
}

} // namespace day_curve
