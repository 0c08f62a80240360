#pragma once

#include <QString>
#include <QVariant>
#include <QVector>
#include <functional>
#include <map>

// One line of a user curve file: from the start hour up to, not including,
// the end hour the night value is the given one.
struct CurveConfigEntry
{
    int start_hour = 0;
    int end_hour = 0;
    int value = 0;
};

// What the two curve files share: the reading of whitespace-separated
// triples and their application to one key of the settings map.
namespace CurveConfigFile {

// The file of that name in the process's working directory.
QString path_in_working_directory(const QString& file_name);

// Reads whitespace-separated triples. A missing file yields no entries; an
// unreadable one, one with anything but whole numbers, or one whose last
// triple is cut short yields none either, with one line on standard error.
QVector<CurveConfigEntry> read(const QString& path);

// For every entry, in file order, that covers the present local hour: stores
// the clamped value under key and runs update_gamma. Ranges never wrap over
// midnight, so that the last matching entry is what stays.
void apply(const QVector<CurveConfigEntry>& entries, int (*clamp)(int), const QString& key,
           std::map<QString, QVariant>& settings, const std::function<void()>& update_gamma);

}
