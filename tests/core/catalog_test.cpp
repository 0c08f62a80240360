// The page's catalogue on the controller, reached by name as the web channel
// reaches it: the change rule of the switch and number families, the lists,
// the monitors, the hidden pages, the reset and the restore push's relay.
#include <gtest/gtest.h>

#include <QMetaMethod>
#include <QSignalSpy>

#include "ControllerFixture.h"
#include "settings/FeaturesSettings.h"
#include "settings/Settings.h"
#include "web/UiScale.h"

namespace {

using namespace controller_test;

struct Row
{
    const char* slot;
    const char* key;
    const char* signal;
    const char* shadow = nullptr;
};

const Row switches[] = {
    {"pwm_control_update_continuously_changed", "UpdateContinuously", "set_pwm_control_update_continuously"},
    {"use_pwm_control_changed", "UsePWMControl", "set_use_pwm_control"},
    {"automatically_close_rest_screen_changed", "AutoCloseRest", "set_automatically_close_rest_screen_value"},
    {"use_camera_changed", "CameraActive", "set_use_camera"},
    {"use_color_pausers_changed", "UseColorPausers", "set_use_color_pausers"},
    {"color_pausers_pause_on_fullscreen_apps_changed", "ColorPausersPauseOnFullscreenApps", "set_color_pausers_pause_on_fullscreen_apps"},
    {"use_timer_pausers_changed", "UseTimerPausers", "set_use_timer_pausers"},
    {"timer_pausers_pause_on_fullscreen_apps_changed", "TimerPausersPauseOnFullscreenApps", "set_timer_pausers_pause_on_fullscreen_apps"},
    {"use_mouse_pausers_changed", "UseMousePausers", "set_use_mouse_pausers"},
    {"mouse_pausers_pause_on_fullscreen_apps_changed", "MousePausersPauseOnFullscreenApps", "set_mouse_pausers_pause_on_fullscreen_apps"},
    {"use_color_triggers_changed", "UseColorTriggers", "set_use_color_triggers"},
    {"use_sounds_changed", "UseSounds", "set_use_sounds"},
    {"use_color_effects_changed", "UseColorEffects", "set_use_color_effects", "AdvancedUseColorEffects"},
    {"use_manual_night_duration_changed", "UseManualNightDuration", "set_use_manual_night_duration"},
    {"use_automatic_brightness_changed", "UseAutomaticBrightness", "set_use_automatic_brightness"},
    {"match_brightness_to_lighting_changed", "MatchBrightnessToLighting", "set_match_brightness_to_lighting"},
    {"use_smart_brightness_changed", "SmartBrightness", "set_use_smart_brightness"},
    {"use_smart_inversion_changed", "SmartInversion", "set_use_smart_inversion"},
    {"use_blink_detection_changed", "UseBlinkDetection", "set_use_blink_detection"},
    {"check_for_updates_changed", "CheckForUpdates", "set_check_for_updates"},
    {"hide_taskbar_icon_changed", "HideTaskbarIcon", "set_hide_taskbar_icon"},
    {"use_mouse_inactivity_changed", "UseMouseInactivity", "set_use_mouse_inactivity"},
    {"use_keyboard_inactivity_changed", "UseKeyboardInactivity", "set_use_keyboard_inactivity"},
    {"use_keyboard_blocking_changed", "UseKeyboardBlocking", "set_use_keyboard_blocking"},
    {"use_software_cursor_changed", "UseSoftwareCursor", "set_use_software_cursor"},
    {"auto_save_settings_changed", "AutosaveSettings", "set_auto_save_settings"},
    {"use_gamma_fixer_changed", "UseGammaFixer", "set_use_gamma_fixer"},
    {"optimize_ui_creation_changed", "OptimizeUiCreation", "set_optimize_ui_creation"},
    {"use_keyboard_shortcuts_changed", "UseKeyboardShortcuts", "set_use_keyboard_shortcuts"},
    {"destroy_ui_on_close_changed", "DestroyUiOnClose", "set_destroy_ui_on_close"},
    {"use_low_level_color_api_changed", "UseLowLevelColorApi", "set_use_low_level_color_api"},
    {"start_on_startup_changed", "StartOnStartup", "set_start_on_startup"},
    {"use_sleep_light_changed", "UseSleepLight", "set_use_sleep_light", "AdvancedUseSleepLight"},
};

const Row numbers[] = {
    {"pwm_frequency_changed", "PWMFrequency", "set_pwm_frequency_slider_value_ui"},
    {"pwm_max_frequency_changed", "PWMMaxFrequency", "set_pwm_max_frequency_value"},
    {"work_time_changed", "WorkTime", "set_work_time_value"},
    {"rest_time_changed", "RestTime", "set_rest_time_value"},
    {"postpone_time_changed", "PostponeTime", "set_postpone_time_value"},
    {"mouse_click_interval_changed", "MouseClickInterval", "set_mouse_click_interval"},
    {"color_effect_changed", "ColorEffect", "set_color_effect_dropdown_value", "AdvancedColorEffect"},
    {"rest_screen_type_changed", "RestScreenType", "set_rest_screen_type_dropdown_value"},
    {"overlay_color_changed", "OverlayScreenColor", "set_overlay_color_dropdown_value"},
    {"font_type_changed", "FontType", "set_font_type_value"},
    {"day_opacity_changed", "DayOpacity", "set_day_opacity_slider_value", "AdvancedDayOpacity"},
    {"night_opacity_changed", "NightOpacity", "set_night_opacity_slider_value", "AdvancedNightOpacity"},
    {"day_dim_changed", "DayDim", "set_day_dim_slider_value", "AdvancedDayDim"},
    {"night_dim_changed", "NightDim", "set_night_dim_slider_value", "AdvancedNightDim"},
    {"lightness_screen_opacity_changed", "LightnessScreenOpacity", "set_lightness_screen_opacity_slider_value", "AdvancedLightnessScreenOpacity"},
    {"lightness_screen_radius_changed", "LightnessScreenRadius", "set_lightness_screen_radius_slider_value", "AdvancedLightnessScreenRadius"},
    {"lightness_screen_x_position_changed", "LightnessScreenXPosition", "set_lightness_screen_x_position_slider_value", "AdvancedLightnessScreenXposition"},
    {"lightness_screen_y_position_changed", "LightnessScreenYPosition", "set_lightness_screen_y_position_slider_value", "AdvancedLightnessScreenYPosition"},
    {"pause_transition_duration_changed", "PauseTransitionDuration", "set_pause_transition_duration_value"},
};

class Catalog : public ControllerTest
{
protected:
    // Calls the slot twice with a value other than the stored one, as the
    // page and then its echo would, and checks the rule's four steps.
    template <class T>
    void check_rule(const Row& row, const char* type, T value)
    {
        SCOPED_TRACE(row.slot);
        QSignalSpy spy(window.get(), QByteArray("2") + row.signal + "(" + type + ")");
        ASSERT_TRUE(spy.isValid());
        for (int call = 0; call < 2; ++call)
            ASSERT_TRUE(QMetaObject::invokeMethod(window.get(), row.slot, Qt::DirectConnection,
                                                  QArgument<T>(type, value)));
        EXPECT_EQ(stored(row.key).value<T>(), value);
        if (row.shadow) {
            EXPECT_EQ(stored(row.shadow).value<T>(), value);
        }
        ASSERT_EQ(spy.count(), 1);
        EXPECT_EQ(spy.at(0).at(0).value<T>(), value);
    }

