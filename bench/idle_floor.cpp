// The floor that ovra's idle cost is measured against: a Qt GUI program whose
// only work is one timer a second writing one set of ramps to every CRTC.
// The ramps are those the server holds when it starts (started beside a
// settled ovra, the very ones ovra writes), taken once and never recomputed.
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
    QObject::connect(&tick, &QTimer::timeout, &tick, [&ramps] { ramps.write(); });
    tick.start();
    return app.exec();
}
