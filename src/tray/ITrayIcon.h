#pragma once

#include <QString>

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
    // The icon's colour follows the state; while colours change it turns.
    virtual void update_tray_icon(bool changing) = 0;
    virtual void set_tooltip(const QString& text) = 0;
    virtual void show_message(const QString& title, const QString& text) = 0;
};
