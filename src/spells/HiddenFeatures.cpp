#include "spells/HiddenFeatures.h"

#include <QChar>
#include <QDebug>
#include <iostream>

#include "settings/SaveKeys.h"
#include "spells/ISpellTarget.h"
#include "spells/Tokenizer.h"

namespace {

QString number(int value)
{
    return QString::number(value);
}

} // namespace

HiddenFeatures::HiddenFeatures(ISpellTarget* target, QObject* parent)
    : QObject(parent), target(target)
{}

bool HiddenFeatures::activate_hidden_feature(const std::string& hidden_feature)
{
    const Tokenizer words(hidden_feature, false);
    const SpellRow* found = nullptr;
    for (const SpellRow& row : spell_table()) {
        for (const char* form : row.forms)
            if (form && words.match(form))
                found = &row;
        if (found)
            break;
    }
    if (found)
        run(*found, words, hidden_feature);
    else
        report_invalid_spell(hidden_feature);
    // Whatever came of it, the store ends up holding every setting.
    target->save_settings();
    return found != nullptr;
}

void HiddenFeatures::show_hidden_features_notification(const QString& title, const QString& text)
{
    if (target->setting(SaveKeys::USE_HIDDEN_FEATURES_NOTIFICATIONS).toBool())
        target->show_tray_icon_message(title, text);
}

void HiddenFeatures::report_invalid_spell(const std::string& hidden_feature)
{
    const QString spell = QString::fromStdString(hidden_feature);
    qDebug() << tr("Invalid spell:") << spell;
    show_hidden_features_notification(
        tr("Invalid spell"),
        tr("The spell") + " \"" + spell + "\"" +
            tr(" seems wrong. Check the syntax or try with some other hidden feature.") + "\n" +
            tr("Use \"help\" to see the list of all hidden features :)"));
}

// A value is the spell's last word, a switch its first.
void HiddenFeatures::run(const SpellRow& row, const Tokenizer& words,
                         const std::string& hidden_feature)
{
    const int last = words.size() - 1;
    const bool enable = words.Bool(0);
    switch (row.spell) {
    case Spell::Help: target->open_spells_help(); break;
    case Spell::Open: target->bring_to_front(); break;
    // Without a qualifier a value means the night.
    case Spell::SetTemperature:
    case Spell::SetNightTemperature: process_set_night_temperature_feature(words.Int(last)); break;
    case Spell::SetDayTemperature: process_set_day_temperature_feature(words.Int(last)); break;
    case Spell::SetBrightness:
    case Spell::SetNightBrightness: process_set_night_brightness_feature(words.Int(last)); break;
    case Spell::SetDayBrightness: process_set_day_brightness_feature(words.Int(last)); break;
    case Spell::UseGammaFixer: process_use_gamma_fixer(enable); break;
    case Spell::StartAtStartup: process_start_at_startup(enable); break;
    case Spell::UseSpinningTrayIcon: process_use_spinning_tray_icon(enable); break;
    case Spell::UseManualTemperature: process_use_manual_temperature(enable); break;
    case Spell::UseManualBrightness: process_use_manual_brightness(enable); break;
    // "enable monitor 2" takes monitor 2 back in.
    case Spell::EnableMonitor: process_ignore_monitor_changed(words.Int(last), !enable); break;
    case Spell::ResetColors: process_reset_colors(); break;
    case Spell::ResetSettings: process_reset_settings(); break;
    case Spell::InvertColors: process_invert_colors(); break;
    case Spell::ZeroBlueLight: process_zero_blue_light(); break;
    case Spell::PreserveGamma: process_preserve_gamma(enable); break;
    case Spell::UseHiddenFeaturesNotifications:
        process_use_hidden_features_notifications(enable);
        break;
    case Spell::UseManualLocation: process_use_manual_location(enable); break;
    case Spell::SetLatitude: process_latitude(words.Float(last)); break;
    case Spell::SetLongitude: process_longitude(words.Float(last)); break;
    case Spell::UseSoftwareCursor:
        if (enable)
            process_use_software_cursor();
        else
            process_use_hardware_cursor();
        break;
    case Spell::UseManualNightDuration: process_use_manual_night_duration(enable); break;
    case Spell::SetNightStartTime: process_set_night_start_time(words.Int(last)); break;
    case Spell::SetNightEndTime: process_set_night_end_time(words.Int(last)); break;
    case Spell::EnableConflictingApplications:
        process_enable_conflicting_applications(enable);
        break;
    case Spell::EnablePage:
        process_enable_page(enable, QString::fromStdString(words.String(2)));
        break;
    case Spell::EnablePageOfTwoWords:
        process_enable_page(enable,
                            QString::fromStdString(words.String(2) + ' ' + words.String(3)));
        break;
    case Spell::UseGhostIcon: target->use_ghost_icon_changed(enable); break;
    case Spell::AllowMultipleInstances: target->allow_multiple_instances_changed(enable); break;
    case Spell::UseKeyboardHook: process_enable_keyboard_hook(enable); break;
    case Spell::Import: target->import_settings(); break;
    // The word arrives lower-cased, as every spell does.
    case Spell::ImportString:
        target->import_settings_from_string(QString::fromStdString(words.String(1)));
        break;
    case Spell::Export: target->export_settings(); break;
    case Spell::ExportString: target->export_settings_as_string(); break;
    case Spell::SetUiScale: process_set_ui_scale(words.Int(last)); break;
    case Spell::TestTrigger: std::cout << "trigger: " << hidden_feature << std::endl; break;
    // Accepted, and nothing beyond the closing save.
    case Spell::UseHiddenFeatures:
    case Spell::UseCalibrationAtStartup:
    case Spell::CreateShortcutsAutomatically:
    case Spell::UseInvertedIcons:
    case Spell::Deadpoll: break;
    case Spell::FixedPage: target->open_url(QString::fromLatin1(row.address)); break;
    }
}

