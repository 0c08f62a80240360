// What the page's status line and the tray's tooltip say once a second, with
// a rest timer and a tray icon that only write down what they are asked.
#include <gtest/gtest.h>

#include "ControllerFixture.h"
#include "FakeTray.h"
#include "FakeRestTimer.h"

namespace {

using namespace controller_test;

using FakeTimer = FakeRestTimer;

class StatusTexts : public ControllerTest
{
protected:
    void start_with_parts(bool loaded)
    {
        // Monitor 2 has values of its own; monitor 1 takes the plain ones.
        store_values["NightTemperature2"] = 2900;
        store_values["NightBrightness2"] = 70;
        MainWindow::screen_count_override = 2;
        start_settled();
        window->rest_timer = &timer;
        window->tray_icon = &tray;
        if (loaded)
            window->load_finished();
        // The timer starts paused until the breaks are set up.
        window->settings["TimerPaused"] = false;
    }
    void TearDown() override
    {
        if (window) {
            window->rest_timer = nullptr;
            window->tray_icon = nullptr;
        }
        ControllerTest::TearDown();
    }

    FakeTimer timer;
    FakeTray tray;
};

TEST_F(StatusTexts, TooltipStatusAndTimeOfEachState)
{
    enum Timer { NONE, WORK, REST, TIMER_PAUSED, PAUSED_BY_SETTING };
    struct Row { bool loaded, per_monitor; Timer timer; const char* tooltip; const char* page; };
    const Row rows[] = {
        {true, false, NONE, "3400K / 80%", "set_timer_message=|set_ovra_status=3400K / 80%"},
        {true, false, WORK, "3400K / 80% / 12:34 until rest",
         "set_remaining_time=12:34:until:rest|set_ovra_status=3400K / 80%"},
        {true, false, REST, "3400K / 80% / 0:45 until work",
         "set_remaining_time=0:45:until:work|set_ovra_status=3400K / 80%"},
        {true, true, WORK, "3400K / 80% | 2900K / 70% / 12:34 until rest",
         "set_remaining_time=12:34:until:rest|set_ovra_status=3400K / 80% | 2900K / 70%"},
        {true, true, TIMER_PAUSED, "3400K / 80% | 2900K / 70%",
         "set_timer_message=|set_ovra_status=3400K / 80% | 2900K / 70%"},
        // Paused colours: the status says so, the tooltip keeps its numbers.
        {true, false, PAUSED_BY_SETTING, "3400K / 80%", "set_timer_message=|set_ovra_status=Paused"},
        // Before the page has loaded only the tray hears.
        {false, false, WORK, "3400K / 80% / 12:34 until rest", ""},
    };
    for (const Row& row : rows) {
        start_with_parts(row.loaded);
        window->settings["UsePerMonitorSettings"] = row.per_monitor;
        window->settings["OvraPaused"] = row.timer == PAUSED_BY_SETTING;
        window->settings["TimerPaused"] = row.timer == PAUSED_BY_SETTING;
        timer.paused = row.timer == TIMER_PAUSED;
        timer.work_ms = row.timer == REST ? 0 : 754000;
        timer.rest_ms = row.timer == REST ? 45000 : -1;
        if (row.timer == NONE)
            window->rest_timer = nullptr;
        PageLog page(window.get(), {"set_remaining_time", "set_timer_message", "set_ovra_status"});
        const int icon_updates = tray.icon_updates;
        window->update_ui();
        EXPECT_EQ(tray.tooltip, row.tooltip) << row.tooltip;
        EXPECT_EQ(page.entries.join('|'), row.page) << row.tooltip;
        EXPECT_EQ(tray.icon_updates, icon_updates + 1);
        TearDown();
        SetUp();
    }
}

TEST_F(StatusTexts, TheLastSecondsBeepWithSoundsAndABigRestIsAnnounced)
{
    start_with_parts(true);
    struct Row { int work_ms, rest_ms; bool sounds; int bips; };
    const Row rows[] = {{3000, -1, true, 0}, {2999, -1, true, 1}, {2999, -1, false, 0},
                        {0, 3000, true, 0},  {0, 2999, true, 1},  {0, -1, true, 1}};
    for (const Row& row : rows) {
        timer.bips = 0;
        timer.work_ms = row.work_ms;
        timer.rest_ms = row.rest_ms;
        window->settings["UseSounds"] = row.sounds;
        window->update_ui();
        EXPECT_EQ(timer.bips, row.bips) << row.work_ms << ' ' << row.rest_ms;
    }
    timer.work_ms = 60000;
    timer.big_rest = "Ovra reminds you that a big rest will occur in 30 seconds.";
    window->update_ui();
    EXPECT_EQ(tray.messages, QStringList{"Big rest incoming: " + timer.big_rest});
}

} // namespace
