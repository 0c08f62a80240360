#pragma once

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QString>
#include <QTimer>
#include <QVariant>
#include <map>
#include <vector>

#include "base/Singleton.h"
#include "settings/SaveKeys.h"
#include "settings/SettingRef.h"
#include "color/ColorFades.h"
#include "policy/BrightnessConfigManager.h"
#include "policy/TemperatureConfigManager.h"
#include "web/OvraWindow.h"

class ColorCurve;
class ColorTick;
class IGamma;
class GammaFactory;
class HiddenFeatures;
class IColorTriggers;
class IRestTimer;
class IScreenOverlays;
class ITrayIcon;
class OnlineState;
struct SolarInterpolationValues;
struct ClockInterpolationValues;
class Settings;
class Translator;
class UnixSignals;
struct ColorSettings;

// The central controller and the settings window. It owns the settings map
// and the subsystem objects; its slots are the catalogue that the page,
// hotkeys, spells and the tray call.
class MainWindow : public OvraWindow, public Singleton<MainWindow>
{
    Q_OBJECT

public:
    explicit MainWindow(QObject* parent = nullptr);
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
    const FadeRecord& fade_state(int which) const;

    // The subsystems the controller calls; each stays null until it exists,
    // and the controller then behaves as the program does without it.
    IRestTimer* rest_timer = nullptr;
    ITrayIcon* tray_icon = nullptr;
    IScreenOverlays* overlays = nullptr;
    IColorTriggers* color_triggers = nullptr;

    // Tests put a factory of their own here before the controller is built,
    // to put a recording backend in place of the display.
    static GammaFactory* gamma_factory_override;
    // Tests that need several monitors set the count here; -1 asks Qt.
    static int screen_count_override;

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
    void minimize_window();

signals:
    // Once a restore push has reached the page: its model is ready.
    void settings_restored();
    void enable_all_gamma_options();

public:
    // The settings page's window as the host reports it.
    void page_close_requested() override;
    void page_escape_pressed() override;
    void page_gone() override;
    void page_connected(bool in_host) override;
    // The size the page last asked for; invalid before it asked.
    QSize settings_window_size() const { return window_size; }
    // Also offers the settings page to any browser on this machine.
    bool offer_settings_to_browsers(quint16 port);

public slots:

    // The tick.
    int update_gamma();
    void update_ui();
    void update_overlay_screen();
    void update_idle_time();
    void update_smart_brightness() {}
    void update_smart_inversion() {}
    void reset_blinks() {}
    void refresh_taskbar_button() {}
    void fix_gamma();
    void refresh_color_fixer();
    void refresh_color_effects();
    void refresh_high_level_colors();
    float get_interpolated_color_temperature(int monitor);
    float get_interpolated_brightness(int monitor);
    int get_transition_type();
    bool is_gamma_paused();
    bool is_ovra_paused();
    bool is_color_changes_paused();
    bool is_day();
    int get_screen_count();
    int get_day_temperature(int monitor);
    int get_night_temperature(int monitor);
    int get_sleep_temperature(int monitor);
    int get_day_brightness(int monitor);
    int get_night_brightness(int monitor);
    int get_sleep_brightness(int monitor);

    // Pause, resume and the fades.
    void pause_ovra(bool paused);
    void toggle_pause();
    void pause_color_changes(bool paused);
    void process_restore_colors();
    void process_return_colors();
    void restore_colors();
    void return_colors();
    void restore_colors_with_switch_state();
    void return_colors_with_switch_state();
    void switch_state();
    void switch_state_return();
    void restore_colors_timeout();
    void return_colors_timeout();
    void switch_state_timeout();
    void switch_state_return_timeout();
    void move_to(int temperature, int brightness);
    void invert_colors();
    void revert_colors();
    void toggle_inverted_gamma();
    void refresh_color_inversion();
    bool use_inverted_colors();

    // Change handlers of the colour engine's own settings
    // (MainWindowColorSlots.cpp).
    void color_scheme_changed(int value);
    void leading_color_changed(int value);
    void preserve_gamma_changed(bool value);
    void pause_transition_duration_changed(int value);

    // Display backend housekeeping.
    void create_new_gamma();
    void reset_gamma();
    void reset_colors();
    void restore_gamma();
    void refresh_color_scheme();
    void refresh_leading_color();
    void refresh_preserve_gamma();

private:
    void set_window_opacity(double) {}
    WindowSpec settings_window_spec() const;
    // The one-shot flags of the load belong to one page: a new page, in
    // the host or a browser, gets the whole sequence again.
    void forget_page();
    void setup_timers();
    void second_tick();
    void setup_signal_handlers();
    void setup_last_words();
    // The save of every way out, when the user keeps auto-save on.
    void save_on_the_way_out();
    void setup_ovra_icon();
    bool create_ovra_ui();
    void check_for_first_start();
    void setup_color_engine();
    int set_temperature(ColorSettings* color_settings, int monitor);
    bool uses_solar_curve();
    void fill_solar_interpolation_values(SolarInterpolationValues* values);
    void fill_clock_interpolation_values(ClockInterpolationValues* values);

