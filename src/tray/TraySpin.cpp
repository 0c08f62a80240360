#include "tray/TraySpin.h"

TraySpin::TraySpin(QObject* parent) : QObject(parent)
{
    timer.setInterval(STEP_MSECS);
    connect(&timer, &QTimer::timeout, this, &TraySpin::step);
}

void TraySpin::colors_changing(bool changing)
{
    if (changing) {
        quiet_updates = 0;
        if (!timer.isActive())
            timer.start();
    } else if (timer.isActive()) {
        ++quiet_updates;
    }
}

void TraySpin::step()
{
    current += STEP_DEGREES;
    if (current > 360)
        current = STEP_DEGREES;
    if (quiet_updates >= QUIET_UPDATES && current == 360) {
        timer.stop();
        quiet_updates = 0;
        current = 0;
    }
    emit turned(current);
}

void TraySpin::stop()
{
    timer.stop();
    quiet_updates = 0;
    if (current == 0)
        return;
    current = 0;
    emit turned(current);
}
