#include "time/Moon.h"

#include <cmath>
#include <cstdio>

namespace {
constexpr double epoch = 2444238.5; // 1980 January 0.0
constexpr double sun_epoch_minus_perigee = -3.762863;
constexpr double sun_perigee = 282.596403;
constexpr double earth_eccentricity = 0.016718;
constexpr double eccentricity_root = 1.01686011182; // sqrt((1 + e) / (1 - e))
constexpr double kepler_tolerance = 1e-12;
constexpr double moon_mean_longitude = 64.975464;
constexpr double moon_daily_motion = 13.176396;
constexpr double moon_perigee = 349.383063;
constexpr double moon_perigee_motion = 0.1114041;

double to_radians(double degrees)
{
    return degrees * M_PI / 180.0;
}

double sin_degrees(double degrees)
{
    return std::sin(to_radians(degrees));
}

// Remainder after a truncated whole number of turns; negative stays negative.
double reduce_turns(double degrees)
{
    return degrees - 360.0 * std::trunc(degrees / 360.0);
}
} // namespace

Moon::Moon() = default;

Moon::Moon(int year, int month, int day) : year(year), month(month), day(day) {}

double Moon::calc_jd_from_epoch(double secondsSinceEpoch)
{
    return secondsSinceEpoch / 86400.0 + 2440587.5;
}

double Moon::sun_position(double d)
{
    double n = reduce_turns(0.9856473320990837 * d);
    n += sun_epoch_minus_perigee;
    if (n < 0)
        n += 360.0;
    const double m = to_radians(n);

    // Kepler's equation, by Newton's method from e = m.
    double e = m;
    double delta;
    do {
        delta = e - earth_eccentricity * std::sin(e) - m;
        e -= delta / (1.0 - earth_eccentricity * std::cos(e));
    } while (std::fabs(delta) >= kepler_tolerance);

    const double longitude = std::atan(eccentricity_root * std::tan(e / 2.0)) * 114.59155902616465 + sun_perigee;
    return reduce_turns(longitude);
}

double Moon::moon_position(double d, double sun)
{
    double ms = 0.985647332099 * d + sun_epoch_minus_perigee;
    if (ms < 0)
        ms += 360.0;

    double l = reduce_turns(moon_daily_motion * d + moon_mean_longitude);
    if (l < 0)
        l += 360.0;

    const double mm = reduce_turns(l - moon_perigee_motion * d - moon_perigee);

    const double evection = 1.2739 * sin_degrees(2.0 * (l - sun) - mm);
    const double annual = 0.1858 * sin_degrees(ms);
    const double third = 0.37 * sin_degrees(ms);
    const double mm2 = mm + evection - annual - third;
    const double centre = 6.2886 * sin_degrees(mm2);
    const double fourth = 0.214 * sin_degrees(2.0 * mm2);
    const double l2 = l + evection + centre - annual + fourth;
    return l2 + 0.6583 * sin_degrees(2.0 * (l2 - sun));
}

double Moon::moon_phase(double secondsSinceEpoch)
{
    const double d = calc_jd_from_epoch(secondsSinceEpoch) - epoch;
    const double sun = sun_position(d);
    const double age = moon_position(d, sun) - sun;
    return (1.0 - std::cos(to_radians(age))) / 2.0;
}

double Moon::moon_phase(int year, int month, int day, double hour, int* segment)
{
    const double d = julian_date(year, month, day + hour / 24.0) - epoch;
    const double sun = sun_position(d);
    double age = moon_position(d, sun) - sun;
    const double phase = (1.0 - std::cos(to_radians(age))) / 2.0;
    if (age < 0)
        age += 360.0;
    if (segment)
        *segment = static_cast<int>((age + 22.5) / 45.0) & 7;
    return phase;
}

double Moon::julian_date(int year, int month, double day)
{
    if (month < 3) {
        year -= 1;
        month += 12;
    }
    // The Gregorian correction holds from 1582 October 15 on; earlier dates
    // are taken in the Julian calendar.
    int gregorian = 0;
    if (year > 1582 || (year == 1582 && month > 10) || (year == 1582 && month == 10 && day > 15))
        gregorian = 2 + year / 400 - year / 100;
    return day + std::trunc(365.25 * year) + std::trunc(30.6001 * (month + 1)) + gregorian + 1720994.5;
}

void Moon::julian_date_to_date(TimePlace* place, double jd)
{
    const long long z = static_cast<long long>(jd + 0.5);
    long long a = z;
    if (z > 2299160) {
        const long long alpha = static_cast<long long>((z - 1867216.25) / 36524.25);
        a = z + 1 + alpha - alpha / 4;
    }
    const long long b = a + 1524;
    place->hour = (jd + 0.5 - z) * 24.0;
    const long long c = static_cast<long long>((b - 122.1) / 365.25);
    const long long r = b - static_cast<long long>(365.25 * c);
    const long long e = static_cast<long long>(r / 30.6001);
    place->day = static_cast<int>(r - static_cast<long long>(30.6001 * e));
    place->month = static_cast<int>(e > 13 ? e - 13 : e - 1);
    place->year = static_cast<int>(place->month < 3 ? c - 4715 : c - 4716);
}

void Moon::next_day(int* year, int* month, int* day, double step)
{
    TimePlace place;
    julian_date_to_date(&place, julian_date(*year, *month, *day) + step);
    *year = place.year;
    *month = place.month;
    *day = place.day;
}

void Moon::print_info()
{
    std::printf("tabulation of the phase of the moon for one month\n\n");
    std::printf("\nDate       Time   Phase Segment\n");

    int y = 2017;
    int m = 8;
    int d = 1;
    bool first = true;
    double previous = 0.0;

    double highest = 0.0; // 0: nothing remembered
    TimePlace highest_at{0, 0, 0, 0.0};
    double lowest = 1.0; // 1: nothing remembered
    TimePlace lowest_at{0, 0, 0, 0.0};

    while (m == 8) {
        for (int h = 0; h < 24; ++h) {
            int segment = 0;
            const double phase = moon_phase(y, m, d, h, &segment);
            if (first) {
                first = false;
                previous = phase;
                continue;
            }

            if (phase > previous && phase > highest) {
                highest = phase;
                highest_at = {y, m, d, double(h)};
            } else if (highest > 0.0) {
                std::printf("%04d/%02d/%02d %02d:00          (fullest)\n", highest_at.year,
                            highest_at.month, highest_at.day, int(highest_at.hour));
                highest = 0.0;
            }

            if (phase < previous && phase < lowest) {
                lowest = phase;
                lowest_at = {y, m, d, double(h)};
            } else if (lowest < 1.0) {
                std::printf("%04d/%02d/%02d %02d:00          (newest)\n", lowest_at.year,
                            lowest_at.month, lowest_at.day, int(lowest_at.hour));
                lowest = 1.0;
            }

            if (h == 16) {
                std::printf("%04d/%02d/%02d %02d:00 %5.1f%%   (%d)\n", y, m, d, h,
                            std::floor(1000.0 * phase + 0.5) / 10.0, segment);
            }
            previous = phase;
        }
        next_day(&y, &m, &d, 1.0);
    }
    std::fflush(stdout);
}
