#include "time/Clock.h"

#include <ctime>

namespace {
Clock system_clock;
Clock* installed_clock = nullptr;

// localtime_r keeps the zone it read first; tzset reads it again. Once a
// minute is often enough to follow a user who changes the zone.
struct tm local_fields(time_t seconds)
{
    static time_t zone_read_at = 0;
    if (seconds - zone_read_at >= 60 || seconds < zone_read_at) {
        tzset();
        zone_read_at = seconds;
    }
    struct tm fields {};
    localtime_r(&seconds, &fields);
    return fields;
}

time_t whole_seconds(qint64 msecs)
{
    return static_cast<time_t>(msecs >= 0 ? msecs / 1000 : (msecs - 999) / 1000);
}
} // namespace

QDateTime Clock::now() const
{
    const qint64 msecs = QDateTime::currentMSecsSinceEpoch();
    const struct tm fields = local_fields(whole_seconds(msecs));
    return QDateTime::fromMSecsSinceEpoch(msecs, Qt::OffsetFromUTC, static_cast<int>(fields.tm_gmtoff));
}

qint64 Clock::now_msecs_since_epoch() const
{
    return QDateTime::currentMSecsSinceEpoch();
}

qint64 Clock::today_midnight_msecs() const
{
    const time_t seconds = whole_seconds(now_msecs_since_epoch());
    const struct tm fields = local_fields(seconds);
    const time_t guess = seconds - (fields.tm_hour * 3600 + fields.tm_min * 60 + fields.tm_sec);
    // On the day the clocks change, midnight had another offset than now.
    const struct tm at_guess = local_fields(guess);
    return (static_cast<qint64>(guess) + (fields.tm_gmtoff - at_guess.tm_gmtoff)) * 1000;
}

QDateTime Clock::today_midnight() const
{
    return QDateTime::fromMSecsSinceEpoch(today_midnight_msecs());
}

QString Clock::time_zone_abbreviation() const
{
    return QDateTime::currentDateTime().timeZoneAbbreviation();
}

qint64 FixedClock::today_midnight_msecs() const
{
    const QDateTime at = m_now.toLocalTime();
    return QDateTime(at.date(), QTime(0, 0), Qt::LocalTime).toMSecsSinceEpoch();
}

Clock* Clock::instance()
{
    return installed_clock ? installed_clock : &system_clock;
}

void Clock::set_instance(Clock* clock)
{
    installed_clock = clock;
}
