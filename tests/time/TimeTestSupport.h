#pragma once

// Shared by the time tests: a time zone and a standing clock for one test,
// and the reference tables written by make_sun_reference.py.

#include "time/Clock.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QStringList>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <map>
#include <vector>

namespace time_test {

// Puts the process into a time zone for the lifetime of the object.
class ScopedTimeZone
{
public:
    explicit ScopedTimeZone(const char* zone) : had_old(std::getenv("TZ")), old_zone(qgetenv("TZ"))
    {
        setenv("TZ", zone, 1);
        tzset();
    }
    ~ScopedTimeZone()
    {
        had_old ? setenv("TZ", old_zone.constData(), 1) : unsetenv("TZ");
        tzset();
    }
    ScopedTimeZone(const ScopedTimeZone&) = delete;
    ScopedTimeZone& operator=(const ScopedTimeZone&) = delete;

private:
    bool had_old;
    QByteArray old_zone;
};

// Installs a standing clock for the lifetime of the object.
class ScopedClock
{
public:
    ScopedClock() { Clock::set_instance(&clock); }
    ~ScopedClock() { Clock::set_instance(nullptr); }
    ScopedClock(const ScopedClock&) = delete;
    ScopedClock& operator=(const ScopedClock&) = delete;

    void at_msecs(qint64 msecs) { clock.set(QDateTime::fromMSecsSinceEpoch(msecs)); }
    // A local wall-clock time in the zone in force.
    void at_local(int year, int month, int day, int hour, int minute, int second = 0, int msec = 0)
    {
        clock.set(QDateTime(QDate(year, month, day), QTime(hour, minute, second, msec), Qt::LocalTime));
    }

    FixedClock clock;
};

using Row = std::map<QString, QString>;

inline std::vector<Row> read_table(const char* file_name)
{
    std::vector<Row> rows;
    const QByteArray dir = qgetenv("OVRA_TEST_DATA");
    QFile file(QString::fromLocal8Bit(dir) + '/' + file_name);
    if (dir.isEmpty() || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        ADD_FAILURE() << "cannot read " << file_name << " (OVRA_TEST_DATA=" << dir.constData() << ")";
        return rows;
    }
    const QStringList header = QString::fromUtf8(file.readLine()).trimmed().split(',');
    while (!file.atEnd()) {
        const QStringList cells = QString::fromUtf8(file.readLine()).trimmed().split(',');
        if (cells.size() < 2)
            continue;
        Row& row = rows.emplace_back();
        for (int i = 0; i < header.size() && i < cells.size(); ++i)
            row[header[i]] = cells[i];
    }
    return rows;
}

} // namespace time_test
