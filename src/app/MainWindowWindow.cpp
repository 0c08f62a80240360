// The settings window: how it opens once its page is ready, how it closes,
// and the hooks of its fade. The window lives in the window host; the page
// in it connects to this object by itself, and the handshake runs over that
// channel, so the page and the host can come and go.
#include <QCoreApplication>
#include <cstdlib>
#include <iostream>

#include "app/MainWindow.h"
#include "services/Updater.h"
#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"
#include "settings/Settings.h"
#include "tray/ITrayIcon.h"
#include "web/PageWindows.h"
#include "web/UserTime.h"

namespace {
const QSize START_SIZE(495, 475);
// Five minutes, unless a test shortens it.
int warm_period_msecs()
{
    const int given = qEnvironmentVariableIntValue("OVRA_PAGE_WARM_MSECS");
    return given > 0 ? given : 5 * 60 * 1000;
}
} // namespace

WindowOptions MainWindow::settings_window_options() const
{
    WindowOptions options;
    options.size = window_size.isValid() ? window_size : START_SIZE;
    options.title = QCoreApplication::applicationName();
    return options;
}

void MainWindow::forget_page()
{
    ovra_loaded = false;
    window_opened_once = false;
}

bool MainWindow::create_ovra_ui()
{
    if (is_page_open())
        return false;
    forget_page();
    page_in_host = true;
    return open_page(settings_window_options(), ShowState::Hidden);
}

void MainWindow::page_connected(bool in_host)
{
    forget_page();
    page_in_host = in_host;
}

void MainWindow::page_gone()
{
    OvraWindow::page_gone();
    forget_page();
    open_after_load = false;
    open_user_time = 0;
    if (page_warm_timer)
        page_warm_timer->stop();
}

// The page calls this once its channel is ready; a page that loads again,
// or a new one, calls it again and gets the whole sequence.
void MainWindow::load_finished()
{
    if (ovra_loaded)
        return;
    ovra_loaded = true;
    set_gamma_ui();
    load_finished_linux();
    // Forced, the language also sends the times report in its words.
    language_changed_force(settings[SaveKeys::LANGUAGE].toString(), true);
    if (tray_icon)
        tray_icon->refresh_tray_icon_menu();
}

// What used to realise the window and minimise it is left to the end state:
// the window shows when an open was asked for, and stays hidden otherwise.
void MainWindow::load_finished_linux()
{
    restore_settings();
    force_refresh();
}

void MainWindow::set_gamma_ui()
{
    emit enable_all_gamma_options();
}

void MainWindow::set_open_ovra_after_load_finished(bool value)
{
    if (!is_page_open())
        create_ovra_ui();
    open_after_load = value;
    open_user_time = value ? UserTime::current() : 0;
}

void MainWindow::open_ovra_after_load_finished()
{
    if (window_opened_once)
        return;
    if (open_after_load) {
        // The input that asked for the window is still its reason, however
        // long the page took.
        UserTime::Scope asked(open_user_time);
        bring_to_front();
    }
    window_opened_once = true;
    open_after_load = false;
    open_user_time = 0;
}

void MainWindow::bring_to_front()
{
    // A page that a browser took over leaves only a notice in the host's
    // window: the window the user asks for gets a page of its own again.
    if (is_page_open() && !page_in_host)
        close_page();
    if (!is_page_open()) {
        // The open waits for the page, and keeps the input that asked.
        if (create_ovra_ui())
            set_open_ovra_after_load_finished(true);
        return;
    }
    if (!ovra_loaded) {
        set_open_ovra_after_load_finished(true);
        return;
    }
    if (page_warm_timer)
        page_warm_timer->stop();
    show_page(ShowState::Normal);
}

void MainWindow::application_state_changed(Qt::ApplicationState state)
{
    if (state == Qt::ApplicationActive)
        set_window_opacity(1.0);
}

