#include "time/Clock.h"

#include "base/TickPath.h"

#include <ctime>

namespace {
Clock system_clock;
Clock* installed_clock = nullptr;

time_t whole_seconds(qint64 msecs)
{
    return static_cast<time_t>(msecs >= 0 ? msecs / 1000 : (msecs - 999) / 1000);
}

// The local offset and midnight of the present minute. Offsets change only
// at whole minutes, so one look a minute is exact; that look also reads the
// zone again (localtime_r keeps the zone it read first, tzset reads it
// anew), so a user who changes the zone is followed within a minute.
struct LocalMinute
{
    time_t minute = -1;
    long offset = 0;
    time_t midnight = 0;
};

OVRA_TICK const LocalMinute& local_minute(time_t seconds)
{
    static LocalMinute cached;
    const time_t minute = seconds - ((seconds % 60) + 60) % 60;
    if (minute == cached.minute)
        return cached;
    tzset();
    struct tm fields {};
    localtime_r(&minute, &fields);
    const time_t guess = minute - (fields.tm_hour * 3600 + fields.tm_min * 60);
    // On the day the clocks change, midnight had another offset than now.
    struct tm at_guess {};
    localtime_r(&guess, &at_guess);
    cached = {minute, fields.tm_gmtoff, guess + (fields.tm_gmtoff - at_guess.tm_gmtoff)};
    return cached;
}
} // namespace

QDateTime Clock::now() const
{
    const qint64 msecs = QDateTime::currentMSecsSinceEpoch();
    const LocalMinute& local = local_minute(whole_seconds(msecs));
    return QDateTime::fromMSecsSinceEpoch(msecs, Qt::OffsetFromUTC, static_cast<int>(local.offset));
}

OVRA_TICK qint64 Clock::now_msecs_since_epoch() const
{
    return QDateTime::currentMSecsSinceEpoch();
}

OVRA_TICK qint64 Clock::today_midnight_msecs() const
{
    return static_cast<qint64>(local_minute(whole_seconds(now_msecs_since_epoch())).midnight) * 1000;
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

OVRA_TICK Clock* Clock::instance()
{
    return installed_clock ? installed_clock : &system_clock;
}

void Clock::set_instance(Clock* clock)
{
    installed_clock = clock;
}
