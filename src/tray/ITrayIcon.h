#pragma once

#include <QString>
#include <iostream>

// What the controller asks of the icon in the notification area, whichever
// backend shows it. The bodies here are what a backend without the feature
// does; they stay inline so that a backend loaded as a plugin needs nothing
// from the program's own symbols.
class ITrayIcon
{
public:
    virtual ~ITrayIcon() = default;

    // Sets all texts again, for a language change or a pause.
    virtual void refresh_tray_icon_actions() {}
    // The icon's colour follows the state; while colours change it turns.
    virtual void update_tray_icon(bool changing) {}
    virtual void refresh_tray_icon_menu() {}
    // The pauser entries offer the recent applications; they follow the
    // lists and the switches.
    virtual void refresh_pausers_actions()
    {
        std::cout << "ITrayIcon refresh_pausers_actions" << std::endl;
    }
    virtual void show_message(const QString& title, const QString& text) {}
    virtual void show_icon() { std::cout << "ITrayIcon show_icon" << std::endl; }
    virtual void show_context_menu() {}
    // Without a visible icon there is no way back to a closed window.
    virtual bool is_visible() const { return false; }
    virtual void set_tooltip(const QString& text) {}
    // The menu marks the chosen type and mode.
    virtual void refresh_selected_type() {}
    virtual void refresh_selected_mode() {}
};
