#pragma once

#include <QDateTime>
#include <QString>

#include <utility>
#include <vector>

// Closed-form sunrise equation. Angles are radians unless a name says
// degrees; "days" count from 2000 January 1.5.

// Transit offset of the sunrise equation, in days.
extern double J0;

// One row of the sun angle table: the altitude in degrees at which the two
// named events of a day happen.
struct SunTimes
{
    double angle;
    QString rise_name;
    QString set_name;
};

// One event computed by getTimes.
struct SolarTimes
{
    QString name;
    QDateTime time;
};

// The sun angle table, in the order getTimes reports it.
extern std::vector<SunTimes> times_;
void addTime(double angle, QString riseName, QString setName);

double toJulian(const QDateTime& date);
QDateTime fromJulian(double j);
double toDays(const QDateTime& date);

double julianCycle(double d, double lw);
double approxTransit(double ht, double lw, double n);
double solarMeanAnomaly(double d);
double eclipticLongitude(double m);
double declination(double l, double b);
double rightAscension(double l, double b);
double solarTransitJ(double ds, double m, double l);
double hourAngle(double h, double phi, double dec);
double getSetJ(double h, double lw, double phi, double dec, double n, double m, double l);
double siderealTime(double d, double lw);
double azimuth(double h, double phi, double dec);
double altitude(double h, double phi, double dec);
double astroRefraction(double h);

// Declination and right ascension of the sun on day d.
std::pair<double, double> sunCoords(double d);
// Azimuth and altitude of the sun at date; latitude and longitude in degrees.
std::pair<double, double> getPosition(const QDateTime& date, double latitude, double longitude);
// Solar noon, nadir and the morning and evening events of every row of
// times_ for the UTC day of date; latitude and longitude in degrees. An event
// that does not happen that day has an invalid time.
std::vector<SolarTimes> getTimes(const QDateTime& date, double latitude, double longitude);
