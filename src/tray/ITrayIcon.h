#pragma once

// What the controller asks of the icon in the notification area.
class ITrayIcon
{
public:
    virtual ~ITrayIcon() = default;
    virtual void show_icon() = 0;
    // Without a visible icon there is no way back to a closed window.
    virtual bool is_visible() const = 0;
    // The menu marks the chosen type and mode, and follows pauses.
    virtual void refresh_selected_type() = 0;
    virtual void refresh_selected_mode() = 0;
    virtual void refresh_tray_icon_actions() = 0;
    virtual void refresh_tray_icon_menu() = 0;
    // The pauser entries offer the application in front; they follow the
    // lists and the name.
    virtual void refresh_pausers_actions() = 0;
    // The icon's colour and tooltip follow the values of the moment.
    virtual void refresh_status() = 0;
};
