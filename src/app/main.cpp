#include <QGuiApplication>

#include "app/CommandLine.h"
#include "app/MainWindow.h"
#include "app/SingleApplication.h"
#include "app/UnixSignals.h"
#include "services/DisplayProbe.h"
#include "settings/SaveKeys.h"

int main(int argc, char** argv)
{
    const int answered = CommandLine::answer_and_exit_code(argc, argv);
    if (answered >= 0)
        return answered;

    // From here on a TERM, INT or HUP waits in a socket until the event loop
    // reads it, so that even one that comes during start-up leaves through
    // quit(): settings saved, ramps given back.
    UnixSignals::catch_early();

    if (qEnvironmentVariableIntValue("OVRA_DEBUG") != 1)
        qInstallMessageHandler(noMessageOutput);
    qputenv("QT_BEARER_POLL_TIMEOUT", QByteArray::number(-1));
    QCoreApplication::setApplicationName(SaveKeys::APPLICATION);
    QCoreApplication::setOrganizationName(SaveKeys::ORGANIZATION);

    // Without an X server there is nothing to tint and Qt would abort on its
    // own; say so once and leave before anything is written.
    if (!DisplayProbe::display_reachable())
        return 1;

    // Qt's own event loop does less at each wake-up than GLib's, and the
    // program wakes every second for good. Only the Unity indicator, a GTK
    // library, needs GLib's loop turning. The window host keeps its default.
    const bool unity = qEnvironmentVariable("XDG_CURRENT_DESKTOP").toLower() == QLatin1String("unity");
    const bool own_loop = !unity && !qEnvironmentVariableIsSet("QT_NO_GLIB");
    if (own_loop)
        qputenv("QT_NO_GLIB", "1");
    SingleApplication app(argc, argv);
    if (own_loop)
        qunsetenv("QT_NO_GLIB");
    MainWindow window(nullptr);
    app.setMainWindow(&window);
    if (argc > 1) {
        for (int i = 0; i < argc; ++i) {
            if (qstrcmp(argv[i], "--show_ui") == 0)
                window.set_open_ovra_after_load_finished(true);
            // Its own line when the port is busy; the program and its own
            // windows go on without the browser road.
            if (qstrcmp(argv[i], "--web-bridge") == 0)
                window.offer_settings_to_browsers(12311);
        }
    }
    QObject::connect(&app, SIGNAL(process_arguments()), &window, SLOT(process_api_command()));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return app.exec();
}