void HiddenFeatures::notify_switch(bool enable, const QString& on_title, const QString& on_text,
                                   const QString& off_title, const QString& off_text)
{
    if (enable)
        show_hidden_features_notification(on_title, on_text);
    else
        show_hidden_features_notification(off_title, off_text);
}

// ---------------------------------------------------------------- colours

void HiddenFeatures::process_reset_colors()
{
    target->reset_colors();
    show_hidden_features_notification(tr("Reset colors"),
                                      tr("Screen colors are reset to default values"));
}

// The store only: the closing save writes the running values back into the
// emptied file. A full reset is the page's button.
void HiddenFeatures::process_reset_settings()
{
    target->reset_settings_in_store();
    show_hidden_features_notification(tr("Reset settings"),
                                      tr("Ovra settings are reset to default values"));
}

// A second cast inverts back; the text stays the same.
void HiddenFeatures::process_invert_colors()
{
    target->toggle_inverted_gamma();
    show_hidden_features_notification(tr("Invert"), tr("Colors are inverted"));
}

void HiddenFeatures::process_zero_blue_light()
{
    target->day_temperature_changed(0);
    target->night_temperature_changed(0);
    show_hidden_features_notification(tr("Zero blue light"),
                                      tr("All blue light is removed from the screen"));
}

void HiddenFeatures::process_preserve_gamma(bool enable)
{
    target->preserve_gamma_changed(enable);
    notify_switch(
        enable, tr("Gamma preservation enabled"),
        tr("Ovra will respect your color calibration from now on. Close and start Ovra mini "
           "again and it will preserve your colors during the day"),
        tr("Gamma preservation disabled"),
        tr("Ovra will not respect your color calibration from now on. It will use the "
           "default monitor settings instead"));
}

// The cursor spells tell first, then act.
void HiddenFeatures::process_use_software_cursor()
{
    show_hidden_features_notification(
        tr("Software cursor enabled"),
        tr("Color changes will apply also on the cursor. If it starts to dissappear use disable "
           "software cursor to make it bright again."));
    target->use_software_cursor_changed(true);
}

void HiddenFeatures::process_use_hardware_cursor()
{
    show_hidden_features_notification(
        tr("Hardware cursor enabled"),
        tr("Color changes will not apply on the cursor. If you don't like the bright blue cursor "
           "at night use enable software cursor to make apply color changes on the cursor."));
    target->use_software_cursor_changed(false);
}

void HiddenFeatures::process_set_ui_scale(int scale)
{
    target->ui_scale_changed(scale);
}

void HiddenFeatures::process_use_gamma_fixer(bool enable)
{
    target->use_gamma_fixer_changed(enable);
    target->save_settings();
    notify_switch(
        enable, tr("Gamma fixer enabled"),
        tr("Gamma fixer is enabled. If notice slight color changing every second disable "
           "the Gamma fixer again. Gamma fixer is used, because Windows decides to ignore "
           "Ovra mini changes from time to time."),
        tr("Gamma fixer disabled"),
        tr("Gamma fixer is disabled. If your screen suddenly becomes bright enable it "
           "again or click the Ovra mini icon several times. Both should force Ovra to "
           "change the screen colors."));
}

