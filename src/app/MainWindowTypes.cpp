// Types and modes, and the switch between the basic and the advanced view.
// The tables live in src/policy; these slots run them against the map and
// move the display to the result with the one-second fade.
#include <QDebug>

#include "app/MainWindow.h"
#include "breaks/IRestTimer.h"
#include "tray/ITrayIcon.h"
#include "policy/AdvancedShadows.h"
#include "policy/OvraModes.h"
#include "policy/OvraTypes.h"
#include "settings/ChangeRule.h"
#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"

namespace {
QString key_of(const char* key)
{
    return QString::fromLatin1(key);
}
} // namespace

// ---------------------------------------------------------------- types

void MainWindow::ovra_type_changed(int type)
{
    qDebug() << "OVRA_TYPE: " << type;
    const int old_type = settings[key_of(SaveKeys::OVRA_TYPE)].toInt();
    change_setting_force(
        settings, key_of(SaveKeys::OVRA_TYPE), type, [&] { apply_type(type, old_type); },
        [&](const QVariant& stored) { emit set_ovra_type_dropdown_value_ui(stored.toInt()); });
}

void MainWindow::ovra_type_changed_force(int type, bool force)
{
    if (force || type != settings[key_of(SaveKeys::OVRA_TYPE)].toInt())
        ovra_type_changed(type);
}

void MainWindow::apply_type(int type, int old_type)
{
    for (const OvraTypes::KeyValue& base : OvraTypes::base_values())
        settings[key_of(base.key)] = base.value;
    settings[key_of(SaveKeys::IS_COLOR_CHANGES_PAUSED)] = false;

    for (const TypeStep& step : OvraTypes::steps(type)) {
        switch (step.kind) {
        case TypeStep::Kind::Write:
            settings[key_of(step.key)] = step.value;
            break;
        case TypeStep::Kind::RevertColors:
            revert_colors();
            break;
        case TypeStep::Kind::InvertColors:
            invert_colors();
            break;
        case TypeStep::Kind::OverlayScreen:
            settings[key_of(step.key)] = step.value;
            use_overlay_screen_changed(step.value.toBool());
            break;
        case TypeStep::Kind::LightnessScreen:
            settings[key_of(step.key)] = step.value;
            use_lightness_screen_changed(step.value.toBool());
            break;
        }
    }

    move_to_interpolated();
    if (type != old_type && tray_icon)
        tray_icon->refresh_selected_type();
}

// Fades from where the display stands to this moment's values of the first
// monitor, then lets the tick and the screens catch up.
void MainWindow::move_to_interpolated()
{
    const int brightness = static_cast<int>(get_interpolated_brightness(0));
    const int temperature = static_cast<int>(get_interpolated_color_temperature(0));
    move_to(temperature, brightness);
    refresh_high_level_colors();
    refresh_overlay_screens(false);
    update_ui();
}

// ---------------------------------------------------------------- modes

void MainWindow::ovra_mode_changed(int mode)
{
    qDebug() << "OVRA_MODE: " << mode;
    const int old_mode = settings[key_of(SaveKeys::OVRA_MODE)].toInt();
    change_setting_force(
        settings, key_of(SaveKeys::OVRA_MODE), mode, [&] { apply_mode(mode, old_mode); },
        [&](const QVariant& stored) { emit set_ovra_mode_dropdown_value_ui(stored.toInt()); });
}

void MainWindow::ovra_mode_changed_force(int mode, bool force)
{
    if (force || mode != settings[key_of(SaveKeys::OVRA_MODE)].toInt())
        ovra_mode_changed(mode);
}

void MainWindow::apply_mode(int mode, int old_mode)
{
    switch (mode) {
    case OvraModes::AUTOMATIC:
        settings[key_of(SaveKeys::USE_MANUAL_COLOR_SETTINGS)] = false;
        settings[key_of(SaveKeys::USE_MANUAL_BRIGHTNESS)] = false;
        pause_ovra(false);
        break;
    case OvraModes::MANUAL:
        settings[key_of(SaveKeys::USE_MANUAL_COLOR_SETTINGS)] = true;
        settings[key_of(SaveKeys::USE_MANUAL_BRIGHTNESS)] = true;
        pause_ovra(false);
        break;
    case OvraModes::PAUSED:
        pause_ovra(true);
        break;
    default:
        break;
    }
    move_to_interpolated();
    if (mode != old_mode && tray_icon)
        tray_icon->refresh_selected_mode();
}

void MainWindow::change_mode()
{
    ovra_mode_changed_force(OvraModes::next_mode(settings[key_of(SaveKeys::OVRA_MODE)].toInt()),
                            false);
}

// ---------------------------------------------------------------- views

void MainWindow::use_advanced_settings_changed(bool is_advanced_view)
{
    use_advanced_settings_changed(is_advanced_view, 0, 0);
}

void MainWindow::use_advanced_settings_changed(bool is_advanced_view, int width)
{
    use_advanced_settings_changed(is_advanced_view, width, 0);
}

void MainWindow::use_advanced_settings_changed(bool is_advanced_view, int width, int height)
{
    const QString key = key_of(SaveKeys::USE_ADVANCED_SETTINGS);
    const bool was_advanced = settings[key].toBool();
    if (width >= 1 && height > 0)
        refresh_size(width, height);
    // Applied every time: the page sends it again when it loads a view.
    change_setting_force(
        settings, key, is_advanced_view,
        [&] {
            if (settings[key].toBool()) {
                settings[key_of(SaveKeys::IS_COLOR_CHANGES_PAUSED)] = false;
                AdvancedShadows::copy_into_view(settings);
                restore_advanced_settings_values();
            } else {
                // The page answers with the _force slots, which bring the
                // basic values of the mode and the type back.
                emit set_ovra_mode_dropdown_value(settings[key_of(SaveKeys::OVRA_MODE)].toInt());
                emit set_ovra_type_dropdown_value(settings[key_of(SaveKeys::OVRA_TYPE)].toInt());
            }
            if (SaveManager::s_instance)
                SaveManager::s_instance->save_current_view();
            update_gamma();
            update_ui();
            refresh_overlay_screens(true);
            refresh_lightness_screens(true);
        },
        [&](const QVariant& stored) {
            if (stored.toBool() != was_advanced)
                emit set_use_advanced_settings(stored.toBool());
        });
}

// ---------------------------------------------------------------- break timer

void MainWindow::timer_type_changed(int value)
{
    change_setting(
        settings, key_of(SaveKeys::TIMER_TYPE), value,
        [&] {
            const int stored = settings[key_of(SaveKeys::TIMER_TYPE)].toInt();
            if (rest_timer)
                rest_timer->set_timer_type(stored);
            // Type 1 is the timer switched off.
            settings[key_of(SaveKeys::IS_TIMER_PAUSED)] = value == 1;
            refresh_taskbar_button();
            if (tray_icon)
                tray_icon->refresh_tray_icon_actions();
            if (SaveManager::s_instance)
                SaveManager::s_instance->save_tray_icon();
            reset_timer();
            update_ui();
        },
        [&](const QVariant& stored) {
            emit set_timer_type_dropdown_value(stored.toInt());
            emit set_strictness_value(stored.toInt());
        });
}
