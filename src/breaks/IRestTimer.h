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
    // Restarts the running period from its full length.
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

    // The lengths from the settings: minutes, seconds, minutes. A change of
    // any of them restarts the running period.
    virtual void reset_rest_timer(int work_minutes, int rest_seconds, int postpone_minutes) = 0;
    virtual void set_automatically_close_rest_screen(bool value) = 0;
    virtual void set_use_sounds(bool value) = 0;
    // Strict rests then swallow keys and refuse to close.
    virtual void set_use_keyboard_blocking(bool value) = 0;
    // Work to rest, or rest to work.
    virtual void toggle_timer() = 0;
    // Holds the running period with what is left of it, or goes on with it.
    virtual void pause_resume_timer() = 0;
    // The message of a big rest ahead: at a tenth of the work time (for
    // work times of ten minutes or more) and at 30 seconds. Once each.
    virtual bool is_rest_coming(QString& message) = 0;
    // Once a second, on the controller's tick.
    virtual void update() = 0;
};
