#pragma once

#include <QObject>
#include <QSettings>
#include <QString>

// Writes the store out in the exchange format: one record a line in a
// file, or all records on one line joined by "[sep]" (the string form,
// meant to be pasted into the spell "import %s"). Works on the QSettings
// object itself, not on the controller's map. Without state: made on the
// stack for one call.
class ExportSettings : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    // Asks for a file with the save dialog and writes the store into it.
    // The string form goes through the same dialog and into a file too.
    void export_settings(QSettings* store, bool as_string);

    // What goes into the file: the header line, then "key=value" for every
    // key but ApiArguments, each followed by the separator.
    static QString settings_text(QSettings* store, bool as_string);
    // 0 when the file was written, -1 with a line on stderr otherwise.
    static int write_file(QSettings* store, const QString& path, bool as_string);

    // "[new_line]" for line breaks; the string form also hides every "-" so
    // that the word passes a second launch's command line as it stands.
    static QString encode_value(QString value, bool as_string);
    // Where the save dialog starts: the desktop, "Ovra-" and the time.
    static QString suggested_path();
};
