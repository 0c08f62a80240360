// ovra-web: shows ovra's page windows. ovra starts it when a page window is
// needed, speaks to it in JSON lines over stdin and stdout, and ends it when
// no window is left. It holds no settings and no logic of the product.
#include "CommandReader.h"
#include "EventWriter.h"
#include "WindowHost.h"

#include <QApplication>
#include <QJsonObject>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

// Chromium switches that keep the engine small: software compositing, one
// renderer shared by every window, and V8 without its optimising compilers
// (smaller heaps; the pages are small and load no slower for it). Lite mode
// turns WebAssembly off and says so on every start unless told as well.
const char k_lean_engine_flags[] =
    "--disable-gpu --renderer-process-limit=1 --js-flags=--lite-mode,--no-expose-wasm";

void quiet_message_handler(QtMsgType, const QMessageLogContext&, const QString&) {}

// Dies with the process that started it, even after a kill -9: a window
// that refuses to close must never outlive ovra.
bool tie_to_parent()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const QByteArray expected = qgetenv("OVRA_WEB_PARENT");
    qunsetenv("OVRA_WEB_PARENT");
    if (expected.isEmpty())
        return true;
    // The parent may have died before prctl took effect.
    if (QByteArray::number(qint64(getppid())) != expected) {
        fprintf(stderr, "ovra-web: the process that started it is gone\n");
        return false;
    }
    return true;
}

// The channel gets descriptors of its own, closed on exec; stdout then
// points at stderr, so that nothing the engine or its helper processes
// print can corrupt the events.
bool take_channel(int* command_fd, int* event_fd)
{
    *command_fd = fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 3);
    *event_fd = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
    const int null_fd = open("/dev/null", O_RDONLY | O_CLOEXEC);
    if (*command_fd < 0 || *event_fd < 0 || null_fd < 0) {
        fprintf(stderr, "ovra-web: cannot set up the command channel\n");
        return false;
    }
    dup2(null_fd, STDIN_FILENO);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    close(null_fd);
    return true;
}

void prepare_engine_environment()
{
    // The engine's sandbox refuses to run as root.
    if (geteuid() == 0 && !qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // OVRA_WEB_LEAN_ENGINE=0 leaves the engine as Qt configures it, for
    // comparison. Switches given by the environment come last, so they win.
    if (qEnvironmentVariable("OVRA_WEB_LEAN_ENGINE") != QLatin1String("0")) {
        QByteArray flags = k_lean_engine_flags;
        const QByteArray extra = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
        if (!extra.isEmpty())
            flags += ' ' + extra;
        qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags);
        // Without OpenGL in the host, Qt Quick (which carries the page's
        // surface) draws in software, and no GL driver is loaded: that is
        // about 50 MB of the host's own memory.
        if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
            qputenv("QT_XCB_GL_INTEGRATION", "none");
        if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
            qputenv("QT_QUICK_BACKEND", "software");
    }
    // The windows are X11 windows: the policies speak to the X server.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb");
}

} // namespace

int main(int argc, char** argv)
{
    if (!tie_to_parent())
        return 1;
    int command_fd = -1;
    int event_fd = -1;
    if (!take_channel(&command_fd, &event_fd))
        return 1;
    prepare_engine_environment();
    if (!qEnvironmentVariableIsSet("OVRA_DEBUG"))
        qInstallMessageHandler(quiet_message_handler);

    QApplication app(argc, argv);
    app.setApplicationName("ovra-web");
    app.setQuitOnLastWindowClosed(false);

    EventWriter events(event_fd);
    CommandReader commands(command_fd);
    WindowHost host(&events);
    QObject::connect(&commands, &CommandReader::command, &host, &WindowHost::handle);
    QObject::connect(&commands, &CommandReader::closed, &host, &WindowHost::shut_down);
    QObject::connect(&events, &EventWriter::broken, &host, &WindowHost::shut_down,
                     Qt::QueuedConnection);

    events.send({{"event", "ready"}});
    return app.exec();
}
