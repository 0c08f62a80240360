#pragma once

#include <QString>

// How the day curves print clock times.
extern const QString solar_date_time_format;
extern const QString clock_date_time_format;

namespace time_strings {

// A time of day given in seconds, as hours, minutes and seconds.
QString seconds_of_day(double seconds, const QString& format);
// A local clock time given in milliseconds since the epoch.
QString msecs_since_epoch(double msecs, const QString& format);
// A length in seconds as "N hour M min S sec ", leaving out the parts that
// are zero; a length of zero is the empty string.
QString duration(double seconds, const QString& hour, const QString& min, const QString& sec);

} // namespace time_strings
