#include "breaks/RestTimer.h"

#include "base/TickPath.h"

#include <QCoreApplication>
#include <climits>

#include "breaks/BreakSounds.h"
#include "breaks/BreakWindows.h"
#include "breaks/Countdown.h"

namespace {
// The prompt comes about ten seconds ahead of a rest. The controller's tick
// may come a little late, so a second more is allowed before it is missed.
const int PROMPT_LATEST_MSECS = 10999;
const int PROMPT_EARLIEST_MSECS = 9000;
const int TYPE_OFF = 1;
const int TYPE_STRICT = 3;
const int TYPE_PRODUCTIVE = 4;

int clamped_msecs(qint64 msecs)
{
    return int(qBound(qint64(0), msecs, qint64(INT_MAX)));
}
} // namespace

RestTimer::RestTimer(QObject* parent, IBreakWindows* windows,
                     const CountdownFactory& make_countdown)
    : QObject(parent)
    , sounds(new BreakSounds(this))
    , windows(windows ? windows : new BreakWindows(this))
{
    const CountdownFactory make = make_countdown ? make_countdown : [](QObject* owner) -> Countdown* {
        return new TimerCountdown(owner);
    };
    work_timer = make(this);
    rest_timer = make(this);
    connect(work_timer, &Countdown::timeout, this, &RestTimer::start_rest);
    connect(rest_timer, &Countdown::timeout, this, &RestTimer::call_end_rest);
}

RestTimer::~RestTimer()
{
    // The screens and prompts close with their windows.
    delete windows;
}

// ---------------------------------------------------------------- settings

void RestTimer::reset_rest_timer(int work_minutes, int rest_seconds, int postpone_minutes)
{
    const int work = clamped_msecs(qint64(work_minutes) * 60000);
    const int rest = clamped_msecs(qint64(rest_seconds) * 1000);
    const int postpone = clamped_msecs(qint64(postpone_minutes) * 60000);
    if (work == work_time && rest == rest_time && postpone == postpone_time)
        return;
    work_time = work;
    rest_time = rest;
    postpone_time = postpone;
    reset_timer();
}

void RestTimer::reset_timer()
{
    if (work_timer->is_active()) {
        start_work(work_time);
    } else if (rest_timer->is_active()) {
        rest_timer->start(rest_time);
        set_tick_sound(play_sound_in_rest);
    }
}

void RestTimer::set_timer_type(int type)
{
    timer_type = type;
    refresh_use_sounds();
    if (type == TYPE_OFF) {
        stop_rest_timer();
    } else if (type == TYPE_PRODUCTIVE) {
        delete_postpone();
        start_rest_timer();
    } else if (type == 2 || type == TYPE_STRICT) {
        delete_productive();
        delete_postpone();
        start_rest_timer();
    }
}

void RestTimer::set_rest_screen_type(int type)
{
    rest_screen_type = type;
}

void RestTimer::set_automatically_close_rest_screen(bool value)
{
    automatically_close_rest_screen = value;
}

void RestTimer::set_use_sounds(bool value)
{
    use_sounds = value;
    refresh_use_sounds();
}

void RestTimer::set_use_keyboard_blocking(bool value)
{
    use_keyboard_blocking = value;
}

// ---------------------------------------------------------------- sounds

// The tick-tock belongs to a productive work period alone.
void RestTimer::refresh_use_sounds()
{
    if (timer_type == TYPE_PRODUCTIVE && use_sounds) {
        play_sound_in_work = true;
        play_sound_in_rest = false;
        if (work_timer->is_active() && !sounds->is_tick_playing())
            sounds->play_tick();
    } else {
        play_sound_in_work = false;
        play_sound_in_rest = false;
        sounds->stop_tick();
    }
}

void RestTimer::set_tick_sound(bool play)
{
    if (play)
        sounds->play_tick();
    else
        sounds->stop_tick();
}

void RestTimer::stop_timer_sound()
{
    sounds->stop_tick();
}

void RestTimer::start_bip_sound()
{
    sounds->play_bip();
}

