// The six lists of the page and the application in front. A list arrives
// whole whenever the user edits it; it lives in the map and reaches the file
// with the next save, like every other setting. The page already shows what
// it sent, so nothing is sent back.
#include "app/MainWindow.h"
#include "policy/IColorTriggers.h"
#include "settings/SaveKeys.h"
#include "tray/ITrayIcon.h"

using namespace SaveKeys;

void MainWindow::store_list(const char* key, const QString& text)
{
    settings[QString::fromLatin1(key)] = text;
}

// The process watcher reads the three pauser lists on its next pass; the
// tray's entries offer to add or remove the application in front.
void MainWindow::save_color_pausers(QString color_pausers)
{
    store_list(COLOR_PAUSERS, color_pausers);
    refresh_pausers();
}

void MainWindow::save_timer_pausers(QString timer_pausers)
{
    store_list(TIMER_PAUSERS, timer_pausers);
    refresh_pausers();
}

void MainWindow::save_mouse_pausers(QString mouse_pausers)
{
    store_list(MOUSE_PAUSERS, mouse_pausers);
    refresh_pausers();
}

void MainWindow::save_color_triggers(QString color_triggers)
{
    store_list(COLOR_TRIGGERS, color_triggers);
    refresh_color_triggers();
    refresh_pausers();
}

// The blocker of websites and applications reads these when it starts.
void MainWindow::save_websites_for_blocking(QString websites)
{
    store_list(WEBSITES_FOR_BLOCKING, websites);
}

void MainWindow::save_applications_for_blocking(QString applications)
{
    store_list(APPLICATIONS_FOR_BLOCKING, applications);
}

void MainWindow::refresh_color_triggers()
{
    if (color_triggers)
        color_triggers->refresh_color_triggers();
}

// From the process watcher: the page offers the name on each list.
void MainWindow::set_current_active_process(QString process_name)
{
    current_active_process = process_name;
    emit set_current_active_process_signal(current_active_process);
    if (tray_icon)
        tray_icon->refresh_pausers_actions();
}

void MainWindow::set_current_color_trigger(QString process_name)
{
    current_color_trigger = process_name;
}
