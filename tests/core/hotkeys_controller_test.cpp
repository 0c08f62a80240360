// The controller's side of the hotkeys: what their actions reach, and the
// switch and the reset that make them live or not.
#include "ControllerFixture.h"

#include "FakeRestTimer.h"
#include "hotkeys/HotkeyProcessor.h"
#include "hotkeys/QHotkey.h"

namespace controller_test {
namespace {

using CountingRestTimer = FakeRestTimer;

using HotkeysInController = ControllerTest;

TEST_F(HotkeysInController, StartRestReachesTheRestTimer)
{
    start_settled();
    CountingRestTimer timer;
    timer.work_ms = 60000; // at work, so a rest can start
    window->rest_timer = &timer;
    window->get_hotkey_processor()->start_rest_hotkey_pressed();
    window->rest_timer = nullptr;
    EXPECT_EQ(timer.rests, 1);
}

TEST_F(HotkeysInController, TheSwitchAndTheResetDecideWhetherTheyAreLive)
{
    start();
    HotkeyProcessor* hotkeys = window->get_hotkey_processor();
    EXPECT_FALSE(hotkeys->is_connected());
    window->use_keyboard_shortcuts_changed(true);
    EXPECT_TRUE(hotkeys->is_connected());
    window->shortcut_changed(1, "Ctrl+Shift+U");
    EXPECT_EQ(hotkeys->hotkey(1)->shortcut(), QKeySequence("Ctrl+Shift+U"));
    EXPECT_EQ(hotkeys->get_shortcuts_values().value(1).toString(), "Ctrl+Shift+U");
    // A modifier alone, as the page's recorder sends it, names no key.
    window->shortcut_changed(2, "Ctrl+");
    EXPECT_TRUE(hotkeys->hotkey(2)->shortcut().isEmpty());
    window->reset_settings_to_default();
    EXPECT_FALSE(hotkeys->is_connected());
    EXPECT_EQ(hotkeys->hotkey(1)->shortcut(), QKeySequence("Ctrl+Alt+Up"));
}

} // namespace
} // namespace controller_test
