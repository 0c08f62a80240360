// The floor that ovra's idle cost is measured against: a Qt GUI program whose
// only work is one timer a second writing one set of ramps to every CRTC.
// The ramps are those the server holds when it starts (started beside a
// settled ovra, the very ones ovra writes), taken once and never recomputed.
// With --no-wait it sends them without waiting for the server's answer, as
// ovra's once-a-second repeat does: one wake-up a second instead of two.
#include <QGuiApplication>
#include <QTimer>

#include "crtc_ramps.h"

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    CrtcRamps ramps;
    if (ramps.open() != 0)
        return 1;
    QTimer tick;
    tick.setInterval(1000);
    const bool wait_for_answer = !app.arguments().contains(QStringLiteral("--no-wait"));
    QObject::connect(&tick, &QTimer::timeout, &tick, [&ramps, wait_for_answer] { ramps.write(wait_for_answer); });
    tick.start();
    return app.exec();
}
