#include "hotkeys/HotkeyProcessor.h"

#include <QKeySequence>
#include <algorithm>
#include <cstdlib>
#include <iostream>

#include "hotkeys/IHotkeyActions.h"
#include "hotkeys/QHotkey.h"
#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"
#include "settings/SettingsTable.h"
#include "web/UserTime.h"

namespace {

using Action = void (HotkeyProcessor::*)();

// In the order of SettingsTable::hotkey_keys().
const Action ACTIONS[HotkeyProcessor::HOTKEY_COUNT] = {
    &HotkeyProcessor::increase_temperature_hotkey_pressed,
    &HotkeyProcessor::decrease_temperature_hotkey_pressed,
    &HotkeyProcessor::increase_brightness_hotkey_pressed,
    &HotkeyProcessor::decrease_brightness_hotkey_pressed,
    &HotkeyProcessor::start_overlay_screen_hotkey_pressed,
    &HotkeyProcessor::end_overlay_screen_hotkey_pressed,
    &HotkeyProcessor::use_color_effects_hotkey_pressed,
    &HotkeyProcessor::pause_ovra_toggle_hotkey_pressed,
    &HotkeyProcessor::manual_automatic_toggle_hotkey_pressed,
    &HotkeyProcessor::start_rest_hotkey_pressed,
    &HotkeyProcessor::pause_timer_toogle_hotkey_pressed,
    &HotkeyProcessor::quit_ovra_hotkey_pressed,
    &HotkeyProcessor::zoom_in_hotkey_pressed,
    &HotkeyProcessor::zoom_out_hotkey_pressed,
};

void save(void (SaveManager::*what)())
{
    if (SaveManager::s_instance)
        (SaveManager::s_instance->*what)();
}

} // namespace

// A value that a hotkey steps, for the three phases: its keys, the range a
// step keeps to, how near an end a value may be and still step towards it,
// and the controller's calls for it.
struct HotkeyProcessor::StepRange
{
    const char* keys[3];
    int lowest;
    int highest;
    // A step up needs the value at or below last_up, a step down at or
    // above first_down.
    int last_up;
    int first_down;
    float (IHotkeyActions::*current)();
    void (IHotkeyActions::*change)(int phase, int value);
    void (IHotkeyActions::*show)(int phase);
    void (SaveManager::*save_values)();
};

namespace {

const HotkeyProcessor::StepRange TEMPERATURE_STEPS{
    {SaveKeys::DAY_TEMPERATURE, SaveKeys::NIGHT_TEMPERATURE, SaveKeys::SLEEP_LIGHT},
    0,
    6500,
    6499,
    1,
    &IHotkeyActions::interpolated_temperature,
    &IHotkeyActions::change_temperature,
    &IHotkeyActions::show_temperature,
    &SaveManager::save_temperature};

const HotkeyProcessor::StepRange BRIGHTNESS_STEPS{
    {SaveKeys::DAY_BRIGHTNESS, SaveKeys::NIGHT_BRIGHTNESS, SaveKeys::SLEEP_BRIGHTNESS},
    5,
    100,
    99,
    6,
    &IHotkeyActions::interpolated_brightness,
    &IHotkeyActions::change_brightness,
    &IHotkeyActions::show_brightness,
    &SaveManager::save_brightness};

} // namespace

HotkeyProcessor::HotkeyProcessor(SettingsMap& settings, std::unique_ptr<IHotkeyActions> actions,
                                 QObject* parent)
    : QObject(parent), settings(settings), actions(std::move(actions))
{
    create_shortcuts();
}

HotkeyProcessor::~HotkeyProcessor()
{
    // Each releases its grab as it goes.
    for (QHotkey*& hotkey : hotkeys) {
        delete hotkey;
        hotkey = nullptr;
    }
}

QHotkey* HotkeyProcessor::hotkey(int index) const
{
    return index >= 1 && index <= HOTKEY_COUNT ? hotkeys[size_t(index - 1)] : nullptr;
}