// ---------------------------------------------------------------- running and stopping

void RestTimer::start_work(int msecs)
{
    work_timer->start(msecs);
    prompted = false;
    announced_second = -1;
    set_tick_sound(play_sound_in_work);
}

void RestTimer::start_rest_timer()
{
    if (!work_timer->is_active() && !rest_timer->is_active()) {
        rest_timer->stop();
        start_work(work_time);
    }
    if (timer_type == TYPE_PRODUCTIVE)
        windows->open_productive(!work_timer->is_active());
    stopped = false;
    paused = false;
}

void RestTimer::stop_rest_timer()
{
    stop_timer_sound();
    delete_productive();
    delete_postpone();
    work_timer->stop();
    rest_timer->stop();
    stopped = true;
    paused = true;
    // Screens left without a timer would never end: they offer a way out.
    if (windows->has_rest_screens())
        windows->show_continue_button();
}

void RestTimer::pause_resume_timer()
{
    if (stopped)
        return;
    paused = !paused;
    if (paused) {
        stop_timer_sound();
        Countdown* running = work_timer->is_active() ? work_timer : rest_timer;
        int& saved = running == work_timer ? paused_work_remaining : paused_rest_remaining;
        saved = running->remaining();
        running->stop();
        return;
    }
    if (paused_work_remaining != -1)
        start_work(paused_work_remaining);
    if (paused_rest_remaining != -1) {
        rest_timer->start(paused_rest_remaining);
        set_tick_sound(play_sound_in_rest);
    }
    paused_work_remaining = -1;
    paused_rest_remaining = -1;
}

// ---------------------------------------------------------------- rests

void RestTimer::start_rest()
{
    if (rest_timer->is_active())
        return;
    work_timer->stop();
    rest_timer->start(rest_time);
    set_tick_sound(play_sound_in_rest);
    stopped = false;
    paused = false;
    paused_work_remaining = -1;
    paused_rest_remaining = -1;
    if (timer_type == TYPE_PRODUCTIVE) {
        windows->set_productive_resting(true);
        return;
    }
    delete_postpone();
    if (windows->has_rest_screens())
        delete_rest_screens();
    windows->open_rest_screens(rest_screen_type);
}

void RestTimer::call_end_rest()
{
    // Without a screen there is nothing to wait on.
    if (timer_type > TYPE_STRICT || automatically_close_rest_screen || !windows->has_rest_screens())
        end_rest();
    else
        windows->show_continue_button();
}

void RestTimer::end_rest()
{
    if (timer_type < TYPE_PRODUCTIVE)
        delete_rest_screens();
    else
        windows->set_productive_resting(false);
    rest_timer->stop();
    // A screen left over from a stopped timer closes, and no work begins.
    if (stopped)
        return;
    paused = false;
    paused_work_remaining = -1;
    paused_rest_remaining = -1;
    start_work(work_time);
}

void RestTimer::toggle_timer()
{
    if (work_timer->is_active())
        start_rest();
    else if (rest_timer->is_active())
        end_rest();
}

bool RestTimer::is_rest_started() const
{
    return rest_timer->is_active() || windows->has_rest_screens();
}

void RestTimer::delete_rest_screens()
{
    windows->close_rest_screens();
}

// ---------------------------------------------------------------- moving the end

void RestTimer::postpone_work_timer()
{
    delete_postpone();
    if (!work_timer->is_active())
        return;
    start_work(clamped_msecs(qint64(work_timer->remaining()) + postpone_time));
}

void RestTimer::timer_forward(int minutes)
{
    if (!work_timer->is_active() && !rest_timer->is_active())
        return;
    const int left = work_timer->is_active() ? work_timer->remaining() : rest_timer->remaining();
    start_work(clamped_msecs(qint64(left) - qint64(minutes) * 60000));
}

void RestTimer::timer_backward(int minutes)
{
    timer_forward(-minutes);
}

// ---------------------------------------------------------------- prompts

