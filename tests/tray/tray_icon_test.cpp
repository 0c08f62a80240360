// The tray icon on Qt's tray: its menu and what each entry calls, which
// picture each state shows, how the mark turns and comes to rest, and the
// pauser entries. Then the menu on the real controller.
#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QSettings>

#include "ControllerFixture.h"
#include "tray/PauserLists.h"
#include "tray/TrayIcon.h"

namespace {

// A host that records what the menu calls and answers from its fields.
struct RecordingHost
{
    SettingsMap settings;
    bool loaded = true, paused = false, changing = false;
    QStringList processes, calls;

    TrayHost hooks()
    {
        TrayHost h;
        h.settings = &settings;
        h.is_ovra_loaded = [this] { return loaded; };
        h.is_ovra_paused = [this] { return paused; };
        h.colors_changing = [this] { return changing; };
        h.get_last_processes = [this] { return processes; };
        h.bring_to_front = [this] { calls << "front"; };
        h.quit = [this] { calls << "quit"; };
        h.change_type = [this](int type) { calls << QString("type %1").arg(type); };
        h.save_tray_icon = [this] { calls << "save"; };
        h.save_pausers = [this](PauserKind kind, const QString& list) {
            calls << QString("pausers %1 %2").arg(int(kind)).arg(list);
        };
        return h;
    }
};

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
    // The mark turns only under the program's own name.
    void SetUp() override { QCoreApplication::setApplicationName("Ovra"); }
    void make() { tray = std::make_unique<TrayIcon>(host.hooks()); }

    RecordingHost host;
    std::unique_ptr<TrayIcon> tray;
};

TEST_F(Tray, MenuOffersThePagesTypesAndEachEntryCallsTheController)
{
    const std::vector<std::pair<QString, QStringList>> menu = {
        {"Settings", {"front"}},         {"-", {}},
        {"&Health", {"type 1", "save"}}, {"&Sleep", {"type 2", "save"}},
        {"&Programming", {"type 4", "save"}}, {"&Biohacker", {"type 5", "save"}},
        {"&Sunglasses", {"type 6", "save"}}, {"&Movie", {"type 8", "save"}},
        {"-", {}},                       {"Exit", {"quit"}},
    };
    make();
    const QList<QAction*> actions = tray->context_menu()->actions();
    ASSERT_EQ(actions.size(), int(menu.size()));
    for (size_t i = 0; i < menu.size(); ++i) {
        QAction* action = actions[int(i)];
        EXPECT_EQ(action->isSeparator() ? QString("-") : action->text(), menu[i].first);
        host.calls.clear();
        if (!action->isSeparator())
            action->trigger();
        EXPECT_EQ(host.calls, menu[i].second) << menu[i].first.toStdString();
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
        EXPECT_EQ(tray->shown_art(), c.shown) << c.ghost << c.loaded << c.optimize << c.paused;
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
    for (; tray->spin().turning() && steps < 1000; ++steps)
        tray->spin().step();
    EXPECT_EQ(tray->shown_angle(), 0);
    EXPECT_GE(steps, renewed);
    EXPECT_LT(steps, renewed + 360 / TraySpin::STEP_DEGREES);
}

TEST_F(Tray, TurnStopsUprightWhenSwitchedOffOrPaused)
{
    make();
    host.changing = true;
    const std::vector<std::pair<std::function<void()>, TrayArt>> cases = {
        {[&] { host.settings[SaveKeys::USE_SPINNING_TRAY_ICON] = false; }, TrayArt::Green},
        {[&] { host.paused = true; }, TrayArt::Yellow},
    };
    for (const auto& [change, shown] : cases) {
        host.settings[SaveKeys::USE_SPINNING_TRAY_ICON] = true;
        host.paused = false;
        tray->update_tray_icon(false);
        ASSERT_TRUE(tray->spin().turning());
        tray->spin().step();
        ASSERT_EQ(tray->shown_angle(), 45);
        change();
        tray->update_tray_icon(false);
        EXPECT_FALSE(tray->spin().turning());
        EXPECT_EQ(tray->shown_angle(), 0);
        EXPECT_EQ(tray->shown_art(), shown);
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
    auto checked = [this](PauserKind kind) {
        QStringList result;
        for (const QAction* action : tray->pauser_menu(kind)->actions())
            result << action->text() + (action->isChecked() ? "+" : "");
        return result;
    };
    EXPECT_EQ(checked(PauserKind::Color), QStringList({"vlc", "Photoshop+", "blender"}));
    EXPECT_EQ(checked(PauserKind::Timer), QStringList({"vlc+", "Photoshop", "blender"}));
    EXPECT_EQ(checked(PauserKind::Mouse), QStringList());

    entry(tray->pauser_menu(PauserKind::Color), "vlc")->trigger();
    entry(tray->pauser_menu(PauserKind::Color), "Photoshop")->trigger();
    EXPECT_EQ(host.calls, QStringList({"pausers 0 Photoshop\n3dsmax\nvlc", "pausers 0 3dsmax"}));
}

TEST(PauserLists, ToggledAddsOnceAndRemovesEveryLine)
{
    const char* const cases[][4] = {
        // list, name, checked, result
        {"a\nb", "c", "1", "a\nb\nc"}, {"a\nb", "a", "1", "a\nb"}, {"a\nb\na", "a", "", "b"},
        {"", "x", "1", "x"},           {"ab\nb", "a", "", "ab\nb"}, {"a\n\nb", "b", "", "a\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(PauserLists::toggled(c[0], c[1], *c[2] != 0), QString(c[3])) << c[0] << c[1];
}

using controller_test::ControllerTest;

TEST_F(ControllerTest, TrayTypeEntrySwitchesTheTypeAndTheFileKeepsIt)
{
    store_values["OvraType"] = 1;
    start_settled();
    auto* tray = dynamic_cast<TrayIcon*>(window->tray_icon);
    ASSERT_TRUE(tray);
    EXPECT_TRUE(entry(tray->context_menu(), "&Health")->isChecked());

    entry(tray->context_menu(), "&Sunglasses")->trigger();
    EXPECT_EQ(stored(SaveKeys::OVRA_TYPE).toInt(), 6);
    EXPECT_EQ(stored(SaveKeys::NIGHT_BRIGHTNESS).toInt(), 75);
    QSettings file(QCoreApplication::organizationName(), SaveManager::store_application_name());
    EXPECT_EQ(file.value(SaveKeys::OVRA_TYPE).toInt(), 6);

    // A type chosen on the page moves the menu's mark.
    window->ovra_type_changed(8);
    EXPECT_TRUE(entry(tray->context_menu(), "&Movie")->isChecked());
    EXPECT_FALSE(entry(tray->context_menu(), "&Sunglasses")->isChecked());
}

} // namespace
