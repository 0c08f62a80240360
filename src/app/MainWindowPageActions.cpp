// The buttons and commands of the page: breaks on request, exercises, links,
// spells and the reset of every setting. Features whose windows come with
// their own subsystems keep their names here, so that the page's call lands.
#include <QDesktopServices>
#include <QPoint>
#include <QUrl>
#include <iostream>

#include "app/MainWindow.h"
#include "breaks/IRestTimer.h"
#include "hotkeys/HotkeyProcessor.h"
#include "overlays/IScreenOverlays.h"
#include "settings/Defines.h"
#include "settings/ExportSettings.h"
#include "settings/ImportSettings.h"
#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"
#include "spells/HiddenFeatures.h"

// ---------------------------------------------------------------- breaks

// "Have a rest now". Asking for a rest turns an Off timer into Normal.
void MainWindow::start_rest()
{
    if (!rest_timer || rest_timer->is_rest_started())
        return;
    reset_timer();
    save_on_the_way_out();
    restore_settings();
    rest_timer->start_rest();
    settings[QString::fromLatin1(SaveKeys::IS_TIMER_PAUSED)] = false;
    if (settings[QString::fromLatin1(SaveKeys::TIMER_TYPE)].toInt() == 1)
        timer_type_changed(2);
    update_ui();
    force_refresh();
}

// The blink reminder screen of the camera part opens and closes here.
void MainWindow::show_blink_screen() {}
void MainWindow::hide_blink_screen() {}

// The automatic clicker, at MouseClickInterval, starts and stops here.
void MainWindow::start_mouse_clicking() {}
void MainWindow::stop_mouse_clicking() {}

// ---------------------------------------------------------------- overlay area

// The overlays let the mouse through to the desktop at all times here, so
// there is no area to pick: the button has nothing to start.
void MainWindow::select_overlay_screen_area() {}

void MainWindow::reset_selected_overlay_screen_area()
{
    settings[QString::fromLatin1(SaveKeys::OVERLAY_SCREEN_START_MOUSE_POSITION)] = QPoint(0, 0);
    settings[QString::fromLatin1(SaveKeys::OVERLAY_SCREEN_END_MOUSE_POSITION)] = QPoint(0, 0);
    if (overlays)
        overlays->reset_area();
}

// ---------------------------------------------------------------- links

// Only web addresses: a page must not open files or start other handlers.
void MainWindow::open_url(QString url)
{
    const QUrl address(url);
    if (address.scheme() != QLatin1String("https") && address.scheme() != QLatin1String("http")) {
        std::cerr << "Ovra: not opening " << url.toStdString() << std::endl;
        return;
    }
    QDesktopServices::openUrl(address);
}

void MainWindow::open_version_link()
{
    open_url(QString::fromLatin1(Defines::VERSION_URL));
}

void MainWindow::open_website_link()
{
    open_url(QString::fromLatin1(Defines::WEBSITE_URL));
}

void MainWindow::open_welcome_link()
{
    open_url(QString::fromLatin1(Defines::WELCOME_URL));
}

// ---------------------------------------------------------------- spells

// An empty box asks for the list of spells.
void MainWindow::activate_hidden_feature(QString hidden_feature)
{
    if (hidden_feature.isEmpty())
        hidden_feature = QStringLiteral("help");
    hidden_features->activate_hidden_feature(hidden_feature.toUtf8().toStdString());
}

// ---------------------------------------------------------------- settings

// Everything back to its default but the language and the first-start mark;
// the page then gets the whole push. The language is set again by the
// translator; the hotkeys take their default combinations, and are released
// since they are off by default.
void MainWindow::reset_settings_to_default()
{
    if (SaveManager::s_instance)
        SaveManager::s_instance->reset_settings_to_default();
    clean_unused_pages();
    restore_saved_settings();
    refresh_unused_pages();
    refresh_color_triggers();
    reconnect_keyboard_hook();
    hotkey_processor->refresh_shortcuts();
    check_for_first_start();
    first_start = false;
    restore_settings();
    refresh_scale();
}

// The exchange format works on the store itself: an import writes there and
// the map and the page are then read back from it.
void MainWindow::import_settings()
{
    if (!SaveManager::s_instance)
        return;
    ImportSettings().import_settings(SaveManager::s_instance->get_settings());
    restore_settings();
}

void MainWindow::export_settings()
{
    if (SaveManager::s_instance)
        ExportSettings().export_settings(SaveManager::s_instance->get_settings(), false);
}

// ---------------------------------------------------------------- window

// The page's zoom and the debug console have no effect in this program.
void MainWindow::zoom_in() {}
void MainWindow::zoom_out() {}
void MainWindow::start_debug_console() {}

// The web engine and its developer tools live in the window host.
void MainWindow::start_web_view_debugger() {}