    // Screen-content brightness and hardware PWM have no helpers on this
    // platform: nothing to add and nothing to follow.
    int smart_brightness_modifier() { return 0; }
    void update_pwm_control_status() {}
    // The tray's actions and the overlays follow a pause.
    void refresh_pause_dependents();
    void start_rest_timer();
    void stop_rest_timer();

    QNetworkAccessManager* network_manager = nullptr;
    IGamma* gamma = nullptr;
    HiddenFeatures* hidden_features = nullptr;
    Settings* app_settings = nullptr;
    UnixSignals* unix_signals = nullptr;

    // One timer a second drives the tick, the smart updates and the fixer
    // together, so that an idle program wakes once a second.
    QTimer* update_timer = nullptr;
    QTimer* fade_timer = nullptr;
    ColorCurve* curve = nullptr;
    ColorFades* fades = nullptr;
    ColorTick* tick = nullptr;

    float window_fade = 0.0f;
    bool window_showing = true;
    bool idle_paused = false;
    int idle_seconds = 0;
    bool ovra_loaded = false;
    bool window_opened_once = false;
    bool open_after_load = false;
    bool first_start = false;
    bool page_in_host = true;
    QSize window_size;
    // Keeps a settings page hidden by a close warm for a while, then ends it.
    QTimer* page_warm_timer = nullptr;
    bool fix_gamma_requested = false;
    bool quitting = false;
    // Read by the tick every second.
    SettingRef ovra_paused_setting{settings, SaveKeys::IS_OVRA_PAUSED};
    SettingRef color_changes_paused_setting{settings, SaveKeys::IS_COLOR_CHANGES_PAUSED};
    bool color_changes_auto_paused = false;
    QString applied_color_trigger;

    // Location ----------------------------------------------------------------
    // Where the user is, by IP or by hand; the network set-up; the user's
    // curve files. Bodies in MainWindowLocation.cpp.
public slots:
    bool is_connected_to_internet();
    void connected_to_internet(bool) {}
    void get_geolocation_data();
    void update_location(QNetworkReply* reply);
    void save_location_data(float latitude_value, float longitude_value);
    double get_latitude();
    double get_longitude();
    void latitude_changed(float value);
    void longitude_changed(float value);
    void use_manual_location_changed(bool value);
    // The times report of the status part (MainWindowTimesInfo.cpp).
    void update_times_info();

signals:
    void find_geolocation();
    void set_geolocation_string(QString geolocation);
    void set_latitude_value(QString latitude_text);
    void set_longitude_value(QString longitude_text);
    void set_use_manual_location(bool value);

private:
    void setup_network_config_manager();
    void setup_system_proxy();
    void process_curve_files();

    OnlineState* network_config_manager = nullptr;
    BrightnessConfigManager brightness_config;
    TemperatureConfigManager temperature_config;
    // End of Location ---------------------------------------------------------

    // Types, modes and colour values --------------------------------------------
    // The nine types and three modes, the advanced view switch, the six
    // colour values per monitor with their switches, durations, offsets and
    // time pairs, and the times report. Bodies in MainWindowTypes.cpp,
    // MainWindowValues.cpp and MainWindowTimesInfo.cpp; the tables in
    // src/policy (OvraTypes, OvraModes, AdvancedShadows, ValueGiveWay).
public slots:
    void ovra_type_changed(int type);
    void ovra_type_changed_force(int type, bool force);
    void ovra_mode_changed(int mode);
    void ovra_mode_changed_force(int mode, bool force);
    void change_mode();
    void use_advanced_settings_changed(bool is_advanced_view, int width, int height);
    void use_advanced_settings_changed(bool is_advanced_view, int width);
    void use_advanced_settings_changed(bool is_advanced_view);
    void timer_type_changed(int value);

    void day_temperature_changed(int value, int monitor);
    void night_temperature_changed(int value, int monitor);
    void sleep_light_changed(int value, int monitor);
    void day_brightness_changed(int value, int monitor);
    void night_brightness_changed(int value, int monitor);
    void sleep_brightness_changed(int value, int monitor);
    void auto_brightness_changed(int value);

    void use_manual_color_settings_changed(bool value);
    void use_manual_brightness_changed(bool value);
    void use_sleep_light_changed(bool value);
    void use_per_monitor_settings_changed(bool value);
    void temperature_extended_values_changed(bool value);
    void brightness_extended_values_changed(bool value);
    void day_transition_duration_changed(int value);
    void night_transition_duration_changed(int value);
    void sleep_transition_duration_changed(int value);
    void time_zone_offset_changed(int value);
    void new_moon_offset_changed(int value);
    void full_moon_offset_changed(int value);
    void night_start_time_changed(int hours, int minutes);
    void night_end_time_changed(int hours, int minutes);
    void bedtime_changed(int hours, int minutes);
    void wake_time_changed(int hours, int minutes);

