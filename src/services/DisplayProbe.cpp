#include "services/DisplayProbe.h"

#include <cstdio>
#include <cstdlib>
#include <xcb/xcb.h>

bool DisplayProbe::display_reachable()
{
    const char* display = std::getenv("DISPLAY");
    if (!display || !*display) {
        std::fprintf(stderr, "Ovra needs an X display: DISPLAY is not set.\n");
        return false;
    }
    xcb_connection_t* conn = xcb_connect(display, nullptr);
    const bool ok = conn && !xcb_connection_has_error(conn);
    if (conn)
        xcb_disconnect(conn);
    if (!ok)
        std::fprintf(stderr, "Ovra cannot open the X display \"%s\".\n", display);
    return ok;
}
