#pragma once

#include <QtGlobal>

// The few X requests Qt does not offer for a top-level window: the user's
// time stamp, an activation request the way a pager makes it, and an active
// keyboard grab. Each returns 0 or -1; without an X11 connection it says so
// in one line on stderr. A refused grab is left to the caller to tell, since
// it is tried again.
namespace X11Window {

// Sets _NET_WM_USER_TIME on the window and on the window it names as its
// _NET_WM_USER_TIME_WINDOW, if any.
int set_user_time(quint32 window, quint32 user_time);

// True when a running window manager lists _NET_ACTIVE_WINDOW as supported.
bool manager_handles_activation();

// _NET_ACTIVE_WINDOW client message to the root window. Source 1 is an
// application (the WM weighs `user_time` against focus stealing), source 2
// a pager acting for the user.
int request_activation(quint32 window, quint32 user_time, int source);

// Active keyboard grab on the window; fails while another client holds one
// or while the window is not viewable.
int grab_keyboard(quint32 window);
void ungrab_keyboard();

} // namespace X11Window
