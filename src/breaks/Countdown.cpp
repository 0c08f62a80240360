#include "breaks/Countdown.h"

#include "base/TickPath.h"

#include <QTimer>

TimerCountdown::TimerCountdown(QObject* parent) : Countdown(parent), timer(new QTimer(this))
{
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
    connect(timer, &QTimer::timeout, this, &Countdown::timeout);
}

void TimerCountdown::start(int msecs)
{
    timer->start(msecs < 0 ? 0 : msecs);
}

void TimerCountdown::stop()
{
    timer->stop();
}

OVRA_TICK bool TimerCountdown::is_active() const
{
    return timer->isActive();
}

int TimerCountdown::remaining() const
{
    return timer->remainingTime();
}
