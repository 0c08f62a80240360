// The older calculator of class Sun, after the NOAA solar calculator. Nothing
// outside the class calls it; it is kept complete as a cross-check of the V2
// calculator. Its longitude is taken as stored, with no sign change.
#include "time/Sun.h"

#include <cmath>

double Sun::calcJD(int year, int month, int day)
{
    if (month < 3) {
        year -= 1;
        month += 12;
    }
    const int a = year / 100;
    const int b = 2 - a + a / 4;
    return std::floor(365.25 * (year + 4716)) + std::floor(30.6001 * (month + 1)) + day + b - 1524.5;
}

double Sun::calcjdFromEpoch(double secondsSinceEpoch)
{
    return secondsSinceEpoch / 86400.0 + 2440587.5;
}

double Sun::calcTimeJulianCent(double jd)
{
    return (jd - 2451545.0) / 36525.0;
}

double Sun::calcJDFromJulianCent(double t)
{
    return t * 36525.0 + 2451545.0;
}

double Sun::calcGeomMeanLongSun(double t)
{
    double l0 = 280.46646 + t * (36000.76983 + 0.0003032 * t);
    // Only the whole degrees are compared, so 360.5 stays as it is.
    while (std::trunc(l0) > 360.0)
        l0 -= 360.0;
    while (l0 < 0)
        l0 += 360.0;
    return l0;
}

double Sun::calcGeomMeanAnomalySun(double t)
{
    return 357.52911 + t * (35999.05029 - 0.0001537 * t);
}

double Sun::calcEccentricityEarthOrbit(double t)
{
    return 0.016708634 - t * (0.000042037 + 0.0000001267 * t);
}

double Sun::calcSunEqOfCenter(double t)
{
    const double mrad = degToRad(calcGeomMeanAnomalySun(t));
    return std::sin(mrad) * (1.914602 - t * (0.004817 + 0.000014 * t)) +
           std::sin(2 * mrad) * (0.019993 - 0.000101 * t) + std::sin(3 * mrad) * 0.000289;
}

double Sun::calcSunTrueLong(double t)
{
    return calcGeomMeanLongSun(t) + calcSunEqOfCenter(t);
}

double Sun::calcSunApparentLong(double t)
{
    const double omega = 125.04 - 1934.136 * t;
    return calcSunTrueLong(t) - 0.00569 - 0.00478 * std::sin(degToRad(omega));
}

double Sun::calcMeanObliquityOfEcliptic(double t)
{
    const double seconds = 21.448 - t * (46.815 + t * (0.00059 - t * 0.001813));
    return 23.0 + (26.0 + seconds / 60.0) / 60.0;
}

double Sun::calcObliquityCorrection(double t)
{
    const double omega = 125.04 - 1934.136 * t;
    return calcMeanObliquityOfEcliptic(t) + 0.00256 * std::cos(degToRad(omega));
}

double Sun::calcSunDeclination(double t)
{
    const double e = calcObliquityCorrection(t);
    const double lambda = calcSunApparentLong(t);
    return radToDeg(std::asin(std::sin(degToRad(e)) * std::sin(degToRad(lambda))));
}

double Sun::calcEquationOfTime(double t)
{
    const double epsilon = calcObliquityCorrection(t);
    const double l0 = calcGeomMeanLongSun(t);
    const double e = calcEccentricityEarthOrbit(t);
    const double m = calcGeomMeanAnomalySun(t);

    double y = std::tan(degToRad(epsilon) / 2.0);
    y *= y;

    const double sin2l0 = std::sin(2.0 * degToRad(l0));
    const double sinm = std::sin(degToRad(m));
    const double cos2l0 = std::cos(2.0 * degToRad(l0));
    const double sin4l0 = std::sin(4.0 * degToRad(l0));
    const double sin2m = std::sin(2.0 * degToRad(m));

    const double etime = y * sin2l0 - 2.0 * e * sinm + 4.0 * e * y * sinm * cos2l0 -
                         0.5 * y * y * sin4l0 - 1.25 * e * e * sin2m;
    return radToDeg(etime) * 4.0;
}

double Sun::calcHourAngleSunrise(double latitude, double solarDec)
{
    const double lat = degToRad(latitude);
    const double dec = degToRad(solarDec);
    return std::acos(std::cos(degToRad(90.833)) / (std::cos(lat) * std::cos(dec)) -
                     std::tan(lat) * std::tan(dec));
}

double Sun::calcHourAngleSunset(double latitude, double solarDec)
{
    return -calcHourAngleSunrise(latitude, solarDec);
}

double Sun::sun_event_utc(bool rise)
{
    const auto estimate = [&](double t) {
        const double eq_time = calcEquationOfTime(t);
        const double solar_dec = calcSunDeclination(t);
        const double ha = rise ? calcHourAngleSunrise(latitude, solar_dec)
                               : calcHourAngleSunset(latitude, solar_dec);
        return 720.0 + 4.0 * (longitude - radToDeg(ha)) - eq_time;
    };

    const double t = calcTimeJulianCent(julianDate);
    const double first = estimate(t);
    // Second pass at the estimated moment of the event itself.
    const double t2 = calcTimeJulianCent(calcJDFromJulianCent(t) + first / 1440.0);
    return estimate(t2);
}

double Sun::calcSunriseUTC()
{
    return sun_event_utc(true);
}

double Sun::calcSunsetUTC()
{
    return sun_event_utc(false);
}

double Sun::calcSunrise()
{
    return calcSunriseUTC() + tzOffset * 60.0;
}

double Sun::calcSunset()
{
    return calcSunsetUTC() + tzOffset * 60.0;
}

double Sun::calc_day_start_time()
{
    const double r = calcSunrise();
    const double s = calcSunset();
    double candidate = r;
    double alternative = s;
    if (std::trunc(r / 60.0) < 0.0) {
        candidate = s;
        alternative = r + 1440.0;
    }
    if (std::trunc(s / 60.0) < 24.0)
        return candidate;
    return alternative - 1440.0;
}

double Sun::calc_day_end_time()
{
    const double r = calcSunrise();
    const double s = calcSunset();
    const bool set_before_midnight = std::trunc(s / 60.0) < 24.0;
    if (std::trunc(r / 60.0) >= 0.0)
        return set_before_midnight ? s : r;
    return set_before_midnight ? r + 1440.0 : s;
}
