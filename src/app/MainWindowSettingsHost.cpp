// Where the store and the restore push meet the controller. Each hook is a
// call into MainWindow; a hook left empty is a step whose owner is not built
// yet (the updater's about texts).
// reset_timer is wired although its body waits for the break timer, so that
// every restore pass hands the break lengths over once that timer exists.
#include "app/MainWindow.h"
#include "hotkeys/HotkeyProcessor.h"
#include "settings/SaveKeys.h"
#include "settings/SettingsHost.h"
#include "tray/ITrayIcon.h"

SettingsHost main_window_settings_host()
{
    SettingsHost host;
    MainWindow* main_window = Singleton<MainWindow>::s_instance;
    if (!main_window)
        return host;
    host.settings = &main_window->settings;
    host.latitude = &main_window->latitude;
    host.longitude = &main_window->longitude;
    host.ignored_monitors = &main_window->ignored_monitors;
    host.screen_count = [main_window] { return main_window->get_screen_count(); };
    host.reset_timer = [main_window] { main_window->reset_timer(); };

    host.run_state = [main_window] {
        RunState state;
        state.color_changes_paused = main_window->is_color_changes_paused();
        state.ovra_paused = main_window->is_ovra_paused();
        // No rest timer or camera yet: their stored state stands.
        state.timer_paused = main_window->settings[SaveKeys::IS_TIMER_PAUSED].toBool();
        state.camera_active = main_window->settings[SaveKeys::IS_CAMERA_ACTIVE].toBool();
        return state;
    };

    host.restore_saved_settings = [main_window] { main_window->restore_saved_settings(); };
    host.shortcuts_values = [main_window] {
        HotkeyProcessor* hotkeys = main_window->get_hotkey_processor();
        return hotkeys ? hotkeys->get_shortcuts_values() : QVariantList();
    };
    host.unused_pages = [main_window] { return main_window->get_unused_pages(); };
    host.restore_manage_monitors = [main_window] { main_window->restore_manage_monitors(); };
    host.refresh_after_restore = [main_window] {
        if (main_window->is_connected_to_internet())
            main_window->get_geolocation_data();
        main_window->refresh_taskbar_button();
        if (main_window->tray_icon)
            main_window->tray_icon->refresh_tray_icon_actions();
        main_window->refresh_color_scheme();
        main_window->refresh_leading_color();
        main_window->refresh_preserve_gamma();
        main_window->refresh_color_inversion();
    };
    host.refresh_after_lists = [main_window] {
        main_window->show_view_values();
        main_window->refresh_unused_pages();
        main_window->refresh_color_triggers();
    };
    return host;
}
