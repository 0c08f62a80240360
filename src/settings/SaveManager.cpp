#include "settings/SaveManager.h"

#include <QCoreApplication>
#include <iostream>
#include <unistd.h>

SaveManager::SaveManager()
{
    m_store = new QSettings(QCoreApplication::organizationName(), store_application_name());
    if (!m_store->isWritable())
        std::cout << "Settings not writable" << std::endl;
}

QString SaveManager::store_application_name()
{
    QString application = QCoreApplication::applicationName();
    if (getuid() == 0)
        application += "-root";
    return application;
}

SaveManager::~SaveManager()
{
    m_store->sync();
    delete m_store;
}

void SaveManager::restore_settings() {}

void SaveManager::save_settings()
{
    m_store->sync();
}

void SaveManager::first_start_finished()
{
    m_store->setValue("IsFirstStart", false);
}

QString SaveManager::get_api_arguments()
{
    m_store->sync();
    return m_store->value("ApiArguments", QString()).toString();
}

bool SaveManager::auto_save_settings()
{
    return m_store->value("AutosaveSettings", true).toBool();
}

bool SaveManager::check_for_updates()
{
    return m_store->value("CheckForUpdates", true).toBool();
}

bool SaveManager::hideTaskbarIcon()
{
    return m_store->value("HideTaskbarIcon", false).toBool();
}
