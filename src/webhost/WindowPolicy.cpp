#include "WindowPolicy.h"

WindowPolicy WindowPolicy::from_json(const QJsonObject& flags)
{
    WindowPolicy p;
    p.frameless = flags.value("frameless").toBool();
    p.stays_on_top = flags.value("stays_on_top").toBool();
    p.tool = flags.value("tool").toBool();
    p.tooltip = flags.value("tooltip").toBool();
    p.translucent = flags.value("translucent").toBool();
    p.refuse_close = flags.value("refuse_close").toBool();
    p.swallow_keys = flags.value("swallow_keys").toBool();
    p.grab_keyboard = flags.value("grab_keyboard").toBool();
    p.keep_raised = flags.value("keep_raised").toBool();
    p.click_through = flags.value("click_through").toBool();
    p.no_focus = flags.value("no_focus").toBool();
    p.start_offscreen = flags.value("start_offscreen").toBool();
    return p;
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
