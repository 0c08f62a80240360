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

private:
    QSettings* m_store;
};
