// The monitors the tint leaves alone, and the shortcut recorder of the page.
#include <QDebug>

#include "app/MainWindow.h"
#include "hotkeys/HotkeyProcessor.h"
#include "policy/IgnoredMonitors.h"

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

// The page already shows what the user typed: the list is not sent back,
// which would also move its dropdown to the first entry.
void MainWindow::shortcut_changed(int feature_index, QString new_shortcut)
{
    hotkey_processor->shortcut_changed(feature_index, new_shortcut);
}
