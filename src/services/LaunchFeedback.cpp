#include "services/LaunchFeedback.h"

#include <QString>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <xcb/xcb.h>

#include "base/XcbAtom.h"

namespace LaunchFeedback {
namespace {

const char ENVIRONMENT_NAME[] = "DESKTOP_STARTUP_ID";
const char TIME_MARK[] = "_TIME";
// The protocol carries a message in pieces of a client message's data.
const int PIECE = 20;

// The server's time now: the stamp of a property change on our own window.
quint32 server_time(xcb_connection_t* c, xcb_window_t window, xcb_atom_t property)
{
    xcb_change_property(c, XCB_PROP_MODE_APPEND, window, property, XCB_ATOM_STRING, 8, 0,
                        nullptr);
    xcb_flush(c);
    while (xcb_generic_event_t* event = xcb_wait_for_event(c)) {
        const bool ours = (event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY
                          && reinterpret_cast<xcb_property_notify_event_t*>(event)->window
                                 == window;
        const quint32 time = ours ? reinterpret_cast<xcb_property_notify_event_t*>(event)->time : 0;
        free(event);
        if (ours)
            return time;
    }
    return 0;
}

void send_message(xcb_connection_t* c, xcb_window_t root, xcb_window_t window,
                  const QByteArray& message)
{
    const xcb_atom_t begin = xcb_atom(c, "_NET_STARTUP_INFO_BEGIN");
    const xcb_atom_t more = xcb_atom(c, "_NET_STARTUP_INFO");
    // The terminating zero tells the receiver that the message is whole.
    const QByteArray text = message + '\0';
    for (int at = 0; at < text.size(); at += PIECE) {
        xcb_client_message_event_t event;
        memset(&event, 0, sizeof event);
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 8;
        event.window = window;
        event.type = at == 0 ? begin : more;
        memcpy(event.data.data8, text.constData() + at, size_t(qMin(PIECE, int(text.size()) - at)));
        xcb_send_event(c, 0, root, XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&event));
    }
}

} // namespace

QByteArray take_from_environment()
{
    const QByteArray id = qgetenv(ENVIRONMENT_NAME);
    qunsetenv(ENVIRONMENT_NAME);
    return checked(id);
}

QByteArray checked(const QByteArray& id)
{
    if (id.isEmpty() || id.size() > MAX_ID_LENGTH)
        return {};
    for (const char ch : id) {
        if (uchar(ch) < 0x20 || ch == 0x7f)
            return {};
    }
    // Decoding and encoding again gives the same bytes only for UTF-8.
    if (QString::fromUtf8(id).toUtf8() != id)
        return {};
    return id;
}

quint32 time_of(const QByteArray& id)
{
    const int mark = id.lastIndexOf(TIME_MARK);
    if (mark < 0)
        return 0;
    const QByteArray digits = id.mid(mark + int(strlen(TIME_MARK)));
    if (digits.isEmpty() || digits.size() > 10)
        return 0;
    for (const char ch : digits) {
        if (ch < '0' || ch > '9')
            return 0;
    }
    const qulonglong time = digits.toULongLong();
    return time > 0xffffffffULL ? 0 : quint32(time);
}

QByteArray remove_message(const QByteArray& id)
{
    if (!id.contains(' ') && !id.contains('"') && !id.contains('\\'))
        return "remove: ID=" + id;
    QByteArray quoted;
    for (const char ch : id) {
        if (ch == '"' || ch == '\\')
            quoted += '\\';
        quoted += ch;
    }
    return "remove: ID=\"" + quoted + '"';
}

quint32 end_launch(const QByteArray& id)
{
    if (checked(id).isEmpty())
        return 0;
    xcb_connection_t* c = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(c)) {
        fprintf(stderr, "Ovra: the launch feedback cannot be ended: no X server\n");
        xcb_disconnect(c);
        return 0;
    }
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(c)).data;
    // Receivers tell the senders' messages apart by this window.
    const xcb_window_t window = xcb_generate_id(c);
    const uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(c, XCB_COPY_FROM_PARENT, window, screen->root, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &mask);
    const quint32 now = server_time(c, window, xcb_atom(c, "_NET_STARTUP_INFO"));
    send_message(c, screen->root, window, remove_message(id));
    xcb_destroy_window(c, window);
    // A round trip, so that the messages are out before the connection goes.
    free(xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
    xcb_disconnect(c);

    const quint32 time = time_of(id);
    // The clock wraps after 49 days: "not after now" is a signed difference.
    if (time == 0 || now == 0 || qint32(now - time) < 0)
        return 0;
    return time;
}

} // namespace LaunchFeedback
