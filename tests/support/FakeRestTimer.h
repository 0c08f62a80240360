#pragma once

// A rest timer that only writes down what it is asked and answers what a
// test sets, for the controller's tests.
#include <QString>

#include "breaks/IRestTimer.h"

struct FakeRestTimer : IRestTimer
{
    bool paused = false;
    int work_ms = 0;
    int rest_ms = 0;
    QString big_rest;
    int bips = 0;
    int rests = 0;

    bool is_rest_started() const override { return work_ms < 1; }
    void start_rest_timer() override {}
    void stop_rest_timer() override {}
    void reset_timer() override {}
    void set_timer_type(int) override {}
    void set_rest_screen_type(int) override {}
    void start_rest() override { ++rests; }
    bool is_paused() const override { return paused; }
    int get_remaining_work_int() const override { return work_ms; }
    int get_remaining_rest_int() const override { return rest_ms; }
    QString get_remaining_work_string() const override { return "12:34"; }
    QString get_remaining_rest_string() const override { return "0:45"; }
    void start_bip_sound() override { ++bips; }
    bool is_rest_coming(QString& message) override { return !(message = big_rest).isEmpty(); }
    void reset_rest_timer(int, int, int) override {}
    void set_automatically_close_rest_screen(bool) override {}
    void set_use_sounds(bool) override {}
    void set_use_keyboard_blocking(bool) override {}
    void toggle_timer() override {}
    void pause_resume_timer() override {}
    void update() override {}
};
