#pragma once

#include "web/HostStates.h"

#include <QJsonObject>
#include <QString>
#include <Qt>

// What ovra asks of one window beyond its page: how the window manager
// should treat it and what the host enforces without a round trip.
struct WindowPolicy
{
    bool frameless = false;
    bool stays_on_top = false;
    bool tool = false;          // Qt::Tool: a utility window, no taskbar entry
    bool tooltip = false;       // Qt::ToolTip: override-redirect, outside the WM
    bool translucent = false;   // only when the window is opened
    bool refuse_close = false;  // close requests are dropped, not reported
    bool swallow_keys = false;  // no key reaches the page
    bool grab_keyboard = false; // active X keyboard grab while shown
    bool keep_raised = false;   // raised every 10 ms while shown
    bool click_through = false; // empty input shape
    bool no_focus = false;      // never takes focus, never activated
    bool start_offscreen = false; // far off-screen until a geometry arrives

    static WindowPolicy from_json(const QJsonObject& flags);
    Qt::WindowFlags window_flags() const;
};


