#pragma once

#include <QString>

#include "time/ClockInterpolationValues.h"
#include "time/SolarInterpolationValues.h"

class ClockPosition;
class SolarPosition;

// The long text with every time of the day that the status page shows on
// request: one line per time, " label - value", groups parted by an empty
// line. Built from the same records that the tick gives the day curves.
namespace TransitionTimesText {

// The sun's form, with time zone, sun and moon; time_zone is the
// abbreviation of the local zone at this moment.
QString solar(SolarPosition& sun, const SolarInterpolationValues& values,
              const QString& time_zone);

// The clock's form: the times and lengths only.
QString clock(ClockPosition& clock, const ClockInterpolationValues& values);

} // namespace TransitionTimesText
