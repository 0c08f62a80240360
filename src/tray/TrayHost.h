#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "settings/SettingsHost.h"

// The kinds of watched applications a pauser entry adds to or removes from.
enum class PauserKind { Color = 0, Timer = 1, Mouse = 2 };

// What a tray backend reads of the controller and the controller calls its
// menu entries make. In the program every hook is a call into MainWindow;
// tests supply their own. A hook left empty is skipped.
struct TrayHost
{
    const SettingsMap* settings = nullptr;

    // The state the icon shows.
    std::function<bool()> is_ovra_loaded;
    std::function<bool()> is_ovra_paused;
    // True while the tint moves: a fade runs or the tick wrote new values.
    std::function<bool()> colors_changing;
    // The applications recently in front, newest first.
    std::function<QStringList()> get_last_processes;

    // The menu's entries.
    std::function<void()> bring_to_front;
    std::function<void()> quit;
    // ovra_type_changed_force(type, false) and ovra_mode_changed_force(mode,
    // false): the change rule of the page's drop-downs.
    std::function<void(int type)> change_type;
    std::function<void(int mode)> change_mode;
    // The next mode in the cycle.
    std::function<void()> next_mode;
    // Writes the type, the mode and the pause state to the file at once.
    std::function<void()> save_tray_icon;
    // Stores a pauser list edited from the menu and shows it on the page.
    std::function<void(PauserKind kind, const QString& list)> save_pausers;
};