void HiddenFeatures::process_ignore_monitor_changed(int monitor, bool ignore)
{
    target->ignore_monitor_changed(monitor, ignore);
    if (ignore)
        show_hidden_features_notification(tr("Monitor") + " " + number(monitor) + tr(" disabled"),
                                          tr("Ovra will not apply color changes to Monitor") + " " +
                                              number(monitor));
    else
        show_hidden_features_notification(tr("Monitor") + " " + number(monitor) + tr(" enabled"),
                                          tr("Ovra will apply color changes to Monitor") + " " +
                                              number(monitor));
}

// ---------------------------------------------------------------- modes and place

void HiddenFeatures::process_use_manual_night_duration(bool enable)
{
    target->use_manual_night_duration_changed(enable);
    notify_switch(enable, tr("Manual night duration enabled"),
                  tr("Ovra mini will use manual night duration. Set start and end time with the "
                     "hidden features"),
                  tr("Manual night duration disabled"),
                  tr("Ovra mini will use automatic night duration based on location. The location "
                     "is used for calculating Sun position and day and night duration"));
}

void HiddenFeatures::process_use_manual_location(bool enable)
{
    target->use_manual_location_changed(enable);
    notify_switch(enable, tr("Manual location enabled"),
                  tr("Ovra mini will use your manual location. Set latitude and longitude with the "
                     "hidden features"),
                  tr("Manual location disabled"),
                  tr("Ovra mini will use automatic location. The location is used for calculating "
                     "Sun position and day and night duration"));
}

void HiddenFeatures::process_use_manual_brightness(bool enable)
{
    target->use_manual_brightness_changed(enable);
    notify_switch(enable, tr("Manual brightness enabled"),
                  tr("You are now using Ovra mini Mixed mode"), tr("Manual brightness disabled"),
                  tr("Ovra mini will use your selected mode for brightness again"));
}

void HiddenFeatures::process_use_manual_temperature(bool enable)
{
    target->use_manual_color_settings_changed(enable);
    notify_switch(enable, tr("Manual temperature enabled"), tr("You are now using Ovra Mixed mode"),
                  tr("Manual temperature disabled"),
                  tr("Ovra will use your selected mode for temperature again"));
}

// The value is not checked: any number of degrees is taken.
void HiddenFeatures::process_latitude(float value)
{
    target->latitude_changed(value);
    show_hidden_features_notification(tr("Latitude changed"), tr("Latitude changed to") + " " +
                                                                  QString::number(value) +
                                                                  QChar(0x00B0));
}

void HiddenFeatures::process_longitude(float value)
{
    target->longitude_changed(value);
    show_hidden_features_notification(tr("Longitude changed"), tr("Longitude changed to") + " " +
                                                                   QString::number(value) +
                                                                   QChar(0x00B0));
}

// ---------------------------------------------------------------- the program

void HiddenFeatures::process_start_at_startup(bool enable)
{
    target->start_on_startup_changed(enable);
    notify_switch(enable, tr("Start at startup enabled"),
                  tr("Ovra mini will start when you turn ON your computer"),
                  tr("Start at startup disabled"),
                  tr("Ovra mini will not start when you turn ON your computer"));
}

// Told first, then switched: the enabling message shows only when messages
// were on already, and the disabling one is the last.
void HiddenFeatures::process_use_hidden_features_notifications(bool enable)
{
    notify_switch(enable, tr("Notifications enabled"),
                  tr("Hidden features notifications are enabled. They are show so you will know "
                     "when your spell is successful"),
                  tr("Notifications disabled"),
                  tr("Hidden features notifications are disabled. This is the last notification "
                     "that you will see"));
    target->use_hidden_features_notifications_changed(enable);
}

void HiddenFeatures::process_use_spinning_tray_icon(bool enable)
{
    target->use_spinning_tray_icon_changed(enable);
    notify_switch(enable, tr("Tray icon rotation is enabled"),
                  tr("The tray icon will rotate when Ovra is changing screen colors. This is used "
                     "to show when Ovra mini is changing colors and your screen is not calibrated"),
                  tr("Tray icon rotation is disabled"),
                  tr("The tray icon will not rotate when Ovra is changing screen colors. This "
                     "feature is used to show when Ovra mini is changing colors and your screen is "
                     "not calibrated"));
}

