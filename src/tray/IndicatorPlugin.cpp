#include "tray/IndicatorPlugin.h"

#include <QCoreApplication>
#include <QLibrary>
#include <iostream>

namespace IndicatorPlugin {

QString path()
{
    return QCoreApplication::applicationDirPath() + '/' + QLatin1String(FILE_NAME);
}

ITrayIcon* create(const TrayHost& host)
{
    // Loaded for the life of the process: the icon's menu calls into it.
    QLibrary library(path());
    const auto factory = reinterpret_cast<Factory>(library.resolve(FACTORY));
    if (!factory) {
        std::cerr << "Ovra: the indicator cannot be loaded (" << library.errorString().toStdString()
                  << "); the Qt tray serves instead" << std::endl;
        return nullptr;
    }
    return factory(&host);
}

} // namespace IndicatorPlugin
