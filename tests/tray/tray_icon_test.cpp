// The tray icon on Qt's tray: what its menu offers and calls, which picture
// each state shows, how the mark turns and comes to rest, and the pauser
// entries. Then the same menu on the real controller.
#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QSettings>
#include <QStringList>

#include "ControllerFixture.h"
#include "tray/PauserLists.h"
#include "tray/TrayIcon.h"

namespace {

// A host that records what the menu calls, and answers from fields.
struct RecordingHost
{
    SettingsMap settings;
    bool loaded = true;
    bool paused = false;
    bool changing = false;
    QStringList processes;
    QStringList calls;

    TrayHost hooks()
    {
        TrayHost host;
        host.settings = &settings;
        host.is_ovra_loaded = [this] { return loaded; };
        host.is_ovra_paused = [this] { return paused; };
        host.colors_changing = [this] { return changing; };
        host.get_last_processes = [this] { return processes; };
        host.bring_to_front = [this] { calls << "front"; };
        host.quit = [this] { calls << "quit"; };
        host.change_type = [this](int type) { calls << QString("type %1").arg(type); };
        host.change_mode = [this](int mode) { calls << QString("mode %1").arg(mode); };
        host.next_mode = [this] { calls << "next mode"; };
        host.save_tray_icon = [this] { calls << "save"; };
        host.save_pausers = [this](PauserKind kind, const QString& list) {
            calls << QString("pausers %1 %2").arg(int(kind)).arg(list);
        };
        return host;
    }
};

QStringList texts(const QMenu* menu)
{
    QStringList result;
    for (const QAction* action : menu->actions())
        result << (action->isSeparator() ? QString("-") : action->text());
    return result;
}

QAction* entry(const QMenu* menu, const QString& text)
{
    for (QAction* action : menu->actions())
        if (action->text() == text)
            return action;
    return nullptr;
}

class Tray : public ::testing::Test
{
protected:
    RecordingHost host;
    std::unique_ptr<TrayIcon> tray;

