// The break timer's arithmetic and states on a fake clock: periods are
// countdowns that this test moves forward, and the windows only record
// what they are asked to do.
#include <QCoreApplication>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "breaks/Countdown.h"
#include "breaks/IBreakWindows.h"
#include "breaks/RestTimer.h"

namespace {

struct FakeTime;

class FakeCountdown : public Countdown
{
public:
    FakeCountdown(FakeTime* time, QObject* parent) : Countdown(parent), time(time) {}
    void start(int msecs) override;
    void stop() override { deadline = -1; }
    bool is_active() const override { return deadline >= 0; }
    int remaining() const override;
    void fire()
    {
        deadline = -1;
        emit timeout();
    }

    FakeTime* time;
    qint64 deadline = -1;
};

struct FakeTime
{
    qint64 now = 0;
    std::vector<FakeCountdown*> countdowns;

    // Moves on, firing each countdown whose end comes on the way.
    void advance(qint64 msecs)
    {
        const qint64 target = now + msecs;
        for (;;) {
            FakeCountdown* next = nullptr;
            for (FakeCountdown* c : countdowns)
                if (c->is_active() && c->deadline <= target && (!next || c->deadline < next->deadline))
                    next = c;
            if (!next)
                break;
            now = next->deadline;
            next->fire();
        }
        now = target;
    }
};

void FakeCountdown::start(int msecs)
{
    deadline = time->now + std::max(0, msecs);
}

int FakeCountdown::remaining() const
{
    return is_active() ? int(deadline - time->now) : -1;
}

struct FakeWindows : IBreakWindows
{
    void open_rest_screens(int type) override { screens = type >= 1 && type <= 3; }
    void close_rest_screens() override { screens = continue_shown = false; }
    bool has_rest_screens() const override { return screens; }
    void show_continue_button() override { continue_shown = true; }
    void open_postpone() override { postpone = true, ++prompts; }
    void close_postpone() override { postpone = false; }
    bool has_postpone() const override { return postpone; }
    void open_productive(bool r) override { productive = true, resting = r; }
    void close_productive() override { productive = false; }
    bool has_productive() const override { return productive; }
    void set_productive_resting(bool r) override { resting = r; }
    void update() override {}
    void translate() override {}

    bool screens = false, continue_shown = false, postpone = false, productive = false,
         resting = false;
    int prompts = 0;
};

const int MINUTE = 60000;

class RestTimerTest : public ::testing::Test
{
protected:
    // A running timer of the type, with work minutes, rest seconds and
    // postpone minutes, Simple screens and the screens closing by themselves.
    void start(int type = 2, int work = 20, int rest = 20, int postpone = 5, bool auto_close = true)
    {
        QCoreApplication::setApplicationName("Ovra");
        timer.reset();
        time = FakeTime();
        windows = new FakeWindows;
        timer = std::make_unique<RestTimer>(nullptr, windows, [this](QObject* parent) {
            auto* c = new FakeCountdown(&time, parent);
            time.countdowns.push_back(c);
            return c;
        });
        timer->reset_rest_timer(work, rest, postpone);
        timer->set_automatically_close_rest_screen(auto_close);
        timer->set_rest_screen_type(2);
        timer->set_timer_type(type);
    }

    // Moves on a second at a time, with the timer's own second.
    void seconds(int count)
    {
        for (int i = 0; i < count; ++i) {
            time.advance(1000);
            timer->update();
        }
    }

