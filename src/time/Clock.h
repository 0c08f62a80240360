#pragma once

#include <QDateTime>
#include <QString>

// The one place that says what time it is. The day curves, the timers'
// consumers and the reports ask this object instead of the system clock, so
// that tests can put the whole program at any instant.
//
// The system clock answers without asking the time zone database each time:
// Qt's local-time conversions look at /etc/localtime on every call, and the
// tick asks for the time several times a second. It works with the offset of
// the moment (from localtime_r) and reads the zone again once a minute, so a
// change of zone is seen within a minute.
class Clock
{
public:
    virtual ~Clock() = default;

    // The present instant as local wall time.
    virtual QDateTime now() const;
    virtual qint64 now_msecs_since_epoch() const;
    // Local midnight at the start of the present day.
    virtual qint64 today_midnight_msecs() const;
    QDateTime today_midnight() const;
    // The short name of the local zone at this moment, for reports.
    virtual QString time_zone_abbreviation() const;

    // The clock in use: the system clock unless a test installed another.
    static Clock* instance();
    // Installs a clock (not owned); nullptr goes back to the system clock.
    static void set_instance(Clock* clock);
};

// A clock that stands still until it is told otherwise.
class FixedClock : public Clock
{
public:
    explicit FixedClock(const QDateTime& at = QDateTime::currentDateTime()) : m_now(at) {}
    QDateTime now() const override { return m_now; }
    qint64 now_msecs_since_epoch() const override { return m_now.toMSecsSinceEpoch(); }
    qint64 today_midnight_msecs() const override;
    QString time_zone_abbreviation() const override { return m_now.timeZoneAbbreviation(); }
    void set(const QDateTime& at) { m_now = at; }
    void advance_msecs(qint64 msecs) { m_now = m_now.addMSecs(msecs); }

private:
    QDateTime m_now;
};
