#pragma once

#include <QString>

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

    // What the status line and the tray's tooltip show once a second.
    virtual bool is_paused() const = 0;
    // Milliseconds left; below 1 when that period is not running.
    virtual int get_remaining_work_int() const = 0;
    virtual int get_remaining_rest_int() const = 0;
    virtual QString get_remaining_work_string() const = 0;
    virtual QString get_remaining_rest_string() const = 0;
    // The last seconds of a period.
    virtual void start_bip_sound() = 0;
    // True once, at the moment a big rest is announced, with the message.
    virtual bool is_rest_coming(QString& message) = 0;
};
