#pragma once

// Everything the solar day curve needs for one evaluation. The caller fills
// it from the settings and puts temperatures or brightnesses into the three
// value fields.
struct SolarInterpolationValues
{
    float latitude = 0.0f;  // degrees
    float longitude = 0.0f; // degrees, east positive
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
    int time_zone_offset = 0;          // hours
    int new_moon_offset = 0;           // seconds
    int full_moon_offset = 0;          // seconds
};
