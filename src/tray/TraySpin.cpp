#include "tray/TraySpin.h"

#include "base/TickPath.h"

TraySpin::TraySpin(QObject* parent) : QObject(parent)
{
    timer.setInterval(STEP_MSECS);
    connect(&timer, &QTimer::timeout, this, &TraySpin::step);
}

OVRA_TICK void TraySpin::colors_changing(bool changing)
{
    if (!changing)
        return;
    steps_left = TURN_MSECS / STEP_MSECS;
    if (!timer.isActive())
        timer.start();
}

void TraySpin::step()
{
    current += STEP_DEGREES;
    if (current > 360)
        current = STEP_DEGREES;
    if (steps_left > 0)
        --steps_left;
    if (steps_left == 0 && current == 360) {
        timer.stop();
        current = 0;
    }
    emit turned(current);
}

void TraySpin::stop()
{
    timer.stop();
    steps_left = 0;
    if (current == 0)
        return;
    current = 0;
    emit turned(current);
}
