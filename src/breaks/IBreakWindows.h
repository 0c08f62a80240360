#pragma once

// The windows of the break timer: the rest screens, the prompt before a
// rest and the productive widget. The timer decides when; this says how.
class IBreakWindows
{
public:
    virtual ~IBreakWindows() = default;

    // One rest screen on each monitor there is now, of the kind asked for
    // (1 Lite, 2 Simple, 3 Standard; any other kind opens none).
    virtual void open_rest_screens(int rest_screen_type) = 0;
    virtual void close_rest_screens() = 0;
    virtual bool has_rest_screens() const = 0;
    // The time is up (or the timer stopped): each screen offers a way out.
    virtual void show_continue_button() = 0;

    virtual void open_postpone() = 0;
    virtual void close_postpone() = 0;
    virtual bool has_postpone() const = 0;

    // Opens the productive widget unless it is there, in work or rest state.
    virtual void open_productive(bool resting) = 0;
    virtual void close_productive() = 0;
    virtual bool has_productive() const = 0;
    virtual void set_productive_resting(bool resting) = 0;

    // Once a second: what the windows show of the time.
    virtual void update() = 0;
    // The language changed.
    virtual void translate() = 0;
};
