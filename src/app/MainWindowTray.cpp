// The tray: which backend shows the icon, and the hooks its menu and its
// icon reach the controller through. The menu's entries take the roads the
// page takes (the _force slots of the type and the mode, bring_to_front,
// quit), so that a change from the tray is a change like any other.
#include <QCoreApplication>

#include "base/TickPath.h"
#include <QStringList>

#include "app/MainWindow.h"
#include "color/ColorFades.h"
#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"
#include "tray/ITrayIcon.h"
#include "tray/IndicatorPlugin.h"
#include "tray/PauserLists.h"
#include "tray/TrayHost.h"
#include "tray/TrayIcon.h"

void MainWindow::setup_tray_icon()
{
    const TrayHost host = tray_host();
    ITrayIcon* icon = nullptr;
    // Unity has no place for Qt's icon; everywhere else, with the variable
    // unset too, Qt's tray serves and GTK is never loaded.
    if (qEnvironmentVariable("XDG_CURRENT_DESKTOP").toLower() == QLatin1String("unity"))
        icon = IndicatorPlugin::create(host);
    if (!icon)
        icon = new TrayIcon(host);
    delete tray_icon;
    tray_icon = icon;
    tray_icon->show_icon();
    // The state of this moment, before the first tick.
    tray_icon->update_tray_icon(false);
}

TrayHost MainWindow::tray_host()
{
    TrayHost host;
    host.settings = &settings;
    host.is_ovra_loaded = [this] { return is_ovra_loaded(); };
    host.is_ovra_paused = [this] { return is_ovra_paused(); };
    host.colors_changing = [this] { return tray_colors_changing(); };
    // The process watcher's queue of recent applications; nothing on this
    // platform reports one, so the pauser entries stay empty.
    host.get_last_processes = [] { return QStringList(); };
    host.bring_to_front = [this] { bring_to_front(); };
    host.quit = [this] { quit(); };
    host.change_type = [this](int type) { ovra_type_changed_force(type, false); };
    host.change_mode = [this](int mode) { ovra_mode_changed_force(mode, false); };
    host.next_mode = [this] { change_mode(); };
    host.save_tray_icon = [] {
        if (SaveManager::s_instance)
            SaveManager::s_instance->save_tray_icon();
    };
    host.save_pausers = [this](PauserKind kind, const QString& list) {
        const QString key = QString::fromLatin1(PauserLists::list_key(kind));
        switch (kind) {
        case PauserKind::Color:
            save_color_pausers(list);
            emit set_color_pausers_list(settings[key].toString());
            break;
        case PauserKind::Timer:
            save_timer_pausers(list);
            emit set_timer_pausers_list(settings[key].toString());
            break;
        case PauserKind::Mouse:
            save_mouse_pausers(list);
            emit set_mouse_pausers_list(settings[key].toString());
            break;
        }
    };
    return host;
}

// Asked once a second: the tick wrote other values than a second ago, or a
// fade is on its way.
OVRA_TICK bool MainWindow::tray_colors_changing()
{
    const bool moved = current_temperature != tray_seen_temperature
                       || current_brightness != tray_seen_brightness;
    tray_seen_temperature = current_temperature;
    tray_seen_brightness = current_brightness;
    return moved || (fades && fades->active());
}

OVRA_TICK bool MainWindow::is_ovra_loaded()
{
    return ovra_loaded;
}

void MainWindow::show_tray_icon_message(QString title, QString text)
{
    if (tray_icon)
        tray_icon->show_message(title, text);
}

void MainWindow::show_tray_icon_context_menu()
{
    if (tray_icon)
        tray_icon->show_context_menu();
}
