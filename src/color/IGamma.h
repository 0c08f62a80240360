#pragma once

#include <vector>

#include "color/ColorSettings.h"

class ColorRamp;

// The one seam between the controller and the display's gamma ramps.
// Backends return 0 on success and -1 on failure, with one line on standard
// error; nothing throws.
class IGamma
{
public:
    IGamma();
    virtual ~IGamma();
    IGamma(const IGamma&) = delete;
    IGamma& operator=(const IGamma&) = delete;

    virtual void init() {}
    // Reads and keeps the ramps every CRTC holds now.
    virtual int start() { return 0; }
    // Replaces the kept ramps by the linear curve (display untouched).
    virtual int reset() { return 0; }
    // Writes the kept ramps back to every CRTC.
    virtual int restore() { return 0; }
    // Number of CRTCs, connected or not.
    virtual int get_screen_count() { return 0; }
    // Tints every CRTC; monitors listed in `ignored` (numbered from 1) get the
    // neutral record instead. `monitor` is not used by the X11 backend.
    virtual int set_temperature(const ColorSettings* settings, std::vector<int> ignored, int monitor)
    {
        return 0;
    }
    virtual void set_use_inverted_gamma(bool inverted)
    {
        use_inverted_gamma = inverted;
        ++ramp_generation;
    }
    virtual bool is_gamma_inverted() { return use_inverted_gamma; }
    virtual void set_preserve_gamma(bool preserve)
    {
        preserve_gamma = preserve;
        ++ramp_generation;
    }
    virtual bool is_gamma_preserved() { return preserve_gamma; }
    virtual void set_color_scheme(int scheme);
    virtual void set_leading_color(int leading);
    virtual void set_gamma_fixer(int fixer) { gamma_fixer = fixer; }

    // Gives up what the backend keeps for repairing a crash, without
    // touching the display: for a way out on which the display is gone.
    virtual void release_crash_file() {}

    // False when the backend could not reach its display in init(); the
    // controller decides what to do about it.
    virtual bool is_connected() const { return true; }

    ColorRamp* get_color_ramp() const { return color_ramp; }

protected:
    ColorRamp* color_ramp;
    bool use_inverted_gamma = false;
    bool preserve_gamma = true;
    int gamma_fixer = 0;
    // Moves whenever something a built ramp depends on changes, other than
    // the temperature and brightness: backends that keep built ramps compare it.
    unsigned int ramp_generation = 0;
};
