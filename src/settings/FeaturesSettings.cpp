#include "settings/FeaturesSettings.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

namespace {
const char CONFIG_FILE[] = "unused_pages.txt";
}

FeaturesSettings::FeaturesSettings(const QVariantList& pages)
{
    if (pages.isEmpty())
        restore_unused_pages_to_default();
    unused_pages.append(pages);
}

void FeaturesSettings::add_unused_page(const QString& page)
{
    // Exact: "cpu" goes in beside "CPU", and one removal takes both out.
    if (!unused_pages.contains(QVariant(page)))
        unused_pages.append(page);
}

void FeaturesSettings::remove_unused_page(const QString& page)
{
    unused_pages.removeIf([&page](const QVariant& entry) {
        return entry.toString().compare(page, Qt::CaseInsensitive) == 0;
    });
}

void FeaturesSettings::clean_unused_pages()
{
    unused_pages.clear();
    restore_unused_pages_to_default();
}

void FeaturesSettings::restore_unused_pages_to_default()
{
    unused_pages.append(has_unused_pages_config() ? get_unused_pages_from_config_file()
                                                  : default_unused_pages());
}

bool FeaturesSettings::has_unused_pages_config()
{
    return QFileInfo::exists(QString::fromLatin1(CONFIG_FILE));
}

QVariantList FeaturesSettings::get_unused_pages_from_config_file()
{
    QVariantList pages;
    QFile file(QString::fromLatin1(CONFIG_FILE));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return pages;
    QTextStream lines(&file);
    while (!lines.atEnd())
        pages.append(lines.readLine());
    return pages;
}

QVariantList FeaturesSettings::default_unused_pages()
{
    // The technical pages stay out of a new user's way.
    return {QStringLiteral("Color Temperature"), QStringLiteral("PWM control"),
            QStringLiteral("CPU"),               QStringLiteral("GPU"),
            QStringLiteral("Hardware"),          QStringLiteral("Sounds"),
            QStringLiteral("Kindle"),            QStringLiteral("Debug")};
}
