#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include "breaks/IRestTimer.h"

class BreakSounds;
class Countdown;
class IBreakWindows;

// Decides when the user works and when the user rests. Two single shots,
// one for work and one for rest, of which at most one runs: the running one
// is the state. It opens the rest screens, the prompt before a rest and the
// productive widget through its windows, and plays the two sounds.
//
// Timer types: 1 Off, 2 Normal, 3 Strict, 4 Productive.
class RestTimer : public QObject, public IRestTimer
{
    Q_OBJECT

public:
    using CountdownFactory = std::function<Countdown*(QObject* parent)>;

    // `windows` is owned; without it the timer makes the real windows.
    // Without `make_countdown` the periods run on Qt timers.
    explicit RestTimer(QObject* parent = nullptr, IBreakWindows* windows = nullptr,
                       const CountdownFactory& make_countdown = {});
    ~RestTimer() override;

public slots:
    void start_rest() override;
    void end_rest();
    void toggle_timer() override;
    void reset_timer() override;
    void pause_resume_timer() override;
    void call_end_rest();
    QString get_remaining_rest_string() const override;
    QString get_remaining_rest_productive() const;
    QString get_remaining_work_string() const override;
    QString get_remaining_work_productive() const;
    int get_remaining_work_int() const override;
    int get_remaining_rest_int() const override;
    void delete_postpone();
    void delete_productive();
    bool is_rest_started() const override;
    void update() override;

public:
    void postpone_work_timer();
    // Moves the end of the running period; the work timer runs afterwards
    // whichever period the remainder came from.
    void timer_forward(int minutes);
    void timer_backward(int minutes);
    int get_work_time_in_minutes() const { return work_time / 60000; }
    int get_work_time_in_seconds() const { return work_time / 1000; }
    int get_rest_time_in_minutes() const { return rest_time / 60000; }
    int get_rest_time_in_seconds() const { return rest_time / 1000; }
    int get_timer_type() const { return timer_type; }
    // A Strict rest with keyboard blocking: keys swallowed, close refused.
    bool blocks_keyboard() const { return timer_type == 3 && use_keyboard_blocking; }

    void refresh_use_sounds();
    void stop_timer_sound();
    void start_bip_sound() override;
    void set_rest_screen_type(int type) override;
    void set_automatically_close_rest_screen(bool value) override;
    void set_use_sounds(bool value) override;
    void set_use_keyboard_blocking(bool value) override;
    bool is_stopped() const { return stopped; }
    bool is_paused() const override { return paused; }
    void start_rest_timer() override;
    void stop_rest_timer() override;
    void set_timer_type(int type) override;
    void reset_rest_timer(int work_minutes, int rest_seconds, int postpone_minutes) override;
    void delete_rest_screens();
    bool is_rest_coming(QString& message) override;
    void translate();

    static void format_time(QString& text, int hours, int minutes, int seconds);
    static void format_time_productive(QString& text, int hours, int minutes, int seconds);

private:
    void start_work(int msecs);
    void set_tick_sound(bool play);
    static QString remaining_text(int msecs, bool productive);
    struct TimeWords
    {
        QString sec, min, hour;
    };
    static TimeWords& time_words();
    static TimeWords translated_time_words();

    Countdown* work_timer;
    Countdown* rest_timer;
    BreakSounds* sounds;
    IBreakWindows* windows;

    int work_time = 0;
    int rest_time = 0;
    int postpone_time = 0;
    int timer_type = 0;
    int rest_screen_type = 0;
    bool automatically_close_rest_screen = false;
    bool use_keyboard_blocking = false;
    bool stopped = true;
    bool paused = true;
    int paused_work_remaining = -1;
    int paused_rest_remaining = -1;
    bool use_sounds = false;
    bool play_sound_in_work = false;
    bool play_sound_in_rest = false;
    // The prompt comes once a work period: closed, it stays closed.
    bool prompted = false;
    // The remaining whole seconds last announced as a big rest ahead.
    int announced_second = -1;
};
