#include "settings/ImportSettings.h"

#include <QFileDialog>
#include <QStandardPaths>
#include <QStringList>
#include <fstream>
#include <iostream>
#include <string>

#include "settings/SaveKeys.h"
#include "settings/SettingsExchange.h"

QString ImportSettings::decode_value(QString value)
{
    value.replace(QLatin1String(SettingsExchange::NEW_LINE), QStringLiteral("\n"));
    value.replace(QLatin1String(SettingsExchange::MINUS), QStringLiteral("-"));
    return value;
}

// There is no escape for "=": a value holding one (ColorTriggers, whose
// lines read "vlc = 6500 120") is refused here and the old value stays.
void ImportSettings::import_settings_from_string(QSettings* store, const QString& text)
{
    const QStringList records = text.split(QLatin1String(SettingsExchange::SEPARATOR), Qt::KeepEmptyParts);
    for (const QString& record : records) {
        if (record.startsWith(QLatin1Char('#')) || record.startsWith(QLatin1Char(';')))
            continue;
        const QStringList pieces = record.split(QLatin1Char('='), Qt::KeepEmptyParts);
        if (pieces.size() != 2) {
            if (!record.isEmpty())
                std::cout << record.toStdString() << " is invalid line" << std::endl;
            continue;
        }
        if (pieces[0] == QLatin1String(SaveKeys::API_KEY))
            continue;
        store->setValue(pieces[0], decode_value(pieces[1]));
    }
}

int ImportSettings::import_settings_from_file(QSettings* store, const QString& path)
{
    std::ifstream file(path.toLocal8Bit().toStdString());
    if (!file.is_open()) {
        std::cout << "Failed to open file for Import" << std::endl;
        return -1;
    }
    std::string line;
    while (std::getline(file, line))
        import_settings_from_string(store, QString::fromLocal8Bit(QByteArray::fromStdString(line)));
    return 0;
}

void ImportSettings::import_settings(QSettings* store)
{
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    const QString path = QFileDialog::getOpenFileName(nullptr, QStringLiteral("Open File..."), desktop,
                                                      QString::fromLatin1(SettingsExchange::FILE_FILTER));
    if (path.isEmpty()) {
        std::cout << "No File selected for Import" << std::endl;
        return;
    }
    std::cout << "File selected for Import: " << path.toStdString() << std::endl;
    import_settings_from_file(store, path);
}
