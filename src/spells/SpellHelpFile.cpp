#include "spells/SpellHelpFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <iostream>

namespace {
const char RESOURCE[] = ":/html/help/spells.html";
}

QString SpellHelpFile::path()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)
           + QStringLiteral("/help/spells.html");
}

QString SpellHelpFile::write()
{
    QFile resource(QString::fromLatin1(RESOURCE));
    if (!resource.open(QIODevice::ReadOnly)) {
        std::cerr << "Ovra: the help page on spells is missing from the program" << std::endl;
        return QString();
    }
    const QByteArray page = resource.readAll();
    const QString target = path();

    QFile existing(target);
    if (existing.open(QIODevice::ReadOnly) && existing.readAll() == page)
        return target;
    existing.close();

    QSaveFile copy(target);
    if (!QDir().mkpath(QFileInfo(target).path()) || !copy.open(QIODevice::WriteOnly)
        || copy.write(page) != page.size() || !copy.commit()) {
        std::cerr << "Ovra: cannot write " << target.toStdString() << std::endl;
        return QString();
    }
    return target;
}
