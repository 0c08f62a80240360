#pragma once

#include <QString>

#include "tray/ITrayIcon.h"
#include "tray/TrayHost.h"

// The indicator backend lives in a plugin beside the program: GTK and the
// indicator library are mapped only on the desktop that needs them, never
// by the program itself.
namespace IndicatorPlugin {

// The one symbol the plugin exports: it builds the backend on the hooks.
using Factory = ITrayIcon* (*)(const TrayHost* host);
inline constexpr char FACTORY[] = "ovra_create_app_indicator_tray_icon";
inline constexpr char FILE_NAME[] = "libovra-indicator.so";

QString path();
// The indicator's icon, or null with one line on standard error when the
// plugin or its libraries cannot be loaded.
ITrayIcon* create(const TrayHost& host);

} // namespace IndicatorPlugin
