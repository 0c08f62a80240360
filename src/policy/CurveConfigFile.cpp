#include "policy/CurveConfigFile.h"

#include <QDir>
#include <fstream>

#include "time/Clock.h"

namespace CurveConfigFile {

QString path_in_working_directory(const QString& file_name)
{
    return QDir::currentPath() + file_name;
}

QVector<CurveConfigEntry> read(const QString& path)
{
    QVector<CurveConfigEntry> entries;
    std::ifstream input(QFile::encodeName(path).toStdString());
    if (!input)
        return entries;
    CurveConfigEntry entry;
    while (input >> entry.start_hour) {
        // A failed read of the second or third number still leaves the
        // entry complete: what could not be read counts as 0.
        entry.end_hour = 0;
        entry.value = 0;
        input >> entry.end_hour;
        input >> entry.value;
        entries.append(entry);
    }
    return entries;
}

void apply(const QVector<CurveConfigEntry>& entries, int (*clamp)(int), const QString& key,
           std::map<QString, QVariant>& settings, const std::function<void()>& update_gamma)
{
    const int hour = Clock::instance()->now().time().hour();
    for (const CurveConfigEntry& entry : entries) {
        if (hour < entry.start_hour)
            continue;
        if (hour >= entry.end_hour)
            continue;
        settings[key] = clamp(entry.value);
        if (update_gamma)
            update_gamma();
    }
}

}
