#pragma once

#include <QObject>

class QTimer;

// One period of the break timer: a single shot that knows how much of it is
// left. The remaining time is read from the running timer whenever it is
// asked for, so nothing counts ticks and a late event causes no drift.
class Countdown : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Starts anew with `msecs` (below 0 counts as 0), whether running or not.
    virtual void start(int msecs) = 0;
    virtual void stop() = 0;
    virtual bool is_active() const = 0;
    // Milliseconds left; -1 when stopped.
    virtual int remaining() const = 0;

signals:
    void timeout();
};

// The countdown of the running program, on a precise single-shot QTimer: one
// wake-up at the end of a period, and a remaining time that is right to the
// millisecond when the prompt asks for its ten seconds.
class TimerCountdown : public Countdown
{
    Q_OBJECT

public:
    explicit TimerCountdown(QObject* parent = nullptr);

    void start(int msecs) override;
    void stop() override;
    bool is_active() const override;
    int remaining() const override;

private:
    QTimer* timer;
};
