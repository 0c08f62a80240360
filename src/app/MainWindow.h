#pragma once

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QString>
#include <QTimer>
#include <QVariant>
#include <functional>
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
class ControllerSpellTarget;
class FeaturesSettings;
class ColorTick;
class IGamma;
class GammaFactory;
class HiddenFeatures;
class HotkeyProcessor;
class IColorTriggers;
class IdleTime;
class IRestTimer;
class NewVersionNotification;
class IScreenOverlays;
class ITrayIcon;
struct TrayHost;
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
    WindowOptions settings_window_options() const;
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
    void show_known_location();
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
    // The mode, the type and the values of the view, for a page that has
    // just been given the settings.
    void show_view_values();

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

    // The restore push ----------------------------------------------------------
    // Settings pushes every stored value through signals of its own; the page
    // sees only this object, so the constructor relays each of them to its
    // namesake here, once (MainWindowRelay.cpp). The push's signals that
    // the change handlers above also send are declared with them.
signals:
    void set_automatically_close_rest_screen_value(bool value);
    void set_use_sounds(bool value);
    void set_use_manual_night_duration(bool value);
    void set_use_automatic_brightness(bool value);
    void set_match_brightness_to_lighting(bool value);
    void set_use_smart_brightness(bool value);
    void set_use_smart_inversion(bool value);
    void set_use_blink_detection(bool value);
    void set_check_for_updates(bool value);
    void set_hide_taskbar_icon(bool value);
    void set_use_mouse_inactivity(bool value);
    void set_use_keyboard_inactivity(bool value);
    void set_use_keyboard_blocking(bool value);
    void set_use_software_cursor(bool value);
    void set_auto_save_settings(bool value);
    void set_use_gamma_fixer(bool value);
    void set_optimize_ui_creation(bool value);
    void set_use_keyboard_shortcuts(bool value);
    void set_destroy_ui_on_close(bool value);
    void set_use_low_level_color_api(bool value);
    void set_start_on_startup(bool value);
    void set_use_inverted_colors(bool value);
    void set_use_camera(bool value);
    void set_use_blink_screen(bool value);
    void set_postpone_time_value(int value);
    void set_work_time_value(int value);
    void set_rest_time_value(int value);
    // Sent "interval != 0": the page's box for it is never loaded.
    void set_updates_interval_value(bool value);
    void set_use_color_pausers(bool value);
    void set_use_timer_pausers(bool value);
    void set_use_mouse_pausers(bool value);
    void set_use_color_triggers(bool value);
    void set_color_pausers_pause_on_fullscreen_apps(bool value);
    void set_timer_pausers_pause_on_fullscreen_apps(bool value);
    void set_mouse_pausers_pause_on_fullscreen_apps(bool value);
    void set_shortcuts_values(QVariantList value);
    void set_current_application_name(QString value);
    void set_current_version(QString value);
    void set_current_publisher_name(QString value);
    void set_current_website(QString value);
    void set_overlay_color_dropdown_value(int value);
    void set_mouse_click_interval(int value);
    void set_font_type_value(int value);
    void set_rest_screen_type_dropdown_value(int value);
    void set_active_features(QVariantList value);
    void set_pwm_frequency_slider_value_ui(int value);
    void set_pwm_max_frequency_value(int value);
    void set_pwm_control_update_continuously(bool value);
    void set_use_pwm_control(bool value);
    // The page has no handler for it; kept for the order of the push.
    void set_view(bool value);
    void set_color_pausers_list(QString value);
    void set_timer_pausers_list(QString value);
    void set_mouse_pausers_list(QString value);
    void set_color_triggers_list(QString value);
    void set_websites_for_blocking(QString value);
    void set_applications_for_blocking(QString value);

private:
    void relay_settings_signals();
    // End of The restore push -------------------------------------------------

    // On and off, and plain numbers -----------------------------------------------
    // One change-rule call each, with what the change sets off
    // (MainWindowSwitches.cpp, MainWindowNumbers.cpp; the two helpers in
    // MainWindowChangeRule.cpp).