bool HotkeyProcessor::stored_bool(const char* key)
{
    const auto found = settings.find(QString::fromLatin1(key));
    return found != settings.end() && found->second.toBool();
}

int HotkeyProcessor::stored_int(const char* key)
{
    const auto found = settings.find(QString::fromLatin1(key));
    return found == settings.end() ? 0 : found->second.toInt();
}

// ---------------------------------------------------------------- the grabs

void HotkeyProcessor::create_shortcuts()
{
    for (int i = 0; i < HOTKEY_COUNT; ++i) {
        // No parent: the processor deletes them itself, first thing.
        hotkeys[size_t(i)] = new QHotkey();
        const Action action = ACTIONS[i];
        connect(hotkeys[size_t(i)], &QHotkey::activated, this, [this, action] {
            // A window the action opens comes forward as the user's answer.
            UserTime::Scope press(QHotkey::lastActivationTime());
            (this->*action)();
        });
    }
}

void HotkeyProcessor::refresh_shortcuts()
{
    const QStringList& keys = SettingsTable::hotkey_keys();
    for (int i = 0; i < HOTKEY_COUNT; ++i) {
        const QString text = settings[keys[i]].toString();
        // Released keys are not grabbed for a moment on the way: another
        // client holding one would be told off for nothing.
        hotkeys[size_t(i)]->setShortcut(QKeySequence::fromString(text, QKeySequence::NativeText),
                                        connected);
    }
    set_connected(connected, true);
}

void HotkeyProcessor::set_connected(bool connect, bool force)
{
    if (connect == connected && !force)
        return;
    connected = connect;
    for (QHotkey* hotkey : hotkeys)
        hotkey->setRegistered(connect);
}

void HotkeyProcessor::reset_shortcuts()
{
    for (QHotkey* hotkey : hotkeys)
        hotkey->resetShortcut();
}

QVariantList HotkeyProcessor::get_shortcuts_values()
{
    return SettingsTable::shortcut_values(settings);
}

// A text that is no combination clears its hotkey, which then stays silent.
// The store gets the text with the next save.
void HotkeyProcessor::shortcut_changed(int index, QString shortcut)
{
    const QString key = SettingsTable::hotkey_key(index);
    std::cout << key.toStdString() << "\n" << shortcut.toStdString() << std::endl;
    if (key.isEmpty())
        return;
    settings[key] = shortcut;
    refresh_shortcuts();
}

// ---------------------------------------------------------------- steps

int HotkeyProcessor::find_closest(int a, int b, int c, int value)
{
    const int da = std::abs(a - value);
    const int db = std::abs(b - value);
    const int dc = std::abs(c - value);
    if (da <= db && da <= dc)
        return a;
    return db <= dc ? b : c;
}

bool HotkeyProcessor::has_conflicts(int a, int b, int c, int value)
{
    return (a == value) + (b == value) + (c == value) >= 2;
}

int HotkeyProcessor::get_transition_type(int a, int b, int c, int value)
{
    if (has_conflicts(a, b, c, value) || (a != value && b != value && c != value))
        return actions->transition_type();
    return a == value ? 0 : b == value ? 1 : 2;
}

// The phase whose stored value is nearest to what the screen shows now
// takes the step, and the interface moves to the advanced view, where the
// three values are seen apart.
void HotkeyProcessor::step_by_hotkey(const StepRange& range, int step)
{
    if (step == 0)
        return;
    const int day = stored_int(range.keys[0]);
    const int night = stored_int(range.keys[1]);
    const int sleep = stored_int(range.keys[2]);
    const int current = int((actions.get()->*range.current)());
    const int closest = find_closest(day, night, sleep, current);
    if ((step > 0 && closest > range.last_up) || (step < 0 && closest < range.first_down))
        return;
    const int value = std::clamp(closest + step, range.lowest, range.highest);
    const int phase = get_transition_type(day, night, sleep, closest);
    const bool known_phase = phase >= 0 && phase <= 2;
    if (known_phase)
        (actions.get()->*range.change)(phase, value);
    actions->use_advanced_view();
    save(range.save_values);
    save(&SaveManager::save_current_view);
    if (known_phase)
        (actions.get()->*range.show)(phase);
    actions->refresh_colors();
}

