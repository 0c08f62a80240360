// QHotkey on the test X server, with keys pressed by xdotool. The
// combinations are ones nothing else on a shared test server grabs.
#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include "hotkeys/QHotkey.h"

#include <X11/Xlib.h>

namespace {

const QKeySequence F7("Ctrl+Shift+F7");
const unsigned CTRL_SHIFT = ControlMask | ShiftMask;

Display* qt_display()
{
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->display() : nullptr;
}

void press(const char* keys)
{
    ASSERT_EQ(QProcess::execute("xdotool", {"key", keys}), 0) << keys;
}

// Another client's grab of a combination; false when the server refused it.
bool other_client_grabs(Display* other, const char* keysym)
{
    static bool refused;
    refused = false;
    auto previous = XSetErrorHandler([](Display*, XErrorEvent*) { return int(refused = true); });
    XGrabKey(other, XKeysymToKeycode(other, XStringToKeysym(keysym)), CTRL_SHIFT,
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
        other = XOpenDisplay(nullptr);
    }
    void TearDown() override
    {
        if (other)
            XCloseDisplay(other);
    }
    Display* other = nullptr;
};

// The names the page records reach the X server's keys; a name with no
// key is refused rather than grabbed as key code 0, which is every key.
TEST_F(HotkeyOnX, PageNamesGiveTheServersKeys)
{
    const unsigned ctrl_alt = ControlMask | Mod1Mask;
    const struct
    {
        const char* text;
        const char* keysym; // null: refused
        unsigned modifier;
    } rows[] = {
        {"Ctrl+Alt+Up", "Up", ctrl_alt},         {"Ctrl+Alt+R", "R", ctrl_alt},
        {"Meta+Shift+F5", "F5", Mod4Mask | ShiftMask}, {"Ctrl+Alt++", "plus", ctrl_alt},
        {"Ctrl+Alt+PgUp", "Prior", ctrl_alt},    {"Ctrl+Alt+PgDown", "Next", ctrl_alt},
        {"Ctrl+Alt+Enter", "Return", ctrl_alt},  {"Ctrl+Alt+Esc", "Escape", ctrl_alt},
        {"Ctrl+Alt+F35", nullptr, ctrl_alt},
    };
    for (const auto& row : rows) {
        const QHotkey::NativeShortcut native =
            QHotkey(QKeySequence(row.text), false).currentNativeShortcut();
        if (!row.keysym) {
            EXPECT_FALSE(native.isValid()) << row.text;
            continue;
        }
        const unsigned key = XKeysymToKeycode(qt_display(), XStringToKeysym(row.keysym));
        EXPECT_TRUE(native.isValid() && key != 0 && native.key == key && native.modifier == row.modifier)
            << row.text << ": " << native.key << " " << native.modifier;
    }
}

TEST_F(HotkeyOnX, FiresWithLocksButNotWithAnExtraModifier)
{
    QHotkey hotkey(F7, true);
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
    auto first = std::make_unique<QHotkey>(QKeySequence("Ctrl+Shift+F8"), true);
    QHotkey second(QKeySequence("Ctrl+Shift+F8"), true);
    QSignalSpy first_fired(first.get(), &QHotkey::activated);
    QSignalSpy second_fired(&second, &QHotkey::activated);
    press("ctrl+shift+F8");
    EXPECT_TRUE(second_fired.wait(3000));
    EXPECT_TRUE(first_fired.count() == 1 || first_fired.wait(1000));
    first.reset();
    EXPECT_FALSE(other_client_grabs(other, "F8"));
    EXPECT_TRUE(second.setRegistered(false));
    EXPECT_TRUE(other_client_grabs(other, "F8"));
}

} // namespace
