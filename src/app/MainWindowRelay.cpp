// The page sees this object only: each signal of the restore push is passed
// on as the signal of the same name and arguments here.
#include <QMetaMethod>
#include <iostream>

#include "app/MainWindow.h"
#include "settings/Settings.h"

void MainWindow::relay_settings_signals()
{
    const QMetaObject* from = app_settings->metaObject();
    const QMetaObject* to = metaObject();
    for (int i = from->methodOffset(); i < from->methodCount(); ++i) {
        const QMetaMethod signal = from->method(i);
        if (signal.methodType() != QMetaMethod::Signal)
            continue;
        const int relay = to->indexOfSignal(signal.methodSignature().constData());
        if (relay < 0) {
            std::cerr << "Ovra: the page cannot receive " << signal.methodSignature().constData()
                      << std::endl;
            continue;
        }
        connect(app_settings, signal, this, to->method(relay));
    }
}
