#pragma once

#include <QSystemTrayIcon>
#include <array>

#include "settings/SettingRef.h"
#include "tray/ITrayIcon.h"
#include "tray/TrayArt.h"
#include "tray/TrayHost.h"
#include "tray/TraySpin.h"

class QAction;
class QActionGroup;
class QMenu;

// The icon in the notification area on Qt's own tray: its colour shows the
// state, its mark turns while the colours change, and its menu switches the
// type, opens the settings and ends the program.
class TrayIcon : public QSystemTrayIcon, public ITrayIcon
{
    Q_OBJECT

public:
    static constexpr int TYPE_COUNT = 9;
    static constexpr int PAUSERS_PER_KIND = 3;

    explicit TrayIcon(TrayHost host, QObject* parent = nullptr);
    ~TrayIcon() override;

    void refresh_tray_icon_actions() override;
    void update_tray_icon(bool changing) override;
    void refresh_tray_icon_menu() override;
    void refresh_pausers_actions() override;
    void show_message(const QString& title, const QString& text) override;
    void show_icon() override;
    void show_context_menu() override;
    bool is_visible() const override;
    void set_tooltip(const QString& text) override;
    void refresh_selected_type() override;
    void refresh_selected_mode() override;

    QMenu* context_menu() const { return menu; }
    // What the icon shows now.
    TrayArt shown_art() const { return shown; }
    int shown_angle() const { return angle_shown; }
    TraySpin& spin() { return turn; }
    QMenu* pauser_menu(PauserKind kind) const { return pauser_menus[static_cast<size_t>(kind)]; }

public slots:
    void change_ovra_mode_to_automatic();
    void change_ovra_mode_to_manual();
    void change_ovra_mode_to_paused();
    void change_ovra_mode(bool checked);
    void change_ovra_type(bool checked, int type);
    void toogle_color_pauser(bool checked, const QString& pauser);
    void toogle_timer_pauser(bool checked, const QString& pauser);
    void toogle_mouse_pauser(bool checked, const QString& pauser);
    void icon_activated(QSystemTrayIcon::ActivationReason reason);
    void tray_icon_menu_about_to_show() { menu_open = true; }
    void tray_icon_menu_about_to_hide() { menu_open = false; }

private:
    void create_tray_icon();
    void create_actions();
    void create_mode_menu();
    void create_pauser_menus();
    void set_green_tray_icon(bool changing);
    void show_art(TrayArt art, int angle);
    void toogle_pauser(PauserKind kind, bool checked, const QString& pauser);
    void save_tray_icon();
    bool setting(const char* key) const;
    int number(const char* key) const;
    QString text(const char* key) const;

    TrayHost host;
    // Read every second by the icon; a tray without a map reads an empty one.
    SettingRef ghost_setting;
    SettingRef optimize_ui_setting;
    SettingRef spinning_setting;
    // Only the program itself spins; a renamed build stays still.
    bool may_spin = false;
    QString tooltip_shown;
    QMenu* menu = nullptr;
    QMenu* mode_menu = nullptr;
    std::array<QMenu*, 3> pauser_menus{};

    QAction* open_window_action = nullptr;
    QAction* automatic_action = nullptr;
    QAction* manual_action = nullptr;
    QAction* paused_action = nullptr;
    QAction* change_mode_action = nullptr;
    QAction* quit_action = nullptr;
    std::array<QAction*, TYPE_COUNT> type_actions{};
    std::array<std::array<QAction*, PAUSERS_PER_KIND>, 3> pauser_actions{};
    QActionGroup* type_group = nullptr;
    QActionGroup* mode_group = nullptr;

    TraySpin turn;
    TrayArt shown = TrayArt::Red;
    int angle_shown = -1;
    bool menu_open = false;
};