    FakeTime time;
    FakeWindows* windows = nullptr;
    std::unique_ptr<RestTimer> timer;
};

TEST_F(RestTimerTest, PromptComesTenSecondsAheadAndPostponeAddsItsLength)
{
    start(2, 20, 20, 5);
    time.advance(20 * MINUTE - 11500);
    timer->update();
    EXPECT_FALSE(windows->has_postpone());
    seconds(1);
    ASSERT_TRUE(windows->has_postpone());
    EXPECT_EQ(timer->get_remaining_work_int(), 10500);

    timer->postpone_work_timer();
    EXPECT_FALSE(windows->has_postpone());
    EXPECT_EQ(timer->get_remaining_work_int(), 10500 + 5 * MINUTE);

    // Closed without a click, it stays closed for this period.
    seconds(5 * 60 + 1);
    EXPECT_EQ(windows->prompts, 2);
    timer->delete_postpone();
    seconds(1);
    EXPECT_EQ(windows->prompts, 2);
    seconds(10);
    EXPECT_TRUE(windows->has_rest_screens());
    EXPECT_GT(timer->get_remaining_rest_int(), 0);
}

TEST_F(RestTimerTest, NoPromptInProductive)
{
    start(4);
    seconds(20 * 60 - 5);
    EXPECT_EQ(windows->prompts, 0);
    EXPECT_TRUE(windows->has_productive());
}

TEST_F(RestTimerTest, ForwardAndBackward)
{
    struct Case { bool in_rest; int elapsed_ms; int minutes; int work_left; };
    const Case cases[] = {
        {false, 5 * MINUTE, 5, 10 * MINUTE},
        {false, 5 * MINUTE, -3, 18 * MINUTE},
        {false, 5 * MINUTE, 30, 0},
        // During a rest the remainder of the rest starts the work timer.
        {true, 5000, -1, 15000 + MINUTE},
    };
    for (const Case& c : cases) {
        start(2, 20, 20);
        if (c.in_rest)
            timer->start_rest();
        time.advance(c.elapsed_ms);
        timer->timer_forward(c.minutes);
        EXPECT_EQ(timer->get_remaining_work_int(), c.work_left) << c.minutes << " minutes";
        EXPECT_EQ(timer->get_remaining_rest_int() > 0, c.in_rest) << c.minutes << " minutes";
    }
    timer->timer_backward(2);
    EXPECT_EQ(timer->get_remaining_work_int(), 15000 + 3 * MINUTE);
}

TEST_F(RestTimerTest, PauseKeepsTheRemainderAndResumeGoesOnWithIt)
{
    struct Case { bool in_rest; int elapsed_ms; };
    for (const Case c : {Case{false, 7 * MINUTE}, Case{true, 12000}}) {
        start(2, 20, 60);
        if (c.in_rest)
            timer->start_rest();
        time.advance(c.elapsed_ms);
        const int left = c.in_rest ? 60000 - c.elapsed_ms : 20 * MINUTE - c.elapsed_ms;
        auto remaining = [&] {
            return c.in_rest ? timer->get_remaining_rest_int() : timer->get_remaining_work_int();
        };

        timer->pause_resume_timer();
        EXPECT_TRUE(timer->is_paused());
        time.advance(30 * MINUTE);
        EXPECT_EQ(remaining(), left) << "paused";
        EXPECT_EQ(windows->has_rest_screens(), c.in_rest);

        timer->pause_resume_timer();
        EXPECT_FALSE(timer->is_paused());
        EXPECT_EQ(remaining(), left) << "resumed";
        time.advance(left - 1);
        EXPECT_EQ(remaining(), 1);
    }
}

TEST_F(RestTimerTest, BigRestMessagesAtATenthAndAtThirtySeconds)
{
    struct Case { int work_minutes; int left_seconds; const char* message; };
    const Case cases[] = {
        {20, 121, nullptr},
        {20, 120, "Ovra reminds you that a big rest will occur in 2 minutes."},
        {20, 30, "Ovra reminds you that a big rest will occur in 30 seconds."},
        {9, 54, nullptr},
        {9, 30, "Ovra reminds you that a big rest will occur in 30 seconds."},
        {30, 180, "Ovra reminds you that a big rest will occur in 3 minutes."},
    };
    for (const Case& c : cases) {
        start(2, c.work_minutes);
        time.advance(c.work_minutes * MINUTE - c.left_seconds * 1000 - 400);
        QString message;
        EXPECT_EQ(timer->is_rest_coming(message), c.message != nullptr) << c.left_seconds;
        EXPECT_EQ(message, QString::fromLatin1(c.message)) << c.left_seconds;
        // A second look in the same second tells nothing new.
        time.advance(300);
        EXPECT_FALSE(timer->is_rest_coming(message));
    }
}

TEST_F(RestTimerTest, EndOfRestClosesOrWaitsForContinue)
{
    struct Case { int type; bool auto_close; bool waits; };
    for (const Case c : {Case{2, true, false}, Case{2, false, true}, Case{3, false, true},
                         Case{3, true, false}}) {
        start(c.type, 1, 12, 5, c.auto_close);
        time.advance(MINUTE);
        ASSERT_TRUE(windows->has_rest_screens());
        time.advance(12000);
        EXPECT_EQ(windows->has_rest_screens(), c.waits) << c.type << c.auto_close;
        EXPECT_EQ(windows->continue_shown, c.waits);
        EXPECT_EQ(timer->get_remaining_work_int() > 0, !c.waits) << "no timer runs meanwhile";
        if (c.waits) {
            timer->end_rest();
            EXPECT_FALSE(windows->has_rest_screens());
            EXPECT_EQ(timer->get_remaining_work_int(), MINUTE);
        }
    }
}

TEST_F(RestTimerTest, ProductiveRestsInItsWidget)
{
    start(4, 1, 12);
    time.advance(MINUTE);
    EXPECT_FALSE(windows->has_rest_screens());
    EXPECT_TRUE(windows->resting);
    time.advance(12000);
    EXPECT_FALSE(windows->resting);
    EXPECT_EQ(timer->get_remaining_work_int(), MINUTE);
    timer->set_timer_type(2);
    EXPECT_FALSE(windows->has_productive());
}

TEST_F(RestTimerTest, NewLengthsRestartTheRunningPeriod)
{
    start(2, 20, 60);
    timer->start_rest();
    time.advance(30000);
    timer->reset_rest_timer(25, 60, 5);
    EXPECT_EQ(timer->get_remaining_rest_int(), 60000);
    // The same lengths again change nothing.
    time.advance(1000);
    timer->reset_rest_timer(25, 60, 5);
    EXPECT_EQ(timer->get_remaining_rest_int(), 59000);
}

TEST_F(RestTimerTest, StoppedDuringARestLeavesAWayOutAndStartsNoWork)
{
    start(3, 20, 60);
    timer->start_rest();
    timer->set_timer_type(1);
    EXPECT_TRUE(windows->continue_shown);
    EXPECT_TRUE(timer->is_stopped());
    timer->end_rest();
    EXPECT_FALSE(windows->has_rest_screens());
    EXPECT_EQ(timer->get_remaining_work_int(), -1);
    timer->start_rest_timer();
    EXPECT_EQ(timer->get_remaining_work_int(), 20 * MINUTE);
}

TEST(RestTimerTexts, FormatTime)
{
    struct Case { int h, m, s; const char* text; const char* productive; };
    const Case cases[] = {
        {0, 0, 9, "9 sec", "0:09"},
        {0, 0, 10, "10 sec", "0:10"},
        {0, 1, 0, "1 min 0 sec", "01:00"},
        {0, 59, 59, "59 min 59 sec", "59:59"},
        {1, 0, 0, "1 hour 0 min 0 sec", "01:00:00"},
        {0, 0, 0, "0 sec", "0:00"},
    };
    for (const Case& c : cases) {
        QString text;
        RestTimer::format_time(text, c.h, c.m, c.s);
        EXPECT_EQ(text, QString::fromLatin1(c.text));
        RestTimer::format_time_productive(text, c.h, c.m, c.s);
        EXPECT_EQ(text, QString::fromLatin1(c.productive));
    }
}

} // namespace
