// Where the store and the restore push meet the controller. Each hook is a
// call into MainWindow; a hook left empty is a step whose owner is not built
// yet.
#include "MainWindow.h"
#include "settings/SettingsHost.h"

SettingsHost main_window_settings_host()
{
    SettingsHost host;
    MainWindow* main_window = Singleton<MainWindow>::s_instance;
    if (!main_window)
        return host;
    host.settings = &main_window->settings;
    host.latitude = &main_window->latitude;
    host.longitude = &main_window->longitude;
    host.ignored_monitors = &main_window->ignored_monitors;
    return host;
}