    QSettings store() const
    {
        return QSettings(QCoreApplication::organizationName(), SaveManager::store_application_name());
    }

    QStringList unused_pages() { return QVariant(window->get_unused_pages()).toStringList(); }
};

TEST_F(Catalog, SwitchesFollowTheChangeRule)
{
    start();
    for (const Row& row : switches)
        check_rule<bool>(row, "bool", !stored(row.key).toBool());
}

TEST_F(Catalog, NumbersFollowTheChangeRule)
{
    start();
    for (const Row& row : numbers)
        check_rule<int>(row, "int", stored(row.key).toInt() + 7);
}

TEST_F(Catalog, ListsAreKeptSilentlyAndWrittenWithTheNextSave)
{
    const Row lists[] = {
        {"save_color_pausers", "ColorPausers", "set_color_pausers_list"},
        {"save_timer_pausers", "TimerPausers", "set_timer_pausers_list"},
        {"save_mouse_pausers", "MousePausers", "set_mouse_pausers_list"},
        {"save_color_triggers", "ColorTriggers", "set_color_triggers_list"},
        {"save_websites_for_blocking", "WebsitesForBlocking", "set_websites_for_blocking"},
        {"save_applications_for_blocking", "ApplicationsForBlocking", "set_applications_for_blocking"},
    };
    start();
    for (const Row& row : lists) {
        SCOPED_TRACE(row.slot);
        const QString text = QString("%1\nsecond line").arg(row.key);
        QSignalSpy spy(window.get(), QByteArray("2") + row.signal + "(QString)");
        ASSERT_TRUE(QMetaObject::invokeMethod(window.get(), row.slot, Qt::DirectConnection,
                                              Q_ARG(QString, text)));
        EXPECT_EQ(stored(row.key).toString(), text);
        EXPECT_EQ(spy.count(), 0);
        EXPECT_FALSE(store().contains(row.key)) << "written before the save";
    }
    save_manager->save_settings();
    for (const Row& row : lists)
        EXPECT_EQ(store().value(row.key).toString(), QString("%1\nsecond line").arg(row.key));
}

TEST_F(Catalog, AnIgnoredMonitorIsListedOnceAndShownToThePage)
{
    MainWindow::screen_count_override = 3;
    start();
    QSignalSpy count(window.get(), &MainWindow::set_screen_count);
    QSignalSpy ignored(window.get(), &MainWindow::ignore_monitor);

    window->ignore_monitor_changed(2, true);
    window->ignore_monitor_changed(2, true);
    EXPECT_EQ(window->ignored_monitors, std::vector<int>({2}));
    ASSERT_EQ(count.count(), 1);
    EXPECT_EQ(count.at(0).at(0).toInt(), 3);
    ASSERT_EQ(ignored.count(), 1);
    EXPECT_EQ(ignored.at(0).at(0).toInt(), 2);

    window->ignore_monitor_changed(2, false);
    window->ignore_monitor_changed(2, false);
    EXPECT_TRUE(window->ignored_monitors.empty());
    EXPECT_EQ(count.count(), 2);
    EXPECT_EQ(ignored.count(), 1);
}

TEST_F(Catalog, HiddenPagesAddExactlyRemoveAnyCaseAndAreSaved)
{
    start();
    const QStringList defaults = QVariant(FeaturesSettings::default_unused_pages()).toStringList();
    EXPECT_EQ(unused_pages(), defaults);
    QSignalSpy refresh(window.get(), &MainWindow::refresh_unused_pages_signal);

    window->add_unused_page("cpu");
    window->add_unused_page("cpu");
    EXPECT_EQ(unused_pages(), defaults + QStringList{"cpu"});
    window->remove_unused_page("Cpu");
    EXPECT_FALSE(unused_pages().contains("CPU", Qt::CaseInsensitive));
    EXPECT_EQ(refresh.count(), 3);

    save_manager->save_settings();
    EXPECT_EQ(store().value("UnusedPages").toStringList(), unused_pages());
}

TEST_F(Catalog, ResetBringsTheDefaultsBackAndPushesThem)
{
    store_values["WorkTime"] = 45;
    start();
    window->add_unused_page("Effects");
    QSignalSpy work_time(window.get(), &MainWindow::set_work_time_value);
    QSignalSpy restored(window.get(), &MainWindow::settings_restored);

    window->reset_settings_to_default();
    EXPECT_EQ(stored("WorkTime").toInt(), 20);
    EXPECT_FALSE(store().contains("WorkTime"));
    EXPECT_FALSE(unused_pages().contains("Effects"));
    ASSERT_GE(work_time.count(), 1);
    EXPECT_EQ(work_time.last().at(0).toInt(), 20);
    EXPECT_EQ(restored.count(), 1);
}

TEST_F(Catalog, EveryPushedSignalReachesThePageLastOfAllSettingsRestored)
{
    start();
    Settings push;
    const QMetaObject* meta = push.metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        const QByteArray signature = meta->method(i).methodSignature();
        if (meta->method(i).methodType() == QMetaMethod::Signal) {
            EXPECT_GE(window->metaObject()->indexOfSignal(signature.constData()), 0) << signature.constData();
        }
    }

