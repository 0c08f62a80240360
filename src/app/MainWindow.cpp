#include "app/MainWindow.h"

#include "base/TickPath.h"
#include "breaks/IRestTimer.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <iostream>

#include "app/ControllerSpellTarget.h"
#include "app/DoorThread.h"
#include "app/ExitGuard.h"
#include "app/SingleApplication.h"
#include "app/UnixSignals.h"
#include "breaks/IdleTime.h"
#include "color/ColorCurve.h"
#include "color/ColorTick.h"
#include "settings/SaveKeys.h"
#include "color/IGamma.h"
#include "hotkeys/HotkeyProcessor.h"
#include "services/LaunchFeedback.h"
#include "services/OnlineState.h"
#include "services/Translator.h"
#include "services/Updater.h"
#include "settings/FeaturesSettings.h"
#include "settings/SaveManager.h"
#include "settings/Settings.h"
#include "settings/SettingsHost.h"
#include "web/PageWindows.h"
#include "web/UserTime.h"
#include "spells/HiddenFeatures.h"
#include "tray/ITrayIcon.h"

namespace {
bool setting_true(const std::map<QString, QVariant>& settings, const char* key)
{
    const auto it = settings.find(QString::fromLatin1(key));
    return it != settings.end() && it->second.toBool();
}
}

GammaFactory* MainWindow::gamma_factory_override = nullptr;
int MainWindow::screen_count_override = -1;

SettingsHost main_window_settings_host();

MainWindow::MainWindow(QObject* parent)
    : OvraWindow(PageWindows::SETTINGS_WINDOW, QStringLiteral("main_screen.html"), parent)
{
    set_settings_host_source(main_window_settings_host);
    network_manager = new QNetworkAccessManager(this);
    current_temperature = 6500;
    current_brightness = 100;
    window_showing = true;
    latitude = -1.0;
    longitude = -1.0;
    screen_count = 1;
    app_settings = new Settings(this);
    relay_settings_signals();

    restore_saved_settings();
    if (!setting_true(settings, "OptimizeUiCreation"))
        create_ovra_ui();
    setup_hotkeys();

    translator = new Translator(this);
    translate_status_words();
    spell_target = new ControllerSpellTarget(this);
    hidden_features = new HiddenFeatures(spell_target);
    features_settings =
        new FeaturesSettings(settings[QString::fromLatin1(SaveKeys::UNUSED_PAGES)].toList());

    setup_network_config_manager();
    setup_color_engine();
    create_new_gamma();
    setup_last_words();
    // The first colour update happens here, while the backend is fresh.
    refresh_color_scheme();
    refresh_leading_color();
    refresh_preserve_gamma();

    setup_timers();
    setup_tray_icon();
    create_new_rest_timer();
    setup_signal_handlers();
    check_for_first_start();
    setup_ovra_icon();
    setup_system_proxy();

    connect(network_manager, &QNetworkAccessManager::finished, this, &MainWindow::update_location);

    brightness_config.read_brightness_config();
    temperature_config.read_temperature_config();

    if (setting_true(settings, "OptimizeUiCreation"))
        restore_settings();
    language_changed_force(settings[SaveKeys::LANGUAGE].toString(), true);
}

MainWindow::~MainWindow()
{
    delete_rest_timer();
    delete idle_time;
    delete tray_icon;
    tray_icon = nullptr;
    delete hotkey_processor;
    if (gamma) {
        restore_gamma();
        delete gamma;
        gamma = nullptr;
    }
    ExitGuard::clear();
    delete network_config_manager;
    DoorThread::close(unix_signals);
    unix_signals = nullptr;
    delete hidden_features;
    delete spell_target;
    delete features_settings;
    delete tick;
    delete curve;
    set_settings_host_source({});
}

void MainWindow::setup_last_words()
{
    ExitGuard::set([this] {
        // The display may already be gone; the backend then fails quietly
        // and only the file goes.
        if (gamma) {
            if (settings[SaveKeys::USE_LOW_LEVEL_COLOR_API].toBool())
                gamma->restore();
            gamma->release_crash_file();
        }
        if (auto* app = qobject_cast<SingleApplication*>(QCoreApplication::instance()))
            app->close_instance_socket();
    });
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

void MainWindow::process_launch(const QByteArray& startup_id)
{
    const quint32 launch_time = startup_id.isEmpty() ? 0 : LaunchFeedback::end_launch(startup_id);
    UserTime::Scope launch(launch_time);
    process_api_command();
}

void MainWindow::quit()
{
    quitting = true;
    save_on_the_way_out();
    QCoreApplication::quit();
}

void MainWindow::save_on_the_way_out()
{
    if (SaveManager::s_instance && SaveManager::s_instance->auto_save_settings())
        SaveManager::s_instance->save_settings();
}

// ---------------------------------------------------------------- timers

void MainWindow::setup_timers()
{
    update_timer = new QTimer(this);
    update_timer->setInterval(1000);
    connect(update_timer, &QTimer::timeout, this, &MainWindow::second_tick);
    update_timer->start();

    fade_timer = new QTimer(this);
    fade_timer->setInterval(10);
    connect(fade_timer, &QTimer::timeout, this, &MainWindow::fade_window);
}

// Everything that happens once a second, in the order the parts rely on.
OVRA_TICK void MainWindow::second_tick()
{
    update_ui();
    update_gamma();
    update_overlay_screen();
    update_idle_time();
    update_smart_brightness();
    update_smart_inversion();
    fix_gamma();
    // The break timer's second is this one: an idle program wakes once.
    if (rest_timer)
        rest_timer->update();
}

void MainWindow::setup_signal_handlers()
{
    unix_signals = new UnixSignals();
    if (!unix_signals->install())
        std::cerr << "Ovra: signals cannot be handled; the ramps come back only on quit" << std::endl;
    DoorThread::take(unix_signals);
    // Every way the program is asked to end leaves through quit(), so that
    // the settings are saved and the destructor gives the displays their
    // ramps back.
    connect(unix_signals, &UnixSignals::termination_requested, this, [this](int) { quit(); });
    // The convention of screen tinters: SIGUSR1 pauses or resumes, with a fade.
    connect(unix_signals, &UnixSignals::pause_toggle_requested, this, &MainWindow::toggle_pause);
    // A session that ends asks for the data first, then quits the program.
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this,
            [this](QSessionManager&) { save_on_the_way_out(); });
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        if (!quitting)
            save_on_the_way_out();
    });
}
