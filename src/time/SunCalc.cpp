#include "time/SunCalc.h"

#include <cmath>
#include <cstdint>

namespace {
constexpr double rad = 0.017453292519943295;
constexpr double pi = 3.14159265358979323846;
constexpr double day_ms = 86400000.0;
constexpr double j1970 = 2440588.0;
constexpr double j2000 = 2451545.0;
constexpr double sin_obliquity = 0.39778370349342274;
constexpr double cos_obliquity = 0.9174792233260962;
constexpr double perihelion = 1.796593062783907;

std::vector<SunTimes> default_sun_times()
{
    return {
        {-0.833, "sunrise", "sunset"},
        {-0.3, "sunriseEnd", "sunsetStart"},
        {-6.0, "dawn", "dusk"},
        {-12.0, "nauticalDawn", "nauticalDusk"},
        {-18.0, "nightEnd", "night"},
        {6.0, "goldenHourEnd", "goldenHour"},
    };
}
} // namespace

double J0 = 0.0009;
std::vector<SunTimes> times_ = default_sun_times();

void addTime(double angle, QString riseName, QString setName)
{
    times_.push_back({angle, std::move(riseName), std::move(setName)});
}

double toJulian(const QDateTime& date)
{
    // Whole days only, truncated as integers: the day number must change at
    // midnight UTC and nowhere else, also before 1970.
    const std::int64_t whole_days = date.toMSecsSinceEpoch() / std::int64_t(86400000);
    return double(whole_days) - 0.5 + j1970;
}

QDateTime fromJulian(double j)
{
    const double msecs = (j + 0.5 - j1970) * day_ms;
    // An event that never happens (the sun stays up or down) arrives here as
    // not-a-number; it has no instant.
    if (!std::isfinite(msecs) || std::fabs(msecs) > 9.0e18)
        return QDateTime();
    QDateTime result;
    result.setMSecsSinceEpoch(static_cast<qint64>(msecs));
    return result;
}

double toDays(const QDateTime& date)
{
    return toJulian(date) - j2000;
}

double julianCycle(double d, double lw)
{
    return std::round(d - J0 - lw / (2 * pi));
}

double approxTransit(double ht, double lw, double n)
{
    return J0 + (ht + lw) / (2 * pi) + n;
}

double solarMeanAnomaly(double d)
{
    return rad * (357.5291 + 0.98560028 * d);
}

double eclipticLongitude(double m)
{
    const double c = rad * (1.9148 * std::sin(m) + 0.02 * std::sin(2 * m) + 0.0003 * std::sin(3 * m));
    return m + c + perihelion + pi;
}

double declination(double l, double b)
{
    return std::asin(std::sin(b) * cos_obliquity + std::cos(b) * sin_obliquity * std::sin(l));
}

double rightAscension(double l, double b)
{
    return std::atan2(std::sin(l) * cos_obliquity - std::tan(b) * sin_obliquity, std::cos(l));
}

double solarTransitJ(double ds, double m, double l)
{
    return j2000 + ds + 0.0053 * std::sin(m) - 0.0069 * std::sin(2 * l);
}

double hourAngle(double h, double phi, double dec)
{
    return std::acos((std::sin(h) - std::sin(phi) * std::sin(dec)) / (std::cos(phi) * std::cos(dec)));
}

double getSetJ(double h, double lw, double phi, double dec, double n, double m, double l)
{
    const double w = hourAngle(h, phi, dec);
    const double a = approxTransit(w, lw, n);
    return solarTransitJ(a, m, l);
}

double siderealTime(double d, double lw)
{
    return rad * (280.16 + 360.9856235 * d) - lw;
}

double azimuth(double h, double phi, double dec)
{
    return std::atan2(std::sin(h), std::cos(h) * std::sin(phi) - std::tan(dec) * std::cos(phi));
}

double altitude(double h, double phi, double dec)
{
    return std::asin(std::sin(phi) * std::sin(dec) + std::cos(phi) * std::cos(dec) * std::cos(h));
}

double astroRefraction(double h)
{
    if (h < 0)
        return 0.008446689093277518;
    return 0.0002967 / std::tan(h + 0.00312536 / (h + 0.08901179));
}

std::pair<double, double> sunCoords(double d)
{
    const double m = solarMeanAnomaly(d);
    const double l = eclipticLongitude(m);
    return {declination(l, 0), rightAscension(l, 0)};
}

std::pair<double, double> getPosition(const QDateTime& date, double latitude, double longitude)
{
    const double lw = rad * -longitude;
    const double phi = rad * latitude;
    const double d = toDays(date);
    const std::pair<double, double> c = sunCoords(d);
    const double h = siderealTime(d, lw) - c.second;
    return {azimuth(h, phi, c.first), altitude(h, phi, c.first)};
}

std::vector<SolarTimes> getTimes(const QDateTime& date, double latitude, double longitude)
{
    const double lw = rad * -longitude;
    const double phi = rad * latitude;
    const double d = toDays(date);
    const double n = julianCycle(d, lw);
    const double ds = approxTransit(0, lw, n);
    const double m = solarMeanAnomaly(ds);
    const double l = eclipticLongitude(m);
    const double dec = declination(l, 0);
    const double jnoon = solarTransitJ(ds, m, l);

    std::vector<SolarTimes> result;
    result.reserve(2 + 2 * times_.size());
    result.push_back({"solarNoon", fromJulian(jnoon)});
    result.push_back({"nadir", fromJulian(jnoon - 0.5)});
    for (const SunTimes& row : times_) {
        const double jset = getSetJ(row.angle * rad, lw, phi, dec, n, m, l);
        const double jrise = jnoon - (jset - jnoon);
        result.push_back({row.rise_name, fromJulian(jrise)});
        result.push_back({row.set_name, fromJulian(jset)});
    }
    return result;
}
