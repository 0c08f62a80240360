#pragma once

// A calendar date with the hour as a fraction.
struct TimePlace
{
    int year;
    int month;
    int day;
    double hour;
};

// How much of the moon is lit, by the low-precision solar and lunar theory
// with the epoch 1980 January 0.0. 0 is new moon, 1 is full moon.
class Moon
{
public:
    Moon();
    Moon(int year, int month, int day);

    // Lit fraction at a moment given in seconds since the Unix epoch.
    double moon_phase(double secondsSinceEpoch);
    // Lit fraction at a calendar date; segment gets the eighth of the cycle,
    // 0 (new) to 7.
    double moon_phase(int year, int month, int day, double hour, int* segment);

    double calc_jd_from_epoch(double secondsSinceEpoch);
    // The sun's ecliptic longitude in degrees, d days after the epoch.
    double sun_position(double d);
    // The moon's ecliptic longitude in degrees, not reduced.
    double moon_position(double d, double sun);

    double julian_date(int year, int month, double day);
    void julian_date_to_date(TimePlace* place, double jd);
    void next_day(int* year, int* month, int* day, double step);

    // Prints a table of the phases of August 2017 to standard output.
    void print_info();

private:
    int year = 0;
    int month = 0;
    int day = 0;
};
