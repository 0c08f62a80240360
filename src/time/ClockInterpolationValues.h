#pragma once

// Everything the clock day curve needs for one evaluation. The caller fills
// it from the settings and puts temperatures or brightnesses into the three
// value fields.
struct ClockInterpolationValues
{
    int night_start_hours = 0; // the night is complete at this time
    int night_start_minutes = 0;
    int night_end_hours = 0; // the day is complete at this time
    int night_end_minutes = 0;
    int bedtime_hours = 0;
    int bedtime_minutes = 0;
    int wake_time_hours = 0;
    int wake_time_minutes = 0;
    float day_value = 0.0f;
    float night_value = 0.0f;
    float sleep_value = 0.0f;
    bool use_sleep_light = false;
    bool use_manual_value = false;
    int day_transition_duration = 0;   // seconds
    int night_transition_duration = 0; // seconds
    int sleep_transition_duration = 0; // seconds
};
