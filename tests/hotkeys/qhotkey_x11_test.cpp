// QHotkey on the test X server: keys pressed with xdotool, a combination
// another client holds, and the processor's user time for what it opens.
#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include "hotkeys/HotkeyProcessor.h"
#include "hotkeys/IHotkeyActions.h"
#include "hotkeys/QHotkey.h"
#include "settings/SaveKeys.h"
#include "web/UserTime.h"

#include <X11/Xlib.h>

namespace {

// Combinations that nothing else on a shared test server grabs.
const QKeySequence F7("Ctrl+Shift+F7");
const QKeySequence F8("Ctrl+Shift+F8");

Display* qt_display()
{
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->display() : nullptr;
}

unsigned keycode(const char* keysym)
{
    return XKeysymToKeycode(qt_display(), XStringToKeysym(keysym));
}

void press(const char* keys)
{
    ASSERT_EQ(QProcess::execute("xdotool", {"key", keys}), 0) << keys;
}

// Another client's passive grab of a combination; false when refused.
bool other_client_grabs(Display* other, const char* keysym, unsigned modifiers)
{
    static bool refused;
    refused = false;
    auto previous = XSetErrorHandler([](Display*, XErrorEvent*) {
        refused = true;
        return 0;
    });
    XGrabKey(other, int(XKeysymToKeycode(other, XStringToKeysym(keysym))), modifiers,
             DefaultRootWindow(other), True, GrabModeAsync, GrabModeAsync);
    XSync(other, False);
    XSetErrorHandler(previous);
    return !refused;
}

class HotkeyOnX : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!qt_display())
            GTEST_SKIP() << "needs an X display";
    }
};

TEST_F(HotkeyOnX, KeysymNamesGiveKeycodesAndOtherNamesAnyKey)
{
    const struct
    {
        const char* text;
        const char* keysym; // null: keycode 0
        unsigned modifier;
    } rows[] = {
        {"Ctrl+Alt+Up", "Up", ControlMask | Mod1Mask},
        {"Ctrl+Alt+R", "R", ControlMask | Mod1Mask},
        {"Meta+Shift+F5", "F5", Mod4Mask | ShiftMask},
        {"Ctrl+Alt++", "plus", ControlMask | Mod1Mask},
        {"Ctrl+Alt+PgUp", nullptr, ControlMask | Mod1Mask},
        {"Ctrl+Alt+Enter", nullptr, ControlMask | Mod1Mask},
        {"Ctrl+Alt+Esc", nullptr, ControlMask | Mod1Mask},
    };
    for (const auto& row : rows) {
        QHotkey hotkey(QKeySequence(row.text), false);
        const QHotkey::NativeShortcut native = hotkey.currentNativeShortcut();
        EXPECT_TRUE(native.isValid()) << row.text;
        EXPECT_EQ(native.key, row.keysym ? keycode(row.keysym) : 0u) << row.text;
        EXPECT_EQ(native.modifier, row.modifier) << row.text;
    }
}

TEST_F(HotkeyOnX, SettersFollowTheirRules)
{
    QHotkey hotkey(F7, true);
    ASSERT_TRUE(hotkey.isRegistered());
    EXPECT_FALSE(hotkey.setShortcut(F8));
    EXPECT_EQ(hotkey.shortcut(), F7);
    EXPECT_TRUE(hotkey.setShortcut(QKeySequence("Ctrl+Shift+F8, Ctrl+Shift+F7"), true));
    EXPECT_EQ(hotkey.shortcut(), F8);
    EXPECT_TRUE(hotkey.setShortcut(QKeySequence()));
    EXPECT_FALSE(hotkey.isRegistered());
    EXPECT_FALSE(hotkey.currentNativeShortcut().isValid());
}

TEST_F(HotkeyOnX, FiresWithLocksButNotWithAnExtraModifier)
{
    QHotkey hotkey(F7, true);
    ASSERT_TRUE(hotkey.isRegistered());
    QSignalSpy fired(&hotkey, &QHotkey::activated);
    press("ctrl+shift+F7");
    EXPECT_TRUE(fired.wait(3000));
    EXPECT_NE(QHotkey::lastActivationTime(), 0u);

    press("Num_Lock");
    press("ctrl+shift+F7");
    const bool with_num_lock = fired.wait(3000);
    press("Num_Lock");
    EXPECT_TRUE(with_num_lock);

    press("ctrl+shift+alt+F7");
    EXPECT_FALSE(fired.wait(300));
}

