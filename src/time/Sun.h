#pragma once

#include <QDateTime>

// Sunrise and sunset for a place. Two calculators live side by side: the V2
// members, built on the free functions of SunCalc.h, which the day curve
// uses, and an older calculator after the NOAA solar calculator, kept as a
// complete second implementation over the same data.
class Sun
{
public:
    Sun();
    Sun(double latitude, double longitude, int timeZoneOffset);
    ~Sun();

    void setPosition(double latitude, double longitude, int timeZoneOffset);
    void setTZOffset(int timeZoneOffset);
    void setCurrentTime(double secondsSinceEpoch);
    void setCurrentDate(int year, int month, int day);

    // V2: today's sunrise and sunset in milliseconds since the Unix epoch,
    // from the stored place and the clock alone. Both lie on today's local
    // date.
    double calcSunriseV2();
    double calcSunsetV2();
    double calc_day_start_time_V2();
    double calc_day_end_time_V2();

    // The older calculator: times in minutes, angles in degrees, t in Julian
    // centuries since 2000 January 1.5.
    double calcJD(int year, int month, int day);
    double calcjdFromEpoch(double secondsSinceEpoch);
    double calcTimeJulianCent(double jd);
    double calcJDFromJulianCent(double t);
    double calcGeomMeanLongSun(double t);
    double calcGeomMeanAnomalySun(double t);
    double calcEccentricityEarthOrbit(double t);
    double calcSunEqOfCenter(double t);
    double calcSunTrueLong(double t);
    double calcSunApparentLong(double t);
    double calcMeanObliquityOfEcliptic(double t);
    double calcObliquityCorrection(double t);
    double calcSunDeclination(double t);
    double calcEquationOfTime(double t);
    double calcHourAngleSunrise(double latitude, double solarDec);
    double calcHourAngleSunset(double latitude, double solarDec);
    double calcSunriseUTC();
    double calcSunsetUTC();
    double calcSunrise();
    double calcSunset();
    double calc_day_start_time();
    double calc_day_end_time();

    double degToRad(double degrees);
    double radToDeg(double radians);

private:
    double sun_event_v2(bool rise);
    double compute_sun_event_v2(bool rise, const QDateTime& now);

    // Rise and set change only with the day and the place; the curve asks
    // for them every second.
    struct CachedEvent
    {
        bool valid = false;
        qint64 local_day = 0;
        qint64 utc_day = 0;
        double latitude = 0.0;
        double longitude = 0.0;
        double msecs = 0.0;
    };
    CachedEvent cached_events[2];
    double sun_event_utc(bool rise);

    double latitude;
    double longitude;
    double julianDate;
    int year = 0;
    int month = 0;
    int day = 0;
    int tzOffset;
};
