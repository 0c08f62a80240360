/* Asks a window to close the way a window manager does: a WM_DELETE_WINDOW
 * client message. Usage: ovra-close-window <window id> */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <xcb/xcb.h>

static xcb_atom_t atom(xcb_connection_t* conn, const char* name)
{
    xcb_intern_atom_reply_t* reply =
        xcb_intern_atom_reply(conn, xcb_intern_atom(conn, 0, strlen(name), name), NULL);
    xcb_atom_t result = reply ? reply->atom : XCB_ATOM_NONE;
    free(reply);
    return result;
}

int main(int argc, char** argv)
{
    if (argc != 2) {
        fprintf(stderr, "usage: %s <window id>\n", argv[0]);
        return 2;
    }
    xcb_connection_t* conn = xcb_connect(NULL, NULL);
    if (xcb_connection_has_error(conn)) {
        fprintf(stderr, "cannot open display\n");
        return 1;
    }
    xcb_window_t window = (xcb_window_t)strtoul(argv[1], NULL, 0);
    xcb_client_message_event_t event;
    memset(&event, 0, sizeof event);
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(conn, "WM_PROTOCOLS");
    event.data.data32[0] = atom(conn, "WM_DELETE_WINDOW");
    event.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(conn, 0, window, XCB_EVENT_MASK_NO_EVENT, (const char*)&event);
    /* A round trip before leaving: a message sent just before the tool
     * disconnected was now and then never delivered. */
    free(xcb_get_input_focus_reply(conn, xcb_get_input_focus(conn), NULL));
    xcb_disconnect(conn);
    return 0;
}
