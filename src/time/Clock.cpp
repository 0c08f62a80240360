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

double Clock::seconds_since_midnight() const
{
    const QDateTime at = now().toLocalTime();
    return at.time().msecsSinceStartOfDay() / 1000.0;
}

Clock* Clock::instance()
{
    return installed_clock ? installed_clock : &system_clock;
}

void Clock::set_instance(Clock* clock)
{
    installed_clock = clock;
}
