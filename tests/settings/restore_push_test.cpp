#include <QMetaMethod>
#include <QStringList>

#include "settings/Settings.h"
#include "store_fixture.h"

namespace {

struct Emission
{
    QString name;
    QVariantList arguments;
};

// The push in the order the interface expects it, hooks into the controller
// included, copied from the bridge's description of the restore push.
const QStringList expected_order = QString(
    "set_language_dropdown_value hook:restore_saved_settings set_strictness_value "
    "set_timer_type_dropdown_value set_automatically_close_rest_screen_value set_use_sounds "
    "set_use_manual_color_settings set_use_manual_brightness set_use_sleep_light set_use_color_effects "
    "set_use_manual_location set_use_manual_night_duration set_use_automatic_brightness "
    "set_match_brightness_to_lighting set_use_smart_brightness set_use_smart_inversion "
    "set_use_blink_detection set_check_for_updates set_hide_taskbar_icon set_use_mouse_inactivity "
    "set_use_keyboard_inactivity set_use_keyboard_blocking set_use_software_cursor "
    "set_auto_save_settings set_use_gamma_fixer set_optimize_ui_creation set_use_keyboard_shortcuts "
    "set_destroy_ui_on_close set_use_low_level_color_api set_start_on_startup "
    "set_temperature_extended_values set_brightness_extended_values set_use_inverted_colors "
    "set_use_camera set_use_blink_screen set_postpone_time_value set_work_time_value set_rest_time_value "
    "set_day_transition_duration_value set_night_transition_duration_value "
    "set_sleep_transition_duration_value set_pause_transition_duration_value set_latitude_value "
    "set_longitude_value set_night_start_time_value set_night_end_time_value set_bedtime_value "
    "set_wake_time_value set_updates_interval_value set_use_advanced_settings set_use_color_pausers "
    "set_use_timer_pausers set_use_mouse_pausers set_use_color_triggers set_time_zone_offset_value "
    "set_new_moon_offset_value set_full_moon_offset_value set_color_pausers_pause_on_fullscreen_apps "
    "set_timer_pausers_pause_on_fullscreen_apps set_mouse_pausers_pause_on_fullscreen_apps "
    "set_shortcuts_values set_current_application_name set_current_version set_current_publisher_name "
    "set_current_website set_day_opacity_slider_value set_night_opacity_slider_value "
    "set_day_dim_slider_value set_night_dim_slider_value set_lightness_screen_opacity_slider_value "
    "set_lightness_screen_radius_slider_value set_lightness_screen_x_position_slider_value "
    "set_lightness_screen_y_position_slider_value set_color_effect_dropdown_value "
    "set_color_scheme_dropdown_value set_leading_color_dropdown_value set_overlay_color_dropdown_value "
    "set_mouse_click_interval set_font_type_value set_use_overlay_screen set_use_lightness_screen "
    "set_rest_screen_type_dropdown_value set_active_features set_pwm_frequency_slider_value_ui "
    "set_pwm_max_frequency_value set_pwm_control_update_continuously set_use_pwm_control "
    "set_use_per_monitor_settings hook:restore_manage_monitors set_view hook:refresh_after_restore "
    "set_color_pausers_list set_timer_pausers_list set_mouse_pausers_list set_color_triggers_list "
    "set_websites_for_blocking set_applications_for_blocking hook:refresh_after_lists "
    "settings_restored ")
                                       .split(' ', Qt::SkipEmptyParts);

class RestorePushTest : public StoreFixture
{
protected:
    std::vector<Emission> log;
    Settings push;

    SettingsHost make_host() override
    {
        SettingsHost host = StoreFixture::make_host();
        host.restore_saved_settings = [this] {
            log.push_back({"hook:restore_saved_settings", {}});
            SaveManager::s_instance->restore_settings();
        };
        host.restore_manage_monitors = [this] { log.push_back({"hook:restore_manage_monitors", {}}); };
        host.refresh_after_restore = [this] { log.push_back({"hook:refresh_after_restore", {}}); };
        host.refresh_after_lists = [this] { log.push_back({"hook:refresh_after_lists", {}}); };
        return host;
    }

    void SetUp() override
    {
        StoreFixture::SetUp();
        record_every_signal();
    }

    // Connects each signal of Settings to a recorder, through the meta-object
    // so that a signal missing from the expected list is noticed too.
    void record_every_signal()
    {
        const QMetaObject* meta = push.metaObject();
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            if (method.methodType() != QMetaMethod::Signal)
                continue;
            recorders.push_back(std::make_unique<Recorder>(this, method));
        }
    }

    // One receiver per signal: its qt_metacall gets the raw arguments.
    class Recorder : public QObject
    {
    public:
        Recorder(RestorePushTest* test, const QMetaMethod& signal) : test(test), signal(signal)
        {
            QMetaObject::connect(&test->push, signal.methodIndex(), this,
                                 QObject::staticMetaObject.methodCount() + 0, Qt::DirectConnection);
        }

