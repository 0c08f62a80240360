#pragma once

#include <QJsonObject>
#include <QLatin1String>

// What a page window is allowed and kept to, as ovra asks it of the window
// host. Both ends of the channel read the names from the one table below, so
// a flag added on one side cannot arrive unnamed on the other.
struct WindowFlags
{
    bool frameless = false;
    bool stays_on_top = false;
    bool tool = false;            // a utility window, no taskbar entry
    bool tooltip = false;         // override-redirect, outside the WM
    bool translucent = false;     // takes effect when the window is opened
    bool refuse_close = false;    // close requests are dropped without a report
    bool swallow_keys = false;    // no key reaches the page
    bool grab_keyboard = false;   // active X keyboard grab while shown
    bool keep_raised = false;     // raised every 10 ms while shown
    bool click_through = false;   // input passes to what lies below
    bool no_focus = false;        // never takes focus, never activated
    bool start_offscreen = false; // far off-screen until a geometry arrives

    // Only the flags that are set, each as true.
    QJsonObject to_json() const;
    static WindowFlags from_json(const QJsonObject& object);
};

namespace window_flags_detail {
struct Name
{
    const char* name;
    bool WindowFlags::*member;
};
inline constexpr Name NAMES[] = {
    {"frameless", &WindowFlags::frameless},         {"stays_on_top", &WindowFlags::stays_on_top},
    {"tool", &WindowFlags::tool},                   {"tooltip", &WindowFlags::tooltip},
    {"translucent", &WindowFlags::translucent},     {"refuse_close", &WindowFlags::refuse_close},
    {"swallow_keys", &WindowFlags::swallow_keys},   {"grab_keyboard", &WindowFlags::grab_keyboard},
    {"keep_raised", &WindowFlags::keep_raised},     {"click_through", &WindowFlags::click_through},
    {"no_focus", &WindowFlags::no_focus},           {"start_offscreen", &WindowFlags::start_offscreen},
};
} // namespace window_flags_detail

inline QJsonObject WindowFlags::to_json() const
{
    QJsonObject object;
    for (const auto& flag : window_flags_detail::NAMES)
        if (this->*flag.member)
            object.insert(QLatin1String(flag.name), true);
    return object;
}

inline WindowFlags WindowFlags::from_json(const QJsonObject& object)
{
    WindowFlags flags;
    for (const auto& flag : window_flags_detail::NAMES)
        flags.*flag.member = object.value(QLatin1String(flag.name)).toBool();
    return flags;
}