    void current_active_monitor_changed(int monitor);
    void restore_advanced_settings_values();

    QString get_transition_times_info_string();
    void update_transition_times_info();
    void update_moon_phases_info();

    // Calls into the subsystems (MainWindowSubsystems.cpp).
    void update_ovra_status();
    void refresh_overlay_screens(bool force);
    void refresh_lightness_screens(bool force);
    void use_overlay_screen_changed(bool value);
    void use_lightness_screen_changed(bool value);
    void reset_timer();

signals:
    void set_ovra_type_dropdown_value_ui(int value);
    void set_ovra_mode_dropdown_value_ui(int value);
    // The page answers these two by calling the _force slot with force true.
    void set_ovra_type_dropdown_value(int value);
    void set_ovra_mode_dropdown_value(int value);
    void set_use_advanced_settings(bool value);
    void set_timer_type_dropdown_value(int value);
    void set_strictness_value(int value);

    void set_day_temperature_slider_value(int value);
    void set_day_temperature_slider_value_ui(int value);
    void set_night_temperature_slider_value(int value);
    void set_night_temperature_slider_value_ui(int value);
    void set_sleep_light_slider_value(int value);
    void set_sleep_light_slider_value_ui(int value);
    void set_day_brightness_slider_value(int value);
    void set_day_brightness_slider_value_ui(int value);
    void set_night_brightness_slider_value(int value);
    void set_night_brightness_slider_value_ui(int value);
    void set_sleep_brightness_slider_value(int value);
    void set_sleep_brightness_slider_value_ui(int value);

    void set_use_manual_color_settings(bool value);
    void set_use_manual_brightness(bool value);
    void set_use_sleep_light(bool value);
    void set_use_per_monitor_settings(bool value);
    void set_temperature_extended_values(bool value);
    void set_brightness_extended_values(bool value);
    void set_day_transition_duration_value(int value);
    void set_night_transition_duration_value(int value);
    void set_sleep_transition_duration_value(int value);
    void set_time_zone_offset_value(int value);
    void set_new_moon_offset_value(int value);
    void set_full_moon_offset_value(int value);
    void set_night_start_time_value(int hours, int minutes);
    void set_night_end_time_value(int hours, int minutes);
    void set_bedtime_value(int hours, int minutes);
    void set_wake_time_value(int hours, int minutes);

    void set_use_color_effects(bool value);
    void set_color_effect_dropdown_value(int value);
    void set_use_overlay_screen(bool value);
    void set_day_opacity_slider_value(int value);
    void set_night_opacity_slider_value(int value);
    void set_day_dim_slider_value(int value);
    void set_night_dim_slider_value(int value);
    void set_use_lightness_screen(bool value);
    void set_lightness_screen_opacity_slider_value(int value);
    void set_lightness_screen_radius_slider_value(int value);
    void set_lightness_screen_x_position_slider_value(int value);
    void set_lightness_screen_y_position_slider_value(int value);

    void set_color_scheme_dropdown_value(int value);
    void set_leading_color_dropdown_value(int value);
    void set_preserve_gamma(bool value);
    void set_pause_transition_duration_value(int value);

    void set_transition_times_info(QString value);
    void set_moon_phases_info(QString value);

private:
    using ValueSignal = void (MainWindow::*)(int);
    using PairSignal = void (MainWindow::*)(int, int);
    using SwitchSignal = void (MainWindow::*)(bool);
    void apply_type(int type, int old_type);
    void apply_mode(int mode, int old_mode);
    void move_to_interpolated();
    void change_temperature_value(const char* temperature_key, const char* brightness_key,
                                  int value, int monitor, ValueSignal temperature_ui,
                                  ValueSignal brightness_ui);
    void change_brightness_value(const char* temperature_key, const char* brightness_key,
                                 int value, int monitor, ValueSignal temperature_ui,
                                 ValueSignal brightness_ui);
    void change_switch(const char* key, const char* shadow, bool value, bool update,
                       SwitchSignal signal);
    void change_curve_number(const char* key, int value, ValueSignal signal);
    void change_time_pair(const char* hours_key, const char* minutes_key, int hours,
                          int minutes, PairSignal signal);

    // End of Types, modes and colour values ----------------------------------

    // Language ------------------------------------------------------------------
    // The translator, the language setting and the page's strings. Bodies in
    // MainWindowLanguage.cpp; the tables are translations/ovra_<code>.ts.
public slots:
    QString GET_STRING(QString translation_string);
    QString get_language_code();
    void language_changed(QString country_code);
    void language_changed_force(QString country_code, bool force);
    // The page's answer to a location lookup; the place picks the language
    // once, at first start.
    void localize_ovra(QString country_name, QString country_code);

public:
    Translator* get_translator();

signals:
    // The page translates its texts again.
    void translate();
    void set_language_dropdown_value(QString value);

private:
    Translator* translator = nullptr;
    // End of Language -----------------------------------------------------------
};