TEST_F(HotkeyOnX, SharedCombinationFiresBothAndHoldsUntilTheLastGoes)
{
    Display* other = XOpenDisplay(nullptr);
    ASSERT_TRUE(other);
    auto first = std::make_unique<QHotkey>(F8, true);
    QHotkey second(F8, true);
    ASSERT_TRUE(first->isRegistered() && second.isRegistered());
    QSignalSpy first_fired(first.get(), &QHotkey::activated);
    QSignalSpy second_fired(&second, &QHotkey::activated);
    press("ctrl+shift+F8");
    EXPECT_TRUE(second_fired.wait(3000));
    EXPECT_TRUE(first_fired.count() == 1 || first_fired.wait(1000));

    first.reset();
    EXPECT_FALSE(other_client_grabs(other, "F8", ControlMask | ShiftMask));
    EXPECT_TRUE(second.setRegistered(false));
    EXPECT_TRUE(other_client_grabs(other, "F8", ControlMask | ShiftMask));
    XCloseDisplay(other);
}

TEST_F(HotkeyOnX, ACombinationAnotherClientHoldsStaysUnregisteredWithOneLine)
{
    Display* other = XOpenDisplay(nullptr);
    ASSERT_TRUE(other);
    ASSERT_TRUE(other_client_grabs(other, "F9", ControlMask | ShiftMask));
    testing::internal::CaptureStderr();
    QHotkey hotkey(QKeySequence("Ctrl+Shift+F9"), true);
    const std::string err = testing::internal::GetCapturedStderr();
    EXPECT_FALSE(hotkey.isRegistered());
    EXPECT_EQ(err, "QHotkey: Failed to register hotkey. Error: BadAccess (attempt to access "
                   "private resource denied)\n");
    XCloseDisplay(other);
    // Nothing of it stays behind once the other client has gone.
    EXPECT_TRUE(hotkey.setRegistered(true));
}

// Records the user time a window opened by the action would carry.
class TimeOfRest : public IHotkeyActions
{
public:
    explicit TimeOfRest(quint32* seen) : seen(seen) {}
    void start_rest() override { *seen = UserTime::current(); }
    float interpolated_temperature() override { return 0; }
    float interpolated_brightness() override { return 0; }
    int transition_type() override { return 0; }
    void change_temperature(int, int) override {}
    void change_brightness(int, int) override {}
    void show_temperature(int) override {}
    void show_brightness(int) override {}
    void use_advanced_view() override {}
    void refresh_colors() override {}
    void update_gamma() override {}
    void show_use_color_effects(bool) override {}
    void pause_ovra(bool) override {}
    void pause_rest_timer(bool) override {}
    void timer_type_changed(int) override {}
    void use_manual_color_settings_changed(bool) override {}
    void use_manual_brightness_changed(bool) override {}
    void ovra_mode_changed_force(int, bool) override {}
    bool has_overlay_screens() override { return false; }
    void use_overlay_screen_changed(bool) override {}
    void select_overlay_screen_area() override {}
    void quit() override {}

private:
    quint32* seen;
};

TEST_F(HotkeyOnX, TheProcessorGrabsWhileConnectedAndActsInTheKeyPresssTime)
{
    SettingsMap settings{{SaveKeys::START_REST_HOTKEY, "Ctrl+Shift+F10"}};
    quint32 seen = 0;
    HotkeyProcessor processor(settings, std::make_unique<TimeOfRest>(&seen));
    processor.refresh_shortcuts();
    EXPECT_FALSE(processor.hotkey(10)->isRegistered());
    processor.set_connected(true, false);
    ASSERT_TRUE(processor.hotkey(10)->isRegistered());

    QSignalSpy fired(processor.hotkey(10), &QHotkey::activated);
    press("ctrl+shift+F10");
    ASSERT_TRUE(fired.wait(3000));
    EXPECT_NE(seen, 0u);
    EXPECT_EQ(seen, QHotkey::lastActivationTime());
    EXPECT_EQ(UserTime::current(), 0u);

    processor.set_connected(false, false);
    EXPECT_FALSE(processor.hotkey(10)->isRegistered());
}

} // namespace