    QStringList order;
    QObject::connect(window.get(), &MainWindow::set_applications_for_blocking,
                     [&] { order << "lists"; });
    QObject::connect(window.get(), &MainWindow::settings_restored, [&] { order << "restored"; });
    window->restore_settings();
    EXPECT_EQ(order, QStringList({"lists", "restored"}));
}

TEST_F(Catalog, ShortcutsAreStoredUnderTheKeyOfTheirIndex)
{
    start();
    window->shortcut_changed(3, "Ctrl+Shift+B");
    EXPECT_EQ(stored("IncreaseBrightnessHotkey").toString(), "Ctrl+Shift+B");
    window->shortcut_changed(14, "Ctrl+Shift+Z");
    EXPECT_EQ(stored("ZoomOutHotkey").toString(), "Ctrl+Shift+Z");
    const auto keys_before = window->settings.size();
    window->shortcut_changed(0, "Ctrl+Q");
    window->shortcut_changed(15, "Ctrl+Q");
    EXPECT_EQ(window->settings.size(), keys_before);
}

TEST(UiScaleRule, TheSettingDecidesElseTheWiderSideOfThePrimaryScreen)
{
    const struct
    {
        int ui_scale;
        QRect screen;
        bool double_scale;
    } rows[] = {
        {0, QRect(0, 0, 2000, 1200), false}, {0, QRect(0, 0, 2001, 1200), true},
        {0, QRect(0, 0, 1200, 2001), true},  {0, QRect(100, 0, 2000, 1200), false},
        {7, QRect(0, 0, 3840, 2160), true},  {1, QRect(0, 0, 3840, 2160), false},
        {2, QRect(0, 0, 800, 600), true},
    };
    for (const auto& row : rows)
        EXPECT_EQ(UiScale::is_double_scale(row.ui_scale, row.screen), row.double_scale)
            << row.ui_scale << " " << row.screen.width() << "x" << row.screen.height();
}

TEST_F(Catalog, TheStoredScaleAnswersThePage)
{
    store_values["UiScale"] = 2;
    start();
    EXPECT_TRUE(window->is_retina_display());
    window->settings["UiScale"] = 1;
    EXPECT_FALSE(window->is_retina_display());
}

} // namespace
