#pragma once

// How the colours follow the time of day.
namespace OvraModes {

enum Mode {
    CUSTOM = 0,    // not offered; choosing it changes only the stored number
    AUTOMATIC = 1, // the day curve runs
    MANUAL = 2,    // the curve is off and the night values stand
    PAUSED = 3,    // colours are paused
};

// The mode after the stored one in the cycle Automatic, Manual, Paused:
// one more, or Automatic once that leaves the cycle.
int next_mode(int stored);

} // namespace OvraModes