OVRA_TICK void RestTimer::update()
{
    const int left = work_timer->is_active() ? work_timer->remaining() : -1;
    if (!prompted && timer_type < TYPE_PRODUCTIVE && left >= PROMPT_EARLIEST_MSECS
        && left <= PROMPT_LATEST_MSECS && !windows->has_postpone()) {
        prompted = true;
        windows->open_postpone();
    }
    windows->update();
}

void RestTimer::delete_postpone()
{
    windows->close_postpone();
}

void RestTimer::delete_productive()
{
    windows->close_productive();
}

void RestTimer::translate()
{
    time_words() = translated_time_words();
    windows->translate();
}

bool RestTimer::is_rest_coming(QString& message)
{
    if (timer_type > TYPE_STRICT || !work_timer->is_active())
        return false;
    const int left = work_timer->remaining() / 1000;
    const int tenth = work_time / 10000;
    const bool tenth_left = left == tenth && work_time > 599999;
    if (!tenth_left && left != 30)
        return false;
    const QString name = QCoreApplication::applicationName();
    QString text;
    if (tenth_left)
        text = name + ' ' + tr("reminds you that a big rest will occur in") + ' '
               + QString::number(tenth / 60) + ' ' + tr("minutes") + '.';
    else if (left == 30)
        text = name + ' ' + tr("reminds you that a big rest will occur in 30 seconds") + '.';
    // A late tick may see the same second twice; it is told once.
    if (text.isEmpty() || left == announced_second)
        return false;
    announced_second = left;
    message = text;
    return true;
}

// ---------------------------------------------------------------- remaining time

int RestTimer::get_remaining_work_int() const
{
    if (work_timer->is_active())
        return work_timer->remaining();
    return paused ? paused_work_remaining : -1;
}

int RestTimer::get_remaining_rest_int() const
{
    if (rest_timer->is_active())
        return rest_timer->remaining();
    return paused ? paused_rest_remaining : -1;
}

QString RestTimer::remaining_text(int msecs, bool productive)
{
    QString text;
    const int hours = msecs / 3600000;
    const int minutes = (msecs / 60000) % 60;
    const int seconds = (msecs / 1000) % 60;
    if (productive)
        format_time_productive(text, hours, minutes, seconds);
    else
        format_time(text, hours, minutes, seconds);
    return text;
}

QString RestTimer::get_remaining_rest_string() const
{
    return remaining_text(rest_timer->remaining(), false);
}

QString RestTimer::get_remaining_rest_productive() const
{
    return remaining_text(rest_timer->remaining(), true);
}

QString RestTimer::get_remaining_work_string() const
{
    return remaining_text(work_timer->remaining(), false);
}

QString RestTimer::get_remaining_work_productive() const
{
    return remaining_text(work_timer->remaining(), true);
}

// The units of the remaining time, shown every second: translated when the
// language changes, not at each showing.
RestTimer::TimeWords& RestTimer::time_words()
{
    static TimeWords words = translated_time_words();
    return words;
}

RestTimer::TimeWords RestTimer::translated_time_words()
{
    return {tr("sec"), tr("min"), tr("hour")};
}

void RestTimer::format_time(QString& text, int hours, int minutes, int seconds)
{
    const TimeWords& words = time_words();
    const QString s = QString::number(seconds) + ' ' + words.sec;
    const QString m = QString::number(minutes) + ' ' + words.min + ' ';
    if (hours >= 1)
        text = QString::number(hours) + ' ' + words.hour + ' ' + m + s;
    else if (minutes >= 1)
        text = m + s;
    else
        text = s;
}

void RestTimer::format_time_productive(QString& text, int hours, int minutes, int seconds)
{
    const auto two = [](int value) { return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0')); };
    if (hours > 0)
        text = two(hours) + ':' + two(minutes) + ':' + two(seconds);
    else if (minutes >= 1)
        text = two(minutes) + ':' + two(seconds);
    else if (seconds > 9)
        text = QStringLiteral("0:") + QString::number(seconds);
    else
        text = QStringLiteral("0:0") + QString::number(seconds);
}
