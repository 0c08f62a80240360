#pragma once

// What the controller asks of the work and rest timer.
class IRestTimer
{
public:
    virtual ~IRestTimer() = default;
    virtual bool is_rest_started() const = 0;
    // Stops and resumes the work count, for a user away from the machine.
    virtual void start_rest_timer() = 0;
    virtual void stop_rest_timer() = 0;
    // Takes the lengths and the type from the settings again.
    virtual void reset_timer() = 0;
    virtual void set_timer_type(int type) = 0;
    virtual void set_rest_screen_type(int type) = 0;
    // A break now, at the user's request.
    virtual void start_rest() = 0;
};
