#pragma once

#include <QObject>
#include <QSettings>
#include <QString>

// Reads text in the exchange format back into the store. Only the keys
// named in the text are touched; the caller reloads its map afterwards.
// Every report goes to standard output: a bad record costs that record
// alone. Without state: made on the stack for one call.
class ImportSettings : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    // Asks for a file with the open dialog and imports it.
    void import_settings(QSettings* store);
    // Each line as a string import, so a file may hold either form.
    // 0 when the file could be read, -1 otherwise.
    int import_settings_from_file(QSettings* store, const QString& path);
    void import_settings_from_string(QSettings* store, const QString& text);

    // Both decodings always run, so a file-form value that happens to hold
    // "[minus]" loses it too.
    static QString decode_value(QString value);
};