        int qt_metacall(QMetaObject::Call call, int id, void** arguments) override
        {
            id = QObject::qt_metacall(call, id, arguments);
            if (id < 0 || call != QMetaObject::InvokeMetaMethod)
                return id;
            QVariantList values;
            for (int p = 0; p < signal.parameterCount(); ++p)
                values.append(QVariant(signal.parameterMetaType(p), arguments[p + 1]));
            test->log.push_back({QString::fromLatin1(signal.name()), values});
            return -1;
        }

    private:
        RestorePushTest* test;
        QMetaMethod signal;
    };

    std::vector<std::unique_ptr<Recorder>> recorders;

    QVariantList arguments_of(const QString& name) const
    {
        for (const Emission& emission : log)
            if (emission.name == name)
                return emission.arguments;
        return {QString("<not emitted>")};
    }
};

} // namespace

TEST_F(RestorePushTest, EverySetterInItsOrder)
{
    write_store("[General]\nSaveVersion=3\n");
    open();
    push.restore();

    QStringList names;
    for (const Emission& emission : log)
        names.append(emission.name);
    EXPECT_EQ(names, expected_order);
    // Each signal of the class is part of the push, once.
    EXPECT_EQ(recorders.size(), static_cast<size_t>(expected_order.size() - 4));
}

TEST_F(RestorePushTest, ValuesComeFromTheRestoredMap)
{
    write_store("[General]\nSaveVersion=3\nLanguage=de\nTimerType=3\nUseSounds=false\n"
                "CameraActive=true\nPostponeTime=7\nLatitude=52.520008\nLongitude=-13.4049540\n"
                "NightStartTimeHours=21\nNightStartTimeMinutes=30\nWakeTimeHours=5\n"
                "UpdatesInterval=0\nAdvancedView=true\nIncreaseTemperatureHotkey=Ctrl+Shift+U\n"
                "UnusedPages=Effects, Breaks\nPWMFrequency=240\nColorPausers=gimp\n"
                "WebsitesForBlocking=example.org\nColorTriggers=\"vlc = 6500 120\"\n");
    open();
    push.restore();

    // Coordinates with six significant digits; the rest of the store's
    // defaults where the file says nothing.
    const std::pair<const char*, QVariantList> expected[] = {
        {"set_language_dropdown_value", {"de"}},     {"set_strictness_value", {3}},
        {"set_timer_type_dropdown_value", {3}},      {"set_use_sounds", {false}},
        {"set_use_camera", {true}},                  {"set_auto_save_settings", {true}},
        {"set_postpone_time_value", {7}},            {"set_work_time_value", {20}},
        {"set_pause_transition_duration_value", {1000}}, {"set_latitude_value", {"52.52"}},
        {"set_longitude_value", {"-13.405"}},        {"set_night_start_time_value", {21, 30}},
        {"set_wake_time_value", {5, 0}},             {"set_updates_interval_value", {false}},
        {"set_use_advanced_settings", {true}},       {"set_view", {true}},
        {"set_overlay_color_dropdown_value", {9}},   {"set_pwm_frequency_slider_value_ui", {240}},
        {"set_current_application_name", {"Ovra"}}, {"set_current_publisher_name", {"Morvenik"}},
        {"set_color_pausers_list", {"gimp"}},        {"set_timer_pausers_list", {"QuickTime\nKMPlayer\nvlc\nbsplayer"}},
        {"set_color_triggers_list", {"vlc = 6500 120"}}, {"set_websites_for_blocking", {"example.org"}},
        {"set_applications_for_blocking", {""}},
    };
    for (const auto& [name, arguments] : expected)
        EXPECT_EQ(arguments_of(name), arguments) << name;

    const QVariantList active_features = arguments_of("set_active_features");
    ASSERT_EQ(active_features.size(), 1);
    EXPECT_EQ(active_features[0].toStringList(), (QStringList{"Effects", "Breaks"}));
    const QVariantList shortcuts = arguments_of("set_shortcuts_values");
    ASSERT_EQ(shortcuts.size(), 1);
    const QVariantList texts = shortcuts[0].toList();
    ASSERT_EQ(texts.size(), 15);
    EXPECT_EQ(texts[0].toString(), "");
    EXPECT_EQ(texts[1].toString(), "Ctrl+Shift+U");
    EXPECT_EQ(texts[2].toString(), "Ctrl+Alt+Down");
    EXPECT_EQ(texts[10].toString(), "Ctrl+Alt+Enter");
    EXPECT_EQ(texts[14].toString(), "Ctrl+Alt+-");

    // Any interval but zero is sent as true.
    write_store("[General]\nSaveVersion=3\nUpdatesInterval=24\n");
    open();
    log.clear();
    push.restore();
    EXPECT_EQ(arguments_of("set_updates_interval_value"), QVariantList{true});
}
