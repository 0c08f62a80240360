#include "breaks/IdleTime.h"

#include <QGuiApplication>
#include <cstdio>

#include <X11/Xlib.h>
#include <X11/extensions/scrnsaver.h>

namespace {
const int IDLE_THRESHOLD_SECONDS = 120;
}

IdleTime::~IdleTime()
{
    if (info)
        XFree(info);
}

bool IdleTime::probe()
{
    if (probed)
        return info != nullptr;
    probed = true;
    auto* x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    Display* dpy = x11 ? x11->display() : nullptr;
    int event_base = 0;
    int error_base = 0;
    if (!dpy || !XScreenSaverQueryExtension(dpy, &event_base, &error_base)) {
        std::fprintf(stderr, "Ovra: the X server does not tell idle time; inactivity is not watched\n");
        return false;
    }
    display = dpy;
    info = XScreenSaverAllocInfo();
    return info != nullptr;
}

long IdleTime::idle_msecs()
{
    if (!probe())
        return -1;
    auto* dpy = static_cast<Display*>(display);
    auto* saver = static_cast<XScreenSaverInfo*>(info);
    if (!XScreenSaverQueryInfo(dpy, DefaultRootWindow(dpy), saver))
        return -1;
    return long(saver->idle);
}

int IdleTime::threshold_seconds()
{
    // Asked every second; the environment does not change under us.
    static const int given = qEnvironmentVariableIntValue("OVRA_TEST_IDLE_SECONDS");
    return given > 0 ? given : IDLE_THRESHOLD_SECONDS;
}
