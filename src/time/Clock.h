#pragma once

#include <QDateTime>

// The one place that says what time it is. The day curves, the timers'
// consumers and the reports ask this object instead of the system clock, so
// that tests can put the whole program at any instant.
class Clock
{
public:
    virtual ~Clock() = default;

    // The present instant in local time.
    virtual QDateTime now() const;

    qint64 now_msecs_since_epoch() const { return now().toMSecsSinceEpoch(); }
    // Local midnight at the start of the present day.
    QDateTime today_midnight() const;

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
    void set(const QDateTime& at) { m_now = at; }
    void advance_msecs(qint64 msecs) { m_now = m_now.addMSecs(msecs); }

private:
    QDateTime m_now;
};
