// The window of the controller: how it opens once the page is ready, how it
// closes, and the hooks of its fade.
#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <iostream>

#include "app/MainWindow.h"
#include "base/Singleton.h"
#include "services/Updater.h"
#include "settings/SaveManager.h"
#include "settings/Settings.h"

namespace {
const int START_WIDTH = 495;
const int START_HEIGHT = 475;

bool setting_true(const std::map<QString, QVariant>& settings, const char* key)
{
    const auto it = settings.find(QString::fromLatin1(key));
    return it != settings.end() && it->second.toBool();
}
} // namespace

// ---------------------------------------------------------------- window

void MainWindow::setup_window_properties()
{
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint);
    setWindowFlags(windowFlags() | Qt::WindowCloseButtonHint);
    setWindowFlags(windowFlags() | Qt::WindowMinimizeButtonHint);
    setup_window_attributes();
    set_window_opacity(1.0);
    resize(START_WIDTH, START_HEIGHT);
    setFixedSize(width(), height());
}

bool MainWindow::create_ovra_ui()
{
    if (ui_created)
        return false;
    ui_created = true;
    auto* layout = new QGridLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    refresh_size(START_WIDTH, START_HEIGHT);
    setWindowTitle(QCoreApplication::applicationName());
    // The page reports that it loaded from the event loop; the empty dialog
    // does the same so that the window's start-up road stays one road.
    QTimer::singleShot(0, this, &MainWindow::load_finished);
    return true;
}

void MainWindow::refresh_size(int width, int height)
{
    setFixedSize(width, height);
}

void MainWindow::resize_window(int width, int height)
{
    refresh_size(width, height);
}

void MainWindow::load_finished()
{
    if (ovra_loaded)
        return;
    ovra_loaded = true;
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            &MainWindow::application_state_changed);
    set_gamma_ui();
    load_finished_linux();
    update_times_info();
    open_ovra_after_load_finished();
}

void MainWindow::load_finished_linux()
{
    activateWindow();
    QCoreApplication::processEvents();
    restore_settings();
    force_refresh();
    showMinimized();
}

void MainWindow::set_gamma_ui()
{
    emit enable_all_gamma_options();
}

void MainWindow::set_open_ovra_after_load_finished(bool value)
{
    create_ovra_ui();
    open_after_load = value;
}

void MainWindow::open_ovra_after_load_finished()
{
    if (window_opened_once)
        return;
    if (open_after_load)
        bring_to_front();
    window_opened_once = true;
    open_after_load = false;
}

void MainWindow::bring_to_front()
{
    if (setting_true(settings, "OptimizeUiCreation") && create_ovra_ui()) {
        open_after_load = true;
        hide();
        return;
    }
    showNormal();
}

void MainWindow::application_state_changed(Qt::ApplicationState state)
{
    if (state == Qt::ApplicationActive)
        set_window_opacity(1.0);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    // With no tray icon there would be no way back to the program: closing
    // the window ends it.
    std::cout << "Tray icon is not visible" << std::endl;
    event->accept();
    quit();
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        close_clicked();
        return;
    }
    OvraWindow::keyPressEvent(event);
}

void MainWindow::wheelEvent(QWheelEvent*) {}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        force_refresh();
    return OvraWindow::eventFilter(watched, event);
}

bool MainWindow::nativeEvent(const QByteArray&, void*, qintptr*)
{
    return false;
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

void MainWindow::close_window()
{
    if (!SaveManager::s_instance || !SaveManager::s_instance->hideTaskbarIcon())
        showMinimized();
    else
        hide();
}

void MainWindow::minimize_clicked()
{
    showMinimized();
}

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
        hide();
    }
    set_window_opacity(window_showing ? window_fade : 1.0 - window_fade);
}

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
    if (!setting_true(settings, "IsFirstStart"))
        return;
    first_start = true;
    std::cout << "First start" << std::endl;
    settings[QStringLiteral("IsFirstStart")] = false;
    if (SaveManager::s_instance)
        SaveManager::s_instance->first_start_finished();
}

void MainWindow::setup_ovra_icon() {}

