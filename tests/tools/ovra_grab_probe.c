/* Tells whether another client holds the keyboard: tries to grab it and
 * lets go at once. Exit 0 when the grab was free, 1 when it is held, 2 on
 * other failures. Usage: ovra-grab-probe */
#include <stdio.h>
#include <stdlib.h>
#include <xcb/xcb.h>

int main(void)
{
    xcb_connection_t* conn = xcb_connect(NULL, NULL);
    if (xcb_connection_has_error(conn)) {
        fprintf(stderr, "cannot open display\n");
        return 2;
    }
    xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(conn)).data->root;
    xcb_grab_keyboard_reply_t* reply = xcb_grab_keyboard_reply(
        conn, xcb_grab_keyboard(conn, 0, root, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
        NULL);
    int status = reply ? reply->status : -1;
    free(reply);
    if (status == XCB_GRAB_STATUS_SUCCESS)
        xcb_ungrab_keyboard(conn, XCB_CURRENT_TIME);
    xcb_flush(conn);
    xcb_disconnect(conn);
    if (status == XCB_GRAB_STATUS_SUCCESS)
        return 0;
    return status == XCB_GRAB_STATUS_ALREADY_GRABBED ? 1 : 2;
}
