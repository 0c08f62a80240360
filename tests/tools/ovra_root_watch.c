/* Stands in for another application's window and reports what is said on
 * the root window. At start it maps a window named "Other window" and prints
 *   ready <its window id>
 * Then, until standard input closes, it answers each line:
 *   now      prints "now <X server time>"
 *   focus    marks the window as used now and has the window manager
 *            activate it, as a click on it would; prints "focused"
 * and reports each message on the root window:
 *   active <window> <source> <time>     an activation request
 *   startup <text>                      a whole startup notification message
 * Usage: ovra-root-watch */
#include <poll.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>
#include <xcb/xcb.h>

static xcb_connection_t* conn;
static xcb_window_t root;
static xcb_window_t other;
static xcb_atom_t active_atom, begin_atom, info_atom, user_time_atom, probe_atom;
/* One message in the making; a watch of one sender at a time is enough here. */
static char message[8192];
static size_t message_length;
static xcb_timestamp_t probed;

static xcb_atom_t atom(const char* name)
{
    xcb_intern_atom_reply_t* reply =
        xcb_intern_atom_reply(conn, xcb_intern_atom(conn, 0, strlen(name), name), NULL);
    xcb_atom_t result = reply ? reply->atom : XCB_ATOM_NONE;
    free(reply);
    return result;
}

static void handle(xcb_generic_event_t* event)
{
    const int type = event->response_type & 0x7f;
    if (type == XCB_PROPERTY_NOTIFY) {
        xcb_property_notify_event_t* e = (xcb_property_notify_event_t*)event;
        if (e->window == other && e->atom == probe_atom)
            probed = e->time;
        return;
    }
    if (type != XCB_CLIENT_MESSAGE)
        return;
    xcb_client_message_event_t* e = (xcb_client_message_event_t*)event;
    if (e->type == active_atom && e->format == 32) {
        printf("active 0x%x %u %u\n", e->window, e->data.data32[0], e->data.data32[1]);
        fflush(stdout);
        return;
    }
    if ((e->type != begin_atom && e->type != info_atom) || e->format != 8)
        return;
    if (e->type == begin_atom)
        message_length = 0;
    for (int i = 0; i < 20; ++i) {
        const char c = (char)e->data.data8[i];
        if (c == '\0') {
            printf("startup %.*s\n", (int)message_length, message);
            fflush(stdout);
            message_length = 0;
            return;
        }
        if (message_length < sizeof message)
            message[message_length++] = c;
    }
}

static void pump(void)
{
    xcb_generic_event_t* event;
    while ((event = xcb_poll_for_event(conn))) {
        handle(event);
        free(event);
    }
}

/* The server's time: the stamp of a property change on our window. */
static xcb_timestamp_t now(void)
{
    probed = 0;
    xcb_change_property(conn, XCB_PROP_MODE_APPEND, other, probe_atom, XCB_ATOM_STRING, 8, 0, "");
    xcb_flush(conn);
    while (!probed) {
        xcb_generic_event_t* event = xcb_wait_for_event(conn);
        if (!event)
            exit(1);
        handle(event);
        free(event);
    }
    return probed;
}

static void take_focus(void)
{
    xcb_timestamp_t t = now();
    xcb_change_property(conn, XCB_PROP_MODE_REPLACE, other, user_time_atom, XCB_ATOM_CARDINAL, 32,
                        1, &t);
    /* A pager's request, which no focus-stealing prevention refuses. */
    xcb_client_message_event_t request;
    memset(&request, 0, sizeof request);
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = other;
    request.type = active_atom;
    request.data.data32[0] = 2;
    request.data.data32[1] = t;
    xcb_send_event(conn, 0, root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   (const char*)&request);
    xcb_flush(conn);
}

int main(void)
{
    conn = xcb_connect(NULL, NULL);
    if (xcb_connection_has_error(conn)) {
        fprintf(stderr, "cannot open display\n");
        return 1;
    }
    root = xcb_setup_roots_iterator(xcb_get_setup(conn)).data->root;
    active_atom = atom("_NET_ACTIVE_WINDOW");
    begin_atom = atom("_NET_STARTUP_INFO_BEGIN");
    info_atom = atom("_NET_STARTUP_INFO");
    user_time_atom = atom("_NET_WM_USER_TIME");
    probe_atom = atom("_OVRA_TIME_PROBE");

    const uint32_t root_mask = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(conn, root, XCB_CW_EVENT_MASK, &root_mask);
    other = xcb_generate_id(conn);
    const uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(conn, XCB_COPY_FROM_PARENT, other, root, 40, 40, 300, 200, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &mask);
    xcb_change_property(conn, XCB_PROP_MODE_REPLACE, other, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        12, "Other window");
    xcb_map_window(conn, other);
    xcb_flush(conn);
    printf("ready 0x%x\n", other);
    fflush(stdout);

    struct pollfd fds[2] = {{STDIN_FILENO, POLLIN, 0}, {xcb_get_file_descriptor(conn), POLLIN, 0}};
    char line[64];
    size_t line_length = 0;
    for (;;) {
        pump();
        if (poll(fds, 2, -1) < 0 || xcb_connection_has_error(conn))
            return 1;
        if (!(fds[0].revents & (POLLIN | POLLHUP)))
            continue;
        char c;
        if (read(STDIN_FILENO, &c, 1) != 1)
            return 0;
        if (c != '\n') {
            if (line_length < sizeof line - 1)
                line[line_length++] = c;
            continue;
        }
        line[line_length] = '\0';
        line_length = 0;
        if (strcmp(line, "now") == 0)
            printf("now %u\n", now());
        if (strcmp(line, "focus") == 0) {
            take_focus();
            printf("focused\n");
        }
        fflush(stdout);
    }
}
