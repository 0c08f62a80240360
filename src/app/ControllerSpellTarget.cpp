#include "app/ControllerSpellTarget.h"

#include <QDesktopServices>
#include <QUrl>

#include "app/MainWindow.h"
#include "settings/ExportSettings.h"
#include "settings/ImportSettings.h"
#include "settings/SaveManager.h"
#include "spells/SpellHelpFile.h"

QVariant ControllerSpellTarget::setting(const char* key) const
{
    const auto found = window->settings.find(QString::fromLatin1(key));
    return found == window->settings.end() ? QVariant() : found->second;
}

void ControllerSpellTarget::show_tray_icon_message(const QString& title, const QString& text)
{
    window->show_tray_icon_message(title, text);
}

// Every setting, whatever AutosaveSettings says.
void ControllerSpellTarget::save_settings()
{
    if (SaveManager::s_instance)
        SaveManager::s_instance->save_settings();
}

void ControllerSpellTarget::open_url(const QString& url)
{
    window->open_url(url);
}

// A local file: open_url takes web addresses only, which a page may ask for.
void ControllerSpellTarget::open_spells_help()
{
    const QString page = SpellHelpFile::write();
    if (!page.isEmpty())
        QDesktopServices::openUrl(QUrl::fromLocalFile(page));
}

void ControllerSpellTarget::bring_to_front()
{
    window->bring_to_front();
}

// ---------------------------------------------------------------- values, monitor 0

void ControllerSpellTarget::day_temperature_changed(int value)
{
    window->day_temperature_changed(value, 0);
}

void ControllerSpellTarget::night_temperature_changed(int value)
{
    window->night_temperature_changed(value, 0);
}

void ControllerSpellTarget::day_brightness_changed(int value)
{
    window->day_brightness_changed(value, 0);
}

void ControllerSpellTarget::night_brightness_changed(int value)
{
    window->night_brightness_changed(value, 0);
}

void ControllerSpellTarget::night_start_time_changed(int hours)
{
    window->night_start_time_changed(hours, 0);
}

void ControllerSpellTarget::night_end_time_changed(int hours)
{
    window->night_end_time_changed(hours, 0);
}

// ---------------------------------------------------------------- switches of the page

void ControllerSpellTarget::use_manual_color_settings_changed(bool value)
{
    window->use_manual_color_settings_changed(value);
}

void ControllerSpellTarget::use_manual_brightness_changed(bool value)
{
    window->use_manual_brightness_changed(value);
}

void ControllerSpellTarget::use_manual_night_duration_changed(bool value)
{
    window->use_manual_night_duration_changed(value);
}

void ControllerSpellTarget::use_manual_location_changed(bool value)
{
    window->use_manual_location_changed(value);
}

void ControllerSpellTarget::latitude_changed(float value)
{
    window->latitude_changed(value);
}

void ControllerSpellTarget::longitude_changed(float value)
{
    window->longitude_changed(value);
}

void ControllerSpellTarget::preserve_gamma_changed(bool value)
{
    window->preserve_gamma_changed(value);
}

void ControllerSpellTarget::use_software_cursor_changed(bool value)
{
    window->use_software_cursor_changed(value);
}

void ControllerSpellTarget::use_gamma_fixer_changed(bool value)
{
    window->use_gamma_fixer_changed(value);
}

void ControllerSpellTarget::start_on_startup_changed(bool value)
{
    window->start_on_startup_changed(value);
}

void ControllerSpellTarget::ignore_monitor_changed(int monitor, bool ignore)
{
    window->ignore_monitor_changed(monitor, ignore);
}

void ControllerSpellTarget::reset_colors()
{
    window->reset_colors();
}

void ControllerSpellTarget::toggle_inverted_gamma()
{
    window->toggle_inverted_gamma();
}

void ControllerSpellTarget::reset_settings_in_store()
{
    if (SaveManager::s_instance)
        SaveManager::s_instance->reset_settings_to_default();
}

// ---------------------------------------------------------------- settings only spells reach

void ControllerSpellTarget::use_hidden_features_notifications_changed(bool value)
{
    window->use_hidden_features_notifications_changed(value);
}

void ControllerSpellTarget::use_spinning_tray_icon_changed(bool value)
{
    window->use_spinning_tray_icon_changed(value);
}

void ControllerSpellTarget::use_ghost_icon_changed(bool value)
{
    window->use_ghost_icon_changed(value);
}

void ControllerSpellTarget::allow_multiple_instances_changed(bool value)
{
    window->allow_multiple_instances_changed(value);
}

void ControllerSpellTarget::use_keyboard_hook_changed(bool value)
{
    window->use_keyboard_hook_changed(value);
}

void ControllerSpellTarget::enable_conflicting_applications_changed(bool value)
{
    window->enable_conflicting_applications_changed(value);
}

void ControllerSpellTarget::ui_scale_changed(int value)
{
    window->ui_scale_changed(value);
}

void ControllerSpellTarget::enable_page(bool enable, const QString& page)
{
    if (enable)
        window->remove_unused_page(page);
    else
        window->add_unused_page(page);
}

// ---------------------------------------------------------------- the exchange format

void ControllerSpellTarget::import_settings()
{
    window->import_settings();
}

void ControllerSpellTarget::export_settings()
{
    window->export_settings();
}

// The word arrives lower-cased, and so do the keys in it: they land in the
// store as keys of their own.
void ControllerSpellTarget::import_settings_from_string(const QString& text)
{
    if (!SaveManager::s_instance)
        return;
    ImportSettings().import_settings_from_string(SaveManager::s_instance->get_settings(), text);
    window->restore_settings();
}

// The word goes into a file too, to be copied from there into a spell.
void ControllerSpellTarget::export_settings_as_string()
{
    if (SaveManager::s_instance)
        ExportSettings().export_settings(SaveManager::s_instance->get_settings(), true);
}
