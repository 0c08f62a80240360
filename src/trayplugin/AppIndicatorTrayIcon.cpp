// GTK's headers come before Qt's, and the target builds without Qt's
// keywords: GTK uses "signals" as a name.
#include <gtk/gtk.h>
#include <libayatana-appindicator/app-indicator.h>

#include "trayplugin/AppIndicatorTrayIcon.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <iostream>

namespace {
AppIndicatorTrayIcon* owner(gpointer data)
{
    return static_cast<AppIndicatorTrayIcon*>(data);
}

void settings_callback(GtkMenuItem*, gpointer data)
{
    if (owner(data)->tray_host().bring_to_front)
        owner(data)->tray_host().bring_to_front();
}

void exit_callback(GtkMenuItem*, gpointer data)
{
    if (owner(data)->tray_host().quit)
        owner(data)->tray_host().quit();
}

void health_callback(GtkMenuItem*, gpointer data) { owner(data)->choose_type(1); }
void sleep_callback(GtkMenuItem*, gpointer data) { owner(data)->choose_type(2); }
void programming_callback(GtkMenuItem*, gpointer data) { owner(data)->choose_type(4); }
void biohacker_callback(GtkMenuItem*, gpointer data) { owner(data)->choose_type(5); }
void sunglasses_callback(GtkMenuItem*, gpointer data) { owner(data)->choose_type(6); }
void movie_callback(GtkMenuItem*, gpointer data) { owner(data)->choose_type(8); }

using Callback = void (*)(GtkMenuItem*, gpointer);

// Reading, Dark and Overlay are not offered on this platform.
struct Item
{
    const char* label; // null for a separator
    Callback callback;
};
const Item ITEMS[] = {
    {"Settings", settings_callback},
    {nullptr, nullptr},
    {"Health", health_callback},
    {"Sleep", sleep_callback},
    {"Programming", programming_callback},
    {"Biohacker", biohacker_callback},
    {"Sunglasses", sunglasses_callback},
    {"Movie", movie_callback},
    {nullptr, nullptr},
    {"Exit", exit_callback},
};

// GLib's messages go where Qt's go: nowhere, unless asked for.
void drop_message(const gchar*, GLogLevelFlags, const gchar*, gpointer) {}

// GTK runs on the program's own GLib loop, which Qt's event dispatcher
// turns; it only needs its display opened once.
bool gtk_ready()
{
    static const bool ready = [] {
        if (qEnvironmentVariableIntValue("OVRA_DEBUG") != 1)
            g_log_set_default_handler(drop_message, nullptr);
        gdk_set_allowed_backends("x11");
        // Qt has set the locale already.
        gtk_disable_setlocale();
        return gtk_init_check(nullptr, nullptr) != FALSE;
    }();
    return ready;
}
} // namespace

AppIndicatorTrayIcon::AppIndicatorTrayIcon(TrayHost host, QObject* parent)
    : QObject(parent), host(std::move(host))
{
}

AppIndicatorTrayIcon::~AppIndicatorTrayIcon()
{
    // No callback may reach a controller that is going away.
    if (indicator)
        g_object_unref(indicator);
    if (menu) {
        gtk_widget_destroy(menu);
        g_object_unref(menu);
    }
}

QString AppIndicatorTrayIcon::icon_path()
{
    const QStringList homes = QStandardPaths::standardLocations(QStandardPaths::HomeLocation);
    return (homes.isEmpty() ? QString() : homes.first())
           + QStringLiteral("/.local/share/icons/hicolor/512x512/apps/")
           + QCoreApplication::applicationName() + QStringLiteral(".png");
}

void AppIndicatorTrayIcon::show_icon()
{
    if (indicator)
        return;
    if (!gtk_ready()) {
        std::cerr << "Ovra: GTK cannot open the display; no indicator" << std::endl;
        return;
    }
    // Held by this object as well as by the indicator, so that either may
    // let go first.
    menu = GTK_WIDGET(g_object_ref_sink(gtk_menu_new()));
    for (const Item& item : ITEMS) {
        GtkWidget* widget = item.label ? gtk_menu_item_new_with_label(item.label)
                                       : gtk_separator_menu_item_new();
        gtk_menu_shell_append(GTK_MENU_SHELL(menu), widget);
        if (item.callback)
            g_signal_connect(widget, "activate", G_CALLBACK(item.callback), this);
        gtk_widget_show(widget);
    }
    indicator = app_indicator_new("Ovra", icon_path().toUtf8().constData(),
                                  APP_INDICATOR_CATEGORY_APPLICATION_STATUS);
    app_indicator_set_status(indicator, APP_INDICATOR_STATUS_ACTIVE);
    app_indicator_set_menu(indicator, GTK_MENU(menu));
}

void AppIndicatorTrayIcon::choose_type(int type)
{
    if (host.change_type)
        host.change_type(type);
    if (host.save_tray_icon)
        host.save_tray_icon();
}

extern "C" Q_DECL_EXPORT ITrayIcon* ovra_create_app_indicator_tray_icon(const TrayHost* host)
{
    return new AppIndicatorTrayIcon(*host);
}