void HiddenFeatures::process_enable_keyboard_hook(bool enable)
{
    target->use_keyboard_hook_changed(enable);
    notify_switch(
        enable, tr("Keyboard Hook enabled"),
        tr("Keyboard Hook enabled. You can now use system-wide shortcuts."),
        tr("Keyboard Hook disabled"),
        tr("Keyboard Hook disabled. Some shortcuts and features may not work as intended"));
}

void HiddenFeatures::process_enable_conflicting_applications(bool enable)
{
    target->enable_conflicting_applications_changed(enable);
    notify_switch(enable, tr("Conflicting applications enabled"),
                  tr("Conflicting applications are enabled. You can now use other softwares which "
                     "change the screen colors."),
                  tr("Conflicting applications disabled"),
                  tr("Conflicting applications are disabled. In order to not cause flicker "
                     "conflicting applications are disabled."));
}

void HiddenFeatures::process_enable_page(bool enable, const QString& page)
{
    target->enable_page(enable, page);
}

// ---------------------------------------------------------------- values

bool HiddenFeatures::value_in_range(int value, unsigned low, unsigned high,
                                    const QString& debug_line, const QString& title,
                                    const QString& text)
{
    const unsigned as_unsigned = static_cast<unsigned>(value);
    if (as_unsigned >= low && as_unsigned <= high)
        return true;
    qDebug() << debug_line << value;
    show_hidden_features_notification(title, number(value) + " " + text);
    return false;
}

void HiddenFeatures::process_set_day_temperature_feature(int value)
{
    if (!value_in_range(
            value, 0, 10000, tr("Invalid value for temperature:"), tr("Invalid temperature"),
            tr("is invalid value for Color temperature. Use number between 0 and 10000.")))
        return;
    target->day_temperature_changed(value);
    show_hidden_features_notification(
        tr("Temperature changed"), tr("Color temperature changed to") + " " + number(value) + "K");
}

void HiddenFeatures::process_set_night_temperature_feature(int value)
{
    if (!value_in_range(
            value, 0, 10000, tr("Invalid value for temperature:"), tr("Invalid temperature"),
            tr("is invalid value for Color temperature. Use number between 0 and 10000.")))
        return;
    target->night_temperature_changed(value);
    show_hidden_features_notification(
        tr("Temperature changed"), tr("Color temperature changed to") + " " + number(value) + "K");
}

void HiddenFeatures::process_set_day_brightness_feature(int value)
{
    if (!value_in_range(value, 10, 100, tr("Invalid value for brightness:"),
                        tr("Invalid brightness"),
                        tr("is invalid value for Brightness. Use number between 10 and 100.")))
        return;
    target->day_brightness_changed(value);
    show_hidden_features_notification(tr("Brightness changed"),
                                      tr("Brightness changed to") + " " + number(value) + "%");
}

void HiddenFeatures::process_set_night_brightness_feature(int value)
{
    if (!value_in_range(value, 10, 100, tr("Invalid value for brightness:"),
                        tr("Invalid brightness"),
                        tr("is invalid value for Brightness. Use number between 10 and 100.")))
        return;
    target->night_brightness_changed(value);
    show_hidden_features_notification(tr("Brightness changed"),
                                      tr("Brightness changed to") + " " + number(value) + "%");
}

void HiddenFeatures::process_set_night_start_time(int value)
{
    if (!value_in_range(value, 0, 24, tr("Invalid value for night start time:"),
                        tr("Invalid Night start time"),
                        tr("is invalid value for Night start time. Use number between 0 and 24.")))
        return;
    target->night_start_time_changed(value);
    show_hidden_features_notification(tr("Night start time changed"),
                                      tr("Manual night start time changed to") + " " +
                                          number(value) + "h");
}

void HiddenFeatures::process_set_night_end_time(int value)
{
    if (!value_in_range(value, 0, 24, tr("Invalid value for night end time:"),
                        tr("Invalid Night end time"),
                        tr("is invalid value for Night end time. Use number between 0 and 24.")))
        return;
    target->night_end_time_changed(value);
    show_hidden_features_notification(tr("Night end time changed"),
                                      tr("Manual night end time changed to") + " " + number(value) +
                                          "h");
}