public slots:
    void pwm_control_update_continuously_changed(bool value);
    void use_pwm_control_changed(bool value);
    void automatically_close_rest_screen_changed(bool value);
    void use_camera_changed(bool value);
    void use_color_pausers_changed(bool checked);
    void color_pausers_pause_on_fullscreen_apps_changed(bool value);
    void use_timer_pausers_changed(bool checked);
    void timer_pausers_pause_on_fullscreen_apps_changed(bool value);
    void use_mouse_pausers_changed(bool checked);
    void mouse_pausers_pause_on_fullscreen_apps_changed(bool value);
    void use_color_triggers_changed(bool checked);
    void use_sounds_changed(bool value);
    void use_color_effects_changed(bool value);
    void use_manual_night_duration_changed(bool value);
    void use_automatic_brightness_changed(bool value);
    void match_brightness_to_lighting_changed(bool value);
    void use_smart_brightness_changed(bool value);
    void use_smart_inversion_changed(bool value);
    void use_blink_detection_changed(bool value);
    void check_for_updates_changed(bool value);
    void hide_taskbar_icon_changed(bool value);
    void use_mouse_inactivity_changed(bool value);
    void use_keyboard_inactivity_changed(bool value);
    void use_keyboard_blocking_changed(bool value);
    void use_software_cursor_changed(bool value);
    void auto_save_settings_changed(bool value);
    void use_gamma_fixer_changed(bool value);
    void optimize_ui_creation_changed(bool value);
    void use_keyboard_shortcuts_changed(bool value);
    void destroy_ui_on_close_changed(bool value);
    void use_low_level_color_api_changed(bool value);
    void start_on_startup_changed(bool value);

    void pwm_frequency_changed(int value);
    void pwm_max_frequency_changed(int value);
    void work_time_changed(int value);
    void rest_time_changed(int value);
    void postpone_time_changed(int value);
    void updates_interval_changed(int value);
    void mouse_click_interval_changed(int value);
    void color_effect_changed(int value);
    void rest_screen_type_changed(int value);
    void overlay_color_changed(int value);
    void font_type_changed(int value);
    void day_opacity_changed(int value);
    void night_opacity_changed(int value);
    void day_dim_changed(int value);
    void night_dim_changed(int value);
    void lightness_screen_opacity_changed(int value);
    void lightness_screen_radius_changed(int value);
    void lightness_screen_x_position_changed(int value);
    void lightness_screen_y_position_changed(int value);

signals:
    // The slider's own form; the push and the change send the _ui form.
    void set_pwm_frequency_slider_value(int value);

private:
    using Apply = std::function<void()>;
    void store_setting(const char* key, bool value, SwitchSignal signal, const Apply& apply = {});
    void store_setting(const char* key, int value, ValueSignal signal, const Apply& apply = {});
    // Keeps the value in force also as what the advanced view set.
    void keep_in_shadow(const char* key, const char* shadow);
    void store_overlay_value(const char* key, const char* shadow, int value, ValueSignal signal);
    void store_lightness_value(const char* key, const char* shadow, int value, ValueSignal signal);
    // End of On and off, and plain numbers -----------------------------------

    // Lists and the application in front ------------------------------------------
    // The page sends a whole list whenever the user edits it; it is kept in
    // the map and written with the next save. Bodies in MainWindowLists.cpp.
public slots:
    void save_color_pausers(QString color_pausers);
    void save_timer_pausers(QString timer_pausers);
    void save_mouse_pausers(QString mouse_pausers);
    void save_color_triggers(QString color_triggers);
    void save_websites_for_blocking(QString websites);
    void save_applications_for_blocking(QString applications);
    void set_current_active_process(QString process_name);
    void set_current_color_trigger(QString process_name);
    void refresh_color_triggers();

