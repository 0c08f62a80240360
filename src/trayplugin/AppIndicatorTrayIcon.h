#pragma once

#include <QObject>

#include "tray/ITrayIcon.h"
#include "tray/TrayHost.h"

typedef struct _AppIndicator AppIndicator;
typedef struct _GtkWidget GtkWidget;

// The tray on the Unity desktop, where Qt's own icon has no place: an
// application indicator with a GTK menu. Its icon is the one picture the
// launcher installs; it shows no state and no messages, and its labels are
// plain English.
class AppIndicatorTrayIcon : public QObject, public ITrayIcon
{
    Q_OBJECT

public:
    explicit AppIndicatorTrayIcon(TrayHost host, QObject* parent = nullptr);
    ~AppIndicatorTrayIcon() override;

    void show_icon() override;
    // A closed window can always be found again through the indicator.
    bool is_visible() const override { return indicator != nullptr; }

    // The menu's callbacks, by the types' numbers.
    void choose_type(int type);
    const TrayHost& tray_host() const { return host; }

    // Where the launcher puts the program's picture.
    static QString icon_path();

private:
    TrayHost host;
    AppIndicator* indicator = nullptr;
    GtkWidget* menu = nullptr;
};
