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

QString LocationParser::format_coordinate(double value)
{
    return QString::number(value, 'g', 6);
}

QString LocationParser::format_location(double latitude, double longitude)
{
    return format_coordinate(latitude) + QStringLiteral(", ") + format_coordinate(longitude);
}
