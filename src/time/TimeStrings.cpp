#include "time/TimeStrings.h"

#include <QDateTime>
#include <QTime>

#include <cmath>

const QString solar_date_time_format = QStringLiteral("hh:mm:ss");
const QString clock_date_time_format = QStringLiteral("hh:mm:ss");

namespace time_strings {

QString seconds_of_day(double seconds, const QString& format)
{
    if (!std::isfinite(seconds))
        return QString();
    const long long whole_minutes = static_cast<long long>(std::trunc(seconds / 60.0));
    const int hours = static_cast<int>(whole_minutes / 60);
    const int minutes = static_cast<int>(whole_minutes % 60);
    const int secs = static_cast<int>(static_cast<long long>(std::trunc(seconds)) % 60);
    return QTime(hours, minutes, secs).toString(format);
}

QString msecs_since_epoch(double msecs, const QString& format)
{
    if (!std::isfinite(msecs))
        return QString();
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(msecs)).toString(format);
}

QString duration(double seconds, const QString& hour, const QString& min, const QString& sec)
{
    if (!std::isfinite(seconds))
        return QString();
    const long long whole_minutes = static_cast<long long>(std::trunc(seconds / 60.0));
    const long long hours = whole_minutes / 60;
    const long long minutes = whole_minutes % 60;
    const long long secs = static_cast<long long>(std::trunc(seconds)) % 60;

    QString text;
    if (hours != 0)
        text += QString::number(hours) + ' ' + hour + ' ';
    if (minutes != 0)
        text += QString::number(minutes) + ' ' + min + ' ';
    if (secs != 0)
        text += QString::number(secs) + ' ' + sec + ' ';
    return text;
}

} // namespace time_strings
