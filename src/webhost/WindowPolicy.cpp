#include "WindowPolicy.h"

WindowPolicy WindowPolicy::from_json(const QJsonObject& flags)
{
    WindowPolicy policy;
    static_cast<WindowFlags&>(policy) = WindowFlags::from_json(flags);
    return policy;
}

Qt::WindowFlags WindowPolicy::window_flags() const
{
    Qt::WindowFlags f = tooltip ? Qt::ToolTip : tool ? Qt::Tool : Qt::Window;
    if (frameless)
        f |= Qt::FramelessWindowHint;
    if (stays_on_top)
        f |= Qt::WindowStaysOnTopHint;
    if (click_through)
        f |= Qt::WindowTransparentForInput;
    if (no_focus)
        f |= Qt::WindowDoesNotAcceptFocus;
    return f;
}
