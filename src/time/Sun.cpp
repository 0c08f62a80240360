#include "time/Sun.h"

#include "time/Clock.h"
#include "time/SunCalc.h"

#include <cmath>

namespace {
constexpr double rad = 0.017453292519943295;
// -0.833 degrees: refraction and the sun's radius at rise and set.
constexpr double sunrise_altitude = -0.014538592669112765;
constexpr double sin_obliquity = 0.39778370349342274;
constexpr double cos_obliquity = 0.9174792233260962;

// Where the sun never crosses the horizon today the sunrise equation has no
// solution. The curve still needs two instants on today's date: with the sun
// up all day, the whole day lies between them; with it down all day, they
// sit together at the start of the day so that the night holds the rest.
QDateTime polar_event(const QDate& today, bool rise, double phi, double dec)
{
    const double cos_hour_angle = (std::sin(sunrise_altitude) - std::sin(phi) * std::sin(dec)) /
                                  (std::cos(phi) * std::cos(dec));
    const bool sun_always_up = cos_hour_angle < -1.0;
    QTime at(0, 0);
    if (sun_always_up && !rise)
        at = QTime(23, 59, 59, 999);
    else if (!sun_always_up && !rise)
        at = QTime(0, 0, 0, 1);
    return QDateTime(today, at, Qt::LocalTime);
}
} // namespace

Sun::Sun() : latitude(0.0), longitude(0.0), julianDate(0.0), tzOffset(0) {}

Sun::Sun(double latitude, double longitude, int timeZoneOffset)
    : latitude(latitude), longitude(longitude), julianDate(0.0), tzOffset(timeZoneOffset)
{
}

Sun::~Sun() = default;

void Sun::setPosition(double latitude, double longitude, int timeZoneOffset)
{
    this->latitude = latitude;
    this->longitude = longitude;
    tzOffset = timeZoneOffset;
}

void Sun::setTZOffset(int timeZoneOffset)
{
    tzOffset = timeZoneOffset;
}

void Sun::setCurrentTime(double secondsSinceEpoch)
{
    julianDate = calcjdFromEpoch(secondsSinceEpoch);
}

void Sun::setCurrentDate(int year, int month, int day)
{
    this->year = year;
    this->month = month;
    this->day = day;
    julianDate = calcJD(year, month, day);
}

double Sun::sun_event_v2(bool rise)
{
    // The event depends on the local date and on the whole UTC day the
    // cycle is counted from; both can change at different moments. The local
    // day is told by its midnight, which the clock keeps without a date.
    const Clock* clock = Clock::instance();
    const qint64 local_day = clock->today_midnight_msecs();
    const qint64 utc_day = clock->now_msecs_since_epoch() / qint64(86400000);
    CachedEvent& cached = cached_events[rise ? 0 : 1];
    if (!cached.valid || cached.local_day != local_day || cached.utc_day != utc_day
        || cached.latitude != latitude || cached.longitude != longitude) {
        cached = {true, local_day, utc_day, latitude, longitude, compute_sun_event_v2(rise, clock->now())};
    }
    return cached.msecs;
}

double Sun::compute_sun_event_v2(bool rise, const QDateTime& now)
{
    const double lw = rad * -longitude;
    const double phi = rad * latitude;
    const double d = toDays(now);
    const double n = julianCycle(d, lw);
    const double ds = approxTransit(0, lw, n);
    const double m = solarMeanAnomaly(ds);
    const double l = eclipticLongitude(m);
    const double dec = declination(l, 0);

    double j = getSetJ(sunrise_altitude, lw, phi, dec, n, m, l);
    if (rise) {
        const double jnoon = solarTransitJ(ds, m, l);
        j = jnoon - (j - jnoon);
    }

    QDateTime t = fromJulian(j);
    if (!t.isValid())
        return double(polar_event(now.date(), rise, phi, dec).toMSecsSinceEpoch());
    // Only the local time of day counts; the event is placed on today.
    t.setDate(now.date());
    return double(t.toMSecsSinceEpoch());
}

double Sun::calcSunriseV2()
{
    return sun_event_v2(true);
}

double Sun::calcSunsetV2()
{
    return sun_event_v2(false);
}

double Sun::calc_day_start_time_V2()
{
    return calcSunriseV2();
}

double Sun::calc_day_end_time_V2()
{
    return calcSunsetV2();
}

double Sun::degToRad(double degrees)
{
    return degrees * M_PI / 180.0;
}

double Sun::radToDeg(double radians)
{
    return radians * 180.0 / M_PI;
}
