#include "services/LocationParser.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

namespace {
void take_coordinate(const QJsonObject& object, const char* key, double* target)
{
    const QString name = QString::fromLatin1(key);
    if (!object.contains(name))
        return;
    const double value = object.value(name).toDouble(LocationParser::NO_VALUE);
    if (value != LocationParser::NO_VALUE)
        *target = value;
}
}

bool LocationParser::read_location(const QByteArray& body, double* latitude, double* longitude)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return false;
    const QJsonObject object = document.object();
    take_coordinate(object, "latitude", latitude);
    take_coordinate(object, "longitude", longitude);
    return true;
}

namespace {
QJsonObject reply_object(const QByteArray& body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body);
    return document.isObject() ? document.object() : QJsonObject();
}
} // namespace

QString LocationParser::place_name(const QByteArray& body)
{
    const QJsonObject object = reply_object(body);
    const QString city = object.value(QStringLiteral("city")).toString();
    const QString country = object.value(QStringLiteral("country_name")).toString();
    const QString zone = object.value(QStringLiteral("time_zone")).toString();
    auto with_country = [&](const QString& place) {
        return country.isEmpty() ? place : place + QStringLiteral(", ") + country;
    };
    if (!city.isEmpty())
        return with_country(city);
    if (zone.contains(QLatin1Char('/')))
        return with_country(zone.section(QLatin1Char('/'), -1).replace(QLatin1Char('_'), QLatin1Char(' ')));
    if (!zone.isEmpty())
        return with_country(zone);
    return QString();
}

void LocationParser::country(const QByteArray& body, QString* name, QString* code)
{
    const QJsonObject object = reply_object(body);
    *name = object.value(QStringLiteral("country_name")).toString();
    *code = object.value(QStringLiteral("country_code")).toString();
}

QString LocationParser::format_coordinate(double value)
{
    return QString::number(value, 'g', 6);
}

QString LocationParser::format_location(double latitude, double longitude)
{
    return format_coordinate(latitude) + QStringLiteral(", ") + format_coordinate(longitude);
}
