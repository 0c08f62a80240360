#pragma once

// Which part of the day curve is in force. Shared by the solar and the clock
// curve; the hotkeys use it to decide which value a key changes.
enum TransitionType {
    TRANSITION_DAY = 0,   // the day value, or the morning ramp
    TRANSITION_NIGHT = 1, // the night value, or the evening ramp
    TRANSITION_SLEEP = 2, // the sleep window or its ramps
};
