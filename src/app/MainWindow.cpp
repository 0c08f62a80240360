#include "app/MainWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <iostream>

#include "app/UnixSignals.h"
#include "color/GammaFactory.h"
#include "color/IGamma.h"
#include "services/OnlineState.h"
#include "services/Updater.h"
#include "settings/SaveManager.h"
#include "settings/Settings.h"
#include "settings/SettingsHost.h"
#include "spells/HiddenFeatures.h"

namespace {
const int START_WIDTH = 495;
const int START_HEIGHT = 475;

bool setting_true(const std::map<QString, QVariant>& settings, const char* key)
{
    const auto it = settings.find(QString::fromLatin1(key));
    return it != settings.end() && it->second.toBool();
}
}

GammaFactory* MainWindow::gamma_factory_override = nullptr;
int MainWindow::screen_count_override = -1;

SettingsHost main_window_settings_host();

MainWindow::MainWindow(QWidget* parent) : OvraWindow(12311, parent, 0)
{
    set_settings_host_source(main_window_settings_host);
    network_manager = new QNetworkAccessManager(this);
    current_temperature = 6500;
    current_brightness = 100;

    for (FadeRecord* fade : {&restore_fade, &return_fade, &switch_fade, &switch_return_fade}) {
        fade->temperature = 6500.0f;
        fade->brightness = 100.0f;
        fade->temperature_step = 0.0f;
        fade->brightness_step = 0.0f;
    }
    window_showing = true;
    latitude = -1.0;
    longitude = -1.0;
    screen_count = 1;
    app_settings = new Settings(this);

    setup_window_properties();
    restore_saved_settings();
    if (!setting_true(settings, "OptimizeUiCreation"))
        create_ovra_ui();

    hidden_features = new HiddenFeatures();

    setup_network_config_manager();
    setup_gamma_timers();
    create_new_gamma();
    // The first colour update happens here, while the backend is fresh.
    refresh_color_scheme();
    refresh_leading_color();
    refresh_preserve_gamma();

    setup_timers();
    setup_signal_handlers();
    check_for_first_start();
    setup_ovra_icon();
    setup_system_proxy();

    connect(network_manager, &QNetworkAccessManager::finished, this, &MainWindow::update_location);

    brightness_config.read_brightness_config();
    temperature_config.read_temperature_config();

    if (setting_true(settings, "OptimizeUiCreation"))
        restore_settings();
}

MainWindow::~MainWindow()
{
    if (gamma) {
        restore_gamma();
        delete gamma;
        gamma = nullptr;
    }
    delete network_config_manager;
    delete unix_signals;
    delete hidden_features;
    set_settings_host_source({});
}

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

void MainWindow::set_gamma_ui() {}

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

void MainWindow::process_api_command()
{
    if (!SaveManager::s_instance)
        return;
    const QString words = SaveManager::s_instance->get_api_arguments();
    if (!words.isEmpty()) {
        const std::string text = words.toUtf8().toStdString();
        std::cout << text << std::endl;
        hidden_features->activate_hidden_feature(text);
    } else {
        bring_to_front();
    }
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

void MainWindow::quit()
{
    if (SaveManager::s_instance && SaveManager::s_instance->auto_save_settings())
        SaveManager::s_instance->save_settings();
    QCoreApplication::quit();
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

// ---------------------------------------------------------------- timers

void MainWindow::setup_timers()
{
    update_timer = new QTimer(this);
    update_timer->setInterval(1000);
    connect(update_timer, &QTimer::timeout, this, &MainWindow::update_ui);
    connect(update_timer, &QTimer::timeout, this, &MainWindow::update_gamma);
    connect(update_timer, &QTimer::timeout, this, &MainWindow::update_overlay_screen);
    connect(update_timer, &QTimer::timeout, this, &MainWindow::update_idle_time);
    update_timer->start();

    smart_timer = new QTimer(this);
    smart_timer->setInterval(1000);
    connect(smart_timer, &QTimer::timeout, this, &MainWindow::update_smart_brightness);
    connect(smart_timer, &QTimer::timeout, this, &MainWindow::update_smart_inversion);
    smart_timer->start();

    minute_timer = new QTimer(this);
    minute_timer->setInterval(60000);
    connect(minute_timer, &QTimer::timeout, this, &MainWindow::reset_blinks);
    connect(minute_timer, &QTimer::timeout, this, &MainWindow::refresh_taskbar_button);
    minute_timer->start();

    fixer_timer = new QTimer(this);
    fixer_timer->setInterval(1000);
    connect(fixer_timer, &QTimer::timeout, this, &MainWindow::fix_gamma);
    fixer_timer->start();

    fade_timer = new QTimer(this);
    fade_timer->setInterval(10);
    connect(fade_timer, &QTimer::timeout, this, &MainWindow::fade_window);
}

void MainWindow::setup_gamma_timers()
{
    for (FadeRecord* fade : {&restore_fade, &return_fade, &switch_fade, &switch_return_fade}) {
        fade->timer = new QTimer(this);
        fade->timer->setInterval(25);
    }
    connect(restore_fade.timer, &QTimer::timeout, this, &MainWindow::restore_colors_timeout);
    connect(return_fade.timer, &QTimer::timeout, this, &MainWindow::return_colors_timeout);
    connect(switch_fade.timer, &QTimer::timeout, this, &MainWindow::switch_state_timeout);
    connect(switch_return_fade.timer, &QTimer::timeout, this,
            &MainWindow::switch_state_return_timeout);
}

const FadeRecord& MainWindow::fade_state(int which) const
{
    switch (which) {
    case 0:
        return restore_fade;
    case 1:
        return return_fade;
    case 2:
        return switch_fade;
    default:
        return switch_return_fade;
    }
}

void MainWindow::setup_signal_handlers()
{
    unix_signals = new UnixSignals();
    if (!unix_signals->install())
        std::cerr << "Ovra: signals cannot be handled; the ramps come back only on quit" << std::endl;
    // Every way the program is asked to end leaves through quit(), so that the
    // destructor gives the displays their ramps back.
    connect(unix_signals, &UnixSignals::termination_requested, this, [this](int) { quit(); });
    // The convention of screen tinters: SIGUSR1 pauses or resumes, with a fade.
    connect(unix_signals, &UnixSignals::pause_toggle_requested, this, &MainWindow::toggle_pause);
}

// ---------------------------------------------------------------- the tick

void MainWindow::update_ui()
{
    process_curve_files();
}
