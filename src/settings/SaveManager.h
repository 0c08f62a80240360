#pragma once

#include <QSettings>
#include <QString>

#include "Singleton.h"

// Owner of the persistent store (~/.config/Morvenik/Ovra.conf).
class SaveManager : public Singleton<SaveManager>
{
public:
    SaveManager();
    ~SaveManager() override;

    void restore_settings();
    void save_settings();
    void first_start_finished();

    // Direct reads from the file, not the map.
    QString get_api_arguments();
    bool auto_save_settings();
    bool check_for_updates();
    bool hideTaskbarIcon();

    QSettings* store() { return m_store; }

    // The application part of the store's name: root gets a store of its own
    // so that it never rewrites the user's file. Every QSettings of the
    // program that reaches the store is built with this.
    static QString store_application_name();

private:
    QSettings* m_store;
};
