#pragma once

#include <QByteArray>
#include <QString>

// Reads a position out of the reply of the IP location service, and writes
// coordinates the way the page shows them.
class LocationParser
{
public:
    // What a coordinate reads as when the reply names it but holds no number
    // there; such a value is never taken.
    static constexpr double NO_VALUE = -9999.0;

    // Takes "latitude" and "longitude" from a JSON object. A coordinate that
    // the reply doesn't name, or names without a usable number, leaves the
    // one passed in. Returns false, changing nothing, when the body isn't a
    // JSON object.
    static bool read_location(const QByteArray& body, double* latitude, double* longitude);

    // The place the reply names, as the settings page shows it: "city,
    // country", or else the city of the time zone with the country, or
    // else the time zone with the country; empty when it names none.
    static QString place_name(const QByteArray& body);
    // The country's name and code the reply names, for choosing a language.
    static void country(const QByteArray& body, QString* name, QString* code);

    // Six significant digits: 42.69771 shows as "42.6977".
    static QString format_coordinate(double value);
    // "latitude, longitude", each as format_coordinate gives it.
    static QString format_location(double latitude, double longitude);
};