signals:
    // Ask the page for the text of a list. The lists now reach the native
    // side on every edit, so nothing needs to send these before a save.
    void save_color_pausers_signal();
    void save_timer_pausers_signal();
    void save_mouse_pausers_signal();
    void save_color_triggers_signal();
    void save_websites_for_blocking_signal();
    void save_applications_for_blocking_signal();
    void set_current_active_process_signal(QString process_name);

private:
    void store_list(const char* key, const QString& text);
    void refresh_pausers();

    QString current_active_process;
    QString current_color_trigger;
    // End of Lists and the application in front ------------------------------

    // What the page asks ------------------------------------------------------
    // Values the page pulls, and the list of hidden pages. Bodies in
    // MainWindowPageQueries.cpp.
public slots:
    QVariantList get_unused_pages();
    void clean_unused_pages();
    void add_unused_page(QString page);
    void remove_unused_page(QString page);
    void refresh_unused_pages();
    QString get_os_name();
    QString get_application_name();
    bool is_retina_display();
    void refresh_scale();

signals:
    void refresh_unused_pages_signal();
    void refresh_ui_scale();

private:
    FeaturesSettings* features_settings = nullptr;
    // End of What the page asks -----------------------------------------------

    // The page's actions -----------------------------------------------------------
    // Buttons and commands of the page, the monitors left untinted and the
    // shortcut recorder. Bodies in MainWindowPageActions.cpp and
    // MainWindowMonitors.cpp.
public slots:
    void start_rest();
    void start_eye_exercises();
    void start_neck_exercises();
    void start_back_exercises();
    void show_blink_screen();
    void hide_blink_screen();
    void start_mouse_clicking();
    void stop_mouse_clicking();
    void select_overlay_screen_area();
    void reset_selected_overlay_screen_area();
    void open_url(QString url);
    void open_version_link();
    void open_website_link();
    void open_welcome_link();
    void activate_hidden_feature(QString hidden_feature);
    void reset_settings_to_default();
    void import_settings();
    void export_settings();
    void zoom_in();
    void zoom_out();
    void start_web_view_debugger();
    void start_debug_console();

    void ignore_monitor_changed(int monitor, bool ignore);
    void restore_manage_monitors();
    void shortcut_changed(int feature_index, QString new_shortcut);

signals:
    void set_screen_count(int value);
    void ignore_monitor(int value);
    // End of The page's actions -----------------------------------------------

    // Breaks ------------------------------------------------------------------------
    // The work and rest timer and what stops it: the user's pause, watched
    // applications and a user away from the machine; the exercises and the
    // new-version prompt. Bodies in MainWindowBreaks.cpp and
    // MainWindowSubsystems.cpp; the timer and its windows in src/breaks.
public slots:
    void create_new_rest_timer();
    void delete_rest_timer();
    void toggle_rest_timer(bool stop);
    void stop_rest_timer();
    void start_rest_timer();
    void pause_rest_timer(bool checked);
    void automatic_timer_pause(bool checked);
    bool is_timer_paused();
    void new_version_available(QString version);
    void delete_new_version_notification();

private:
    void refresh_rest_screen_type();
    IdleTime* idle_time = nullptr;
    NewVersionNotification* new_version_notification = nullptr;
    // End of Breaks -----------------------------------------------------------------

    // Hotkeys -------------------------------------------------------------------
    // The fourteen global key combinations and their actions. Bodies in
    // MainWindowHotkeys.cpp; the grabs and the actions' rules in src/hotkeys.
public slots:
    // The combinations are grabbed while UseKeyboardShortcuts is on.
    void reconnect_keyboard_hook();

public:
    HotkeyProcessor* get_hotkey_processor() const { return hotkey_processor; }

