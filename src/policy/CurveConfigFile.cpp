#include "policy/CurveConfigFile.h"

#include <QDir>
#include <cstdio>
#include <fstream>
#include <vector>

#include "time/Clock.h"

namespace CurveConfigFile {

QString path_in_working_directory(const QString& file_name)
{
    return QDir::currentPath() + file_name;
}

namespace {
QVector<CurveConfigEntry> refuse(const QString& path, const char* reason)
{
    std::fprintf(stderr, "Ignoring %s: %s; the built-in curve stays\n",
                 QFile::encodeName(path).constData(), reason);
    return {};
}
} // namespace

// A file that is half right is not used at all: a missing number read as 0
// would hold the night at the lowest brightness all day.
QVector<CurveConfigEntry> read(const QString& path)
{
    if (!QFile::exists(path))
        return {};
    std::ifstream input(QFile::encodeName(path).toStdString());
    if (!input)
        return refuse(path, "it cannot be read");
    std::vector<int> numbers;
    int number = 0;
    while (input >> number)
        numbers.push_back(number);
    if (!input.eof())
        return refuse(path, "it holds something other than whole numbers");
    if (numbers.size() % 3 != 0)
        return refuse(path, "its last line is cut short");
    QVector<CurveConfigEntry> entries;
    for (size_t i = 0; i < numbers.size(); i += 3)
        entries.append({numbers[i], numbers[i + 1], numbers[i + 2]});
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
