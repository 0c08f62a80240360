// The monitors the tint leaves alone, and the shortcut recorder of the page.
#include <QDebug>
#include <iostream>

#include "app/MainWindow.h"
#include "policy/IgnoredMonitors.h"
#include "settings/ChangeRule.h"
#include "settings/SettingsTable.h"

// The list lives beside the map, not in it, so the list edit makes the
// rule's comparison: an unchanged list stops here. It is saved with the
// other settings. The write at once gives an ignored monitor its original
// ramps back and tints one taken back in.
void MainWindow::ignore_monitor_changed(int monitor, bool ignore)
{
    if (!IgnoredMonitors::set_ignored(ignored_monitors, monitor, ignore))
        return;
    qDebug() << "ignore_monitor_changed: " << monitor << ignore;
    refresh_high_level_colors();
    refresh_overlay_screens(true);
    refresh_lightness_screens(true);
    restore_manage_monitors();
}

// Tells the page how many monitors there are and which of them stay
// untinted. Also how the tick notices a monitor that came or went.
void MainWindow::restore_manage_monitors()
{
    screen_count = get_screen_count();
    emit set_screen_count(screen_count);
    for (int monitor : ignored_monitors)
        emit ignore_monitor(monitor);
}

// The hotkey service grabs the new combination when it follows the key. The
// page already shows what the user typed: the list is not sent back, which
// would also move its dropdown to the first entry.
void MainWindow::shortcut_changed(int feature_index, QString new_shortcut)
{
    const QString key = SettingsTable::hotkey_key(feature_index);
    std::cout << key.toStdString() << "\n" << new_shortcut.toStdString() << std::endl;
    if (key.isEmpty())
        return;
    change_setting(settings, key, new_shortcut, nullptr, [](const QVariant&) {});
}
