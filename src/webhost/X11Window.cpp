#include "X11Window.h"

#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <xcb/xcb.h>

#include "base/XcbAtom.h"

namespace X11Window {
namespace {

xcb_connection_t* connection()
{
    auto* x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t root_window(xcb_connection_t* c)
{
    const xcb_setup_t* setup = xcb_get_setup(c);
    return xcb_setup_roots_iterator(setup).data->root;
}

// The first 32-bit value of a window property of the given type, or 0.
quint32 property_value(xcb_connection_t* c, xcb_window_t window, xcb_atom_t property,
                       xcb_atom_t type)
{
    xcb_get_property_reply_t* reply = xcb_get_property_reply(
        c, xcb_get_property(c, 0, window, property, type, 0, 1), nullptr);
    quint32 value = 0;
    if (reply && reply->format == 32 && xcb_get_property_value_length(reply) >= 4)
        value = *static_cast<const quint32*>(xcb_get_property_value(reply));
    free(reply);
    return value;
}

xcb_connection_t* connection_or_complain(const char* what)
{
    xcb_connection_t* c = connection();
    if (!c)
        fprintf(stderr, "ovra-web: %s needs an X11 connection\n", what);
    return c;
}

} // namespace

int set_user_time(quint32 window, quint32 user_time)
{
    xcb_connection_t* c = connection_or_complain("_NET_WM_USER_TIME");
    if (!c)
        return -1;
    const xcb_atom_t user_time_atom = xcb_atom(c, "_NET_WM_USER_TIME");
    const xcb_window_t time_window =
        property_value(c, window, xcb_atom(c, "_NET_WM_USER_TIME_WINDOW"), XCB_ATOM_WINDOW);
    for (xcb_window_t target : {xcb_window_t(window), time_window}) {
        if (target != XCB_WINDOW_NONE)
            xcb_change_property(c, XCB_PROP_MODE_REPLACE, target, user_time_atom,
                                XCB_ATOM_CARDINAL, 32, 1, &user_time);
    }
    xcb_flush(c);
    return 0;
}

bool manager_handles_activation()
{
    xcb_connection_t* c = connection();
    if (!c)
        return false;
    const xcb_window_t root = root_window(c);
    // A manager that died leaves _NET_SUPPORTED behind; its check window
    // goes with it, so ask that the check window still names itself.
    const xcb_atom_t check = xcb_atom(c, "_NET_SUPPORTING_WM_CHECK");
    const xcb_window_t wm = property_value(c, root, check, XCB_ATOM_WINDOW);
    if (wm == XCB_WINDOW_NONE || property_value(c, wm, check, XCB_ATOM_WINDOW) != wm)
        return false;
    xcb_get_property_reply_t* reply = xcb_get_property_reply(
        c, xcb_get_property(c, 0, root, xcb_atom(c, "_NET_SUPPORTED"), XCB_ATOM_ATOM, 0, 4096),
        nullptr);
    bool found = false;
    if (reply && reply->format == 32) {
        const xcb_atom_t wanted = xcb_atom(c, "_NET_ACTIVE_WINDOW");
        const auto* atoms = static_cast<const xcb_atom_t*>(xcb_get_property_value(reply));
        const int count = xcb_get_property_value_length(reply) / 4;
        for (int i = 0; i < count && !found; ++i)
            found = atoms[i] == wanted;
    }
    free(reply);
    return found;
}

int request_activation(quint32 window, quint32 user_time, int source)
{
    xcb_connection_t* c = connection_or_complain("_NET_ACTIVE_WINDOW");
    if (!c)
        return -1;
    xcb_client_message_event_t event;
    memset(&event, 0, sizeof event);
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = xcb_atom(c, "_NET_ACTIVE_WINDOW");
    event.data.data32[0] = quint32(source);
    event.data.data32[1] = user_time;
    event.data.data32[2] = XCB_WINDOW_NONE;
    xcb_send_event(c, 0, root_window(c),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(c);
    return 0;
}

int grab_keyboard(quint32 window)
{
    xcb_connection_t* c = connection_or_complain("keyboard grab");
    if (!c)
        return -1;
    // owner_events 0: every key goes to this window, whichever has focus.
    xcb_grab_keyboard_reply_t* reply = xcb_grab_keyboard_reply(
        c,
        xcb_grab_keyboard(c, 0, window, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC,
                          XCB_GRAB_MODE_ASYNC),
        nullptr);
    const int status = reply ? reply->status : -1;
    free(reply);
    return status == XCB_GRAB_STATUS_SUCCESS ? 0 : -1;
}

void ungrab_keyboard()
{
    if (xcb_connection_t* c = connection()) {
        xcb_ungrab_keyboard(c, XCB_CURRENT_TIME);
        xcb_flush(c);
    }
}

} // namespace X11Window
