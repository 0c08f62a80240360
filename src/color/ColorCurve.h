#pragma once

#include <QString>
#include <map>
#include <memory>

#include "settings/SettingRef.h"
#include "settings/SettingsHost.h"
#include "time/TransitionType.h"

struct SolarInterpolationValues;
struct ClockInterpolationValues;

// The day curve as the settings describe it: the sun's when the place is
// known and no night length was set by hand, the clock's otherwise, with the
// day, night and sleep values of the shared settings or of one monitor.
// Reads the stored values at every call, so it always follows the settings,
// and knows nothing of the display.
class ColorCurve
{
public:
    ColorCurve(const SettingsMap& settings, const double& latitude, const double& longitude);
    ~ColorCurve();

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
    struct Quantity;
    struct Inputs;
    float evaluate(const Quantity& quantity, int monitor) const;
    const SettingRef& ref(const char* key, int monitor) const;

    const SettingsMap& settings;
    const double& latitude;
    const double& longitude;
    std::unique_ptr<Inputs> inputs;
    std::unique_ptr<Quantity> temperature_keys;
    std::unique_ptr<Quantity> brightness_keys;
    // The per-monitor values, found once each.
    mutable std::map<std::pair<const char*, int>, SettingRef> monitor_refs;
};
