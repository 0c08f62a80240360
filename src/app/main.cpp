#include <QGuiApplication>

#include "app/CommandLine.h"
#include "app/MainWindow.h"
#include "app/SingleApplication.h"
#include "app/UnixSignals.h"
#include "services/DisplayProbe.h"
#include "services/LaunchFeedback.h"
#include "settings/SaveKeys.h"
#include "web/UserTime.h"
#include "web/WebHost.h"

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

    // Before Qt, which would take the launch for the first window this
    // process maps, and before anything is started that would inherit it.
    const QByteArray startup_id = LaunchFeedback::take_from_environment();

    // Qt's own event loop does less at each wake-up than GLib's, and the
    // program wakes every second for good. Only the Unity indicator, a GTK
    // library, needs GLib's loop turning. The setting stays for the whole
    // run, so that threads Qt starts later follow it too (measured: the main
    // thread's idle time drops by a fifth); the window host keeps its default.
    const bool unity = qEnvironmentVariable("XDG_CURRENT_DESKTOP").toLower() == QLatin1String("unity");
    if (!unity && !qEnvironmentVariableIsSet("QT_NO_GLIB")) {
        qputenv("QT_NO_GLIB", "1");
        WebHost::keep_from_host(QStringLiteral("QT_NO_GLIB"));
    }
    SingleApplication app(argc, argv, startup_id);
    MainWindow window(nullptr);
    app.setMainWindow(&window);
    // This launch's feedback ends here; the window it opens at start comes
    // forward as the launcher's click asked.
    {
        UserTime::Scope launch(startup_id.isEmpty() ? 0 : LaunchFeedback::end_launch(startup_id));
        for (int i = 1; i < argc; ++i) {
            if (qstrcmp(argv[i], "--show_ui") == 0)
                window.set_open_ovra_after_load_finished(true);
            // Its own line when the port is busy; the program and its own
            // windows go on without the browser road.
            if (qstrcmp(argv[i], "--web-bridge") == 0)
                window.offer_settings_to_browsers(12311);
        }
    }
    QObject::connect(&app, &SingleApplication::process_arguments, &window,
                     &MainWindow::process_launch);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return app.exec();
}
