#pragma once

#include <QNetworkAccessManager>
#include <QString>
#include <QTimer>
#include <QVariant>
#include <map>
#include <vector>

#include "Singleton.h"
#include "web/OvraWindow.h"

class IGamma;
class HiddenFeatures;
class Settings;
class UnixSignals;
struct ColorSettings;

// One of the four colour fades: a timer and where the fade stands.
struct FadeRecord
{
    QTimer* timer = nullptr;
    bool active = false;
    float temperature = 6500.0f;
    float brightness = 100.0f;
    float temperature_step = 0.0f;
    float brightness_step = 0.0f;
};

// The central controller and the settings window. It owns the settings map
// and the subsystem objects; its slots are the catalogue that the page,
// hotkeys, spells and the tray call.
class MainWindow : public OvraWindow, public Singleton<MainWindow>
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    std::map<QString, QVariant> settings;

    int current_temperature = 6500;
    int current_brightness = 100;
    double latitude = -1.0;
    double longitude = -1.0;
    std::vector<int> ignored_monitors;
    int screen_count = 1;
    int current_monitor = 0;

    IGamma* gamma_backend() const { return gamma; }
    bool is_window_ui_created() const { return ui_created; }

public slots:
    // Life of the window.
    void process_api_command();
    void set_open_ovra_after_load_finished(bool value);
    void open_ovra_after_load_finished();
    void load_finished();
    void load_finished_linux();
    void bring_to_front();
    void close_clicked();
    void save_and_close_clicked();
    void close_window();
    void minimize_clicked();
    void quit();
    void begin_showing();
    void begin_hiding();
    void fade_window();
    void restore_saved_settings();
    void restore_settings();
    void refresh_size(int width, int height);
    void resize_window(int width, int height);
    void set_gamma_ui();
    void force_refresh() {}
    void application_state_changed(Qt::ApplicationState state);

    // The tick.
    int update_gamma();
    void update_ui();
    void update_overlay_screen() {}
    void update_idle_time();
    void update_smart_brightness() {}
    void update_smart_inversion() {}
    void reset_blinks() {}
    void refresh_taskbar_button() {}
    void fix_gamma();

    // Display backend housekeeping.
    void create_new_gamma();
    void restore_gamma();
    void refresh_color_scheme();
    void refresh_leading_color();
    void refresh_preserve_gamma();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool nativeEvent(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    void setup_window_properties();
    void setup_window_attributes() {}
    void set_window_opacity(double) {}
    void setup_timers();
    void setup_gamma_timers();
    void setup_signal_handlers();
    void setup_ovra_icon();
    bool create_ovra_ui();
    void check_for_first_start();
    int set_temperature(ColorSettings* color_settings, int monitor);
    // What the tick writes until the day curves take over.
    static void fixed_tint(int* temperature, int* brightness_percent);

    QNetworkAccessManager* network_manager = nullptr;
    IGamma* gamma = nullptr;
    HiddenFeatures* hidden_features = nullptr;
    Settings* app_settings = nullptr;
    UnixSignals* unix_signals = nullptr;

    QTimer* update_timer = nullptr;
    QTimer* smart_timer = nullptr;
    QTimer* minute_timer = nullptr;
    QTimer* fixer_timer = nullptr;
    QTimer* fade_timer = nullptr;
    FadeRecord restore_fade;
    FadeRecord return_fade;
    FadeRecord switch_fade;
    FadeRecord switch_return_fade;

    float window_fade = 0.0f;
    bool window_showing = true;
    bool idle_paused = false;
    int idle_seconds = 0;
    bool ovra_loaded = false;
    bool first_update_done = false;
    bool window_opened_once = false;
    bool open_after_load = false;
    bool first_start = false;
    bool ui_created = false;
    bool fix_gamma_requested = false;
    int last_temperature = -1;
    float last_brightness = -1.0f;
    int last_color_effect = -1;
};