void MainWindow::refresh_size(int width, int height)
{
    window_size = QSize(width, height);
    resize_page(window_size);
}

void MainWindow::resize_window(int width, int height)
{
    refresh_size(width, height);
}

bool MainWindow::offer_settings_to_browsers(quint16 port)
{
    return PageWindows::instance()->offer_to_browsers(port);
}

// ---------------------------------------------------------------- closing

void MainWindow::page_close_requested()
{
    // With no tray icon there would be no way back to the program: closing
    // the window ends it.
    if (tray_icon && tray_icon->is_visible()) {
        close_clicked();
        return;
    }
    std::cout << "Tray icon is not visible" << std::endl;
    quit();
}

void MainWindow::page_escape_pressed()
{
    close_clicked();
}

void MainWindow::close_clicked()
{
    SaveManager* save_manager = SaveManager::s_instance;
    OVRA_HARD_ASSERT(save_manager, "MainWindow", __LINE__);
    if (save_manager->auto_save_settings())
        save_and_close_clicked();
    else
        close_window();
    restore_settings();
}

void MainWindow::save_and_close_clicked()
{
    SaveManager* saveManager = SaveManager::s_instance;
    OVRA_HARD_ASSERT(saveManager, "MainWindow", __LINE__);
    close_window();
    // A user who has just turned update checks on hears about a new version
    // now, not after the next start.
    const bool checked_before = saveManager->check_for_updates();
    saveManager->save_settings();
    if (!checked_before && saveManager->check_for_updates() && Updater::s_instance)
        Updater::s_instance->check_for_new_version();
}

// A minimised window is still a window (it is on the task bar); a hidden
// one is kept warm for a while, and with DestroyUiOnClose it ends at once,
// and with it the host when nothing else is open.
void MainWindow::close_window()
{
    if (settings[SaveKeys::DESTROY_UI_ON_CLOSE].toBool()) {
        close_page();
        return;
    }
    if (!SaveManager::s_instance || !SaveManager::s_instance->hideTaskbarIcon()) {
        minimize_window();
        return;
    }
    hide_page();
    if (!page_warm_timer) {
        page_warm_timer = new QTimer(this);
        page_warm_timer->setSingleShot(true);
        connect(page_warm_timer, &QTimer::timeout, this, [this] {
            if (!is_page_visible())
                close_page();
        });
    }
    page_warm_timer->start(warm_period_msecs());
}

void MainWindow::minimize_clicked()
{
    minimize_window();
}

void MainWindow::minimize_window()
{
    if (is_page_open())
        show_page(ShowState::Minimized);
}

// ---------------------------------------------------------------- the fade

void MainWindow::begin_showing()
{
    window_fade = 0.0f;
    window_showing = true;
    fade_timer->start();
}

void MainWindow::begin_hiding()
{
    window_fade = 0.0f;
    window_showing = false;
    fade_timer->start();
}

void MainWindow::fade_window()
{
    window_fade += 0.04f;
    if (window_fade > 1.0f) {
        fade_timer->stop();
        if (window_showing) {
            window_fade = 1.0f;
            set_window_opacity(1.0);
            return;
        }
        window_fade = 0.0f;
        hide_page();
    }
    set_window_opacity(window_showing ? window_fade : 1.0 - window_fade);
}

// ---------------------------------------------------------------- settings

void MainWindow::restore_saved_settings()
{
    if (SaveManager::s_instance)
        SaveManager::s_instance->restore_settings();
}

void MainWindow::restore_settings()
{
    restore_saved_settings();
    app_settings->restore();
}

void MainWindow::check_for_first_start()
{
    if (!settings[SaveKeys::IS_FIRST_START].toBool())
        return;
    first_start = true;
    std::cout << "First start" << std::endl;
    settings[SaveKeys::IS_FIRST_START] = false;
    if (SaveManager::s_instance)
        SaveManager::s_instance->first_start_finished();
}

void MainWindow::setup_ovra_icon() {}
