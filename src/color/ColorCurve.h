#pragma once

#include <QString>

#include "settings/SettingsHost.h"
#include "time/TransitionType.h"

struct SolarInterpolationValues;
struct ClockInterpolationValues;

// The day curve as the settings describe it: the sun's when the place is
// known and no night length was set by hand, the clock's otherwise, with the
// day, night and sleep values of the shared settings or of one monitor.
// Reads the map at every call, so it always follows what is stored, and
// knows nothing of the display.
class ColorCurve
{
public:
    ColorCurve(const SettingsMap& settings, const double& latitude, const double& longitude);

    // Kelvin and percent for this moment. Monitor 0 is the shared values.
    float temperature(int monitor) const;
    float brightness(int monitor) const;
    TransitionType transition_type() const;
    bool uses_solar_curve() const;

    void fill(SolarInterpolationValues* values) const;
    void fill(ClockInterpolationValues* values) const;

    // One monitor's value of a per-monitor key. A monitor with no values of
    // its own (plugged in later, or beyond those ever saved) takes the
    // shared one rather than nothing.
    int monitor_value(const char* key, int monitor) const;

private:
    struct Keys;
    float evaluate(const Keys& keys, int monitor) const;
    QVariant stored(const QString& key) const;

    const SettingsMap& settings;
    const double& latitude;
    const double& longitude;
};