private:
    void setup_hotkeys();

    HotkeyProcessor* hotkey_processor = nullptr;
    // End of Hotkeys ------------------------------------------------------------

    // Signals sent by subsystems still to come ------------------------------------
    // Declared now so that the page's subscriptions find them: the status
    // line and the break countdown (the tick with the rest timer), the blink
    // counter (camera), hardware dimming, translation and spells.
signals:
    void open_advanced_view();
    void set_timer_message(QString value);
    void set_remaining_time(QString value, QString value2, QString value3);
    void set_blink_count(int value);
    void set_ovra_status(QString value);
    void set_pwm_control_status(bool status, int value);
    // No page listens to these two.
    void brightness_change(int value);
    void screen_image(QString img);

    // The tray ------------------------------------------------------------------
    // The icon in the notification area: its backend, and the hooks its menu
    // and its icon reach the controller through. Bodies in MainWindowTray.cpp;
    // the backends in src/tray and, for Unity, the plugin in src/trayplugin.
public slots:
    bool is_ovra_loaded();
    void show_tray_icon_message(QString title, QString text);
    void show_tray_icon_context_menu();

private:
    void setup_tray_icon();
    TrayHost tray_host();
    bool tray_colors_changing();
    // The values the tray saw last, to tell whether the colours move.
    int tray_seen_temperature = -1;
    int tray_seen_brightness = -1;
    // End of The tray -----------------------------------------------------------

    // Spells and the status texts -----------------------------------------------
    // The spell interpreter's road into the controller (ControllerSpellTarget),
    // the settings that only spells reach, and what the page and the tray show
    // of the running state once a second. Bodies in MainWindowSpells.cpp and
    // MainWindowStatus.cpp; the interpreter and its table in src/spells.
public slots:
    // The process watcher has no body on this platform: nothing reads the flag.
    void refresh_enable_conflicting_applications() {}

public:
    // Stored by the change rule; the page has no control to move.
    void use_hidden_features_notifications_changed(bool value);
    void use_spinning_tray_icon_changed(bool value);
    void use_ghost_icon_changed(bool value);
    void allow_multiple_instances_changed(bool value);
    void use_keyboard_hook_changed(bool value);
    void enable_conflicting_applications_changed(bool value);
    void ui_scale_changed(int value);

private:
    QString status_values();
    // The status line's words, translated once per language rather than
    // every second.
    void translate_status_words();
    struct StatusWords
    {
        QString until, work, rest, paused;
    } status_words;
    // The shared values' text, rebuilt only when they change.
    struct
    {
        int temperature = -1;
        int brightness = -1;
        QString text;
    } shared_status;
    // The status to the page, the icon to the tray; values already worked
    // out this second may be passed in.
    void publish_status(const QString* known_values);
    template <class T>
    void store_spell_setting(const char* key, const T& value, const Apply& apply = {});

    ControllerSpellTarget* spell_target = nullptr;
    // Set while a watched application keeps the work timer stopped.
    bool timer_auto_paused = false;
    SettingRef timer_paused_setting{settings, SaveKeys::IS_TIMER_PAUSED};
    SettingRef use_sounds_setting{settings, SaveKeys::USE_SOUNDS};
    SettingRef use_per_monitor_setting{settings, SaveKeys::USE_PER_MONITOR_SETTINGS};
    SettingRef use_mouse_inactivity_setting{settings, SaveKeys::USE_MOUSE_INACTIVITY};
    SettingRef use_keyboard_inactivity_setting{settings, SaveKeys::USE_KEYBOARD_INACTIVITY};
    // End of Spells and the status texts ---------------------------------------

    // Launches ------------------------------------------------------------------
    // A launch's words come with its startup notification ID: the launcher's
    // feedback ends, and a window the words open comes forward with the
    // launch's time as the user's. Not a slot: the page has no launch to give.
public:
    void process_launch(const QByteArray& startup_id);

private:
    // The user's time of the open that waits for the page to load.
    quint32 open_user_time = 0;
    // End of Launches -----------------------------------------------------------
};