    // The mark turns only under the program's own name.
    void SetUp() override { QCoreApplication::setApplicationName("Ovra"); }
    void make() { tray = std::make_unique<TrayIcon>(host.hooks()); }
};

TEST_F(Tray, MenuOffersThePagesTypesBetweenSettingsAndExit)
{
    make();
    EXPECT_EQ(texts(tray->context_menu()),
              QStringList({"Settings", "-", "&Health", "&Sleep", "&Programming", "&Biohacker",
                           "&Sunglasses", "&Movie", "-", "Exit"}));
}

TEST_F(Tray, EachEntryCallsTheControllerAndATypeIsSavedAtOnce)
{
    const struct
    {
        const char* entry;
        QStringList calls;
    } cases[] = {
        {"Settings", {"front"}},
        {"&Health", {"type 1", "save"}},
        {"&Sleep", {"type 2", "save"}},
        {"&Programming", {"type 4", "save"}},
        {"&Biohacker", {"type 5", "save"}},
        {"&Sunglasses", {"type 6", "save"}},
        {"&Movie", {"type 8", "save"}},
        {"Exit", {"quit"}},
    };
    make();
    for (const auto& c : cases) {
        host.calls.clear();
        QAction* action = entry(tray->context_menu(), c.entry);
        ASSERT_TRUE(action) << c.entry;
        action->trigger();
        EXPECT_EQ(host.calls, c.calls) << c.entry;
    }
}

TEST_F(Tray, PictureFollowsGhostStartAndPause)
{
    const struct
    {
        bool ghost, loaded, optimize, paused;
        TrayArt shown;
    } cases[] = {
        {true, true, true, true, TrayArt::Ghost},
        {true, false, false, false, TrayArt::Ghost},
        {false, false, false, true, TrayArt::Red},
        // A program that builds its page only on demand is not starting.
        {false, false, true, false, TrayArt::Green},
        {false, true, false, true, TrayArt::Yellow},
        {false, true, false, false, TrayArt::Green},
    };
    make();
    EXPECT_EQ(tray->shown_art(), TrayArt::Red);
    for (const auto& c : cases) {
        host.settings[SaveKeys::USE_GHOST_ICON] = c.ghost;
        host.settings[SaveKeys::OPTIMIZE_UI_CREATION] = c.optimize;
        host.loaded = c.loaded;
        host.paused = c.paused;
        tray->update_tray_icon(false);
        EXPECT_EQ(tray->shown_art(), c.shown)
            << c.ghost << c.loaded << c.optimize << c.paused;
    }
}

TEST_F(Tray, MarkTurnsWhileColoursChangeAndComesToRestUprightByItself)
{
    host.settings[SaveKeys::USE_SPINNING_TRAY_ICON] = true;
    make();
    host.changing = true;
    tray->update_tray_icon(false);
    ASSERT_TRUE(tray->spin().turning());
    QList<int> angles;
    for (int i = 0; i < 10; ++i) {
        tray->spin().step();
        angles << tray->shown_angle();
    }
    EXPECT_EQ(angles, QList<int>({45, 90, 135, 180, 225, 270, 315, 0, 45, 90}));

    // A change reported again keeps it turning for a while; then, with no
    // update at all, it ends by itself, upright.
    tray->update_tray_icon(false);
    const int renewed = TraySpin::TURN_MSECS / TraySpin::STEP_MSECS;
    int steps = 0;
    while (tray->spin().turning() && steps < 1000) {
        tray->spin().step();
        ++steps;
    }
    EXPECT_FALSE(tray->spin().turning());
    EXPECT_EQ(tray->shown_angle(), 0);
    EXPECT_GE(steps, renewed);
    EXPECT_LT(steps, renewed + 360 / TraySpin::STEP_DEGREES);
}

TEST_F(Tray, TurnStopsUprightWhenSwitchedOffOrPaused)
{
    host.settings[SaveKeys::USE_SPINNING_TRAY_ICON] = true;
    make();
    host.changing = true;
    const struct
    {
        const char* what;
        std::function<void()> change;
        TrayArt shown;
    } cases[] = {
        {"spinning off", [&] { host.settings[SaveKeys::USE_SPINNING_TRAY_ICON] = false; },
         TrayArt::Green},
        {"paused", [&] { host.paused = true; }, TrayArt::Yellow},
    };
    for (const auto& c : cases) {
        host.settings[SaveKeys::USE_SPINNING_TRAY_ICON] = true;
        host.paused = false;
        tray->update_tray_icon(false);
        ASSERT_TRUE(tray->spin().turning()) << c.what;
        tray->spin().step();
        ASSERT_EQ(tray->shown_angle(), 45) << c.what;
        c.change();
        tray->update_tray_icon(false);
        EXPECT_FALSE(tray->spin().turning()) << c.what;
        EXPECT_EQ(tray->shown_angle(), 0) << c.what;
        EXPECT_EQ(tray->shown_art(), c.shown) << c.what;
    }
}

TEST_F(Tray, PauserEntriesOfferThreeRecentApplications)
{
    host.processes = {"vlc", "Photoshop", "blender", "maya"};
    host.settings[SaveKeys::USE_COLOR_PAUSERS] = true;
    host.settings[SaveKeys::USE_TIMER_PAUSERS] = true;
    host.settings[SaveKeys::COLOR_PAUSERS] = "Photoshop\n3dsmax";
    // "vlc" is part of a listed name, and so shows checked.
    host.settings[SaveKeys::TIMER_PAUSERS] = "QuickTime\nvlc-nightly";
    host.settings[SaveKeys::MOUSE_PAUSERS] = "vlc";
    make();
    tray->refresh_pausers_actions();

    auto checked = [](const QMenu* menu) {
        QStringList result;
        for (const QAction* action : menu->actions())
            result << action->text() + (action->isChecked() ? "+" : "");
        return result;
    };
    EXPECT_EQ(checked(tray->pauser_menu(PauserKind::Color)),
              QStringList({"vlc", "Photoshop+", "blender"}));
    EXPECT_EQ(checked(tray->pauser_menu(PauserKind::Timer)),
              QStringList({"vlc+", "Photoshop", "blender"}));
    EXPECT_TRUE(tray->pauser_menu(PauserKind::Mouse)->actions().isEmpty());

    entry(tray->pauser_menu(PauserKind::Color), "vlc")->trigger();
    entry(tray->pauser_menu(PauserKind::Color), "Photoshop")->trigger();
    EXPECT_EQ(host.calls, QStringList({"pausers 0 Photoshop\n3dsmax\nvlc", "pausers 0 3dsmax"}));
}

TEST(PauserLists, ToggledAddsOnceAndRemovesEveryLine)
{
    const struct
    {
        const char* list;
        const char* name;
        bool checked;
        const char* result;
    } cases[] = {
        {"a\nb", "c", true, "a\nb\nc"},
        {"a\nb", "a", true, "a\nb"},
        {"a\nb\na", "a", false, "b"},
        {"", "x", true, "x"},
        {"ab\nb", "a", false, "ab\nb"},
        {"a\n\nb", "b", false, "a\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(PauserLists::toggled(c.list, c.name, c.checked), QString(c.result))
            << c.list << " " << c.name << " " << c.checked;
}

// ---------------------------------------------------------------- on the controller

using controller_test::ControllerTest;

class TrayOnController : public ControllerTest
{
protected:
    TrayIcon* tray() { return dynamic_cast<TrayIcon*>(window->tray_icon); }
};

TEST_F(TrayOnController, TypeEntrySwitchesTheTypeAndTheFileKeepsIt)
{
    store_values["OvraType"] = 1;
    start_settled();
    ASSERT_TRUE(tray());
    EXPECT_TRUE(entry(tray()->context_menu(), "&Health")->isChecked());

    entry(tray()->context_menu(), "&Sunglasses")->trigger();
    EXPECT_EQ(stored(SaveKeys::OVRA_TYPE).toInt(), 6);
    EXPECT_EQ(stored(SaveKeys::NIGHT_BRIGHTNESS).toInt(), 75);
    QSettings file(QCoreApplication::organizationName(), SaveManager::store_application_name());
    EXPECT_EQ(file.value(SaveKeys::OVRA_TYPE).toInt(), 6);

    // A type chosen on the page moves the menu's mark.
    window->ovra_type_changed(8);
    EXPECT_TRUE(entry(tray()->context_menu(), "&Movie")->isChecked());
    EXPECT_FALSE(entry(tray()->context_menu(), "&Sunglasses")->isChecked());
}

TEST_F(TrayOnController, WithoutATrayTheIconIsNotAWayBack)
{
    start();
    ASSERT_TRUE(window->tray_icon);
    // No notification area on the test display.
    EXPECT_FALSE(window->tray_icon->is_visible());
}

} // namespace
