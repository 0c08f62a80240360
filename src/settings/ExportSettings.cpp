#include "settings/ExportSettings.h"

#include <QDateTime>
#include <QFileDialog>
#include <QStandardPaths>
#include <QStringList>
#include <fstream>
#include <iostream>

#include "settings/SaveKeys.h"
#include "settings/SettingsExchange.h"

QString ExportSettings::encode_value(QString value, bool as_string)
{
    value.replace(QLatin1Char('\n'), QLatin1String(SettingsExchange::NEW_LINE));
    if (as_string)
        value.replace(QLatin1Char('-'), QLatin1String(SettingsExchange::MINUS));
    return value;
}

QString ExportSettings::settings_text(QSettings* store, bool as_string)
{
    const QString separator = as_string ? QString::fromLatin1(SettingsExchange::SEPARATOR) : QStringLiteral("\n");
    QString header = QString::fromLatin1(SettingsExchange::HEADER);
    if (as_string)
        header.replace(QLatin1Char(' '), QLatin1Char('_'));

    QString text = header + separator;
    const QStringList keys = store->allKeys();
    for (const QString& key : keys) {
        if (key == QLatin1String(SaveKeys::API_KEY))
            continue;
        // Points and lists have no text of their own: they go out empty.
        text += key + QLatin1Char('=') + encode_value(store->value(key).toString(), as_string) + separator;
    }
    return text;
}

int ExportSettings::write_file(QSettings* store, const QString& path, bool as_string)
{
    std::fstream file(path.toLocal8Bit().toStdString(), std::ios::out | std::ios::trunc);
    if (!file.is_open()) {
        std::cerr << "Ovra: cannot write " << path.toStdString() << std::endl;
        return -1;
    }
    file << settings_text(store, as_string).toLocal8Bit().toStdString();
    file.close();
    if (file.fail()) {
        std::cerr << "Ovra: writing " << path.toStdString() << " failed" << std::endl;
        return -1;
    }
    return 0;
}

QString ExportSettings::suggested_path()
{
    const QStringList desktops = QStandardPaths::standardLocations(QStandardPaths::DesktopLocation);
    const QString desktop = desktops.isEmpty() ? QString() : desktops.first();
    return desktop + QStringLiteral("/Ovra-") +
           QDateTime::currentDateTime().toString(QStringLiteral("yyyy_MM_dd_HH-mm-ss"));
}

void ExportSettings::export_settings(QSettings* store, bool as_string)
{
    const QString path = QFileDialog::getSaveFileName(nullptr, QStringLiteral("Save File..."), suggested_path(),
                                                      QString::fromLatin1(SettingsExchange::FILE_FILTER));
    if (path.isEmpty()) {
        std::cout << "No File selected for Export" << std::endl;
        return;
    }
    std::cout << "File selected: " << path.toStdString() << std::endl;
    write_file(store, path, as_string);
}
