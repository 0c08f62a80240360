#include "time/Clock.h"

namespace {
Clock system_clock;
Clock* installed_clock = nullptr;
}

QDateTime Clock::now() const
{
    return QDateTime::currentDateTime();
}

QDateTime Clock::today_midnight() const
{
    const QDateTime at = now().toLocalTime();
    return QDateTime(at.date(), QTime(0, 0), Qt::LocalTime);
}

Clock* Clock::instance()
{
    return installed_clock ? installed_clock : &system_clock;
}

void Clock::set_instance(Clock* clock)
{
    installed_clock = clock;
}
