#pragma once

#include <QObject>
#include <QString>
#include <string>

#include "spells/SpellTable.h"

class ISpellTarget;
class Tokenizer;

// Interprets spells, the one-line commands typed in the page or given to a
// second launch. It tries the spell table top to bottom, runs the first form
// that matches, answers with a tray message when the user wants them, and
// always ends with a save of every setting. It keeps no state of its own.
class HiddenFeatures : public QObject
{
    Q_OBJECT

public:
    explicit HiddenFeatures(ISpellTarget* target, QObject* parent = nullptr);

    // Returns whether a form matched; invalid values still count as matched.
    bool activate_hidden_feature(const std::string& hidden_feature);
    void show_hidden_features_notification(const QString& title, const QString& text);

private:
    void run(const SpellRow& row, const Tokenizer& words, const std::string& hidden_feature);
    void report_invalid_spell(const std::string& hidden_feature);

    void process_reset_colors();
    void process_reset_settings();
    void process_invert_colors();
    void process_zero_blue_light();
    void process_preserve_gamma(bool enable);
    void process_use_software_cursor();
    void process_use_hardware_cursor();
    void process_set_ui_scale(int scale);
    void process_use_manual_night_duration(bool enable);
    void process_use_manual_location(bool enable);
    void process_use_manual_brightness(bool enable);
    void process_use_manual_temperature(bool enable);
    void process_start_at_startup(bool enable);
    void process_use_hidden_features_notifications(bool enable);
    void process_use_spinning_tray_icon(bool enable);
    void process_enable_keyboard_hook(bool enable);
    void process_enable_conflicting_applications(bool enable);
    void process_use_gamma_fixer(bool enable);
    void process_ignore_monitor_changed(int monitor, bool ignore);
    void process_latitude(float value);
    void process_longitude(float value);
    void process_enable_page(bool enable, const QString& page);

    void process_set_day_temperature_feature(int value);
    void process_set_night_temperature_feature(int value);
    void process_set_day_brightness_feature(int value);
    void process_set_night_brightness_feature(int value);
    void process_set_night_start_time(int value);
    void process_set_night_end_time(int value);

    // The value spells' check: as an unsigned number, so a negative one is
    // never valid. Out of range, it is reported and nothing changes.
    bool value_in_range(int value, unsigned low, unsigned high, const QString& debug_line,
                        const QString& title, const QString& text);
    void notify_switch(bool enable, const QString& on_title, const QString& on_text,
                       const QString& off_title, const QString& off_text);

    ISpellTarget* target;
};
