#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>

#include <array>
#include <memory>

#include "settings/SettingsHost.h"

class IHotkeyActions;
class QHotkey;

// The fourteen global hotkeys and what each one does. The combinations are
// the texts of the hotkey keys in the settings map; the page's shortcut
// editor changes them through shortcut_changed. Indexes count from 1, as
// the page's list does.
class HotkeyProcessor : public QObject
{
    Q_OBJECT

public:
    static constexpr int HOTKEY_COUNT = 14;

    // Takes the controller's actions over.
    HotkeyProcessor(SettingsMap& settings, std::unique_ptr<IHotkeyActions> actions,
                    QObject* parent = nullptr);
    ~HotkeyProcessor() override;

    // The hotkey of a page index, 1 to 14; null outside.
    QHotkey* hotkey(int index) const;
    bool is_connected() const { return connected; }

    // Which of a, b, c lies nearest to value; a tie goes to a, then b.
    static int find_closest(int a, int b, int c, int value);
    // At least two of a, b, c equal value.
    static bool has_conflicts(int a, int b, int c, int value);
    // 0, 1 or 2 for the one of a, b, c that equals value; the phase in force
    // when none or several do.
    int get_transition_type(int a, int b, int c, int value);

public slots:
    void create_shortcuts();
    // Reads every combination from the map again and grabs what is live.
    void refresh_shortcuts();
    void set_connected(bool connect, bool force);
    void reset_shortcuts();
    // An empty text first, so that a position is a page index.
    QVariantList get_shortcuts_values();
    void shortcut_changed(int index, QString shortcut);

    void increase_temperature_hotkey_pressed();
    void decrease_temperature_hotkey_pressed();
    void increase_brightness_hotkey_pressed();
    void decrease_brightness_hotkey_pressed();
    void start_overlay_screen_hotkey_pressed();
    void end_overlay_screen_hotkey_pressed();
    void use_color_effects_hotkey_pressed();
    void pause_ovra_toggle_hotkey_pressed();
    void manual_automatic_toggle_hotkey_pressed();
    void start_rest_hotkey_pressed();
    void pause_timer_toogle_hotkey_pressed();
    void quit_ovra_hotkey_pressed();
    void zoom_in_hotkey_pressed();
    void zoom_out_hotkey_pressed();

    void update_temperature_by_hotkey(int step);
    void update_brightness_by_hotkey(int step);

public:
    struct StepRange;

private:
    void step_by_hotkey(const StepRange& range, int step);
    bool stored_bool(const char* key);
    int stored_int(const char* key);

    SettingsMap& settings;
    std::unique_ptr<IHotkeyActions> actions;
    bool connected = false;
    std::array<QHotkey*, HOTKEY_COUNT> hotkeys{};
};
