// The settings only spells reach, and the tray's message that answers them.
// Each is stored by the change rule and applied; no page control shows them,
// so nothing is told to the page.
#include <QMetaObject>

#include "app/MainWindow.h"
#include "settings/ChangeRule.h"
#include "settings/SaveKeys.h"
#include "tray/ITrayIcon.h"

using namespace SaveKeys;

// Compared in the value's own type, as every change handler compares.
template <class T>
void MainWindow::store_spell_setting(const char* key, const T& value, const Apply& apply)
{
    change_setting(settings, QString::fromLatin1(key), value, [&] {
        if (apply)
            apply();
    }, [](const QVariant&) {});
}

void MainWindow::use_hidden_features_notifications_changed(bool value)
{
    store_spell_setting(USE_HIDDEN_FEATURES_NOTIFICATIONS, value);
}

// The tray reads both at its next update, within the second.
void MainWindow::use_spinning_tray_icon_changed(bool value)
{
    store_spell_setting(USE_SPINNING_TRAY_ICON, value);
}

void MainWindow::use_ghost_icon_changed(bool value)
{
    store_spell_setting(USE_GHOST_ICON, value);
}

// Read by the next launch's guard, from the store.
void MainWindow::allow_multiple_instances_changed(bool value)
{
    store_spell_setting(ALLOW_MULTIPLE_INSTANCES, value);
}

// The hotkey service follows the switch; reached by name, since it lives
// in a part of the controller of its own.
void MainWindow::use_keyboard_hook_changed(bool value)
{
    store_spell_setting(USE_KEYBOARD_HOOK, value, [this] {
        reconnect_keyboard_hook();
    });
}

void MainWindow::enable_conflicting_applications_changed(bool value)
{
    store_spell_setting(ENABLE_CONFLICTING_APPLICATIONS, value,
                        [this] { refresh_enable_conflicting_applications(); });
}

void MainWindow::ui_scale_changed(int value)
{
    store_spell_setting(UI_SCALE, value, [this] { refresh_scale(); });
}