void HotkeyProcessor::update_temperature_by_hotkey(int step)
{
    step_by_hotkey(TEMPERATURE_STEPS, step);
}

void HotkeyProcessor::update_brightness_by_hotkey(int step)
{
    step_by_hotkey(BRIGHTNESS_STEPS, step);
}

// ---------------------------------------------------------------- the actions

void HotkeyProcessor::increase_temperature_hotkey_pressed()
{
    update_temperature_by_hotkey(500);
}

void HotkeyProcessor::decrease_temperature_hotkey_pressed()
{
    update_temperature_by_hotkey(-500);
}

void HotkeyProcessor::increase_brightness_hotkey_pressed()
{
    update_brightness_by_hotkey(10);
}

void HotkeyProcessor::decrease_brightness_hotkey_pressed()
{
    update_brightness_by_hotkey(-10);
}

// Pressed again while the overlay is up, it asks for an area instead.
void HotkeyProcessor::start_overlay_screen_hotkey_pressed()
{
    if (actions->has_overlay_screens())
        actions->select_overlay_screen_area();
    else
        actions->use_overlay_screen_changed(true);
}

void HotkeyProcessor::end_overlay_screen_hotkey_pressed()
{
    actions->use_overlay_screen_changed(false);
}

void HotkeyProcessor::use_color_effects_hotkey_pressed()
{
    const QString key = QString::fromLatin1(SaveKeys::USE_COLOR_EFFECTS);
    settings[key] = !stored_bool(SaveKeys::USE_COLOR_EFFECTS);
    actions->update_gamma();
    save(&SaveManager::save_use_color_effects);
    actions->show_use_color_effects(settings[key].toBool());
}

void HotkeyProcessor::pause_ovra_toggle_hotkey_pressed()
{
    actions->pause_ovra(!stored_bool(SaveKeys::IS_OVRA_PAUSED));
}

// The advanced view switches its two manual switches together; the basic
// view goes between the Automatic and Manual modes.
void HotkeyProcessor::manual_automatic_toggle_hotkey_pressed()
{
    if (stored_bool(SaveKeys::USE_ADVANCED_SETTINGS)) {
        const bool manual = !stored_bool(SaveKeys::USE_MANUAL_BRIGHTNESS);
        actions->use_manual_color_settings_changed(manual);
        actions->use_manual_brightness_changed(manual);
    } else {
        const int automatic = 1;
        const int manual = 2;
        actions->ovra_mode_changed_force(
            stored_int(SaveKeys::OVRA_MODE) == automatic ? manual : automatic, false);
    }
    save(&SaveManager::save_settings);
}

void HotkeyProcessor::start_rest_hotkey_pressed()
{
    actions->start_rest();
}

// A resume from here always leaves the timer in the Normal type.
void HotkeyProcessor::pause_timer_toogle_hotkey_pressed()
{
    const bool paused = !stored_bool(SaveKeys::IS_TIMER_PAUSED);
    settings[QString::fromLatin1(SaveKeys::IS_TIMER_PAUSED)] = paused;
    actions->pause_rest_timer(paused);
    const int off = 1;
    const int normal = 2;
    actions->timer_type_changed(paused ? off : normal);
}

void HotkeyProcessor::quit_ovra_hotkey_pressed()
{
    actions->quit();
}

// The page's zoom has no effect in this program; the keys stay grabbed so
// that they mean the same everywhere.
void HotkeyProcessor::zoom_in_hotkey_pressed() {}
void HotkeyProcessor::zoom_out_hotkey_pressed() {}
